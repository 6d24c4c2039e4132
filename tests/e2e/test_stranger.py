"""Somebody else's program under a real window manager: each scene is a way to use windows and modal runs."""

import os
import re
import subprocess
import sys
import tempfile

from desktop import until
from playing import PlayingTest

STRANGER = os.environ.get("TETRAD_STRANGER", "")
MANAGER = os.path.join(os.path.dirname(__file__), "clipboard_manager.py")
ONE, OTHER = "open 1 100 100", "open 2 600 300"
DRAGGED, CONTENT = "1000[356]|10026", "^content 400x150 at 100,100,"

# What a scene shows, the commands that the program starts with, and what happens then.
SCENES = [
    ("a window is not closed while it is asked about", [ONE], [
        ("close", 1), ("close", 1), ("press", "Return"), ("front", "Window 1"), ("answer", "still"), ("count", "10031", 1),
        ("close", 1), ("press", "Tab", "Return"), ("ends",), ("count", "10032 1", 1)]),
    ("a window works during modal runs", [OTHER, "button", "works 2", ONE], [
        ("click", 2, 80, 60), ("await_said", "^1 7"), ("click", 1, 300, 30), ("front", "Window 1"), ("answer", "1")]),
    ("a window that does not gives way, however it came to the front", [OTHER, ONE, "silent"], [
        ("activate", "Window 2"), ("settle",), ("front", "Window 1"), ("answer", "1"),
        ("click", 2, 80, 60), ("settle",), ("front", "Window 1"), ("answer", "2")]),
    ("the panel follows the program to another window; each close box", [OTHER, ONE, "silent"], [
        ("answer", "front 2"), ("front", "Window 2"), ("click_close_box", "Window 1"), ("await_said", "gone"), ("answer", "still"),
        ("click_close_box", "Window 2"), ("ends",)]),
    ("a window made in a run stays in front", [ONE], [
        ("do", "open 2 160 160"), ("front", "Window 2"),
        *[("await_said", event) for event in ("10033 2", "10034 1", "10035 2", "10036 1")], ("settle",),
        *[("count", event, 1) for event in ("10033 2", "10034 1", "10035 2", "10036 1")], ("count", "1003[46] 2", 0),
        ("click", 1, 20, 40), ("front", "Window 1"), ("answer", "1")]),
    ("the close box of a nested run ends that run", [OTHER, ONE], [
        ("do", "run 2"), ("front", "Window 2"), ("close", 2), ("press", "Tab", "Return"), ("await_said", "run -1001"),
        ("front", "Window 1"), ("answer", "1")]),
    ("a window without a close box cannot be closed", ["open 1 100 100 1"], [
        ("press", "alt+F4"), ("settle",), ("answer", "1"), ("count", "10031", 0)]),
    ("a transient popover ends by Escape or a click outside", [ONE, "popover", "button"], [
        ("do", "show"), ("await_said", "1303 3"), ("windows", 2), ("click", 1, 200, 215), ("await_said", "^1 7"),
        ("press", "Escape"), ("await_said", "1305 3"), ("answer", "1"),
        ("do", "show"), ("windows", 2), ("click", 1, 380, 40), ("windows", 1), ("answer", "2"), ("count", "1305 3", 2)]),
    ("a late tool bar keeps the content; neither it nor maximising and back is a drag", [ONE], [
        ("do", "toolbar"), ("await_said", "chrome [3-9][0-9]$"), ("settle",), ("answer", "1"), ("last", CONTENT),
        ("maximise",), ("maximise",), ("answer", "2"), ("last", CONTENT), ("count", DRAGGED, 0), ("count", "10010", 1)]),
    ("menus open beside a sheet, and the last item quits", [ONE], [
        ("do", "sheet"), ("front", "Save?"), ("windows", 2), ("click", 1, 30, 10), ("windows", 3), ("press", "Up", "Return"),
        ("ends",)]),
]


class TestStranger(PlayingTest):
    def start(self, *commands, asks=True):
        """Starts the program, in place of the one before, and waits until it has the keyboard and asks."""
        self.doCleanups()
        self.output = tempfile.TemporaryFile("w+", encoding="utf-8")
        self.addCleanup(self.output.close)
        self.program = self.start_blind(command=[STRANGER, *commands], stdin=subprocess.PIPE, stdout=self.output)
        self.addCleanup(self.program.process.stdin.close)
        if asks:
            self.await_said("content .*, key")
        self.front("Window 1")

    def do(self, command):
        """Has it done in whatever modal run there is."""
        self.program.process.stdin.write(f"{command}\n".encode())
        self.program.process.stdin.flush()

    def said(self, pattern=""):
        self.output.seek(0)
        return [line for line in self.output.read().splitlines() if re.search(pattern, line)]

    def await_said(self, pattern):
        self.program.wait(lambda: self.said(pattern), f"{pattern!r} to be said")

    def count(self, pattern, count):
        self.assertEqual(len(self.said(pattern)), count, self.said())

    def last(self, pattern):
        """What the program says about window 1 in the end."""
        self.assertRegex(self.said("content")[-1], pattern)

    def numbers(self, name, count):
        """What the program says about window 1 last: "content" width and height, "frame" or "chrome"."""
        return [int(number) for number in re.findall(r"-?\d+", self.said("content")[-1].split(name)[1])[:count]]

    def window_id(self, window=1):
        return self.program.identifier(f"Window {window}")

    def front(self, title):
        """Waits for a window with the keyboard."""
        name = lambda: self.desktop.run("xdotool", "getwindowfocus", "getwindowname", check=False).strip()
        self.program.wait(lambda: name() == title, f"{title} in front")

    def windows(self, count):
        search = ("xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.program.process.pid), "--name", "")
        until(lambda: len(self.desktop.run(*search).split()) == count, f"{count} windows on the screen")

    def settle(self):
        """Waits until the window manager has done what it was to do before. What it sent to the program comes there
        before the next key."""
        number = lambda: int(self.desktop.run("xdotool", "get_num_desktops"))
        wanted = number() ^ 1
        self.desktop.run("xdotool", "set_num_desktops", str(wanted))
        until(lambda: number() == wanted, "the window manager")

    def frame(self):
        return self.desktop.framed_rectangle(self.window_id())

    def click(self, window, x, y):
        left, top, *_ = self.desktop.content_rectangle(self.window_id(window))
        self.desktop.click(left + x, top + y)

    def close(self, window):
        """Clicks the close box and waits for the question: Stay or Close."""
        self.program.click_close_box(f"Window {window}")
        self.settle()
        self.front("Close?")

    def maximise(self):
        before = x, y, width, _ = self.frame()
        self.desktop.run("xdotool", "mousemove", str(x + width // 2), str(y + 8), "click", "--repeat", "2", "1")
        until(lambda: self.frame() != before, "another size")
        self.settle()

    def answer(self, text):
        self.desktop.type(text)
        self.desktop.press("Return")
        self.await_said(f"answer {text}$")

    def ends(self):
        self.assert_clean_end(self.program)

    def test_scenes(self):
        for shows, commands, steps in SCENES:
            with self.subTest(shows):
                self.start(*commands)
                self.carry_out(steps, self.program)

    def test_nothing_runs_after_the_end_was_reported_and_copied_text_survives(self):
        self.start(ONE, "copy", "watch")
        manager, _ = self.desktop.start_answering(sys.executable, "-B", MANAGER)
        self.addCleanup(manager.terminate)
        self.answer("quit")
        self.ends()
        self.assertEqual(self.desktop.clipboard(), "kept")

    def test_keys_before_the_first_question_are_kept(self):
        self.start(ONE, "sleep 2", asks=False)
        self.answer("17")

    def test_the_frame_is_on_the_screen_and_known_after_each_change_of_style(self):
        self.start("open 1 10 10")
        self.assertGreaterEqual(self.frame()[1], 0)
        for is_titled in (True, False, True):
            with self.subTest(titled=is_titled):
                until(lambda: (self.desktop.frame_extents(self.window_id())[2] > 0) == is_titled, "the style")
                until(lambda: self.numbers("frame", 4) == list(self.frame()), "the frame that is on the screen")
                self.do("restyle")

    def test_the_size_at_the_end_of_a_drag(self):
        for rule, step, is_right in (("least", (-16, -8), lambda size: size == [380, 120]),
                                     ("step", (-16, -8), lambda size: size[0] % 50 == 0 and size[1] % 50 == 0),
                                     ("none", (-40, -15), lambda size: size[0] >= 140 and size[1] >= 40)):
            with self.subTest(rule):
                self.start(rule, ONE)
                bar = self.numbers("chrome", 1)[0]
                x, y, width, height = self.frame()
                x, y = x + width - 1, y + height - 1
                self.desktop.run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
                for moved in range(1, 11):
                    self.desktop.run("xdotool", "mousemove", str(x + moved * step[0]), str(y + moved * step[1]))
                    self.settle()
                self.desktop.run("xdotool", "mouseup", "1")
                self.settle()
                *_, width, height = self.desktop.content_rectangle(self.window_id())
                shown = [width, height - bar]
                until(lambda: self.numbers("content", 2) == shown, "the size that is on the screen")
                self.assertTrue(is_right(shown), shown)
                self.assertLessEqual(len(self.said("10003")), 10)
