"""Measures pages and tabs of the whole program on a stage of its own, beside a bare window of the same page engine and a
packaged browser, falkon, if there is one.

    python3 bench/browser.py BUILD [open|memory|switch|closed|covered|left|reader]... [--seconds N] [--pages N]

"open": from Enter to the request at the server and to the page's second frame, in the first tab that an account ever has, in
the first one of a later start, and in later ones.
"memory": what the process and its children hold with 1 and 10 tabs. "switch": from a click on a tab to the first pixel of
its page. "closed": how soon the memory of a closed tab comes back. "covered": 100 tabs, 90 of them covered for --seconds,
against the same 100 just opened. "left": what --pages pages leave in the program's own process that were opened and closed one
after another. "reader": what pages that do too much cost the window, with a desktop that says there is a
screen reader and with one that does not.
"""

import argparse
import ctypes
import http.server
import os
import pathlib
import shutil
import socketserver
import statistics
import sys
import threading
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "real"))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import program as programs
import stage as stages
from answering import Answering
from screening import Screening

RUNS = 9
PAGE = """<!doctype html><title>{path}</title><link rel=icon href="data:,"><style>body {{ background: {colour} }}</style>
<script>requestAnimationFrame(() => requestAnimationFrame(() => fetch("/frame{path}")));
const kept = []; for (let i = 0; i < {weight}; i++) kept.push(new Uint8Array(1 << 20).fill(i + 1));</script>"""
# Pages that give a screen reader much to read.
TIRING = {
    "/titles": "<title>titles</title><script>let n = 0; setInterval(() => { for (let i = 0; i < 50; i++)"
               " document.title = ++n + 'x'.repeat(3000) }, 1)</script>",
    "/nodes": "<title>nodes</title><script>let b = ''; for (let i = 0; i < 2000; i++) b += '<p>' + 'node '.repeat(8);"
              "const go = () => { const d = document.createElement('div'); d.innerHTML = b; document.body.append(d);"
              "if (document.body.childElementCount < 200) setTimeout(go) }; onload = go</script><body>",
}
PACKAGED = "falkon"     # of an older series of the same page engine
# As quiet as the other two: no page of its own in a new tab.
PACKAGED_SETTINGS = """[Web-URL-Settings]
afterLaunch=0
homepage=about:blank
newTabUrl=about:blank
[Web-Browser-Settings]
CheckDefaultBrowser=false
"""
HEAVY = 200     # MiB that a heavy page holds
COLOURS = [(0x1F, 0x6F, 0x8B), (0x8B, 0x3A, 0x1F)]


class Site:
    """Pages by number, and when each was asked for and had its second frame."""

    def __init__(self):
        times = self.times = {}

        class Handler(http.server.BaseHTTPRequestHandler):
            protocol_version = "HTTP/1.1"

            def do_GET(self):
                times.setdefault(self.path, time.monotonic())
                number = int("".join(filter(str.isdigit, self.path)) or 0)
                data = (TIRING.get(self.path) or PAGE.format(
                    path=self.path, colour="#%02x%02x%02x" % COLOURS[number % 2],
                    weight=HEAVY if "heavy" in self.path else 0)).encode()
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.send_header("Content-Length", str(len(data)))
                self.end_headers()
                self.wfile.write(data)

            def log_message(self, *_):
                pass

        class Server(socketserver.ThreadingTCPServer):
            daemon_threads = True

            def handle_error(self, *_):
                pass

        self._server = Server(("127.0.0.1", 0), Handler)
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def address(self, path):
        return f"http://127.0.0.1:{self._server.server_address[1]}{path}"

    def wait_for(self, path, seconds=60):
        return stages.wait_for(f"{path} to be asked for", lambda: self.times.get(path), seconds, 0.002)

    def close(self):
        self._server.shutdown()
        self._server.server_close()


class Hand:
    """Keys and clicks without a process for each, so that they have a time."""

    def __init__(self, display):
        self._x, self._test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XKeysymToKeycode.restype = ctypes.c_ubyte
        self._display = ctypes.c_void_p(self._x.XOpenDisplay(display.encode()))

    def key(self, *symbols):
        codes = [self._x.XKeysymToKeycode(self._display, ctypes.c_ulong(symbol)) for symbol in symbols]
        for code, down in [(c, True) for c in codes] + [(c, False) for c in reversed(codes)]:
            self._test.XTestFakeKeyEvent(self._display, code, down, ctypes.c_ulong(0))
        return self._now()

    def click(self, x, y):
        self._test.XTestFakeMotionEvent(self._display, -1, x, y, ctypes.c_ulong(0))
        for down in (True, False):
            self._test.XTestFakeButtonEvent(self._display, 1, down, ctypes.c_ulong(0))
        return self._now()

    def _now(self):
        now = time.monotonic()
        self._x.XFlush(self._display)
        return now


ENTER, CONTROL, TAB, ALT, TWO = 0xFF0D, 0xFFE3, 0xFF09, 0xFFE9, 0x32


def family(pid):
    """A process and all below it."""
    children = {}
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            parent = int((process / "stat").read_text().rsplit(")", 1)[1].split()[1])
        except (OSError, ValueError):
            continue
        children.setdefault(parent, []).append(int(process.name))
    found, waiting = [], [pid]
    while waiting:
        found.append(waiting.pop())
        waiting += children.get(found[-1], [])
    return found


def memory(pid):
    """MiB of a process and those below it, without what is shared with files. The sandbox hides anything finer."""
    pages = 0
    for process in family(pid):
        try:
            resident, shared = pathlib.Path(f"/proc/{process}/statm").read_text().split()[1:3]
            pages += int(resident) - int(shared)
        except OSError:
            continue
    return pages * os.sysconf("SC_PAGE_SIZE") / (1 << 20)


class Subject:
    """A program with an address row."""

    def __init__(self, stage, site):
        self.stage, self.site = stage, site
        self.hand = Hand(stage.environment["DISPLAY"])
        self.screen = programs.Screen(stage.environment["DISPLAY"])
        self.count = 0

    def open(self, path=None):
        """(milliseconds to the request, to the second frame, of processor up to the request) of a page in a new tab."""
        path = path or f"/{self.name}-{self.count}"
        self.count += 1
        busy, begin = self.start(path)
        busy = self.busy() - busy
        frame = self.site.wait_for("/frame" + path)
        return (self.site.times[path] - begin) * 1000, (frame - begin) * 1000, busy

    def open_somehow(self):
        """On a busy machine the page before may still tell its address while the next one's is typed; then it is opened once more."""
        try:
            self.open()
        except stages.StageError:
            self.open()

    def start(self, path):
        """Asks for a page; what `busy` said, and when, as Enter was pressed."""
        self.go_to_row()
        self.stage.key("ctrl+a")
        self.stage.type(self.site.address(path))
        time.sleep(0.3)
        busy, begin = self.busy(), self.hand.key(ENTER)
        self.site.wait_for(path)
        return busy, begin

    def go_to_row(self):
        if self.address:
            self.hand.click(*self.address)

    def busy(self):
        """Milliseconds of processor that the thread of the window has had: a figure that other work does not change."""
        return int(pathlib.Path(f"/proc/{self.process.pid}/task/{self.process.pid}/schedstat").read_text().split()[0]) / 1e6

    def colour_at_page(self):
        pixel = self.screen.row(500, 1280)[50]
        return pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255

    def milliseconds_to_colour(self, colour, act):
        begin = act()
        stages.wait_for("the page's colour", lambda: self.colour_at_page() == colour, 20, 0)
        return (time.monotonic() - begin) * 1000

    def end(self):
        self.process.terminate()
        self.process.wait()


class Program(Subject):
    name = "program"

    def __init__(self, stage, site, places):
        super().__init__(stage, site)
        self.address, self.first_tab, self.first_cross = places
        # A run that ended with a page in front would begin without the music tab.
        stage.run("sqlite3", str(stage.folder / "app" / "dbHistory.mdb"),
                  "update tblHistory set HistoryText = 'True' where HistoryID = 7")
        self.process = stage.launch(stage.folder / "app")
        stages.wait_for("the splash", lambda: "Brindlepost" in stage.stacking(), 30)
        stages.wait_for("the splash to go", lambda: "Brindlepost" not in stage.stacking(), 60)
        time.sleep(3)

    def bring_first(self):
        return self.hand.click(*self.first_tab)

    def close_first(self):
        return self.hand.click(*self.first_cross)


class Bare(Subject):
    name = "bare"
    address = None      # has the keyboard already

    def __init__(self, stage, site):
        super().__init__(stage, site)
        self.process = stage.spawn([str(stage.build / "bench" / "bare_pages")])
        stage.window("Bare pages")
        time.sleep(2)

    def bring_first(self):
        return self.hand.key(CONTROL, TAB)


class Packaged(Subject):
    name = "packaged"

    def __init__(self, stage, site):
        super().__init__(stage, site)
        profile = pathlib.Path(stage.environment["HOME"]) / ".config/falkon/profiles/default"
        profile.mkdir(parents=True, exist_ok=True)
        (profile / "settings.ini").write_text(PACKAGED_SETTINGS, encoding="ascii")
        self.process = stage.spawn([PACKAGED, "--no-extensions", "--no-remote"])
        window = stage.window("(.* - )?Falkon", 60)
        stage.run("xdotool", "windowmove", "--sync", window, "0", "20")
        stage.run("xdotool", "windowsize", window, "1180", "780")
        time.sleep(3)

    def go_to_row(self):
        self.stage.key("ctrl+t", "ctrl+l")
        time.sleep(0.5)

    def bring_first(self):
        """The first tab is the one that it began with."""
        return self.hand.key(ALT, TWO)


def learn_places(stage):
    """Where things are, by a run that a screen reader can read; the runs that are measured are without."""
    tone = stages.make_tone(stage.folder / "Music" / "Film - Tone.wav", 440, 5)
    person = Screening(stage, [("Tone", tone)])
    address = person.eyes.centre("Address", "text")
    x, y, width, height = person.eyes.rect(person.eyes.find("Music Player", "page tab"))
    person.program.terminate()
    person.program.wait()
    del stage.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
    return address, (x + width + 40, y + height // 2), (x + width + 160, y + height // 2)


def subjects(stage, site, places):
    makers = [lambda: Program(stage, site, places), lambda: Bare(stage, site)]
    if shutil.which(PACKAGED):
        makers.append(lambda: Packaged(stage, site))
    for make in makers:
        made = make()
        try:
            yield made
        finally:
            made.end()


def spread(values):
    return f"median {statistics.median(values):.0f} (min {min(values):.0f}, max {max(values):.0f}, {len(values)} runs)"


def tell_open(what, runs):
    print(f"{what}: Enter to request {spread([r[0] for r in runs])} ms, of it {statistics.median(r[2] for r in runs):.0f} ms "
          f"of the window's thread; to second frame {spread([r[1] for r in runs])} ms", flush=True)


def measure_open(stage, site, places):
    firsts = {}
    for run in range(6):
        for subject in subjects(stage, site, places):
            subject.count = len(site.times)
            if run > 0:
                firsts.setdefault(subject.name, []).append(subject.open())
            else:
                tell_open(f"{subject.name}: first page of an account", [subject.open()])
    for name, pairs in firsts.items():
        tell_open(f"{name}: first page of a later start", pairs)
    for subject in subjects(stage, site, places):
        subject.count = len(site.times)
        subject.open()
        pairs = [subject.open() for _ in range(RUNS)]
        tell_open(f"{subject.name}: later page", pairs)


def measure_memory(stage, site, places):
    for subject in subjects(stage, site, places):
        subject.count = len(site.times)
        empty = memory(subject.process.pid)
        figures = []
        for tabs in range(1, 11):
            subject.open()
            if tabs in (1, 10):
                time.sleep(5)
                figures.append(f"{tabs} tabs {memory(subject.process.pid):.0f}")
        print(f"{subject.name}: memory in MiB, empty {empty:.0f}, {', '.join(figures)}", flush=True)


def measure_switch(stage, site, places):
    for subject in subjects(stage, site, places):
        took = []
        for _ in range(RUNS):
            subject.count = len(site.times) // 2 * 2
            if not took:
                subject.open(f"/first-{subject.name}-0")
            subject.open(f"/other-{subject.name}-{2 * len(took) + 1}")
            stages.wait_for("the colour in front", lambda s=subject: s.colour_at_page() == COLOURS[1])
            time.sleep(0.5)
            took.append(subject.milliseconds_to_colour(COLOURS[0], subject.bring_first))
        print(f"{subject.name}: tab switch to the page's pixels {spread(took)} ms")


def measure_closed(stage, site, places):
    program = Program(stage, site, places)
    try:
        program.open("/heavy-0")
        time.sleep(3)
        full = memory(program.process.pid)
        begin = program.close_first()
        end = begin + 180
        while memory(program.process.pid) > full - 0.9 * HEAVY and time.monotonic() < end:
            time.sleep(0.5)
        left = memory(program.process.pid)
        print(f"program: a tab of {HEAVY} MiB closed: {full:.0f} MiB before, {left:.0f} after {time.monotonic() - begin:.0f} s")
    finally:
        program.end()


def holders(pid):
    """MiB of the program's own process, and how many processes hold pages."""
    own = int(pathlib.Path(f"/proc/{pid}/statm").read_text().split()[1]) * os.sysconf("SC_PAGE_SIZE") / (1 << 20)
    count = 0
    for process in family(pid):
        try:
            count += b"--type=renderer" in pathlib.Path(f"/proc/{process}/cmdline").read_bytes()
        except OSError:
            continue
    return f"{count} page processes, the program's own {own:.0f} MiB resident"


def measure_covered(stage, site, places, seconds):
    program = Program(stage, site, places)
    pid = program.process.pid
    try:
        for _ in range(10):
            program.open_somehow()
        print(f"program: 10 tabs {memory(pid):.0f} MiB ({holders(pid)})", flush=True)
        for _ in range(90):
            program.open_somehow()
        live, begin = memory(pid), time.monotonic()
        print(f"program: 100 tabs {live:.0f} MiB ({holders(pid)})", flush=True)
        for after in sorted({60, 120, 180, 240, 260, seconds}):
            if after > seconds:
                break
            time.sleep(max(0, begin + after - time.monotonic()))
            now = memory(pid)
            print(f"program: covered for {after} s {now:.0f} MiB, {100 * now / live:.0f} % ({holders(pid)})", flush=True)
    finally:
        program.end()


def own_memory(pid):
    """MiB of the program's own process: resident, and no file's."""
    rollup = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().split("\n")[1:]
    sizes = {line.split()[0]: int(line.split()[1]) / 1024 for line in rollup if line}
    return sizes["Rss:"], sizes["Anonymous:"]


def measure_left(stage, site, places, pages):
    """Closed pages beyond the newest few are discarded at once, and what that frees is given back some seconds later."""
    program = Program(stage, site, places)
    pid = program.process.pid
    try:
        figures = []
        for number in range(pages + 1):
            if number % max(1, pages // 5) == 0:
                time.sleep(25)
                figures.append((number, *own_memory(pid)))
                print(f"program: {number} pages opened and closed: {figures[-1][1]:.0f} MiB resident in its own process, "
                      f"{figures[-1][2]:.0f} anonymous; {holders(pid)}", flush=True)
            if number < pages:
                program.open_somehow()
                program.close_first()
                time.sleep(0.3)
        (first, _, before), (last, _, after) = figures[-3], figures[-1]
        left = 1024 * (after - before) / (last - first)
        print(f"program: each page between the {first}th and the {last}th left {left:.0f} KiB")
    finally:
        program.end()


def measure_reader(stage, site, places):
    for path in TIRING:
        for is_there in (True, False):
            stage.environment.update({"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"} if is_there else {})
            program = Program(stage, site, places)
            stage.environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
            site.times.clear()
            program.start(path)
            # The window is made again with its first page.
            answering = Answering(stage.environment["DISPLAY"], stage.window("Brindlepost - "))
            begin = time.monotonic()
            try:
                time.sleep(3)
                program.hand.click(640, 500)
                time.sleep(12)
                own = int(pathlib.Path(f"/proc/{program.process.pid}/statm").read_text().split()[1]) * 4096 / (1 << 20)
                print(f"program: {path} for 15 s, reader {'wanted' if is_there else 'not wanted'}: longest answer of the window "
                      f"{answering.longest(begin) * 1000:.0f} ms, its own process {own:.0f} MiB, "
                      f"all {memory(program.process.pid):.0f}", flush=True)
            finally:
                answering.close()
                program.end()


def main():
    build = stages.become_unprivileged(sys.argv[1])
    parser = argparse.ArgumentParser()
    parser.add_argument("build")
    parser.add_argument("what", nargs="*", default=["open", "memory", "switch", "closed"])
    parser.add_argument("--seconds", type=int, default=300)
    parser.add_argument("--pages", type=int, default=100)
    options = parser.parse_args()
    print(f"machine: {os.cpu_count()} cores, display Xvfb, software drawing, load {os.getloadavg()[0]:.1f}")
    if not shutil.which(PACKAGED):
        print(f"packaged: {PACKAGED} is not installed, so the bare window is the only peer")
    with stages.Stage(build, sound=False) as stage:
        # Where the driver keeps what it compiled; it asks for the home of the account, and "nobody" has none.
        stage.environment["XDG_CACHE_HOME"] = str(stage.folder / "home" / ".cache")
        site = Site()
        places = learn_places(stage)
        for what in options.what or ["open", "memory", "switch", "closed"]:
            if what == "covered":
                measure_covered(stage, site, places, options.seconds)
            elif what == "left":
                measure_left(stage, site, places, options.pages)
            else:
                globals()["measure_" + what](stage, site, places)
        site.close()
        stage.remove()


if __name__ == "__main__":
    main()
