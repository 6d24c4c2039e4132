"""The vocabulary of vocabulary.txt, as a source to compile or as the index in docs/runtime.md.

    python3 vocabulary.py source ROOT      prints a source that names every name
    python3 vocabulary.py check ROOT       fails unless the index in docs/runtime.md is that of the headers
    python3 vocabulary.py write ROOT       writes the index
"""
import os
import re
import sys

LIST = "tests/house/vocabulary.txt"
BEGIN, END = "<!-- index: tests/house/vocabulary.py write -->\n", "<!-- end of the index -->\n"


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def vocabulary(path):
    """{heading: [names]} and {class: [members]}, from logical lines that go on indented."""
    names, members = {}, {}
    text = re.sub(r"^#.*\n", "", read(path), flags=re.MULTILINE)
    for line in re.sub(r"\n\s+", " ", text).splitlines():
        if "::" in line:
            name, rest = line.split("::", 1)
            members[name] = rest.split()
        else:
            name, rest = line.split(":", 1)
            names[name] = rest.split()
    return names, members


def source(root):
    names, members = vocabulary(os.path.join(root, LIST))
    game = [os.path.join(folder, name) for folder in ("game", "game/rules")
            for name in sorted(os.listdir(os.path.join(root, folder))) if name.endswith(".h")]
    lines = ["#include <tetrad/tetrad.h>", *(f'#include "{header}"' for header in game)]
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
    headers = {}
    for folder, _, files in os.walk(os.path.join(root, "include", "tetrad")):
        for file in files:
            path = os.path.relpath(os.path.join(folder, file), os.path.join(root, "include"))
            if file not in ("fwd.h", "tetrad.h"):
                headers[path] = re.sub(r"^(class|struct) \w+;$", "", read(os.path.join(root, "include", path)),
                                       flags=re.MULTILINE)
    names, _ = vocabulary(os.path.join(root, LIST))
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
    document = os.path.join(path, "docs", "runtime.md")
    text = read(document)
    before, rest = text.split(BEGIN)
    wanted = before + BEGIN + index(path) + END + rest.split(END)[1]
    if command == "write":
        with open(document, "w", encoding="utf-8") as file:
            file.write(wanted)
    elif wanted != text:
        sys.exit("The index in docs/runtime.md is out of date: python3 tests/house/vocabulary.py write .")


main(*sys.argv[1:])
