"""The errands after the tour: preferences, back-up, an emptied library and its return, files from outside, the about box,
another user, and a second start.

Each step does what a person does, waits for what the person would see or hear, checks it and returns what it measured
as (what, value), as in `story.py`.
"""

import time

from stage import wait_for
from story import PASSWORD, SONGS, USER, check, check_equal
from tour import LIST_NAME, SPECIAL, Tour

PREFERENCES = "Brindlepost - Preferences$"
FILES_OPTION = "Allow file open on address bar"
FILES_ROW = "select HistoryText from tblHistory where HistoryID = 18"
DAY_ROW = "select HistoryText from tblHistory where HistoryID = 6"
LIST_LINES = ["Bell Tower - Two Pitches", "Ada Larkspur - Morning Tone"]
OTHER_LIST = "Morning"
OTHER_USER = "Bob"


class Errands(Tour):

    # -- preferences --

    def preferences(self):
        self.choose_menu("Options", "Preferences")
        self.stage.window(PREFERENCES)
        check(self.eyes.is_ticked(self.eyes.find(FILES_OPTION, "check box")), "the option is not ticked at first")
        self.press(FILES_OPTION, "check box")
        self.press("Apply", "push button")
        self.answer_box("Settings Saved$", "Your settings have been saved.\nMost changes will only take affect when you "
                        "restart this application.", "OK")
        wait_for("the preferences to go", lambda: not self.stage.has_window(PREFERENCES))
        check_equal("the stored option", self.rows_of("dbHistory", FILES_ROW), ["False"])
        return [("option", FILES_OPTION), ("stored as", "False")]

    def option_is_known(self):
        """After a start: the row of modes has no files, and the box is not ticked; it is ticked again."""
        self.choose_menu("Options", "Preferences")
        self.stage.window(PREFERENCES)
        self.press("Options", "push button")
        check(not self.eyes.is_ticked(self.eyes.find(FILES_OPTION, "check box")), "the option is ticked again")
        if self.on_box:
            self.on_box("Preferences")
        self.press(FILES_OPTION, "check box")
        self.press("Apply", "push button")
        self.stage.window("Settings Saved$")
        self.stage.key("Return")
        wait_for("the preferences to go", lambda: not self.stage.has_window(PREFERENCES))
        check_equal("the stored option", self.rows_of("dbHistory", FILES_ROW), ["True"])
        return [("stored as", "True")]

    # -- a back-up, an empty library, and all of it again --

    def back_up(self):
        self.choose_menu("Edit", "Playlists")
        self.stage.window(PREFERENCES)
        self.choose_text("Play lists", LIST_NAME)
        if self.on_box:
            self.on_box("Back-up")
        self.press("Back Up All", "push button")
        path = self.application / "BackUp" / f"{LIST_NAME}.mpl"
        wait_for("the file of the back-up", path.exists)
        check_equal("its lines", path.read_bytes(), "".join(line + "\r\n" for line in LIST_LINES + [""]).encode())
        today = time.strftime("%Y%m%d")
        wait_for("the day of the back-up", lambda: self.rows_of("dbHistory", DAY_ROW) == [today])
        self.stage.key("Escape")
        wait_for("the preferences to go", lambda: not self.stage.has_window(PREFERENCES))
        return [("file", path.name), ("lines", str(len(LIST_LINES)))]

    def empty_library(self):
        # A song that ends in an empty library brings the box that every track is missing.
        self.press("Stop")
        self.hear_nothing("stop")
        self.choose_menu("Options", "Preferences")
        self.press("Maintenance", "push button")
        self.press("Empty Library", "push button")
        self.answer_box("Emptying Library$", "Are you sure you want to delete every file from your media library?", "Yes")
        self.answer_box("Emptying Library$", "Media library is now empty.\nWould you like to add new media now?", "Yes")
        wait_for("the empty list", lambda: self.rows_of("dbMedia", "select count(*) from tblSong") == ["0"])
        check_equal("rows of the playlist table", self.rows_of("dbMedia", "select count(*) from tblPlayList"), ["0"])
        self.eyes.find("Get Files", "push button")
        return []

    def add_again(self):
        left = sorted(song[1] for kind, song in SONGS.items() if (self.music / song[0]).exists())
        for part in self.music.parts[1:]:
            self.choose_text("Folder to search", part, times=2)
            wait_for(f"the folder '{part}' to open", lambda p=part: self._stands_in(p))
        self.press("Get Files", "push button")
        wait_for("the files found", lambda: len(self.eyes.rows("Files found")) == len(left), 20)
        self.press("Add all")
        wait_for("the tracks in the list", lambda: self.eyes.shows("Tracks", "list") and sorted(self.tracks()) == left)
        check_equal("the playlists", self.playlists(), SPECIAL)
        # The preferences are still there, over the lists.
        self.press("Maintenance", "push button")
        self.stage.key("Escape")
        wait_for("the preferences to go", lambda: not self.stage.has_window(PREFERENCES))
        return [("songs", str(len(left)))]

    def import_back_up(self):
        path = "C:" + str(self.application / "BackUp" / f"{LIST_NAME}.mpl").replace("/", "\\")
        self.write_into("Address", path, "text")
        self.stage.key("Return")
        self.answer_box("Brindlepost$", "Playlist was added successfully.", "OK")
        wait_for("the playlist", lambda: self.playlists() == SPECIAL + [LIST_NAME])
        self.choose_text("Playlists", LIST_NAME)
        self.wait_for_tracks(LIST_LINES)
        return [("playlist", LIST_NAME), ("tracks", str(len(self.tracks())))]

    def import_foreign_list(self):
        """A list of another player: relative paths, and a song that nobody has."""
        path = self.music / f"{OTHER_LIST}.m3u"
        path.write_text(f"#EXTM3U\n#EXTINF:30,Ada Larkspur - Morning Tone\n{SONGS['mp3'][0]}\n#EXTINF:1,Nobody - Nothing\ngone.mp3\n")
        self.write_into("Address", "C:" + str(path).replace("/", "\\"), "text")
        self.stage.key("Return")
        self.answer_box("Brindlepost$", "The following songs could not be added to the playlist:\nNobody - Nothing\n", "OK")
        wait_for("the playlist", lambda: OTHER_LIST in self.playlists())
        self.choose_text("Playlists", OTHER_LIST)
        self.wait_for_tracks([SONGS["mp3"][1]])
        return [("playlist", OTHER_LIST), ("songs that were missing", "1")]

    # -- files from outside --

    def second_start(self):
        self.choose_text("Playlists", "[All Media]")
        self.press("Stop")
        self.hear_nothing("stop")
        first, second = (self.music / SONGS[kind][0] for kind in ("wav", "mp3"))
        later = self.stage.launch(self.application, str(first), str(second))
        check_equal("exit code of the second start", wait_for("its end", lambda: self._exit_code(later)), "0")
        self.hear("the first file", 660)
        wait_for("the second file in the cue list", lambda: self.eyes.rows("Up next") == [second.stem])
        check_equal("who is in front", self.stage.front_window(), "Brindlepost - Music Player")
        return [("heard", first.stem), ("cued", second.stem)]

    # -- who made it --

    def about(self):
        self.choose_menu("Help", "About")
        self.stage.window("About Brindlepost$")
        version = wait_for("the version", lambda: next(
            (node.get_name() for node in self.eyes.nodes() if (node.get_name() or "").startswith("Version ")), None))
        if self.on_box:
            self.on_box("About")
        self.stage.key("Escape")
        wait_for("the box to go", lambda: not self.stage.has_window("About Brindlepost$"))
        return [("told", version)]

    # -- another user --

    def log_out(self):
        self.choose_menu("File", "Log Out")
        self.stage.window("Brindlepost - Login$")
        wait_for("the main window to go", lambda: not self.stage.has_window("Brindlepost - Music Player"))
        self.hear_nothing("log out")
        return []

    def log_in_again(self):
        wait_for("the remembered user", lambda: self.login_name() == USER)
        self.write_into("Password", PASSWORD, "password text")
        self.stage.key("Return")
        wait_for("the login to go", lambda: not self.stage.has_window("Brindlepost - Login"))
        self.stage.window("Brindlepost - Music Player")
        return []

    def steps(self):
        road = super().steps()
        return road[:-1] + [
            ("Preferences: an option is changed", self.preferences),
            ("Help, About", self.about),
            ("All play lists are backed up", self.back_up),
            ("The library is emptied", self.empty_library),
            ("The same folder is added again", self.add_again),
            ("The play list comes back from its file", self.import_back_up),
            ("A list of another player", self.import_foreign_list),
            ("A second start hands over two files", self.second_start),
            ("Log out takes everything away", self.log_out),
            ("Logged in again: the option is known", self.log_in_again),
            ("The preferences say so", self.option_is_known),
        ] + road[-1:]
