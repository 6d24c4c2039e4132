"""Every way out ends the program with status 0 and not a word on standard error."""

import unittest

from playing import PlayingTest, prompt_after


class TestLeaving(PlayingTest):
    def test_typed_q(self):
        for letter in ("q", "Q"):
            with self.subTest(letter=letter):
                game = self.start()
                game.answer(letter)
                self.assert_clean_end(game)

    def test_q_after_a_rejected_answer(self):
        game = self.start()
        game.answer("9")
        game.answer("Q", prompt_after("9"))
        self.assert_clean_end(game)

    def test_the_quit_button_of_the_alert(self):
        presses = {
            "Return": lambda game: self.desktop.press("Return"),
            "space": lambda game: self.desktop.press("space"),
            "mouse": lambda game: self.desktop.click(*game.button("Quit").centre),
        }
        for name, press in presses.items():
            with self.subTest(press=name):
                game = self.start()
                game.win()
                game.wait_for_focus_on("Quit")
                press(game)
                self.assert_clean_end(game)

    def test_the_quit_item(self):
        game = self.start()
        game.wait_for_prompt()
        self.desktop.press("ctrl+q")
        self.assert_clean_end(game)

    def test_the_quit_item_with_a_half_typed_answer(self):
        game = self.start()
        game.wait_for_prompt()
        game.type("1+(2")
        self.desktop.press("ctrl+q")
        self.assert_clean_end(game)

    def test_the_quit_item_during_the_alert(self):
        game = self.start()
        game.win()
        game.wait_for_focus_on("Quit")
        self.desktop.press("ctrl+q")
        self.assert_clean_end(game)

    def test_the_close_box_of_the_window(self):
        for name, close in [("mouse", lambda window: self.desktop.click_close_box(window)),
                            ("the window manager's key", lambda window: self.desktop.press("alt+F4"))]:
            with self.subTest(name):
                game = self.start()
                game.wait_for_prompt()
                close(self.desktop.window_of(game.process.pid))
                self.assert_clean_end(game)

    def test_escape_and_the_close_box_leave_the_alert_open(self):
        game = self.start()
        game.win()
        game.wait_for_focus_on("Quit")
        self.desktop.press("Escape", "alt+F4")
        # Keys arrive in order: when Tab has moved the focus, the two before it have been handled.
        self.desktop.press("Tab")
        game.wait_for_focus_on("Play Again")
        self.assertIsNone(game.process.poll())


if __name__ == "__main__":
    unittest.main()
