"""Locales, and a machine without a display."""

import os
import subprocess
import unittest

from playing import PROGRAM, REPOSITORY, PlayingTest
from solver import solve


class TestLocales(PlayingTest):
    def test_the_game_is_the_same_everywhere(self):
        folder = os.path.join(self.desktop.folder, "locales")
        os.makedirs(folder, exist_ok=True)
        for language in ("de_DE", "tr_TR"):
            with self.subTest(language):
                self.desktop.run("localedef", "-i", language, "-f", "UTF-8", f"{folder}/{language}.UTF-8")
                environment = {"LOCPATH": folder, "LC_ALL": f"{language}.UTF-8", "LANG": f"{language}.UTF-8"}
                self.play(environment)

    def play(self, environment):
        """A number printed, a value with decimals judged (24.5 is 24), both capitals that Turkish lacks."""
        game = self.start(environment=environment)
        puzzle = game.wait_for_puzzle()
        while not (solution := solve(puzzle.numbers, "49/2")):
            game.answer("s")
            puzzle = game.wait_for_other_puzzle(puzzle)
        game.answer(solution)
        game.wait_for_alert()
        game.play_again()
        game.wait_for_other_puzzle(puzzle)
        game.answer("Q")
        self.assert_clean_end(game)


class TestNoDisplay(unittest.TestCase):
    def run_without_display(self, *command, **variables):
        environment = {name: os.environ[name] for name in ("PATH", "HOME") if name in os.environ}
        return subprocess.run(command, env={**environment, **variables}, stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, timeout=120)

    def test_one_sentence_and_status_1(self):
        nowhere = {"DISPLAY": ":4711"}
        for name, command, variables in [
            ("program", str(PROGRAM), {}),
            ("program, display gone", str(PROGRAM), nowhere),
            ("program, Wayland gone", str(PROGRAM), {"WAYLAND_DISPLAY": "nowhere", "XDG_RUNTIME_DIR": "/tmp"}),
            ("play", str(REPOSITORY / "play"), {}),
        ]:
            with self.subTest(name):
                ended = self.run_without_display(command, **variables)
                self.assertEqual((ended.returncode, ended.stdout), (1, ""))
                self.assertRegex(ended.stderr, r"\A[^\n]*display[^\n]*\.\n\Z")


if __name__ == "__main__":
    unittest.main()
