"""Where the time goes between a double click and the first sound.

Stages are told apart by the calls that the program and its decoders make, as libstamps.so (`bench/stamps.cpp`) wrote
them down in front of the libraries.
"""

import os
import statistics
import time

# What a stage is, the call that ends it, the first of its kind after the stage before, and how that call's text begins.
STAGES = (
    ("the display hands the click to the program", "press", ""),
    ("row, order, history, play count; until the first command", "send", ""),
    ("what was open is closed; open told", "send", "open "),
    ("the command reaches the decoder", "recv", "open "),
    ("file looked at, playbin made", "make", "playbin"),
    ("its sinks made", "state", "pulsesink READY"),
    ("connection to the sound server", "in state", "pulsesink READY"),
    ("the server is asked for its formats, the rest is built", "state", "playbin PAUSED"),
    ("file opened, its kind found, decoder linked", "make", "tee"),
    ("the sink that no picture came for is closed", "make", "identity"),
    ("sound converted; until the stream is asked for", "stream", ""),
    ("stream on the server, first piece, answer to the program", "recv", ""),
    ("length asked for, play told", "send", "play "),
    ("frames per second, speed and place told", "state", "playbin PLAYING"),
    ("the stream is let go", "uncork", ""),
)
LAST = "from there to the first sound in the recording"


class Stamps:
    """What has been written down, and since when."""

    def __init__(self, file, build, environment):
        self._file = file
        environment["BRINDLEPOST_STAMPS"] = str(file)
        environment["LD_PRELOAD"] = str(build / "bench" / "libstamps.so")

    def since(self, begin):
        lines = [line.split("\t") for line in self._file.read_text(errors="replace").splitlines()]
        stamps = [((int(line[0]) - begin) / 1e6, line[1], line[2], line[3] if len(line) > 3 else "") for line in lines]
        return sorted(stamp for stamp in stamps if stamp[0] > 0)


def durations(stamps, sound):
    """Of each stage, and of the rest until the sound; None for a stage whose call did not come."""
    found, last = [], 0
    for _, call, text in STAGES:
        at = next((at for at, _, name, about in stamps if at >= last and name == call and about.startswith(text)), None)
        found.append(None if at is None else at - last)
        last = last if at is None else at
    return found + [sound - last]


def tell(runs, kind):
    print(f"{kind}: stage, median in ms (least, most, {len(runs)} runs)")
    names = [name for name, _, _ in STAGES] + [LAST]
    for name, values in zip(names, zip(*runs)):
        values = [value for value in values if value is not None]
        if values:
            print(f"    {name:78} {statistics.median(values):5.1f}  ({min(values):.1f}, {max(values):.1f})")
    whole = [sum(value or 0 for value in run) for run in runs]
    print(f"    {'all':78} {statistics.median(whole):5.1f}  ({min(whole):.1f}, {max(whole):.1f})", flush=True)


def print_one(stamps, sound):
    for at, process, call, about in stamps:
        if at < sound + 5:
            print(f"{at:8.2f} {process} {call} {about}")


def measure(stage, build, to_first_sound, make_player, kinds=("wav", "mp3"), runs=9):
    """`to_first_sound(player)` clicks and returns when it clicked, in ns, and the milliseconds until the sound."""
    stamps = Stamps(stage.folder / "stamps", build, stage.environment)
    for kind in kinds:
        player, found = make_player(kind), []
        for run in range(runs + 1):
            begin, sound = to_first_sound(player)
            time.sleep(0.2)
            if os.environ.get("PRINT_ONE") and run == runs:
                print_one(stamps.since(begin), sound)
            found.append(durations(stamps.since(begin), sound))
        tell(found[1:], kind)
        player.end()
