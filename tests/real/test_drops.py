"""Drags from another program onto the running one: `test_drops.py BUILD_FOLDER`.

The other program is `drag_source`, whose window is one large thing to drag. It says what came of each drag.
"""

import re
import sys
import time

import stage as stages
from dragging import Dragging
from screening import Screening
from stage import make_tone, wait_for

PAGE = "<!doctype html><title>A dropped page</title><body>Dropped."
MANY = 50
SMALLEST = (9225 // 15, 7590 // 15)  # pixels with the frame of the program's own reckoning


class Failed(Exception):
    """What came of a drag is not what should."""


def check(condition, text):
    if not condition:
        raise Failed(text)


class Dropping(Dragging):
    def __init__(self, stage):
        self.stage = stage
        self.folder = stage.folder / "Files"
        self.page = self.folder / "page.html"
        self.one = make_tone(self.folder / "Ann - One.mp3", 440, 60)
        self.page.write_text(PAGE, encoding="utf-8")
        self.many = []
        for number in range(MANY):
            song = self.folder / f"Ben - Song {number:02}.mp3"
            song.write_bytes(self.one.read_bytes())
            self.many.append(song)
        self.known = make_tone(stage.folder / "Music" / "Film - Known.mp3", 660, 60)
        self.playlist = self.folder / "Evening.mpl"
        self.playlist.write_bytes(b"Ann - One\r\n\r\n")
        self.screening = Screening(stage, [("Known", self.known)])
        self.eyes = self.screening.eyes
        window = self.screening.main_window()
        stage.run("xdotool", "windowmove", "--sync", window, "0", "0")
        stage.run("xdotool", "windowsize", "--sync", window, "1000", "700")

    # -- what a person does --

    def row_of(self, name, text):
        """The middle of the row with that text."""
        row = [shown.strip() for shown in self.eyes.rows(name)].index(text)
        x, y, width, height = self.eyes.row_rect(name, row)
        return x + min(60, width // 2), y + height // 2

    def place_of(self, name, role=None):
        return self.eyes.centre(name, role)

    # -- what a person sees --

    def songs(self):
        return self.screening.rows_of("dbMedia", "select artist || ' - ' || title from tblSong")

    def played(self):
        """The paths of the history, the newest first."""
        return self.screening.rows_of(
            "dbHistory", "select HistoryText from tblHistory where HistoryType = 'Music' order by HistoryID desc")

    def cued(self):
        return [row.strip() for row in self.eyes.rows("Up next")]

    # -- the steps --

    def one_file_plays(self):
        check(self.drag(self.place_of("Address", "text"), self.one) == "taken", "the file was refused")
        wait_for("the song in the history", lambda: self.played() and "Ann - One.mp3" in self.played()[0])
        wait_for("the song in the library", lambda: "Ann - One" in self.songs())
        wait_for("the pause button", lambda: self.eyes.shows("Pause") and not self.eyes.shows("Play"))
        check(self.cued() == [], f"{self.cued()} are cued")

    def fifty_files_are_cued_once_each(self):
        check(self.drag(self.place_of("Address", "text"), *self.many) == "taken", "the files were refused")
        names = [song.stem for song in self.many]
        wait_for("the first to play", lambda: names[0] + ".mp3" in self.played()[0])
        wait_for("the others on the cue list", lambda: self.cued() == names[1:], 20)
        wait_for("all in the library", lambda: sorted(s for s in self.songs() if s.startswith("Ben")) == names)

    def files_on_the_cue_list_are_cued(self):
        before = self.cued()
        check(self.drag(self.place_of("Up next", "list"), self.known, *self.many) == "taken", "the files were refused")
        wait_for("the files on the cue list",
                 lambda: self.cued() == before + ["Film - Known"] + [song.stem for song in self.many], 20)

    def a_file_on_the_title_plays(self):
        check(self.drag(self.place_of("Track title"), self.known) == "taken", "the file was refused")
        wait_for("the song to play", lambda: "Film - Known.mp3" in self.played()[0])

    def a_file_on_the_tracks_is_a_row_of_them(self):
        check(self.drag(self.place_of("Tracks", "list"), self.many[7]) == "taken", "the file was refused")
        wait_for("the row", lambda: self.eyes.rows("Tracks")[-1].strip() == self.many[7].stem)

    def a_playlist_file_on_the_playlists_is_read(self):
        # The other program goes on while a box is open here: it was told at once that the file was taken.
        check(self.drag(self.place_of("Playlists", "list"), self.playlist) == "taken", "the file was refused")
        box = self.stage.window("Brindlepost$")
        check(self.eyes.shows("Playlist was added successfully."), "the box says something else")
        self.screening.press("OK")
        wait_for("the box to go", lambda: not self.stage.has_window_id(box))
        wait_for("the playlist", lambda: "Evening" in [row.strip() for row in self.eyes.rows("Playlists")], 20)
        wait_for("its song", lambda: "Ann - One" in self.in_playlist())

    def a_file_on_a_row_of_the_playlists_goes_into_it(self):
        check(self.drag(self.row_of("Playlists", "Evening"), self.known) == "taken", "the file was refused")
        wait_for("the song in the playlist", lambda: "Film - Known" in self.in_playlist())

    def a_file_on_a_built_in_row_goes_nowhere(self):
        before = self.in_playlist()
        self.drag(self.row_of("Playlists", "[Top 20]"), self.many[3])
        time.sleep(0.3)
        check(self.in_playlist() == before, f"{self.in_playlist()} after a drop on a built-in row")

    def a_track_goes_into_the_playlist_under_the_pointer(self):
        track = "Ben - Song 01"
        self.stage.click(*self.row_of("Playlists", "[All Media]"))
        wait_for("the tracks", lambda: track in [row.strip() for row in self.eyes.rows("Tracks")])
        check(track not in self.in_playlist(), f"{track} is in the playlist already")
        self.pull(self.row_of("Tracks", track), self.row_of("Playlists", "Evening"))
        wait_for(f"'{track}' in the playlist", lambda: track in self.in_playlist())

    def in_playlist(self):
        return self.screening.rows_of(
            "dbMedia", "select artist || ' - ' || title from tblPlayList where Name = 'Evening' and SongID <> ''")

    def a_text_is_taken(self):
        before = self.played()
        check(self.drag(self.place_of("Address", "text"), "--text", "http://127.0.0.1:9/") == "taken",
              "the text was refused")
        check(self.played() == before, "a text started something")
        wait_for("the text in the row",
                 lambda: self.eyes.text(self.eyes.find("Address", "text")) == "http://127.0.0.1:9/")

    def a_folder_is_refused(self):
        before = (self.played(), self.cued(), self.songs())
        for name in ("Address", "Favourites by group", "Up next", "Tracks", "Playlists", "Track title"):
            check(self.drag(self.place_of(name), self.folder) == "refused", f"{name} took a folder")
        check((self.played(), self.cued(), self.songs()) == before, "the folder did something")

    def a_folder_among_files_is_left_out(self):
        check(self.drag(self.place_of("Address", "text"), self.folder, self.one) == "taken", "the file was refused")
        wait_for("the song to play", lambda: "Ann - One.mp3" in self.played()[0])

    def nothing_takes_files_where_nothing_listens(self):
        check(self.drag(self.place_of("Stop"), self.one) == "refused", "a button took a file")

    def a_page_goes_to_the_favourites(self):
        check(self.drag(self.place_of("Favourites by group"), self.page) == "taken", "the page was refused")
        window = self.stage.window("Add Favourite")
        wait_for("the page's place in the box", lambda: any(
            "page.html" in self.eyes.text(node) for node in self.eyes.nodes() if node.get_role_name() == "text"))
        self.stage.key("Escape")
        wait_for("the box to go", lambda: not self.stage.has_window_id(window))

    def a_small_window_springs_back(self):
        window = self.screening.main_window()
        info = self.stage.run("xwininfo", "-id", window)
        x, y, width, height = (int(re.search(rf"{name}:\s+(-?\d+)", info)[1])
                               for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        # The window manager's grip is the right end of the bar below the window.
        grip = (x + width - 6, y + height + 2)
        self.stage.run("xdotool", "mousemove", *map(str, grip), "mousedown", "1")
        for step in range(1, 21):
            self.stage.run("xdotool", "mousemove", str(grip[0] - 40 * step), str(grip[1] - 28 * step))
            time.sleep(0.02)
        self.stage.run("xdotool", "mouseup", "1")
        wait_for("the window at its smallest", lambda: self.is_smallest(window), 5)
        self.stage.run("xdotool", "windowsize", window, "300", "200")
        time.sleep(0.3)
        wait_for("the window to spring back", lambda: self.is_smallest(window), 5)

    def is_smallest(self, window):
        """As large as the smallest size less the frame that the program reckons with."""
        _, _, width, height = self.stage.window_rect(window)
        return 0 <= SMALLEST[0] - width <= 10 and 0 <= SMALLEST[1] - height <= 60

    def still_runs(self):
        check(self.screening.program.poll() is None, "the program ended")
        check("rror" not in self.stage.program_output(), self.stage.program_output()[-2000:])

    def steps(self):
        return [self.one_file_plays, self.fifty_files_are_cued_once_each, self.files_on_the_cue_list_are_cued,
                self.a_file_on_the_title_plays, self.a_file_on_the_tracks_is_a_row_of_them,
                self.a_playlist_file_on_the_playlists_is_read, self.a_file_on_a_row_of_the_playlists_goes_into_it,
                self.a_file_on_a_built_in_row_goes_nowhere, self.a_track_goes_into_the_playlist_under_the_pointer,
                self.a_text_is_taken,
                self.a_folder_is_refused, self.a_folder_among_files_is_left_out,
                self.nothing_takes_files_where_nothing_listens, self.a_page_goes_to_the_favourites,
                self.a_small_window_springs_back, self.still_runs]


if __name__ == "__main__":
    sys.exit(stages.run_step_by_step(sys.argv[1], Dropping))
