"""Compares the evaluator with Python's own arithmetic on random expressions, well formed and not.

    evaluator_against_python.py PROGRAM [COUNT [SEED]]

Every value must be the same double, the sign of zero included, and what is malformed for one must be
malformed for the other. Where the two languages differ on purpose the judge below says so.
"""

import math
import random
import re
import struct
import subprocess
import sys
import warnings

NUMBER = re.compile(r"[0-9.]+")
# What Python takes for an operator or a value of its own and arithmetic does not have.
ONLY_PYTHON = re.compile(r"\*\*|//|\([ \t]*\)|\.\.\.")
MISMATCHES_SHOWN = 20

OPERATORS = "+-*/" * 3 + "x"
SIGNS = ["", "", "", "", "-", "+", "--", "- "]
BLANKS = ["", "", "", "", "", " ", "\t"]
NUMBERS = [str(digit) for digit in range(1, 10)] * 4 + [
    "0", "0.0", "00", "007", "24", "100", "65536", "16777217", "9007199254740993", ".5", "5.", "0.1", "3.14159",
    "1.0005", "0.0000000000000000000001", "." + "0" * 320 + "7", "1" + "0" * 160, "9" * 320, "123456789.123456789",
]
SOUP = "0123456789.+-*/() \tx"


class Ieee(float):
    """A number that division by zero gives what the standard says instead of an exception."""

    def __truediv__(self, other):
        left, right = float(self), float(other)
        if right != 0:
            return Ieee(left / right)
        if left == 0 or math.isnan(left):
            return Ieee(math.nan)
        return Ieee(math.copysign(math.inf, left) * math.copysign(1, right))

    __add__ = lambda self, other: Ieee(float(self) + float(other))
    __sub__ = lambda self, other: Ieee(float(self) - float(other))
    __mul__ = lambda self, other: Ieee(float(self) * float(other))
    __neg__ = lambda self: Ieee(-float(self))
    __pos__ = lambda self: self


def decimal(match):
    """Python's integers are exact and unlimited; the evaluator knows doubles alone."""
    return match[0] if "." in match[0] else match[0] + ".0"


def judge(text):
    """The value by Python's arithmetic, or None for a malformed expression."""
    if ONLY_PYTHON.search(text):
        return None
    try:
        try:
            return eval(NUMBER.sub(decimal, text), {"__builtins__": {}})
        except ZeroDivisionError:
            return float(eval(NUMBER.sub(lambda match: f"Ieee({decimal(match)})", text), {"Ieee": Ieee}))
    except (SyntaxError, TypeError):
        # A number before a parenthesis is a call for Python, of something that cannot be called.
        return None


def game_text(value):
    """What the game makes of a value: three decimals, without them for what equals its own floor as a float."""
    text = f"{value:.3f}"
    rounded = float(text)
    try:
        floor = float(math.floor(struct.unpack("f", struct.pack("f", rounded))[0]))
    except (OverflowError, ValueError):  # outside a float, or no number
        floor = rounded if math.isinf(rounded) else math.nan
    return text.split(".")[0] if rounded == floor else text


class Generator:
    def __init__(self, seed):
        self._random = random.Random(seed)
        self._choice = self._random.choice
        self._chance = self._random.random

    def expression(self):
        kind = self._chance()
        if kind < 0.6:
            return self._sum(4)
        if kind < 0.8:
            return self._damaged(self._sum(3))
        return "".join(self._random.choices(SOUP, k=self._random.randrange(12)))

    def _sum(self, depth):
        terms = [self._operand(depth)]
        while self._chance() < 0.6:
            terms.append(self._choice(OPERATORS))
            terms.append(self._operand(depth))
        return self._choice(BLANKS).join(terms)

    def _operand(self, depth):
        if depth and self._chance() < 0.25:
            return f"{self._choice(SIGNS)}({self._choice(BLANKS)}{self._sum(depth - 1)})"
        return self._choice(SIGNS) + self._choice(NUMBERS)

    def _damaged(self, text):
        place = self._random.randrange(len(text) + 1)
        kind = self._chance()
        if kind < 0.4:
            return text[:place] + text[place + 1:]
        if kind < 0.8:
            return text[:place] + self._choice(SOUP) + text[place:]
        return text[place:] + text[:place]


def same(left, right):
    if left is None or right is None:
        return left is right
    return math.isnan(left) and math.isnan(right) or left == right and math.copysign(1, left) == math.copysign(1, right)


def compare(text, answer):
    """None, or what differs. The letter x multiplies in an answer and is no operator of the evaluator's."""
    value, game = answer.split("\t", 1)
    value = None if value == "error" else float.fromhex(value)
    expected = None if "x" in text else judge(text)
    if not same(value, expected):
        return f"{text!r}: {value!r}, by Python {expected!r}"
    in_game = expected if "x" not in text else judge(text.replace("x", "*"))
    # The sign of what is no number has no meaning, and printf shows it.
    if in_game is not None and game.removeprefix("-" if math.isnan(in_game) else "") != game_text(in_game):
        return f"{text!r}: the game makes {game!r} of it, by Python {game_text(in_game)!r}"
    if in_game is None and re.match(r"\s*[-+]?\.?[0-9]", game):
        return f"{text!r}: the game makes {game!r} of it, and it is malformed"
    return None


def main():
    program = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 1_000_000
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 24
    warnings.simplefilter("ignore", SyntaxWarning)
    generator = Generator(seed)
    texts = [generator.expression() for _ in range(count)]
    answers = subprocess.run([program], input="\n".join(texts) + "\n", capture_output=True, text=True,
                             check=True).stdout.split("\n")
    malformed = sum(answer.startswith("error") for answer in answers)
    differences = [found for text, answer in zip(texts, answers) if (found := compare(text, answer))]
    print(f"{count} expressions of seed {seed}, {malformed} of them malformed: {len(differences)} differences")
    print("\n".join(differences[:MISMATCHES_SHOWN]))
    return 1 if differences or len(answers) != count + 1 else 0


if __name__ == "__main__":
    sys.exit(main())
