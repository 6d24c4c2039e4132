"""Somebody else's program under a real window manager: each scene is a way to use windows and modal runs."""

import os
import re
import signal
import subprocess
import sys
import unittest

from desktop import Desktop, until

MANAGER = os.path.join(os.path.dirname(__file__), "clipboard_manager.py")
FRONT = re.compile("1003[3-6] ")


class TestStranger(unittest.TestCase):
    def start(self, scene, asks=True):
        """Starts the program, in place of the one before, and waits until it has the keyboard and asks."""
        self.doCleanups()
        self.desktop = Desktop.shared()
        path = os.path.join(self.desktop.folder, "stranger")
        with open(path, "w", encoding="utf-8") as output:
            program = self.desktop.start(os.environ["TETRAD_STRANGER"], scene, stdout=output)
        self.program, self.path = program, path
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        if asks:
            self.await_said("content .*, key")
        self.await_front("Window 1")

    def go(self):
        """Makes the scene's action happen."""
        self.program.send_signal(signal.SIGUSR1)

    def said(self, pattern=""):
        with open(self.path, encoding="utf-8") as output:
            return [line for line in output.read().splitlines() if re.search(pattern, line)]

    def await_said(self, pattern, count=1):
        until(lambda: len(self.said(pattern)) >= count or self.has_ended(), pattern)
        self.assertGreaterEqual(len(self.said(pattern)), count, self.said())

    def numbers(self, name, count):
        """What the program says about window 1 last: "content" width and height, "frame" or "chrome"."""
        return [int(number) for number in re.findall(r"-?\d+", self.said("content")[-1].split(name)[1])[:count]]

    def has_ended(self):
        return self.program.poll() is not None

    def id(self, window):
        return self.desktop.window_of(self.program.pid, f"Window {window}")

    def await_front(self, title):
        name = lambda: self.desktop.run("xdotool", "getwindowfocus", "getwindowname", check=False).strip()
        until(lambda: name() == title or self.has_ended(), f"{title} in front")

    def await_windows(self, count):
        search = ("xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.program.pid), "--name", "")
        until(lambda: len(self.desktop.run(*search).split()) == count, f"{count} windows on the screen")

    def settle(self):
        """Waits until the window manager has done what it was to do before. What it sent to the program comes there
        before the next key."""
        number = lambda: int(self.desktop.run("xdotool", "get_num_desktops"))
        wanted = number() ^ 1
        self.desktop.run("xdotool", "set_num_desktops", str(wanted))
        until(lambda: number() == wanted, "the window manager")

    def content(self, window=1):
        """x, y, width, height on the screen, bars included."""
        return self.desktop.content_rectangle(self.id(window))

    def frame(self):
        return self.desktop.framed_rectangle(self.id(1))

    def click(self, window, x, y):
        left, top, *_ = self.content(window)
        self.desktop.click(left + x, top + y)

    def answer(self, text):
        self.desktop.type(text)
        self.desktop.press("Return")
        self.await_said(f"answer {text}$")

    def drag_corner(self, *steps):
        x, y, width, height = self.frame()
        self.desktop.run("xdotool", "mousemove", str(x + width - 1), str(y + height - 1), "mousedown", "1")
        for step in steps:
            self.desktop.run("xdotool", "mousemove_relative", "--", *map(str, step))
            self.settle()
        self.desktop.run("xdotool", "mouseup", "1")
        self.settle()

    def test_a_window_is_not_closed_while_it_is_asked_about(self):
        self.start("one")
        for _ in range(2):
            self.desktop.click_close_box(self.id(1))
            self.settle()
            self.await_front("Close?")
        self.desktop.press("Return")  # Stay
        self.await_front("Window 1")
        self.answer("still")
        self.assertEqual(len(self.said("10031")), 1)
        self.desktop.click_close_box(self.id(1))
        self.await_front("Close?")
        self.desktop.press("Tab", "Return")  # Close
        self.assertEqual(self.program.wait(10), 0)
        self.assertEqual(len(self.said("10032 1")), 1)

    def test_the_end_without_windows(self):
        for scene, reported in (("nothing", b""), ("without windows", b"Full 100 %\n")):
            with self.subTest(scene):
                run = subprocess.run([os.environ["TETRAD_STRANGER"], scene], capture_output=True)
                self.assertEqual((run.returncode, run.stderr), (0, reported))

    def test_nothing_runs_after_the_end_was_reported(self):
        self.start("copied")
        manager = self.desktop.start(sys.executable, "-B", MANAGER, stdout=subprocess.PIPE, text=True)
        with manager.stdout as output:
            self.assertEqual(output.readline(), "ready\n")
        self.answer("quit")
        self.assertEqual(self.program.wait(10), 0)
        self.assertEqual(self.desktop.clipboard(), "kept")
        manager.terminate()

    def test_a_window_that_works_during_modal_runs(self):
        self.start("two")
        self.click(2, 80, 60)
        self.await_said("^1 7")
        self.click(1, 300, 30)
        self.await_front("Window 1")
        self.answer("1")

    def test_a_window_made_in_a_run_stays_in_front(self):
        self.start("later")
        before = len(self.said(FRONT))
        self.go()
        self.await_front("Window 2")
        self.await_said(FRONT, before + 4)
        self.settle()
        self.assertEqual(sorted(self.said(FRONT)[before:]), ["10033 2", "10034 1", "10035 2", "10036 1"])
        self.click(1, 20, 40)
        self.await_front("Window 1")
        self.answer("1")

    def test_the_close_box_of_a_nested_run_ends_that_run(self):
        self.start("nested")
        self.go()
        self.await_front("Window 2")
        self.desktop.click_close_box(self.id(2))
        self.await_front("Close?")
        self.desktop.press("Tab", "Return")
        self.await_said("run -1001")
        self.await_front("Window 1")
        self.answer("1")

    def test_keys_before_the_first_question_are_kept(self):
        self.start("early", asks=False)
        self.answer("17")

    def test_a_title_bar_stays_on_the_screen(self):
        self.start("high")
        self.assertGreaterEqual(self.frame()[1], 0)

    def test_the_frame_is_known_after_each_change_of_style(self):
        self.start("styles")
        for is_titled in (True, False, True):
            with self.subTest(titled=is_titled):
                until(lambda: (self.desktop.frame_extents(self.id(1))[2] > 0) == is_titled, "the style")
                until(lambda: self.numbers("frame", 4) == list(self.frame()), "the frame that is on the screen")
                self.go()

    def test_a_window_without_a_close_box_cannot_be_closed(self):
        self.start("untouchable")
        self.desktop.press("alt+F4")
        self.settle()
        self.answer("1")
        self.assertEqual(self.said("10031"), [])

    def test_a_transient_popover(self):
        for name, leave in (("Escape", lambda: self.desktop.press("Escape")),
                            ("a click outside", lambda: self.click(1, 380, 40))):
            with self.subTest(name):
                self.start("popover")
                self.go()
                self.await_said("1303 3")
                self.await_windows(2)
                self.click(1, 200, 215)
                self.await_said("^1 7")
                leave()
                self.await_said("1305 3")
                self.answer("1")

    def test_a_late_tool_bar_keeps_the_content_and_is_no_drag(self):
        self.start("tool bar")
        bar = self.numbers("chrome", 1)
        self.go()
        until(lambda: self.numbers("chrome", 1) > bar, "the tool bar")
        self.settle()
        self.answer("1")
        self.assertEqual(self.said("1000[356]|10026"), [])
        self.assertEqual(self.said("content")[-1].split(",")[:2], ["content 400x150 at 100", "100"])

    def test_maximising_is_no_drag(self):
        self.start("one")
        for _ in range(2):
            before = x, y, width, _ = self.frame()
            self.desktop.run("xdotool", "mousemove", str(x + width // 2), str(y + 8), "click", "--repeat", "2", "1")
            until(lambda: self.frame() != before, "another size")
            self.settle()
        self.answer("1")
        self.assertEqual(self.said("1000[356]|10026"), [])
        self.assertEqual(len(self.said("10010")), 1)

    def test_menus_open_beside_a_sheet(self):
        self.start("sheet")
        self.go()
        self.await_front("Save?")
        self.await_windows(2)
        self.click(1, 30, 10)
        self.await_windows(3)
        self.desktop.press("Up", "Return")  # the last item quits
        self.assertEqual(self.program.wait(10), 0)

    def test_the_size_at_the_end_of_a_drag(self):
        for scene, step, is_right in (("least", (-16, -8), lambda size: size == [380, 120]),
                                      ("steps", (-16, -8), lambda size: size[0] % 50 == 0 and size[1] % 50 == 0),
                                      ("one", (-40, -15), lambda size: size[0] >= 140 and size[1] >= 40)):
            with self.subTest(scene):
                self.start(scene)
                bar = self.numbers("chrome", 1)[0]
                self.drag_corner(*[step] * 10)
                shown = lambda: [self.content()[2], self.content()[3] - bar]
                until(lambda: self.numbers("content", 2) == shown(), "the size that is on the screen")
                self.settle()
                self.assertEqual(self.numbers("content", 2), shown())
                self.assertTrue(is_right(shown()), shown())
                self.assertLessEqual(len(self.said("10003")), 10)


if __name__ == "__main__":
    unittest.main()
