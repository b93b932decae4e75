"""The preferences and the back-up on the real program: `test_preferences.py BUILD_FOLDER [PART...]`.

Mouse and keyboard do what a person does; stores are read back with the sqlite3 client, back-ups as bytes.
"""

import os
import subprocess
import sys

import stage
from stage import role_of, wait_for
from story import check, check_equal
from test_library import Listener, QuickEyes

SAVED = ("Your settings have been saved.\n"
         "Most changes will only take affect when you restart this application.")
SONGS = [(1, "Ada Larkspur", "Morning Tone"), (2, "Bell Tower", "Two Pitches"), (3, "Björk", "Hæ – ½"),
         (4, "Ada Larkspur", "Evening Tone")]
KEYBOARD_ORDER = ["Options", "Maintenance", "Back-up", "Save settings on log out and close", "Open home pages on startup",
                  "Show \"What I'm listening to\" on MSN", "Allow multiple logins",
                  "Use auto-logins (hotmail + myspace)", "Save history",
                  "Use address bar for more than just websites", "Allow quick Google searching on address bar",
                  "Allow file open on address bar", "Include sub-folders when adding new media.", "Create New User",
                  "Apply"]
LISTS = {"Evening": [4, 2, 1], "AC/DC\\live": [3], "..": [1, 99, 2]}


class Keeper(Listener):
    """The person before the preferences."""

    on_picture = None  # called with a name while the window stands there

    def picture(self, name):
        if self.on_picture:
            self.on_picture(name)

    def fill(self):
        for _, artist, title in SONGS:
            (self.music / f"{artist} - {title}.mp3").touch()
        rows = [f"insert into tblSong values({number},'{artist}','{title}','{drive(self.music / f'{artist} - {title}.mp3')}',3)"
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

    def open_list(self, file):
        """Types the path of a play list file; one that no keyboard has is handed over by a second start."""
        before = len(self.eyes.rows("Playlists"))
        if str(file).isascii():
            self.write_into("Address", str(file), "text")
            self.stage.key("Return")
        else:
            self.stage.launch(self.application, str(file))
        self.answer_box("Brindlepost$", "Playlist was added successfully.", "OK")
        # Only then is the address row emptied for the next one.
        wait_for("the play list", lambda: len(self.eyes.rows("Playlists")) == before + 1)

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


def back_ups_that_cannot_be_are_told(person):
    file = person.files / "file"
    file.write_text("kept")
    shut = person.files / "shut"
    shut.mkdir()
    (shut / "Evening.mpl").write_bytes(b"old")
    shut.chmod(0o500)
    dated = person.setting(6)
    tries = [
        (str(file), f'The back up folder "{file}" can not be made: a file stands in its place.'),
        (str(shut / "below"), f'The back up folder "{shut}/below" can not be made: the folder is read-only, or is not yours.'),
        ("Z:\\lists", 'The back up folder "Z:\\" can not be made: the drive or the folder is not there.'),
        ("C:/lists", "Directories should be seperated by a backslash '\\'"),
        ("\\\\server\\share", "Application must be stored on a hard drive e.g. 'C:\\' not a server"),
        ("", "Please make sure you have selected a back up folder path and a play list to back up."),
        (str(shut), f'Not backed up to "{shut}":\nEvening: the folder is read-only, or is not yours.\n'
                    "Earlier back ups are still as they were."),
    ]
    person.choose_text("Play lists", "Evening")
    for folder, text in tries:
        person.write_into("Back up folder", folder)
        if not folder:
            person.stage.key("BackSpace")
        person.stage.key("Return")
        person.answer_box("Brindlepost$", text, "OK")
    person.picture("refused")
    check_equal("the old back-up", (shut / "Evening.mpl").read_bytes(), b"old")
    check_equal("what lies in the folder", os.listdir(shut), ["Evening.mpl"])
    check_equal("the file in the way", file.read_text(), "kept")
    check_equal("the date", person.setting(6), dated)
    shut.chmod(0o700)
    person.write_into("Back up folder", str(shut))
    person.stage.key("Return")
    wait_for("the new back-up", lambda: (shut / "Evening.mpl").read_bytes().startswith(b"Ada"))
    check_equal("what lies in the folder", os.listdir(shut), ["Evening.mpl"])


def the_library_is_emptied(person):
    person.press("Maintenance", "push button")
    person.picture("maintenance")
    person.focus_by_tab("Reset Play Count")
    person.stage.key("Return")
    person.answer_box("Reset Play Count$", "Are you sure you want to reset all the play counts?", "Yes")
    person.answer_box("Brindlepost$", "All media files play count's have been reset to 0.", "OK")
    check_equal("the counts", person.rows_of("dbMedia", "select distinct PlayCount from tblSong"), ["0"])
    person.press("Empty Library", "push button")
    person.answer_box("Emptying Library$", "Are you sure you want to delete every file from your media library?", "Yes")
    person.answer_box("Emptying Library$", "Media library is now empty.\nWould you like to add new media now?", "Yes")
    check_equal("the rows left", person.rows_of("dbMedia", "select count(*) from tblSong union all "
                                                "select count(*) from tblPlayList"), ["0", "0"])
    check_equal("the tracks shown", person.eyes.rows("Tracks"), [])


def what_was_backed_up_comes_back(person):
    person.go_to(person.music)
    person.press("Get Files", "push button")
    wait_for("the files", lambda: person.found_count() == str(len(SONGS)) and not person.is_searching())
    person.press("Add all")
    wait_for("the tracks", lambda: len(person.eyes.rows("Tracks")) == len(SONGS))
    person.stage.key("Escape")
    wait_for("Escape to hide the preferences", lambda: not person.stage.has_window("Brindlepost - Preferences"))
    for file in sorted((person.files / "lists" / "one").iterdir()):
        person.open_list(file)
    person.picture("came-back")
    check_equal("the play lists", sorted(row.strip() for row in person.eyes.rows("Playlists")[3:]), sorted(LISTS))
    for name, songs in LISTS.items():
        expected = [f"{artist} - {title}" for number in songs for n, artist, title in SONGS if n == number]
        person.choose_text("Playlists", name)
        wait_for(f"the tracks of '{name}': {expected}, not {person.eyes.rows('Tracks')}",
                 lambda e=expected: person.eyes.rows("Tracks") == e)
    person.leave_by_menu()


def the_keyboard_reaches_every_option(person):
    """The buttons of the panes first, then the options in the order in which they are read."""
    person.press("Options", "push button")
    order = []
    for _ in range(40):
        node = next((n for n in person.eyes.nodes() if n.get_state_set().contains(person.eyes.focused)
                     and role_of(n) in ("check box", "push button", "text", "list")), None)
        name = node.get_name() if node else None
        if order and name == order[0]:
            break
        order.append(name)
        person.stage.key("Tab")
    check_equal("the order of the keyboard", order, KEYBOARD_ORDER)
    person.press("Save history", "check box")
    ticked = person.eyes.is_ticked(person.eyes.find("Save history"))
    person.stage.key("space")
    wait_for("the blank to change the tick", lambda: person.eyes.is_ticked(person.eyes.find("Save history")) != ticked)
    person.press("Back-up", "push button")


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


PARTS = [options_are_stored_and_hold_after_a_restart, play_lists_are_backed_up, the_keyboard_reaches_every_option,
         back_ups_that_cannot_be_are_told, the_library_is_emptied, what_was_backed_up_comes_back]

if __name__ == "__main__":
    sys.exit(stage.run_parts(sys.argv[1], person_on, PARTS, sys.argv[2:], "failure-preferences.png"))
