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
FRONT = "1003[3-6] "


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
        self.await_front("Window 1")

    def do(self, command):
        """Has it done in whatever modal run there is."""
        self.program.process.stdin.write(f"{command}\n".encode())
        self.program.process.stdin.flush()

    def said(self, pattern=""):
        self.output.seek(0)
        return [line for line in self.output.read().splitlines() if re.search(pattern, line)]

    def await_said(self, pattern, count=1):
        self.program.wait(lambda: len(self.said(pattern)) >= count, f"{count} times {pattern!r}")

    def numbers(self, name, count):
        """What the program says about window 1 last: "content" width and height, "frame" or "chrome"."""
        return [int(number) for number in re.findall(r"-?\d+", self.said("content")[-1].split(name)[1])[:count]]

    def id(self, window=1):
        return self.program.identifier(f"Window {window}")

    def await_front(self, title):
        name = lambda: self.desktop.run("xdotool", "getwindowfocus", "getwindowname", check=False).strip()
        self.program.wait(lambda: name() == title, f"{title} in front")

    def await_windows(self, count):
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
        return self.desktop.framed_rectangle(self.id())

    def click(self, window, x, y):
        left, top, *_ = self.desktop.content_rectangle(self.id(window))
        self.desktop.click(left + x, top + y)

    def close(self, window, *keys):
        """Clicks the close box and answers the question."""
        self.desktop.click_close_box(self.id(window))
        self.settle()
        self.await_front("Close?")
        self.desktop.press(*keys)

    def answer(self, text):
        self.desktop.type(text)
        self.desktop.press("Return")
        self.await_said(f"answer {text}$")

    def test_a_window_is_not_closed_while_it_is_asked_about(self):
        self.start("open 1 100 100")
        self.desktop.click_close_box(self.id())
        self.await_front("Close?")
        self.close(1, "Return")  # Stay
        self.await_front("Window 1")
        self.answer("still")
        self.assertEqual(len(self.said("10031")), 1)
        self.close(1, "Tab", "Return")
        self.assert_clean_end(self.program)
        self.assertEqual(len(self.said("10032 1")), 1)

    def test_the_end_without_windows(self):
        for commands, reported in (["bare", "quit"], b""), (["bare", "report", "quit"], b"Full 100 %\n"):
            with self.subTest(commands):
                run = subprocess.run([STRANGER, *commands], capture_output=True, timeout=60)
                self.assertEqual((run.returncode, run.stderr), (0, reported))

    def test_nothing_runs_after_the_end_was_reported_and_copied_text_survives(self):
        self.start("open 1 100 100", "copy", "watch")
        manager, _ = self.desktop.start_answering(sys.executable, "-B", MANAGER)
        self.answer("quit")
        self.assert_clean_end(self.program)
        self.assertEqual(self.desktop.clipboard(), "kept")
        manager.terminate()

    def test_a_window_that_works_during_modal_runs(self):
        self.start("open 2 600 300", "button", "works 2", "open 1 100 100")
        self.click(2, 80, 60)
        self.await_said("^1 7")
        self.click(1, 300, 30)
        self.await_front("Window 1")
        self.answer("1")

    def test_another_window_brought_to_the_front_gives_way_and_takes_the_panel_when_told(self):
        self.start("open 2 600 300", "open 1 100 100", "silent")
        for bring in (lambda: self.program.activate("Window 2"), lambda: self.click(2, 80, 60)):
            bring()
            self.settle()
            self.await_front("Window 1")
            self.answer("1")
        self.program.wait_for_start()
        self.answer("front 2")
        self.await_front("Window 2")
        panel = self.program.wait_for_prompt("Which?")
        self.assertTrue(self.program.window("Window 2").find("text", name="Which?").is_the_same_as(panel))
        self.desktop.click_close_box(self.id(1))
        until(lambda: not self.program.window("Window 1"), "the window without the panel to close")
        self.answer("still")
        self.assertIn("still", self.program.console("Window 2").text.splitlines())
        self.desktop.click_close_box(self.id(2))
        self.assert_clean_end(self.program)

    def test_a_window_made_in_a_run_stays_in_front(self):
        self.start("open 1 100 100")
        before = len(self.said(FRONT))
        self.do("open 2 160 160")
        self.await_front("Window 2")
        self.await_said(FRONT, before + 4)
        self.settle()
        self.assertEqual(sorted(self.said(FRONT)[before:]), ["10033 2", "10034 1", "10035 2", "10036 1"])
        self.click(1, 20, 40)
        self.await_front("Window 1")
        self.answer("1")

    def test_the_close_box_of_a_nested_run_ends_that_run(self):
        self.start("open 2 600 300", "open 1 100 100")
        self.do("run 2")
        self.await_front("Window 2")
        self.close(2, "Tab", "Return")
        self.await_said("run -1001")
        self.await_front("Window 1")
        self.answer("1")

    def test_keys_before_the_first_question_are_kept(self):
        self.start("open 1 100 100", "sleep 2", asks=False)
        self.answer("17")

    def test_a_title_bar_stays_on_the_screen(self):
        self.start("open 1 10 10")
        self.assertGreaterEqual(self.frame()[1], 0)

    def test_the_frame_is_known_after_each_change_of_style(self):
        self.start("open 1 100 100")
        for is_titled in (True, False, True):
            with self.subTest(titled=is_titled):
                until(lambda: (self.desktop.frame_extents(self.id())[2] > 0) == is_titled, "the style")
                until(lambda: self.numbers("frame", 4) == list(self.frame()), "the frame that is on the screen")
                self.do("restyle")

    def test_a_window_without_a_close_box_cannot_be_closed(self):
        self.start("open 1 100 100 1")
        self.desktop.press("alt+F4")
        self.settle()
        self.answer("1")
        self.assertEqual(self.said("10031"), [])

    def test_a_transient_popover(self):
        for name, leave in (("Escape", lambda: self.desktop.press("Escape")),
                            ("a click outside", lambda: self.click(1, 380, 40))):
            with self.subTest(name):
                self.start("open 1 100 100", "popover", "button")
                self.do("show")
                self.await_said("1303 3")
                self.await_windows(2)
                self.click(1, 200, 215)
                self.await_said("^1 7")
                leave()
                self.await_said("1305 3")
                self.answer("1")

    def test_a_late_tool_bar_keeps_the_content_and_is_no_drag(self):
        self.start("open 1 100 100")
        bar = self.numbers("chrome", 1)
        self.do("toolbar")
        until(lambda: self.numbers("chrome", 1) > bar, "the tool bar")
        self.settle()
        self.answer("1")
        self.assertEqual(self.said("1000[356]|10026"), [])
        self.assertEqual(self.said("content")[-1].split(",")[:2], ["content 400x150 at 100", "100"])

    def test_maximising_is_no_drag(self):
        self.start("open 1 100 100")
        for _ in range(2):
            before = x, y, width, _ = self.frame()
            self.desktop.run("xdotool", "mousemove", str(x + width // 2), str(y + 8), "click", "--repeat", "2", "1")
            until(lambda: self.frame() != before, "another size")
            self.settle()
        self.answer("1")
        self.assertEqual(self.said("1000[356]|10026"), [])
        self.assertEqual(len(self.said("10010")), 1)

    def test_menus_open_beside_a_sheet(self):
        self.start("open 1 100 100")
        self.do("sheet")
        self.await_front("Save?")
        self.await_windows(2)
        self.click(1, 30, 10)
        self.await_windows(3)
        self.desktop.press("Up", "Return")  # the last item quits
        self.assert_clean_end(self.program)

    def test_the_size_at_the_end_of_a_drag(self):
        for rule, step, is_right in (("least", (-16, -8), lambda size: size == [380, 120]),
                                     ("step", (-16, -8), lambda size: size[0] % 50 == 0 and size[1] % 50 == 0),
                                     ("none", (-40, -15), lambda size: size[0] >= 140 and size[1] >= 40)):
            with self.subTest(rule):
                self.start(rule, "open 1 100 100")
                bar = self.numbers("chrome", 1)[0]
                x, y, width, height = self.frame()
                self.desktop.run("xdotool", "mousemove", str(x + width - 1), str(y + height - 1), "mousedown", "1")
                for _ in range(10):
                    self.desktop.run("xdotool", "mousemove_relative", "--", *map(str, step))
                    self.settle()
                self.desktop.run("xdotool", "mouseup", "1")
                self.settle()
                *_, width, height = self.desktop.content_rectangle(self.id())
                shown = [width, height - bar]
                until(lambda: self.numbers("content", 2) == shown, "the size that is on the screen")
                self.assertTrue(is_right(shown), shown)
                self.assertLessEqual(len(self.said("10003")), 10)
