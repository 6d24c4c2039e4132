"""The game on Wayland: a headless compositor, a virtual keyboard, the same answers and the panel in its place."""

import os
import pwd
import shutil
import subprocess
import tempfile
import unittest

from desktop import until
from playing import PROMPT, PlayingTest, prompt_after
from solver import solve

CONFIGURATION = """
output HEADLESS-1 resolution 1280x800 position 0,0 bg #404040 solid_color
default_border none
for_window [app_id=".*"] floating enable
xwayland disable
"""
BLACK = (0, 0, 0)


class Compositor:
    """The compositor does not run as root; then it runs as nobody, and root connects to it."""

    def __init__(self, desktop):
        self._desktop = desktop
        self.folder = tempfile.mkdtemp(prefix="tetrad-wayland-")
        with open(os.path.join(self.folder, "configuration"), "w", encoding="ascii") as file:
            file.write(CONFIGURATION)
        as_user = []
        if os.geteuid() == 0:
            user = pwd.getpwnam("nobody")
            os.chown(self.folder, user.pw_uid, user.pw_gid)
            as_user = ["runuser", "-u", "nobody", "--"]
        os.chmod(self.folder, 0o700)
        headless = {"WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman",
                    "XDG_RUNTIME_DIR": self.folder, "DISPLAY": None, "HOME": self.folder}
        self.process = desktop.start(*as_user, "sway", "-c", os.path.join(self.folder, "configuration"),
                                     environment=headless, stdout=subprocess.DEVNULL,
                                     stderr=subprocess.DEVNULL)
        self.display = until(self._socket, "the compositor's socket")
        self.environment = {"WAYLAND_DISPLAY": self.display, "DISPLAY": None, "QT_QPA_PLATFORM": "wayland"}

    def _socket(self):
        names = [name for name in os.listdir(self.folder) if name.startswith("wayland-") and not name.endswith(".lock")]
        return os.path.join(self.folder, names[0]) if names else None

    def stop(self):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def run(self, *command, binary=False):
        environment = {**self._desktop.environment, "WAYLAND_DISPLAY": self.display}
        return subprocess.run(command, env=environment, check=True, stdin=subprocess.DEVNULL, capture_output=True,
                              text=not binary).stdout

    def pixels(self):
        """Width and rows of colours of the whole screen."""
        kind, size, depth, data = self.run("grim", "-t", "ppm", "-", binary=True).split(b"\n", 3)
        assert (kind, depth) == (b"P6", b"255")
        width = int(size.split()[0])
        colours = list(zip(data[0::3], data[1::3], data[2::3]))
        return [colours[start:start + width] for start in range(0, len(colours), width)]


class WaylandKeys:
    """Stands in for the desktop's keyboard. Each call plugs one in and out again; a further one that stays keeps the
    compositor from taking the focus away in between. Its first key may be lost, so it is one without meaning."""

    def __init__(self, desktop, compositor):
        self._compositor = compositor
        desktop.start("wtype", "-s", "10000000", environment={"WAYLAND_DISPLAY": compositor.display})

    def type(self, text):
        self._compositor.run("wtype", "-k", "F13", text)

    def press(self, *keys):
        for key in keys:
            *modifiers, name = key.split("+")
            held = [word for modifier in modifiers for word in ("-M", modifier)]
            self._compositor.run("wtype", "-k", "F13", *held, "-k", name)


class TestWayland(PlayingTest):
    def test_a_game_by_keys_with_the_panel_in_its_place(self):
        compositor = Compositor(self.desktop)
        self.addCleanup(compositor.stop)
        game = self.start(environment=compositor.environment)
        game.desktop = keys = WaylandKeys(self.desktop, compositor)
        first = game.wait_for_puzzle()
        self.assert_panel_over_the_console(compositor)
        game.answer("9")
        game.wait_for_prompt(prompt_after("9"))
        game.answer("s", prompt_after("9"))
        puzzle = game.wait_for_other_puzzle(first)
        self.assertEqual(game.wait_for_prompt().name, PROMPT)
        game.answer(solve(puzzle.numbers))
        game.play_again()
        game.wait_for_other_puzzle(puzzle)
        game.type("1+2")
        keys.press("ctrl+q")
        self.assert_clean_end(game)

    def assert_panel_over_the_console(self, compositor):
        """The console is black; in it, from 10 to the right and from 154 to 190 down, is the panel."""
        rows = compositor.pixels()
        height = len(rows)
        black = [sum(colour == BLACK for colour in row) for row in rows]
        console = [y for y in range(height) if black[y] > 300]
        top, bottom = console[0], console[-1] + 1
        self.assertEqual(bottom - top, 250)
        left = rows[bottom - 1].index(BLACK)
        # In the middle of the panel, below its text: from the edge on it is not black, before it the console shows.
        row = rows[top + 154 + 32][left:left + 580]
        self.assertNotIn(BLACK, row[16:150], "the console shows where the panel's left part must be")
        self.assertEqual(set(row[400:]), {BLACK}, "something covers the console beside the panel")


if __name__ == "__main__":
    unittest.main()
