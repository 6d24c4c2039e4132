"""Compares the evaluator with Python's own arithmetic on random expressions, well formed and not.

    evaluator_against_python.py PROGRAM [COUNT [SEED]]

Every value must be the same double, the sign of zero included, and what is malformed for one must be
malformed for the other. Where the two languages differ on purpose the judge below says so.
"""

import math
import random
import re
import subprocess
import sys
import warnings

NUMBER = re.compile(r"[0-9.]+")
# What Python takes for an operator, a value or a name and arithmetic does not have.
ONLY_PYTHON = re.compile(r"\*\*|//|\([ \t]*\)|\.\.\.|x")

SIGNS = ["", "", "", "", "-", "+", "--", "- "]
BLANKS = ["", "", "", "", "", " ", "\t"]
NUMBERS = [str(digit) for digit in range(1, 10)] * 4 + [
    "0", "0.0", "00", "007", "24", "100", "65536", "16777217", "9007199254740993", ".5", "5.", "0.1", "3.14159",
    "1.0005", "0.0000000000000000000001", "." + "0" * 320 + "7", "1" + "0" * 160, "9" * 320, "123456789.123456789",
]
SOUP = "0123456789.+-*/() \tx"


def judge(text):
    """The value by Python's arithmetic, None for a malformed expression; "any" where it divides by zero,
    and ends before it sees whether the rest is malformed."""
    if ONLY_PYTHON.search(text):
        return None
    # Python's integers are exact and unlimited; the evaluator knows doubles alone.
    decimals = NUMBER.sub(lambda match: match[0] if "." in match[0] else match[0] + ".0", text)
    try:
        return eval(decimals, {"__builtins__": {}})
    except ZeroDivisionError:
        return "any"
    except (SyntaxError, TypeError):
        # A number before a parenthesis is a call for Python, of something that cannot be called.
        return None


class Generator(random.Random):
    def expression(self):
        kind = self.random()
        if kind < 0.5:
            return self._sum(4)
        if kind < 0.75:
            return self._damaged(self._sum(3))
        return "".join(self.choices(SOUP, k=self.randrange(12)))

    def _sum(self, depth):
        terms = [self._operand(depth)]
        while self.random() < 0.6:
            terms += [self.choice("+-*/"), self._operand(depth)]
        return self.choice(BLANKS).join(terms)

    def _operand(self, depth):
        if depth and self.random() < 0.25:
            return f"{self.choice(SIGNS)}({self.choice(BLANKS)}{self._sum(depth - 1)})"
        return self.choice(SIGNS) + self.choice(NUMBERS)

    def _damaged(self, text):
        place = self.randrange(len(text) + 1)
        left, right = text[:place], text[place:]
        return self.choice([left + right[1:], left + self.choice(SOUP) + right, right + left])


def agree(value, judged):
    if judged == "any":
        return True
    if value is None or judged is None:
        return value is judged
    return math.isnan(value) and math.isnan(judged) or value == judged and math.copysign(1, value) == math.copysign(1, judged)


def main(program, count=1_000_000, seed=24):
    warnings.simplefilter("ignore", SyntaxWarning)
    generator = Generator(int(seed))
    texts = [generator.expression() for _ in range(int(count))]
    answers = subprocess.run([program], input="\n".join(texts) + "\n", capture_output=True, text=True,
                             check=True).stdout.splitlines()
    values = [None if answer == "error" else float.fromhex(answer) for answer in answers]
    differences = [f"{text!r}: {value!r}, by Python {judged!r}" for text, value in zip(texts, values, strict=True)
                   if not agree(value, judged := judge(text))]
    print(f"{count} expressions of seed {seed}, {values.count(None)} of them malformed: {len(differences)} differences")
    print("\n".join(differences[:20]))
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
