"""The program with films to show: a profile and a library made beforehand, and eyes for what stands where on the screen.

Every film shows four fields of pure colour, so that a place on the screen tells which part of the picture it shows.
"""

import re
import subprocess

from stage import Eyes, StageError, wait_for

RED, GREEN, BLUE, YELLOW = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0)
CYAN, MAGENTA, WHITE, BLACK = (0, 255, 255), (255, 0, 255), (255, 255, 255), (0, 0, 0)
# Top left, top right, bottom left, bottom right.
FIRST_FIELDS = (RED, GREEN, BLUE, YELLOW)
SECOND_FIELDS = (CYAN, MAGENTA, WHITE, RED)
# Left, top, right and bottom of what an attached picture may not paint over: its caption strip.
CAPTION_HEIGHT = 20


def hexadecimal(colour):
    return "0x%02x%02x%02x" % colour


def make_film(path, size, seconds, fields=FIRST_FIELDS, tone=440, rate=25, codec=()):
    """A film of four fields; with a `tone` of 0 it has no sound."""
    path.parent.mkdir(parents=True, exist_ok=True)
    half = f"{size[0] // 2}x{size[1] // 2}"
    command = ["ffmpeg", "-y", "-loglevel", "error"]
    for colour in fields:
        command += ["-f", "lavfi", "-i", f"color={hexadecimal(colour)}:size={half}:rate={rate}:duration={seconds}"]
    graph = "[0][1]hstack[t];[2][3]hstack[b];[t][b]vstack[v]"
    if tone:
        command += ["-f", "lavfi", "-i", f"sine=frequency={tone}:duration={seconds}"]
    command += ["-filter_complex", graph, "-map", "[v]", "-pix_fmt", "yuv420p"] + (["-map", "4:a"] if tone else [])
    command += list(codec) or {".mpg": ["-c:v", "mpeg1video", "-b:v", "2000k", "-c:a", "mp2", "-f", "mpeg"],
                               ".avi": ["-c:v", "mpeg4", "-b:v", "2000k", "-c:a", "mp3"],
                               ".mp4": ["-c:v", "libx264", "-preset", "ultrafast", "-c:a", "aac"]}[path.suffix]
    subprocess.run(command + [str(path)], check=True, stdin=subprocess.DEVNULL)
    return path


def near(pixel, colour, tolerance=60):
    return all(abs(a - b) <= tolerance for a, b in zip(pixel, colour))


class Screening:
    """One stage with the program logged in, its lists full and the splash gone."""

    def __init__(self, stage, songs):
        """`songs` are (title, path) pairs of one artist, in the order of the rows."""
        self.stage = stage
        self.application = stage.make_application()
        self._sql("dbLogin", "insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')")
        for key, (title, path) in enumerate(songs, 1):
            dos = "C:" + str(path).replace("/", "\\")
            self._sql("dbMedia", f"insert into tblSong values({key},'Film','{title}','{dos}',0)")
        self.eyes = Eyes()
        self.songs = songs
        self.program = None
        self.start()

    def start(self, *arguments):
        """Starts the program with these arguments and waits for its lists."""
        self.program = self.stage.launch(self.application, *arguments)
        wait_for("the tracks in their list", lambda: len(self._rows()) == len(self.songs), 30)
        wait_for("the splash to go", lambda: not self.stage.has_window("Brindlepost$"), 30)

    def _rows(self):
        return self.eyes.rows("Tracks") if self.eyes.shows("Tracks", "list") else []

    def _sql(self, store, text):
        subprocess.run(["sqlite3", str(self.application / (store + ".mdb")), text], check=True)

    def rows_of(self, store, query):
        """What a store holds, a line a row."""
        return self.stage.run("sqlite3", str(self.application / (store + ".mdb")), query).splitlines()

    # -- what a person does --

    def play(self, title):
        rows = self.eyes.rows("Tracks")
        row = next(index for index, text in enumerate(rows) if title in text)
        x, y, _, height = self.eyes.row_rect("Tracks", row)
        self.stage.click(x + 60, y + height // 2, times=2)

    def press(self, name):
        self.stage.click(*self.eyes.centre(name))

    def menu(self, *captions):
        """Opens a menu of the menu bar and picks an entry, level by level."""
        for depth, caption in enumerate(captions):
            self.stage.click(*self.eyes.centre(caption, "menu item"))
            if depth + 1 < len(captions):
                following = captions[depth + 1]
                wait_for(f"the entries below '{caption}'", lambda f=following: self.eyes.shows(f, "menu item"))

    # -- what a person sees --

    def main_window(self):
        return self.stage.window("Brindlepost - ")

    def video_window(self, title="Film - "):
        return self.stage.window(re.escape(title))

    def video_rect(self, title="Film - "):
        return self.stage.window_rect(self.video_window(title))

    def control_rect(self, name):
        return self.eyes.rect(self.eyes.find(name))
