"""The Edit menu on the field, by mouse and by shortcut, and what becomes of a copied text."""

import subprocess
import sys
from pathlib import Path

from desktop import until
from playing import PlayingTest

MANAGER = str(Path(__file__).with_name("clipboard_manager.py"))

# What is in the field and in the clipboard, which part is selected, then item, shortcut, and what both are afterwards.
ITEMS = [
    ("Cut", "ctrl+x", "", "1+2"),
    ("Copy", "ctrl+c", "1+2", "1+2"),
    ("Paste", "ctrl+v", "9", "9"),
    ("Delete", "Delete", "", "9"),
]


class TestEditMenu(PlayingTest):
    def test_each_item_by_mouse_and_by_shortcut(self):
        game = self.start()
        game.wait_for_prompt()
        ways = {
            "mouse": lambda item, shortcut: game.choose("Edit", item),
            "shortcut": lambda item, shortcut: self.desktop.press(shortcut),
        }
        for way, act in ways.items():
            for item, shortcut, text, clipboard in ITEMS:
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


class TestClipboardManager(PlayingTest):
    def test_copied_text_survives_quitting(self):
        for what, copy in [("field", self.copy_from_field), ("console", self.copy_from_console)]:
            with self.subTest(what):
                manager = self.desktop.start(sys.executable, "-B", MANAGER, stdout=subprocess.PIPE, text=True)
                self.assertEqual(manager.stdout.readline(), "ready\n")
                game = self.start()
                game.wait_for_prompt()
                copied = copy(game)
                self.desktop.press("ctrl+q")
                self.assert_clean_end(game)
                self.assertEqual(self.desktop.clipboard(), copied)
                manager.terminate()
                manager.communicate()

    def copy_from_field(self, game):
        game.type("(1+2)*8")
        self.desktop.press("ctrl+a", "ctrl+c")
        return "(1+2)*8"

    def copy_from_console(self, game):
        self.desktop.press("F6")
        until(lambda: "focused" in game.console().states, "the focus on the console")
        self.desktop.press("ctrl+a", "ctrl+c")
        return game.screen()
