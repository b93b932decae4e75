"""Counts the pictures of a film of 1280 by 720 at 30 a second that come to the screen, and those that come too late.

    python3 bench/video.py BUILD

The whole program plays it in its hole and maximised; a command-line player of the same engine plays it in the same run.
The sink's own log says which pictures it drew and which it gave up.
"""

import pathlib
import re
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "real"))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import stage as stages
from program import processor_seconds
from screening import Screening

RATE = 30
SECONDS = 15
# The normal speed that the program asks for.
SPEED = 1.03
MAXIMISE = "Full screen, or back into the main window"
LINE = re.compile(r"^(\d+):(\d\d):(\d\d\.\d+) .*<x[a-z]*imagesink\d*> (rendering object|buffer is too late|buffer late, dropping)")


def make_film(path):
    path.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(
        ["ffmpeg", "-y", "-loglevel", "error", "-f", "lavfi", "-i", f"testsrc2=size=1280x720:rate={RATE}:duration=90", "-f",
         "lavfi", "-i", "sine=frequency=440:duration=90", "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p",
         "-b:v", "4M", "-c:a", "aac", str(path)], check=True, stdin=subprocess.DEVNULL)
    return path


def pictures(text):
    """(second, what the sink says) for each picture in its log."""
    found = (LINE.match(line) for line in text.splitlines())
    return [(int(m[1]) * 3600 + int(m[2]) * 60 + float(m[3]), m[4]) for m in found if m]


def measure(what, log, pid, speed):
    """Counts by the log's own clock, since the log comes in pieces: the last seconds but one that it tells of."""
    begin, used, offset = time.monotonic(), processor_seconds(pid), log.stat().st_size
    time.sleep(SECONDS + 3)
    used = (processor_seconds(pid) - used) / (time.monotonic() - begin)
    told = pictures(log.read_bytes()[offset:].decode(errors="replace"))
    end = told[-1][0] - 0.5
    told = [said for second, said in told if end - SECONDS < second <= end]
    drawn = told.count("rendering object")
    print(f"{what}: {drawn} of {int(SECONDS * RATE * speed)} pictures drawn in {SECONDS} s, {len(told) - drawn} too late, "
          f"{used * 100:.0f} % of one core", flush=True)


def main():
    build = stages.become_unprivileged(sys.argv[1])
    with stages.Stage(build) as stage:
        film = make_film(stage.folder / "Music" / "Film - Test.mp4")
        log = stage.folder / "pictures.log"
        stage.environment.update({"GST_DEBUG": "basesink:5", "GST_DEBUG_NO_COLOR": "1", "GST_DEBUG_FILE": str(log)})
        screening = Screening(stage, [("Test", film)])
        screening.play("Test")
        stage.window("Film - Test")
        time.sleep(2)
        measure("program, in the hole", log, screening.program.pid, SPEED)
        screening.press(MAXIMISE)
        time.sleep(2)
        measure("program, maximised", log, screening.program.pid, SPEED)
        screening.program.terminate()
        screening.program.wait()
        log.unlink()
        player = stage.spawn(["gst-launch-1.0", "-q", "playbin", f"uri=file://{film}", "video-sink=ximagesink"])
        stages.wait_for("the player's window", lambda: log.exists() and pictures(log.read_text(errors="replace")), 20)
        time.sleep(2)
        measure("command-line player of the same engine, 1280 by 720", log, player.pid, 1)


if __name__ == "__main__":
    main()
