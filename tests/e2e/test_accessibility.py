"""What a screen reader is told."""

from accessible import focus_and_caret_events, replayed, text_events
from desktop import until
from game import PROMPT, prompt_after
from playing import PlayingTest

GREEN = (0, 255, 0)


class TestAccessibility(PlayingTest):
    def test_every_change_of_the_text_is_told_in_order(self):
        game = self.start()
        old = game.wait_for_puzzle()
        console = game.console()
        self.assertNotIn("editable", console.states)
        before = console.text
        self.assertEqual(game.field().description.split(), before.split())
        told, _listener = text_events(console)
        game.answer("1+2+3+4+5")
        described = game.wait_for_prompt(prompt_after("1+2+3+4+5")).description
        self.assertEqual(described.strip(), "Error! Extra numbers not allowed")
        until(lambda: replayed(told, before) == console.text != before, "the error line in the events")
        self.assertEqual([kind for kind, *_ in told], ["text-changed:insert"])
        # Skipping clears the console and prints it anew; the levels hold characters of two UTF-16 units.
        game.answer("s", prompt_after("1+2+3+4+5"))
        game.wait_for_puzzle(other_than=old)
        until(lambda: replayed(told, before) == console.text, "the new screen in the events")
        self.assertEqual([kind for kind, *_ in told].count("text-changed:delete"), 1)

    def test_the_focus_of_a_new_field_comes_before_its_caret(self):
        game = self.start()
        events, _listener = focus_and_caret_events()
        game.answer("1+2")
        field = game.wait_for_prompt(prompt_after("1+2"))
        game.type("4")
        until(lambda: "text-caret-moved" in field.sent(events), "the caret")
        self.assertEqual(field.sent(events)[0], "state-changed:focused")

    def test_characters_are_where_they_are_drawn(self):
        game = self.start()
        numbers = game.wait_for_puzzle().numbers
        console = game.console()
        # Each number is printed as " n ", in green.
        line = "".join(f" {number} " for number in numbers)
        for offset, character in enumerate(line, console.text.index(line)):
            seen = self.desktop.colours(*console.character_rectangle(offset))
            self.assertEqual(GREEN in seen, character != " ", f"{character!r} at {offset}")

    def test_the_focus_goes_to_the_console_and_back(self):
        game = self.start()
        game.wait_for_prompt()
        console = game.console()
        for way_in, enter in [("F6", lambda: self.desktop.press("F6")), ("a client", console.grab_focus)]:
            with self.subTest(way_in):
                enter()
                until(lambda: "focused" in console.states, "the focus on the console")
                self.desktop.press("F6")
                self.assertEqual(until(game.field, "the focus in the field").name, PROMPT)

    def test_a_game_without_mouse_or_picture(self):
        game = self.start()
        self.assertEqual(game.window().name, "Tetrad Game")
        self.assertTrue(game.wait_for_prompt().grab_focus())
        puzzle = game.win()
        alert = game.alert()
        self.assertTrue(alert.find("image"))
        self.assertEqual([alert.name, *(part.name for part in alert.find_all("label", "push button"))],
                         ["Correct You won!", "Correct", "You won!", "Quit", "Play Again"])
        self.assertIn("is-default", alert.find("push button", name="Quit").states)
        alert.find("push button", name="Play Again").press()
        game.wait_for_puzzle(other_than=puzzle)
        game.win()
        game.application.find("push button", name="Quit").press()
        self.assert_clean_end(game)
