"""A stage for the real program: a display, a window manager, a sound server, a bus, pages and songs of its own.

Everything lives in one temporary folder and ends with the stage. Started by root, the script begins again as the
unprivileged user "nobody", so that the page engine's sandbox is really on. Nothing sleeps for a fixed time to wait for
something: `wait_for` asks again until the thing is there or its bound is passed.
"""

import array
import atexit
import http.server
import math
import os
import pathlib
import shutil
import signal
import socketserver
import struct
import subprocess
import sys
import tempfile
import threading
import time
import traceback

SAMPLE_RATE = 44100
NOBODY = "65534"
LIST_PATIENCE = 10.0      # seconds, with a list that changes while it is read


class StageError(Exception):
    """Something the stage waited for did not come."""


# What the stage needs out of a build folder.
KIT = ["app/Brindlepost", "platform/decoder/brindlepost-media", "platform/linux/brindlepost-files", "platform/webengine/*.so",
       "images/*.png", "images/*.bmp", "stores/*.mdb", "bench/bare_window", "bench/bare_pages", "bench/libstamps.so",
       "tests/real/drag_source", "tests/real/damage/damage_files"]


def become_unprivileged(build):
    """The build folder to use. Started by root, the script begins again as nobody, from a copy that nobody can read."""
    build = pathlib.Path(build).resolve()
    if not (build / "app" / "Brindlepost").exists():
        sys.exit(f"There is no program in {build}: build it first (targets Brindlepost, brindlepost_pages, "
                 "brindlepost_stores and brindlepost_images).")
    begin_as_nobody(build)
    return build


def begin_as_nobody(build=None):
    """Started by root, the script begins again as nobody; with a build folder, with a copy of it as its first argument."""
    if os.geteuid() != 0:
        if "BRINDLEPOST_KIT" in os.environ:
            atexit.register(shutil.rmtree, os.environ["BRINDLEPOST_KIT"], ignore_errors=True)
        return
    kit = pathlib.Path(tempfile.mkdtemp(prefix="brindlepost-kit-"))
    arguments = sys.argv[1:]
    if build:
        _copy_build(build, kit)
        arguments[0] = str(kit / "build")
    for folder in (pathlib.Path(__file__).parent, pathlib.Path(sys.argv[0]).parent):
        for script in folder.glob("*.py"):
            shutil.copy2(script, kit)
    subprocess.run(["chown", "-R", f"{NOBODY}:{NOBODY}", str(kit)], check=True)
    os.environ["BRINDLEPOST_KIT"] = str(kit)
    os.chdir(kit)
    os.execvp(
        "setpriv",
        ["setpriv", "--reuid=" + NOBODY, "--regid=" + NOBODY, "--clear-groups", "--inh-caps=-all", sys.executable,
         str(kit / pathlib.Path(sys.argv[0]).name), *arguments],
    )


def _copy_build(build, kit):
    for pattern in KIT:
        for file in build.glob(pattern):
            target = kit / "build" / file.relative_to(build)
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(file, target)


def wait_for(what, condition, seconds=10.0, step=0.05):
    """The first true answer of `condition`; an error that names `what` after `seconds`."""
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise StageError(f"{what}: not within {seconds} s")
        time.sleep(step)


# ---- sound ---------------------------------------------------------------------------------------------------------


def level_of_tone(samples, frequency):
    """Amplitude (0 to 1) of one frequency in a list of samples."""
    if not samples:
        return 0.0
    coefficient = 2.0 * math.cos(2.0 * math.pi * frequency / SAMPLE_RATE)
    before, last = 0.0, 0.0
    for sample in samples:
        before, last = last, sample + coefficient * last - before
    power = last * last + before * before - coefficient * last * before
    return 2.0 * math.sqrt(max(power, 0.0)) / len(samples) / 32768.0


def loudness(samples):
    """Root mean square, 0 to 1."""
    if not samples:
        return 0.0
    return math.sqrt(sum(s * s for s in samples) / len(samples)) / 32768.0


class Recorder:
    """Records the sound server's monitor into a file from the moment it is made."""

    def __init__(self, stage, path, source="test.monitor"):
        self.path = pathlib.Path(path)
        self._file = open(self.path, "wb")
        self._process = stage.spawn(
            ["parec", "-d", source, "--raw", "--format=s16le", "--channels=2", f"--rate={SAMPLE_RATE}",
             "--latency-msec=20"],
            stdout=self._file,
        )
        wait_for("the recording to run", lambda: self.path.stat().st_size > 0)

    def seconds(self):
        return self.path.stat().st_size / 4 / SAMPLE_RATE

    def last(self, seconds):
        """(left, right) samples of the newest stretch."""
        size = self.path.stat().st_size // 4 * 4
        begin = max(0, size - int(seconds * SAMPLE_RATE) * 4)
        with open(self.path, "rb") as file:
            file.seek(begin)
            both = array.array("h", file.read(size - begin))
        return list(both[0::2]), list(both[1::2])

    def hears(self, frequency, seconds=0.4, least=0.05):
        """True when the tone stands out of the newest stretch on the left channel."""
        left, _ = self.last(seconds)
        tone = level_of_tone(left, frequency)
        return tone > least and tone > 0.5 * loudness(left)

    def is_silent(self, seconds=0.4):
        left, right = self.last(seconds)
        return len(left) > 0 and loudness(left) < 0.001 and loudness(right) < 0.001

    def stop(self):
        self._process.terminate()
        self._process.wait()
        self._file.close()

    def write_wav(self, path):
        data = self.path.read_bytes()
        data = data[: len(data) // 4 * 4]
        header = b"RIFF" + struct.pack("<I", 36 + len(data)) + b"WAVEfmt " + struct.pack(
            "<IHHIIHH", 16, 1, 2, SAMPLE_RATE, SAMPLE_RATE * 4, 4, 16) + b"data" + struct.pack("<I", len(data))
        pathlib.Path(path).write_bytes(header + data)


# ---- media ---------------------------------------------------------------------------------------------------------


def make_tone(path, frequency, seconds, right_frequency=None):
    """A song of one pitch (or one for each channel), by ffmpeg, in the kind that the name says."""
    path = pathlib.Path(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    right = right_frequency or frequency
    sound = f"aevalsrc=0.5*sin(2*PI*{frequency}*t)|0.5*sin(2*PI*{right}*t):s={SAMPLE_RATE}:d={seconds}"
    command = ["ffmpeg", "-y", "-loglevel", "error", "-f", "lavfi", "-i", sound]
    if path.suffix in (".mpg", ".mpeg", ".avi", ".wmv", ".mp4", ".mov", ".vob"):
        command += ["-f", "lavfi", "-i", f"testsrc2=size=320x240:rate=25:duration={seconds}", "-shortest"]
    if path.suffix in (".mpg", ".mpeg"):
        command += ["-c:v", "mpeg1video", "-b:v", "1500k", "-c:a", "mp2", "-f", "mpeg"]
    elif path.suffix == ".vob":
        command += ["-c:v", "mpeg2video", "-c:a", "mp2", "-f", "vob"]
    elif path.suffix == ".mp3":
        command += ["-b:a", "160k", "-write_xing", "1"]
    subprocess.run(command + [str(path)], check=True, stdin=subprocess.DEVNULL)
    return path


def make_midi(path, note=69, seconds=4):
    """A General MIDI file that holds one note of an ocarina, which is nearly a pure tone (69 is the A of 440 Hz)."""
    ticks = int(seconds * 960)
    length = bytes([0x80 | (ticks >> 7 & 0x7F), ticks & 0x7F]) if ticks < 16384 else bytes([0xFF, 0x7F])
    events = b"\x00\xff\x51\x03\x07\xa1\x20" + b"\x00\xc0\x4f" + bytes([0, 0x90, note, 127]) + length + bytes(
        [0x80, note, 0]) + b"\x00\xff\x2f\x00"
    pathlib.Path(path).write_bytes(
        b"MThd" + struct.pack(">IHHH", 6, 0, 1, 480) + b"MTrk" + struct.pack(">I", len(events)) + events)
    return pathlib.Path(path)


# ---- pages ---------------------------------------------------------------------------------------------------------


class PageServer:
    """Serves a dictionary of path to HTML on 127.0.0.1 and remembers what was asked for."""

    def __init__(self, pages):
        requests = self.requests = []

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                requests.append(self.path)
                page = pages.get(self.path.split("?")[0])
                self.send_response(200 if page is not None else 404)
                self.send_header("Content-Type", "text/html; charset=utf-8")
                self.end_headers()
                self.wfile.write((page or "<title>Not here</title>").encode())

            def log_message(self, *_):
                pass

        self._server = socketserver.ThreadingTCPServer(("127.0.0.1", 0), Handler)
        self._server.daemon_threads = True
        self.port = self._server.server_address[1]
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def close(self):
        self._server.shutdown()
        self._server.server_close()


# ---- the stage -----------------------------------------------------------------------------------------------------


class Stage:
    def __init__(self, build, size=(1280, 860), sound=True):
        self.build = pathlib.Path(build).resolve()
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="brindlepost-stage-"))
        self._processes = []
        self._logs = []
        self.sound = sound
        self.environment = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "HOME": str(self.folder / "home"),
            "XDG_RUNTIME_DIR": str(self.folder / "runtime"),
            "LANG": "C.UTF-8",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "NO_AT_BRIDGE": "0",
            "XDG_SESSION_TYPE": "x11",
        }
        (self.folder / "home").mkdir()
        (self.folder / "runtime").mkdir(mode=0o700)
        os.environ["XDG_RUNTIME_DIR"] = self.environment["XDG_RUNTIME_DIR"]
        os.environ["HOME"] = self.environment["HOME"]
        try:
            self._start_display(size)
            self._start_bus()
            if sound:
                self._start_sound()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def spawn(self, command, **options):
        options.setdefault("stdin", subprocess.DEVNULL)
        options.setdefault("stdout", subprocess.DEVNULL)
        if "stderr" not in options:
            log = open(self.folder / f"{pathlib.Path(command[0]).name}-{len(self._processes)}.log", "wb")
            self._logs.append(log)
            options["stderr"] = log
        process = subprocess.Popen(command, env=self.environment, **options)
        self._processes.append(process)
        return process

    def processes(self, program):
        """Those of the stage's own processes that run a program."""
        return [process for process in self._processes if pathlib.Path(process.args[0]).name == program]

    def _start_display(self, size):
        reading, writing = os.pipe()
        self.spawn(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{size[0]}x{size[1]}x24", "-nolisten", "tcp", "-ac",
             "-noreset"],
            pass_fds=[writing],
        )
        os.close(writing)
        number = b""
        while not number.endswith(b"\n"):
            piece = os.read(reading, 16)
            if not piece:
                raise StageError("the display did not start")
            number += piece
        os.close(reading)
        self.environment["DISPLAY"] = os.environ["DISPLAY"] = ":" + number.decode().strip()
        self.spawn(["openbox", "--sm-disable"])
        wait_for("the window manager", lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))

    def _start_bus(self):
        process = self.spawn(
            ["dbus-daemon", "--session", "--nofork", "--print-address=1", f"--address=unix:dir={self.folder}"], stdout=subprocess.PIPE, text=True)
        address = process.stdout.readline().strip()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = os.environ["DBUS_SESSION_BUS_ADDRESS"] = address
        # A program that starts before the accessibility bus never finds it, so it is called first.
        self.run("dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
                 "org.a11y.Bus.GetAddress")

    def _start_sound(self):
        if other := os.environ.get("BRINDLEPOST_SOUND_SERVER"):  # as sound/pipewire.py
            self.environment["PULSE_SERVER"] = os.environ["PULSE_SERVER"] = f"unix:{self.folder}/sound/native"
            (self.folder / "sound").mkdir()
            self.spawn([other, str(self.folder / "sound")])
            wait_for("the sound server", lambda: "test" in self.run("pactl", "list", "short", "sinks"))
            return
        self.spawn(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--load=module-native-protocol-unix",
             f"--load=module-null-sink sink_name=test rate={SAMPLE_RATE}"])
        wait_for("the sound server", lambda: "test" in self.run("pactl", "list", "short", "sinks"))

    def run(self, *command, timeout=20):
        """What a command prints; empty when it fails."""
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=timeout,
                              stdin=subprocess.DEVNULL, check=False)
        return done.stdout if done.returncode == 0 else ""

    # -- the program --

    def make_application(self, name="app"):
        """An application folder of the stage's own."""
        folder = self.folder / name
        (folder / "images").mkdir(parents=True)
        shutil.copy2(self.build / "app" / "Brindlepost", folder)
        shutil.copy2(self.build / "platform" / "decoder" / "brindlepost-media", folder)
        shutil.copy2(self.build / "platform" / "linux" / "brindlepost-files", folder)
        for module in (self.build / "platform" / "webengine").glob("*.so"):
            shutil.copy2(module, folder)
        for picture in (self.build / "images").glob("*.*"):
            if picture.suffix in (".png", ".bmp"):
                shutil.copy2(picture, folder / "images")
        for store in ("dbMedia", "dbFavs", "dbHistory", "dbLogin"):
            shutil.copyfile(self.build / "stores" / (store + ".mdb"), folder / (store + ".mdb"))
            os.chmod(folder / (store + ".mdb"), 0o600)
        return folder

    def launch(self, folder, *arguments, environment=None):
        """Starts the program of an application folder; its output goes to a log in the stage's folder."""
        saved = dict(self.environment)
        self.environment.update(environment or {})
        log = open(self.folder / f"program-{len(self._processes)}.log", "wb")
        self._logs.append(log)
        try:
            program = self.spawn([str(folder / "Brindlepost"), *arguments], stdout=log, stderr=log, cwd=str(folder))
            program.log = pathlib.Path(log.name)
            return program
        finally:
            self.environment.clear()
            self.environment.update(saved)

    @staticmethod
    def said_by(program):
        """What a program that was launched has printed."""
        return program.log.read_text(errors="replace")

    def program_output(self):
        return "\n".join(p.read_text(errors="replace") for p in sorted(self.folder.glob("program-*.log")))

    # -- windows, mouse and keyboard --

    def window(self, title, seconds=20):
        """The visible window whose title begins so."""
        pattern = "^" + title
        found = wait_for(
            f"the window '{title}'", lambda: self.run("xdotool", "search", "--onlyvisible", "--name", pattern).split(),
            seconds)
        return found[-1]

    def has_window(self, title):
        return bool(self.run("xdotool", "search", "--onlyvisible", "--name", "^" + title).split())

    def has_window_id(self, window):
        return "IsViewable" in self.run("xwininfo", "-id", window)

    def front_window(self):
        """Title of the window that has the keyboard."""
        return self.run("xdotool", "getactivewindow", "getwindowname").strip()

    def stacking(self):
        """Titles of the windows on the screen, the lowest first."""
        answer = self.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").partition("# ")[2]
        return [self.run("xdotool", "getwindowname", window).strip() for window in answer.strip().split(", ") if window]

    def pixels(self, rect, size=(64, 48)):
        """Samples of a piece of the screen as (red, green, blue), `size` of them across and down."""
        done = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "ppm:-"], env=self.environment,
                              capture_output=True, stdin=subprocess.DEVNULL, check=False)
        _, wide, high = done.stdout.split(maxsplit=3)[:3]
        wide, high = int(wide), int(high)
        data = done.stdout[-3 * wide * high:]
        x, y, width, height = rect
        found = []
        for row in range(size[1]):
            for column in range(size[0]):
                at_x, at_y = x + (2 * column + 1) * width // (2 * size[0]), y + (2 * row + 1) * height // (2 * size[1])
                if 0 <= at_x < wide and 0 <= at_y < high:
                    place = 3 * (at_y * wide + at_x)
                    found.append(tuple(data[place:place + 3]))
        return found

    def window_rect(self, window):
        values = dict(
            line.split("=", 1)
            for line in self.run("xdotool", "getwindowgeometry", "--shell", window).split()
            if "=" in line)
        return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))

    def click(self, x, y, times=1, button=1):
        self.run("xdotool", "mousemove", str(int(x) + 1), str(int(y)), "mousemove", str(int(x)), str(int(y)))
        self.run("xdotool", "click", "--repeat", str(times), "--delay", "60", str(button))

    def type(self, text):
        self.run("xdotool", "type", "--delay", "12", text)

    def key(self, *keys):
        self.run("xdotool", "key", "--delay", "30", *keys)

    def screenshot(self, path):
        self.run("import", "-window", "root", "png:" + str(path))
        return pathlib.Path(path)

    def close(self):
        for process in reversed(self._processes):
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        self._processes.clear()
        for log in self._logs:
            log.close()
        self._logs.clear()

    def tell_failure(self, name, picture):
        """Prints what failed, the exception that is being handled, what the program said and where a picture of the
        screen is."""
        shot = self.screenshot(self.folder / picture)
        print(f"FAILED {name}")
        traceback.print_exc(file=sys.stdout)
        print(f"The program says:\n{self.program_output()[-3000:]}")
        print(f"Screenshot: {shot}\nLogs: {self.folder}", flush=True)

    def run_steps(self, steps, *arguments, picture="failure.png"):
        """Calls the steps in order and prints a line for each; False at the first that fails, which is told."""
        for step in steps:
            name = step.__name__.replace("_", " ")
            begin = time.monotonic()
            try:
                step(*arguments)
            except Exception:
                self.tell_failure(name, picture)
                return False
            print(f"ok {name} ({time.monotonic() - begin:.1f} s)", flush=True)
        return True

    def remove(self):
        shutil.rmtree(self.folder, ignore_errors=True)


def run_step_by_step(build, make):
    """Goes all steps of what `make` puts on a stage for the build, also behind one that failed, while its program
    runs. The exit code; the stage stays where a step failed."""
    failures = 0
    with Stage(become_unprivileged(build)) as stage:
        person = make(stage)
        for number, step in enumerate(person.steps(), 1):
            if stage.run_steps([step], picture=f"failure-{number:02d}.png"):
                continue
            failures += 1
            if person.screening.program.poll() is not None:
                break
    if not failures:
        stage.remove()
    return 1 if failures else 0


def run_parts(build, make, parts, wanted, picture):
    """Goes the wanted parts, or all, with one whom `make` puts on a silent stage, with a folder for files beside it. Fewer
    folders stand beside that than in the folder of the stage, so that the way to it is short. The exit code."""
    build = become_unprivileged(build)
    chosen = [part for part in parts if not wanted or part.__name__ in wanted]
    with tempfile.TemporaryDirectory(prefix="brindlepost-", dir="/var/tmp") as files, Stage(build, sound=False) as stage:
        person = make(stage, pathlib.Path(files))
        try:
            good = stage.run_steps(chosen, person, picture=picture)
        finally:
            person.end()
    if good:
        stage.remove()
    return 0 if good else 1


# ---- controls by name ----------------------------------------------------------------------------------------------


def role_of(node):
    """The role's name; newer releases of the accessibility library call a push button a button."""
    name = node.get_role_name()
    return "push button" if name == "button" else name


# A long list or page is read from its beginning only. A window is looked at whole: the controls of tabs that were closed
# stay in it, hidden, in front of others.
MOST_ITEMS = 300
KEPT_WHOLE = ("frame", "dialog", "filler", "panel")


class Eyes:
    """Finds what the program shows the way a screen reader does: by name, with its place on the screen."""

    def __init__(self):
        import gi

        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib

        self._atspi = Atspi
        self._context = GLib.MainContext.default()
        Atspi.init()

    def _walk(self, node, showing, depth=0):
        if node is None or depth > 40:
            return
        try:
            if showing and depth > 0 and not node.get_state_set().contains(self._atspi.StateType.SHOWING):
                return
            yield node
            count = node.get_child_count()
            if count > MOST_ITEMS and node.get_role_name() not in KEPT_WHOLE:
                count = MOST_ITEMS
        except self._gone:
            return
        for index in range(count):
            try:
                child = node.get_child_at_index(index)
            except self._gone:
                continue
            yield from self._walk(child, showing, depth + 1)

    def below(self, node):
        """A node and what it holds."""
        return self._walk(node, False)

    def do_not_wait_long(self):
        """For actions that open a box: their answer comes when the box is closed."""
        self._atspi.set_timeout(1500, 3000)

    @property
    def selected(self):
        return self._atspi.StateType.SELECTED

    @property
    def visible(self):
        return self._atspi.StateType.VISIBLE

    @property
    def showing(self):
        return self._atspi.StateType.SHOWING

    @property
    def enabled(self):
        return self._atspi.StateType.ENABLED

    @property
    def focusable(self):
        return self._atspi.StateType.FOCUSABLE

    @property
    def focused(self):
        return self._atspi.StateType.FOCUSED

    @property
    def _gone(self):
        """What a node that went away while it was looked at answers with."""
        from gi.repository import GLib

        return GLib.Error

    def programs(self):
        """What runs now. The library remembers what it saw, so its news are taken in and its memory is put off."""
        while self._context.pending():
            self._context.iteration(False)
        desktop = self._atspi.get_desktop(0)
        desktop.clear_cache()
        found = []
        for index in range(desktop.get_child_count()):
            try:
                program = desktop.get_child_at_index(index)
                if program is None:
                    continue
                program.set_cache_mask(self._atspi.Cache.NONE)
                found.append(program)
            except self._gone:
                continue
        return found

    def nodes(self, showing=True):
        for program in self.programs():
            yield from self._walk(program, showing)

    def find_all(self, name, role=None, showing=True):
        found = []
        for node in self.nodes(showing):
            try:
                if node.get_name() == name and (role is None or role_of(node) == role):
                    found.append(node)
            except self._gone:
                continue
        return found

    def shows(self, name, role=None):
        return bool(self.find_all(name, role))

    def find(self, name, role=None, seconds=10):
        try:
            return wait_for(f"the control '{name}'", lambda: self.find_all(name, role), seconds)[0]
        except StageError as error:
            raise StageError(f"{error}; {self._what_hides(name)}") from error

    def _what_hides(self, name):
        """Why a control is not found, where it is there all the same: the outermost thing around it that does not show."""
        hidden = []
        for node in self.find_all(name, showing=False):
            road = [node]
            while (around := road[-1].get_parent()) is not None and around.get_role_name() != "application":
                road.append(around)
            closed = [one for one in road if not one.get_state_set().contains(self.showing)]
            hidden.append(f"{role_of(node)} '{name}' is hidden by {role_of(closed[-1])} '{closed[-1].get_name()}'" if closed
                          else f"{role_of(node)} '{name}' shows")
        return "; ".join(hidden) or "there is none, shown or not"

    def rect(self, node):
        extents = node.get_extents(self._atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def centre(self, name, role=None, seconds=10):
        x, y, width, height = self.rect(self.find(name, role, seconds))
        return x + width // 2, y + height // 2

    def text(self, node):
        """What stands in a text box."""
        try:
            return self._atspi.Text.get_text(node, 0, -1)
        except self._gone:
            return ""

    def value(self, node):
        """Where a progress bar stands."""
        try:
            return self._atspi.Value.get_current_value(node)
        except self._gone:
            return None

    def is_ticked(self, node):
        return node.get_state_set().contains(self._atspi.StateType.CHECKED)

    def is_enabled(self, node):
        return node.get_state_set().contains(self._atspi.StateType.ENABLED)

    def rows(self, name):
        """The texts of a list's rows, top to bottom; of a list that changes meanwhile, those that are left."""
        return self._look_at_list(name, self._texts_of_rows)

    def row_rect(self, name, row):
        return self._look_at_list(name, lambda shown: self.rect(shown.get_child_at_index(row)))

    def _texts_of_rows(self, shown):
        rows = [shown.get_child_at_index(index) for index in range(shown.get_child_count())]
        return [row.get_name() for row in rows if row is not None]

    def _look_at_list(self, name, look):
        """What `look` makes of a list. A list or a row that goes away meanwhile is looked for again."""
        def try_once():
            try:
                return [look(self.find(name, "list"))]
            except (self._gone, AttributeError):
                return None     # a row that is not there yet, or no more, is None
        return wait_for(f"a look at the list '{name}'", try_once, LIST_PATIENCE)[0]
