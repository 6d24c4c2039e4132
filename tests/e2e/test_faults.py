"""Faults from outside, each as docs/robustness.md lists it: the program plays on or says why it ends."""

import signal

from desktop import until
from game import PROGRAM, REPOSITORY
from playing import PlayingTest

HALF_TYPED, ALERT = [("wait_for_prompt",), ("type", "1+(2")], [("win",)]
ONE_SENTENCE = r"\A[^\n]*display[^\n]*\.\n\Z"


class FaultTest(PlayingTest):
    def assert_plays(self, **options):
        """Plays a round and quits; what it writes on standard error meanwhile is returned."""
        game = self.start(**options)
        puzzle = game.win()
        game.play_again()
        game.wait_for_puzzle(other_than=puzzle)
        game.answer("q")
        status, errors = game.wait_for_end()
        self.assertEqual(status, 0)
        return errors


class TestSignals(FaultTest):
    def test_term_and_hangup_end_it_in_order(self):
        for number, steps in [(signal.SIGTERM, HALF_TYPED), (signal.SIGTERM, [("wait_for_prompt",), ("open_menu", "Edit")]),
                              (signal.SIGHUP, ALERT)]:
            with self.subTest(signal=number.name, after=steps):
                game = self.start()
                self.carry_out(steps, game)
                game.process.send_signal(number)
                self.assert_clean_end(game)


class TestDisplay(FaultTest):
    def test_a_display_that_closes_ends_it_with_status_1(self):
        usual = self.desktop.environment["DISPLAY"]
        self.addCleanup(self.desktop.environment.update, DISPLAY=usual)
        for steps in (HALF_TYPED, ALERT):
            with self.subTest(after=steps):
                server = self.desktop.start_display("800x600x24")
                self.desktop.start_window_manager()
                game = self.start()
                self.carry_out(steps, game)
                server.kill()
                status, errors = game.wait_for_end()
                self.assertEqual(status, 1)
                self.assertRegex(errors, r"\A.*X11 connection broke.*\n?\Z")

    def test_none_that_can_be_opened_is_said_in_one_sentence(self):
        nowhere = {"DISPLAY": None}
        for name, program, environment in [
            ("program", PROGRAM, nowhere),
            ("program, display gone", PROGRAM, {"DISPLAY": ":4711"}),
            ("program, Wayland gone", PROGRAM, {**nowhere, "WAYLAND_DISPLAY": "nowhere"}),
            ("play", str(REPOSITORY / "play"), nowhere),
        ]:
            with self.subTest(name):
                status, errors = self.start_blind(command=[program], environment=environment).wait_for_end()
                self.assertEqual(status, 1)
                self.assertRegex(errors, ONE_SENTENCE)

    def test_a_platform_that_is_none_is_named(self):
        for platform in ("nonsense", "%s%n%s", "x" * 5000, "linuxfb"):
            with self.subTest(platform=platform[:20]):
                game = self.start_blind(environment={"QT_QPA_PLATFORM": platform})
                status, errors = game.wait_for_end()
                self.assertEqual(status, 1)
                self.assertRegex(errors, r"(?m)^Tetrad Game cannot open the display \(.*\)[;:] ")
                self.assertIn(f"QT_QPA_PLATFORM={platform}", errors)
                self.assertEqual(f'"{platform}" is not installed' in errors, platform != "linuxfb")


class TestSurroundings(FaultTest):
    def test_what_is_missing_or_odd_does_not_keep_it_from_playing(self):
        # Nobody can make a file there, not even root.
        homes = ("HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME")
        for name, environment in [
            ("fonts, none at all", self.with_fonts("/nowhere")),
            ("fonts, no emoji", self.with_fonts("/usr/share/fonts/truetype/dejavu")),
            ("fonts, emoji only", self.with_fonts("/usr/share/fonts/truetype/noto")),
            ("a home that can be written", dict.fromkeys(homes, "/proc")),
            ("a platform's unknown option", {"QT_QPA_PLATFORM": "xcb:nonsense=1:%n"}),
            ("a second platform", {"QT_QPA_PLATFORM": "nonsense;xcb"}),
        ]:
            with self.subTest(name):
                self.assertEqual(self.assert_plays(environment=environment), "")

    def with_fonts(self, folder):
        name = folder.replace("/", "-") + ".conf"
        return {"FONTCONFIG_FILE": self.desktop.write(name, f"<fontconfig><dir>{folder}</dir></fontconfig>")}

    def test_without_a_session_bus_it_takes_keys_and_quits(self):
        for address in ("unix:path=/nowhere", "nonsense", None):
            with self.subTest(address=address):
                game = self.start_blind(environment={"DBUS_SESSION_BUS_ADDRESS": address})
                game.wait(game.has_keyboard, "a window with the keyboard")
                # What is typed before the first question is nobody's, and nothing but the end tells that it came.
                until(lambda: self.desktop.press("ctrl+a", "q", "Return") or game.has_ended(), "the end of the program")
                self.assert_clean_end(game)

    def test_standard_streams_that_are_closed_are_not_written_to(self):
        # The dump is written to standard error at every prompt.
        for name, script in [("error", "exec 2>&-;"), ("all", "exec <&- >&- 2>&-;"),
                             ("error, read by nobody", 'mkfifo "$HOME/pipe"; cat "$HOME/pipe" >/dev/null & '
                              'exec 2>"$HOME/pipe"; rm "$HOME/pipe"; kill $!; wait;'),
                             ("error, a full disk", "exec 2>/dev/full;")]:
            with self.subTest(closed=name):
                self.assert_plays(command=["sh", "-c", f'{script}exec "$0"', PROGRAM], environment={"TETRAD_DUMP": "1"})

    def test_a_clipboard_owner_that_never_answers_delays_it_only(self):
        owner = self.desktop.start("xclip", "-quiet", "-selection", "clipboard", "-in", __file__)
        self.addCleanup(owner.wait)
        self.addCleanup(owner.kill)
        until(lambda: "xclip" in self.desktop.clipboard(), "the clipboard's owner")
        game = self.start()
        self.carry_out(HALF_TYPED, game)
        owner.send_signal(signal.SIGSTOP)
        self.desktop.press("ctrl+v")
        game.type("+3)", "1+(2+3)")
        game.open_menu("Edit")
        self.desktop.press("Escape")
        game.type("*4", "1+(2+3)*4")
        game.process.send_signal(signal.SIGTERM)
        self.assert_clean_end(game)
