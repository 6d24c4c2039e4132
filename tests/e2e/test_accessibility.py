"""What a screen reader is told."""

from accessible import TextEvents
from desktop import until
from pixels import Picture
from playing import PROMPT, PlayingTest, prompt_after
from solver import solve

GREEN = (0, 255, 0)


class TestAccessibility(PlayingTest):
    def test_names_roles_and_the_field_described_by_what_is_new(self):
        game = self.start()
        game.wait_for_puzzle()
        self.assertEqual(game.window().name, "Tetrad Game")
        console = game.console()
        self.assertTrue(console.name)
        self.assertIn("multi-line", console.states)
        self.assertNotIn("editable", console.states)
        screen = " ".join(game.screen().split())
        self.assertEqual(" ".join(game.field().description.split()), screen)
        game.answer("1+2+3+4+5")
        described = game.wait_for_prompt(prompt_after("1+2+3+4+5")).description
        self.assertEqual(described.strip(), "Error! Extra numbers not allowed")

    def test_every_change_of_the_text_is_told_in_order(self):
        game = self.start()
        game.wait_for_puzzle()
        console = game.console()
        before = console.text
        with TextEvents(console) as told:
            game.answer("9")
            game.wait_for_prompt(prompt_after("9"))
            until(lambda: told.replay(before) == console.text != before, "the error line in the events")
            self.assertEqual([kind for kind, *_ in told.events], ["text-changed:insert"])
            # Skipping clears the console and prints it anew; the levels hold characters of two UTF-16 units.
            old = game.puzzle()
            game.answer("s", prompt_after("9"))
            game.wait_for_other_puzzle(old)
            until(lambda: told.replay(before) == console.text, "the new screen in the events")
            self.assertEqual([kind for kind, *_ in told.events].count("text-changed:delete"), 1)

    def test_characters_are_where_they_are_drawn(self):
        game = self.start()
        numbers = game.wait_for_puzzle().numbers
        console = game.console()
        text = console.text
        line = text.index("\n", text.index("These are your numbers")) + 1
        x, y, _, _ = console.rectangle
        picture = Picture(self.desktop, console.rectangle)
        # Each number is printed as " n ", in green, in an 18-pixel font whose digits are 10.84 pixels wide.
        for place, number in enumerate(numbers):
            for column, character in enumerate(f" {number} "):
                offset = line + 3 * place + column
                with self.subTest(offset=offset, character=character):
                    self.assertEqual(text[offset], character)
                    rectangle = console.character_rectangle(offset)
                    left, top, width, height = rectangle
                    self.assertAlmostEqual(left - x, 55 + 10.84 * (offset - line), delta=1.5)
                    self.assertEqual((top - y, height), (125, 21))
                    self.assertEqual(GREEN in picture.part(rectangle), character != " ")
                    self.assertEqual(console.offset_at(left + width // 2, top + height // 2), offset)

    def test_the_console_is_read_selected_and_copied_by_keys(self):
        game = self.start()
        game.wait_for_prompt()
        # Smaller than its text, the console scrolls.
        self.desktop.run("xdotool", "windowsize", "--sync", self.desktop.window_of(game.process.pid), "400", "120")
        console = game.console()
        text = console.text
        start = text.index("Given four numbers")
        for way_in, enter in [("F6", lambda: self.desktop.press("F6")), ("grab_focus", console.grab_focus)]:
            with self.subTest(way_in):
                enter()
                self.wait_for_focus(console)
                self.desktop.press("End")
                until(lambda: console.caret == len(text), "the caret at the end")
                top = console.character_rectangle(start)[1]
                self.desktop.press("Page_Up", "Page_Up", "Page_Up", "Page_Up")
                until(lambda: console.character_rectangle(start)[1] > top, "the text to scroll back")
                self.desktop.press("ctrl+Home", "Down")
                until(lambda: console.caret == start, "the caret on the second line")
                self.desktop.press(*["shift+Right"] * 5)
                until(lambda: console.selection == (start, start + 5), "five characters selected")
                self.desktop.press("ctrl+c")
                until(lambda: self.desktop.clipboard() == "Given", "the copied text")
                self.desktop.press("F6")
                self.assertEqual(until(game.field, "the focus in the field").name, PROMPT)
                self.desktop.press("F6")
                self.wait_for_focus(console)
                game.type("7*7")
                self.desktop.press("ctrl+a", "BackSpace")
                game.wait_for_prompt()
                self.desktop.set_clipboard("")

    def test_a_client_moves_caret_and_selection_and_hears_of_it(self):
        game = self.start()
        game.wait_for_puzzle()
        console = game.console()
        level = console.text.index("difficulty level")
        with TextEvents(console) as told:
            end = len(console.text)
            console.select(level, end)
            until(lambda: told.named("text-selection-changed") and told.named("text-caret-moved"), "both events")
            self.assertEqual((console.selection, console.caret), ((level, end), end))
            self.assertEqual(told.named("text-caret-moved")[-1][1], end)

    def test_a_game_without_mouse_or_picture(self):
        game = self.start()
        first = game.wait_for_puzzle()
        game.answer("s")
        puzzle = game.wait_for_other_puzzle(first)
        self.assertTrue(game.field().grab_focus())
        game.answer(solve(puzzle.numbers))
        alert = game.wait_for_alert()
        self.assertEqual(alert.name, "Correct You won!")
        # The icon that the build puts beside the program.
        self.assertTrue(alert.find("image"))
        self.assertEqual([label.name for label in alert.find_all("label")], ["Correct", "You won!"])
        self.assertIn("is-default", game.wait_for_focus_on("Quit").states)
        self.assertNotIn("is-default", game.button("Play Again").states)
        self.assertTrue(game.button("Play Again").do("Press"))
        game.wait_for_end_of_alert()
        game.wait_for_other_puzzle(puzzle)
        game.win()
        game.wait_for_focus_on("Quit").do("Press")
        self.assert_clean_end(game)

    def wait_for_focus(self, console):
        until(lambda: "focused" in console.states, "the focus on the console")
