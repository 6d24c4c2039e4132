"""The game on Wayland: a headless compositor, a virtual keyboard, the same answers and the panel in its window."""

import os
import shutil
import tempfile

from desktop import until
from game import PROMPT, prompt_after
from playing import PlayingTest

CONFIGURATION = """
output HEADLESS-1 resolution 1280x800 position 0,0 bg #404040 solid_color
default_border none
for_window [app_id=".*"] floating enable
xwayland disable
"""


class WaylandKeys:
    """Stands in for the desktop's keyboard. Each call plugs one in and out again; a further one that stays keeps the
    compositor from taking the focus away in between. Its first key may be lost, so it is one without meaning."""

    def __init__(self, desktop):
        self._desktop = desktop
        desktop.start("wtype", "-s", "10000000")

    def type(self, text):
        self._desktop.run("wtype", "-k", "F13", text)

    def press(self, key):
        *modifiers, name = key.split("+")
        held = [word for modifier in modifiers for word in ("-M", modifier)]
        self._desktop.run("wtype", "-k", "F13", *held, "-k", name)


class TestWayland(PlayingTest):
    def start_compositor(self):
        """It does not run as root; then it runs as nobody, and root connects to it."""
        folder = tempfile.mkdtemp(prefix="tetrad-wayland-")
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        as_user = []
        if os.geteuid() == 0:
            shutil.chown(folder, "nobody")
            as_user = ["runuser", "-u", "nobody", "--"]
        with open(os.path.join(folder, "configuration"), "w", encoding="ascii") as file:
            file.write(CONFIGURATION)
        sway = self.desktop.start(*as_user, "sway", "-c", file.name, environment={
            "WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman",
            "XDG_RUNTIME_DIR": folder, "DISPLAY": None, "HOME": folder})
        self.addCleanup(sway.wait)
        self.addCleanup(sway.terminate)
        return os.path.join(folder, until(
            lambda: next((name for name in os.listdir(folder) if name.startswith("wayland-") and not name.endswith(".lock")),
                         None), "the compositor's socket"))

    def test_a_game_by_keys_with_the_panel_in_its_window(self):
        self.desktop.environment["WAYLAND_DISPLAY"] = self.start_compositor()
        game = self.start(environment={"DISPLAY": None, "QT_QPA_PLATFORM": "wayland"})
        game.desktop = keys = WaylandKeys(self.desktop)
        first = game.wait_for_puzzle()
        # In the window itself: a window of its own would stand in the middle of the screen.
        self.assertEqual(game.window().find("text", name=PROMPT), game.field())
        self.assertEqual(len(game.application.children), 1)
        game.answer("9")
        game.answer("s", prompt_after("9"))
        puzzle = game.wait_for_puzzle(other_than=first)
        game.win()
        game.play_again()
        game.wait_for_puzzle(other_than=puzzle)
        game.type("1+2")
        keys.press("ctrl+q")
        status, errors = game.wait_for_end()
        # Newer versions of Qt say this each time the virtual keyboard is unplugged.
        self.assertEqual((status, errors.replace("qt.qpa.wayland: unknown keymap format: 0\n", "")), (0, ""))
