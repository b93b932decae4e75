"""The road from an empty machine to a song and a page, walked on the real program with real mouse and keyboard events.

Each step does what a person does, waits for what the person would see or hear, and checks it. A step returns what it
measured as a list of (what, value) for the demo's summary; a check that fails raises StoryError with the difference.
"""

import re
import subprocess
import time

from stage import Eyes, PageServer, Recorder, level_of_tone, loudness, make_midi, make_tone, role_of, wait_for

USER = "Ada"
PASSWORD = "open sesame"

# (file below the music folder, artist and title in the lists, pitch left, pitch right, seconds)
SONGS = {
    "mp3": ("Ada Larkspur - Morning Tone.mp3", "Ada Larkspur - Morning Tone", 440, 440, 30),
    "wav": ("Bell Tower - Two Pitches.wav", "Bell Tower - Two Pitches", 660, 880, 12),
    "mid": ("Clay Flute - One Note.mid", "Clay Flute - One Note", 440, 440, 12),
    "mpg": ("Videos/Delta Pictures - Moving Picture.mpg", "Delta Pictures - Moving Picture [Video]", 550, 550, 25),
    "avi": ("Videos/Echo Pictures - Small Picture.avi", "Echo Pictures - Small Picture [Video]", 700, 700, 8),
    "wmv": ("Videos/Foxglove - Third Picture.wmv", "Foxglove - Third Picture [Video]", 800, 800, 8),
}
NOT_MEDIA = "notes.txt"

PAGE = """<!doctype html><html><head><title>{title}</title><style>
body {{ margin: 0; background: {colour}; color: white; font: 20px sans-serif; }}
main {{ max-width: 620px; margin: 60px auto; }} a {{ color: white; }}
</style></head><body><main><h1>{title}</h1><p>{text}</p></main></body></html>"""
PAGES = {
    "/first": PAGE.format(title="First page", colour="#1f6f8b", text="A page from the house's own server."),
    "/second": PAGE.format(title="Second page", colour="#8b3a1f", text="Another page, in a tab of its own."),
}
FIRST_COLOUR = (0x1F, 0x6F, 0x8B)
SECOND_COLOUR = (0x8B, 0x3A, 0x1F)


class StoryError(Exception):
    """What the person would have seen or heard is not what came."""


def check(condition, text):
    if not condition:
        raise StoryError(text)


def check_equal(what, found, expected):
    check(found == expected, f"{what}: found {found!r}, expected {expected!r}")


def seconds_of(running_time):
    """The seconds played out of "0:07/0:30"."""
    match = re.match(r"\s*-?(\d+):(\d\d)", running_time or "")
    return int(match.group(1)) * 60 + int(match.group(2)) if match else None


class Story:
    """One stage, one application folder and the person in front of it."""

    def __init__(self, stage):
        self.stage = stage
        self.music = stage.folder / "Music"
        self.application = stage.make_application()
        self.eyes = Eyes()
        self.pages = PageServer(PAGES)
        self.recorder = Recorder(stage, stage.folder / "sound.raw") if stage.sound else None
        self.program = None
        self.media_made = False

    def close(self):
        self.pages.close()

    # -- what a person does --

    def press(self, name, role=None, times=1, seconds=10):
        self.stage.click(*self.eyes.centre(name, role, seconds), times=times)

    def write_into(self, name, text, role=None):
        """Puts a text in place of what a box holds."""
        box = self.eyes.find(name, role)
        x, y, width, height = self.eyes.rect(box)
        self.stage.click(x + width // 2, y + height // 2)
        self.stage.key("ctrl+a")
        self.stage.type(text)

    def choose_row(self, list_name, row, times=1):
        """Clicks a row of a list; a row out of view is reached with the keys first."""
        left, top, width, height = self.eyes.rect(self.eyes.find(list_name, "list"))
        rect = self.eyes.row_rect(list_name, row)
        if rect[1] < top or rect[1] + rect[3] > top + height:
            self.stage.click(left + width // 2, top + height // 2)
            rect = wait_for(f"row {row} of '{list_name}' in view", lambda: self._page_to_row(list_name, row), 30)
        self.stage.click(rect[0] + min(60, rect[2] // 2), rect[1] + rect[3] // 2, times=times)

    def _page_to_row(self, list_name, row):
        """The place of a row that is in view; else the keys that should bring it there are pressed."""
        _, top, _, height = self.eyes.rect(self.eyes.find(list_name, "list"))
        rect = self.eyes.row_rect(list_name, row)
        if rect[1] < top:
            self.stage.key("Up")
        elif rect[1] + rect[3] > top + height:
            pages = -(-(rect[1] - top) // height)
            self.stage.key(*(["Next"] * min(pages, 200)))
        else:
            return rect
        return None

    def choose_text(self, list_name, text, times=1):
        rows = self.eyes.rows(list_name)
        found = [index for index, row in enumerate(rows) if row.strip() == text]
        check(found, f"no row '{text}' in '{list_name}', which holds {rows}")
        self.choose_row(list_name, found[0], times)

    def answer_box(self, title, text, button):
        """Waits for a message box, compares its text and presses one of its buttons."""
        window = self.stage.window(title)
        label = wait_for(f"the text of the box '{title}'", lambda: self._box_text(text))
        check_equal(f"text of the box '{title}'", label, text)
        picture = self.on_box(title) if self.on_box else None
        self.press(button, "push button")
        wait_for(f"the box '{title}' to go", lambda: not self.stage.has_window_id(window))
        return picture

    on_box = None  # called with a box's title while the box stands there

    def _box_text(self, expected):
        """The expected text when it stands in a message box, else the longest text of the box in front."""
        texts = []
        for node in self.eyes.nodes():
            if node.get_role_name() not in ("dialog", "alert"):
                continue
            for inner in self.eyes.below(node):
                if inner.get_role_name() == "label":
                    texts.append(inner.get_name())
        if expected in texts:
            return expected
        return max(texts, key=len) if texts else None

    def choose_menu(self, *captions):
        """Opens a menu of the menu bar and picks an entry, level by level."""
        for depth, caption in enumerate(captions):
            self.press(caption, "menu item")
            if depth + 1 < len(captions):
                wait_for(f"the entries below '{caption}'", lambda d=depth: self.eyes.shows(captions[d + 1], "menu item"))

    # -- what a person sees and hears --

    def rows_of(self, store, query):
        done = subprocess.run(["sqlite3", "-separator", "|", str(self.application / (store + ".mdb")), query],
                              capture_output=True, text=True, check=True)
        return done.stdout.splitlines()

    def running_time(self):
        for node in self.eyes.nodes():
            if role_of(node) in ("label", "push button") and re.fullmatch(r"\s*-?\d+:\d\d\s*/\s*\d+:\d\d\s*", node.get_name() or ""):
                return node.get_name().strip()
        return None

    def title(self):
        return self.eyes.find("What is playing").get_description()

    def marker(self):
        """How far the song's marker stands from the left of its bar, in pixels."""
        bar = self.eyes.rect(self.eyes.find("Position in the song"))
        return self.eyes.rect(self.eyes.find("Position"))[0] - bar[0]

    def hear(self, what, frequency, seconds=10, least=0.05):
        wait_for(f"{what}: the tone of {frequency} Hz", lambda: self.recorder.hears(frequency, least=least), seconds)

    def hear_nothing(self, what, seconds=5):
        wait_for(f"{what}: silence", lambda: self.recorder.is_silent(), seconds)

    def record(self, seconds):
        """The next `seconds` of the recording, counted from now."""
        end = self.recorder.seconds() + seconds
        wait_for("the recording to go on", lambda: self.recorder.seconds() >= end, seconds + 10)
        return self.recorder.last(seconds)

    def main_window(self, caption, seconds=10):
        return self.stage.window(re.escape(caption) + "$", seconds)

    # -- the road --

    def make_media(self):
        for name, _, left, right, seconds in SONGS.values():
            path = self.music / name
            path.parent.mkdir(parents=True, exist_ok=True)
            if path.suffix == ".mid":
                make_midi(path, 69, seconds)
            else:
                make_tone(path, left, seconds, right)
        (self.music / NOT_MEDIA).write_text("Not a song.\n")

    def start(self):
        begin = time.monotonic()
        self.program = self.stage.launch(self.application)
        self.stage.window("Brindlepost - Login$")
        login = time.monotonic() - begin
        self.stage.window("Brindlepost$")
        wait_for("the lists behind the login", lambda: self.eyes.shows("[All Media]") or self.eyes.shows("  [All Media]"))
        self.eyes.find("Login", "push button")
        wait_for("the login in front", lambda: self.stage.front_window() == "Brindlepost - Login")
        wait_for("the login above the splash and the main window",
                 lambda: self.stage.stacking()[-1] == "Brindlepost - Login")
        check_equal("users before the first start", self.rows_of("dbLogin", "select UserName from tblLogin"), [])
        return [("start to login window", f"{login * 1000:.0f} ms")]

    def fill_first_page(self):
        self.press("New User", "push button")
        self.eyes.find("New user name")
        self.write_into("New user name", USER)
        self.write_into("New password", PASSWORD)
        self.write_into("Re-type new password", PASSWORD + "!")
        return []

    def wrong_second_password(self):
        self.press("Next >", "push button")
        self.answer_box("Brindlepost$", "Your passwords do not match or are of no length, please check and re-enter.", "OK")
        check(self.eyes.shows("New user name"), "the first page went away after the box")
        check_equal("users after the refusal", self.rows_of("dbLogin", "select UserName from tblLogin"), [])
        return []

    def finish_wizard(self):
        self.write_into("Re-type new password", PASSWORD)
        self.press("Next >", "push button")
        self.eyes.find("MySpace e-mail")
        self.write_into("MySpace e-mail", "ada@example.org")
        return []

    def user_stands_in_login(self):
        self.press("Finish", "push button")
        self.eyes.find("Login", "push button")
        wait_for("the new user in the login", lambda: self.login_name() == USER)
        check_equal("the stored user", self.rows_of("dbLogin", "select UserName, Password, MySpaceE, RememberMe from tblLogin"),
                    [f"{USER}|{PASSWORD}| ada@example.org|False"])
        self.press("Remember me", "check box")
        return [("stored user", USER)]

    def login_name(self):
        """The user name that stands in the login; a combo box says what is in it as its description."""
        for window in self.eyes.find_all("Brindlepost - Login"):
            for node in self.eyes.below(window):
                if node.get_role_name() == "combo box":
                    return node.get_description()
        return None

    def log_in(self):
        self.press("Login", "push button")
        wait_for("the login to go", lambda: not self.stage.has_window("Brindlepost - Login"))
        return self.watch_the_splash()

    def watch_the_splash(self):
        begin = time.monotonic()
        seen = []

        def counting():
            # The window is looked for before the bar: one that shows between the two looks is on time.
            stands = self.stage.has_window("Brindlepost - Music Player")
            bars = self.eyes.find_all("Loading", "progress bar")
            if bars:
                seen.append(self.eyes.value(bars[0]) or 0)
                if self.on_splash and 40 <= seen[-1]:
                    self.on_splash()
                    self.on_splash = None
                check(not stands or seen[-1] >= 90, f"the main window stands there while the splash counts {seen[-1]}")
            return stands

        # Behind the login the main window stood; the splash puts it away before it counts.
        wait_for("the main window to go", lambda: not self.stage.has_window("Brindlepost - Music Player"))
        wait_for("the main window", counting, 30)
        wait_for("the splash to go", lambda: not self.stage.has_window("Brindlepost$") or self.eyes.shows("Yes"))
        check(seen and max(seen) > 60, f"the splash did not count up: {seen}")
        return [("login to main window", f"{time.monotonic() - begin:.1f} s"), ("highest count seen", f"{max(seen):.0f}")]

    on_splash = None  # called once while the splash counts

    def offer_to_add_media(self):
        self.answer_box("Add Media", "You currently have no media files in your library, would you like to add media now?",
                        "Yes")
        self.eyes.find("Get Files", "push button")
        return []

    def find_files(self):
        for part in self.music.parts[1:]:
            self.choose_text("Folder to search", part, times=2)
            wait_for(f"the folder '{part}' to open", lambda p=part: self._stands_in(p))
        self.press("Get Files", "push button")
        wait_for("the files found", lambda: len(self.eyes.rows("Files found")) == len(SONGS), 20)
        rows = self.eyes.rows("Files found")
        expected = sorted("C:" + str(self.music / song[0]).replace("/", "\\") for song in SONGS.values())
        check_equal("the files found", sorted(rows), expected)
        return [("files found", str(len(rows)))]

    def _stands_in(self, name):
        shown = self.eyes.find("Folder to search", "list")
        for index in range(shown.get_child_count()):
            row = shown.get_child_at_index(index)
            if row.get_name().strip() == name and row.get_state_set().contains(self.eyes.selected):
                following = shown.get_child_at_index(index + 1) if index + 1 < shown.get_child_count() else None
                indent = len(row.get_name()) - len(row.get_name().lstrip())
                if following is None:
                    return True
                deeper = len(following.get_name()) - len(following.get_name().lstrip())
                return deeper != indent
        return False

    def add_all(self):
        begin = time.monotonic()
        self.press("Add all")
        expected = sorted(song[1] for song in SONGS.values())
        wait_for("the tracks in the list", lambda: self.eyes.shows("Tracks", "list") and sorted(self.eyes.rows("Tracks")) == expected)
        took = time.monotonic() - begin
        check_equal("the artists", [row.strip() for row in self.eyes.rows("Artists")],
                    ["[All Artists]"] + sorted(text.split(" - ")[0] for text in expected))
        check_equal("the playlists", [row.strip() for row in self.eyes.rows("Playlists")],
                    ["[All Media]", "[Last 20]", "[Top 20]"])
        stored = self.rows_of("dbMedia", "select SongID, artist, title, FilePath from tblSong order by SongID")
        check_equal("rows of the song table", len(stored), len(SONGS))
        check_equal("the keys", [row.split("|")[0] for row in stored], [str(key + 1) for key in range(len(SONGS))])
        check(not any(NOT_MEDIA in row for row in stored), "a text file was taken for a song")
        return [("songs stored", str(len(stored))), ("add all to lists", f"{took:.2f} s")]

    def play(self, kind):
        """Double click on a track; what is heard is on the right channels at the right pitches."""
        name, text, left_tone, right_tone, seconds = SONGS[kind]
        begin = time.monotonic()
        self.choose_text("Tracks", text, times=2)
        least = 0.01 if kind == "mid" else 0.1
        self.hear(name, left_tone, least=least)
        first = time.monotonic() - begin
        # A cross fade may still run; the tone of the song stands alone when it is over.
        wait_for(f"{name} alone", lambda: self._is_alone(left_tone, right_tone, kind), 12)
        left, right = self.record(0.5)
        left_level, right_level = level_of_tone(left, left_tone), level_of_tone(right, right_tone)
        check(left_level > least and right_level > least, f"{name}: levels {left_level:.3f} and {right_level:.3f}")
        if left_tone != right_tone:
            crossed = max(level_of_tone(left, right_tone), level_of_tone(right, left_tone))
            check(crossed < 0.1 * min(left_level, right_level), f"{name}: the channels are mixed ({crossed:.3f})")
        wait_for(f"the title of {name}", lambda: self.title() == text)
        return [("file", name), ("heard after the double click", f"{first * 1000:.0f} ms"),
                (f"left, {left_tone} Hz", f"{left_level:.3f}"), (f"right, {right_tone} Hz", f"{right_level:.3f}")]

    def _is_alone(self, left_tone, right_tone, kind):
        left, right = self.recorder.last(0.4)
        if kind == "mid":
            return level_of_tone(left, left_tone) > 0.01
        return (level_of_tone(left, left_tone) > 1.2 * loudness(left)
                and level_of_tone(right, right_tone) > 1.2 * loudness(right))

    def play_first_song(self):
        measured = self.play("mp3")
        total = wait_for("the running time", self.running_time)
        check(total.endswith("0:30"), f"the length in '{total}' is not 0:30")
        begin_time, begin_place = seconds_of(total), self.marker()
        wait_for("the running time to move", lambda: (seconds_of(self.running_time()) or 0) >= begin_time + 2)
        wait_for("the marker to move", lambda: self.marker() > begin_place)
        check(self.eyes.shows("Pause"), "the pause button does not stand in the place of the play button")
        return measured + [("running time", self.running_time() or "")]

    def pause(self):
        self.press("Pause")
        self.hear_nothing("pause")
        held, place = self.running_time(), self.marker()
        left, right = self.record(1.2)
        check(loudness(left) < 0.001 and loudness(right) < 0.001, "the pause is not silent")
        check_equal("the running time held by the pause", self.running_time(), held)
        check(abs(self.marker() - place) <= 1, "the marker moved during the pause")
        self.held = seconds_of(held)
        return [("held at", held), ("loudness", f"{loudness(left):.5f}")]

    def play_on(self):
        self.press("Play")
        self.hear("after the pause", 440)
        going = seconds_of(self.running_time())
        check(self.held <= going <= self.held + 3, f"it went on at {going} s, but was held at {self.held} s")
        return [("went on at", f"0:{going:02d}")]

    def stop(self):
        self.press("Stop")
        self.hear_nothing("stop")
        left, right = self.record(0.6)
        check(loudness(left) < 0.001 and loudness(right) < 0.001, "it is not silent after stop")
        wait_for("the marker at its start", lambda: self.marker() <= 1)
        check(self.eyes.shows("Play"), "the play button did not come back")
        return [("loudness", f"{loudness(left):.5f}")]

    def play_video(self):
        measured = self.play("mpg")
        window = self.stage.window(re.escape(SONGS["mpg"][1]))
        rect = self.stage.window_rect(window)
        colours = wait_for("the test picture's colours in the video window", lambda: self._bright_colours(rect))
        first = self.stage.pixels(rect)
        wait_for("the picture to move", lambda: self.stage.pixels(rect) != first)
        share = sum(max(pixel) > 100 for pixel in first) / len(first)
        check(share > 0.3, f"the picture fills {share:.0%} of its window of {rect[2]} x {rect[3]}")
        return measured + [("share of the window", f"{share:.0%}"), ("video window", f"{rect[2]} x {rect[3]}"), ("pure colours seen", str(colours))]

    def _bright_colours(self, rect):
        """How many of the six pure colours the window shows; 0 when some are missing."""
        seen = set()
        for red, green, blue in self.stage.pixels(rect, (64, 48)):
            if max(red, green, blue) > 170 and min(red, green, blue) < 90:
                seen.add((red > 128, green > 128, blue > 128))
        return len(seen) if len(seen) >= 6 else 0

    def stop_video(self):
        self.stop()
        wait_for("the video window to go", lambda: not self.stage.has_window(re.escape(SONGS["mpg"][1])))
        return []

    def open_page(self, path, title, colour):
        address = f"http://127.0.0.1:{self.pages.port}{path}"
        self.write_into("Address", address, "text")
        begin = time.monotonic()
        self.stage.key("Return")
        wait_for(f"the server to be asked for {path}", lambda: path in self.pages.requests, 20)
        self.main_window("Brindlepost - " + title, 20)
        check(self.tab(title), f"no tab bears the title '{title}'")
        wait_for(f"the colours of '{title}'", lambda: self._share_of(title, colour) > 0.5)
        return [("address", address), ("Enter to page", f"{time.monotonic() - begin:.2f} s")]

    def _share_of(self, title, colour):
        """How much of the main window shows a page's colour."""
        rect = self.stage.window_rect(self.main_window("Brindlepost - " + title))
        pixels = self.stage.pixels(rect, (60, 40))
        check(pixels, f"no picture of the screen at {rect}")
        near = [p for p in pixels if all(abs(p[i] - colour[i]) < 6 for i in range(3))]
        return len(near) / len(pixels)

    def tab(self, title):
        """Place of the tab that bears a title; the page below may hold the same words."""
        found = [self.eyes.rect(node) for node in self.eyes.nodes()
                 if node.get_name() == title and role_of(node) in ("label", "page tab")]
        top = self.eyes.rect(self.eyes.find("Music Player", "page tab"))[1]
        found = [rect for rect in found if abs(rect[1] - top) < 20]
        return found[0] if found else None

    def first_page(self):
        return self.open_page("/first", "First page", FIRST_COLOUR)

    def second_page(self):
        measured = self.open_page("/second", "Second page", SECOND_COLOUR)
        check(self.tab("First page"), "the first tab went away")
        return measured

    def back_to_the_music(self):
        self.press("Music Player", "page tab")
        self.main_window("Brindlepost - Music Player")
        check(self.eyes.shows("Tracks", "list"), "the music tab shows no tracks")
        return []

    def close_second_tab(self):
        x, y, width, height = self.tab("Second page")
        crosses = [self.eyes.rect(node) for node in self.eyes.nodes() if node.get_name() == "Close this tab"]
        near = [r for r in crosses if abs(r[1] + r[3] / 2 - y - height / 2) < 12 and r[0] > x]
        check(near, "the second tab has no closing cross")
        cross = min(near, key=lambda r: r[0])
        self.stage.click(cross[0] + cross[2] // 2, cross[1] + cross[3] // 2)
        wait_for("the second tab to go", lambda: not self.tab("Second page"))
        check(self.tab("First page"), "the first tab went with the second")
        self.main_window("Brindlepost - Music Player")
        return []

    def exit_asks(self):
        self.choose_menu("File", "Exit")
        self.answer_box("Exit Brindlepost", "You currently have web tabs open, are you sure you want to exit?", "No")
        check(self.program.poll() is None, "the program ended although the answer was No")
        return []

    def exit(self):
        self.choose_menu("File", "Exit")
        self.answer_box("Exit Brindlepost", "You currently have web tabs open, are you sure you want to exit?", "Yes")
        code = wait_for("the end of the program", lambda: self._exit_code(self.program), 15)
        check_equal("exit code", code, "0")
        history = self.rows_of("dbHistory", "select HistoryType, HistoryText from tblHistory where HistoryType != 'Settings'")
        for path in PAGES:
            check(any(row.startswith("Web|") and path in row for row in history), f"{path} is not in the history: {history}")
        played = [row for row in history if row.startswith("Music|")]
        check(any(SONGS["mp3"][0] in row for row in played), f"the first song is not in the history: {history}")
        counted = self.rows_of("dbMedia", "select count(*) from tblSong where PlayCount > 0")
        return [("exit code", code), ("history rows", str(len(history))), ("songs with a play count", counted[0])]

    @staticmethod
    def _exit_code(program):
        code = program.poll()
        return None if code is None else str(code)

    def start_again(self):
        self.program = self.stage.launch(self.application)
        self.stage.window("Brindlepost - Login$")
        wait_for("the remembered user", lambda: self.login_name() == USER)
        self.write_into("Password", PASSWORD, "password text")
        self.stage.key("Return")
        wait_for("the login to go", lambda: not self.stage.has_window("Brindlepost - Login"))
        measured = self.watch_the_splash()
        expected = sorted(song[1] for song in SONGS.values())
        wait_for("the songs of before", lambda: sorted(self.eyes.rows("Tracks")) == expected)
        check(not self.stage.has_window("Add Media"), "the full library offers to add media")
        return measured + [("songs known", str(len(expected)))]

    def leave(self):
        """Ends the second run, which has no tab open: no question."""
        self.choose_menu("File", "Exit")
        code = wait_for("the end of the program", lambda: self._exit_code(self.program), 15)
        check_equal("exit code", code, "0")
        return [("exit code", code)]

    def steps(self):
        """(heading, step) in the order of the road."""
        return [
            ("Splash, with the login in front", self.start),
            ("A new user", self.fill_first_page),
            ("A wrong second password gets its box", self.wrong_second_password),
            ("The wizard's second page", self.finish_wizard),
            ("The login, filled in for the new user", self.user_stands_in_login),
            ("Logged in: the splash counts to 100", self.log_in),
            ("An empty library offers to add media", self.offer_to_add_media),
            ("A folder is searched", self.find_files),
            ("All files are added: the lists fill", self.add_all),
            ("A double click is heard: mp3", self.play_first_song),
            ("Pause is silent and holds the place", self.pause),
            ("Play goes on from there", self.play_on),
            ("Stop is silent", self.stop),
            ("A wav file, left and right apart", lambda: self.play("wav")),
            ("A MIDI file", lambda: self.play("mid")),
            ("A video shows its picture", self.play_video),
            ("The video is stopped", self.stop_video),
            ("An address and Enter: a page in a new tab", self.first_page),
            ("A second tab", self.second_page),
            ("Back to the music", self.back_to_the_music),
            ("A tab is closed", self.close_second_tab),
            ("Exit with an open tab asks first: No", self.exit_asks),
            ("Yes ends the program", self.exit),
            ("The next start knows the user and the songs", self.start_again),
            ("The end, without a question", self.leave),
        ]
