"""The example programs, driven by keys and mouse as a person would."""

import itertools

from examples import Example
from playing import PlayingTest

ANY_KEY = "Any key ends the program:"
BLACK, WHITE, RED, GREEN = (0, 0, 0), (255, 255, 255), (255, 0, 0), (0, 255, 0)
CYAN, MAGENTA, YELLOW = (0, 255, 255), (255, 0, 255), (255, 255, 0)


class ExampleTest(PlayingTest):
    def start(self, name):
        example = self.keep(Example(self.desktop, name))
        example.wait_for_start()
        return example


class TestHello(ExampleTest):
    def test_each_kind_of_answer(self):
        for name, typed, key, reply in [
            ("a name that looks like a format", "%d %@", "Return", "Hello, %d %@!"),
            ("nothing", "", "Return", "A short name."),
            ("nothing wanted", "Ada", "Escape", "A secret, then."),
        ]:
            with self.subTest(name):
                hello = self.start("hello")
                hello.wait_for_line("Good day.")
                hello.wait_for_prompt("What is your name?")
                hello.type(typed)
                self.desktop.press(key)
                hello.wait_for_key_prompt(ANY_KEY)
                hello.wait_for_line(reply)
                self.desktop.press("space")
                self.assert_clean_end(hello)

    def test_the_quit_item_by_mouse_instead_of_an_answer(self):
        hello = self.start("hello")
        hello.wait_for_prompt("What is your name?")
        hello.choose("Hello", "Quit Hello")
        self.assert_clean_end(hello)


class TestSketch(ExampleTest):
    def test_what_is_drawn_and_read_aloud(self):
        sketch = self.start("sketch")
        sketch.wait_for_key_prompt(ANY_KEY)
        # Drawn last, so everything is on the screen.
        sketch.wait_for_pixel(20, 230, MAGENTA)
        picture = sketch.picture()
        for name, place, colour in [
            ("outline of the rectangle without fill", (70, 120), BLACK),
            ("its inside", (20, 130), WHITE),
            ("outline of the filled one", (70, 140), RED),
            ("its inside", (70, 160), GREEN),
            ("middle of the oval", (210, 160), CYAN),
            ("corner of the oval's bounds", (154, 124), WHITE),
            ("middle of the line from where it ended", (420, 160), BLACK),
            ("before that line", (380, 150), WHITE),
            ("behind large text", (12, 71), YELLOW),
        ]:
            self.assertEqual(picture.at(*place), colour, name)
        row = picture.part((0, 230, picture.width, 1))[0]
        dashes = [colour for colour, _ in itertools.groupby(row) if colour == MAGENTA]
        self.assertEqual(len(dashes), 21, "460 pixels, one dash and gap every 22")
        sketch.wait_for_line("one two three")
        self.desktop.click(*sketch.console().centre)
        self.desktop.press("x")
        self.assert_clean_end(sketch)


class TestKeys(ExampleTest):
    def test_keys_move_the_dot(self):
        keys = self.start("keys")
        keys.wait_for_key_prompt("W A S D move the dot, Escape ends:")
        keys.wait_for_line("column 10, row 4")
        for name, pressed, column, row in [
            ("each direction", ["d", "d", "w", "a"], 11, 3),
            ("capitals", ["shift+S", "shift+D"], 12, 4),
            ("refused keys", ["x", "1", "Return", "Tab", "Left", "d"], 13, 4),
            ("typed faster than read, to an edge", ["a"] * 15 + ["w"] * 6, 0, 0),
            ("the opposite corner", ["d"] * 25 + ["s"] * 9, 19, 7),
        ]:
            with self.subTest(name):
                self.desktop.press(*pressed)
                keys.wait_for_line(f"column {column}, row {row}")
                keys.wait_for_pixel(20 + 20 * column, 40 + 20 * row, RED)
        self.desktop.press("Escape")
        self.assert_clean_end(keys)


class TestControls(ExampleTest):
    """Each event that the example prints is one line; which others come in between is the window system's affair."""

    def test_each_control_tells_its_events(self):
        self.controls = self.start("controls")
        # The table asks for its cells once the window is served, the last one last.
        self.controls.wait_for("table cell", "cell 1, 1")
        self.controls.wait_for("frame", "Controls", "active")
        for name, act, *told in [
            ("button, mouse", lambda: self.click("push button", "Press me"),
             "event 1, tag 11, window 1: value 0, text Press me"),
            ("check box, mouse", lambda: self.click("check box", "Check me"),
             "event 1, tag 12, window 1: value 1, text Check me"),
            ("check box, key", lambda: self.desktop.press("space"),
             "event 1, tag 12, window 1: value 0, text Check me"),
            ("slider, keys", lambda: self.desktop.press("Tab", "Right", "End"),
             "event 1, tag 13, window 1: value 100, text "),
            ("field", lambda: self.desktop.press("Tab", "ctrl+a", "4", "2", "Return"),
             "event 1, tag 14, window 1: value 42, text 42"),
            ("button in a page", lambda: self.click("push button", "On the first page"),
             "event 1, tag 16, window 1: value 0, text On the first page"),
            ("another page", lambda: self.click("page tab", "Second"),
             *(f"event {event}, tag 15, window 1: bool 0, long 1, .*" for event in (1600, 1601, 1602))),
            ("check box on it", lambda: self.click("check box", "On the second page"),
             "event 1, tag 17, window 1: value 1, text On the second page"),
            ("divider, dragged", self.drag_the_divider,
             "event 1510, tag 18, window 1: .*", "event 1502, tag 18, window 1: .*"),
            ("cell of the table", lambda: self.click("table cell", "cell 1, 0"),
             *(f"event {event}, tag 21, window 1: bool 0, long 1, .*" for event in (1706, 1707))),
            ("the cell above, key", lambda: self.desktop.press("Up"),
             "event 1707, tag 21, window 1: bool 0, long 0, .*"),
            ("head of a column", lambda: self.click("table column header", "Size"),
             "event 1708, tag 21, window 1: .*"),
        ]:
            with self.subTest(name):
                act()
                for line in told:
                    self.controls.wait_for_line(line)
        for role, name in [("slider", "Amount"), ("text", "Number"), ("table", "Cells")]:
            self.controls.wait_for(role, name)
        self.desktop.press("alt+F4")
        self.assert_clean_end(self.controls)

    def click(self, role, name):
        self.desktop.click(*self.controls.wait_for(role, name).centre)

    def drag_the_divider(self):
        left, right = (self.controls.wait_for("push button", name).rectangle for name in ("Left", "Right"))
        x, y = (left[0] + left[2] + right[0]) // 2, left[1] + left[3] // 2
        self.controls.drag((x, y), (x + 30, y))
        self.controls.wait(lambda: self.controls.wait_for("push button", "Left").rectangle[2] == left[2] + 30,
                           "the left part to be wider")
