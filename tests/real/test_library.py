"""The media scan and the search on the real program, with a real tree of files: `test_library.py BUILD_FOLDER [PART...]`.

Mouse and keyboard do what a person does; what is stored is read back with the sqlite3 client.
"""

import json
import os
import pathlib
import random
import socket
import sqlite3
import subprocess
import sys
import tempfile
import time

import stage
from stage import wait_for
from story import check, check_equal
from test_bad_start import Person

LEVELS = 15
MANY = 12_000
DEPTH = 200
WEB = 30
DEEP = b"\xfe" * 100
LONGEST = b"\xff" * 251 + b".mp3"
KILLS = 2
OFFER = "You currently have no media files in your library, would you like to add media now?"
QUESTION = ("Sub folders are not currently being search because of you preferences.\n"
            "Would you like to search sub folders?")
REFUSED = "The following files could not be added because of long filenames\n"
ADDED = "Playlist was added successfully."
NOT_ADDED = "The following songs could not be added to the playlist:"
MISSING = 400
LONG_TITLE = "Longwind - " + "x" * 81 + ".mp3"

# Name in bytes, and what becomes of it: artist and title.
SONGS = {
    b"Ada Larkspur - Morning Tone.mp3": ("Ada Larkspur", "Morning Tone"),
    b"AC-DC & friends - Back.in.black.MP3": ("Ac-dc + Friends", "Back In Black"),
    b"track.mid": ("Unknown", "Track"),
    b"One - Two - Three.wav": ("One", "Two - Three"),
    b"Bj\xf6rk - H\xe6.mp3": ("Björk", "Hæ"),
    b"line\nbreak - song.mp3": ("Line\nbreak", "Song"),
    b"quoted \"x\" - it's.wma": ("Quoted \"x\"", "It's"),
    b"back\\slash - tone.mp3": ("Back\\slash", "Tone"),
    b"\xe3\x81\x82 - (live) -remix.mp3": ("あ", "(Live) -Remix"),
    b"Videos/Clip - film.avi": ("Clip", "Film [Video]"),
    b"Videos/holiday.jpeg": ("Unknown", "Holiday [Video]"),
    b"link.mp3": ("Unknown", "Link"),
}
LEFT_OUT = [b"notes.txt", b"movie.mp4", b"mpl.mpl"]


def drive_form(path):
    """A native path as the program keeps it: what is no UTF-8, and a backslash, is a private-use character."""
    text = path.replace(b"\\", b"\xff<slash>").decode("utf-8", "surrogateescape")
    text = text.replace("\udcff<slash>", chr(0xF000 + ord("\\")))
    text = "".join(chr(0xF000 + ord(c) - 0xDC00) if 0xDC80 <= ord(c) <= 0xDCFF else c for c in text)
    return "C:" + text.replace("/", "\\")


class QuickEyes(stage.Eyes):
    """Does not look through the rows of lists for a control."""

    def _walk(self, node, showing, depth=0):
        for found in super()._walk(node, showing, depth):
            yield found
            if found is node and depth > 0 and self._is_list(node):
                return

    def _is_list(self, node):
        try:
            return node.get_role_name() == "list"
        except self._gone:
            return True


class Listener(Person):
    """The person before a library that fills."""

    def make_tree(self):
        root = os.fsencode(self.music)
        for name in [*SONGS, *LEFT_OUT, os.fsencode(LONG_TITLE), b"closed.mp3", b"locked/secret.mp3"]:
            path = os.path.join(root, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            if name != b"link.mp3":
                open(path, "wb").close()
        os.symlink(b"track.mid", os.path.join(root, b"link.mp3"))
        folder = root
        for level in range(2, LEVELS + 2):
            folder = os.path.join(folder, b"d%d" % level)
            os.mkdir(folder)
            open(os.path.join(folder, b"Deep - Level %d.mp3" % level), "wb").close()
        os.symlink(b".", os.path.join(root, b"loop"))
        os.symlink(b"..", os.path.join(root, b"Videos/up"))
        os.symlink(b"Videos", os.path.join(root, b"videos again"))
        os.symlink(b"nowhere.mp3", os.path.join(root, b"dangling.mp3"))
        os.symlink(b"/dev/null", os.path.join(root, b"device.mp3"))
        os.mkfifo(os.path.join(root, b"pipe.mp3"))
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.bind(os.path.join(root, b"socket.mp3"))
        os.chmod(os.path.join(root, b"closed.mp3"), 0)
        os.chmod(os.path.join(root, b"locked"), 0)

    def expected_rows(self):
        """(artist, title, path) of every song of the tree, in no order."""
        root = os.fsencode(self.music)
        rows = {drive_form(root + b"/" + name): pair for name, pair in SONGS.items()}
        folder = root
        for level in range(2, LEVELS + 1):
            folder += b"/d%d" % level
            rows[drive_form(folder + b"/Deep - Level %d.mp3" % level)] = ("Deep", f"Level {level}")
        return rows

    def ask(self, query, store="dbMedia"):
        done = subprocess.run(["sqlite3", "-json", str(self.store(store)), query], capture_output=True, check=True)
        return json.loads(done.stdout or b"[]", strict=False)

    def set_up(self, sub_folders):
        self.add_user()
        subprocess.run(["sqlite3", str(self.store("dbHistory")),
                        f"update tblHistory set HistoryText='{sub_folders}' where HistoryID=19"], check=True)
        subprocess.run(["sqlite3", str(self.store("dbHistory")),
                        "update tblHistory set HistoryText='False' where HistoryID between 9 and 18 and HistoryText=''"],
                       check=True)

    def songs(self):
        return self.ask("select SongID, artist, title, FilePath from tblSong order by rowid")

    def open_dialog(self):
        if not self.eyes.shows("Get Files", "push button"):
            self.choose_menu("File", "Add", "Media to Library")
        self.eyes.find("Get Files", "push button")

    def go_to(self, folder):
        """Opens a folder of the dialog from the root, name by name."""
        shown = self.eyes.rows("Folder to search")
        check(shown[0] == "C:\\", f"the folders do not begin at the root: {shown}")
        for part in folder.parts[1:]:
            self.choose_text("Folder to search", part, times=2)
            wait_for(f"the folder '{part}' to open", lambda p=part: self._stands_in(p))

    def notice(self, text):
        wait_for(f"the notice '{text}'", lambda: self.eyes.shows(text, "label"))

    def found_count(self):
        return self.eyes.find("Number of files found", "label").get_description()

    def is_searching(self):
        return self.eyes.shows("Cancel", "push button")

    def focus_by_tab(self, name):
        """Presses Tab until a control has the keyboard."""
        for _ in range(30):
            for node in self.eyes.find_all(name):
                if node.get_state_set().contains(self.eyes.focused):
                    return
            self.stage.key("Tab")
        check(False, f"Tab never came to '{name}'")

    def search_for(self, text, expected):
        self.write_into("Search tracks", text)
        if not text:
            self.stage.key("BackSpace")
        wait_for(f"'{text}' to find {sorted(expected)}, not {self.eyes.rows('Tracks')}",
                 lambda: sorted(self.eyes.rows("Tracks")) == sorted(expected))


# ---- the parts -----------------------------------------------------------------------------------------------------


def a_tree_of_odd_files_is_added(person):
    person.make_tree()
    person.set_up("False")
    person.launch()
    person.enter()
    person.answer_box("Add Media", OFFER, "Yes")
    person.go_to(person.music)
    expected = person.expected_rows()
    only_here = [path for path in expected if path.count("\\") == len(person.music.parts)]

    person.press("Get Files", "push button")
    person.answer_box("Search sub folders\\?", QUESTION, "No")
    wait_for("the files of the first level", lambda: person.found_count() == str(len(only_here) + 1))

    person.focus_by_tab("Get Files")
    person.stage.key("Return")
    person.stage.window("Search sub folders\\?")
    person.stage.key("alt+y")
    wait_for("all files", lambda: person.found_count() == str(len(expected) + 1))
    person.notice("1 folder could not be read.")
    found = [text.replace(" ", "\n") if "line" in text else text for text in person.eyes.rows("Files found")]
    wanted = [*expected, drive_form(os.fsencode(person.music / LONG_TITLE))]
    check_equal("number of rows", len(found), len(wanted))

    person.focus_by_tab("Add all")
    person.stage.key("Return")
    person.answer_box("Brindlepost$", REFUSED + str(person.music / LONG_TITLE) + "\n", "OK")
    wait_for("the tracks", lambda: len(person.eyes.rows("Tracks")) == len(expected))
    check(not person.eyes.shows("Get Files"), "the dialog did not close")
    stored = person.songs()
    check_equal("the stored rows", {row["FilePath"]: (row["artist"], row["title"]) for row in stored}, expected)
    check_equal("the keys", [row["SongID"] for row in stored], list(range(1, len(expected) + 1)))
    deepest = max(row["FilePath"].count("\\") for row in stored)
    check_equal("the deepest level", deepest - len(person.music.parts) + 1, LEVELS)


def the_search_box_and_the_artists(person):
    everything = {f"{artist} - {title}" for artist, title in person.expected_rows().values()}
    deep = {text for text in everything if text.startswith("Deep")}
    by_field = {
        "Artist": ("larkspur", {"Ada Larkspur - Morning Tone"}),
        "Title": ("tone", {"Ada Larkspur - Morning Tone", "Back\\slash - Tone"}),
        "Broad Search": ("ada lark", {"Ada Larkspur - Morning Tone"}),
        "Filename": ("d2\\deep - level 2", {"Deep - Level 2"}),
    }
    for field, (text, expected) in by_field.items():
        person.choose_menu("Search", "Song Search", field)
        person.search_for(text, expected)
    person.search_for("", everything)
    person.choose_text("Artists", "Deep")
    wait_for("the artist's tracks", lambda: set(person.eyes.rows("Tracks")) == deep)
    person.choose_text("Artists", "[All Artists]")
    wait_for("all tracks", lambda: len(person.eyes.rows("Tracks")) == len(everything))


def one_file_by_its_path(person):
    before = len(person.songs())
    extra = person.files / "Typed person - typed.mp3"
    extra.touch()
    person.open_dialog()
    person.press("Get Files", "push button")
    wait_for("the search to begin or to ask", lambda: person.stage.has_window("Search sub folders\\?"))
    person.stage.key("alt+n")
    wait_for("the end of the search", lambda: not person.is_searching())
    person.press("Add one")
    person.stage.window("Adding Media$")
    box = person.eyes.find("What is the path of the song you would like to add?", "text")
    check_equal("the default text", person.eyes.text(box), "C:\\")
    person.stage.key("ctrl+a")
    person.stage.type(str(extra))
    person.stage.key("Return")
    wait_for("the row", lambda: len(person.songs()) == before + 1)
    row = person.songs()[-1]
    check_equal("the typed file", (row["artist"], row["title"], row["FilePath"]),
                ("Typed Person", "Typed", drive_form(os.fsencode(extra))))
    wait_for("the dialog to close", lambda: not person.eyes.shows("Get Files"))


def a_search_is_cancelled(person):
    """Everything below the root: long enough for the key to come in time."""
    person.open_dialog()
    person.choose_text("Folder to search", "C:\\", times=2)
    person.press("Get Files", "push button")
    person.stage.window("Search sub folders\\?")
    person.stage.key("alt+y")  # the question stands in the middle of the search, which goes on at once
    wait_for("the dialog in front", lambda: person.stage.front_window() == "Add Media")
    begin = time.monotonic()
    person.stage.key("Escape")
    wait_for("the search to stop", lambda: not person.is_searching(), 5)
    took = time.monotonic() - begin
    person.notice("The search was stopped. There may be more files.")
    check(person.eyes.shows("Get Files"), "Escape closed the dialog too")
    print(f"   stopped within {took:.2f} s", flush=True)
    person.stage.key("Escape")
    wait_for("the dialog to close", lambda: not person.eyes.shows("Get Files"))


def the_program_ends_in_the_middle_of_a_search(person):
    before = person.songs()
    person.open_dialog()
    person.press("Get Files", "push button")
    person.stage.window("Search sub folders\\?")
    person.stage.key("alt+y")  # the question stands in the middle of the search, which goes on at once
    window = person.main_window("Brindlepost - Music Player")

    def main_window_in_front():
        person.stage.run("xdotool", "windowactivate", window)
        return person.stage.front_window() == "Brindlepost - Music Player"

    wait_for("the dialog behind the question", lambda: person.stage.front_window() == "Add Media")
    wait_for("the main window in front", main_window_in_front)
    person.stage.key("alt+F4")
    check_equal("exit code", person.wait_for_end(15), "0")
    check_equal("the rows", person.songs(), before)


def killed_while_it_adds(person):
    chance = random.Random(4)
    make_many(person)
    person.set_up("True")
    before = 0
    for _ in range(KILLS):
        person.launch()
        person.enter()
        if before == 0:
            person.answer_box("Add Media", OFFER, "Yes")
        person.open_dialog()
        find_many(person)
        person.press("Add all")
        wait_for("the first new rows", lambda b=before: count(person) > b, step=0.002)
        time.sleep(chance.random() * 0.15)  # the moment is the matter of the test
        person.program.kill()
        person.program.wait()
        before = check_whole(person, before)


def the_store_cannot_grow_while_it_adds(person):
    """A limit of the process on the size of files stands for a full disk; it is lifted before the end."""
    make_many(person)
    person.set_up("True")
    program = str(person.application / "Brindlepost")
    person.program = person.stage.spawn(["/bin/sh", "-c", "trap '' XFSZ; exec \"$0\"", program],
                                        cwd=str(person.application))
    person.enter()
    person.answer_box("Add Media", OFFER, "Yes")
    find_many(person)
    subprocess.run(["prlimit", "--pid", str(person.program.pid), "--fsize=300000:"], check=True)
    person.press("Add all")
    person.wait_for_box("\"dbMedia.mdb\" can not be written: the disk.*kept while the program runs")
    wait_for("the dialog to close", lambda: is_closed_after_boxes(person), 30)
    check(count(person) < MANY, "the limit did nothing")
    subprocess.run(["prlimit", "--pid", str(person.program.pid), "--fsize=unlimited:"], check=True)
    wait_for("every row in the file", lambda: count(person) == MANY, 20)
    check_whole(person, 0)


def a_tree_beyond_the_limits_of_the_system(person):
    """Names as long as a name can be, paths longer than a path can be, and folders that all lead to each other."""
    root = os.fsencode(person.music / "odd")
    os.mkdir(root)
    make_deep_tree(root)
    for number in range(WEB):
        os.mkdir(root + b"/web%d" % number)
        open(root + b"/web%d/Web - Song %d.mp3" % (number, number), "wb").close()
        for other in range(WEB):
            os.symlink(root + b"/web%d" % other, root + b"/web%d/to %d" % (number, other))
    person.set_up("True")
    person.launch()
    person.enter()
    person.answer_box("Add Media", OFFER, "Yes")
    person.go_to(person.music / "odd")
    begin = time.monotonic()
    person.press("Get Files", "push button")
    # In the folder itself and in fourteen levels below it.
    found = str(WEB + LEVELS - 1)
    wait_for(f"{found} files", lambda: person.found_count() == found and not person.is_searching(), 60)
    print(f"   searched within {time.monotonic() - begin:.2f} s", flush=True)
    person.press("Add all")
    person.stage.window("Brindlepost$")
    refused = person.eyes.text(person.eyes.find("Message", "text")).splitlines()
    check_equal("the files that are too long for the library", len(refused), 1 + LEVELS - 1)
    person.stage.key("Return")
    wait_for("the dialog to close", lambda: is_closed_after_boxes(person))
    check_equal("the rows", sorted(row["title"] for row in person.songs()),
                sorted(f"Song {number}" for number in range(WEB)))


def make_deep_tree(root):
    folder = os.open(root, os.O_RDONLY)
    for _ in range(DEPTH):
        os.mkdir(DEEP, dir_fd=folder)
        below = os.open(DEEP, os.O_RDONLY, dir_fd=folder)
        os.close(folder)
        folder = below
        os.close(os.open(LONGEST, os.O_WRONLY | os.O_CREAT, dir_fd=folder))
    os.close(folder)


def another_program_holds_the_store_while_it_adds(person):
    """The window goes on, the rows wait in memory, and come into the file once it is let go."""
    make_many(person)
    person.open_dialog()
    find_many(person)
    holder = sqlite3.connect(person.store("dbMedia"), isolation_level=None)
    holder.execute("begin immediate")
    before = count(person)
    person.press("Add all")
    person.wait_for_box("\"dbMedia.mdb\" can not be written: .*another program.*kept while the program runs")
    wait_for("the dialog to close", lambda: is_closed_after_boxes(person), 30)
    check_equal("the rows while it is held", count(person), before)
    holder.execute("rollback")
    holder.close()
    wait_for("every row in the file", lambda: count(person) == before + MANY, 20)
    check_whole(person, before)


def the_store_is_read_only_while_it_adds(person):
    """Whoever may not write it loses nothing: the rows wait, and come into the file once it may be written."""
    make_many(person)
    person.set_up("True")
    store = person.store("dbMedia")
    os.chmod(store, 0o400)
    before = store.read_bytes()
    person.launch()
    person.enter()
    person.answer_box("Add Media", OFFER, "Yes")
    find_many(person)
    person.press("Add all")
    person.wait_for_box("\"dbMedia.mdb\" can not be written: .*read-only.*kept while the program runs")
    wait_for("the dialog to close", lambda: is_closed_after_boxes(person), 30)
    check_equal("the file", store.read_bytes(), before)
    os.chmod(store, 0o600)
    wait_for("every row in the file", lambda: count(person) == MANY, 20)
    check_whole(person, 0)


def playlist_files_come_in(person):
    """Typed, of the program's own kind and of another player's."""
    songs = {}
    for number, (artist, title) in enumerate([("Bj\u00f6rk", "Hearth"), ("Foo", "Bar"), ("Ann", "Two - Three")], 1):
        path = person.music / f"{number}.mp3"
        path.touch()
        songs[number] = (artist, title, drive_form(os.fsencode(path)))
    person.set_up("True")
    connection = sqlite3.connect(person.store("dbMedia"))
    with connection:
        connection.executemany("insert into tblSong (SongID, artist, title, FilePath) values (?, ?, ?, ?)",
                               [(number, *song) for number, song in songs.items()])
    connection.close()
    person.launch()
    person.enter()

    missing = [f"Nobody - Song {number}" for number in range(MISSING)]
    own = person.music / "Road.mpl"
    own.write_bytes("\r\n".join(["BJ\u00d6RK - hearth", *missing, "Foo - Bar!", "", ""]).encode("cp1252"))
    person.write_into("Address", str(own), "text")
    person.stage.key("Return")
    person.stage.window("Brindlepost$")
    view = person.eyes.find("Message", "text")
    shown = person.eyes.text(view)
    check_equal("the missing songs", shown.splitlines(), [NOT_ADDED, *missing])
    person.stage.key("Return")
    wait_for("the playlist", lambda: playlists(person) == {"Road": [None, 1, 2]})
    wait_for("its row", lambda: "Road" in [row.strip() for row in person.eyes.rows("Playlists")])

    foreign = person.music / "Other.m3u"
    foreign.write_text("#EXTM3U\n#EXTINF:1,Wrong - Name\n3.mp3\n./1.mp3\n", encoding="utf-8")
    person.write_into("Address", str(foreign), "text")
    person.stage.key("Return")
    person.answer_box("Brindlepost$", ADDED, "OK")
    wait_for("the other playlist", lambda: playlists(person).get("Other") == [None, 3, 1])


def playlists(person):
    found = {}
    for row in person.ask("select Name, SongID from tblPlayList order by rowid"):
        found.setdefault(row["Name"], []).append(int(row["SongID"]) if row["SongID"] else None)
    return found


def is_closed_after_boxes(person):
    """Every kind of trouble has a box of its own."""
    if person.boxes():
        person.answer_ok()
    return not person.eyes.shows("Get Files") and not person.boxes()


def make_many(person):
    folder = person.files / "many"
    if folder.exists():
        return
    for number in range(MANY):
        if number % 200 == 0:
            below = folder / f"Person {number // 200}"
            below.mkdir(parents=True)
        (below / f"Person {number // 200} - Song {number}.mp3").touch()


def find_many(person):
    person.go_to(person.files / "many")
    person.press("Get Files", "push button")
    if person.ask("select HistoryText from tblHistory where HistoryID=19", "dbHistory") == [{"HistoryText": "False"}]:
        person.stage.window("Search sub folders\\?")
        person.stage.key("alt+y")
    wait_for("the many files", lambda: person.found_count() == str(MANY) and not person.is_searching(), 30)


def count(person):
    connection = sqlite3.connect(f"file:{person.store('dbMedia')}?mode=ro", uri=True)
    try:
        return connection.execute("select count(*) from tblSong").fetchone()[0]
    finally:
        connection.close()


def check_whole(person, before):
    """Every row of the song table is whole and its file is there; how many there are."""
    check_equal("integrity", person.ask("pragma integrity_check"), [{"integrity_check": "ok"}])
    rows = person.songs()
    check(len(rows) > before, f"{len(rows)} rows, and {before} before")
    check_equal("the keys", [row["SongID"] for row in rows], list(range(1, len(rows) + 1)))
    for row in rows[before:]:
        check(row["artist"].startswith("Person ") and row["title"].startswith("Song "), f"no whole row: {row}")
    for row in random.Random(1).sample(rows[before:], min(200, len(rows) - before)):
        native = row["FilePath"][2:].replace("\\", "/")
        check(os.path.isfile(native), f"no such file: {native}")
    return len(rows)


# Each list shares an application folder and a run of the program.
PARTS = [
    [a_tree_of_odd_files_is_added, the_search_box_and_the_artists, one_file_by_its_path, a_search_is_cancelled,
     the_program_ends_in_the_middle_of_a_search],
    [killed_while_it_adds],
    [the_store_cannot_grow_while_it_adds],
    [a_tree_beyond_the_limits_of_the_system, another_program_holds_the_store_while_it_adds],
    [the_store_is_read_only_while_it_adds],
    [playlist_files_come_in],
]


def run(scene, files, parts, number):
    person = Listener.__new__(Listener)
    person.stage = scene
    person.files = files
    person.music = files / f"Music{number}"
    person.music.mkdir()
    person.application = scene.make_application(f"app{number}")
    person.eyes = QuickEyes()
    person.program = None
    try:
        return scene.run_steps(parts, person, picture=f"failure-{number:02d}.png")
    finally:
        person.end()
        locked = pathlib.Path(person.music) / "locked"
        if locked.exists():
            locked.chmod(0o700)


def main():
    wanted = sys.argv[2:]
    build = stage.become_unprivileged(sys.argv[1])
    chosen = [parts for parts in PARTS if not wanted or any(part.__name__ in wanted for part in parts)]
    # Fewer folders stand beside it there than in the folder of the stage, so that the way to it is short.
    with tempfile.TemporaryDirectory(prefix="brindlepost-", dir="/var/tmp") as files, \
            stage.Stage(build, sound=False) as scene:
        results = [run(scene, pathlib.Path(files), parts, number) for number, parts in enumerate(chosen, 1)]
    if all(results) and results:
        scene.remove()
        return 0
    return 1


if __name__ == "__main__":
    sys.exit(main())
