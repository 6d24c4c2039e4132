"""What a screen reader is told."""

import unittest

from playing import PlayingTest, prompt_after


class TestAccessibility(PlayingTest):
    def test_names_and_roles(self):
        game = self.start()
        game.wait_for_prompt()
        self.assertEqual(game.window().name, "Tetrad Game")
        console = game.console()
        self.assertIn("multi-line", console.states)
        self.assertNotIn("editable", console.states)
        self.assertTrue(console.name)
        game.win()
        self.assertTrue(game.wait_for_alert().name)

    def test_the_field_is_described_by_what_is_new(self):
        game = self.start()
        game.wait_for_puzzle()
        screen = " ".join(game.screen().split())
        self.assertEqual(" ".join(game.field().description.split()), screen)
        game.answer("1+2+3+4+5")
        described = game.wait_for_prompt(prompt_after("1+2+3+4+5")).description
        self.assertEqual(described.strip(), "Error! Extra numbers not allowed")


if __name__ == "__main__":
    unittest.main()
