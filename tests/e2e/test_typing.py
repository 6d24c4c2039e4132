"""The field in a real desktop; what it takes is tested on its own."""

from playing import PROMPT, PlayingTest


class TestTyping(PlayingTest):
    def test_a_click_elsewhere_does_not_end_the_input(self):
        game = self.start()
        field = game.wait_for_prompt()
        game.type("1+2")
        with self.subTest("on the console"):
            x, y, _, _ = game.console().rectangle
            self.desktop.click(x + 5, y + 60)
            game.type_more("*", "1+2*")
        with self.subTest("on the desktop"):
            self.desktop.click(3, 3)
            game.wait_for_loss_of_focus()
            game.activate()
            game.wait_for_field_text("1+2*")
            game.type_more("3", "1+2*3")
        with self.subTest("on another program's window"):
            other = self.start()
            other.wait_for_prompt()
            other.type("9")
            game.wait_for_loss_of_focus()
            game.activate()
            game.wait_for_field_text("1+2*3")
            game.type_more("+4", "1+2*3+4")
        self.assertTrue(game.field().is_the_same_as(field))
        self.assertEqual(game.field().name, PROMPT)
