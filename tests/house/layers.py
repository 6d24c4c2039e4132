"""The arrows between the folders point down only: reads every #include of the product and names the files that break a rule.

    python3 layers.py ROOT
"""
import re
import sys
from graphlib import CycleError, TopologicalSorter
from pathlib import Path

# Each layer and what it may include besides itself. A public header has the rank of its folder in include/tetrad.
BELOW = {
    "strings": [],
    "events": ["strings"],
    "app": ["events", "strings"],
    "console": ["app", "events", "strings"],
    "input": ["app", "events", "strings"],
    "controls": ["input", "app", "events", "strings"],
    "rules": ["strings"],
    "game": ["rules", "input", "console", "app", "events", "strings"],
}
EVERY_LAYER = ["umbrella", *BELOW]
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def layer_of(path):
    """The layer of a file, "umbrella" for the two headers above the folders, None for what is not the product's."""
    for prefix, layer in (("runtime/controls/events/", "events"), ("game/rules/", "rules"), ("game/", "game")):
        if path.startswith(prefix):
            return layer
    parts = path.split("/")
    if parts[0] == "runtime":
        return parts[1]
    if path.startswith("include/tetrad/"):
        return parts[2] if len(parts) == 4 else "umbrella"
    return None


def faults_of(path, text):
    layer = layer_of(path)
    allowed = {layer, *BELOW.get(layer, EVERY_LAYER)}
    for bracket, name in INCLUDE.findall(text):
        target = "include/" + name if bracket == "<" else name
        below = layer_of(target)
        if below is None or target == "include/tetrad/fwd.h":
            continue
        if below not in allowed:
            yield f"{path} includes {target}: {layer} lies below {below}, or beside it"
        if path.startswith("include/") and not target.startswith("include/"):
            yield f"{path} includes {target}: a public header includes public headers only"


def main(root):
    faults, includes = [], {}
    for file in sorted(file for top in ("include", "runtime", "game") for file in Path(root, top).rglob("*.*")):
        path, text = file.relative_to(root).as_posix(), file.read_text(encoding="utf-8")
        if file.suffix in (".h", ".cpp", ".mm"):
            faults += faults_of(path, text)
            includes[path] = ["include/" + name if bracket == "<" else name for bracket, name in INCLUDE.findall(text)]
    try:
        TopologicalSorter(includes).prepare()
    except CycleError as error:
        faults.append("in a circle: " + " is included by ".join(error.args[1]))
    print(*faults, sep="\n")
    print(f"{len(includes)} files read, {len(faults)} faults")
    sys.exit(bool(faults) or len(includes) < 100)


main(sys.argv[1])
