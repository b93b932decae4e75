"""Measures the whole program on a stage of its own: start to login painted, processor use, memory.

    python3 bench/program.py BUILD [start|rest|songs|running|library]...

Every figure is the median of several runs, beside a bare window of the toolkit and a bare player of the same media
engine that are measured in the same run.
"""

import ctypes
import os
import pathlib
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "real"))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import stage as stages
from answering import Answering

AMBER = (0xE9, 0xA2, 0x4B)
RUNS = 11
RUNS_WITH_SONGS = 7
SONGS = (0, 20_000, 1_000_000)
SECONDS = 20
LOGIN_BUTTON_LINE = 535


class Screen:
    """Reads pixels straight from the display, fast enough to see a paint within two milliseconds."""

    def __init__(self, display):
        self._x = ctypes.CDLL("libX11.so.6")
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XDefaultRootWindow.restype = ctypes.c_ulong
        self._x.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        self._x.XGetImage.restype = ctypes.c_void_p
        self._x.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong] + [ctypes.c_int] * 2 + [
            ctypes.c_uint] * 2 + [ctypes.c_ulong, ctypes.c_int]
        self._x.XGetPixel.restype = ctypes.c_ulong
        self._x.XGetPixel.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int]
        self._x.XDestroyImage.argtypes = [ctypes.c_void_p]
        self._display = self._x.XOpenDisplay(display.encode())
        self._root = self._x.XDefaultRootWindow(self._display)

    def row(self, y, width):
        image = self._x.XGetImage(self._display, self._root, 0, y, width, 1, 0xFFFFFFFF, 2)
        pixels = [self._x.XGetPixel(image, x, 0) for x in range(0, width, 16)]
        self._x.XDestroyImage(image)
        return pixels

    def has_amber(self, y, width):
        """A run of the accent colour on that line of the screen."""
        def near(pixel):
            parts = (pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255)
            return all(abs(a - b) < 14 for a, b in zip(parts, AMBER))
        return sum(near(pixel) for pixel in self.row(y, width)) >= 4


def milliseconds_to_paint(stage, screen, command, line, environment=None):
    begin = time.monotonic()
    process = stage.spawn(command) if environment is None else stage.launch(*command)
    while not screen.has_amber(line, 1280):
        if time.monotonic() - begin > 20:
            raise stages.StageError(f"{command} painted nothing")
    took = (time.monotonic() - begin) * 1000
    process.terminate()
    process.wait()
    stages.wait_for("the window to go", lambda: not screen.has_amber(line, 1280))
    return took


def measure_start(stage, build):
    screen = Screen(stage.environment["DISPLAY"])
    application = stage.make_application("start")
    program, bare = [], []
    for run in range(RUNS + 1):
        took = milliseconds_to_paint(stage, screen, [str(application / "Brindlepost")], LOGIN_BUTTON_LINE)
        took_bare = milliseconds_to_paint(stage, screen, [str(build / "bench" / "bare_window")], 430)
        if run > 0:
            program.append(took)
            bare.append(took_bare)
    print(f"process start to login painted: median {statistics.median(program):.0f} ms "
          f"(min {min(program):.0f}, max {max(program):.0f}, {RUNS} runs); "
          f"bare toolkit window: median {statistics.median(bare):.0f} ms")


def worked_ms(pid):
    """Processor time of a process and its decoders, every thread of them, finer than the system's clock ticks."""
    total = 0
    for number in family(pid):
        for thread in pathlib.Path(f"/proc/{number}/task").glob("*"):
            try:
                total += int((thread / "schedstat").read_text().split()[0])
            except OSError:
                continue
    return total / 1e6


def rest_of_start(stage, screen, application):
    """What is done after the login is painted: when the last of it was, what it took, and memory then."""
    process = stage.spawn([str(application / "Brindlepost")])
    while not screen.has_amber(LOGIN_BUTTON_LINE, 1280):
        pass
    before_paint = pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/schedstat").read_text().split()[0]
    painted = last = time.monotonic()
    begin = before = worked_ms(process.pid)
    while time.monotonic() - painted < 3:
        time.sleep(0.02)
        now = worked_ms(process.pid)
        # A cursor that blinks is no work.
        if now - before > 1:
            last = time.monotonic()
        before = now
    resident, proportional = memory_mib(process.pid)
    process.terminate()
    process.wait()
    stages.wait_for("the window to go", lambda: not screen.has_amber(LOGIN_BUTTON_LINE, 1280))
    return int(before_paint) / 1e6, (last - painted) * 1000, before - begin, resident, proportional


def measure_rest(stage):
    screen = Screen(stage.environment["DISPLAY"])
    application = stage.make_application("rest")
    # The first start makes what the media library keeps at home.
    runs = [rest_of_start(stage, screen, application) for _ in range(RUNS + 1)][1:]
    first, last, work, resident, proportional = (statistics.median(column) for column in zip(*runs))
    print(f"processor of the first thread until the login is painted: median {first:.1f} ms ({RUNS} runs)")
    print(f"last work after it: median {last:.0f} ms, {work:.0f} ms of processor time, decoders among it")
    print(f"memory at the login, decoders among it: {resident:.0f} MiB resident, {proportional:.0f} MiB proportional")


def start_with_songs(stage, screen, application):
    """When the login was painted, and the longest it then gave no answer in three seconds."""
    begin = time.monotonic()
    process = stage.spawn([str(application / "Brindlepost")])
    while not screen.has_amber(LOGIN_BUTTON_LINE, 1280):
        if time.monotonic() - begin > 20:
            raise stages.StageError("no login was painted")
    painted = time.monotonic()
    asking = Answering(stage.environment["DISPLAY"], stage.window("Brindlepost - Login"), every=0.004)
    time.sleep(3)
    silence = asking.longest_silence(painted)
    asking.close()
    process.terminate()
    process.wait()
    stages.wait_for("the window to go", lambda: not screen.has_amber(LOGIN_BUTTON_LINE, 1280))
    return (painted - begin) * 1000, silence * 1000


def measure_songs(stage):
    """The libraries take turns, so that other work of the machine meets them all."""
    screen = Screen(stage.environment["DISPLAY"])
    applications = {count: stage.make_application(f"songs-{count}") for count in SONGS}
    for count, application in applications.items():
        if count:
            seed_songs(application, count)
        start_with_songs(stage, screen, application)
    runs = {count: [] for count in SONGS}
    for _ in range(RUNS_WITH_SONGS):
        for count, application in applications.items():
            runs[count].append(start_with_songs(stage, screen, application))
    for count, figures in runs.items():
        painted, silences = zip(*figures)
        print(f"{count:9,} songs: login painted after median {statistics.median(painted):.0f} ms "
              f"(min {min(painted):.0f}, max {max(painted):.0f}, {RUNS_WITH_SONGS} runs); longest without an answer after it "
              f"median {statistics.median(silences):.0f} ms (max {max(silences):.0f})")


def seed(application, song):
    def run(store, text):
        subprocess.run(["sqlite3", str(application / store), text], check=True)
    run("dbLogin.mdb", "insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')")
    path = "C:" + str(song).replace("/", "\\")
    run("dbMedia.mdb", f"insert into tblSong values(1,'Ada','Tone','{path}',0)")


def family(pid):
    """A process and the decoders that it started."""
    found = [pid]
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            fields = (folder / "stat").read_text().rsplit(")", 1)[1].split()
            if int(fields[1]) == pid and b"brindlepost-media" in (folder / "cmdline").read_bytes():
                found.append(int(folder.name))
        except OSError:
            continue
    return found


def processor_seconds(pid):
    """Of a process and its decoders."""
    seconds = 0
    for number in family(pid):
        fields = pathlib.Path(f"/proc/{number}/stat").read_text().rsplit(")", 1)[1].split()
        seconds += (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
    return seconds


def percent_of_a_core(pid, seconds=SECONDS):
    before, begin = processor_seconds(pid), time.monotonic()
    time.sleep(seconds)
    return (processor_seconds(pid) - before) / (time.monotonic() - begin) * 100


def memory_mib(pid):
    """Resident and proportional, of a process and its decoders."""
    total = {"Rss": 0, "Pss": 0}
    for number in family(pid):
        lines = pathlib.Path(f"/proc/{number}/smaps_rollup").read_text().splitlines()[1:]
        values = dict(line.split(":") for line in lines)
        for key in total:
            total[key] += int(values[key].split()[0]) / 1024
    return total["Rss"], total["Pss"]


def open_main_window(stage):
    song = stages.make_tone(stage.folder / "Music" / "Ada - Tone.mp3", 440, 240)
    application = stage.make_application("run")
    seed(application, song)
    process = stage.launch(application)
    eyes = stages.Eyes()
    stages.wait_for("the track in its list", lambda: eyes.rows("Tracks") == ["Ada - Tone"], 30)
    stages.wait_for("the splash to go", lambda: "Brindlepost" not in stage.stacking(), 30)
    time.sleep(3)
    return process, eyes, song


def measure_running(stage, build):
    process, eyes, song = open_main_window(stage)
    rss, pss = memory_mib(process.pid)
    print(f"memory, main window up, no tab: {rss:.0f} MiB resident, {pss:.0f} MiB proportional")
    idle = [percent_of_a_core(process.pid) for _ in range(3)]
    print(f"processor, main window idle: median {statistics.median(idle):.2f} % of one core ({SECONDS} s, 3 times)")
    x, y, width, height = eyes.row_rect("Tracks", 0)
    stage.click(x + 60, y + height // 2, times=2)
    time.sleep(3)
    playing = [percent_of_a_core(process.pid) for _ in range(3)]
    print(f"processor, one song playing: median {statistics.median(playing):.2f} % of one core ({SECONDS} s, 3 times)")
    process.terminate()
    process.wait()
    player = stage.spawn(["gst-launch-1.0", "-q", "playbin3", f"uri=file://{song}", "flags=2"])
    time.sleep(3)
    bare = [percent_of_a_core(player.pid) for _ in range(3)]
    print(f"processor, bare player of the same engine: median {statistics.median(bare):.2f} % of one core")


def seed_songs(application, count):
    text = f"""
        with recursive n(i) as (select 1 union all select i + 1 from n where i < {count})
        insert into tblSong
        select i, 'Artist Number ' || (i / 50), 'A Title of Usual Length ' || i,
               'C:\\home\\person\\Music\\Artist Number ' || (i / 50) || '\\An Album of Theirs\\' || i ||
               ' - A Title of Usual Length.mp3', 0 from n"""
    subprocess.run(["sqlite3", str(application / "dbMedia.mdb"), text], check=True)


def memory_with_library(stage, name, songs):
    application = stage.make_application(name)
    subprocess.run(["sqlite3", str(application / "dbLogin.mdb"),
                    "insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')"], check=True)
    if songs:
        seed_songs(application, 1_000_000)
    process = stage.launch(application)
    stages.wait_for("the splash", lambda: "Brindlepost" in stage.stacking(), 30)
    stages.wait_for("the splash to go", lambda: "Brindlepost" not in stage.stacking(), 60)
    time.sleep(3)
    resident, _ = memory_mib(process.pid)
    process.terminate()
    process.wait()
    return resident


def measure_library(stage):
    empty = memory_with_library(stage, "empty", songs=False)
    full = memory_with_library(stage, "full", songs=True)
    print(f"memory, 1,000,000 songs all shown: {full:.0f} MiB resident, {full - empty:.0f} MiB above the empty state")


def main():
    build = stages.become_unprivileged(sys.argv[1])
    wanted = sys.argv[2:] or ["start", "running"]
    with stages.Stage(build) as stage:
        print(f"machine: {os.cpu_count()} cores, display Xvfb, private sound server")
        if "start" in wanted:
            measure_start(stage, build)
        if "rest" in wanted:
            measure_rest(stage)
        if "songs" in wanted:
            measure_songs(stage)
        if "running" in wanted:
            measure_running(stage, build)
        if "library" in wanted:
            measure_library(stage)


if __name__ == "__main__":
    main()
