"""Files and addresses that are opened from outside, and the file type: `test_handoff.py BUILD_FOLDER [STEP...]`.

Later starts of the real program hand over what they were given; the desktop's own tools read what the program claimed.
"""

import ctypes
import os
import pathlib
import shutil
import struct
import subprocess
import sys

import stage
from stage import PageServer, Stage, wait_for
from story import Story, check, check_equal

TONES = [("Ada - One.mp3", 440), ("Bell - Two.mp3", 660), ("Cora - Three.mp3", 880)]
ENTRY = ".local/share/applications/brindlepost.desktop"
LIST = ".config/mimeapps.list"
FOREIGN = "# mine\n[Default Applications]\ntext/plain=ed.desktop\n\n[Other group]\naudio/mpeg=other.desktop\n"
MANY = 64


class Opener(Story):
    """Somebody who opens songs from a file manager."""

    def __init__(self, scene):
        super().__init__(scene)
        self.home = pathlib.Path(scene.environment["HOME"])
        self.songs = [stage.make_tone(self.music / name, tone, 60) for name, tone in TONES]
        self.outside = self.music.parent / "Outside"
        self.outside.mkdir()
        (self.home / ".config").mkdir(exist_ok=True)
        (self.home / LIST).write_text(FOREIGN)
        subprocess.run(["sqlite3", str(self.application / "dbLogin.mdb"),
                        "insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')"], check=True)

    def launch(self, *arguments):
        self.program = self.stage.launch(self.application, *arguments)
        wait_for("the main window", lambda: self.eyes.shows("Tracks"), 30)
        wait_for("the splash to go", lambda: "Brindlepost" not in self.stage.stacking(), 30)

    def end(self):
        self.program.terminate()
        check_equal("the exit code", self.program.wait(10), 0)
        wait_for("silence", lambda: self.recorder.is_silent())

    def open_again(self, *arguments, environment=None):
        """A later start; it ends by itself."""
        later = self.stage.launch(self.application, *arguments, environment=environment)
        check_equal("the exit code of a later start", later.wait(30), 0)
        check_equal("what a later start says", self.stage.said_by(later), "")

    def main_window_id(self):
        return self.stage.window("Brindlepost - ")

    def state_of(self, window):
        return self.stage.run("xprop", "-id", window, "_NET_WM_STATE")

    def cued(self):
        return self.eyes.rows("Up next")

    def put_another_window_in_front(self):
        """Another program's window with the keyboard, over the main window."""
        if not getattr(self, "other", None):
            self.other = self.stage.spawn([str(self.stage.build / "bench" / "bare_window")])
        window = wait_for("the other window", self._other_window)
        self.stage.run("xdotool", "windowactivate", window)
        wait_for("the other window in front", lambda: self.stage.run("xdotool", "getactivewindow").strip() == window)
        return window

    def _other_window(self):
        return next(iter(self.stage.run("xdotool", "search", "--onlyvisible", "--class", "bare_window").split()), None)

    def is_in_front(self):
        return self.stage.front_window().startswith("Brindlepost - ")

    def maximise(self, window, wanted):
        """As a pager asks the window manager."""
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        display = ctypes.c_void_p(x11.XOpenDisplay(self.stage.environment["DISPLAY"].encode()))
        x11.XInternAtom.restype = ctypes.c_ulong
        atoms = [x11.XInternAtom(display, b"_NET_WM_STATE" + end, False)
                 for end in (b"", b"_MAXIMIZED_VERT", b"_MAXIMIZED_HORZ")]
        # Type, serial, from a client, display, window, kind, format, five numbers, and room for any event.
        event = struct.pack("@iLiPLLi5L", 33, 0, 1, display.value, window, atoms[0], 32, int(wanted), atoms[1], atoms[2],
                            2, 0).ljust(192, b"\0")
        x11.XDefaultRootWindow.restype = ctypes.c_ulong
        root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
        x11.XSendEvent(display, root, False, ctypes.c_long(0x180000), event)
        x11.XCloseDisplay(display)

    # -- the steps --

    def a_start_with_a_file_plays_it(self):
        self.launch(str(self.songs[2]))
        self.hear("the song of the command line", TONES[2][1])
        wait_for("the song in the library", lambda: "Cora - Three" in self.eyes.rows("Tracks"))
        check_equal("what is cued", self.cued(), [])

    def a_second_start_with_two_files(self):
        self.open_again(str(self.songs[0]), str(self.songs[1]))
        self.hear("the first of two", TONES[0][1], seconds=6)
        check_equal("what is cued", self.cued(), ["Bell - Two"])
        rows = self.eyes.rows("Tracks")
        check("Ada - One" in rows and "Bell - Two" in rows, f"the tracks are {rows}")

    def with_an_address_a_tab_opens(self):
        with_page = PageServer({"/": "<title>Handed over</title><body>page</body>"})
        self.open_again(f"http://127.0.0.1:{with_page.port}/")
        self.stage.window("Brindlepost - Handed over", 30)
        with_page.close()
        self.back_to_the_music()

    def with_nothing_the_window_comes_to_the_front(self):
        for environment in ({}, {"DESKTOP_STARTUP_ID": "launcher-1_TIME0"}):
            self.put_another_window_in_front()
            self.open_again(environment=environment)
            wait_for("the main window in front", self.is_in_front)
        self.hear("the song that played", TONES[0][1])
        check_equal("what is cued", self.cued(), ["Bell - Two"])

    def ask(self, *arguments):
        """Exit code, output and error output of a start that is only an option."""
        done = subprocess.run([str(self.application / "Brindlepost"), *arguments], env=self.stage.environment,
                              capture_output=True, text=True, timeout=30, check=False)
        return done.returncode, done.stdout, done.stderr

    def status(self):
        code, text, trouble = self.ask("--status")
        check_equal("the code of --status", (code, trouble), (0, ""))
        return text.splitlines()

    def options_steer_the_player(self):
        """From a command line; what is in front stays there."""
        self.put_another_window_in_front()
        state, song, place = self.status()
        check_equal("what plays", (state, song), ("playing", "Ada - One"))
        check(place.endswith(" of 1:00"), f"the place is {place}")
        check_equal("pause", self.ask("--play-pause"), (0, "", ""))
        check_equal("the state", self.status()[0], "paused")
        check_equal("play on", self.ask("--play-pause"), (0, "", ""))
        self.hear("the song again", TONES[0][1])
        check_equal("next", self.ask("--next"), (0, "", ""))
        self.hear("the song that was cued", TONES[1][1])
        check_equal("stop", self.ask("--stop"), (0, "", ""))
        check_equal("the state", self.status(), ["stopped"])
        check(not self.is_in_front(), "the window came to the front")
        check_equal("an unknown option", self.ask("--dance"),
                    (2, "", "Brindlepost: There is no option --dance. --help tells what there is.\n"))
        check_equal("the version", self.ask("--version")[0], 0)
        check("--play-pause" in self.ask("--help")[1], "the help does not name --play-pause")

    def options_without_a_program(self):
        self.end()
        check_equal("next", self.ask("--next"), (4, "", "Brindlepost does not run.\n"))
        self.launch()

    def a_maximised_window_that_was_minimised_comes_back_so(self):
        window = self.main_window_id()
        for wanted in (True, False):
            self.maximise(int(window), wanted)
            wait_for("the size", lambda w=wanted: ("MAXIMIZED_VERT" in self.state_of(window)) == w)
            self.stage.run("xdotool", "windowminimize", window)
            wait_for("the window away", lambda: "HIDDEN" in self.state_of(window))
            self.open_again()
            wait_for("the window back", lambda: "HIDDEN" not in self.state_of(window) and self.is_in_front())
            check_equal("maximised", "MAXIMIZED_VERT" in self.state_of(window), wanted)

    def the_menu_opens_files(self):
        """By their names in the dialog."""
        self.choose_menu("File", "Open", "Media File")
        self.stage.window("Open Media File")
        self.stage.type(" ".join(f'"{self.songs[number]}"' for number in (1, 0)))
        self.stage.key("Return")
        self.hear("the first of the files chosen", TONES[1][1])
        wait_for("the other cued", lambda: "Ada - One" in self.cued())

    def many_starts_at_once(self):
        """One window, every file taken once, none lost."""
        tone = stage.make_tone(self.outside / "seed.mp3", 300, 30)
        songs = [self.outside / f"Many - {number:02d}.mp3" for number in range(MANY)]
        for song in songs:
            os.link(tone, song)
        starts = [self.stage.launch(self.application, str(song)) for song in songs]
        for start in starts:
            check_equal("the exit code of a start", start.wait(120), 0)
        self.hear("one of them", 300, seconds=15)
        cued = sorted(text for text in self.cued() if text.startswith("Many - "))
        check_equal("the files cued, each once", len(set(cued)), len(cued))
        check_equal("all but the one that plays", len(cued), MANY - 1)
        rows = [row for row in self.rows_of("dbMedia", "select FilePath from tblSong") if "Many - " in row]
        check_equal("the songs in the library, each once", sorted(rows),
                    sorted("C:" + str(song).replace("/", "\\") for song in songs))
        check_equal("main windows", len(self.stage.run("xdotool", "search", "--onlyvisible", "--name",
                                                       "^Brindlepost - ").split()), 1)

    def the_desktop_knows_the_file_type(self):
        entry = self.home / ENTRY
        checked = subprocess.run(["desktop-file-validate", str(entry)], env=self.stage.environment, capture_output=True,
                                 text=True, check=False)
        check_equal("what the validator says", checked.stdout + checked.stderr, "")
        check_equal("the kind of a song", self.stage.run("xdg-mime", "query", "filetype", str(self.songs[0])).strip(),
                    "audio/mpeg")
        check_equal("the default of xdg-mime", self.stage.run("xdg-mime", "query", "default", "audio/mpeg").strip(),
                    "brindlepost.desktop")
        known = self.stage.run("gio", "mime", "audio/mpeg")
        check("Default application for “audio/mpeg”: brindlepost.desktop" in known
              or "brindlepost.desktop" in known.splitlines()[0], f"gio says {known}")
        text = (self.home / LIST).read_text()
        kept = [line for line in text.splitlines() if line not in ("audio/mpeg=brindlepost.desktop;",
                                                                   "[Added Associations]", "")]
        check_equal("the other lines", kept, [line for line in FOREIGN.splitlines() if line])

    def the_desktop_opens_two_files(self):
        self.stage.run("gio", "launch", str(self.home / ENTRY), str(self.songs[1]), str(self.songs[2]))
        self.hear("the first of two", TONES[1][1])
        wait_for("the other cued", lambda: "Cora - Three" in self.cued())
        self.record(1.5)  # what is opened within a second belongs to the same opening, whose first is played
        self.stage.run("xdg-open", str(self.songs[0]))
        self.hear("the song opened by its kind", TONES[0][1])

    def claiming_again_touches_nothing(self):
        before = [(self.home / name).stat() for name in (ENTRY, LIST)]
        self.end()
        self.launch()
        after = [(self.home / name).stat() for name in (ENTRY, LIST)]
        check_equal("inodes and times", [(s.st_ino, s.st_mtime_ns) for s in after],
                    [(s.st_ino, s.st_mtime_ns) for s in before])

    def a_moved_program_is_claimed_where_it_is(self):
        self.end()
        moved = self.application.with_name("a moved app")
        shutil.move(self.application, moved)
        self.application = moved
        self.launch()
        check(f'Exec="{moved}/Brindlepost" %F' in (self.home / ENTRY).read_text(), (self.home / ENTRY).read_text())
        checked = subprocess.run(["desktop-file-validate", str(self.home / ENTRY)], capture_output=True, text=True,
                                 check=False)
        check_equal("what the validator says", checked.stdout + checked.stderr, "")
        self.stage.run("gio", "launch", str(self.home / ENTRY), str(self.songs[2]))
        self.hear("a song opened with the moved program", TONES[2][1])

    def a_home_that_cannot_be_written_is_no_hindrance(self):
        self.end()
        shutil.rmtree(self.home / ".local/share/applications")
        os.chmod(self.home / ".local/share", 0o500)
        os.chmod(self.home / ".config", 0o500)
        before = (self.home / LIST).read_bytes()
        self.launch()
        check(not self.eyes.shows("OK", "push button"), "a box is there")
        check(not (self.home / ENTRY).exists(), "the entry was written")
        check_equal("the list", (self.home / LIST).read_bytes(), before)
        self.end()

    def steps(self):
        return [self.a_start_with_a_file_plays_it, self.a_second_start_with_two_files, self.with_an_address_a_tab_opens,
                self.with_nothing_the_window_comes_to_the_front,
                self.options_steer_the_player, self.options_without_a_program,
                self.a_maximised_window_that_was_minimised_comes_back_so, self.the_menu_opens_files,
                self.many_starts_at_once,
                self.the_desktop_knows_the_file_type, self.the_desktop_opens_two_files,
                self.claiming_again_touches_nothing, self.a_moved_program_is_claimed_where_it_is,
                self.a_home_that_cannot_be_written_is_no_hindrance]


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with Stage(build) as scene:
        opener = Opener(scene)
        wanted = sys.argv[2:]
        passed = scene.run_steps([step for step in opener.steps() if not wanted or step.__name__ in wanted])
        opener.close()
    if passed:
        scene.remove()
    return 0 if passed else 1


if __name__ == "__main__":
    sys.exit(main())
