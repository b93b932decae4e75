"""A video on desktops that are scaled: `test_scaled.py BUILD_FOLDER`. Its picture fills the window that it is put into."""

import re
import subprocess
import sys
import time

import stage as stages
from screening import FIRST_FIELDS, make_film, near
from stage import Stage, wait_for

FILM = (320, 240)


class Scaled:
    """One start at a scale; nothing is looked up by controls, whose places are in the toolkit's pixels."""

    def __init__(self, stage, scale):
        self.stage = stage
        self.scale = scale
        self.film = make_film(stage.folder / "Music" / "Film - Old.mpg", FILM, 60, FIRST_FIELDS, 440)

    def play(self):
        stage = self.stage
        application = stage.make_application(f"app-{self.scale}")
        subprocess.run(["sqlite3", str(application / "dbLogin.mdb"),
                        "insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')"], check=True)
        self.program = stage.launch(application, str(self.film),
                                    environment={"QT_SCALE_FACTOR": str(self.scale)})
        self.window = stage.window(re.escape("Film - Old"), 40)
        wait_for("the splash to go", lambda: not stage.has_window("Brindlepost$"), 30)
        time.sleep(1)

    def corners(self):
        """The colours near the four corners of the picture that is due in the window, proportions kept."""
        x, y, width, height = self.stage.window_rect(self.window)
        share = min(width / FILM[0], height / FILM[1])
        wide, high = FILM[0] * share, FILM[1] * share
        left, top = x + (width - wide) / 2, y + (height - high) / 2
        inset, caption = 6, int(20 * self.scale) + 6
        places = [(left + inset, max(top + inset, y + caption)), (left + wide - inset, max(top + inset, y + caption)),
                  (left + inset, top + high - inset), (left + wide - inset, top + high - inset)]
        return [self.stage.pixels((int(px), int(py), 1, 1), (1, 1))[0] for px, py in places]

    def fills_its_window(self):
        self.play()
        seen = []

        def all_four():
            seen[:] = self.corners()
            return all(near(found, colour) for found, colour in zip(seen, FIRST_FIELDS))

        try:
            wait_for(f"the four fields at a scale of {self.scale}", all_four, 15)
        finally:
            print(f"   at {self.scale}: {self.stage.window_rect(self.window)} {seen}", flush=True)
        self.program.terminate()
        self.program.wait(10)


def main():
    build = stages.become_unprivileged(sys.argv[1])
    with Stage(build, size=(2560, 1720)) as stage:
        is_done = stage.run_steps([Scaled(stage, scale).fills_its_window for scale in (2, 1.5)])
    if is_done:
        stage.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
