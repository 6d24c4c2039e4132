"""Every way out ends the program with status 0 and not a word on standard error."""

from playing import PlayingTest, prompt_after


class TestLeaving(PlayingTest):
    def test_from_the_prompt(self):
        for name, typed, leave in [
            ("q", "", lambda game: game.answer("q")),
            ("Q", "", lambda game: game.answer("Q")),
            ("Q after a rejected answer", "", lambda game: (game.answer("9"), game.answer("Q", prompt_after("9")))),
            ("quit item", "", lambda game: self.desktop.press("ctrl+q")),
            ("quit item with a half-typed answer", "1+(2", lambda game: self.desktop.press("ctrl+q")),
            ("close by key", "", lambda game: self.desktop.press("alt+F4")),
            ("close box", "", lambda game: self.desktop.click_close_box(self.desktop.window_of(game.process.pid))),
        ]:
            with self.subTest(name):
                game = self.start()
                game.wait_for_prompt()
                if typed:
                    game.type(typed)
                leave(game)
                self.assert_clean_end(game)

    def test_from_the_alert(self):
        for name, leave in [
            ("Return", lambda game: self.desktop.press("Return")),
            ("space", lambda game: self.desktop.press("space")),
            ("mouse", lambda game: self.desktop.click(*game.button("Quit").centre)),
            ("quit item", lambda game: self.desktop.press("ctrl+q")),
        ]:
            with self.subTest(name):
                game = self.start()
                game.win()
                game.wait_for_focus_on("Quit")
                leave(game)
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
