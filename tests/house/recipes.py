"""Prints the programs of a document as one source to compile, each in a namespace of its own, once the steps that lead to
another program are found to be all of that.

    python3 recipes.py DOCUMENT PROGRAM
"""

import re
import sys

with open(sys.argv[1], encoding="utf-8") as document, open(sys.argv[2], encoding="utf-8") as program:
    before, steps, after = re.split("## From nothing to a form|## Recipes", document.read())
    rest = program.read()
for piece in re.split("^ *…\n|^```.*?^```cpp\n", "```" + steps, flags=re.M | re.S)[1:]:
    piece = piece.split("```")[0]
    if piece not in rest:
        sys.exit(f"These lines of a step are not in {sys.argv[2]}:\n{piece}")
    rest = rest.replace(piece, "", 1)
if rest.strip():
    sys.exit(f"These lines of {sys.argv[2]} are in no step: {rest.strip()}")

programs = re.findall(r"```cpp\n(#include.*?\nint main.*?)```", before + after, re.S)
includes = {line for program in programs for line in re.findall("#include .*", program)}
print("\n".join(sorted(includes)))
for number, program in enumerate(programs):
    # Only the one main may end without a return.
    program = re.sub("#include .*", "", program).replace("int main()", "void program()")
    print(f"namespace recipe{number} {{", program, "}", sep="\n")
