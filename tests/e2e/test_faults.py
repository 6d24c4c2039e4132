"""Faults from outside, each as docs/robustness.md lists it: the program plays on or says why it ends."""

import contextlib
import os
import re
import resource
import signal
import subprocess
import unittest

from desktop import until
from playing import PROGRAM, PlayingTest

NO_DISPLAY = re.compile(r"^Tetrad Game cannot open the display \(.*\); start it from a desktop session", re.MULTILINE)
EXHAUSTED = re.compile(r"^Tetrad Game has reached the limit of memory or of threads", re.MULTILINE)
MEGABYTE = 1 << 20


def shell(script):
    """The program as the last command of a shell script, in the same process."""
    return ["sh", "-c", f'{script}exec "$0"', str(PROGRAM)]


class FaultTest(PlayingTest):
    def play_a_round(self, game):
        puzzle = game.win()
        game.play_again()
        game.wait_for_other_puzzle(puzzle)
        game.answer("q")

    def to_prompt(self, game):
        game.wait_for_prompt()

    def to_half_typed_answer(self, game):
        game.wait_for_prompt()
        game.type("1+(2")

    def to_menu(self, game):
        game.wait_for_prompt()
        game.open_menu("Edit")

    def to_alert(self, game):
        game.win()
        game.wait_for_focus_on("Quit")


class TestSignals(FaultTest):
    def test_term_and_hangup_end_it_in_order(self):
        for number in (signal.SIGTERM, signal.SIGHUP):
            for name, reach in [("prompt", self.to_prompt), ("half-typed answer", self.to_half_typed_answer),
                                ("open menu", self.to_menu), ("alert", self.to_alert)]:
                with self.subTest(signal=number.name, during=name):
                    game = self.start()
                    reach(game)
                    game.process.send_signal(number)
                    self.assert_clean_end(game)


class TestDisplay(FaultTest):
    @contextlib.contextmanager
    def another_display(self):
        """A display that can be taken away without the desktop's other programs."""
        read_end, write_end = os.pipe()
        server = self.desktop.start("Xvfb", "-displayfd", str(write_end), "-screen", "0", "800x600x24", "-nolisten", "tcp",
                                    "-noreset", pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as answer:
            number = answer.readline().strip()
        usual = self.desktop.environment["DISPLAY"]
        self.desktop.environment["DISPLAY"] = f":{number}"
        manager = self.desktop.start("openbox", "--sm-disable", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            self.desktop.wait_for_window_manager()
            yield server
        finally:
            self.desktop.environment["DISPLAY"] = usual
            for child in (manager, server):
                child.kill()
                child.wait()

    def test_a_display_that_closes_ends_it_with_status_1(self):
        for name, reach in [("prompt", self.to_half_typed_answer), ("alert", self.to_alert)]:
            with self.subTest(during=name), self.another_display() as server:
                game = self.start()
                reach(game)
                server.kill()
                status, errors = game.wait_for_end()
                self.assertEqual(status, 1)
                self.assertRegex(errors, r"\A.*X11 connection broke.*\n?\Z")

    def test_a_platform_that_is_none_is_named(self):
        for platform in ("nonsense", "%s%n%s", "../../../etc/passwd", "x" * 5000, "linuxfb"):
            with self.subTest(platform=platform[:20]):
                game = self.start_blind(environment={"QT_QPA_PLATFORM": platform})
                status, errors = game.wait_for_end()
                self.assertEqual(status, 1)
                self.assertRegex(errors, NO_DISPLAY)
                self.assertIn(f"QT_QPA_PLATFORM={platform}", errors)

    def test_a_platform_with_unknown_options_plays(self):
        for platform in ("xcb:nonsense=1:%n", "nonsense;xcb", ""):
            with self.subTest(platform=platform):
                game = self.start(environment={"QT_QPA_PLATFORM": platform})
                self.play_a_round(game)
                self.assert_clean_end(game)


class TestSurroundings(FaultTest):
    def fontconfig(self, *folders):
        path = os.path.join(self.desktop.folder, "fonts.conf")
        with open(path, "w", encoding="utf-8") as file:
            file.write("<fontconfig>" + "".join(f"<dir>{folder}</dir>" for folder in folders) + "</fontconfig>")
        return path

    def test_fonts_that_are_missing_do_not_keep_it_from_playing(self):
        for name, folders in [("none at all", []), ("no emoji", ["/usr/share/fonts/truetype/dejavu"]),
                              ("emoji only", ["/usr/share/fonts/truetype/noto"])]:
            with self.subTest(fonts=name):
                game = self.start(environment={"FONTCONFIG_FILE": self.fontconfig(*folders)})
                self.play_a_round(game)
                self.assert_clean_end(game)

    def test_a_home_that_cannot_be_written_is_not_missed(self):
        # Nobody can make a file there, not even root.
        home = {name: "/proc" for name in ("HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME")}
        game = self.start(environment=home)
        self.play_a_round(game)
        self.assert_clean_end(game)

    def test_without_a_session_bus_it_takes_keys_and_quits(self):
        for address in ("unix:path=/nowhere", "nonsense", None):
            with self.subTest(address=address):
                game = self.start_blind(environment={"DBUS_SESSION_BUS_ADDRESS": address})
                game.wait_until_active()
                # What is typed before the first question is nobody's, and nothing but the end tells that it came.
                until(lambda: self.desktop.press("ctrl+a", "q", "Return") or game.process.poll() is not None, "the end of the program")
                self.assert_clean_end(game)

    def test_standard_streams_that_are_closed_are_not_written_to(self):
        # The dump is written to standard error at every prompt.
        for name, script in [("error", "exec 2>&-;"), ("all", "exec <&- >&- 2>&-;"),
                             ("error, read by nobody", 'mkfifo "$HOME/pipe"; cat "$HOME/pipe" >/dev/null & '
                              'exec 2>"$HOME/pipe"; rm "$HOME/pipe"; kill $!; wait;'),
                             ("error, a full disk", "exec 2>/dev/full;")]:
            with self.subTest(closed=name):
                game = self.start(command=shell(script), environment={"TETRAD_DUMP": "1"})
                self.play_a_round(game)
                self.assertEqual(game.wait_for_end()[0], 0)

    def test_a_clipboard_owner_that_never_answers_delays_it_only(self):
        owner = self.desktop.start("xclip", "-quiet", "-selection", "clipboard", "-in", __file__,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until(lambda: "xclip" in self.desktop.clipboard(), "the clipboard's owner")
        game = self.start()
        self.to_half_typed_answer(game)
        owner.send_signal(signal.SIGSTOP)
        try:
            self.desktop.press("ctrl+v")
            game.type_more("+3)", "1+(2+3)")
            game.open_menu("Edit")
            self.desktop.press("Escape")
            game.type_more("*4", "1+(2+3)*4")
            game.process.send_signal(signal.SIGTERM)
            self.assert_clean_end(game)
        finally:
            owner.send_signal(signal.SIGCONT)
            owner.terminate()
            owner.wait()


class TestMemory(FaultTest):
    def assert_said_why(self, game):
        """Ended by itself, not by a signal, and with a word why."""
        status, errors = game.wait_for_end()
        self.assertGreater(status, 0, errors)
        self.assertNotEqual(errors.strip(), "")
        return errors

    def test_too_little_memory_to_start_is_said(self):
        said = ""
        for megabytes in range(60, 200, 20):
            with self.subTest(megabytes=megabytes):
                game = self.start_blind(command=shell(f"ulimit -c 0; ulimit -v {megabytes * 1024};"))
                until(lambda: game.process.poll() is not None or game.is_asking(), "the prompt or the end")
                if game.process.poll() is None:
                    game.process.terminate()
                    self.assert_clean_end(game)
                else:
                    said += self.assert_said_why(game)
        self.assertRegex(said, EXHAUSTED)

    def test_memory_that_runs_out_while_playing_is_said(self):
        # Without assistive technology and with a text of its own in the clipboard nothing large is asked for but in the
        # program itself: the libraries of display and bus do not all survive an allocation that fails.
        game = self.start_blind(environment={"DBUS_SESSION_BUS_ADDRESS": None})
        game.wait_until_active()
        self.desktop.set_clipboard("nothing")
        until(lambda: self.desktop.press("1", "ctrl+a", "ctrl+c") or self.desktop.clipboard() == "1", "the field")
        with open(f"/proc/{game.process.pid}/statm", encoding="ascii") as facts:
            used = int(facts.read().split()[0]) * resource.getpagesize()
        resource.prlimit(game.process.pid, resource.RLIMIT_AS, (used + 8 * MEGABYTE, used + 8 * MEGABYTE))
        double = ("ctrl+a", "ctrl+c", "Right", "ctrl+v")
        until(lambda: self.desktop.press(*double) or game.process.poll() is not None, "the end of the program")
        self.assertRegex(self.assert_said_why(game), EXHAUSTED)


if __name__ == "__main__":
    unittest.main()
