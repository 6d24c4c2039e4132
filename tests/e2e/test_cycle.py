"""The whole deck, played."""

from playing import PlayingTest

DECK_SIZE = 96


class TestCycle(PlayingTest):
    def test_96_different_puzzles_come_before_the_first_repeat(self):
        game = self.start()
        played = [game.win()]
        while len(played) < DECK_SIZE + 1:
            game.play_again()
            game.wait_for_end_of_alert()
            played.append(game.win())
        numbers = [puzzle.numbers for puzzle in played]
        self.assertEqual(len(set(numbers[:DECK_SIZE])), DECK_SIZE)
        self.assertIn(numbers[DECK_SIZE], numbers[:DECK_SIZE])
        levels = [puzzle.level for puzzle in played[:DECK_SIZE]]
        self.assertEqual({level: levels.count(level) for level in levels},
                         {"⚪ Easy": 33, "🔴 🔴 Medium": 32, "🟡 🟡 🟡 Hard": 31})
        game.wait_for_focus_on("Quit")
        self.desktop.press("Return")
        self.assert_clean_end(game)
