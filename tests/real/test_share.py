"""A network share that hangs, and the window that does not: `test_share.py BUILD_FOLDER`.

Wants root, which may mount; else it is skipped (code 77).
"""

import os
import pathlib
import subprocess
import sys
import time

import dead_mount
import mounts
import stage
from answering import Answering
from stage import Stage, wait_for
from story import check, check_equal
from test_bad_start import Person

PLACE = "BRINDLEPOST_DEAD_MOUNT"
TONE = 440
# A handler waits half a second once; the rest is the machine's.
LONGEST = 2.0


class Sharer(Person):
    """Somebody whose music lies on a server that is gone."""

    def set_up(self, share):
        self.add_user()
        self.share = share
        subprocess.run(["sqlite3", str(self.store("dbHistory")),
                        "update tblHistory set HistoryText='True' where HistoryID=19"], check=True)
        self.song = stage.make_tone(self.music / "Ada - Here.mp3", TONE, 60)
        rows = [(1, "Ada", "Here", self.drive_form(self.song))]
        rows += [(number, "Gone", f"Song {number}", self.drive_form(share / f"{number}.mp3")) for number in range(2, 40)]
        for number, artist, title, path in rows:
            subprocess.run(["sqlite3", str(self.store("dbMedia")),
                            f"insert into tblSong (SongID, artist, title, FilePath) values ({number}, '{artist}', "
                            f"'{title}', '{path}')"], check=True)

    @staticmethod
    def drive_form(path):
        return "C:" + str(path).replace("/", "\\")

    def quickly(self, what, action):
        """The window answers all the while."""
        begin = time.monotonic()
        action()
        longest = self.answering.longest(begin)
        print(f"   {what}: {time.monotonic() - begin:.2f} s, longest answer {longest:.2f} s", flush=True)
        check(longest < LONGEST, f"{what}: the window did not answer for {longest:.2f} s")

    # -- the steps --

    def a_search_over_it_is_cancelled(self):
        """The first question to the share, which is waited for while the user can cancel."""
        self.choose_menu("File", "Add", "Media to Library")
        self.eyes.find("Get Files", "push button")
        self.choose_text("Folder to search", "C:\\", times=2)
        self.choose_text("Folder to search", "mnt", times=2)

        def search():
            self.press("Get Files", "push button")
            time.sleep(1.5)  # in the middle of the wait, which would last a quarter of a minute
            self.stage.key("Escape")
            wait_for("the search to stop",
                     lambda: self.eyes.shows("The search was stopped. There may be more files.", "label"), 8)
        self.quickly("a search over the share", search)

    def the_folder_does_not_answer(self):
        def choose():
            self.choose_text("Folder to search", self.share.name, times=2)
            wait_for("the notice", lambda: self.eyes.shows("The folder does not answer. Try again later.", "label"))
        self.quickly("the share's folder", choose)
        self.stage.key("Escape")

    def a_song_of_the_share_is_missing(self):
        def play():
            self.choose_text("Tracks", "Gone - Song 2", times=2)
            self.hear("the song that is here, after all that are not", TONE, seconds=20)
        self.quickly("a song of the share", play)

    def the_program_ends(self):
        begin = time.monotonic()
        self.program.terminate()
        check_equal("the exit code", self.program.wait(10), 0)
        took = time.monotonic() - begin
        check(took < 5, f"the end took {took:.1f} s")


def main():
    if not mounts.have(PLACE, lambda: dead_mount.mount(f"brindlepost-{os.getpid()}")):
        return mounts.SKIPPED
    build = stage.become_unprivileged(sys.argv[1])
    with Stage(build) as scene:
        person = Sharer(scene)
        person.set_up(pathlib.Path(os.environ[PLACE]))
        person.launch()
        person.enter()
        person.answering = Answering(scene.environment["DISPLAY"], person.main_window("Brindlepost - Music Player"))
        passed = scene.run_steps([person.a_search_over_it_is_cancelled, person.the_folder_does_not_answer,
                                  person.a_song_of_the_share_is_missing, person.the_program_ends])
        person.answering.close()
        person.close()
    if passed:
        scene.remove()
    return 0 if passed else 1


if __name__ == "__main__":
    sys.exit(main())
