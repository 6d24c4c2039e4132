"""The vocabulary of vocabulary.txt, as a source to compile and in the index in docs/runtime.md.

    python3 vocabulary.py source ROOT      prints a source that names every name
    python3 vocabulary.py index ROOT       fails unless the index has every name once, with the header that declares it
"""
import re
import sys
from pathlib import Path


def vocabulary(root):
    """{heading: [names]}, {class: [members]} and {heading: [name=value]}, from logical lines that go on indented."""
    names, members, values = {}, {}, {}
    text = re.sub(r"^#.*\n", "", Path(root, "tests/house/vocabulary.txt").read_text(encoding="utf-8"), flags=re.MULTILINE)
    for line in re.sub(r"\n\s+", " ", text).splitlines():
        name, separator, rest = re.split(r"(::?|=)", line, maxsplit=1)
        {":": names, "::": members, "=": values}[separator][name] = rest.split()
    return names, members, values


def source(root):
    names, members, values = vocabulary(root)
    lines = ["#include <tetrad/tetrad.h>"]
    lines += [f'#include "{header.relative_to(root).as_posix()}"' for header in sorted(Path(root, "game").rglob("*.h"))]
    lines += [f"using tetrad::{name};" for heading in names.values() for name in heading]
    lines += [f"static_assert(tetrad::{value.replace('=', ' == ')});" for heading in values.values() for value in heading]
    for name, own in members.items():
        lines += [f"struct {name}Names : tetrad::{name}", "{"]
        # A using-declaration names overloads, static members and data alike.
        lines += [f"    using {name}::{member};" for member in own] + ["};"]
    print(*lines, sep="\n")


def index(root):
    wanted = sorted(name for heading, own in vocabulary(root)[0].items() if heading != "Game" for name in own)
    rows = re.findall(r"^\| `<(tetrad/.+)>` \| (.+) \|$", Path(root, "docs/runtime.md").read_text("utf-8"), re.MULTILINE)
    indexed = [(name, header) for header, names in rows for name in re.findall(r"\w+", names)]
    for name, header in indexed:
        declared = rf"^[^/\n]*(?<![\w:.>({{]){name}(?= *[(\[;=\n]| : | final)"
        if not re.search(declared, Path(root, "include", header).read_text("utf-8"), re.MULTILINE):
            sys.exit(f"docs/runtime.md: <{header}> does not declare {name}")
    if sorted(name for name, _ in indexed) != wanted:
        sys.exit(f"docs/runtime.md: not once in the index: {set(wanted) ^ {name for name, _ in indexed} or 'a name twice'}")


{"source": source, "index": index}[sys.argv[1]](sys.argv[2])
