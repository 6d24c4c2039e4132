"""The vocabulary of vocabulary.txt, as a source to compile or as the index in docs/runtime.md.

    python3 vocabulary.py source ROOT      prints a source that names every name
    python3 vocabulary.py check ROOT       fails unless the index in docs/runtime.md is that of the headers
    python3 vocabulary.py write ROOT       writes the index
"""
import re
import sys
from pathlib import Path

BEGIN, END = "<!-- index: tests/house/vocabulary.py write -->\n", "<!-- end of the index -->\n"


def vocabulary(root):
    """{heading: [names]} and {class: [members]}, from logical lines that go on indented."""
    names, members = {}, {}
    text = re.sub(r"^#.*\n", "", Path(root, "tests/house/vocabulary.txt").read_text(encoding="utf-8"), flags=re.MULTILINE)
    for line in re.sub(r"\n\s+", " ", text).splitlines():
        name, separator, rest = re.split(r"(::?)", line, maxsplit=1)
        (members if separator == "::" else names)[name] = rest.split()
    return names, members


def source(root):
    names, members = vocabulary(root)
    lines = ["#include <tetrad/tetrad.h>"]
    lines += [f'#include "{header.relative_to(root).as_posix()}"' for header in sorted(Path(root, "game").rglob("*.h"))]
    lines += [f"using tetrad::{name};" for heading in names.values() for name in heading]
    for name, own in members.items():
        lines += [f"struct {name}Names : tetrad::{name}", "{"]
        # A using-declaration names overloads, static members and data alike.
        lines += [f"    using {name}::{member};" for member in own] + ["};"]
    print(*lines, sep="\n")


def header_of(name, headers):
    declared = re.compile(r"^[^/\n]*(?<![\w:.>({])%s(?= *[(\[;=\n]| : | final)" % name, re.MULTILINE)
    found = [header for header, text in headers.items() if declared.search(text)]
    if len(found) != 1:
        sys.exit(f"{name}: expected in one public header, found in {found or 'none'}")
    return found[0]


def index(root):
    folder = Path(root, "include")
    # Without what is only declared for the rest of the header.
    headers = {header.relative_to(folder).as_posix():
               re.sub(r"^(class|struct) \w+;$", "", header.read_text(encoding="utf-8"), flags=re.MULTILINE)
               for header in folder.rglob("*.h") if header.name not in ("fwd.h", "tetrad.h")}
    names, _ = vocabulary(root)
    where = {}
    for heading, own in names.items():
        if heading != "Game":
            for name in own:
                where.setdefault(header_of(name, headers), []).append(name)
    rows = [f"| `<{header}>` | {', '.join(f'`{name}`' for name in sorted(own, key=str.lower))} |\n"
            for header, own in sorted(where.items())]
    return "| Header | Names |\n|---|---|\n" + "".join(rows)


def main(command, path):
    if command == "source":
        source(path)
        return
    document = Path(path, "docs", "runtime.md")
    text = document.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    wanted = before + BEGIN + index(path) + END + rest.split(END)[1]
    if command == "write":
        document.write_text(wanted, encoding="utf-8")
    elif wanted != text:
        sys.exit("The index in docs/runtime.md is out of date: python3 tests/house/vocabulary.py write .")


main(*sys.argv[1:])
