"""A game as Orca, the screen reader, speaks it, with its log in place of a voice; what is said is printed."""

import os
import pty
import re
import shutil
import subprocess
import threading
import tty

from desktop import until
from game import PROMPT, prompt_after
from playing import PlayingTest
from solver import solve

INSTRUCTIONS = """Given four numbers and using just the +, -, *, and / operators; and the possible use of parenthesis (),
enter an expression that equates to 24. You must use all your numbers and only those numbers. Examples: 9618 Solution 9
+ 6 + 1 + 8 or 3173 Solution ((3 * 1) * 7) + 3 Enter Q to quit or S to skip to the next number. """.replace("\n", " ")
WRONG = "ERROR! Must use all your numbers and only those numbers."
_INDENT = "\n" + 18 * " "  # of the further lines of one entry
_SPOKEN = re.compile(r"SPEECH OUTPUT: '(.*?)'(?:voice=\w+| )*(?:\{.*)?$", re.MULTILINE)


class Listener:
    def __init__(self, desktop):
        self._log = []
        self._heard = 0
        # Orca writes a file in blocks, a terminal line by line.
        reading, terminal = pty.openpty()
        tty.setraw(terminal)
        threading.Thread(target=self._read, args=(reading,), daemon=True).start()
        # It looks for a voice and finds none, which changes nothing in what it says.
        desktop.start("orca", "--debug-file", os.ttyname(terminal), environment={"SPEECHD_ADDRESS": "unix_socket:/nonexistent"})
        self.wait_for("Screen reader on.")

    def _read(self, reading):
        with open(reading, encoding="utf-8", errors="replace") as lines:
            for line in lines:
                self._log.append(line)

    def _spoken(self):
        texts = _SPOKEN.findall("".join(self._log).replace(_INDENT, " "))
        # A blank follows the name of a pressed key. Newer versions call some roles otherwise.
        words = [" ".join(text.split()) for text in texts if text.strip() and not text.endswith(" ")]
        return [re.sub(r"(?<!push )button\.$", "push button.", re.sub(r"entry\.$", "text.", text)) for text in words]

    def wait_for(self, end):
        """What was said since the last call, keys left out, once something ends with `end`."""
        new = until(lambda: (new := self._spoken()[self._heard:]) and any(text.endswith(end) for text in new) and new,
                    f"{end!r} to be said")
        self._heard += len(new)
        return new


def spoken(puzzle):
    return f"These are your numbers, difficulty level {puzzle.level} {' '.join(map(str, puzzle.numbers))}."


class TestListening(PlayingTest):
    def setUp(self):
        if not shutil.which("orca") or subprocess.run(["pgrep", "-u", str(os.getuid()), "-x", "orca"]).returncode == 0:
            self.skipTest("Orca is not installed (apt-get install orca), or one runs already, and it allows no second one")
        version = subprocess.run(["orca", "--version"], capture_output=True, text=True).stdout.strip()
        if not version.startswith("43."):
            # Orca 48 says the same, but echoes keys in other words, and now and then nothing after Play Again.
            self.skipTest(f"what Orca 43 says is known, not what {version or 'this one'} does")
        super().setUp()
        self.listener = Listener(self.desktop)

    def hears(self, after, *expected, end=None):
        """What was said after a step, once something ends with the end."""
        said = self.listener.wait_for(end or expected[-1])
        print(after, *said, sep="\n    ", flush=True)
        with self.subTest(after):
            self.assertEqual(said, list(expected))

    def test_what_is_new_is_said_once_and_nothing_old(self):
        again = prompt_after("1+2")
        game = self.start()
        first = game.wait_for_puzzle()
        self.hears("the start", "Tetrad Game frame.", f"{PROMPT} text.", INSTRUCTIONS + spoken(first), end=spoken(first))
        for prompt in (PROMPT, again):
            game.answer("1+2", prompt)
            self.hears("1+2 and Return", f"{again} text.", WRONG)
        game.answer("s", again)
        second = game.wait_for_puzzle(other_than=first)
        self.hears("S and Return", f"{PROMPT} text.", spoken(second))
        self.desktop.press("F6")
        self.hears("F6", "Console read only text.", INSTRUCTIONS + spoken(second), end=spoken(second))
        self.desktop.press("F6")
        self.hears("F6 again", f"{PROMPT} text.", spoken(second))
        game.answer(solve(second.numbers))
        self.hears("a solution and Return", "alert Correct You won!", "Quit push button.")
        self.desktop.press("Tab")
        self.hears("Tab", "Play Again push button.")
        self.desktop.press("space")
        third = game.wait_for_puzzle(other_than=second)
        self.hears("the space bar", "Tetrad Game frame.", f"{PROMPT} text.", spoken(third))
