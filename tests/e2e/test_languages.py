"""The game in the languages of the world: played the same everywhere, menus in the desktop's direction."""

import os
from playing import PlayingTest
from solver import solve

LOCALES = [("C", None), ("de_DE", "left"), ("tr_TR", "left"), ("ar_EG", "right")]


class TestLanguages(PlayingTest):
    def test_places_answers_and_messages_are_the_same_everywhere(self):
        folder = os.path.join(self.desktop.folder, "languages")
        os.makedirs(folder, exist_ok=True)
        expected = None
        for language, menus_begin in LOCALES:
            with self.subTest(language):
                environment = {"LC_ALL": "C"}
                if language != "C":
                    self.desktop.run("localedef", "-i", language, "-f", "UTF-8", f"{folder}/{language}.UTF-8")
                    environment = {"LOCPATH": folder, "LC_ALL": f"{language}.UTF-8", "LANG": f"{language}.UTF-8"}
                game = self.start(environment=environment)
                seen = self.places(game)
                expected = expected or seen
                self.assertEqual(seen, expected)
                self.assertEqual(self.where_menus_begin(game), menus_begin or "left")
                self.play(game)

    def places(self, game):
        """Console, first letter and field, from the console's corner."""
        game.wait_for_puzzle()
        console = game.console()
        x, y, width, height = console.rectangle
        letter = console.character_rectangle(console.text.index("Given"))
        field = game.field().rectangle
        return (width, height), *((left - x, top - y, *size) for left, top, *size in (letter, field))

    def where_menus_begin(self, game):
        x, _, width, _ = game.window().rectangle
        return "left" if game.window().find("menu item", name="Tetrad Game").centre[0] < x + width // 2 else "right"

    def play(self, game):
        """Capitals that Turkish lacks, a value with decimals judged (24.5 is 24), the alert."""
        puzzle = game.wait_for_puzzle()
        while not (solution := solve(puzzle.numbers, "49/2")):
            game.answer("S")
            puzzle = game.wait_for_other_puzzle(puzzle)
        game.answer(solution)
        game.wait_for_alert()
        game.play_again()
        game.wait_for_other_puzzle(puzzle)
        game.answer("Q")
        self.assert_clean_end(game)
