"""Takes pictures of the running examples; run by tools/screenshots. One argument: the folder to put them in."""

import contextlib
import os
import sys
from pathlib import Path

from desktop import Desktop
from game import REPOSITORY, Game
from screenshots import Camera

EXAMPLES = os.environ.get("TETRAD_EXAMPLES", str(REPOSITORY / "build" / "examples"))


@contextlib.contextmanager
def running(desktop, name):
    example = Game(desktop, command=[f"{EXAMPLES}/{name}"])
    try:
        example.wait_for_start()
        yield example
    finally:
        example.end()


def main(folder):
    desktop = Desktop.shared()
    camera = Camera(desktop, folder)
    with running(desktop, "hello") as hello:
        hello.answer("Ada", "What is your name?")
        hello.wait_for_line("Hello, Ada!")
        camera.take(hello, "example-hello", "Hello")
    with running(desktop, "sketch") as sketch:
        sketch.wait_for("filler", "Any key ends the program:", "focused")
        camera.take(sketch, "example-sketch", "Sketch")
    with running(desktop, "keys") as keys:
        keys.wait_for("filler", "W A S D move the dot, Escape ends:", "focused")
        desktop.press("d", "d", "d", "w")
        keys.wait_for_line("column 13, row 3")
        camera.take(keys, "example-keys", "Keys")
    with running(desktop, "controls") as controls:
        controls.wait_for("table cell", "cell 1, 1")
        for role, name in [("push button", "Press me"), ("check box", "Check me"), ("table cell", "cell 1, 0")]:
            controls.click(role, name)
        controls.wait_for_line(r"event 1707, tag 21, window 1: .*")
        camera.take(controls, "example-controls", "Controls")
    book = Path(desktop.folder, "people.book")
    book.write_text("Ada Lovelace\t020 7946 0001\tWork\nGrace Hopper\t020 7946 0002\tWork\nMy Aunt\t020 7946 0003\tFriend\n")
    settings = Path(desktop.folder, ".config", "Form", "Form.conf")
    settings.parent.mkdir(parents=True)
    settings.write_text(f"[General]\nbook={book}\nrow=1\n")
    with running(desktop, "form") as form:
        form.wait_for("table cell", "Grace Hopper", "selected")
        camera.take(form, "example-form", "Address book")


if __name__ == "__main__":
    main(sys.argv[1])
