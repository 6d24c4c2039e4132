"""Somebody else's program under a real window manager: each scene is a way to use windows and modal runs."""

import os
import re
import subprocess
import time
import unittest

from desktop import Desktop, until

# The height of the menu bar.
BAR = 22
FRONT = re.compile("1003[3-6] ")


class TestStranger(unittest.TestCase):
    def start(self, scene, window=1):
        """Starts the program, in place of the one before, and waits until the keyboard is in this window."""
        self.doCleanups()
        self.desktop = Desktop.shared()
        path = os.path.join(self.desktop.folder, "stranger")
        with open(path, "w", encoding="utf-8") as output:
            program = self.desktop.start(os.environ["TETRAD_STRANGER"], scene, stdout=output)
        self.program, self.path = program, path
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        if window:
            self.await_front(window)

    def said(self, pattern=""):
        with open(self.path, encoding="utf-8") as output:
            return [line for line in output.read().splitlines() if re.search(pattern, line)]

    def await_said(self, pattern):
        until(lambda: self.said(pattern) or self.has_ended(), pattern)
        self.assertTrue(self.said(pattern), self.said())

    def has_ended(self):
        return self.program.poll() is not None

    def id(self, window):
        return self.desktop.window_of(self.program.pid, f"Window {window}")

    def await_front(self, window):
        name = lambda: self.desktop.run("xdotool", "getwindowfocus", "getwindowname", check=False).strip()
        until(lambda: name() == f"Window {window}" or self.has_ended(), f"window {window} in front")
        self.settle()

    def settle(self):
        """Long enough for what must not happen."""
        time.sleep(0.7)

    def content(self, window=1):
        """x, y, width, height on the screen, bars included."""
        return self.desktop.content_rectangle(self.id(window))

    def click(self, window, x, y):
        left, top, *_ = self.content(window)
        self.desktop.click(left + x, top + y)

    def answer(self, text):
        self.desktop.type(text)
        self.desktop.press("Return")
        self.await_said(f"answer {text}$")

    def drag_corner(self, *steps):
        x, y, width, height = self.desktop.framed_rectangle(self.id(1))
        self.desktop.run("xdotool", "mousemove", str(x + width - 1), str(y + height - 1), "mousedown", "1")
        for step in steps:
            self.desktop.run("xdotool", "mousemove_relative", "--", *map(str, step))
            time.sleep(0.05)
        self.desktop.run("xdotool", "mouseup", "1")
        self.settle()

    def test_a_window_is_not_closed_while_it_is_asked_about(self):
        self.start("one")
        for _ in range(2):
            self.desktop.click_close_box(self.id(1))
            self.await_said("10031 1")
            self.settle()
        self.desktop.press("Return")  # Stay
        self.await_front(1)
        self.answer("still")
        self.assertEqual(len(self.said("10031")), 1)
        self.desktop.click_close_box(self.id(1))
        until(lambda: len(self.said("10031")) == 2, "the question")
        self.settle()
        self.desktop.press("Tab", "Return")  # Close
        self.assertEqual(self.program.wait(10), 0)
        self.assertEqual(len(self.said("10032 1")), 1)

    def test_the_end_without_windows(self):
        for scene, reported in (("nothing", b""), ("without windows", b"Full 100 %\n")):
            with self.subTest(scene):
                run = subprocess.run([os.environ["TETRAD_STRANGER"], scene], capture_output=True)
                self.assertEqual((run.returncode, run.stderr), (0, reported))

    def test_a_window_that_works_during_modal_runs(self):
        self.start("two")
        self.click(2, 80, 60)
        self.await_said("^1 7")
        self.click(1, 300, 30)
        self.answer("1")

    def test_a_window_made_in_a_run_stays_in_front(self):
        self.start("later")
        self.await_front(2)
        self.assertEqual(sorted(self.said(FRONT)[2:]), ["10033 2", "10034 1", "10035 2", "10036 1"])
        self.click(1, 20, 40)
        self.await_front(1)
        self.answer("1")

    def test_the_close_box_of_a_nested_run_ends_that_run(self):
        self.start("nested")
        self.await_front(2)
        self.desktop.click_close_box(self.id(2))
        self.await_said("10031 2")
        self.settle()
        self.desktop.press("Tab", "Return")
        self.await_said("run -1001")
        self.await_front(1)
        self.answer("1")

    def test_keys_before_the_first_question_are_kept(self):
        self.start("early", window=None)
        until(lambda: self.desktop.run("xdotool", "getwindowfocus", "getwindowname", check=False) == "Window 1\n",
              "the window")
        self.answer("17")

    def test_a_title_bar_stays_on_the_screen(self):
        self.start("high")
        self.assertGreaterEqual(self.desktop.framed_rectangle(self.id(1))[1], 0)

    def test_a_window_without_a_close_box_cannot_be_closed(self):
        self.start("untouchable")
        self.desktop.press("alt+F4")
        self.settle()
        self.assertEqual(self.said("10031"), [])

    def test_a_transient_popover(self):
        for name, leave in (("Escape", lambda: self.desktop.press("Escape")),
                            ("a click outside", lambda: self.click(1, 380, 40))):
            with self.subTest(name):
                self.start("popover")
                self.await_said("1303 3")
                self.settle()
                self.click(1, 200, 215)
                self.await_said("^1 7")
                leave()
                self.await_said("1305 3")
                self.answer("1")

    def test_a_late_tool_bar_keeps_the_content_and_is_no_drag(self):
        self.start("tool bar")
        self.settle()
        self.assertEqual(self.said("1000[356]|10026"), [])
        self.assertEqual(self.said("content")[-1].split(",")[:2], ["content 400x150 at 100", "100"])

    def test_maximising_is_no_drag(self):
        self.start("one")
        x, y, width, _ = self.desktop.framed_rectangle(self.id(1))
        for _ in range(2):
            self.desktop.run("xdotool", "mousemove", str(x + width // 2), str(y + 8), "click", "--repeat", "2", "1")
            self.settle()
            x, y, width, _ = self.desktop.framed_rectangle(self.id(1))
        self.assertEqual(self.said("1000[356]|10026"), [])
        self.assertEqual(len(self.said("10010")), 1)

    def test_menus_open_beside_a_sheet(self):
        self.start("sheet")
        self.settle()
        self.click(1, 30, 10)
        self.settle()
        self.desktop.press("Up", "Return")  # the last item quits
        self.assertEqual(self.program.wait(10), 0)

    def test_the_answer_to_a_drag_holds(self):
        for scene, is_answer in (("least", lambda size: size == [380, 120]),
                                 ("steps", lambda size: size[0] % 50 == 0 and size[1] % 50 == 0)):
            with self.subTest(scene):
                self.start(scene)
                self.drag_corner(*[(-16, -8)] * 10)
                program = [int(number) for number in re.findall(r"\d+", self.said("content")[-1])[:2]]
                width, height = self.content()[2:]
                self.assertEqual([width, height - BAR], program)
                self.assertTrue(is_answer(program), program)
                self.assertLessEqual(len(self.said("10003")), 10)


if __name__ == "__main__":
    unittest.main()
