"""A private desktop: an X display of its own, a session bus, the accessibility bus and a window manager.

Everything it starts ends with this process, however this process ends: each child asks the kernel to be
ended when its parent dies.
"""

import atexit
import ctypes
import os
import re
import shutil
import signal
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

# Generous, since it only ever passes when something is broken: a slow machine is no failure. bench/mutants breaks things
# on purpose and sets less.
TIMEOUT_S = int(os.environ.get("TETRAD_E2E_TIMEOUT_S", 60))
POLL_MS = 20
PR_SET_PDEATHSIG = 1
_libc = ctypes.CDLL(None)


def until(condition, what):
    """Waits until condition() is true and returns its value; fails naming what was awaited."""
    context = GLib.MainContext.default()
    deadline = time.monotonic() + TIMEOUT_S
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"gave up after {TIMEOUT_S} s waiting for {what}")
        # The accessibility client's own events arrive while this loop turns.
        GLib.timeout_add(POLL_MS, lambda: GLib.SOURCE_REMOVE)
        context.iteration(True)


class Desktop:
    """The one desktop of this process: the accessibility client can follow only one bus."""

    _shared = None

    @classmethod
    def shared(cls):
        cls._shared = cls._shared or cls()
        return cls._shared

    def __init__(self):
        self._children = []
        self.folder = tempfile.mkdtemp(prefix="tetrad-e2e-")
        atexit.register(self.stop)
        # Being terminated is like being interrupted: tests stop, what was started is ended.
        signal.signal(signal.SIGTERM, signal.default_int_handler)
        runtime = os.path.join(self.folder, "runtime")
        os.mkdir(runtime, 0o700)
        # The same font everywhere: the width of the prompt moves the panel's field.
        fonts = self.write("fonts.conf", "<fontconfig><include>/etc/fonts/fonts.conf</include><match>"
                           "<test name='family'><string>sans-serif</string></test>"
                           "<edit name='family' mode='prepend_first' binding='strong'><string>DejaVu Sans</string></edit>"
                           "</match></fontconfig>")
        self.environment = {
            "FONTCONFIG_FILE": fonts,
            "PATH": os.environ["PATH"],
            "HOME": self.folder,
            "XDG_RUNTIME_DIR": runtime,
            "LC_ALL": "C.UTF-8",
            # A developer's own desktop theme must not reorder buttons.
            "QT_QPA_PLATFORMTHEME": "",
            # A client that asks for an object that has just gone is no fault of the program; newer versions of Qt report it.
            "QT_LOGGING_RULES": "qt.accessibility.atspi.warning=false",
        }
        self.start_display(os.environ.get("TETRAD_E2E_SCREEN", "1280x800x24"))
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.start_answering(
            "dbus-daemon", "--session", "--nofork", "--print-address")[1]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        os.environ.update({name: self.environment[name] for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS")})
        self._start_accessibility()
        self.start_window_manager()

    def write(self, name, text):
        """Writes a file of the desktop's own; returns its path."""
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def stop(self):
        for child in reversed(self._children):
            child.terminate()
            try:
                child.wait(10)
            except subprocess.TimeoutExpired:
                child.kill()
        self._children.clear()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, *command, environment=None, **options):
        """A child process in this desktop's environment, changed by `environment` (None removes a variable)."""
        child_environment = {**self.environment, **(environment or {})}
        child = subprocess.Popen(
            command,
            env={name: value for name, value in child_environment.items() if value is not None},
            preexec_fn=lambda: _libc.prctl(PR_SET_PDEATHSIG, signal.SIGTERM),
            **{**dict.fromkeys(("stdin", "stdout", "stderr"), subprocess.DEVNULL), **options},
        )
        self._children.append(child)
        return child

    def start_answering(self, *command):
        """Starts what prints a line when it is ready; returns the child and the line."""
        child = self.start(*command, stdout=subprocess.PIPE, text=True)
        with child.stdout as output:
            answer = output.readline().strip()
        if not answer:
            raise RuntimeError(f"{command[0]} did not start")
        return child, answer

    def run(self, *command, binary=False, check=True, **options):
        """Runs a command to its end and returns what it printed."""
        return subprocess.run(command, env=self.environment, check=check, stdin=subprocess.DEVNULL,
                              capture_output=True, text=not binary, **options).stdout

    # -- keys, mouse, clipboard, screen

    def press(self, *keys):
        """Presses and releases keys by their X names, as "Return" or "ctrl+q"."""
        self.run("xdotool", "key", *keys)

    def type(self, text):
        self.run("xdotool", "type", "--delay", "2", "--", text)

    def click(self, x, y):
        self.run("xdotool", "mousemove", str(x), str(y), "click", "1")

    def set_clipboard(self, text):
        """Replaces the clipboard; xclip stays in the background to serve it until the display ends."""
        subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(), env=self.environment, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def clipboard(self):
        """The text in the clipboard; empty when nobody owns it, for which xclip fails."""
        return self.run("xclip", "-selection", "clipboard", "-out", check=False)

    def colours(self, x, y, width, height):
        """Red, green and blue of every pixel in a rectangle of the screen, row after row."""
        data = self.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "-depth", "8", "rgb:-", binary=True)
        return list(zip(data[0::3], data[1::3], data[2::3]))

    # -- windows

    def window_of(self, process_id, name="Tetrad Game"):
        """The identifier of the process's visible window with this name."""
        search = ("xdotool", "search", "--all", "--onlyvisible", "--pid", str(process_id), "--name", f"^{name}$")
        return self.run(*search).split()[0]

    def content_rectangle(self, window):
        """x, y, width, height of a window without its frame, which xdotool would count twice."""
        facts = self.run("xwininfo", "-id", window)
        return [int(re.search(rf"{fact}:\s+(-?\d+)", facts)[1])
                for fact in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]

    def frame_extents(self, window):
        """The width of the window manager's frame at the left, right, top and bottom."""
        extents = self.run("xprop", "-id", window, "-notype", "_NET_FRAME_EXTENTS")
        return [int(number) for number in extents.split("=")[1].split(",")]

    def framed_rectangle(self, window):
        x, y, width, height = self.content_rectangle(window)
        left, right, top, bottom = self.frame_extents(window)
        return x - left, y - top, width + left + right, height + top + bottom

    def click_close_box(self, window):
        """Clicks the rightmost button of the title bar, which the window manager draws as high as wide."""
        x, y, width, _ = self.framed_rectangle(window)
        half = self.frame_extents(window)[2] // 2
        self.click(x + width - half, y + half)

    # -- starting

    def start_display(self, size):
        """Makes a new display the one that whatever is started next is shown on; returns its server."""
        server, number = self.start_answering("Xvfb", "-displayfd", "1", "-screen", "0", size, "-nolisten", "tcp", "-noreset")
        self.environment["DISPLAY"] = f":{number}"
        return server

    def start_window_manager(self):
        # No icon in the title bars: a click on it would open the manager's own menu, which takes the keyboard away.
        with open("/etc/xdg/openbox/rc.xml", encoding="utf-8") as default:
            settings = default.read().replace("<titleLayout>NLIMC", "<titleLayout>LIMC")
        manager = self.start("openbox", "--sm-disable", "--config-file", self.write("rc.xml", settings))
        until(lambda: "=" in self.run("xprop", "-root", "_NET_SUPPORTED"), "the window manager")
        return manager

    def _start_accessibility(self):
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        # The end of the bus at exit is no reason to end this process with a signal.
        bus.set_exit_on_close(False)
        # The session bus starts the accessibility bus when it is first spoken to.
        enabled = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True)))
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", enabled, None,
                      Gio.DBusCallFlags.NONE, -1)
        Atspi.init()
