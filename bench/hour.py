"""Music for an hour while pages load, folders are searched and tabs change, by a script that a seed decides.

    python3 bench/hour.py BUILD [--minutes N] [--seed N] [--picture FILE.svg] [--only page,close] [--addresses N] [--hurry]

The real program plays steady tones on a stage of its own, one song after another; a plain player beside it plays one
on a sink of its own. Both are recorded. A quiet stretch of 5 ms and more in the program's recording counts as the
machine's when the plain player had one half as long within a second of it, and else as the program's own. Memory,
descriptors and threads of the program and its decoders are sampled all the time; memory of the pages is told
apart. The picture shows all of it over the time. Ends with an error when the program has a gap of its own, or ends.

What one kind of action leaves in the program is seen with --only and --hurry: the program's anonymous memory is told
after each tenth of the time, with the actions done so far, and what each of them added in the second half.
"""

import argparse
import os
import pathlib
import random
import statistics
import subprocess
import sys
import threading
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests" / "real"))

import gaps
import stage as stages
from decoders import Listener
from story import StoryError, check

LONGEST_GAP = 5  # milliseconds
NEAR = 1.0  # seconds
SAMPLED_EVERY = 5
SONG_SECONDS = 100
KINDS = ("mp3", "wav", "m4a", "mp3", "wma", "mp3")
MOST_TABS = 5
FRAME = 4  # bytes of both channels
COLOURS = ("#1f6f8b", "#8b3a1f", "#3a8b1f", "#6f1f8b")
PAGE = """<!doctype html><title>Page {number}</title><body style="background:{colour};color:white">
<h1>Page {number}</h1><canvas id=c width=400 height=200></canvas><script>
var t = 0, p = document.getElementById('c').getContext('2d');
setInterval(function () {{ t += 1; p.fillRect(t % 400, t * 7 % 200, 9, 9); }}, 40);
for (var i = 0; i < 2000; ++i) document.body.appendChild(document.createElement('p')).textContent = 'Line ' + i;
</script>"""


class GapEar:
    """Hears a monitor and keeps only its gaps: (second of the run, milliseconds)."""

    PIECE = 2 * gaps.RATE * FRAME
    EDGE = 64 * FRAME

    def __init__(self, stage, monitor, begin):
        self._gaps, self._lock = [], threading.Lock()
        self.heard = 0  # bytes that were looked at
        self._process = stage.spawn(
            ["parec", "-d", monitor, "--raw", "--format=s16le", "--channels=2", f"--rate={gaps.RATE}",
             "--latency-msec=50"], stdout=subprocess.PIPE)
        self._first = os.read(self._process.stdout.fileno(), 65536)
        self._offset = time.monotonic() - begin
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        held = self._first
        while piece := os.read(self._process.stdout.fileno(), 65536):
            held += piece
            if len(held) >= self.PIECE:
                held = self._look_at(held)

    def _look_at(self, held):
        """Notes the gaps; what is left over is looked at with what comes after it."""
        done = len(held) // FRAME * FRAME - self.EDGE
        for begin, length in gaps.quiet_runs(held):
            start = round(begin * gaps.RATE) * FRAME
            end = start + round(length * gaps.RATE / 1000) * FRAME
            if end > done:
                done = min(done, start)
            elif length >= LONGEST_GAP / 2:
                with self._lock:
                    self._gaps.append((self._offset + (self.heard + start) / FRAME / gaps.RATE, length))
        self.heard += done
        return held[done:]

    def gaps(self, begin, end):
        with self._lock:
            return [gap for gap in self._gaps if begin <= gap[0] <= end]


class Sampler:
    """What the program, its decoders and its pages hold, every few seconds: a list of dictionaries."""

    def __init__(self, listener, begin):
        self.samples, self._listener, self._begin = [], listener, begin
        self._ended = threading.Event()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def end(self):
        self._ended.set()
        self._thread.join()

    def _run(self):
        while not self._ended.wait(SAMPLED_EVERY):
            program = self._listener.program.pid
            decoders = self._listener.decoders()
            own = holding([program])
            self.samples.append({
                "second": time.monotonic() - self._begin, "actions": len(self._listener.done), "program": own["memory"],
                "anonymous": anonymous(program), "descriptors": own["descriptors"],
                "threads": own["threads"], **{f"decoder {name}": holding([number])["memory"]
                                              for name, number in decoders.items()},
                "decoders": holding(decoders.values())["descriptors"], "pages": holding(pages(program))["memory"]})


def holding(processes):
    """MiB resident, descriptors and threads of some processes together."""
    found = {"memory": 0.0, "descriptors": 0, "threads": 0}
    for number in processes:
        folder = pathlib.Path(f"/proc/{number}")
        try:
            found["memory"] += int((folder / "statm").read_text().split()[1]) * os.sysconf("SC_PAGE_SIZE") / 2**20
            found["descriptors"] += len(os.listdir(folder / "fd"))
            found["threads"] += len(os.listdir(folder / "task"))
        except OSError:
            continue
    return found


def anonymous(process):
    """MiB of a process that are no file's."""
    try:
        rollup = pathlib.Path(f"/proc/{process}/smaps_rollup").read_text()
    except OSError:
        return 0.0
    return next(int(line.split()[1]) for line in rollup.splitlines() if line.startswith("Anonymous:")) / 1024


def pages(program):
    """The processes below the program that serve pages."""
    parents, names = {}, {}
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            name, _, rest = (folder / "stat").read_text().partition(" (")[2].rpartition(") ")
            parents[int(folder.name)], names[int(folder.name)] = int(rest.split()[1]), name
        except (OSError, ValueError):
            continue

    def is_below(number):
        while number > 1 and number != program:
            number = parents.get(number, 0)
        return number == program

    return [number for number, name in names.items() if name.startswith("QtWebEngine") and is_below(number)]


class Hour(Listener):
    """One who hears music and does other things meanwhile, as a seed decides."""

    def __init__(self, scene, seed, only=(), addresses=len(COLOURS), hurry=False):
        music = scene.folder / "Music"
        songs = [stages.make_tone(music / f"Artist {number} - Tone {number}.{kind}", 400 + 40 * number, SONG_SECONDS)
                 for number, kind in enumerate(KINDS)]
        super().__init__(scene, songs)
        self.dice, self.done, self.missed, self.opened = random.Random(seed), [], 0, 0
        self.pages.close()
        self.addresses, self.hurry = addresses, hurry
        self.actions = [action for action in self.ACTIONS if not only or action[0] in only]
        self.pages = stages.PageServer({f"/{number}": PAGE.format(number=number, colour=COLOURS[number % len(COLOURS)])
                                        for number in range(addresses)})

    def start_plain_player(self):
        self.stage.run("pactl", "load-module", "module-null-sink", "sink_name=plain", f"rate={gaps.RATE}")
        self.stage.spawn(["gst-launch-1.0", "-q", "audiotestsrc", "freq=440", "volume=0.5", "!",
                          f"audio/x-raw,rate={gaps.RATE},channels=2", "!", "pulsesink", "device=plain", "buffer-time=55000",
                          "latency-time=2000"])
        stages.wait_for("the plain player", lambda: "RUNNING" in "".join(
            line for line in self.stage.run("pactl", "list", "short", "sinks").splitlines() if "plain" in line))

    # -- what is done --

    def load_page(self):
        number = self.opened % self.addresses if self.hurry else self.dice.randrange(self.addresses)
        if self.page_tabs() >= MOST_TABS:
            return self.close_tab()
        self.opened += 1
        self.write_into("Address", f"http://127.0.0.1:{self.pages.port}/{number}", "text")
        self.stage.key("Return")
        return self.main_window(f"Brindlepost - Page {number}", 20)

    def page_tabs(self):
        return len(self.eyes.find_all("Close this tab"))

    def close_tab(self):
        crosses = self.eyes.find_all("Close this tab")
        if not crosses:
            return
        x, y, width, height = self.eyes.rect(self.dice.choice(crosses))
        self.stage.click(x + width // 2, y + height // 2)
        stages.wait_for("the tab to go", lambda: self.page_tabs() == len(crosses) - 1)

    def change_tab(self):
        tabs = [node for node in self.eyes.nodes() if stages.role_of(node) == "page tab"]
        x, y, width, height = self.eyes.rect(self.dice.choice(tabs))
        self.stage.click(x + min(30, width // 2), y + height // 2)

    def to_the_music(self):
        self.press("Music Player", "page tab")
        self.main_window("Brindlepost - Music Player")

    def scan(self):
        self.to_the_music()
        self.choose_menu("File", "Add", "Media to Library")
        self.eyes.find("Get Files", "push button")
        for part in ("usr", "share"):
            self.choose_text("Folder to search", part, times=2)
            stages.wait_for(f"the folder '{part}' to open", lambda p=part: self._stands_in(p))
        self.press("Get Files", "push button")
        time.sleep(1)
        if self.stage.has_window("Search sub folders"):
            self.stage.key("alt+y")
        time.sleep(self.dice.uniform(1, 4))
        self.close_add_media()

    def close_add_media(self):
        for _ in range(10):
            if not self.stage.has_window("Add Media"):
                return
            self.stage.key("Escape")
            time.sleep(0.5)
        check(False, "the window of adding media does not go")

    def search(self):
        self.to_the_music()
        self.write_into("Search tracks", str(self.dice.randrange(len(KINDS))))
        time.sleep(1)
        self.write_into("Search tracks", "x")
        self.stage.key("BackSpace")
        stages.wait_for("all tracks", lambda: len(self.eyes.rows("Tracks")) == len(self.songs))

    def next_song(self):
        self.playerctl("next")

    # -- the hour --

    ACTIONS = (("page", load_page, 6), ("tab", change_tab, 6), ("music", to_the_music, 2), ("scan", scan, 2),
               ("search", search, 2), ("close", close_tab, 2), ("next", next_song, 1))

    def walk(self, minutes):
        self.start_plain_player()
        self.launch()
        self.double_click(0)
        self.hear("the first song", 400)
        time.sleep(5)
        self.begin = time.monotonic()
        self.ear = GapEar(self.stage, "test.monitor", self.begin)
        self.peer = GapEar(self.stage, "plain.monitor", self.begin)
        self.sampler = Sampler(self, self.begin)
        names = [row for row in self.actions for _ in range(row[2])]
        while (second := time.monotonic() - self.begin) < 60 * minutes:
            name, action, _ = self.dice.choice(names)
            try:
                action(self)
            except (stages.StageError, StoryError) as error:
                self.missed += 1
                print(f"{second:7.1f} s  {name}: {error}; {self.what_is_there()}", flush=True)
                self.leave_boxes()
            self.done.append((second, name))
            self.stay_alive(name)
            time.sleep(0.1 if self.hurry else self.dice.uniform(0.5, 3))
        self.end = time.monotonic() - self.begin
        time.sleep(4)
        self.sampler.end()

    def what_is_there(self):
        """What stands in front, for a miss that nobody saw."""
        picture = self.stage.screenshot(self.stage.folder / f"missed-{self.missed}.png")
        address = [self.eyes.text(box) for box in self.eyes.find_all("Address", "text")]
        return (f"in front '{self.stage.front_window()}', its address {address}, the last pages that were asked for "
                f"{self.pages.requests[-4:]} of {len(self.pages.requests)}, picture {picture}")

    def leave_boxes(self):
        for _ in range(3):
            self.stage.key("Escape")
        time.sleep(1)

    def own_gaps(self):
        """Those that the plain player had no part in."""
        peers = self.peer.gaps(0, self.end)
        return [(second, length) for second, length in self.ear.gaps(0, self.end) if length >= LONGEST_GAP and not any(
            abs(second - other) < NEAR and half >= length / 2 for other, half in peers)]


# ---- the picture ---------------------------------------------------------------------------------------------------

LEFT, TOP, WIDTH, HEIGHT, STEP, LEGEND = 70, 30, 760, 110, 150, 190
LINES = (("MiB resident", (("program", "#e9a24b"), ("pages", "#7aa5e0"))),
         ("MiB of decoders", (("decoder a", "#57b8a8"), ("decoder b", "#9bbf5a"))),
         ("descriptors, threads", (("descriptors", "#e9a24b"), ("decoders", "#57b8a8"), ("threads", "#b565a7"))))
GAPS = (("gaps of the program", "#d2691e"), ("of the plain player", "#b9ab9a"))


def text(x, y, words, anchor="start"):
    return f'<text x="{x:.0f}" y="{y:.0f}" text-anchor="{anchor}">{words}</text>'


def frame(row, caption, most):
    y = TOP + row * STEP
    yield f'<rect x="{LEFT}" y="{y}" width="{WIDTH}" height="{HEIGHT}" fill="none" stroke="#4b4037"/>'
    yield text(LEFT, y - 8, caption)
    yield text(LEFT - 8, y + 10, f"{most:.0f}", "end")
    yield text(LEFT - 8, y + HEIGHT, "0", "end")


def chart(row, caption, lines, samples, end):
    most = max((sample.get(name, 0) for sample in samples for name, _ in lines), default=1) * 1.1 or 1
    yield from frame(row, caption, most)
    for place, (name, colour) in enumerate(lines):
        points = " ".join(
            f"{LEFT + WIDTH * sample['second'] / end:.1f},{TOP + row * STEP + HEIGHT * (1 - sample[name] / most):.1f}"
            for sample in samples if name in sample and sample["second"] <= end)
        yield f'<polyline points="{points}" fill="none" stroke="{colour}" stroke-width="1.5"/>'
        yield from legend(row, place, name if name != "decoders" else "descriptors, decoders", colour)


def legend(row, place, name, colour):
    y = TOP + row * STEP + 16 + 20 * place
    yield f'<rect x="{LEFT + WIDTH + 16}" y="{y - 9}" width="14" height="10" fill="{colour}"/>'
    yield text(LEFT + WIDTH + 38, y, name)


def gap_chart(row, hour):
    found = (hour.ear.gaps(0, hour.end), hour.peer.gaps(0, hour.end))
    most = max([length for gaps_of in found for _, length in gaps_of] + [2 * LONGEST_GAP])
    yield from frame(row, "gaps, milliseconds", most)
    for place, ((name, colour), gaps_of) in enumerate(zip(GAPS, found)):
        for second, length in gaps_of:
            x, y = LEFT + WIDTH * second / hour.end + 2 * place, TOP + row * STEP + HEIGHT
            yield f'<line x1="{x:.1f}" y1="{y}" x2="{x:.1f}" y2="{y - HEIGHT * length / most:.1f}" stroke="{colour}" stroke-width="2"/>'
        yield from legend(row, place, name, colour)


def picture(hour):
    rows = len(LINES) + 1
    width, height = LEFT + WIDTH + LEGEND, TOP + rows * STEP + 10
    yield (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" font-family="sans-serif" '
           f'font-size="12" fill="#f2e9de">')
    yield f'<rect width="{width}" height="{height}" fill="#1d1916"/>'
    for row, (caption, lines) in enumerate(LINES):
        yield from chart(row, caption, lines, hour.sampler.samples, hour.end)
    yield from gap_chart(len(LINES), hour)
    for minute in range(0, int(hour.end / 60) + 1, max(1, int(hour.end / 600))):
        yield text(LEFT + WIDTH * 60 * minute / hour.end, TOP + rows * STEP - STEP + HEIGHT + 18, f"{minute} min", "middle")
    yield "</svg>"


# ---- the summary ---------------------------------------------------------------------------------------------------


def tell_growth(samples):
    """The program's anonymous memory by what was done, and what each action of the second half added to it."""
    print("   anonymous MiB after so many actions: " + ", ".join(
        f"{sample['anonymous']:.0f} ({sample['actions']})" for sample in samples[::max(1, len(samples) // 10)]))
    half = samples[len(samples) // 2:]
    if len({sample["actions"] for sample in half}) > 1:
        slope, _ = statistics.linear_regression([sample["actions"] for sample in half],
                                                [sample["anonymous"] for sample in half])
        print(f"   in the second half each action added {1024 * slope:.0f} KiB")


def tell(hour):
    """True when the program had no gap of its own."""
    counts = {name: sum(done == name for _, done in hour.done) for name, _, _ in hour.ACTIONS}
    print(f"{hour.end / 60:.1f} minutes: " + ", ".join(f"{count} x {name}" for name, count in counts.items())
          + f"; {hour.missed} of them did not come to their end")
    tell_growth(hour.sampler.samples)
    tenth = max(1, len(hour.sampler.samples) // 10)
    for name in ("program", "decoder a", "decoder b", "pages", "descriptors", "decoders", "threads"):
        values = [sample[name] for sample in hour.sampler.samples if name in sample]
        if values:
            print(f"   {name:12} first tenth {statistics.median(values[:tenth]):7.1f}   last tenth "
                  f"{statistics.median(values[-tenth:]):7.1f}   most {max(values):7.1f}")
    for what, ear in (("program", hour.ear), ("plain player", hour.peer)):
        found = [length for _, length in ear.gaps(0, hour.end) if length >= LONGEST_GAP]
        print(f"   gaps of {LONGEST_GAP} ms and more, {what}: {len(found)}, longest {max(found, default=0):.1f} ms")
    own = hour.own_gaps()
    for second, length in own:
        last = [f"{name} at {when:.1f} s" for when, name in hour.done if when <= second][-1:]
        print(f"   the program's own: {length:.1f} ms at {second:.1f} s, after {last or 'nothing'}")
    print(f"   the program's own: {len(own)}", flush=True)
    return not own


def open_picture(path):
    """The picture's file, which keeps what it holds until the hour is over. A script that begins again as nobody may not
    write there, so it inherits what is open."""
    if path is None:
        return None
    line = int(path[1:]) if path.startswith("=") else os.open(path, os.O_WRONLY | os.O_CREAT, 0o644)
    os.set_inheritable(line, True)
    sys.argv[sys.argv.index(path)] = f"={line}"
    return os.fdopen(line, "w", encoding="utf-8")


def main():
    words = argparse.ArgumentParser()
    words.add_argument("build")
    words.add_argument("--minutes", type=float, default=60)
    words.add_argument("--seed", type=int, default=1)
    words.add_argument("--picture")
    words.add_argument("--only", type=lambda names: names.split(","), default=[], help="the actions made, of "
                       + ", ".join(name for name, _, _ in Hour.ACTIONS))
    words.add_argument("--addresses", type=int, default=len(COLOURS), help="so many pages are there to be loaded")
    words.add_argument("--hurry", action="store_true", help="no pauses, and the pages one after another")
    arguments = words.parse_args()
    drawn = open_picture(arguments.picture)
    with stages.Stage(stages.become_unprivileged(arguments.build)) as scene:
        hour = Hour(scene, arguments.seed, arguments.only, arguments.addresses, arguments.hurry)
        try:
            is_done = scene.run_steps([hour.walk], arguments.minutes)
        finally:
            hour.close()
        is_whole = is_done and tell(hour)
        if is_done and drawn:
            drawn.truncate(0)
            drawn.write("\n".join(picture(hour)) + "\n")
            drawn.close()
    if is_done and not hour.missed:
        scene.remove()
    return 0 if is_whole else 1


if __name__ == "__main__":
    sys.exit(main())
