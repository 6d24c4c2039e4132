"""The same short game under every window manager and Wayland compositor that is installed; see bench/desktops."""

import shutil
import subprocess
import sys
import traceback
from collections import namedtuple
from pathlib import Path

import desktop
from game import ARTIFACTS, Game, prompt_after

I3 = "font pango:DejaVu Sans 10\nbindsym Mod1+F4 kill\nbar {\n mode invisible\n}\n"
SOCKET = "wayland-tetrad"

# How each is started and how its user minimises, restores and closes a window: by keys, or by the method of Desktop with
# that name. None: this desktop has no such thing. A Wayland compositor is one window that fills the X display.
Kind = namedtuple("Kind", "command minimise minimise_alert restore close wayland",
                  defaults=["iconify", "iconify", "activate", "click_box", False])
KINDS = {
    "none": Kind(None, None, None, None, None),
    "i3": Kind("i3 -c {folder}/i3.conf", None, None, None, "alt+F4"),
    "openbox": Kind("openbox --sm-disable"),
    "metacity": Kind("metacity --no-composite --sm-disable"),
    "xfwm4": Kind("xfwm4 --compositor=off", minimise_alert="iconify_game"),
    "kwin_x11": Kind("kwin_x11"),
    # A minimised alert gives the keyboard to the game, which asks for the alert at once.
    "kwin_wayland": Kind("kwin_wayland --x11-display {display} --width 1280 --height 800 --no-lockscreen --socket {socket}",
                         "super+Next", None, "alt+Tab", "alt+F4", True),
    "mutter": Kind("mutter --nested --wayland --no-x11 --wayland-display {socket}",
                   "super+h", "super+h", "alt+Tab", "alt+F4",
                   True),
    "weston": Kind("weston --backend=x11-backend.so --width=1280 --height=800 --idle-time=0 --socket={socket}",
                   None, None, None, "click_drawn_box", True),
}


class Desktop(desktop.Desktop):
    """A private desktop with the manager or compositor of the table."""

    def __init__(self, kind):
        self.kind = kind
        super().__init__()

    def start_window_manager(self):
        if not self.kind.command:
            return
        Path(self.folder, "i3.conf").write_text(I3, encoding="ascii")
        command = self.kind.command.format(folder=self.folder, display=self.environment["DISPLAY"], socket=SOCKET)
        program, *arguments = command.split()
        # A copy has no file capabilities, which a container refuses to give.
        program = shutil.copy(shutil.which(program), self.folder)
        self.start(program, *arguments, environment={"KWIN_COMPOSE": "Q" if self.kind.wayland else "N"})
        if self.kind.wayland:
            desktop.until(Path(self.environment["XDG_RUNTIME_DIR"], SOCKET).exists, "the compositor's socket")
        else:
            desktop.until(lambda: "=" in self.run("xprop", "-root", "_NET_SUPPORTED", check=False), "the window manager")

    def iconify(self, game):
        """The window with the keyboard, which is the alert while there is one."""
        self._iconified = self.run("xdotool", "getactivewindow").strip()
        self.run("xdotool", "windowminimize", self._iconified)

    def iconify_game(self, game):
        """The alert goes with it, having no box of its own for that."""
        self._iconified = game.identifier()
        self.run("xdotool", "windowminimize", self._iconified)

    def activate(self, _):
        self.run("xdotool", "windowactivate", "--sync", self._iconified)

    def click_box(self, game):
        self.click_close_box(game.identifier())

    def click_drawn_box(self, game):
        """The box that Qt draws where the compositor draws none: 19 left of the window's right edge, 15 above its content.
        The console is black from edge to edge, and on Wayland its position counts from that content."""
        data = self.run("import", "-window", "root", "-depth", "8", "rgb:-", binary=True)
        row_bytes = 3 * 1280
        rows = [data[start:start + row_bytes] for start in range(0, len(data), row_bytes)]
        black = bytes(3 * 300)
        y = next(y for y, row in enumerate(rows) if black in row)
        _, top, width, _ = game.console().rectangle
        self.click(rows[y].index(black) // 3 + width - 19, y - top - 15)


class Play:
    """One game. Its steps, in the order of the table's columns, raise what went wrong."""

    def __init__(self, kind):
        self.kind = kind
        self.desktop = Desktop(kind)
        wayland = {"DISPLAY": None, "WAYLAND_DISPLAY": SOCKET, "QT_QPA_PLATFORM": "wayland"}
        self.game = Game(self.desktop, environment=wayland if kind.wayland else None)
        self.game.wait_for_start()

    def keyboard_at_once(self):
        self.game.wait_for_puzzle()
        self.game.type("9")

    def wrong_answer(self):
        self.desktop.press("Return")
        self.game.wait_for_prompt(prompt_after("9"))

    def minimised_at_the_prompt(self):
        self._minimise_and_restore(self.kind.minimise)
        self.game.type("12")
        self.desktop.press("BackSpace", "BackSpace")

    def win(self):
        self.game.win(prompt_after("9"))

    def minimised_at_the_alert(self):
        self._minimise_and_restore(self.kind.minimise_alert)
        self.game.wait_for("push button", "Quit", "focused")

    def play_again(self):
        old = self.game.puzzle()
        self.game.play_again()
        self.game.wait_for_puzzle(other_than=old)
        self.game.type("1+2")

    def close_box(self):
        self._act(self.kind.close)
        ended = self.game.wait_for_end()
        if ended != (0, ""):
            raise AssertionError(f"it ended with {ended}")

    def _act(self, how):
        if hasattr(self.desktop, how):
            getattr(self.desktop, how)(self.game)
        else:
            self.desktop.press(how)

    def _minimise_and_restore(self, how):
        window = self.game.alert() or self.game.window()
        self._act(how)
        self.game.wait(lambda: "active" not in window.states, "the window to be minimised")
        self._act(self.kind.restore)
        self.game.wait(lambda: "active" in window.states, "the window to come back")


STEPS = (Play.keyboard_at_once, Play.wrong_answer, Play.minimised_at_the_prompt, Play.win, Play.minimised_at_the_alert,
         Play.play_again, Play.close_box)


def play(name):
    """Plays on one desktop; prints a word for each step and returns whether all that it has went well."""
    kind = KINDS[name]
    if kind.command and not shutil.which(kind.command.split()[0]):
        print(f"{name}: not installed")
        return True
    game = Play(kind)
    missing = {step for step, how in ((Play.minimised_at_the_prompt, kind.minimise),
                                      (Play.minimised_at_the_alert, kind.minimise_alert), (Play.close_box, kind.close)) if not how}
    for step in STEPS:
        words = step.__name__.replace("_", " ")
        try:
            print(f"{name}: {words}: ", end="", flush=True)
            if step in missing:
                print("this desktop has no such thing")
                continue
            step(game)
            print("holds")
        except (AssertionError, subprocess.CalledProcessError, AttributeError) as error:
            ARTIFACTS.mkdir(parents=True, exist_ok=True)
            picture = ARTIFACTS / f"desktops-{name}.png"
            game.desktop.run("import", "-window", "root", picture)
            traceback.print_exc()
            print(f"FAILS, see {picture}: {error}")
            return False
        finally:
            if step is STEPS[-1]:
                game.game.end()
    return True


if len(sys.argv) == 2:
    sys.exit(not play(sys.argv[1]))
# The accessibility client of one process follows one bus only.
statuses = [subprocess.run([sys.executable, "-B", __file__, name]).returncode for name in sys.argv[1:] or KINDS]
sys.exit(any(statuses))
