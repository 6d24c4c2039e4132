"""The field: what it takes from keys, clipboard and menu, and what does not disturb it."""

from playing import PROMPT, PlayingTest


class TestTyping(PlayingTest):
    def test_only_characters_of_an_expression_are_taken(self):
        game = self.start()
        game.wait_for_prompt()
        self.desktop.type("0 1.a+,2x!*(Q)=s/S-q")
        game.wait_for_field_text("1+2*(Q)s/S-q")

    def test_pasted_junk_leaves_only_accepted_characters(self):
        game = self.start()
        game.wait_for_prompt()
        for name, junk, kept in [
            ("spaces, words and control characters", "6 / (1 - 3/4) is\n\ttwenty-four\x1b\x7f", "6/(1-3/4)s-"),
            ("emoji, right to left, digits of other scripts", "⚪1🟡+👩‍👩‍👧2️⃣שלום*٣3", "1+2*3"),
            ("nothing accepted", "hello, world.", ""),
        ]:
            with self.subTest(name):
                self.desktop.set_clipboard(junk)
                self.desktop.press("ctrl+a", "ctrl+v")
                # The digit typed last tells that the paste before it has been handled.
                self.desktop.press("9")
                game.wait_for_field_text(kept + "9")
                self.desktop.press("ctrl+a", "BackSpace")
                game.wait_for_prompt()

    def test_a_pasted_megabyte_leaves_the_panel_inside_its_window(self):
        game = self.start()
        game.wait_for_prompt()
        self.desktop.set_clipboard("1+" * 500_000)
        self.desktop.press("ctrl+v")
        game.wait_for_field_text("1+" * 500_000)
        x, _, width, _ = game.window().rectangle
        field_x, _, field_width, _ = game.field().rectangle
        self.assertLessEqual(x, field_x)
        self.assertLessEqual(field_x + field_width, x + width)
        self.desktop.press("ctrl+a", "BackSpace")
        game.answer("q")
        self.assert_clean_end(game)

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
