"""What a kill leaves: where the music stopped, and what was removed: `test_resume.py BUILD_FOLDER`."""

import signal
import socket
import sqlite3
import sys
import time

import stage
from stage import Stage, make_tone, wait_for
from story import Story, check, check_equal, seconds_of

SONGS = [("Ada", "First", 440), ("Bell", "Second", 660), ("Clay", "Third", 880)]
REMOVE = "Are you sure you want to delete this file from the media library?"


class Listener(Story):
    """A person whose program is killed now and then."""

    def __init__(self, scene):
        super().__init__(scene)
        with sqlite3.connect(self.application / "dbMedia.mdb") as store:
            for key, (artist, title, pitch) in enumerate(SONGS, 1):
                song = make_tone(self.music / f"{artist} - {title}.mp3", pitch, 120)
                path = "C:" + str(song).replace("/", "\\")
                store.execute("insert into tblSong values(?, ?, ?, ?, 0)", (key, artist, title, path))
                store.execute("insert into tblPlayList values(?, 'Road', ?, ?, ?)", (key, key, artist, title))
        store.close()
        with sqlite3.connect(self.application / "dbLogin.mdb") as store:
            store.execute("insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')")
        store.close()

    def start(self):
        self.program = self.stage.launch(self.application)
        self.main_window("Brindlepost - Music Player", 30)
        wait_for("the splash to go", lambda: not self.stage.has_window("Brindlepost$"), 30)

    def kill(self):
        if self.program is None:
            return
        self.program.send_signal(signal.SIGKILL)
        self.program.wait()

    def songs(self):
        return self.rows_of("dbMedia", "select SongID || ' ' || artist || ' ' || title || ' ' || FilePath from tblSong order by rowid")

    def offer(self):
        found = [node for node in self.eyes.nodes() if node.get_name().startswith("Go on with")]
        return found[0] if found else None


def a_killed_program_goes_on_where_it_was(person):
    person.start()
    check(person.offer() is None, "something was offered at the first start")
    person.choose_text("Tracks", "Clay - Third")
    person.choose_menu("Music Player", "Cue Song")
    person.choose_text("Tracks", "Bell - Second", times=2)
    person.hear("the song", 660)
    wait_for("a dozen seconds of the song", lambda: (seconds_of(person.running_time()) or 0) >= 12, 30)
    person.kill()
    person.hear_nothing("the killed program")

    person.start()
    offer = wait_for("the offer", person.offer)
    check(offer.get_name().startswith("Go on with Bell - Second at 0:"), offer.get_name())
    check(not person.stage.has_window("^Brindlepost$"), "a box stands in the way")
    x, y, width, height = person.eyes.rect(offer)
    person.stage.click(x + width // 4, y + height // 2)
    person.hear("the song", 660)
    begun = wait_for("the time of the song", lambda: seconds_of(person.running_time()))
    check(6 <= begun <= 16, f"the song went on at {begun} s")
    check(person.offer() is None, "the offer stands on")
    check_equal("the cue list", person.eyes.rows("Up next"), ["Clay - Third"])
    return [("went on at, s", begun)]


def what_was_removed_comes_back_over_a_kill(person):
    before = person.songs()
    person.choose_text("Tracks", "Bell - Second")
    person.stage.key("Delete")
    person.answer_box("Delete from Media Library$", REMOVE, "Yes")
    wait_for("the row to go from the file", lambda: len(person.songs()) == 2)
    person.choose_text("Tracks", "Ada - First")
    person.stage.key("Delete")
    person.answer_box("Delete from Media Library$", REMOVE, "Yes")
    wait_for("the second row to go", lambda: len(person.songs()) == 1)
    person.kill()

    person.start()
    person.choose_text("Tracks", "Clay - Third")
    person.stage.key("ctrl+z")
    wait_for("one row to come back", lambda: len(person.songs()) == 2)
    person.choose_text("Tracks", "Clay - Third")
    person.stage.key("ctrl+z")
    wait_for("both rows, as they were", lambda: person.songs() == before)
    check_equal("the tracks", person.eyes.rows("Tracks"), [f"{artist} - {title}" for artist, title, _ in SONGS])
    person.choose_text("Tracks", "Clay - Third")
    person.stage.key("ctrl+z")
    time.sleep(0.5)
    check_equal("the songs after one more", person.songs(), before)


def a_bus_that_says_nothing_holds_nothing_up(person):
    person.kill()
    silent = socket.socket(socket.AF_UNIX)
    path = person.stage.folder / "silent"
    silent.bind(str(path))
    silent.listen(8)
    begun = time.monotonic()
    person.program = person.stage.launch(person.application,
                                         environment={"DBUS_SESSION_BUS_ADDRESS": f"unix:path={path}"})
    person.main_window("Brindlepost - Music Player", 30)
    taken = time.monotonic() - begun
    time.sleep(3)
    person.program.send_signal(signal.SIGTERM)
    begun = time.monotonic()
    check_equal("exit code", person.program.wait(20), 0)
    ended = time.monotonic() - begun
    silent.close()
    check(ended < 5, f"the end took {ended:.1f} s")
    return [("main window beside a silent bus after, s", round(taken, 1)), ("end, s", round(ended, 1))]


PARTS = [a_killed_program_goes_on_where_it_was, what_was_removed_comes_back_over_a_kill,
         a_bus_that_says_nothing_holds_nothing_up]


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with Stage(build) as scene:
        person = Listener(scene)
        try:
            parts = PARTS[-1:] if "silent" in sys.argv[2:] else PARTS
            good = scene.run_steps(parts, person, picture="failure-resume.png")
        finally:
            person.close()
    if good:
        scene.remove()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
