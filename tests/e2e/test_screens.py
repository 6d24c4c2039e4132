"""Screens of every density, palettes, window sizes; expectations are positions, extents and colours."""

import os
import re
import unittest

from desktop import until
from palettes import dark_environment
from pixels import Picture
from playing import PlayingTest, prompt_after

BLACK, WHITE, GREEN, RED = (0, 0, 0), (255, 255, 255), (0, 255, 0), (255, 0, 0)
MESSAGE = (10, 200, 420, 15)  # where messages about an answer stand

HIGH_CONTRAST_COLOURS = {group: ("0,0,0", "255,255,255") for group in ("Window", "View", "Button", "Tooltip")}
HIGH_CONTRAST_COLOURS["Selection"] = ("255,255,0", "0,0,0")


def contrast(one, other):
    """The ratio that the accessibility guidelines for the web define, 1 to 21."""

    def luminance(colour):
        linear = [c / 12.92 if c <= 0.03928 else ((c + 0.055) / 1.055) ** 2.4 for c in (c / 255 for c in colour)]
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]

    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


class Screen:
    """The content of the game's window in pixels of the screen, addressed in the program's own units."""

    def __init__(self, desktop, game, scale=1):
        x, y, width, height = self._place(desktop, desktop.window_of(game.process.pid))
        self.scale = scale
        self.size = width / scale, height / scale
        self._origin = x, y + height - round(250 * scale)
        self.picture = Picture(desktop, (x, y, width, height))

    def colours(self, rectangle):
        x, y, width, height = (round(value * self.scale) for value in rectangle)
        return self.picture.part((self._origin[0] + x, self._origin[1] + y, width, height))

    def columns(self, rectangle):
        """The part of a rectangle that is not black, as its first and its last column in units; None when all is."""
        x, _, width, _ = rectangle
        pixels = self.colours(rectangle)
        row = round(width * self.scale)
        lit = sorted({index % row for index, colour in enumerate(pixels) if colour != BLACK})
        return (x + lit[0] / self.scale, x + lit[-1] / self.scale) if lit else None

    @staticmethod
    def _place(desktop, window):
        """x, y, width, height without the frame; xdotool would count the frame twice."""
        facts = desktop.run("xwininfo", "-id", window)
        return [int(re.search(rf"{fact}:\s+(-?\d+)", facts)[1])
                for fact in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]


def sharpness(colours):
    """How often the colour changes steeply from pixel to pixel: enlarged letters have no steep edge."""
    steep = sum(abs(one[0] - other[0]) > 150 for one, other in zip(colours, colours[1:]))
    return steep / sum(colour != BLACK for colour in colours)


class TestScales(PlayingTest):
    def test_text_is_crisp_and_messages_leave_nothing_behind(self):
        for scale in (1, 1.25, 1.5, 2):
            with self.subTest(scale=scale):
                game = self.start(environment={"QT_SCALE_FACTOR": str(scale)})
                game.wait_for_prompt()
                screen = Screen(self.desktop, game, scale)
                self.assertAlmostEqual(screen.size[0], 580, delta=1)
                # "Given ... and the" is 71 characters of 7.2 units from 10 on; above it nothing is drawn.
                line = screen.columns((0, 15, 570, 14))
                self.assertIsNotNone(line, "the first line is not drawn")
                left, right = line
                self.assertAlmostEqual(left, 10, delta=1.5)
                self.assertAlmostEqual(right, 520, delta=3)
                self.assertGreater(sharpness(screen.colours((10, 15, 530, 14))), 0.2)
                self.assertIsNone(screen.columns((0, 2, 570, 12)))
                game.answer("9")
                game.wait_for_prompt(prompt_after("9"))
                self.assertIn(RED, self.colours_of(game, scale, MESSAGE))
                # Rejected without a message: the one before must be gone, at each edge of the row.
                numbers = game.puzzle().numbers
                game.answer("+".join(map(str, numbers)) + "+(", prompt_after("9"))
                game.wait_for_prompt(prompt_after("+".join(map(str, numbers)) + "+("))
                until(lambda: not any(self.is_reddish(c) for c in self.colours_of(game, scale, (0, 198, 580, 20))),
                      "the message to be gone")
                game.end()

    def colours_of(self, game, scale, rectangle):
        return Screen(self.desktop, game, scale).colours(rectangle)

    @staticmethod
    def is_reddish(colour):
        red, green, blue = colour
        return red > green + 20 and red > blue + 20


class TestPalettes(PlayingTest):
    def test_the_panel_is_readable_in_every_palette(self):
        palettes = {
            "light": ({}, 7),
            "dark": (dark_environment(self.desktop), 7),
            "high contrast": (dark_environment(self.desktop, "contrast", HIGH_CONTRAST_COLOURS), 15),
        }
        for name, (environment, least) in palettes.items():
            with self.subTest(name):
                game = self.start(environment=environment)
                game.wait_for_prompt()
                game.type("1+2*(3-4)/5")
                prompt = game.application.find("label", name="Enter math expression:")
                for part in (prompt, game.field()):
                    # The left half: at the right end of what was typed stands the caret, which is no letter.
                    x, y, width, height = part.rectangle
                    colours = Picture(self.desktop, (x, y, width // 2, height)).all()
                    body = max(set(colours), key=colours.count)
                    self.assertGreater(max(contrast(body, colour) for colour in colours), least)
                # The game's own black does not follow the palette, nor do its colours.
                console = Picture(self.desktop, game.console().rectangle).all()
                self.assertGreater(console.count(BLACK), len(console) // 2)
                self.assertTrue({WHITE, GREEN} <= set(console))
                game.end()


class TestWindows(PlayingTest):
    def test_the_panel_is_usable_in_every_size_of_window(self):
        game = self.start()
        game.wait_for_prompt()
        window = self.desktop.window_of(game.process.pid)
        # Width and height of the window, then left and top of the panel's field from the console's corner.
        for width, height, left, top in [
            (140, 80, None, None),
            (300, 120, 170, 75),
            (580, 269, 176, 164),
            (1260, 740, 176, 164),
            (580, 269, 176, 164),
        ]:
            with self.subTest(width=width, height=height):
                self.desktop.run("xdotool", "windowsize", "--sync", window, str(width), str(height))
                until(lambda: game.window().rectangle[2:] == (width, height), "the new size")
                # The panel has moved before a key makes it measure itself anew.
                self.assert_inside(game.field().rectangle, game.window().rectangle)
                self.desktop.press("ctrl+a", "BackSpace")
                game.type("1+2")
                field = game.field().rectangle
                self.assertGreater(field[2], 20)
                self.assert_inside(field, game.window().rectangle)
                x, y, *_ = game.console().rectangle
                if left is not None:
                    self.assertEqual((field[0] - x, field[1] - y), (left, top))

    def assert_inside(self, inner, outer):
        self.assertLessEqual(outer[0], inner[0])
        self.assertLessEqual(outer[1], inner[1])
        self.assertLessEqual(inner[0] + inner[2], outer[0] + outer[2])
        self.assertLessEqual(inner[1] + inner[3], outer[1] + outer[3])

    def test_two_windows_of_the_game_do_not_disturb_each_other(self):
        games = [self.start(), self.start()]
        for game in games:
            game.wait_for_start()
        for game, answer in ((games[1], "9"), (games[0], "8")):
            game.activate()
            game.answer(answer)
            game.wait_for_prompt(prompt_after(answer))
        games[1].activate()
        self.assertEqual(games[1].wait_for_prompt(prompt_after("9")).name, prompt_after("9"))


class TestTwoWindows(PlayingTest):
    """The panel stands over the front window; the other one neither takes its keys nor ends it."""

    def setUp(self):
        super().setUp()
        self.program = self.start(command=[os.environ["TETRAD_TWO_WINDOWS"]])

    def ask(self, window):
        """Waits until this window's panel asks, with the keys going there."""
        until(lambda: (shown := self.window(window)) and "active" in shown.states, f"{window!r} active")
        field = self.program.wait_for_prompt("Which?")
        self.assertTrue(self.window(window).find("text", name="Which?").is_the_same_as(field))

    def window(self, name):
        return self.program.application.find("frame", name=name)

    def identifier(self, name):
        return self.desktop.window_of(self.program.process.pid, name)

    def answer(self, window, text):
        self.program.answer(text, "Which?")
        until(lambda: text in self.window(window).find("terminal").text.splitlines(), f"{text!r} in {window!r}")

    def test_the_other_window_brought_to_the_front_gives_way(self):
        for name, bring in [
            ("by its title bar", lambda: self.desktop.run("xdotool", "windowactivate", self.identifier("First"))),
            ("by a click in it", lambda: self.desktop.click(*self.window("First").centre)),
        ]:
            with self.subTest(name):
                self.ask("Second")
                bring()
                self.answer("Second", name)

    def test_each_close_box(self):
        self.ask("Second")
        self.answer("Second", "other")
        self.ask("First")
        self.answer("First", "here")
        self.desktop.click_close_box(self.identifier("Second"))
        until(lambda: not self.window("Second"), "the window without the panel to close")
        self.answer("First", "still")
        self.desktop.click_close_box(self.identifier("First"))
        self.assert_clean_end(self.program)


class TestSmallScreen(PlayingTest):
    def setUp(self):
        os.environ["TETRAD_E2E_SCREEN"] = "440x180x24"
        super().setUp()

    def test_the_game_is_played_on_a_screen_smaller_than_its_window(self):
        game = self.start()
        game.win()
        alert = game.wait_for_alert()
        for name in ("Quit", "Play Again"):
            x, y, width, height = game.button(name).rectangle
            self.assertTrue(0 <= x and x + width <= 440 and 0 <= y and y + height <= 180, (name, x, y, width, height))
        x, y, *_ = self.desktop.framed_rectangle(self.desktop.window_of(game.process.pid))
        self.assertTrue(x >= -1 and y >= 0, f"the title bar is out of reach: {x}, {y}")
        game.wait_for_focus_on("Quit")
        self.desktop.press("Return")
        self.assert_clean_end(game)


if __name__ == "__main__":
    unittest.main()
