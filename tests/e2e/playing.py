"""Tests that play the real program."""

import contextlib
import functools
import traceback
import unittest
from pathlib import Path

from desktop import Desktop
from game import ARTIFACTS, Game


class PlayingTest(unittest.TestCase):
    """A test that plays. When it fails, the screen and the accessible tree are kept for the reader."""

    def __init__(self, name):
        super().__init__(name)
        # Not a plain function, which unittest would not take for a test when it is named alone.
        setattr(self, name, functools.partial(self._keeping_evidence()(getattr(self, name))))

    @contextlib.contextmanager
    def subTest(self, *message, **parameters):
        with super().subTest(*message, **parameters), self._keeping_evidence():
            yield

    def setUp(self):
        self.desktop = Desktop.shared()
        self.games = []

    def start(self, **options):
        game = self.start_blind(**options)
        game.wait_for_start()
        return game

    def start_blind(self, **options):
        """Starts it without waiting until it can be seen."""
        game = Game(self.desktop, **options)
        self.addCleanup(game.end)
        self.games.append(game)
        return game

    def carry_out(self, steps, game):
        """Each step is the name of a method, of the test or of the running program, and its arguments."""
        for step, *arguments in steps:
            getattr(self if hasattr(self, step) else game, step)(*arguments)

    def assert_clean_end(self, game):
        self.assertEqual(game.wait_for_end(), (0, ""))

    @contextlib.contextmanager
    def _keeping_evidence(self):
        try:
            yield
        except Exception:
            ARTIFACTS.mkdir(parents=True, exist_ok=True)
            stem = ARTIFACTS / self.id().split(".", 1)[-1]
            trees = "\n".join(game.application.tree() for game in self.games if game.application)
            Path(f"{stem}.txt").write_text(f"{traceback.format_exc()}\n{trees}")
            print(f"What to do next: look at {stem}.png (the screen) and {stem}.txt (what the program told about it)")
            self.desktop.run("import", "-window", "root", f"{stem}.png")
            raise
