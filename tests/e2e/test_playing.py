"""The game in a desktop: what stands between it and other programs, every way out, languages."""

import re

from desktop import until
from game import PROMPT
from playing import PlayingTest


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
        by_mouse = lambda item, shortcut: game.choose("Edit", item)
        by_shortcut = lambda item, shortcut: self.desktop.press(shortcut)
        # The field's and the clipboard's text after it was done to "1+2", all selected, with "9" in the clipboard.
        for item, shortcut, text, clipboard in [("Cut", "ctrl+x", "", "1+2"), ("Copy", "ctrl+c", "1+2", "1+2"),
                                                ("Paste", "ctrl+v", "9", "9"), ("Delete", "Delete", "", "9")]:
            for act in (by_mouse, by_shortcut):
                with self.subTest(item=item, by_mouse=act is by_mouse):
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
            ("quit item with a half-typed answer", [("wait_for_prompt",), ("type", "1+(2"), ("press", "ctrl+q")]),
            ("close box", [("wait_for_prompt",), ("click_close_box",)]),
            ("quit item at the alert", [("win",), ("press", "ctrl+q")]),
            ("mouse at the alert", [("win",), ("click", "push button", "Quit")]),
        ]:
            with self.subTest(name):
                game = self.start()
                self.carry_out(steps, game)
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
