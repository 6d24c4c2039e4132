"""What a screen reader is told."""

from accessible import TEXT_EVENTS, Events, TextEvents
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
        self.assertEqual(game.field().description.split(), console.text.split())
        game.answer("1+2+3+4+5")
        described = game.wait_for_prompt(prompt_after("1+2+3+4+5")).description
        self.assertEqual(described.strip(), "Error! Extra numbers not allowed")

    def test_a_field_is_silent_until_it_has_the_focus(self):
        game = self.start()
        game.wait_for_puzzle()
        with Events(*TEXT_EVENTS, "object:property-change", "object:state-changed:focused") as told:
            game.answer("9")
            field = game.wait_for_prompt(prompt_after("9"))
            until(lambda: "state-changed:focused" in told.of(field), "the focus event")
        self.assertEqual(told.of(field)[0], "state-changed:focused")

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
            game.wait_for_puzzle(other_than=old)
            until(lambda: told.replay(before) == console.text, "the new screen in the events")
            self.assertEqual(len(told.named("text-changed:delete")), 1)
            # What a client does itself is told as well.
            level, end = console.text.index("difficulty level"), len(console.text)
            console.select(level, end)
            until(lambda: told.named("text-selection-changed") and told.named("text-caret-moved"), "both events")
            self.assertEqual((console.selection, console.caret), ((level, end), end))
            self.assertEqual(told.named("text-caret-moved")[-1][1], end)

    def test_characters_are_where_they_are_drawn(self):
        game = self.start()
        numbers = game.wait_for_puzzle().numbers
        console = game.console()
        x, y, _, _ = console.rectangle
        # Each number is printed as " n ", in green, in an 18-pixel font whose digits are 10.84 pixels wide.
        line = "".join(f" {number} " for number in numbers)
        start = console.text.index(line)
        for column, character in enumerate(line):
            with self.subTest(column=column, character=character):
                rectangle = console.character_rectangle(start + column)
                left, top, width, height = rectangle
                self.assertAlmostEqual(left - x, 55 + 10.84 * column, delta=1.5)
                self.assertEqual((top - y, height), (125, 21))
                self.assertEqual(GREEN in Picture(self.desktop, rectangle).colours(), character != " ")
                self.assertEqual(console.offset_at(left + width // 2, top + height // 2), start + column)

    def test_the_console_is_read_selected_and_copied_by_keys(self):
        game = self.start()
        game.wait_for_prompt()
        # Smaller than its text, the console scrolls.
        self.desktop.run("xdotool", "windowsize", "--sync", game.identifier(), "400", "120")
        console = game.console()
        start = console.text.index("Given four numbers")
        for way_in, enter in [("F6", lambda: self.desktop.press("F6")), ("a client", console.grab_focus)]:
            with self.subTest(way_in):
                self.desktop.set_clipboard("")
                enter()
                self.wait_for_focus(console)
                self.desktop.press("End")
                until(lambda: console.caret == len(console.text), "the caret at the end")
                top = console.character_rectangle(start)[1]
                self.desktop.press(*["Page_Up"] * 4)
                until(lambda: console.character_rectangle(start)[1] > top, "the text to scroll back")
                self.desktop.press("ctrl+Home", "Down", *["shift+Right"] * 5)
                until(lambda: console.selection == (start, start + 5), "the second line's first word selected")
                self.desktop.press("ctrl+c")
                until(lambda: self.desktop.clipboard() == "Given", "the copied text")
                self.desktop.press("F6")
                self.assertEqual(until(game.field, "the focus in the field").name, PROMPT)
                self.desktop.press("F6")
                self.wait_for_focus(console)
                game.type("7*7")
                self.desktop.press("ctrl+a", "BackSpace")
                game.wait_for_prompt()

    def test_a_game_without_mouse_or_picture(self):
        game = self.start()
        first = game.wait_for_puzzle()
        game.answer("s")
        puzzle = game.wait_for_puzzle(other_than=first)
        self.assertTrue(game.field().grab_focus())
        game.answer(solve(puzzle.numbers))
        alert = game.wait_for_alert()
        # The icon is the one that the build puts beside the program.
        self.assertTrue(alert.find("image"))
        self.assertEqual([alert.name, *(part.name for part in alert.find_all("label", "push button"))],
                         ["Correct You won!", "Correct", "You won!", "Quit", "Play Again"])
        self.assertIn("is-default", game.wait_for_focus_on("Quit").states)
        self.assertNotIn("is-default", game.button("Play Again").states)
        game.button("Play Again").press()
        game.wait_for_puzzle(other_than=puzzle)
        game.win()
        game.button("Quit").press()
        self.assert_clean_end(game)

    def wait_for_focus(self, console):
        until(lambda: "focused" in console.states, "the focus on the console")
