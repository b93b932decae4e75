"""A song goes on without a gap whatever else the program does: `test_deck.py BUILD_FOLDER`.

A tone plays; meanwhile a page is loaded, its process is killed, a box stands open, a library of 100,000 songs is rebuilt
and the window is moved. The recording of each may hold no 5 ms of silence, unless a plain player beside the program
was silent for half as long or longer: then the machine was too busy for both.
"""

import os
import pathlib
import signal
import sqlite3
import sys
import time

import stage
from stage import Recorder, Stage, make_tone, wait_for
from story import Story, check

SONGS = 100_000
TONE = 440
GAP = stage.SAMPLE_RATE * 5 // 1000  # samples
AUDIBLE = 0.02 * 32768


def longest_silence(samples):
    """Seconds of the longest stretch without an audible sample."""
    longest = since = 0
    for index, sample in enumerate(samples):
        if abs(sample) > AUDIBLE:
            longest = max(longest, index - since)
            since = index
    return max(longest, len(samples) - since) / stage.SAMPLE_RATE


def renderers():
    """The processes of this account that draw pages."""
    found = []
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            words = (folder / "cmdline").read_bytes()
            if folder.stat().st_uid == os.getuid() and b"--type=renderer" in words:
                found.append(int(folder.name))
        except OSError:
            continue
    return found


class Listener(Story):
    def __init__(self, scene):
        super().__init__(scene)
        song = make_tone(self.music / "Ada - Long Tone.mp3", TONE, 240)
        first = "C:" + str(song).replace("/", "\\")
        with sqlite3.connect(self.application / "dbMedia.mdb") as store:
            store.execute("insert into tblSong values(1, 'Ada', 'Long Tone', ?, 0)", (first,))
            store.executemany("insert into tblSong values(?, ?, ?, ?, 0)",
                              ((key, f"Artist {key % 9000}", f"Song {key}", f"C:\\Nowhere\\{key}.mp3")
                               for key in range(2, SONGS + 1)))
        store.close()
        with sqlite3.connect(self.application / "dbLogin.mdb") as store:
            store.execute("insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')")
        store.close()

    def start_plain_player(self):
        """The same tone from the sound server's own player, on a device of its own; returns its recording."""
        self.stage.run("pactl", "load-module", "module-null-sink", "sink_name=plain", f"rate={stage.SAMPLE_RATE}")
        tone = make_tone(self.stage.folder / "plain.wav", TONE, 240)
        self.stage.spawn(["paplay", "--device=plain", "--latency-msec=55", str(tone)])
        plain = Recorder(self.stage, self.stage.folder / "plain.raw", "plain.monitor")
        wait_for("the plain player", lambda: plain.hears(TONE))
        return plain

    def start(self):
        self.plain = self.start_plain_player()
        self.program = self.stage.launch(self.application)
        self.main_window("Brindlepost - Music Player", 30)
        wait_for("the splash to go", lambda: not self.stage.has_window("Brindlepost$"), 30)
        x, y, _, height = self.eyes.row_rect("Tracks", 0)
        self.stage.click(x + 60, y + height // 2, times=2)
        self.hear("the song", TONE)
        self.record(1)

    def goes_on_while(self, what, action):
        begin, moment = self.recorder.seconds(), time.monotonic()
        action()
        self.record(0.5)
        taken = self.recorder.seconds() - begin
        silence = max(longest_silence(side) for side in self.recorder.last(taken))
        plain = max(longest_silence(side) for side in self.plain.last(taken))
        told = f"{silence * 1000:.1f} ms, of the plain player {plain * 1000:.1f} ms"
        check(taken > 0.9 * (time.monotonic() - moment), f"{what}: only {taken:.1f} s were recorded")
        check(silence < GAP / stage.SAMPLE_RATE or silence <= 2 * plain, f"{what}: silence of {told}")
        print(f"ok {what} ({taken:.1f} s recorded, longest quiet {told})", flush=True)

    def kill_page(self):
        pids = renderers()
        check(pids, "no process draws the page")
        for pid in pids:
            os.kill(pid, signal.SIGKILL)
        wait_for("the processes to go", lambda: not set(pids) & set(renderers()))
        self.record(1)

    def open_box(self):
        self.choose_menu("File", "New", "Play list")
        self.stage.window("New Play List$")
        self.record(1)

    def rebuild(self):
        self.stage.key("Return")
        wait_for("the box to go", lambda: not self.stage.has_window("New Play List$"))
        wait_for("the playlist", lambda: self.rows_of("dbMedia", "select count(*) from tblPlayList") == ["1"])
        self.record(1)

    def move_window(self):
        window = self.main_window("Brindlepost - Music Player")
        x, y, _, _ = self.stage.window_rect(window)
        for step in range(40):
            self.stage.run("xdotool", "windowmove", window, str(x - 2 * (step % 10)), str(y + 2 * (step % 7)))
        check(self.stage.window_rect(window)[:2] != (x, y), "the window did not move")

    def walk(self):
        self.start()
        self.goes_on_while("a page is loaded", self.first_page)
        self.goes_on_while("the page's process is killed", self.kill_page)
        self.goes_on_while("the music tab comes back", self.back_to_the_music)
        self.goes_on_while("a box stands open", self.open_box)
        self.goes_on_while(f"a library of {SONGS} songs is rebuilt", self.rebuild)
        self.goes_on_while("the window is moved", self.move_window)


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with Stage(build) as scene:
        listener = Listener(scene)
        try:
            is_done = scene.run_steps([listener.walk])
        finally:
            listener.close()
    if is_done:
        scene.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
