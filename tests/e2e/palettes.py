"""Palettes of the desktop for a program to start in."""

from pathlib import Path

# Background and foreground of each group.
DARK = {
    "Window": ("35,38,41", "239,240,241"),
    "View": ("27,30,32", "239,240,241"),
    "Button": ("49,54,59", "239,240,241"),
    "Selection": ("61,174,233", "239,240,241"),
    "Tooltip": ("49,54,59", "239,240,241"),
}
HIGH_CONTRAST = {**dict.fromkeys(DARK, ("0,0,0", "255,255,255")), "Selection": ("255,255,0", "0,0,0")}


def environment_with(palette, desktop):
    """The desktop theme built into Qt takes its palette from a file; no desktop is needed for it."""
    sections = (f"[Colors:{group}]\nBackgroundNormal={background}\nForegroundNormal={foreground}\n"
                for group, (background, foreground) in palette.items())
    Path(desktop.folder, "kdeglobals").write_text("\n".join(sections))
    return {
        "QT_QPA_PLATFORMTHEME": "kde",
        "XDG_CURRENT_DESKTOP": "KDE",
        "KDE_SESSION_VERSION": "5",
        "XDG_CONFIG_HOME": desktop.folder,
    }
