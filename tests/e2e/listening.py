"""What a screen reader says: Orca on the private desktop, with its log in place of a voice."""

import os
import pty
import re
import shutil
import subprocess
import threading
import tty

from desktop import until

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
