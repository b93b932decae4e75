"""The installed program, started by a user who may not write where it is: `test_installed.py BUILD_FOLDER` installs it into a
folder of its own first, `test_installed.py PREFIX` takes one that is there, as in /usr.

The desktop's own tools open files with it, what it keeps lies in the folders that a desktop has for it, and the home has
nothing else afterwards.
"""

import os
import pathlib
import shutil
import signal
import stat
import subprocess
import sys
import tempfile

import stage
from stage import Eyes, PageServer, Recorder, Stage, wait_for
from story import PAGES, USER, Story, check, check_equal

STORES = ["dbFavs.mdb", "dbHistory.mdb", "dbLogin.mdb", "dbMedia.mdb"]
# What a program may write to in a home; Chromium's store of certificates has had its place before there were such folders.
PLACES = (".local/share/", ".local/state/", ".config/", ".cache/", ".pki/")


class Guest(Story):
    """Somebody who opens a song and a page with a program that the computer's owner installed."""

    def __init__(self, scene, prefix):
        # Not that of a story: nothing is laid out for this one.
        self.stage = scene
        self.prefix = prefix
        self.home = pathlib.Path(scene.environment["HOME"])
        self.application = self.home / ".local/share/brindlepost"
        self.eyes = Eyes()
        self.pages = PageServer(PAGES)
        self.recorder = Recorder(scene, scene.folder / "sound.raw")
        self.entry = prefix / "share/applications/brindlepost.desktop"
        self.song = stage.make_tone(scene.folder / "Ada - One.mp3", 440, 60)
        scene.environment["PATH"] = f"{prefix}/bin:" + scene.environment["PATH"]
        scene.environment["XDG_DATA_DIRS"] = f"{prefix}/share:/usr/local/share:/usr/share"
        self.before = self.files_of_home()

    def files_of_home(self):
        return {str(file.relative_to(self.home)) for file in self.home.rglob("*") if not file.is_dir()}

    def open_with_the_desktop(self, *what):
        self.stage.spawn(["gio", "launch", str(self.entry), *(str(one) for one in what)])

    def end(self):
        window = self.stage.run("xdotool", "search", "--onlyvisible", "--name", "^Brindlepost").split()
        if not window:
            return
        program = int(self.stage.run("xdotool", "getwindowpid", window[-1]))
        os.kill(program, signal.SIGTERM)
        wait_for("the end", lambda: self.has_ended(program))

    @staticmethod
    def has_ended(program):
        """Whoever started it: one that the stage started is still listed until the stage asks for it."""
        try:
            return pathlib.Path(f"/proc/{program}/stat").read_text().rpartition(") ")[2].startswith("Z")
        except OSError:
            return True

    # -- the steps --

    def its_folder_is_not_the_users(self):
        folder = self.prefix / "lib/brindlepost"
        check((folder / "Brindlepost").exists(), f"no program in {folder}")
        check(not os.access(folder, os.W_OK), f"{folder} may be written")

    def a_song_opened_from_the_desktop_plays(self):
        self.open_with_the_desktop(self.song)
        self.stage.window("Brindlepost - Login$")
        self.hear("the song", 440, seconds=20)

    def a_user_is_made_and_logs_in(self):
        if self.rows_of("dbLogin", "select UserName from tblLogin") == []:
            self.fill_first_page()
            self.finish_wizard()
            self.user_stands_in_login()
        self.press("Login", "push button")
        wait_for("the main window", lambda: self.eyes.shows("Tracks"), 30)
        wait_for("the song in the library", lambda: self.eyes.rows("Tracks") == ["Ada - One"])

    def the_program_tells_what_plays(self):
        # A start that is only an option is answered by the one that runs: both found the same stores.
        wait_for("the status", lambda: self.stage.run("brindlepost", "--status").startswith("playing\nAda - One\n"))

    def an_address_opened_from_the_desktop_is_a_tab(self):
        self.open_with_the_desktop(f"http://127.0.0.1:{self.pages.port}/first")
        self.main_window("Brindlepost - First page", 30)

    def a_new_tab_from_the_menu(self):
        self.stage.spawn(["brindlepost", "--new-tab"])
        wait_for("the new tab in front", lambda: not self.stage.has_window("Brindlepost - First page"))

    def the_desktop_knows_a_play_list(self):
        made = self.stage.folder / "evening.mpl"
        made.write_text("Ada - One\n")
        kind = self.stage.run("gio", "info", "-a", "standard::content-type", str(made)).split()[-1]
        check_equal("the kind of a list", kind, "application/x-brindlepost-playlist")
        checked = subprocess.run(["desktop-file-validate", str(self.entry)], capture_output=True, text=True, check=False)
        check_equal("what the validator says", checked.stdout + checked.stderr, "")

    def the_stores_are_the_users_alone(self):
        check_equal("the rights of the folder", stat.S_IMODE(self.application.stat().st_mode), 0o700)
        check_equal("the stores", sorted(file.name for file in self.application.glob("*.mdb")), STORES)
        for store in STORES:
            check_equal(f"the rights of {store}", stat.S_IMODE((self.application / store).stat().st_mode), 0o600)
        check_equal("the users", self.rows_of("dbLogin", "select UserName from tblLogin"), [USER])

    def the_home_has_nothing_elsewhere(self):
        self.end()
        new = sorted(self.files_of_home() - self.before)
        print("\n".join(new))
        check_equal("files elsewhere", [name for name in new if not name.startswith(PLACES)], [])

    def a_second_start_knows_the_user(self):
        self.stage.spawn(["brindlepost"])
        self.stage.window("Brindlepost - Login$")
        wait_for("the user in the login", lambda: self.login_name() == USER)
        wait_for("an answer of the second start", lambda: self.stage.run("brindlepost", "--status") == "stopped\n")
        self.end()

    def steps(self):
        return [self.its_folder_is_not_the_users, self.a_song_opened_from_the_desktop_plays,
                self.a_user_is_made_and_logs_in, self.the_program_tells_what_plays,
                self.an_address_opened_from_the_desktop_is_a_tab, self.a_new_tab_from_the_menu,
                self.the_desktop_knows_a_play_list, self.the_stores_are_the_users_alone, self.the_home_has_nothing_elsewhere,
                self.a_second_start_knows_the_user]


def install_and_begin_again(build):
    """With a program that root installed; without root, with one whose folder nobody may write."""
    prefix = pathlib.Path(tempfile.mkdtemp(prefix="brindlepost-installed-"))
    try:
        os.chmod(prefix, 0o755)
        subprocess.run(["cmake", "--install", str(build), "--prefix", str(prefix)], check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["update-mime-database", str(prefix / "share/mime")], check=True)
        subprocess.run(["chmod", "-R", "a-w,a+rX", str(prefix)], check=True)
        return subprocess.run([sys.executable, __file__, str(prefix)], check=False).returncode
    finally:
        subprocess.run(["chmod", "-R", "u+w", str(prefix)], check=False)
        shutil.rmtree(prefix, ignore_errors=True)


def main():
    place = pathlib.Path(sys.argv[1]).resolve()
    if not (place / "bin/brindlepost").exists():
        return install_and_begin_again(place)
    stage.begin_as_nobody()
    with Stage(place) as scene:
        guest = Guest(scene, place)
        try:
            passed = scene.run_steps(guest.steps())
        finally:
            guest.end()
            guest.close()
    if passed:
        scene.remove()
    return 0 if passed else 1


if __name__ == "__main__":
    sys.exit(main())
