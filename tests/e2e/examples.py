"""The example programs: started by name, read through accessibility and pixel by pixel."""

import os
import re
from pathlib import Path

from pixels import Picture
from playing import REPOSITORY, Game

EXAMPLES = Path(os.environ.get("TETRAD_EXAMPLES", REPOSITORY / "build" / "examples"))


class Example(Game):
    """One run of an example. Its window's title is its name with a capital."""

    def __init__(self, desktop, name):
        super().__init__(desktop, command=[str(EXAMPLES / name)])
        self.title = name.capitalize()

    def wait_for_key_prompt(self, prompt):
        """Waits until a key panel with this prompt has the keyboard."""

        def asked():
            panel = self.application.find("filler", "panel", name=prompt)
            return panel if panel and "focused" in panel.states else None

        return self._wait(asked, f"a key panel named {prompt!r}")

    def wait_for_screen(self, text):
        """Waits until the console shows exactly this."""
        self._wait(lambda: self.screen() == text, f"a console that says {text!r}")

    def wait_for_line(self, line):
        """Waits until the console has this line, and returns all of its lines."""
        return self._wait(lambda: line in (lines := self.screen().split("\n")) and lines, f"the line {line!r}")

    def wait_for_line_like(self, pattern):
        """Waits until the console has a line that the regular expression describes in full."""
        whole_line = re.compile(f"^{pattern}$", re.MULTILINE)
        self._wait(lambda: whole_line.search(self.screen()), f"a line {pattern!r}")

    def wait_for(self, role, name=None, condition=lambda node: True):
        """Waits for an object on the screen with this role and name that satisfies the condition; returns it."""
        return self._wait(lambda: (node := self.application.find(role, name=name)) and condition(node) and node,
                          f"a {role} {name!r}")

    def drag(self, start, end):
        """Drags with the mouse from one place of the screen to another."""
        places = [str(number) for number in (*start, *end)]
        self.desktop.run("xdotool", "mousemove", *places[:2], "mousedown", "1",
                         "mousemove", *places[2:], "mouseup", "1")

    def wait_for_pixel(self, x, y, colour):
        """Waits until this place of the console, in its own coordinates, has the colour."""
        self._wait(lambda: self.picture().pixel(x, y) == colour, f"the colour {colour} at ({x}, {y})")

    def picture(self):
        """What the screen shows of the console now."""
        return ConsolePicture(self.desktop, self.console().rectangle)


class ConsolePicture(Picture):
    """The console on the screen; places are the console's own, from its top left."""

    def pixel(self, x, y):
        """Red, green and blue, 0 to 255."""
        return self.at(self.x + x, self.y + y)

    def row(self, y):
        return [self.pixel(x, y) for x in range(self.width)]

    def ink(self, top, bottom, paper):
        """The x of each column that holds anything but paper between two heights."""
        return [x for x in range(self.width) if any(self.pixel(x, y) != paper for y in range(top, bottom))]
