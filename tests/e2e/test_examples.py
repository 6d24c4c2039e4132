"""The example programs, driven by keys and mouse as a person would."""

import os
import re

from game import REPOSITORY
from playing import PlayingTest

EXAMPLES = os.environ.get("TETRAD_EXAMPLES", str(REPOSITORY / "build" / "examples"))

NAME = ("wait_for_prompt", "What is your name?")
BOOK = ("wait_for", "frame", "Address book", "active")
ANY_KEY = ("wait_for", "filler", "Any key ends the program:", "focused")

# What a scene shows, the program, and what happens to it before it ends.
SCENES = [
    ("a name that looks like a format", "hello", [
        NAME, ("type", "%d %@"), ("press", "Return"), ANY_KEY, ("wait_for_line", "Hello, %d %@!"), ("press", "space")]),
    ("the quit item by mouse", "hello", [NAME, ("choose", "Hello", "Quit Hello")]),
    ("any key after a click", "sketch", [ANY_KEY, ("click", "text"), ("press", "x")]),
    ("keys move the dot", "keys", [
        ("wait_for", "filler", "W A S D move the dot, Escape ends:", "focused"),
        ("press", "d", "d", "w", "a", "shift+S", "shift+D"), ("wait_for_line", "column 12, row 4"),
        # Refused keys.
        ("press", "x", "1", "Return", "Tab", "Left", "d"), ("wait_for_line", "column 13, row 4"),
        # Typed faster than read, to an edge and the opposite corner.
        ("press", *"aaaaaaaaaaaaaaawwwwww"), ("wait_for_line", "column 0, row 0"),
        ("press", *"dddddddddddddddddddddddddsssssssss"), ("wait_for_line", "column 19, row 7"), ("press", "Escape")]),
    # Each event is one line; which others come in between is the window system's affair.
    ("each control tells its events", "controls", [
        # The table asks for its cells once the window is served, the last one last.
        ("wait_for", "table cell", "cell 1, 1"), ("wait_for", "frame", "Controls", "active"),
        *[("wait_for", role, name) for role, name in [("slider", "Amount"), ("text", "Number"), ("table", "Cells")]],
        ("click", "push button", "Press me"), ("wait_for_line", "event 1, tag 11, window 1: value 0, text Press me"),
        ("click", "check box", "Check me"), ("wait_for_line", "event 1, tag 12, window 1: value 1, text Check me"),
        ("press", "Tab", "Right", "End"), ("wait_for_line", "event 1, tag 13, window 1: value 100, text "),
        ("press", "Tab", "ctrl+a", "4", "2", "Return"), ("wait_for_line", "event 1, tag 14, window 1: value 42, text 42"),
        ("click", "page tab", "Second"),
        *[("wait_for_line", f"event {event}, tag 15, window 1: bool 0, long 1, .*") for event in (1600, 1601, 1602)],
        ("click", "table cell", "cell 1, 0"),
        *[("wait_for_line", f"event {event}, tag 21, window 1: bool 0, long 1, .*") for event in (1706, 1707)],
        ("click", "table column header", "Size"), ("wait_for_line", "event 1708, tag 21, window 1: .*"),
        ("press", "alt+F4")]),
    ("a form keeps an address book", "form", [
        BOOK, ("click", "text", "Name"), ("press", "ctrl+a", *"Ada", "Tab", "3"), ("click", "radio button", "Work"),
        ("click", "push button", "Add"), ("wait_for", "table cell", "Ada", "selected"),
        ("press", "ctrl+s"), ("wait_for", "dialog", "Save the address book", "active"),
        ("press", "asciitilde", "slash", *"people", "Return"), BOOK, ("press", "alt+F4")]),
    ("which the next start shows, changes and opens again", "form", [
        BOOK, ("wait_for", "table cell", "Ada", "selected"), ("wait_for", "radio button", "Work", "checked"),
        ("click", "radio button", "Friend"), ("click", "push button", "Change"), ("click", "push button", "Remove"),
        ("press", "ctrl+o"), ("wait_for", "dialog", "Open an address book", "active"),
        ("press", "asciitilde", "slash", *"people", "period", *"book", "Return"), BOOK, ("click", "table cell", "Ada"),
        ("wait_for", "radio button", "Work", "checked"), ("press", "alt+F4")]),
]


class TestExamples(PlayingTest):
    def test_scenes(self):
        for shows, program, steps in SCENES:
            with self.subTest(shows):
                example = self.start(command=[f"{EXAMPLES}/{program}"])
                self.carry_out(steps, example)
                status, errors = example.wait_for_end()
                # Qt reports each cell that the client asks for and that has just gone.
                self.assertEqual((status, re.sub("QAccessibleTable::child: Invalid index.*\n", "", errors)), (0, ""))
