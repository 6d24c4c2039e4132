"""A game as Orca, the screen reader, speaks it, with its log in place of a voice; what is said is printed."""

import os
import pty
import re
import shutil
import subprocess
import threading
import tty

from desktop import until
from playing import PROMPT, PlayingTest, prompt_after
from solver import solve

INSTRUCTIONS = """Given four numbers and using just the +, -, *, and / operators; and the possible use of parenthesis (),
enter an expression that equates to 24. You must use all your numbers and only those numbers. Examples: 9618 Solution 9
+ 6 + 1 + 8 or 3173 Solution ((3 * 1) * 7) + 3 Enter Q to quit or S to skip to the next number. """.replace("\n", " ")
WRONG = "ERROR! Must use all your numbers and only those numbers."
_INDENT = "\n" + 18 * " "  # of the further lines of one entry
_SPOKEN = re.compile(r"SPEECH OUTPUT: '(.*?)'(?:voice=\w+| )*(?:\{.*)?$", re.MULTILINE)


def why_not():
    """Why Orca cannot be started; None when it can."""
    if not shutil.which("orca"):
        return "Orca is not installed (apt-get install orca)"
    if subprocess.run(["pgrep", "-u", str(os.getuid()), "-x", "orca"], stdout=subprocess.DEVNULL).returncode == 0:
        return "an Orca runs already, and it allows no second one"
    return None


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
            print(step, *said, sep="\n    ", flush=True)
            with self.subTest(step):
                self.assertEqual(said, expected)
