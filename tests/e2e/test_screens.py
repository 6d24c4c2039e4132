"""Screens of every density, palettes, window sizes; expectations are positions, extents and colours."""

import os

from desktop import until
from palettes import DARK, HIGH_CONTRAST, environment_with
from pixels import Picture
from playing import PROMPT, PlayingTest, console_of, prompt_after

BLACK, WHITE, GREEN, RED = (0, 0, 0), (255, 255, 255), (0, 255, 0), (255, 0, 0)


def contrast(one, other):
    """The ratio that the accessibility guidelines for the web define, 1 to 21."""

    def luminance(colour):
        linear = [c / 12.92 if c <= 0.03928 else ((c + 0.055) / 1.055) ** 2.4 for c in (c / 255 for c in colour)]
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]

    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


def sharpness(colours):
    """How often the colour changes steeply from pixel to pixel: enlarged letters have no steep edge."""
    steep = sum(abs(one[0] - other[0]) > 150 for one, other in zip(colours, colours[1:]))
    return steep / sum(colour != BLACK for colour in colours)


def is_reddish(colour):
    red, green, blue = colour
    return red > green + 20 and red > blue + 20


class TestScales(PlayingTest):
    def test_text_is_crisp_and_messages_leave_nothing_behind(self):
        for scale in (1, 1.25, 1.5, 2):
            with self.subTest(scale=scale):
                game = self.start(environment={"QT_SCALE_FACTOR": str(scale)})
                game.wait_for_prompt()
                console = self.console_of(game, scale)
                self.assertAlmostEqual(console.width, 580, delta=1)
                # "Given ... and the" is 71 characters of 7.2 units from 10 on; above it nothing is drawn.
                line = console.ink(15, 29, BLACK)
                self.assertTrue(line, "the first line is not drawn")
                self.assertAlmostEqual(line[0], 10, delta=1.5)
                self.assertAlmostEqual(line[-1], 520, delta=3)
                self.assertGreater(sharpness(console.colours((10, 15, 530, 14))), 0.2)
                self.assertEqual(console.ink(2, 14, BLACK), [])
                # Rejected with a message, then without one: the first must be gone, at each edge of its row.
                game.answer("9")
                game.wait_for_prompt(prompt_after("9"))
                self.assertIn(RED, self.console_of(game, scale).colours((10, 200, 420, 15)))
                silent = "+".join(map(str, game.puzzle().numbers)) + "+("
                game.answer(silent, prompt_after("9"))
                game.wait_for_prompt(prompt_after(silent))
                # Deliberately not beyond x 410, where the eraser ends: the longest message's full stop stays.
                until(lambda: not any(map(is_reddish, self.console_of(game, scale).colours((0, 198, 410, 20)))),
                      "the message to be gone")
                game.end()

    def console_of(self, game, scale):
        """The lowest 250 units of the window, in the program's units: accessibility tells its places unscaled."""
        x, y, width, height = self.desktop.content_rectangle(game.identifier())
        console = round(250 * scale)
        return Picture(self.desktop, (x, y + height - console, width, console), scale)


class TestPalettes(PlayingTest):
    def test_the_panel_is_readable_in_every_palette(self):
        for name, palette, least in [("light", None, 7), ("dark", DARK, 7), ("high contrast", HIGH_CONTRAST, 15)]:
            with self.subTest(name):
                game = self.start(environment=palette and environment_with(palette, self.desktop))
                game.wait_for_prompt()
                game.type("1+2*(3-4)/5")
                for part in (game.application.find("label", name=PROMPT), game.field()):
                    # The left half: at the right end of what was typed stands the caret, which is no letter.
                    x, y, width, height = part.rectangle
                    colours = Picture(self.desktop, (x, y, width // 2, height)).colours()
                    body = max(set(colours), key=colours.count)
                    self.assertGreater(max(contrast(body, colour) for colour in colours), least)
                # The game's own black does not follow the palette, nor do its colours.
                console = Picture(self.desktop, game.console().rectangle).colours()
                self.assertGreater(console.count(BLACK), len(console) // 2)
                self.assertTrue({WHITE, GREEN} <= set(console))
                game.end()


class TestWindows(PlayingTest):
    def test_the_panel_is_usable_in_every_size_of_window(self):
        game = self.start()
        game.wait_for_prompt()
        # Width and height of the window, then left and top of the panel's field from the console's corner.
        for width, height, *place in [
            (140, 80),
            (300, 120, 176, 75),
            (1260, 740, 176, 164),
            (580, 269, 176, 164),
        ]:
            with self.subTest(width=width, height=height):
                self.desktop.run("xdotool", "windowsize", "--sync", game.identifier(), str(width), str(height))
                until(lambda: game.window().rectangle[2:] == (width, height), "the new size")
                # The panel has moved before a key makes it measure itself anew.
                self.assert_inside(game.field(), game.window())
                self.desktop.press("ctrl+a", "BackSpace")
                game.type("1+2")
                self.assert_inside(game.field(), game.window())
                left, top, field_width, _ = game.field().rectangle
                self.assertGreater(field_width, 20)
                x, y, *_ = game.console().rectangle
                self.assertIn(place, ([], [left - x, top - y]))

    def assert_inside(self, inner, outer):
        (x, y, width, height), (left, top, room, depth) = inner.rectangle, outer.rectangle
        self.assertTrue(left <= x and x + width <= left + room and top <= y and y + height <= top + depth,
                        (inner.rectangle, outer.rectangle))


class TestTwoWindows(PlayingTest):
    """The panel stands over the front window; the other one neither takes its keys nor ends it."""

    def setUp(self):
        super().setUp()
        self.program = self.start(command=[os.environ["TETRAD_STRANGER"], "equal"])

    def ask(self, window):
        """Waits until this window's panel asks, with the keys going there."""
        until(lambda: (shown := self.window(window)) and "active" in shown.states, f"{window!r} active")
        field = self.program.wait_for_prompt("Which?")
        self.assertTrue(self.window(window).find("text", name="Which?").is_the_same_as(field))

    def window(self, name):
        return self.program.application.find("frame", name=name)

    def answer(self, window, text):
        self.program.answer(text, "Which?")
        until(lambda: text in console_of(self.window(window)).text.splitlines(), f"{text!r} in {window!r}")

    def test_the_other_window_brought_to_the_front_gives_way(self):
        for name, bring in [
            ("by its title bar", lambda: self.desktop.run("xdotool", "windowactivate", self.program.identifier("Window 1"))),
            ("by a click in it", lambda: self.desktop.click(*self.window("Window 1").centre)),
        ]:
            with self.subTest(name):
                self.ask("Window 2")
                bring()
                self.answer("Window 2", name)

    def test_each_close_box(self):
        self.ask("Window 2")
        self.answer("Window 2", "other")
        self.ask("Window 1")
        self.desktop.click_close_box(self.program.identifier("Window 2"))
        until(lambda: not self.window("Window 2"), "the window without the panel to close")
        self.answer("Window 1", "still")
        self.desktop.click_close_box(self.program.identifier("Window 1"))
        self.assert_clean_end(self.program)


class TestSmallScreen(PlayingTest):
    def setUp(self):
        os.environ["TETRAD_E2E_SCREEN"] = "440x180x24"
        super().setUp()

    def test_the_game_is_played_on_a_screen_smaller_than_its_window(self):
        game = self.start()
        game.win()
        for name in ("Quit", "Play Again"):
            x, y, width, height = game.button(name).rectangle
            self.assertTrue(0 <= x and x + width <= 440 and 0 <= y and y + height <= 180, (name, x, y, width, height))
        x, y, *_ = self.desktop.framed_rectangle(game.identifier())
        self.assertTrue(x >= -1 and y >= 0, f"the title bar is out of reach: {x}, {y}")
        self.desktop.press("Return")
        self.assert_clean_end(game)
