"""Takes pictures of the running program; run by tools/screenshots. One argument: the folder to put them in."""

import contextlib
import os
import subprocess
import sys
from pathlib import Path

from desktop import Desktop, until
from game import Game, prompt_after
from solver import solve

LEVEL_PICTURES = {"⚪ Easy": "easy", "🔴 🔴 Medium": "medium", "🟡 🟡 🟡 Hard": "hard"}

# Background and foreground of each group.
DARK = {
    "Window": ("35,38,41", "239,240,241"),
    "View": ("27,30,32", "239,240,241"),
    "Button": ("49,54,59", "239,240,241"),
    "Selection": ("61,174,233", "239,240,241"),
    "Tooltip": ("49,54,59", "239,240,241"),
}


def dark_theme(desktop):
    """The desktop theme built into Qt takes its palette from a file; no desktop is needed for it."""
    sections = (f"[Colors:{group}]\nBackgroundNormal={background}\nForegroundNormal={foreground}\n"
                for group, (background, foreground) in DARK.items())
    desktop.write("kdeglobals", "\n".join(sections))
    return {"QT_QPA_PLATFORMTHEME": "kde", "XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5",
            "XDG_CONFIG_HOME": desktop.folder}


class Camera:
    def __init__(self, desktop, folder):
        self._desktop = desktop
        self._folder = Path(folder)
        self._folder.mkdir(parents=True, exist_ok=True)

    def take(self, game, name, title="Tetrad Game"):
        """The part of the screen that the window with this title and its frame cover, once it has stopped changing."""
        last = b""

        def settled():
            nonlocal last
            picture = self._grab(game, title)
            same, last = picture == last, picture
            return same

        until(settled, "a picture that stays the same")
        path = self._folder / f"{name}.png"
        subprocess.run(["convert", "ppm:-", "-strip", str(path)], input=last, check=True)
        print(path)

    def _grab(self, game, title):
        window = self._desktop.window_of(game.process.pid, title)
        x, y, width, height = self._desktop.framed_rectangle(window)
        return self._desktop.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "ppm:-",
                                 binary=True)


@contextlib.contextmanager
def game_on(desktop, **environment):
    game = Game(desktop, environment=environment)
    try:
        game.wait_for_start()
        yield game
    finally:
        game.end()


def skip_to(game, wanted):
    """Skips until a puzzle satisfies wanted(puzzle); returns it."""
    puzzle = game.wait_for_puzzle()
    while not wanted(puzzle):
        game.answer("s")
        puzzle = game.wait_for_puzzle(other_than=puzzle)
    return puzzle


def take_a_game(camera, desktop):
    with game_on(desktop) as game:
        game.wait_for_puzzle()
        camera.take(game, "first-screen")
        for level, picture in LEVEL_PICTURES.items():
            skip_to(game, lambda puzzle: puzzle.level == level)
            camera.take(game, picture)

        puzzle = skip_to(game, lambda puzzle: puzzle.level == "🔴 🔴 Medium")
        game.type(solve(puzzle.numbers))
        camera.take(game, "puzzle")
        desktop.press("ctrl+a", "BackSpace")

        game.answer("1+2+3+4+5")
        game.wait_for_prompt(prompt_after("1+2+3+4+5"))
        camera.take(game, "error-line")

        wrong = solve(puzzle.numbers, 1) or solve(puzzle.numbers, 2)
        game.answer(wrong, prompt_after("1+2+3+4+5"))
        game.wait_for_prompt(prompt_after(wrong))
        camera.take(game, "wrong-answer")

        game.answer(solve(puzzle.numbers), prompt_after(wrong))
        game.wait_for("push button", "Quit", "focused")
        camera.take(game, "won")


def take_a_variant(camera, desktop, name, **environment):
    """The screens that a palette or a scale changes: a typed answer, the error line, the alert."""
    with game_on(desktop, **environment) as game:
        puzzle = game.wait_for_puzzle()
        game.answer("1+2+3+4+5")
        game.wait_for_prompt(prompt_after("1+2+3+4+5"))
        game.type(solve(puzzle.numbers))
        camera.take(game, name)
        desktop.press("Return")
        game.wait_for("push button", "Quit", "focused")
        camera.take(game, f"{name}-won")


def main(folder):
    os.environ["TETRAD_E2E_SCREEN"] = "1600x900x24"
    desktop = Desktop.shared()
    camera = Camera(desktop, folder)
    take_a_game(camera, desktop)
    take_a_variant(camera, desktop, "scale-2", QT_SCALE_FACTOR="2")
    take_a_variant(camera, desktop, "dark", **dark_theme(desktop))


if __name__ == "__main__":
    main(sys.argv[1])
