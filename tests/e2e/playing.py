"""The game as a player meets it: started as a program, read through accessibility, played by keys."""

import contextlib
import functools
import os
import re
import subprocess
import tempfile
import traceback
import unittest
from collections import namedtuple
from pathlib import Path

from accessible import application_of
from desktop import Desktop, until
from solver import solve

REPOSITORY = Path(__file__).resolve().parents[2]
PROGRAM = Path(os.environ.get("TETRAD_GAME", REPOSITORY / "build" / "tetrad-game"))
ARTIFACTS = Path(os.environ.get("TETRAD_E2E_ARTIFACTS", REPOSITORY / "build" / "e2e-artifacts"))

PROMPT = "Enter math expression:"
FIELD_ROLES = ("text", "entry")
ALERT_ROLES = ("alert", "dialog")
PUZZLE = re.compile(r"difficulty level (?P<level>[^\n]*?)\n\s*(?P<numbers>[1-9](?:\s+[1-9]){3})(?![1-9])")

Puzzle = namedtuple("Puzzle", "level numbers")


def prompt_after(answer):
    return f"Enter math expression: [ '{answer}' was incorrect ]"


class Game:
    """One run of the program. Everything that reads the screen waits until there is something to read."""

    def __init__(self, desktop, command=None, environment=None):
        self.desktop = desktop
        self._errors = tempfile.TemporaryFile()
        self.process = desktop.start(*(command or [str(PROGRAM)]), environment=environment, stderr=self._errors)
        self.application = None

    def wait_for_start(self):
        self.application = self._wait(lambda: application_of(self.process.pid), "the program on the accessibility bus")

    def is_asking(self):
        """Whether it has joined the accessibility bus and waits for an answer, without waiting for that."""
        self.application = self.application or application_of(self.process.pid)
        return self.application is not None and self.field() is not None

    def wait_until_active(self):
        """For a program that accessibility cannot see: waits until its window gets the keys."""
        self._wait(self.is_active, "an active window")

    def is_active(self):
        window = subprocess.run(["xdotool", "getactivewindow", "getwindowpid"], env=self.desktop.environment,
                                stdin=subprocess.DEVNULL, capture_output=True, text=True)
        return window.stdout.strip() == str(self.process.pid)

    # -- what is on the screen

    def window(self):
        return self.application.find("frame", "window")

    def console(self):
        return self.application.find("terminal")

    def screen(self):
        """The text of the console since it was last cleared."""
        console = self.console()
        return console.text if console else ""

    def field(self):
        """The field of the input panel, once it can be typed into."""
        for field in self.application.find_all(*FIELD_ROLES):
            if "editable" in field.states and "focused" in field.states:
                return field
        return None

    def alert(self):
        return self.application.find(*ALERT_ROLES)

    def button(self, name):
        alert = self.alert()
        return alert.find("push button", "button", name=name) if alert else None

    def puzzle(self):
        """The puzzle on the screen, or None."""
        match = PUZZLE.search(self.screen())
        return match and Puzzle(match["level"], tuple(int(digit) for digit in match["numbers"].split()))

    # -- waiting

    def wait_for_prompt(self, prompt=PROMPT):
        """Waits for an empty field with this prompt and returns it."""

        def asked():
            field = self.field()
            return field if field and field.name == prompt and field.text == "" else None

        return self._wait(asked, f"an empty field named {prompt!r}")

    def wait_until_asked_anew(self, old_field):
        """Waits until the old field has given way to another one."""

        def anew():
            field = self.field()
            return field if field and not field.is_the_same_as(old_field) else None

        return self._wait(anew, "another field")

    def wait_for_loss_of_focus(self):
        self._wait(lambda: not self.field(), "the focus to be elsewhere")

    def wait_for_field_text(self, text):
        shown = text if len(text) < 60 else f"{text[:60]}…"
        self._wait(lambda: (field := self.field()) and field.text == text, f"{shown!r} in the field")

    def wait_for_puzzle(self):
        """Waits until a puzzle is shown and asked for; returns it."""
        self.wait_for_prompt()
        return self._wait(self.puzzle, "a puzzle")

    def wait_for_other_puzzle(self, old):
        """As every puzzle of a cycle is different, a change of the numbers tells that the screen is new."""
        self._wait(lambda: (puzzle := self.puzzle()) and puzzle.numbers != old.numbers, "another puzzle")
        return self.wait_for_puzzle()

    def wait_for_alert(self):
        return self._wait(self.alert, "the alert")

    def wait_for_end_of_alert(self):
        self._wait(lambda: not self.alert(), "the end of the alert")

    def wait_for_focus_on(self, button):
        """Waits until the alert's button with this name has the focus; returns it."""

        def focused():
            node = self.button(button)
            return node if node and "focused" in node.states else None

        return self._wait(focused, f"the focus on {button!r}")

    # -- playing

    def type(self, text):
        """Types into the field and waits until it shows exactly that."""
        self.type_more(text, text)

    def type_more(self, text, result):
        """Types and waits until the field shows the result."""
        self.desktop.type(text)
        self.wait_for_field_text(result)

    def open_menu(self, menu):
        """Opens a menu of the window by mouse and waits for its items."""
        title = self._wait(lambda: self.window().find("menu item", "menu", name=menu), f"the menu {menu!r}")
        self.desktop.click(*title.centre)
        self._wait(lambda: self._open_item(), f"the items of {menu!r}")

    def choose(self, menu, item):
        """Opens a menu of the window by mouse and clicks an item."""
        self.open_menu(menu)
        self.desktop.click(*self._wait(lambda: self._open_item(item), f"the item {item!r}").centre)

    def _open_item(self, name=None):
        """An item of the open menu; the titles in the menu bar are items of the window."""
        for popup in self.application.find_all("popup menu", "menu"):
            item = popup.find("menu item", name=name)
            if item and item.rectangle[2] > 0:
                return item
        return None

    def activate(self):
        """Brings the window to the front as a click on its title bar does."""
        self.desktop.run("xdotool", "windowactivate", "--sync", self.desktop.window_of(self.process.pid))

    def answer(self, text, prompt=PROMPT):
        """Waits to be asked with this prompt, types the answer and presses Return."""
        self.wait_for_prompt(prompt)
        self.type(text)
        self.desktop.press("Return")

    def win(self):
        """Solves the puzzle that is asked for; leaves the alert open. Returns the puzzle."""
        puzzle = self.wait_for_puzzle()
        self.answer(solve(puzzle.numbers))
        self.wait_for_alert()
        return puzzle

    def play_again(self):
        self.wait_for_focus_on("Quit")
        self.desktop.press("Tab")
        self.wait_for_focus_on("Play Again")
        self.desktop.press("space")

    # -- ending

    def wait_for_end(self):
        """Waits for the end of the program; returns its status and what it wrote on standard error."""
        until(lambda: self.process.poll() is not None, "the end of the program")
        return self.process.returncode, self._stderr()

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        self._errors.close()

    def _stderr(self):
        self._errors.seek(0)
        return self._errors.read().decode(errors="replace")

    def _wait(self, condition, what):
        def alive():
            value = condition()
            if not value and self.process.poll() is not None:
                raise AssertionError(f"the program ended with status {self.process.returncode} while waiting for"
                                     f" {what}; standard error: {self._stderr()!r}")
            return value

        return until(alive, what)


def _keeping_evidence(test):
    @functools.wraps(test)
    def wrapped(self):
        try:
            test(self)
        except unittest.SkipTest:
            raise
        except Exception:
            self.keep_evidence()
            raise

    return wrapped


class PlayingTest(unittest.TestCase):
    """A test that plays. When it fails, the screen and the accessible tree are kept for the reader."""

    def __init_subclass__(cls, **options):
        super().__init_subclass__(**options)
        for name, value in list(vars(cls).items()):
            if name.startswith("test") and callable(value):
                setattr(cls, name, _keeping_evidence(value))

    @contextlib.contextmanager
    def subTest(self, *message, **parameters):
        with super().subTest(*message, **parameters):
            try:
                yield
            except AssertionError:
                self.keep_evidence()
                raise

    def setUp(self):
        self.desktop = Desktop.shared()
        self.games = []

    def tearDown(self):
        for game in self.games:
            game.end()

    def start(self, **options):
        game = self.start_blind(**options)
        game.wait_for_start()
        return game

    def start_blind(self, **options):
        """Starts it without waiting until it can be seen."""
        game = Game(self.desktop, **options)
        self.games.append(game)
        return game

    def assert_clean_end(self, game):
        status, errors = game.wait_for_end()
        self.assertEqual((status, errors), (0, ""))

    def keep_evidence(self):
        ARTIFACTS.mkdir(parents=True, exist_ok=True)
        stem = ARTIFACTS / self.id().split(".", 1)[-1]
        try:
            self.desktop.screenshot(f"{stem}.png")
            trees = "\n".join(game.application.tree() for game in self.games if game.application)
            Path(f"{stem}.txt").write_text(f"{traceback.format_exc()}\n{trees}")
            print(f"What to do next: look at {stem}.png (the screen) and {stem}.txt (what the program told about it)")
        except (OSError, subprocess.CalledProcessError) as error:
            print(f"The evidence could not be kept: {error}")
