"""Takes pictures of the running examples; run by tools/screenshots. One argument: the folder to put them in."""

import contextlib
import sys

from desktop import Desktop
from examples import Example
from screenshots import Camera


@contextlib.contextmanager
def running(desktop, name):
    example = Example(desktop, name)
    try:
        example.wait_for_start()
        yield example
    finally:
        example.end()


def take(camera, example):
    camera.take(example, f"example-{example.title.lower()}", example.title)


def main(folder):
    desktop = Desktop.shared()
    camera = Camera(desktop, folder)
    with running(desktop, "hello") as hello:
        hello.answer("Ada", "What is your name?")
        hello.wait_for_line("Hello, Ada!")
        take(camera, hello)
    with running(desktop, "sketch") as sketch:
        sketch.wait_for_key_prompt("Any key ends the program:")
        take(camera, sketch)
    with running(desktop, "keys") as keys:
        keys.wait_for_key_prompt("W A S D move the dot, Escape ends:")
        desktop.press("d", "d", "d", "w")
        keys.wait_for_line("column 13, row 3")
        take(camera, keys)
    with running(desktop, "controls") as controls:
        controls.wait_for("table cell", "cell 1, 1")
        for role, name in [("push button", "Press me"), ("check box", "Check me"), ("table cell", "cell 1, 0")]:
            desktop.click(*controls.wait_for(role, name).centre)
        controls.wait_for_line(r"event 1707, tag 21, window 1: .*")
        take(camera, controls)


if __name__ == "__main__":
    main(sys.argv[1])
