"""Prints the programs of a document as one source to compile, each in a namespace of its own."""

import re
import sys

with open(sys.argv[1], encoding="utf-8") as document:
    programs = re.findall(r"```cpp\n(#include.*?\nint main.*?)```", document.read(), re.S)
includes = {line for program in programs for line in re.findall("#include .*", program)}
print("\n".join(sorted(includes)))
for number, program in enumerate(programs):
    # Only the one main may end without a return.
    program = re.sub("#include .*", "", program).replace("int main()", "void program()")
    print(f"namespace recipe{number} {{", program, "}", sep="\n")
