"""The arrows between the folders point down only: reads every #include of the product and names the files that break a rule.

    python3 layers.py ROOT
"""
import re
import sys
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
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
LAYER = re.compile(r"runtime/controls/(events)/|game/(rules)/|(game)/|runtime/([^/]+)/|include/tetrad/([^/.]+)(?:/|\.h)")


def layer_of(path):
    """Also "tetrad" and "fwd", the headers above the folders; None for what is not the product's."""
    match = LAYER.match(path)
    return match and next(filter(None, match.groups()))


def faults_of(path, text):
    layer = layer_of(path)
    for bracket, name in INCLUDE.findall(text):
        target = "include/" + name if bracket == "<" else name
        below = layer_of(target)
        if layer in BELOW and below not in (None, "fwd", layer, *BELOW[layer]):
            yield f"{path} includes {target}: {layer} lies below {below}, or beside it"
        if path.startswith("include/") and bracket == '"':
            yield f"{path} includes {target}: a public header includes public headers only"


def main(root):
    files = [file for top in ("include", "runtime", "game") for file in sorted(Path(root, top).rglob("*.*")) if file.is_file()]
    faults = [fault for file in files for fault in faults_of(file.relative_to(root).as_posix(), file.read_text("utf-8"))]
    print(*faults, sep="\n")
    print(f"{len(files)} files read, {len(faults)} faults")
    sys.exit(bool(faults) or len(files) < 100)


main(sys.argv[1])
