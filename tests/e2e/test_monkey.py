"""A monkey at the keyboard and the mouse: whatever it does, the game neither crashes nor hangs, and asks again.

TETRAD_MONKEY_SECONDS and TETRAD_MONKEY_SEED make it play for that time; a failing seed plays the same again.
"""

import os
import random
import time

from desktop import until
from game import REPOSITORY
from playing import PlayingTest
from solver import solve

SECONDS = float(os.environ.get("TETRAD_MONKEY_SECONDS", 0))
SEEDS = [int(os.environ.get("TETRAD_MONKEY_SEED", 0)) or random.randrange(2**32)] if SECONDS else (3, 11, 24)
BURSTS_WITHOUT_SECONDS = 40
SANITIZERS = {
    "ASAN_OPTIONS": "detect_leaks=1",
    "LSAN_OPTIONS": f"suppressions={REPOSITORY / '.lsan'}:print_suppressions=0",
    "UBSAN_OPTIONS": "print_stacktrace=1",
}

KEYS = (list("123456789") * 2 + ["plus", "minus", "asterisk", "slash", "parenleft", "parenright", "s", "x", "0", "space"]
        + ["Return", "KP_Enter", "Escape", "Tab", "shift+Tab", "BackSpace", "Delete", "Left", "Right", "Home", "End"] * 2
        + ["Up", "Down", "Prior", "Next", "Insert", "Menu", "shift+F10", "F10", "F1", "F6", "alt", "alt+e", "shift+Left",
           "shift+End", "ctrl+a", "ctrl+c", "ctrl+x", "ctrl+v", "ctrl+z", "ctrl+shift+z", "ctrl+Left", "ctrl+BackSpace",
           "ctrl+w", "ctrl+Return", "shift+Return", "Multi_key", "dead_acute", "Kanji", "eacute", "Cyrillic_a"])
MENU_KEYS = ["Down", "Up", "Left", "Right", "Return", "Escape"]
PASTES = ["", "1+2", "6/(1-3/4)", "q", "s", "\n", "(" * 3000, "1+" * 20000, "⚪🟡👩‍👩‍👧", "e\u0301\u202e12", "%@%n%s",
          "\x08\x1b[2J", "\0"]
SIZES = [(580, 269), (1, 1), (100, 60), (1280, 800), (4000, 3000), (300, 700)]


class Monkey:
    """Deals out bursts of input: each the arguments of one xdotool command, or a text to be pasted."""

    def __init__(self, seed):
        self._random = random.Random(seed)
        one, some, below = self._random.choice, self._random.choices, self._random.randrange
        self._deeds = [deed for count, deed in [
            (6, lambda: ["key", "--delay", "1", *some(KEYS, k=below(1, 15))]),
            (3, lambda: ["mousemove", *self._place(), "click", "--repeat", str(one((1, 1, 1, 2, 3))), "--delay", "10", "1"]),
            (2, lambda: ["mousemove", *self._place(), "mousedown", "1", "mousemove", *self._place(),
                         "mousemove", *self._place(), "mouseup", "1"]),
            (2, lambda: ["mousemove", str(below(350, 450)), str(below(255, 290)), "click", "1",
                         "key", *some(MENU_KEYS, k=below(1, 5))]),
            (2, lambda: one(PASTES)),
            (1, lambda: ["getactivewindow", "windowsize", *map(str, one(SIZES))]),
            (1, lambda: ["mousemove", "640", "400", "click", "--repeat", "5", "--delay", "5", one("45")]),
            # Away from the game, where the keys must not reach it.
            (1, lambda: ["mousemove", "3", "3", "click", "1", "key", *some("12+-", k=3)]),
            (1, lambda: ["getactivewindow", "windowminimize"]),
            # The title bar maximises.
            (1, lambda: ["mousemove", "640", "245", "click", "--repeat", "2", "--delay", "30", "1"]),
            (1, lambda: ["key", one(["alt+F4", "ctrl+q", "alt+F4", "q"]), "key", "Return"]),
        ] for _ in range(count)]

    def burst(self):
        return self._random.choice(self._deeds)()

    def chance(self, part):
        return self._random.random() < part

    def _place(self):
        """Mostly where the window opens, sometimes anywhere; only the left button, which no desktop menu follows."""
        across, down = ((345, 935), (240, 545)) if self.chance(0.8) else ((0, 1280), (0, 800))
        return [str(self._random.randrange(*across)), str(self._random.randrange(*down))]


class TestMonkey(PlayingTest):
    # A sanitizer's report is told in full.
    maxDiff = None

    def test_whatever_it_does_the_game_asks_again(self):
        for seed in SEEDS:
            with self.subTest(seed=seed):
                self.play(Monkey(seed))

    def play(self, monkey):
        game = None
        bursts = 0
        end = time.monotonic() + SECONDS
        while time.monotonic() < end if SECONDS else bursts < BURSTS_WITHOUT_SECONDS:
            if game is None:
                game = self.start(environment=SANITIZERS)
                self.settle(game)
            bursts += 1
            self.do(monkey.burst())
            # Both are dealt each time: what comes after must not depend on how the game went.
            settles, tries = monkey.chance(0.3), monkey.chance(0.05)
            if settles and not self.settle(game):
                game = None
            elif tries:
                self.try_to_win(game)
        if game and self.settle(game):
            self.xdotool("key", "ctrl+q")
            self.assert_clean_end(game)
        print(f"{bursts} bursts, {len(self.games)} games")

    def do(self, burst):
        if isinstance(burst, str):
            self.desktop.set_clipboard(burst)
            burst = ["key", "ctrl+v"]
        self.xdotool(*burst)

    def xdotool(self, *arguments):
        """A window may be gone before the command is; that is no failure."""
        self.desktop.run("xdotool", *arguments, check=False, timeout=120)

    def try_to_win(self, game):
        if not game.alert() and (puzzle := game.puzzle()):
            self.xdotool("key", "ctrl+a", "key", "BackSpace", "type", "--delay", "1", solve(puzzle.numbers))
            self.xdotool("key", "Return")
            self.settle(game)

    def settle(self, game):
        """Brings the game to the front and leaves what is open over it: then it must ask, unless it has ended, which it
        may. Returns whether it still runs."""
        # Escape goes to the active window only, and the console, where a text may be selected, keeps the keyboard till then.
        until(lambda: game.has_ended() or self.is_in_front(game), "an active window")
        self.xdotool("key", "Escape")
        until(lambda: game.has_ended() or self.is_in_front(game) and self.asks_or_is_left(game),
              "the field or the alert with the focus")
        if game.has_ended():
            self.assert_clean_end(game)
        return not game.has_ended()

    def is_in_front(self, game):
        # As the game sees it and as the display does: the game learns of a change a moment later, and never that it lost
        # the keyboard while one of its menus was open. A window that was told to minimise may still be active; it is asked
        # again.
        seen = game.application.find_all("frame", "window", "alert", "dialog")
        if any("active" in window.states for window in seen) and game.has_keyboard():
            return True
        self.xdotool("search", "--all", "--pid", str(game.process.pid), "--name", "^Tetrad Game$", "windowactivate", "%@")
        return False

    def asks_or_is_left(self, game):
        if game.field():
            return True
        # A click on the alert's text gives that the focus, to be copied; Return is still the default button's.
        alert = game.alert()
        if alert and any("focused" in part.states for part in alert.find_all("push button", "label")):
            return True
        # One Escape may have gone to a window that was just being minimised, and the About panel may lie over a menu.
        self.xdotool("key", "Escape")
        return False
