"""The tour through the library and the player that follows the first road: playlists, search, the built-in views, the
clean-up, and everything the player can do with a song, a video and a light show.

Each step does what a person does, waits for what the person would see or hear, checks it and returns what it measured
as (what, value), as in `story.py`. A step may lay a picture of a measured course into `drawing`.
"""

import re

import levels
from stage import level_of_tone, loudness, wait_for
from story import SONGS, Story, check, check_equal

LIST_NAME = "Evening"
SPECIAL = ["[All Media]", "[Last 20]", "[Top 20]"]
SPEAKERS = [("Left", True, False), ("Right", False, True), ("Both", True, True)]
# Entry of the menu, and a test of one pixel that only its light can pass.
LIGHTS = {
    "Strobe Light": lambda red, green, blue: blue > 240 and red < 20 and green < 20,
    "Party Light": lambda red, green, blue: max(red, green, blue) > 240 and min(red, green, blue) < 20,
    "Mood Light": lambda red, green, blue: red > 150 or green > 150 or blue > 150,
    "Animation": lambda red, green, blue: max(red, green, blue) > 120,
}


class Tour(Story):
    drawing = None

    # -- the library --

    def tracks(self):
        return self.eyes.rows("Tracks")

    def playlists(self):
        return [row.strip() for row in self.eyes.rows("Playlists")]

    def wait_for_tracks(self, expected):
        wait_for(f"the tracks {expected}, not {self.tracks()}", lambda: self.tracks() == expected)

    def new_playlist(self):
        self.choose_menu("File", "New", "Play list")
        self.stage.window("New Play List$")
        self.write_into("What would you like to call the new play list?", LIST_NAME)
        if self.on_box:
            self.on_box("New Play List")
        self.stage.key("Return")
        wait_for("the new playlist in the list", lambda: self.playlists() == SPECIAL + [LIST_NAME])
        check_equal("rows of the playlist table", self.rows_of("dbMedia", "select Name, SongID from tblPlayList"),
                    [f"{LIST_NAME}|"])
        return [("playlist", LIST_NAME)]

    def add_to_playlist(self, kind):
        self.choose_text("Tracks", SONGS[kind][1])
        self.press("Add song to a playlist")
        self.choose_text("Playlist to add the song to", LIST_NAME)
        if self.on_box:
            self.on_box("Add to playlist")
        self.press("Add to playlist")
        wait_for("the panel to go", lambda: not self.eyes.shows("Playlist to add the song to", "list"))

    def fill_playlist(self):
        self.add_to_playlist("wav")
        self.add_to_playlist("mp3")
        stored = self.rows_of("dbMedia", "select artist, title from tblPlayList where SongID <> '' order by PlayListID")
        check_equal("songs of the playlist", stored, ["Bell Tower|Two Pitches", "Ada Larkspur|Morning Tone"])
        return [("songs in it", str(len(stored)))]

    def open_playlist(self):
        self.choose_text("Playlists", LIST_NAME)
        self.wait_for_tracks([SONGS["wav"][1], SONGS["mp3"][1]])
        check_equal("the artists", [row.strip() for row in self.eyes.rows("Artists")],
                    ["[All Artists]", "Ada Larkspur", "Bell Tower"])
        return [("tracks", str(len(self.tracks())))]

    def search(self, text, expected):
        self.choose_text("Playlists", "[All Media]")
        self.write_into("Search tracks", text)
        wait_for(f"the hits for '{text}', not {self.tracks()}", lambda: sorted(self.tracks()) == sorted(expected))
        return [("searched for", text), ("hits", str(len(expected)))]

    def search_everywhere(self):
        return self.search("picture", [song[1] for song in SONGS.values() if "Picture" in song[1]])

    def search_artists(self):
        self.choose_menu("Search", "Song Search", "Artist")
        return self.search("delta pic", [SONGS["mpg"][1]])

    def all_media(self):
        self.choose_text("Playlists", "[All Media]")
        wait_for("every track", lambda: len(self.tracks()) == len(SONGS) - 1)
        return []

    def end_search(self):
        self.choose_menu("Search", "Song Search", "Broad Search")
        self.write_into("Search tracks", " ")
        self.stage.key("BackSpace")
        wait_for("all tracks again", lambda: len(self.tracks()) == len(SONGS))
        return []

    def top_20(self):
        stored = self.rows_of("dbMedia", "select PlayCount, SongID, artist || ' - ' || title from tblSong where PlayCount > 0")
        rows = sorted((f"{int(count):05d}", song, text) for count, song, text in (row.split("|") for row in stored))
        self.choose_text("Playlists", "[Top 20]")
        self.wait_for_tracks([text for _, _, text in reversed(rows)])
        return [("songs played so far", str(len(rows)))]

    def last_20(self):
        played = self.rows_of("dbHistory", "select HistoryText from tblHistory where HistoryType = 'Music' order by HistoryID desc")
        texts = {"C:" + str(self.music / song[0]).replace("/", "\\"): song[1] for song in SONGS.values()}
        self.choose_text("Playlists", "[Last 20]")
        self.wait_for_tracks([texts[path] for path in played[:20]])
        return [("songs listed", str(min(20, len(played))))]

    def clean_up(self):
        shown = self.tracks()
        (self.music / SONGS["wmv"][0]).unlink()
        self.choose_menu("Music Player", "Clean-up Duplicates")
        self.stage.window("Clean-up Duplicates$")
        question = self._box_text("")
        check(question and question.startswith("This may take a long time"), f"the question reads '{question}'")
        if self.on_box:
            self.on_box("Clean-up Duplicates")
        self.press("Yes", "push button")
        wait_for("the row of the file that is gone to go", lambda: self.rows_of(
            "dbMedia", "select count(*) from tblSong") == [str(len(SONGS) - 1)])
        # Without duplicates the lists stay as they were.
        wait_for("the panel to go", lambda: not self.eyes.shows("Cleanup in progress, please wait..."))
        check_equal("the tracks after the clean-up", self.tracks(), shown)
        return [("rows left", str(len(SONGS) - 1))]

    # -- the player --

    def play_afresh(self, kind):
        """From silence: the same song twice in a row would cross over to itself."""
        self.press("Stop")
        self.hear_nothing("stop")
        return self.play(kind)

    def draw(self, name, title, seconds, tones=None):
        """Draws the newest stretch of the recording: one curve a tone of the left channel, or one a channel."""
        left, right = ([sample / 32768 for sample in side] for side in self.recorder.last(seconds))
        curves = levels.curves_of_tones(left, tones) if tones else levels.curves_of_channels(left, right)
        self.drawing = self.stage.folder / f"{name}.svg"
        self.drawing.write_text(levels.draw(curves, title))

    def cross_fade(self):
        self.play_afresh("mp3")
        self.choose_text("Tracks", SONGS["wav"][1], times=2)
        self.hear("the second song", 660)
        wait_for("the first song to be gone", lambda: self._is_alone(660, 880, "wav"), 12)
        self.record(0.5)
        self.draw("cross-fade", "Cross fade, quick: both songs on the left channel", 6.0, [440, 660])
        return [("first song", "440 Hz"), ("second song", "660 and 880 Hz")]

    def pan(self):
        self.play_afresh("mp3")
        self.choose_menu("Music Player", "Special", "Volume Panning", "Quick")
        left, right = self.record(3.0)
        self.draw("panning", "Volume panning, quick: one song on both channels", 3.0)
        swing = [level_of_tone(side[begin:begin + 4410], 440) for side in (left, right) for begin in range(44100, 129000, 4410)]
        half = len(swing) // 2
        for name, side in (("left", swing[:half]), ("right", swing[half:])):
            check(max(side) > 0.4 and min(side) < 0.1, f"{name} does not swing: {min(side):.2f} to {max(side):.2f}")
        self.choose_menu("Music Player", "Special", "Volume Panning", "Off")
        return [("left", f"{min(swing[:half]):.2f} to {max(swing[:half]):.2f}"),
                ("right", f"{min(swing[half:]):.2f} to {max(swing[half:]):.2f}")]

    def speaker_test(self):
        self.play_afresh("mp3")
        self.choose_menu("Music Player", "Sound Test")
        self.stage.window("Sound Test$")
        measured = []
        for button, on_left, on_right in SPEAKERS:
            self.press(button, "push button")
            wait_for(f"{button} alone", lambda l=on_left, r=on_right: self._hears_sides(l, r))
            left, right = self.record(0.3)
            measured.append((button, f"{level_of_tone(left, 440):.2f} left, {level_of_tone(right, 440):.2f} right"))
        if self.on_box:
            self.on_box("Sound Test")
        self.stage.key("alt+F4")
        wait_for("the dialog to go", lambda: not self.stage.has_window("Sound Test$"))
        return measured

    def _hears_sides(self, on_left, on_right):
        left, right = self.recorder.last(0.3)
        return [level_of_tone(side, 440) > 0.2 for side in (left, right)] == [on_left, on_right] and all(
            on or loudness(side) < 0.01 for on, side in ((on_left, left), (on_right, right)))

    # -- what the house outside is told --

    def tell_the_house(self):
        self.play_afresh("mp3")
        told = wait_for("the player on the bus", self._metadata)
        check("Morning Tone" in told and "Ada Larkspur" in told, f"the bus is told {told}")
        players = self._players()
        check_equal("players on the bus", len(players), 1)
        return [("player", players[0]), ("title", "Morning Tone"), ("artist", "Ada Larkspur")]

    def _players(self):
        names = self.stage.run("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/",
                               "--method", "org.freedesktop.DBus.ListNames")
        return re.findall(r"org\.mpris\.MediaPlayer2\.[\w.]+", names)

    def _metadata(self):
        players = self._players()
        if not players:
            return None
        return self.stage.run("gdbus", "call", "--session", "--dest", players[0], "--object-path",
                              "/org/mpris/MediaPlayer2", "--method", "org.freedesktop.DBus.Properties.Get",
                              "org.mpris.MediaPlayer2.Player", "Metadata") or None

    # -- pictures --

    def video_window(self):
        return self.stage.window(re.escape(SONGS["mpg"][1]))

    def video_in_its_hole(self):
        self.play_afresh("mpg")
        rect = self.stage.window_rect(self.video_window())
        wait_for("the picture's colours", lambda: self._bright_colours(rect))
        return [("video window", f"{rect[2]} x {rect[3]} at {rect[0]}, {rect[1]}")]

    def video_floats(self):
        left, top, width, _ = self.stage.window_rect(self.video_window())
        grip = (left + width // 2, top + 8)
        self.stage.run("xdotool", "mousemove", str(grip[0]), str(grip[1]), "mousedown", "1")
        for step in range(1, 13):
            self.stage.run("xdotool", "mousemove", str(grip[0] + 6 * step), str(grip[1] + 4 * step))
        self.stage.run("xdotool", "mouseup", "1")
        moved = wait_for("the video window to follow the hand", lambda: self._moved_from(left, top))
        wait_for("the picture's colours", lambda: self._bright_colours(moved))
        return [("video window", f"{moved[2]} x {moved[3]} at {moved[0]}, {moved[1]}")]

    def _moved_from(self, left, top):
        rect = self.stage.window_rect(self.video_window())
        return rect if abs(rect[0] - left) + abs(rect[1] - top) > 20 else None

    def video_fills_the_screen(self):
        self.press("Full screen, or back into the main window")
        rect = wait_for("the large window", lambda: self._wide_video())
        wait_for("the picture's colours", lambda: self._bright_colours(rect))
        return [("video window", f"{rect[2]} x {rect[3]}")]

    def _wide_video(self):
        rect = self.stage.window_rect(self.video_window())
        return rect if rect[2] > 1200 else None

    def video_back(self):
        self.press("Full screen, or back into the main window")
        wait_for("the small window", lambda: not self._wide_video())
        self.stop_video()
        return []

    # The window keeps a video's title until the next song starts.
    light_window = r"(Visualisations|Video|.*\[Video\])$"

    def light_show(self, entry):
        self.choose_menu("Music Player", "Special", "Visualisations", entry)
        rect = self.stage.window_rect(self.stage.window(self.light_window))
        seen = LIGHTS[entry]
        wait_for(f"the light of '{entry}'", lambda: any(seen(*pixel) for pixel in self.stage.pixels(rect, (12, 9))))
        return [("window", f"{rect[2]} x {rect[3]}")]

    def lights_out(self):
        self.choose_menu("Music Player", "Special", "Visualisations", "None")
        wait_for("the light's window to go", lambda: not self.stage.has_window(self.light_window))
        return []

    def steps(self):
        road = super().steps()
        lights = [(f"A light show: {entry}", lambda entry=entry: self.light_show(entry)) for entry in LIGHTS]
        # The music for the lights must not come to the videos after it in the list.
        lights.insert(-1, ("The music from its beginning", lambda: self.play_afresh("mp3")))
        tour = [
            ("A new playlist", self.new_playlist),
            ("Two songs are put into it", self.fill_playlist),
            ("The playlist is opened", self.open_playlist),
            ("A search over artists and titles", self.search_everywhere),
            ("A search in one field", self.search_artists),
            ("An empty search box brings all back", self.end_search),
            ("[Top 20]: what was played most", self.top_20),
            ("[Last 20]: what was played last", self.last_20),
            ("The clean-up drops what is gone", self.clean_up),
("All media again", self.all_media),
            ("One song crosses over to the next", self.cross_fade),
            ("The sound swings from side to side", self.pan),
            ("The speaker test", self.speaker_test),
            ("Another program on the bus shows what plays", self.tell_the_house),
            ("A video in its hole", self.video_in_its_hole),
            ("The video floats", self.video_floats),
            ("The video fills the screen", self.video_fills_the_screen),
            ("Back, and stopped", self.video_back),
            ("Music for the lights", lambda: self.play_afresh("mp3")),
            *lights,
            ("The light goes out", self.lights_out),
        ]
        return road[:-1] + tour + road[-1:]
