"""A program as its user meets it: started on the desktop, read through accessibility, played by keys."""

import os
import re
import tempfile
from collections import namedtuple
from pathlib import Path

from accessible import application_of
from desktop import until
from solver import solve

REPOSITORY = Path(__file__).resolve().parents[2]
PROGRAM = os.environ.get("TETRAD_GAME", str(REPOSITORY / "build" / "tetrad-game"))
ARTIFACTS = Path(os.environ.get("TETRAD_E2E_ARTIFACTS", REPOSITORY / "build" / "e2e-artifacts"))

PROMPT = "Enter math expression:"
PUZZLE = re.compile(r"difficulty level (?P<level>[^\n]*?)\n\s*(?P<numbers>[1-9](?:\s+[1-9]){3})(?![1-9])")

Puzzle = namedtuple("Puzzle", "level numbers")


def prompt_after(answer):
    return f"Enter math expression: [ '{answer}' was incorrect ]"


class Game:
    """One run of the game, or of another program of the runtime. What waits returns what it waited for."""

    def __init__(self, desktop, command=(PROGRAM,), environment=None, **options):
        self.desktop = desktop
        self._errors = tempfile.TemporaryFile()
        self.process = desktop.start(*command, environment=environment, stderr=self._errors, **options)
        self.application = None

    def wait_for_start(self):
        self.application = self.wait(lambda: application_of(self.process.pid), "the program on the accessibility bus")

    def has_keyboard(self):
        """Whether the display sends keys to its window, whatever the window manager calls active."""
        owner = self.desktop.run("xdotool", "getwindowfocus", "getwindowpid", check=False)
        return owner.strip() == str(self.process.pid)

    def has_ended(self):
        return self.process.poll() is not None

    # -- what is on the screen

    def window(self):
        return self.application.find("frame", "window")

    def identifier(self, name="Tetrad Game"):
        """Of its window with this name, as the display has it."""
        return self.desktop.window_of(self.process.pid, name)

    def console(self):
        return next((text for text in self.application.find_all("text", "entry") if "multi-line" in text.states), None)

    def screen(self):
        """The text of the console since it was last cleared."""
        console = self.console()
        return console.text if console else ""

    def field(self):
        """The field of the input panel, once it can be typed into."""
        fields = self.application.find_all("text", "entry")
        return next((field for field in fields if {"editable", "focused"} <= field.states), None)

    def alert(self):
        return self.application.find("alert", "dialog")

    def puzzle(self):
        """The puzzle on the screen, or None."""
        match = PUZZLE.search(self.screen())
        return match and Puzzle(match["level"], tuple(int(digit) for digit in match["numbers"].split()))

    # -- waiting

    def wait(self, condition, what):
        """Waits until condition() is true and returns its value; fails at once when the program ends."""

        def alive():
            value = condition()
            if not value and self.has_ended():
                raise AssertionError(f"the program ended with status {self.process.returncode} while waiting for"
                                     f" {what}; standard error: {self._stderr()!r}")
            return value

        return until(alive, what)

    def wait_for(self, role, name=None, state="showing"):
        """Waits for an object with this role, name and state."""
        return self.wait(lambda: (node := self.application.find(role, name=name)) and state in node.states and node,
                         f"a {role} {name!r} that is {state}")

    def wait_for_line(self, pattern):
        """Waits until the console has a line that the regular expression describes in full."""
        whole_line = re.compile(f"^{pattern}$", re.MULTILINE)
        self.wait(lambda: whole_line.search(self.screen()), f"a line {pattern!r}")

    def wait_for_prompt(self, prompt=PROMPT):
        """Waits for an empty field with this prompt."""
        return self.wait(lambda: (field := self.field()) and field.name == prompt and field.text == "" and field,
                         f"an empty field named {prompt!r}")

    def wait_for_field_text(self, text):
        self.wait(lambda: (field := self.field()) and field.text == text, f"{text:.60} in the field")

    def wait_for_puzzle(self, other_than=None):
        """Waits until a puzzle is asked for; the puzzles of a cycle all differ, so one before it tells when it is new."""
        old = other_than and other_than.numbers
        self.wait(lambda: (puzzle := self.puzzle()) and puzzle.numbers != old, "a puzzle")
        self.wait_for_prompt()
        return self.puzzle()

    # -- playing

    def type(self, text, result=None):
        """Types and waits until the field shows exactly that, or the result."""
        self.desktop.type(text)
        self.wait_for_field_text(result or text)

    def press(self, *keys):
        self.desktop.press(*keys)

    def click(self, role, name=None):
        self.desktop.click(*self.wait_for(role, name).centre)

    def click_close_box(self, name="Tetrad Game"):
        self.desktop.click_close_box(self.identifier(name))

    def open_menu(self, menu):
        """Opens a menu of the window by mouse and waits for its items."""
        title = self.wait(lambda: self.window().find("menu item", "menu", name=menu), f"the menu {menu!r}")
        self.desktop.click(*title.centre)
        self.wait(self._open_item, f"the items of {menu!r}")

    def choose(self, menu, item):
        """Opens a menu of the window by mouse and clicks an item."""
        self.open_menu(menu)
        self.desktop.click(*self.wait(lambda: self._open_item(item), f"the item {item!r}").centre)

    def _open_item(self, name=None):
        """An item of the open menu; the titles in the menu bar are items of the window."""
        items = (popup.find("menu item", name=name) for popup in self.application.find_all("popup menu", "menu"))
        return next((item for item in items if item and item.rectangle[2] > 0), None)

    def activate(self, name="Tetrad Game"):
        """Brings a window of this name to the front."""
        self.desktop.run("xdotool", "windowactivate", "--sync", self.identifier(name))

    def answer(self, text, prompt=PROMPT):
        """Waits to be asked with this prompt, types the answer and presses Return."""
        self.wait_for_prompt(prompt)
        self.type(text)
        self.desktop.press("Return")

    def win(self, prompt=PROMPT):
        """Solves the puzzle that is asked for; leaves the alert open. Returns the puzzle."""
        self.wait_for_prompt(prompt)
        puzzle = self.wait(self.puzzle, "a puzzle")
        self.answer(solve(puzzle.numbers), prompt)
        self.wait_for("push button", "Quit", "focused")
        return puzzle

    def play_again(self):
        self.desktop.press("Tab")
        self.wait_for("push button", "Play Again", "focused")
        self.desktop.press("space")
        self.wait(lambda: not self.alert(), "the end of the alert")

    # -- ending

    def wait_for_end(self):
        """Returns its status and what it wrote on standard error."""
        until(self.has_ended, "the end of the program")
        return self.process.returncode, self._stderr()

    def end(self):
        self.process.kill()
        self.process.wait()
        self._errors.close()

    def _stderr(self):
        self._errors.seek(0)
        return self._errors.read().decode(errors="replace")
