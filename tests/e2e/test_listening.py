"""A game as a screen reader speaks it; run as a program it prints what is said."""

import unittest

from desktop import Desktop
from listening import Listener, why_not
from playing import PROMPT, Game, PlayingTest, prompt_after
from solver import solve

INSTRUCTIONS = """Given four numbers and using just the +, -, *, and / operators; and the possible use of parenthesis (),
enter an expression that equates to 24. You must use all your numbers and only those numbers. Examples: 9618 Solution 9
+ 6 + 1 + 8 or 3173 Solution ((3 * 1) * 7) + 3 Enter Q to quit or S to skip to the next number. """.replace("\n", " ")
WRONG = "ERROR! Must use all your numbers and only those numbers."


def spoken(puzzle):
    return f"These are your numbers, difficulty level {puzzle.level} {' '.join(map(str, puzzle.numbers))}."


def listen(game, listener):
    """Plays; yields each step, what was said after it and what should be said."""
    again = prompt_after("1+2")
    first = game.wait_for_puzzle()
    yield ("The game starts", listener.wait_for(spoken(first)),
           ["Tetrad Game frame.", f"{PROMPT} text.", INSTRUCTIONS + spoken(first)])
    for step, prompt in [("1+2 and Return", PROMPT), ("1+2 and Return again", again)]:
        game.answer("1+2", prompt)
        yield step, listener.wait_for(WRONG), [f"{again} text.", WRONG]
    game.answer("s", again)
    second = game.wait_for_puzzle(other_than=first)
    yield "S and Return", listener.wait_for(spoken(second)), [f"{PROMPT} text.", spoken(second)]
    game.desktop.press("F6")
    yield "F6", listener.wait_for(spoken(second)), ["Console read only text.", INSTRUCTIONS + spoken(second)]
    game.desktop.press("F6")
    yield "F6 again", listener.wait_for(spoken(second)), [f"{PROMPT} text.", spoken(second)]
    game.answer(solve(second.numbers))
    yield "A solution and Return", listener.wait_for("Quit push button."), ["alert Correct You won!", "Quit push button."]
    # Its name can be read only while the alert is there.
    game.desktop.press("Tab")
    chosen = listener.wait_for("Play Again push button.")
    game.desktop.press("space")
    third = game.wait_for_puzzle(other_than=second)
    yield ("Tab and the space bar", chosen + listener.wait_for(spoken(third)),
           ["Play Again push button.", "Tetrad Game frame.", f"{PROMPT} text.", spoken(third)])


class TestListening(PlayingTest):
    def test_what_is_new_is_said_once_and_nothing_old(self):
        if why_not():
            self.skipTest(why_not())
        listener = Listener(self.desktop)
        for step, said, expected in listen(self.start(), listener):
            with self.subTest(step):
                self.assertEqual(said, expected)


def main():
    if why_not():
        raise SystemExit(f"Nothing can be heard: {why_not()}.")
    desktop = Desktop.shared()
    listener = Listener(desktop)
    game = Game(desktop)
    try:
        game.wait_for_start()
        for step, said, _ in listen(game, listener):
            print(step, *said, sep="\n    ", flush=True)
    finally:
        game.end()


if __name__ == "__main__":
    main()
