"""A puzzle from the first screen to the alert."""

from playing import PROMPT, PlayingTest, prompt_after
from solver import solve

EXTRA_NUMBERS = "Error! Extra numbers not allowed"
MISSING_NUMBER = "ERROR! Must use all your numbers and only those numbers."
LEVELS = ("⚪ Easy", "🔴 🔴 Medium", "🟡 🟡 🟡 Hard")

INSTRUCTIONS = [
    "Given four numbers and using just the +, -, *, and / operators; and the",
    "possible use of parenthesis (), enter an expression that equates to 24.",
    "You must use all your numbers and only those numbers.",
    "Examples: 9618 Solution 9 + 6 + 1 + 8 or 3173 Solution ((3 * 1) * 7) + 3",
    "Enter Q to quit or S to skip to the next number.",
]


def wrong_result(numbers):
    """Uses all the numbers and makes something else than 24."""
    return next(solution for target in (1, 2, 3, 5, 7) if (solution := solve(numbers, target)))


class TestAnswers(PlayingTest):
    def test_first_screen_tells_the_rules_and_the_puzzle(self):
        game = self.start()
        puzzle = game.wait_for_puzzle()
        lines = [line.strip() for line in game.screen().splitlines()]
        self.assertEqual([line for line in lines if line in INSTRUCTIONS], INSTRUCTIONS)
        self.assertIn(puzzle.level, LEVELS)
        self.assertIn(f"These are your numbers, difficulty level {puzzle.level}", lines)
        self.assertEqual(sorted(puzzle.numbers), list(puzzle.numbers))

    def test_rejections_name_the_reason_and_the_next_prompt_the_answer(self):
        game = self.start()
        numbers = game.wait_for_puzzle().numbers
        absent = next(n for n in range(1, 10) if n not in numbers)
        # The last number may be there twice, and the check is for presence only.
        missing = "+".join(str(absent if n == numbers[-1] else n) for n in numbers)
        wrong = wrong_result(numbers)
        prompt = PROMPT
        # Each answer, what is the newest line on the console after it, and whether it is news.
        for answer, message in [
            ("1+2+3+4+5", EXTRA_NUMBERS),
            (missing, MISSING_NUMBER),
            ("9", MISSING_NUMBER),
            ("11111", EXTRA_NUMBERS),
            (wrong, None),
            (f"({wrong}", None),
        ]:
            with self.subTest(answer=answer):
                before = game.screen()
                game.answer(answer, prompt)
                prompt = prompt_after(answer)
                game.wait_for_prompt(prompt)
                news = game.screen().removeprefix(before).strip()
                self.assertEqual(news, message or "")
                self.assertIsNone(game.alert())

    def test_no_answer_is_asked_again(self):
        game = self.start()
        puzzle = game.wait_for_puzzle()
        screen = game.screen()
        for key in ("Return", "Escape", "KP_Enter", "Tab"):
            with self.subTest(key=key):
                asked = game.wait_for_prompt()
                self.desktop.press(key)
                # A question of its own: the field that asked is gone.
                game.wait_until_asked_anew(asked)
                self.assertEqual((game.puzzle(), game.screen()), (puzzle, screen))
        # An answer that was typed and then cancelled is no answer either.
        asked = game.wait_for_prompt()
        game.type("1+1")
        self.desktop.press("Escape")
        game.wait_until_asked_anew(asked)
        self.assertEqual(game.wait_for_prompt().name, PROMPT)

    def test_skipping_brings_another_puzzle_and_forgets_the_answers(self):
        game = self.start()
        seen = [game.wait_for_puzzle()]
        game.answer("9")
        for letter, prompt in [("s", prompt_after("9")), ("S", PROMPT), ("s", PROMPT)]:
            game.answer(letter, prompt)
            seen.append(game.wait_for_other_puzzle(seen[-1]))
            self.assertNotIn(MISSING_NUMBER, game.screen())
        self.assertEqual(len({puzzle.numbers for puzzle in seen}), len(seen))

    def test_a_solution_wins_and_play_again_brings_another_puzzle(self):
        game = self.start()
        won = game.win()
        alert = game.wait_for_alert()
        texts = [label.name for label in alert.find_all("label")]
        self.assertEqual(texts, ["Correct", "You won!"])
        self.assertEqual([button.name for button in alert.find_all("push button", "button")], ["Quit", "Play Again"])
        game.play_again()
        game.wait_for_other_puzzle(won)
        self.assertEqual([line for line in game.screen().splitlines() if line.strip() in INSTRUCTIONS], INSTRUCTIONS)
        self.assertIsNone(game.alert())
