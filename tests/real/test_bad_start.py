"""Bad starts of the real program: `test_bad_start.py BUILD_FOLDER [CASE...]`. Each must be told clearly and lose nothing."""

import hashlib
import os
import re
import shutil
import signal
import subprocess
import sys
import time
import traceback

import stage
from stage import Stage, StageError, wait_for
from story import PASSWORD, USER, Story, check, check_equal

STORES = ("dbMedia", "dbFavs", "dbHistory", "dbLogin")
MISSING_TITLE = "Database missing"
MISSING_TEXT = ("Some of your databases are not in there correct directory, please re-install the application to ensure "
                "all databases and components are corerct.")


def fingerprint(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


class Person(Story):
    """The story's person, before a program that has something wrong with it."""

    def launch(self, **options):
        self.program = self.stage.launch(self.application, **options)

    def boxes(self):
        """(title, text) of the message boxes that stand there."""
        found = []
        for node in self.eyes.nodes():
            if node.get_role_name() in ("dialog", "alert") and node.get_name() != "Brindlepost - Login":
                texts = [n.get_name() for n in self.eyes.below(node) if n.get_role_name() == "label"]
                found.append((node.get_name(), max(texts, key=len) if texts else ""))
        return found

    def wait_for_box(self, pattern, seconds=10):
        """The text of a box that matches; boxes before it are answered with OK."""
        seen = []

        def matches():
            for _, text in self.boxes():
                if text not in seen:
                    seen.append(text)
                if re.search(pattern, text, re.S | re.I):
                    return text
            return None

        try:
            return wait_for(f"a box with '{pattern}'", matches, seconds)
        except StageError as error:
            ended = self.program.poll()
            raise StageError(f"{error}; boxes seen: {seen}; exit code {ended}; output: "
                             f"{self.stage.program_output()[-800:]}") from None

    def answer_ok(self):
        self.press("OK", "push button")

    def wait_for_end(self, seconds=10):
        return wait_for("the end of the program", lambda: self._exit_code(self.program), seconds)

    def end(self):
        if self.program is not None and self.program.poll() is None:
            self.program.terminate()
            try:
                self.program.wait(5)
            except subprocess.TimeoutExpired:
                self.program.kill()
                self.program.wait()

    def store(self, name):
        return self.application / (name + ".mdb")

    def add_user(self):
        subprocess.run(["sqlite3", str(self.store("dbLogin")),
                        f"insert into tblLogin values('{USER}','{PASSWORD}',' ',' ',' ',' ',' ',' ','True','False')"],
                       check=True)

    def enter(self):
        """Logs the stored user in."""
        self.stage.window("Brindlepost - Login$")
        wait_for("the remembered user", lambda: self.login_name() == USER)
        self.write_into("Password", PASSWORD, "password text")
        self.stage.key("Return")
        wait_for("the login to go", lambda: not self.stage.has_window("Brindlepost - Login") or self.boxes())

    def other_stores(self, *but):
        return {name: fingerprint(self.store(name)) for name in STORES if name not in but and self.store(name).is_file()}


# ---- the databases -----------------------------------------------------------------------------------------------


def a_database_is_missing(person):
    for name in STORES:
        kept = person.store(name).read_bytes()
        person.store(name).unlink()
        others = person.other_stores()
        person.launch()
        text = person.wait_for_box("databases are not in there correct directory")
        check(text.startswith(MISSING_TEXT), f"{name}: the box says {text!r}")
        check(any(title.startswith(MISSING_TITLE) for title, _ in person.boxes()), f"titles {person.boxes()}")
        check(not person.stage.has_window("Brindlepost - Login"), f"{name} missing: the login came all the same")
        person.answer_ok()
        person.wait_for_end()
        check(not person.store(name).exists(), f"{name} was made anew")
        check_equal("the other stores", person.other_stores(), others)
        person.store(name).write_bytes(kept)


def a_folder_in_a_databases_place(person):
    person.store("dbMedia").unlink()
    person.store("dbMedia").mkdir()
    (person.store("dbMedia") / "kept.txt").write_text("kept")
    person.launch()
    person.wait_for_box("databases are not in there correct directory")
    person.answer_ok()
    person.wait_for_end()
    check_equal("what lay in the folder", (person.store("dbMedia") / "kept.txt").read_text(), "kept")


def told_and_untouched(person, name, pattern):
    """A box tells it, and the file stays as it is to the end of the run."""
    before = fingerprint(person.store(name))
    person.launch()
    text = person.wait_for_box(pattern)
    check(name in text, f"the box does not name {name}: {text!r}")
    person.end()
    check_equal(f"the content of {name}", fingerprint(person.store(name)), before)


def a_damaged_database(person):
    content = bytearray(person.store("dbMedia").read_bytes())
    content[: len(content) // 2] = b"\xa5" * (len(content) // 2)
    person.store("dbMedia").write_bytes(bytes(content))
    told_and_untouched(person, "dbMedia", "damaged|no database")


def a_cut_off_database(person):
    content = person.store("dbHistory").read_bytes()
    person.store("dbHistory").write_bytes(content[: len(content) // 2 + 100])
    told_and_untouched(person, "dbHistory", "damaged|no database")


def a_database_of_a_newer_program(person):
    subprocess.run(["sqlite3", str(person.store("dbFavs")), "pragma user_version = 99"], check=True)
    before = person.other_stores()
    person.launch()
    text = person.wait_for_box("newer version of Brindlepost")
    check('"dbFavs.mdb"' in text and "version 99" in text, f"the box says {text!r}")
    check(not person.stage.has_window("Brindlepost - Login"), "the login came all the same")
    person.answer_ok()
    check_equal("the exit code", person.wait_for_end(), "4")
    check_equal("the stores", person.other_stores(), before)


def an_empty_file_for_a_database(person):
    person.store("dbMedia").write_bytes(b"")
    told_and_untouched(person, "dbMedia", "damaged|no database|table")


def a_database_of_another_kind(person):
    person.store("dbMedia").unlink()
    subprocess.run(["sqlite3", str(person.store("dbMedia")), "create table other(a); insert into other values(1)"],
                   check=True)
    told_and_untouched(person, "dbMedia", "dbMedia")


def a_read_only_database(person):
    person.add_user()
    os.chmod(person.store("dbLogin"), 0o400)
    before = fingerprint(person.store("dbLogin"))
    person.launch()
    person.enter()
    text = person.wait_for_box("read-only")
    check("dbLogin" in text, f"the box does not name dbLogin: {text!r}")
    person.end()
    check_equal("the content of dbLogin", fingerprint(person.store("dbLogin")), before)


def a_read_only_folder(person):
    """The stores are copied into a folder of the user's own, and the user's rows live there."""
    person.add_user()
    before = person.other_stores()
    kept = person.stage.folder / "home/.local/share/brindlepost"
    os.chmod(person.application, 0o500)
    try:
        person.launch()
        person.enter()
        check_equal("the folder's rights", kept.stat().st_mode & 0o777, 0o700)
        check_equal("the stores there", sorted(file.name for file in kept.glob("*.mdb")),
                    sorted(name + ".mdb" for name in STORES))
        person.end()
        check_equal("the stores beside the program", person.other_stores(), before)
    finally:
        os.chmod(person.application, 0o700)
        shutil.rmtree(kept, ignore_errors=True)


def nowhere_to_keep_anything(person):
    """Nobody can be let in where nothing can be kept: it is told, and the program ends with a code of its own."""
    before = person.other_stores()
    home = person.stage.folder / "closed home"
    home.mkdir(mode=0o500)
    os.chmod(person.application, 0o500)
    try:
        person.launch(environment={"XDG_DATA_HOME": str(home / "data")})
        text = person.wait_for_box("cannot be made")
        check(str(home) in text, f"the box does not name the folder: {text!r}")
        person.answer_ok()
        check(person.wait_for_end() != "0", "it ended with exit code 0")
        check_equal("the stores", person.other_stores(), before)
    finally:
        os.chmod(person.application, 0o700)


def a_database_locked_by_another_program(person):
    person.add_user()
    holder = subprocess.Popen(["sqlite3", str(person.store("dbLogin"))], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              text=True)
    holder.stdin.write("begin exclusive;\nselect 'held';\n")
    holder.stdin.flush()
    check_equal("the other program", holder.stdout.readline().strip(), "held")
    try:
        person.launch()
        text = person.wait_for_box("another program|locked|in use", 20)
        check("dbLogin" in text, f"the box does not name dbLogin: {text!r}")
        person.end()
    finally:
        holder.stdin.close()
        holder.wait()
    check_equal("the user", person.rows_of("dbLogin", "select UserName from tblLogin"), [USER])


def a_full_disk(person):
    """No file may grow beyond a bound: what a full disk looks like to a store. It is told, and the rows stay."""
    person.add_user()
    size = max(person.store(name).stat().st_size for name in STORES)
    program = str(person.application / "Brindlepost")
    person.program = person.stage.spawn(
        ["env", "--ignore-signal=XFSZ", "prlimit", f"--fsize={size}", program], cwd=str(person.application),
        stdout=open(person.stage.folder / "program-full.log", "wb"))
    person.stage.window("Brindlepost - Login$")
    text = person.wait_for_box("disk is full")
    check(".mdb" in text, f"the box does not name the file: {text!r}")
    person.answer_ok()
    check(person.program.poll() is None, f"the program ended with {person.program.poll()}")
    person.end()
    check_equal("the users", person.rows_of("dbLogin", "select UserName from tblLogin"), [USER])
    for name in STORES:
        check_equal(f"the check of {name}", person.rows_of(name, "pragma integrity_check"), ["ok"])


# ---- the machine ---------------------------------------------------------------------------------------------------


def no_display(person):
    environment = {"DISPLAY": ""}
    person.launch(environment=environment)
    code = person.wait_for_end()
    check(code != "0", "it ended with exit code 0")
    check("display" in person.stage.program_output(), f"output: {person.stage.program_output()!r}")
    person.launch(environment={"DISPLAY": ":987"})
    check(person.wait_for_end() != "0", "a display that is not there: exit code 0")
    check('":987"' in person.stage.program_output(), f"output: {person.stage.program_output()!r}")


def no_sound_server(person):
    """The song plays without a sound, in real time."""
    person.add_user()
    song = stage.make_tone(person.music / "Quiet - Song.wav", 440, 20)
    path = "C:" + str(song).replace("/", "\\")
    subprocess.run(["sqlite3", str(person.store("dbMedia")),
                    f"insert into tblSong values(1,'Quiet','Song','{path}',0)"], check=True)
    person.launch(environment={"PULSE_SERVER": "unix:/nowhere/at-all", "PULSE_RUNTIME_PATH": str(person.stage.folder)})
    person.enter()
    person.watch_the_splash()
    person.choose_text("Tracks", "Quiet - Song", times=2)
    wait_for("the running time to move", lambda: (_played(person) or 0) >= 1, 10)
    first, begin = _played(person), time.monotonic()
    wait_for("three more seconds", lambda: (_played(person) or 0) >= first + 3, 10)
    took = time.monotonic() - begin
    check(1.9 < took < 4.5, f"three seconds of song took {took:.1f} s")
    check(person.program.poll() is None, "the program ended")
    person.end()


def told_to_end_while_a_song_plays(person):
    """As an exit: the settings are saved, the stores are closed, and the sound goes."""
    person.add_user()
    song = stage.make_tone(person.music / "Ending - Song.wav", 440, 30)
    path = "C:" + str(song).replace("/", "\\")
    subprocess.run(["sqlite3", str(person.store("dbMedia")),
                    f"insert into tblSong values(1,'Ending','Song','{path}',0)"], check=True)
    person.launch()
    person.enter()
    person.watch_the_splash()
    person.choose_text("Tracks", "Ending - Song", times=2)
    wait_for("the running time to move", lambda: (_played(person) or 0) >= 1, 10)
    person.press("Repeat this song")
    wait_for("repeat to be on", lambda: person.eyes.shows("Repeat is on: repeat no more"))
    check_equal("repeat before the end", _repeat(person), ["False"])
    begin = time.monotonic()
    person.program.send_signal(signal.SIGTERM)
    check_equal("exit code", person.program.wait(10), 0)
    check(time.monotonic() - begin < 3, f"the end took {time.monotonic() - begin:.1f} s")
    check_equal("repeat after the end", _repeat(person), ["True"])
    left = sorted(p.name for p in person.application.iterdir() if p.name.endswith(("-wal", "-shm", "-journal")))
    check_equal("files of open stores", left, [])
    check_equal("streams at the sound server", person.stage.run("pactl", "list", "short", "sink-inputs"), "")


def _repeat(person):
    return person.rows_of("dbHistory", "select HistoryText from tblHistory where HistoryID = 1")


def told_to_end_before_the_login(person):
    person.add_user()
    end_mark = "select max(HistoryID) from tblHistory where HistoryType = 'Settings'"
    settings = f"select * from tblHistory where HistoryID not in (5, 6, ({end_mark})) order by HistoryID"  # no date, no mark
    before = person.other_stores("dbHistory"), person.rows_of("dbHistory", settings)
    person.launch()
    person.stage.window("Brindlepost - Login$")
    person.program.send_signal(signal.SIGTERM)
    check_equal("exit code", person.program.wait(10), 0)
    check_equal("the stores", (person.other_stores("dbHistory"), person.rows_of("dbHistory", settings)), before)


def _played(person):
    from story import seconds_of

    return seconds_of(person.running_time())


# ---- sudden ends and many starts -------------------------------------------------------------------------------------


def killed_while_media_is_added(person):
    """Every row that is there is whole, the keys are unbroken, and the program starts again."""
    person.add_user()
    one = stage.make_tone(person.music / "seed.wav", 440, 0.1)
    for number in range(1500):
        os.link(one, person.music / f"Artist {number % 50:02d} - Song {number:04d}.wav")
    one.unlink()
    person.launch()
    person.enter()
    person.watch_the_splash()
    person.answer_box("Add Media", "You currently have no media files in your library, would you like to add media now?",
                      "Yes")
    person.eyes.find("Get Files", "push button")
    for part in person.music.parts[1:]:
        person.choose_text("Folder to search", part, times=2)
        wait_for(f"the folder '{part}' to open", lambda p=part: person._stands_in(p))
    person.press("Get Files", "push button")
    wait_for("the files found", lambda: person.eyes.shows("1500") or _total(person) == "1500", 30)
    person.press("Add all")
    time.sleep(0.03)  # somewhere in the middle; any moment must do
    person.program.send_signal(signal.SIGKILL)
    person.program.wait()
    rows = person.rows_of("dbMedia", "select SongID, artist, title, FilePath from tblSong order by rowid")
    check_equal("the keys", [row.split("|")[0] for row in rows], [str(number + 1) for number in range(len(rows))])
    check(all(len(row.split("|")) == 4 and all(row.split("|")) for row in rows), "a row is not whole")
    check_equal("the check of the file", person.rows_of("dbMedia", "pragma integrity_check"), ["ok"])
    person.launch()
    person.enter()
    person.stage.window("Brindlepost - Music Player", 30)
    check(not [text for _, text in person.boxes() if "damaged" in text], f"after the kill: {person.boxes()}")
    person.end()


def _total(person):
    return person.eyes.find("Number of files found").get_description()


def eight_starts_at_once(person):
    """Exactly one is left, with one login."""
    programs = [person.stage.launch(person.application) for _ in range(8)]
    person.stage.window("Brindlepost - Login$")
    wait_for("seven of the eight to end", lambda: sum(p.poll() is not None for p in programs) == 7, 20)
    running = [p for p in programs if p.poll() is None]
    check_equal("programs left", len(running), 1)
    codes = sorted(p.returncode for p in programs if p.poll() is not None)
    check_equal("exit codes of the others", codes, [0] * 7)
    logins = person.stage.run("xdotool", "search", "--onlyvisible", "--name", "^Brindlepost - Login$").split()
    check_equal("login windows", len(logins), 1)
    person.program = running[0]
    person.end()


CASES = [
    a_database_is_missing, a_folder_in_a_databases_place, a_damaged_database, a_cut_off_database, a_database_of_a_newer_program,
    an_empty_file_for_a_database, a_database_of_another_kind, a_read_only_database, a_read_only_folder, nowhere_to_keep_anything,
    a_database_locked_by_another_program, a_full_disk, no_display, no_sound_server,
    told_to_end_while_a_song_plays, told_to_end_before_the_login, killed_while_media_is_added,
    eight_starts_at_once,
]


def run(scene, case, number):
    person = Person.__new__(Person)
    person.stage = scene
    person.music = scene.folder / f"Music{number}"
    person.music.mkdir()
    person.application = scene.make_application(f"app{number}")
    person.eyes = stage.Eyes()
    person.program = None
    try:
        return scene.run_steps([case], person, picture=f"failure-{number:02d}.png")
    finally:
        person.end()
        for log in scene.folder.glob("program-*.log"):
            log.rename(log.with_name(f"case{number}-{log.name}"))


def started_as_root(build):
    """Root may start it: no crash, and the login comes. Its data is its own copy."""
    with Stage(build) as scene:
        application = scene.make_application()
        for environment in ({}, {"QTWEBENGINE_DISABLE_SANDBOX": "1"}):
            program = scene.launch(application, environment=environment)
            scene.window("Brindlepost - Login$")
            check(program.poll() is None, f"started as root: exit code {program.poll()}")
            program.terminate()
            program.wait(10)
    scene.remove()
    print("ok started as root", flush=True)


def main():
    wanted = sys.argv[2:]
    if os.geteuid() == 0 and (not wanted or "started_as_root" in wanted):
        try:
            started_as_root(sys.argv[1])
        except Exception:
            print("FAILED started as root")
            traceback.print_exc(file=sys.stdout)
            return 1
        if wanted == ["started_as_root"]:
            return 0
    build = stage.become_unprivileged(sys.argv[1])
    with Stage(build) as scene:
        results = [run(scene, case, number) for number, case in enumerate(CASES, 1) if not wanted or case.__name__ in wanted]
    if all(results) and results:
        scene.remove()
        return 0
    return 1


if __name__ == "__main__":
    sys.exit(main())
