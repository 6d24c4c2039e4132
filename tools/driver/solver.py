"""Expressions that make a target of given numbers, with exact arithmetic. As a program it prints every puzzle with all that
make 24, as in "1 3 4 6: (6/(1-(3/4)))".
"""

from fractions import Fraction
from itertools import combinations, combinations_with_replacement


def _combined(left, right):
    (a, a_text), (b, b_text) = left, right
    yield a + b, f"({a_text}+{b_text})"
    yield a * b, f"({a_text}*{b_text})"
    for (a, a_text), (b, b_text) in ((left, right), (right, left)):
        yield a - b, f"({a_text}-{b_text})"
        if b:
            yield a / b, f"({a_text}/{b_text})"


def _solutions(terms, target):
    if len(terms) == 1 and terms[0][0] == target:
        yield terms[0][1]
    for left, right in combinations(range(len(terms)), 2):
        rest = [term for index, term in enumerate(terms) if index not in (left, right)]
        for combined in _combined(terms[left], terms[right]):
            yield from _solutions([*rest, combined], target)


def solutions(numbers, target=24):
    """With full parentheses; a sum or product is made in one order only."""
    return _solutions([(Fraction(number), str(number)) for number in numbers], Fraction(target))


def solve(numbers, target=24):
    """The first without its outer parentheses, as 6/(1-(3/4)) for 1, 3, 4 and 6; None if there is none."""
    return next((text[1:-1] for text in solutions(numbers, target)), None)


if __name__ == "__main__":
    for puzzle in combinations_with_replacement(range(1, 10), 4):
        print(*puzzle, sep=" ", end=": ")
        print(*sorted(set(solutions(puzzle))))
