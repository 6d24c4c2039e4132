"""The game in a desktop: what stands between it and other programs, every way out, small screens and languages."""

import os
import re

from desktop import until
from playing import PROMPT, PlayingTest, prompt_after


class TestPlaying(PlayingTest):
    def test_neither_a_click_elsewhere_nor_another_program_ends_the_input(self):
        game = self.start()
        field = game.wait_for_prompt()
        game.type("1+2")
        x, y, _, _ = game.console().rectangle
        self.desktop.click(x + 5, y + 60)
        game.type("*", "1+2*")
        other = self.start()
        other.wait_for_prompt()
        other.type("9")
        for name, leave in [("on the desktop", lambda: self.desktop.click(3, 3)), ("on another program", other.activate)]:
            with self.subTest(name):
                leave()
                game.wait(lambda: not game.field(), "the focus to be elsewhere")
                game.activate()
                game.wait_for_field_text("1+2*")
        game.type("3", "1+2*3")
        self.assertEqual(game.field(), field)
        self.assertEqual((game.field().name, other.application.find("text").text), (PROMPT, "9"))

    def test_each_item_of_the_edit_menu_by_mouse_and_by_shortcut(self):
        game = self.start()
        game.wait_for_prompt()
        ways = {
            "mouse": lambda item, shortcut: game.choose("Edit", item),
            "shortcut": lambda item, shortcut: self.desktop.press(shortcut),
        }
        for way, act in ways.items():
            # The field's and the clipboard's text after it was done to "1+2", all selected, with "9" in the clipboard.
            for item, shortcut, text, clipboard in [
                ("Cut", "ctrl+x", "", "1+2"),
                ("Copy", "ctrl+c", "1+2", "1+2"),
                ("Paste", "ctrl+v", "9", "9"),
                ("Delete", "Delete", "", "9"),
            ]:
                with self.subTest(way, item=item):
                    self.desktop.set_clipboard("9")
                    game.type("1+2")
                    act("Select All", "ctrl+a")
                    until(lambda: game.field() and game.field().selection == (0, 3), "everything selected")
                    act(item, shortcut)
                    game.wait_for_field_text(text)
                    until(lambda: self.desktop.clipboard() == clipboard, f"{clipboard!r} in the clipboard")
                    if text != "1+2":
                        act("Undo", "ctrl+z")
                        game.wait_for_field_text("1+2")
                        act("Redo", "ctrl+shift+z")
                        game.wait_for_field_text(text)
                    self.desktop.press("ctrl+a", "BackSpace")
                    game.wait_for_field_text("")


class TestLeaving(PlayingTest):
    """Every way out ends the program with status 0 and not a word on standard error."""

    def test_each_way_out(self):
        for name, steps in [
            ("q after a rejected answer", [("answer", "9"), ("answer", "q", prompt_after("9"))]),
            ("quit item with a half-typed answer", [("wait_for_prompt",), ("type", "1+(2"), ("press", "ctrl+q")]),
            ("close box", [("wait_for_prompt",), ("click_close_box",)]),
            ("quit item at the alert", [("win",), ("press", "ctrl+q")]),
            ("mouse at the alert", [("win",), ("click", "push button", "Quit")]),
        ]:
            with self.subTest(name):
                game = self.start()
                self.carry_out(steps, game)
                self.assert_clean_end(game)

    def test_escape_and_the_close_box_leave_the_alert_open(self):
        game = self.start()
        game.win()
        # Keys arrive in order: when Tab has moved the focus, the two before it have been handled; a button that one of
        # them chose shows itself pressed before it acts.
        self.desktop.press("Escape", "alt+F4", "Tab")
        self.assertNotIn("pressed", game.wait_for("push button", "Play Again", "focused").states)


class TestScreens(PlayingTest):
    def test_the_panel_is_usable_in_every_size_of_window(self):
        game = self.start()
        game.wait_for_prompt()
        # Width and height of the window, then left and top of the panel's field from the console's corner.
        for width, height, *place in [(140, 80), (300, 120, 176, 75), (1260, 740, 176, 164), (580, 269, 176, 164)]:
            with self.subTest(width=width, height=height):
                self.desktop.resize(game.identifier(), width, height)
                until(lambda: game.window().rectangle[2:] == (width, height), "the new size")
                # The panel has moved before a key makes it measure itself anew.
                self.assert_inside(game.field(), *game.window().rectangle)
                self.desktop.press("ctrl+a", "BackSpace")
                game.type("1+2")
                self.assert_inside(game.field(), *game.window().rectangle)
                left, top, field_width, _ = game.field().rectangle
                self.assertGreater(field_width, 20)
                x, y, *_ = game.console().rectangle
                self.assertIn(place, ([], [left - x, top - y]))


class TestSmallScreen(PlayingTest):
    def setUp(self):
        os.environ["TETRAD_E2E_SCREEN"] = "440x180x24"
        super().setUp()

    def test_the_game_is_played_on_a_screen_smaller_than_its_window(self):
        game = self.start()
        game.win()
        for name in ("Quit", "Play Again"):
            self.assert_inside(game.application.find("push button", name=name), 0, 0, 440, 180)
        x, y, *_ = self.desktop.framed_rectangle(game.identifier())
        self.assertTrue(x >= -1 and y >= 0, f"the title bar is out of reach: {x}, {y}")
        self.desktop.press("Return")
        self.assert_clean_end(game)


class TestLanguages(PlayingTest):
    def test_places_and_answers_are_the_same_everywhere(self):
        expected = None
        for language, menus_begin in [("C", "left"), ("de_DE", "left"), ("tr_TR", "left"), ("ar_EG", "right")]:
            with self.subTest(language):
                game = self.start(environment=self.environment_of(language))
                game.win()
                game.play_again()
                game.wait_for_prompt()
                seen = self.places(game)
                expected = expected or seen
                self.assertEqual(seen, expected)
                x, _, width, _ = game.window().rectangle
                is_left = game.window().find("menu item", name="Tetrad Game").centre[0] < x + width // 2
                self.assertEqual("left" if is_left else "right", menus_begin)
                game.answer("Q")
                status, said = game.wait_for_end()
                # In the locale C newer versions of Qt say that they use C.UTF-8.
                self.assertEqual((status, re.sub(r'\ADetected locale "C"(.*\n){4}\Z', "", said)), (0, ""))

    def environment_of(self, language):
        if language == "C":
            return {"LC_ALL": "C"}
        name = f"{language}.UTF-8"
        self.desktop.run("localedef", "-i", language, "-f", "UTF-8", f"{self.desktop.folder}/{name}")
        return {"LOCPATH": self.desktop.folder, "LC_ALL": name, "LANG": name}

    def places(self, game):
        """Console, first letter and field, from the console's corner."""
        console = game.console()
        x, y, width, height = console.rectangle
        letter = console.character_rectangle(console.text.index("Given"))
        return (width, height), *((left - x, top - y, *size) for left, top, *size in (letter, game.field().rectangle))
