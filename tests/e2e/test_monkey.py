"""A monkey at the keyboard and the mouse: whatever it does, the game neither crashes nor hangs, and asks again.

    test_monkey.py [SECONDS [SEED]]    plays for that time; a failing seed plays the same again
"""

import os
import random
import subprocess
import sys
import time
import unittest

from desktop import until
from playing import REPOSITORY, PlayingTest
from solver import solve

BURSTS_IN_TESTS = 60
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
    seed = 24
    seconds = None

    def test_whatever_it_does_the_game_asks_again(self):
        monkey = Monkey(self.seed)
        game = None
        done = []
        end = time.monotonic() + self.seconds if self.seconds else None
        try:
            while time.monotonic() < end if end else len(done) < BURSTS_IN_TESTS:
                if game is None:
                    game = self.start(environment=SANITIZERS)
                    self.settle(game)
                done.append(self.do(monkey))
                if monkey.chance(0.3) and not self.settle(game):
                    game = None
                elif game and monkey.chance(0.05):
                    self.try_to_win(game)
            if game:
                self.finish(game)
        except AssertionError as error:
            told = "\n".join(str(burst)[:300] for burst in done[-BURSTS_TOLD:])
            raise AssertionError(f"seed {self.seed}, burst {len(done)}: {error}\nthe last of them:\n{told}") from error
        print(f"seed {self.seed}: {len(done)} bursts, {len(self.games)} games", file=sys.stderr)

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
        """Closes what is open over the game and brings it to the front: then it must ask, unless it has ended, which
        it may. Returns whether it still runs."""
        self.xdotool("key", "Escape", "Escape")
        self.xdotool("search", "--all", "--pid", str(game.process.pid), "--name", "^Tetrad Game$", "windowactivate")
        until(lambda: game.process.poll() is not None or self.asks(game), "the field or a button with the focus")
        if game.process.poll() is None:
            return True
        self.assert_clean_end(game)
        return False

    def asks(self, game):
        if game.field():
            return True
        alert = game.alert()
        return alert and any("focused" in button.states for button in alert.find_all("push button", "button"))

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
    TestMonkey.seed = int(sys.argv[2]) if len(sys.argv) > 2 else int.from_bytes(os.urandom(4), "big")
    print(f"seed {TestMonkey.seed}, {TestMonkey.seconds:.0f} seconds", flush=True)
    unittest.main(argv=sys.argv[:1])
