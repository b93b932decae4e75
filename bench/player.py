"""Measures the player of the whole program on a stage of its own, with peers in the same run.

    python3 bench/player.py BUILD [start|stages|next|processor]...

"start": a double click on a track until the first sound, in the recording of the sound server's monitor. Beside it a
command-line player of the same engine, its process included, and a music daemon that is told to play (packages of
the group "bench" in tools/packages.txt). "stages": where the time of such a start goes. "next": how long it is quiet
between two songs with fades off. "processor": what a playing song, a crossfade and a light show cost, the music tab
in front.
"""

import array
import ctypes
import os
import pathlib
import statistics
import subprocess
import sys
import threading
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "real"))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import click_to_sound
import program as programs
import stage as stages
from story import Story

RUNS = 9
AUDIBLE = 0.02
RATE = stages.SAMPLE_RATE
WINDOW = RATE // 100


class Ear:
    """Hears the monitor as it sounds; a place is a count of samples."""

    def __init__(self, stage):
        self._samples = array.array("h")
        self._lock = threading.Lock()
        self._process = stage.spawn(
            ["parec", "-d", "test.monitor", "--raw", "--format=s16le", "--channels=1", f"--rate={RATE}",
             "--latency-msec=5"], stdout=subprocess.PIPE)
        threading.Thread(target=self._listen, daemon=True).start()
        stages.wait_for("the recording to run", self.place)

    def _listen(self):
        rest = b""
        while piece := os.read(self._process.stdout.fileno(), 4096):
            rest += piece
            whole = len(rest) // 2 * 2
            with self._lock:
                self._samples.frombytes(rest[:whole])
            rest = rest[whole:]

    def place(self):
        with self._lock:
            return len(self._samples)

    def heard(self, begin, end=None):
        with self._lock:
            return self._samples[begin:end]

    def milliseconds_to_sound(self, begin, seconds=5):
        """From a place to the first sample that is heard."""
        def first():
            for index, sample in enumerate(self.heard(begin)):
                if abs(sample) > AUDIBLE * 32768:
                    return index + 1
            return None
        return stages.wait_for("a sound", first, seconds, 0.01) * 1000 / RATE

    def is_quiet(self, seconds=0.5):
        last = self.heard(-int(seconds * RATE))
        return max(abs(sample) for sample in last) < AUDIBLE * 32768 / 2

    def wait_for_quiet(self):
        stages.wait_for("quiet", self.is_quiet, 10)


class Mouse:
    """Presses without a process in between."""

    def __init__(self, display):
        x, self._test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        x.XOpenDisplay.restype = ctypes.c_void_p
        self._display = ctypes.c_void_p(x.XOpenDisplay(display.encode()))
        self._flush = x.XFlush

    def press(self):
        for down in (1, 0):
            self._test.XTestFakeButtonEvent(self._display, 1, down, ctypes.c_ulong(0))
        self._flush(self._display)


class Player(Story):
    """The program with two songs in its list, the second of a length that the measure wants."""

    def __init__(self, stage, kind="mp3", seconds=14):
        self.stage, self.eyes = stage, stages.Eyes()
        music = stage.folder / "Music"
        self.songs = [stages.make_tone(music / f"Ada - Tone.{kind}", 440, 240),
                      stages.make_tone(music / f"Bob - Tone.{kind}", 660, seconds)]
        application = stage.make_application("player-" + kind)
        programs.seed(application, self.songs[0])
        path = "C:" + str(self.songs[1]).replace("/", "\\")
        programs.subprocess.run(["sqlite3", str(application / "dbMedia.mdb"),
                                 f"insert into tblSong values(2,'Bob','Tone','{path}',0)"], check=True)
        self.program = stage.launch(application)
        stages.wait_for("the tracks", lambda: len(self.eyes.rows("Tracks")) == 2, 30)
        stages.wait_for("the splash to go", lambda: "Brindlepost" not in stage.stacking(), 30)

    def point_at(self, row):
        x, y, _, height = self.eyes.row_rect("Tracks", row)
        self.stage.run("xdotool", "mousemove", str(x + 60), str(y + height // 2))

    def end(self):
        self.program.terminate()
        self.program.wait()


def tell(what, values):
    print(f"{what}: median {statistics.median(values):.1f} ms (min {min(values):.1f}, max {max(values):.1f}, "
          f"{len(values)} runs)", flush=True)


def measure(ear, play, stop, runs=RUNS):
    values = []
    for _ in range(runs + 1):
        ear.wait_for_quiet()
        begin = ear.place()
        play()
        values.append(ear.milliseconds_to_sound(begin))
        stop()
    return values[1:]


def measure_start(stage):
    """An mp3 begins with some 25 ms of silence that its encoder put there; a wav with its first sample."""
    ear, mouse = Ear(stage), Mouse(stage.environment["DISPLAY"])
    for kind in ("wav", "mp3"):
        player = Player(stage, kind)
        tell(f"double click to first sound, {kind}", [to_first_sound(ear, player, mouse)[1] for _ in range(RUNS + 1)][1:])
        player.end()
    tell_peers(stage, ear, player.songs[0])


def to_first_sound(ear, player, mouse):
    ear.wait_for_quiet()
    player.point_at(0)
    time.sleep(0.6)
    mouse.press()
    time.sleep(0.08)
    begin, at = ear.place(), time.monotonic_ns()
    mouse.press()
    milliseconds = ear.milliseconds_to_sound(begin)
    player.press("Stop")
    return at, milliseconds


def measure_stages(stage):
    ear, mouse = Ear(stage), Mouse(stage.environment["DISPLAY"])
    click_to_sound.measure(stage, stage.build, lambda player: to_first_sound(ear, player, mouse),
                           lambda kind: Player(stage, kind))


def tell_peers(stage, ear, song):
    running = []
    tell("gst-launch-1.0 playbin, its process included", measure(
        ear, lambda: running.append(stage.spawn(["gst-launch-1.0", "-q", "playbin", f"uri=file://{song}", "flags=2"])),
        lambda: (running[-1].terminate(), running[-1].wait())))
    daemon = start_daemon(stage, song)
    if daemon is None:
        print("no music daemon here: install the packages of the group \"bench\"")
        return
    tell("music daemon mpd, told by mpc, its process included", measure(
        ear, lambda: stage.run("mpc", "-q", "play", "1"), lambda: stage.run("mpc", "-q", "stop")))
    daemon.terminate()
    daemon.wait()


def start_daemon(stage, song):
    folder = stage.folder / "mpd"
    folder.mkdir()
    socket = folder / "socket"
    (folder / "conf").write_text(
        f'music_directory "{song.parent}"\ndb_file "{folder}/db"\nbind_to_address "{socket}"\n'
        f'pid_file "{folder}/pid"\nauto_update "yes"\naudio_output {{\n type "pulse"\n name "out"\n}}\n')
    try:
        daemon = stage.spawn(["mpd", "--no-daemon", str(folder / "conf")])
    except (FileNotFoundError, PermissionError):
        return None
    stage.environment["MPD_HOST"] = str(socket)
    stages.wait_for("the daemon's song", lambda: song.name in stage.run("mpc", "listall"), 20)
    stage.run("mpc", "-q", "add", song.name)
    stage.run("mpc", "-q", "consume", "off")
    return daemon


def longest_quiet(samples):
    longest = run = 0
    for sample in samples:
        run = run + 1 if abs(sample) < AUDIBLE * 32768 / 2 else 0
        longest = max(longest, run)
    return longest * 1000 / RATE


def measure_next(stage):
    ear, player = Ear(stage), Player(stage)
    values = []
    for _ in range(5):
        player.choose_text("Tracks", "Bob - Tone", times=2)
        player.choose_menu("Music Player", "Special", "Crossfade Songs", "Off")
        stages.wait_for("the next song", lambda: (list(ear.heard(-WINDOW * 20)) and stages.level_of_tone(
            list(ear.heard(-WINDOW * 20)), 440) > 0.3), 30, 0.02)
        time.sleep(0.3)
        values.append(longest_quiet(ear.heard(-2 * RATE)))
    tell("longest quiet from one song to the next, fades off", values)
    player.end()


def measure_processor(stage):
    player = Player(stage, seconds=240)
    pid = player.program.pid
    player.choose_text("Tracks", "Ada - Tone", times=2)
    time.sleep(3)
    alone = [programs.percent_of_a_core(pid, 10) for _ in range(3)]
    print(f"processor, one song: median {statistics.median(alone):.2f} % of one core (10 s, 3 times)", flush=True)
    player.choose_menu("Music Player", "Special", "Crossfade Songs", "Long")
    crossing = []
    for row in (1, 0, 1):
        player.choose_text("Tracks", ("Ada - Tone", "Bob - Tone")[row], times=2)
        time.sleep(1)
        crossing.append(programs.percent_of_a_core(pid, 8))
    print(f"processor, crossfade: median {statistics.median(crossing):.2f} % of one core (8 s, 3 times)", flush=True)
    player.choose_menu("Music Player", "Special", "Visualisations", "Party Light")
    time.sleep(2)
    show = [programs.percent_of_a_core(pid, 8) for _ in range(3)]
    print(f"processor, one song and a light show: median {statistics.median(show):.2f} % of one core (8 s, 3 times)",
          flush=True)
    player.end()
    bare = stage.spawn(["gst-launch-1.0", "-q", "playbin", f"uri=file://{player.songs[0]}", "flags=2"])
    time.sleep(3)
    peer = [programs.percent_of_a_core(bare.pid, 10) for _ in range(2)]
    print(f"processor, gst-launch-1.0 playbin: median {statistics.median(peer):.2f} % of one core", flush=True)
    bare.terminate()
    bare.wait()
    daemon = start_daemon(stage, player.songs[0])
    if daemon is not None:
        stage.run("mpc", "-q", "play", "1")
        time.sleep(3)
        peer = [programs.percent_of_a_core(daemon.pid, 10) for _ in range(2)]
        print(f"processor, mpd: median {statistics.median(peer):.2f} % of one core", flush=True)
        daemon.terminate()
        daemon.wait()


MEASURES = {"start": measure_start, "stages": measure_stages, "next": measure_next, "processor": measure_processor}


def main():
    build = stages.become_unprivileged(sys.argv[1])
    for name in sys.argv[2:] or MEASURES:
        with stages.Stage(build) as stage:
            MEASURES[name](stage)
        stage.remove()


if __name__ == "__main__":
    main()
