"""The Edit menu on the field, by mouse and by shortcut, and what becomes of a copied text."""

import subprocess
import sys
from pathlib import Path

from desktop import until
from playing import PlayingTest

MANAGER = str(Path(__file__).with_name("clipboard_manager.py"))


class TestEditMenu(PlayingTest):
    def test_each_item_by_mouse_and_by_shortcut(self):
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


class TestClipboardManager(PlayingTest):
    def test_copied_text_survives_quitting(self):
        manager = self.desktop.start(sys.executable, "-B", MANAGER, stdout=subprocess.PIPE, text=True)
        self.assertEqual(manager.stdout.readline(), "ready\n")
        game = self.start()
        game.wait_for_prompt()
        game.type("(1+2)*8")
        self.desktop.press("ctrl+a", "ctrl+c", "ctrl+q")
        self.assert_clean_end(game)
        self.assertEqual(self.desktop.clipboard(), "(1+2)*8")
        manager.terminate()
        manager.communicate()
