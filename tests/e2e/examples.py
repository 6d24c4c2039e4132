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

    def wait_for(self, role, name=None, state="showing"):
        """Waits for an object with this role, name and state; returns it."""
        return self.wait(lambda: (node := self.application.find(role, name=name)) and state in node.states and node,
                         f"a {role} {name!r} that is {state}")

    def wait_for_key_prompt(self, prompt):
        self.wait_for("filler", prompt, "focused")

    def wait_for_line(self, pattern):
        """Waits until the console has a line that the regular expression describes in full."""
        whole_line = re.compile(f"^{pattern}$", re.MULTILINE)
        self.wait(lambda: whole_line.search(self.screen()), f"a line {pattern!r}")

    def drag(self, start, end):
        """Drags with the mouse from one place of the screen to another."""
        places = [str(number) for number in (*start, *end)]
        self.desktop.run("xdotool", "mousemove", *places[:2], "mousedown", "1",
                         "mousemove", *places[2:], "mouseup", "1")

    def picture(self):
        """What the screen shows of the console now."""
        return Picture(self.desktop, self.console().rectangle)

    def wait_for_pixel(self, x, y, colour):
        """Waits until this place of the console has the colour."""
        self.wait(lambda: self.picture().at(x, y) == colour, f"the colour {colour} at ({x}, {y})")
