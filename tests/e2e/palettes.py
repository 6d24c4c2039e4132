"""Palettes of the desktop for a program to start in."""

from pathlib import Path

# The desktop theme built into Qt takes its palette from this file; no desktop is needed for it.
DARK_COLOURS = {
    "Window": ("35,38,41", "239,240,241"),
    "View": ("27,30,32", "239,240,241"),
    "Button": ("49,54,59", "239,240,241"),
    "Selection": ("61,174,233", "239,240,241"),
    "Tooltip": ("49,54,59", "239,240,241"),
}


def dark_environment(desktop, name="dark", colours=DARK_COLOURS):
    folder = Path(desktop.folder, name)
    folder.mkdir(exist_ok=True)
    sections = (f"[Colors:{group}]\nBackgroundNormal={background}\nForegroundNormal={foreground}\n"
                for group, (background, foreground) in colours.items())
    Path(folder, "kdeglobals").write_text("\n".join(sections))
    return {
        "QT_QPA_PLATFORMTHEME": "kde",
        "XDG_CURRENT_DESKTOP": "KDE",
        "KDE_SESSION_VERSION": "5",
        "XDG_CONFIG_HOME": str(folder),
    }
