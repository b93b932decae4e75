"""The preferences and the back-up on the real program: `test_preferences.py BUILD_FOLDER [PART...]`.

Mouse and keyboard do what a person does; stores are read back with the sqlite3 client, back-ups as bytes.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

import stage
from stage import wait_for
from story import check, check_equal
from test_library import Listener, QuickEyes

SAVED = ("Your settings have been saved.\n"
         "Most changes will only take affect when you restart this application.")
SONGS = [(1, "Ada Larkspur", "Morning Tone"), (2, "Bell Tower", "Two Pitches"), (3, "Björk", "Hæ – ½"),
         (4, "Ada Larkspur", "Evening Tone")]
LISTS = {"Evening": [4, 2, 1], "AC/DC\\live": [3], "..": [1, 99, 2]}


class Keeper(Listener):
    """The person before the preferences."""

    on_picture = None  # called with a name while the window stands there

    def picture(self, name):
        if self.on_picture:
            self.on_picture(name)

    def fill(self):
        rows = [f"insert into tblSong values({number},'{artist}','{title}','{drive(self.music / (title + '.mp3'))}',3)"
                for number, artist, title in SONGS]
        key = 0
        for name, songs in LISTS.items():
            for song in [None, *songs]:
                key += 1
                artist, title = next(((a, t) for n, a, t in SONGS if n == song), ("", ""))
                rows.append(f"insert into tblPlayList values({key},'{name}',{song or 'null'},'{artist}','{title}')")
        subprocess.run(["sqlite3", str(self.store("dbMedia")), ";".join(rows)], check=True)

    def begin(self):
        self.launch()
        self.enter()
        self.main_window("Brindlepost - Music Player", 20)
        wait_for("the main window in front", lambda: self.stage.front_window() == "Brindlepost - Music Player")

    def open_preferences(self):
        self.choose_menu("Options", "Preferences")
        self.stage.window("Brindlepost - Preferences$")
        wait_for("the preferences in front", lambda: self.stage.front_window() == "Brindlepost - Preferences")

    def open_back_up(self):
        self.choose_menu("Edit", "Playlists")
        self.stage.window("Brindlepost - Preferences$")
        self.eyes.find("Back Up All", "push button")

    def leave_by_menu(self):
        self.choose_menu("File", "Exit")
        check_equal("exit code", self.wait_for_end(), "0")

    def setting(self, row):
        return self.rows_of("dbHistory", f"select HistoryText from tblHistory where HistoryID={row}")[0]


def drive(path):
    return "C:" + str(path).replace("/", "\\")


# ---- the parts -----------------------------------------------------------------------------------------------------


def options_are_stored_and_hold_after_a_restart(person):
    person.add_user()
    person.fill()
    person.begin()
    check_equal("history before", person.setting(16), "True")
    person.open_preferences()
    person.picture("options")
    person.press("Save history", "check box")
    person.press("Show \"What I'm listening to\" on MSN", "check box")
    check(not person.eyes.is_enabled(person.eyes.find("Allow custom MSN message")), "the custom message is not disabled")
    person.picture("options-changed")
    person.stage.key("Return")
    person.answer_box("Settings Saved$", SAVED, "OK")
    wait_for("the preferences to hide", lambda: not person.stage.has_window("Brindlepost - Preferences"))
    check_equal("the rows", [person.setting(row) for row in (11, 12, 13, 16, 17)], ["False"] * 4 + ["True"])
    person.leave_by_menu()
    person.begin()
    person.open_preferences()
    check(not person.eyes.is_ticked(person.eyes.find("Save history")), "the option came back")
    person.stage.key("Escape")
    wait_for("Escape to hide them", lambda: not person.stage.has_window("Brindlepost - Preferences"))


def play_lists_are_backed_up(person):
    person.open_back_up()
    person.choose_text("Play lists", "Evening")
    wait_for("the tracks", lambda: person.eyes.rows("Tracks of the play list") == ["Evening Tone", "Two Pitches",
                                                                                  "Morning Tone"])
    person.picture("back-up")
    person.write_into("Back up folder", str(person.files / "lists" / "one"))
    person.press("Back Up All", "push button")
    folder = person.files / "lists" / "one"
    wait_for("the files", lambda: folder.is_dir() and len(list(folder.iterdir())) == 3)
    person.picture("backed-up")
    files = {os.fsdecode(file.name): file.read_bytes() for file in folder.iterdir()}
    check_equal("the files", files, {
        "Evening.mpl": b"Ada Larkspur - Evening Tone\r\nBell Tower - Two Pitches\r\nAda Larkspur - Morning Tone\r\n\r\n",
        "AC\uf02fDC\\live.mpl": "Björk - Hæ – ½\r\n\r\n".encode("cp1252"),
        "...mpl": b"Ada Larkspur - Morning Tone\r\nBell Tower - Two Pitches\r\n\r\n"})
    wait_for("the date", lambda: person.setting(6) != "0")


def main():
    wanted = sys.argv[2:]
    build = stage.become_unprivileged(sys.argv[1])
    parts = [part for part in PARTS if not wanted or part.__name__ in wanted]
    with tempfile.TemporaryDirectory(prefix="brindlepost-", dir="/var/tmp") as files, \
            stage.Stage(build, sound=False) as scene:
        person = person_on(scene, pathlib.Path(files))
        try:
            good = scene.run_steps(parts, person, picture="failure-preferences.png")
        finally:
            person.end()
    if good:
        scene.remove()
    return 0 if good else 1


def person_on(scene, files):
    person = Keeper.__new__(Keeper)
    person.stage = scene
    person.files = files
    person.music = files / "Music"
    person.music.mkdir()
    person.application = scene.make_application("app")
    person.eyes = QuickEyes()
    person.program = None
    return person


PARTS = [options_are_stored_and_hold_after_a_restart, play_lists_are_backed_up]

if __name__ == "__main__":
    sys.exit(main())
