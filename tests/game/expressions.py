"""Prints random expressions, well formed and not, each as "text=value": the value by Python's own arithmetic, or "malformed".

    python3 expressions.py COUNT
"""

import random
import re
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
    if ONLY_PYTHON.search(text):
        return "malformed"
    # Python's integers are exact and unlimited; the evaluator knows doubles alone.
    decimals = NUMBER.sub(lambda match: match[0] if "." in match[0] else match[0] + ".0", text)
    try:
        return format(eval(decimals, {"__builtins__": {}}), ".17g")
    except (SyntaxError, TypeError):
        # A number before a parenthesis is a call for Python, of something that cannot be called.
        return "malformed"


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


warnings.simplefilter("ignore", SyntaxWarning)
generator = Generator(24)
for text in (generator.expression() for _ in range(int(sys.argv[1]))):
    try:
        print(text, judge(text), sep="=")
    except ZeroDivisionError:
        # An exception that comes before Python sees whether the rest is malformed: it has no opinion.
        pass
