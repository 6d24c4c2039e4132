"""Finds an expression that makes a target of given numbers, with exact arithmetic."""

from fractions import Fraction
from itertools import permutations


def _combinations(left, right):
    (a, a_text), (b, b_text) = left, right
    yield a + b, f"({a_text}+{b_text})"
    yield a - b, f"({a_text}-{b_text})"
    yield a * b, f"({a_text}*{b_text})"
    if b != 0:
        yield a / b, f"({a_text}/{b_text})"


def _solve(terms, target):
    if len(terms) == 1:
        return terms[0][1] if terms[0][0] == target else None
    for left, right in permutations(range(len(terms)), 2):
        rest = [term for index, term in enumerate(terms) if index not in (left, right)]
        for combined in _combinations(terms[left], terms[right]):
            solution = _solve(rest + [combined], target)
            if solution:
                return solution
    return None


def solve(numbers, target=24):
    """An expression that uses each number once, as 6/(1-(3/4)) for 1, 3, 4 and 6; None if there is none."""
    solution = _solve([(Fraction(n), str(n)) for n in numbers], Fraction(target))
    return solution[1:-1] if solution else None
