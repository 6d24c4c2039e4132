"""A machine without a display."""

import os
import subprocess
import unittest

from playing import PROGRAM, REPOSITORY


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
