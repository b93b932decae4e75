"""A picture of every window: `screens.py BUILD_FOLDER PICTURE_FOLDER [SCREEN...]`. By hand; the pictures are looked at.

A screen is a name of `SCREENS` below; without one, all are gone through. What is checked is that every window comes and lies
on the screen as a whole; that nothing in it is cut off, blurred or out of its place is for the eye.
"""

import pathlib
import re
import subprocess
import sys
import time

import stage as stages
from house import Walk
from stage import Stage

# Name: size of the screen, environment.
SCREENS = {
    "1": ((1280, 860), {}),
    "1.25": ((1600, 1075), {"QT_SCALE_FACTOR": "1.25"}),
    "1.5": ((1920, 1290), {"QT_SCALE_FACTOR": "1.5"}),
    "2": ((2560, 1720), {"QT_SCALE_FACTOR": "2"}),
    "3": ((3840, 2580), {"QT_SCALE_FACTOR": "3"}),
    "small": ((1024, 600), {}),
    "letters120": ((1280, 860), {"QT_FONT_DPI": "120"}),
    "letters144": ((1280, 860), {"QT_FONT_DPI": "144"}),
    "contrast": ((1280, 860), {"GTK_THEME": "HighContrast"}),
}
SETTLE = 0.6


class Pictures:
    def __init__(self, stage, folder, screen):
        self.stage = stage
        self.folder = pathlib.Path(folder) / screen
        self.size, self.environment = SCREENS[screen]
        self.folder.mkdir(parents=True, exist_ok=True)
        self.count = 0
        self.troubles = []

    def take(self, name, title):
        time.sleep(SETTLE)
        self.count += 1
        self.stage.screenshot(self.folder / f"{self.count:02d}-{name}.png")
        if title is None:
            return
        x, y, width, height = self.place(self.stage.window(title))
        if x < 0 or y < 0 or x + width > self.size[0] or y + height > self.size[1]:
            self.troubles.append(f"{name} is not whole: {width} x {height} at {x}, {y}")

    def place(self, window):
        """Without the frame, which the window manager keeps on the screen as far as the window is."""
        told = self.stage.run("xwininfo", "-id", window)
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        return [int(re.search(name + r":\s*(-?\d+)", told).group(1)) for name in names]


def go_through(build, folder, screen):
    with Stage(build, size=SCREENS[screen][0]) as stage:
        pictures = Pictures(stage, folder, screen)
        walk = Walk(stage, "house", pictures.take, pictures.environment)
        walk.go(Walk.ALL)
        walk.close()
        troubles = walk.troubles + pictures.troubles
        print(f"{screen}: {pictures.count} pictures", *troubles, sep="\n   ", flush=True)
    stage.remove()
    return 1 if troubles else 0


def main():
    screens = sys.argv[3:] or list(SCREENS)
    if len(screens) == 1:
        return go_through(stages.become_unprivileged(sys.argv[1]), sys.argv[2], screens[0])
    # What speaks for a screen reader stays with the first bus that it met: each screen has a process of its own.
    return max(subprocess.run([sys.executable, *sys.argv[:3], screen], check=False).returncode for screen in screens)


if __name__ == "__main__":
    sys.exit(main())
