"""A listener of the real program who can see its decoders."""

import os
import pathlib
import sqlite3
import time

from stage import wait_for
from story import Story, check

# After a decoder that ended, a song plays again within this many seconds.
BACK_WITHIN = 10  # seconds, on a machine with other work; what it took is told


def say(text):
    print(text, flush=True)


class Listener(Story):
    def __init__(self, scene, songs):
        super().__init__(scene)
        self.songs = songs
        with sqlite3.connect(self.application / "dbMedia.mdb") as store:
            for number, path in enumerate(songs, 1):
                artist, _, title = path.stem.partition(" - ")
                store.execute("insert into tblSong values(?, ?, ?, ?, 0)",
                              (number, artist, title, "C:" + str(path).replace("/", "\\")))
        store.close()
        with sqlite3.connect(self.application / "dbLogin.mdb") as store:
            store.execute("insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')")
        store.close()

    def launch(self):
        self.program = self.stage.launch(self.application)
        wait_for("the tracks in their list", lambda: len(self.eyes.rows("Tracks")) == len(self.songs), 60)
        wait_for("the splash to go", lambda: "Brindlepost" not in self.stage.stacking(), 30)
        wait_for("both decoders", lambda: len(self.decoders()) == 2)

    def double_click(self, row):
        x, y, _, height = self.eyes.row_rect("Tracks", row)
        self.stage.click(x + 60, y + height // 2, times=2)

    def playerctl(self, *words):
        return self.stage.run("playerctl", "-p", "brindlepost", *words).strip()

    def title(self):
        return self.playerctl("metadata", "xesam:title")

    def position(self):
        return float(self.playerctl("position") or -1)

    def decoders(self):
        """The numbers of the program's decoders, by channel."""
        found = {}
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                words = (folder / "cmdline").read_bytes().split(b"\0")
                if words[0].endswith(b"brindlepost-media") and words[2].decode() == str(self.program.pid):
                    found[words[1].decode()] = int(folder.name)
            except (OSError, IndexError):
                continue
        return found

    def song_of(self, decoder):
        """The file that a decoder has open; none for one that has nothing to play."""
        try:
            for line in pathlib.Path(f"/proc/{decoder}/fd").iterdir():
                name = os.readlink(line)
                if name.startswith(str(self.music)):
                    return pathlib.Path(name)
        except OSError:
            pass
        return None

    def playing_decoders(self):
        return {channel: number for channel, number in self.decoders().items() if self.song_of(number)}

    def is_going_on(self):
        """A song plays, and gets on."""
        if self.playerctl("status") != "Playing":
            return False
        before, title = self.position(), self.title()
        time.sleep(0.1)
        return self.title() == title and self.position() > before >= 0

    def stay_alive(self, what):
        check(self.program.poll() is None, f"{what}: the program ended with {self.program.returncode}")
