"""A monkey at the keyboard and the mouse: whatever it does, the game neither crashes nor hangs, and asks again.

    test_monkey.py [SECONDS [SEED]]    plays for that time; a failing seed plays the same again
"""

import os
import random
import re
import subprocess
import sys
import time
import unittest

from desktop import until
from playing import REPOSITORY, PlayingTest
from solver import solve

SEEDS_IN_TESTS = (3, 11, 24)
BURSTS_IN_TESTS = 40
BURSTS_TOLD = 10
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
PASTES = ["", "1+2", "6/(1-3/4)", "q", "s", "\n", "(" * 3000, "1+" * 20000, "⚪🟡👩‍👩‍👧", "e\u0301\u202e12", "%@%n%s",
          "\x08\x1b[2J", "\0"]
READER = re.compile(r"(qt\.qpa\.events\.reader: )?\[heap\] +\d+")


class Monkey:
    """Deals out bursts of input, each the arguments of one xdotool command or a text for the clipboard."""

    def __init__(self, seed):
        self._random = random.Random(seed)
        self._deeds = [self._keys] * 6 + [self._clicks] * 3 + [self._drag] * 2 + [self._menu] * 2 + [
            self._paste, self._paste, self._resize, self._wheel, self._leave, self._minimize, self._maximize, self._close]

    def burst(self):
        return self._random.choice(self._deeds)()

    def chance(self, part):
        return self._random.random() < part

    def _place(self):
        """Mostly where the window opens, sometimes anywhere; only the left button, which no desktop menu follows."""
        if self.chance(0.8):
            return [str(self._random.randrange(345, 935)), str(self._random.randrange(240, 545))]
        return [str(self._random.randrange(1280)), str(self._random.randrange(800))]

    def _keys(self):
        return ["key", "--delay", "1", *self._random.choices(KEYS, k=self._random.randrange(1, 15))]

    def _clicks(self):
        count = str(self._random.choice((1, 1, 1, 2, 3)))
        return ["mousemove", *self._place(), "click", "--repeat", count, "--delay", "10", "1"]

    def _drag(self):
        return ["mousemove", *self._place(), "mousedown", "1", "mousemove", *self._place(), "mousemove", *self._place(),
                "mouseup", "1"]

    def _menu(self):
        keys = self._random.choices(["Down", "Up", "Left", "Right", "Return", "Escape"], k=self._random.randrange(1, 5))
        return ["mousemove", str(self._random.randrange(350, 450)), str(self._random.randrange(255, 290)), "click", "1",
                "key", *keys]

    def _paste(self):
        return {"paste": self._random.choice(PASTES)}

    def _resize(self):
        width, height = self._random.choice([(580, 269), (1, 1), (100, 60), (1280, 800), (4000, 3000), (300, 700)])
        return ["getactivewindow", "windowsize", str(width), str(height)]

    def _wheel(self):
        return ["mousemove", "640", "400", "click", "--repeat", "5", "--delay", "5", self._random.choice("45")]

    def _leave(self):
        return ["mousemove", "3", "3", "click", "1", "key", *self._random.choices("12+-", k=3)]

    def _minimize(self):
        return ["getactivewindow", "windowminimize"]

    def _maximize(self):
        return ["mousemove", "640", "245", "click", "--repeat", "2", "--delay", "30", "1"]

    def _close(self):
        return ["key", self._random.choice(["alt+F4", "ctrl+q", "alt+F4", "q"]), "key", "Return"]


class TestMonkey(PlayingTest):
    # A sanitizer's report is told in full.
    maxDiff = None
    seeds = SEEDS_IN_TESTS
    seconds = None

    def test_whatever_it_does_the_game_asks_again(self):
        for seed in self.seeds:
            self.play(seed)

    def play(self, seed):
        monkey = Monkey(seed)
        game = None
        done = []
        end = time.monotonic() + self.seconds if self.seconds else None
        try:
            while time.monotonic() < end if end else len(done) < BURSTS_IN_TESTS:
                if game is None:
                    game = self.start(environment=SANITIZERS)
                    self.settle(game)
                done.append(self.do(monkey))
                # Both are dealt each time: what comes after must not depend on how the game went.
                settles, tries = monkey.chance(0.3), monkey.chance(0.05)
                if settles and not self.settle(game):
                    game = None
                elif tries:
                    self.try_to_win(game)
            if game:
                self.finish(game)
        except AssertionError as error:
            told = "\n".join(str(burst)[:300] for burst in done[-BURSTS_TOLD:])
            raise AssertionError(f"seed {seed}, burst {len(done)}: {error}\nthe last of them:\n{told}") from error
        print(f"seed {seed}: {len(done)} bursts, {len(self.games)} games", file=sys.stderr)

    def do(self, monkey):
        burst = monkey.burst()
        if isinstance(burst, dict):
            self.desktop.set_clipboard(burst["paste"])
            self.xdotool("key", "ctrl+v")
        else:
            self.xdotool(*burst)
        return burst

    def xdotool(self, *arguments):
        """A window may be gone before the command is; that is no failure."""
        subprocess.run(["xdotool", *arguments], env=self.desktop.environment, stdin=subprocess.DEVNULL, timeout=120,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def settle(self, game):
        """Brings the game to the front and leaves what is open over it: then it must ask, unless it has ended, which it
        may. Returns whether it still runs."""
        # Escape goes to the active window only, and the console, where a text may be selected, keeps the keyboard till then.
        until(lambda: self.has_ended(game) or self.is_in_front(game), "an active window")
        self.xdotool("key", "Escape")
        until(lambda: self.has_ended(game) or self.is_in_front(game) and self.asks_or_is_left(game),
              "the field or the alert with the focus")
        if self.has_ended(game):
            self.assert_clean_end(game)
            return False
        return True

    def assert_clean_end(self, game):
        # While the sanitizers look for leaks at the end nobody takes the display's events, and its reader tells of each
        # that no longer finds room: a logging category that is first used so late cannot be switched off any more, and
        # in the end has lost its name.
        status, errors = game.wait_for_end()
        left = [line for line in errors.splitlines() if not READER.fullmatch(line)]
        self.assertEqual((status, left), (0, []))

    def has_ended(self, game):
        return game.process.poll() is not None

    def is_in_front(self, game):
        # As the game sees it and as the display does: the game learns of a change a moment later, and never that it lost
        # the keyboard while one of its menus was open. A window that was told to minimise may still be active; it is asked
        # again.
        seen = game.application.find_all("frame", "window", "alert", "dialog")
        if any("active" in window.states for window in seen) and self.has_keyboard(game):
            return True
        self.xdotool("search", "--all", "--pid", str(game.process.pid), "--name", "^Tetrad Game$", "windowactivate", "%@")
        return False

    def has_keyboard(self, game):
        # Not the window manager's active window: it may call none active when the focus came while a menu had the keyboard.
        owner = subprocess.run(["xdotool", "getwindowfocus", "getwindowpid"], env=self.desktop.environment,
                               stdin=subprocess.DEVNULL, capture_output=True, text=True)
        return owner.stdout.strip() == str(game.process.pid)

    def asks_or_is_left(self, game):
        # One Escape may have gone to a window that was just being minimised, and the About panel may lie over a menu.
        if not self.asks(game):
            self.xdotool("key", "Escape")
            return False
        return True

    def asks(self, game):
        if game.field():
            return True
        alert = game.alert()
        # A click on the alert's text gives that the focus, to be copied; Return is still the default button's.
        return alert and any("focused" in part.states for part in alert.find_all("push button", "button", "label"))

    def try_to_win(self, game):
        if game.alert() or not (puzzle := game.puzzle()):
            return
        self.xdotool("key", "ctrl+a", "key", "BackSpace", "type", "--delay", "1", solve(puzzle.numbers))
        self.xdotool("key", "Return")
        self.settle(game)

    def finish(self, game):
        if self.settle(game):
            self.xdotool("key", "ctrl+q")
            self.assert_clean_end(game)


if __name__ == "__main__":
    TestMonkey.seconds = float(sys.argv[1]) if len(sys.argv) > 1 else 60
    TestMonkey.seeds = [int(sys.argv[2]) if len(sys.argv) > 2 else int.from_bytes(os.urandom(4), "big")]
    print(f"seed {TestMonkey.seeds[0]}, {TestMonkey.seconds:.0f} seconds", flush=True)
    unittest.main(argv=sys.argv[:1])
