"""The game on Wayland: a headless compositor, a virtual keyboard, the same answers and the panel in its place."""

import os
import shutil
import tempfile

from desktop import until
from pixels import rows_of
from playing import PlayingTest, prompt_after
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
        self.folder = tempfile.mkdtemp(prefix="tetrad-wayland-")
        configuration = os.path.join(self.folder, "configuration")
        with open(configuration, "w", encoding="ascii") as file:
            file.write(CONFIGURATION)
        as_user = []
        if os.geteuid() == 0:
            shutil.chown(self.folder, "nobody")
            as_user = ["runuser", "-u", "nobody", "--"]
        headless = {"WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman",
                    "XDG_RUNTIME_DIR": self.folder, "DISPLAY": None, "HOME": self.folder}
        self.process = desktop.start_quietly(*as_user, "sway", "-c", configuration, environment=headless)
        self.display = until(self._socket, "the compositor's socket")

    def _socket(self):
        names = [name for name in os.listdir(self.folder) if name.startswith("wayland-") and not name.endswith(".lock")]
        return names and os.path.join(self.folder, names[0])

    def stop(self):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


class WaylandKeys:
    """Stands in for the desktop's keyboard. Each call plugs one in and out again; a further one that stays keeps the
    compositor from taking the focus away in between. Its first key may be lost, so it is one without meaning."""

    def __init__(self, desktop):
        self._desktop = desktop
        desktop.start("wtype", "-s", "10000000")

    def type(self, text):
        self._desktop.run("wtype", "-k", "F13", text)

    def press(self, *keys):
        for key in keys:
            *modifiers, name = key.split("+")
            held = [word for modifier in modifiers for word in ("-M", modifier)]
            self._desktop.run("wtype", "-k", "F13", *held, "-k", name)


class TestWayland(PlayingTest):
    def test_a_game_by_keys_with_the_panel_in_its_place(self):
        compositor = Compositor(self.desktop)
        self.addCleanup(compositor.stop)
        self.desktop.environment["WAYLAND_DISPLAY"] = compositor.display
        game = self.start(environment={"DISPLAY": None, "QT_QPA_PLATFORM": "wayland"})
        game.desktop = keys = WaylandKeys(self.desktop)
        first = game.wait_for_puzzle()
        self.assert_panel_over_the_console()
        game.answer("9")
        game.answer("s", prompt_after("9"))
        puzzle = game.wait_for_puzzle(other_than=first)
        game.answer(solve(puzzle.numbers))
        game.wait_for_focus_on("Quit")
        game.play_again()
        game.wait_for_puzzle(other_than=puzzle)
        game.type("1+2")
        keys.press("ctrl+q")
        self.assert_clean_end(game)

    def assert_panel_over_the_console(self):
        """The console is black; in it, from 10 to the right and from 154 to 190 down, is the panel."""
        kind, size, depth, data = self.desktop.run("grim", "-t", "ppm", "-", binary=True).split(b"\n", 3)
        self.assertEqual((kind, depth), (b"P6", b"255"))
        rows = rows_of(data, int(size.split()[0]))
        console = [y for y, row in enumerate(rows) if row.count(BLACK) > 300]
        top, bottom = console[0], console[-1] + 1
        self.assertEqual(bottom - top, 250)
        left = rows[bottom - 1].index(BLACK)
        # In the middle of the panel, below its text: from the edge on it is not black, before it the console shows.
        row = rows[top + 154 + 32][left:left + 580]
        self.assertNotIn(BLACK, row[16:150], "the console shows where the panel's left part must be")
        self.assertEqual(set(row[400:]), {BLACK}, "something covers the console beside the panel")
