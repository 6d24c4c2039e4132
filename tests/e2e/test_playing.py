"""The game in a desktop: from the first screen to the alert, every way out, and the whole deck."""

from playing import PROMPT, PlayingTest, prompt_after
from solver import solve

EXTRA_NUMBERS = "Error! Extra numbers not allowed"
MISSING_NUMBER = "ERROR! Must use all your numbers and only those numbers."
DECK = {"⚪ Easy": 33, "🔴 🔴 Medium": 32, "🟡 🟡 🟡 Hard": 31}

SCREEN = """
Given four numbers and using just the +, -, *, and / operators; and the
possible use of parenthesis (), enter an expression that equates to 24.
You must use all your numbers and only those numbers.
Examples: 9618 Solution 9 + 6 + 1 + 8 or 3173 Solution ((3 * 1) * 7) + 3

Enter Q to quit or S to skip to the next number.

These are your numbers, difficulty level {level}
 {numbers[0]}  {numbers[1]}  {numbers[2]}  {numbers[3]}"""


class TestAnswers(PlayingTest):
    def assert_screen(self, game, puzzle, message=""):
        """The rules, the puzzle and the message stand on the console and nothing else, whatever comes between lines."""
        lines = [line.strip() for line in game.screen().splitlines() if line.strip()]
        expected = SCREEN.format(level=puzzle.level, numbers=puzzle.numbers) + f"\n{message}"
        self.assertEqual(lines, [line.strip() for line in expected.splitlines() if line.strip()])

    def test_rejections_name_the_reason_and_the_next_prompt_the_answer(self):
        game = self.start()
        puzzle = game.wait_for_puzzle()
        self.assert_screen(game, puzzle)
        numbers = puzzle.numbers
        absent = next(n for n in range(1, 10) if n not in numbers)
        # The last number may be there twice, and the check is for presence only.
        missing = "+".join(str(absent if n == numbers[-1] else n) for n in numbers)
        wrong = next(found for target in (1, 2, 3, 5, 7) if (found := solve(numbers, target)))
        prompt = PROMPT
        for answer, message in [
            ("1+2+3+4+5", EXTRA_NUMBERS),
            (missing, MISSING_NUMBER),
            ("9", MISSING_NUMBER),
            (wrong, ""),
            (f"({wrong}", ""),
        ]:
            with self.subTest(answer=answer):
                before = game.screen()
                game.answer(answer, prompt)
                prompt = prompt_after(answer)
                game.wait_for_prompt(prompt)
                self.assertEqual(game.screen().removeprefix(before).strip(), message)
                self.assertIsNone(game.alert())

    def test_no_answer_is_asked_again(self):
        game = self.start()
        puzzle = game.wait_for_puzzle()
        for typed, key in [("", "Return"), ("", "Escape"), ("", "KP_Enter"), ("", "Tab"), ("1+1", "Escape")]:
            with self.subTest(typed=typed, key=key):
                asked = game.wait_for_prompt()
                game.type(typed)
                self.desktop.press(key)
                # A question of its own: the field that asked is gone.
                game.wait(lambda: (field := game.field()) and not field.is_the_same_as(asked), "another field")
                game.wait_for_prompt()
                self.assert_screen(game, puzzle)

    def test_skipping_brings_another_puzzle_and_forgets_the_answers(self):
        game = self.start()
        puzzle = game.wait_for_puzzle()
        game.answer("9")
        for letter, prompt in [("s", prompt_after("9")), ("S", PROMPT)]:
            game.answer(letter, prompt)
            puzzle = game.wait_for_puzzle(other_than=puzzle)
            self.assert_screen(game, puzzle)

    def test_a_click_elsewhere_does_not_end_the_input(self):
        game = self.start()
        field = game.wait_for_prompt()
        game.type("1+2")
        x, y, _, _ = game.console().rectangle
        self.desktop.click(x + 5, y + 60)
        game.type("*", "1+2*")
        other = self.start()
        other.wait_for_prompt()
        other.type("9")
        for name, leave in [("on the desktop", lambda: self.desktop.click(3, 3)), ("on another program", other.activate)]:
            with self.subTest(name):
                leave()
                game.wait(lambda: not game.field(), "the focus to be elsewhere")
                game.activate()
                game.wait_for_field_text("1+2*")
        game.type("3", "1+2*3")
        self.assertTrue(game.field().is_the_same_as(field))
        self.assertEqual((game.field().name, other.application.find("text").text), (PROMPT, "9"))


class TestLeaving(PlayingTest):
    """Every way out ends the program with status 0 and not a word on standard error."""

    def test_each_way_out(self):
        for name, reach, leave in [
            ("Q", lambda game: game.wait_for_prompt(), lambda game: game.answer("Q")),
            ("q after a rejected answer", lambda game: game.answer("9"), lambda game: game.answer("q", prompt_after("9"))),
            ("quit item with a half-typed answer", lambda game: (game.wait_for_prompt(), game.type("1+(2")),
             lambda game: self.desktop.press("ctrl+q")),
            ("close box", lambda game: game.wait_for_prompt(),
             lambda game: self.desktop.click_close_box(game.identifier())),
            ("quit item at the alert", lambda game: game.win(), lambda game: self.desktop.press("ctrl+q")),
            ("mouse at the alert", lambda game: game.win(),
             lambda game: self.desktop.click(*game.button("Quit").centre)),
        ]:
            with self.subTest(name):
                game = self.start()
                reach(game)
                leave(game)
                self.assert_clean_end(game)

    def test_escape_and_the_close_box_leave_the_alert_open(self):
        game = self.start()
        game.win()
        # Keys arrive in order: when Tab has moved the focus, the two before it have been handled; a button that one of
        # them chose shows itself pressed before it acts.
        self.desktop.press("Escape", "alt+F4", "Tab")
        states = game.wait(lambda: (button := game.button("Play Again")) and "focused" in (now := button.states) and now,
                           "the focus on the other button")
        self.assertNotIn("pressed", states)


class TestCycle(PlayingTest):
    def test_96_different_puzzles_come_before_the_first_repeat(self):
        game = self.start()
        played = [game.win()]
        while len(played) < sum(DECK.values()) + 1:
            game.play_again()
            played.append(game.win())
        *cycle, repeated = played
        self.assertEqual(len({puzzle.numbers for puzzle in cycle}), len(cycle))
        self.assertIn(repeated, cycle)
        levels = [puzzle.level for puzzle in cycle]
        self.assertEqual({level: levels.count(level) for level in levels}, DECK)
        self.desktop.press("Return")
        self.assert_clean_end(game)
