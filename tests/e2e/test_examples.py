"""The example programs, driven by keys and mouse as a person would."""

import os

from playing import REPOSITORY, PlayingTest

EXAMPLES = os.environ.get("TETRAD_EXAMPLES", str(REPOSITORY / "build" / "examples"))
ANY_KEY = "Any key ends the program:"


class TestExamples(PlayingTest):
    def start(self, name):
        return super().start(command=[f"{EXAMPLES}/{name}"])

    def test_hello_greets_by_kind_of_answer(self):
        for name, typed, key, reply in [
            ("a name that looks like a format", "%d %@", "Return", "Hello, %d %@!"),
            ("nothing", "", "Return", "A short name."),
            ("nothing wanted", "Ada", "Escape", "A secret, then."),
        ]:
            with self.subTest(name):
                hello = self.start("hello")
                hello.wait_for_prompt("What is your name?")
                hello.type(typed)
                self.desktop.press(key)
                hello.wait_for("filler", ANY_KEY, "focused")
                hello.wait_for_line(reply)
                self.desktop.press("space")
                self.assert_clean_end(hello)
        hello = self.start("hello")
        hello.wait_for_prompt("What is your name?")
        hello.choose("Hello", "Quit Hello")
        self.assert_clean_end(hello)

    def test_sketch_draws_and_takes_any_key_after_a_click(self):
        sketch = self.start("sketch")
        sketch.wait_for("filler", ANY_KEY, "focused")
        # The colours of its shapes, from the outline of the first rectangle to the dashed line, which is drawn last.
        shown = sketch.wait(lambda: (now := set(self.desktop.colours(*sketch.console().rectangle))) and (255, 0, 255) in now
                            and now, "the dashed line")
        self.assertLessEqual({(0, 0, 0), (255, 0, 0), (0, 255, 0), (0, 255, 255), (255, 255, 0)}, shown)
        self.desktop.click(*sketch.console().centre)
        self.desktop.press("x")
        self.assert_clean_end(sketch)

    def test_keys_move_the_dot(self):
        keys = self.start("keys")
        keys.wait_for("filler", "W A S D move the dot, Escape ends:", "focused")
        for name, pressed, column, row in [
            ("each direction, and capitals", ["d", "d", "w", "a", "shift+S", "shift+D"], 12, 4),
            ("refused keys", ["x", "1", "Return", "Tab", "Left", "d"], 13, 4),
            ("typed faster than read, to an edge", ["a"] * 15 + ["w"] * 6, 0, 0),
            ("the opposite corner", ["d"] * 25 + ["s"] * 9, 19, 7),
        ]:
            with self.subTest(name):
                self.desktop.press(*pressed)
                keys.wait_for_line(f"column {column}, row {row}")
        self.desktop.press("Escape")
        self.assert_clean_end(keys)

    def test_controls_tell_their_events(self):
        """Each event is one line; which others come in between is the window system's affair."""
        controls = self.start("controls")
        # The table asks for its cells once the window is served, the last one last.
        controls.wait_for("table cell", "cell 1, 1")
        controls.wait_for("frame", "Controls", "active")
        click = lambda role, name: lambda: controls.click(role, name)
        press = lambda *keys: lambda: self.desktop.press(*keys)
        for name, act, *told in [
            ("button, mouse", click("push button", "Press me"), "event 1, tag 11, window 1: value 0, text Press me"),
            ("check box, mouse", click("check box", "Check me"), "event 1, tag 12, window 1: value 1, text Check me"),
            ("check box, key", press("space"), "event 1, tag 12, window 1: value 0, text Check me"),
            ("slider, keys", press("Tab", "Right", "End"), "event 1, tag 13, window 1: value 100, text "),
            ("field", press("Tab", "ctrl+a", "4", "2", "Return"), "event 1, tag 14, window 1: value 42, text 42"),
            ("another page", click("page tab", "Second"),
             *(f"event {event}, tag 15, window 1: bool 0, long 1, .*" for event in (1600, 1601, 1602))),
            ("check box on it", click("check box", "On the second page"),
             "event 1, tag 17, window 1: value 1, text On the second page"),
            ("divider, dragged", lambda: self.drag_the_divider(controls),
             "event 1510, tag 18, window 1: .*", "event 1502, tag 18, window 1: .*"),
            ("cell of the table", click("table cell", "cell 1, 0"),
             *(f"event {event}, tag 21, window 1: bool 0, long 1, .*" for event in (1706, 1707))),
            ("the cell above, key", press("Up"), "event 1707, tag 21, window 1: bool 0, long 0, .*"),
            ("head of a column", click("table column header", "Size"), "event 1708, tag 21, window 1: .*"),
        ]:
            with self.subTest(name):
                act()
                for line in told:
                    controls.wait_for_line(line)
        for role, name in [("slider", "Amount"), ("text", "Number"), ("table", "Cells")]:
            controls.wait_for(role, name)
        self.desktop.press("alt+F4")
        self.assert_clean_end(controls)

    def drag_the_divider(self, controls):
        left, right = (controls.wait_for("push button", name).rectangle for name in ("Left", "Right"))
        x, y = (left[0] + left[2] + right[0]) // 2, left[1] + left[3] // 2
        self.desktop.drag((x, y), (x + 30, y))
        controls.wait(lambda: controls.wait_for("push button", "Left").rectangle[2] == left[2] + 30, "a wider left part")
