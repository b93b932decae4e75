"""Times ./run when nothing changed since the last one, stage by stage, until the login is painted.

    python3 bench/run_again.py [CHECKOUT]

Runs ./run of the checkout (this one, when none is named) once before, so that everything is built, on a display and with a home
of its own. Started by root it runs as root: it is the checkout's owner who builds.
"""

import os
import pathlib
import signal
import statistics
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "real"))

import program
import stage as stages

RUNS = 9
# What the shell comes to at the end of each stage.
STAGES = [("packages are there", "cmake --build "), ("built before", "lay_out_application "), ("laid out", "exec "),
          ("program, to its login painted", None)]


def wait_for_login(screen, process):
    end = time.monotonic() + 900
    while not screen.has_amber(program.LOGIN_BUTTON_LINE, 1280):
        if process.poll() is not None or time.monotonic() > end:
            raise stages.StageError("./run came to no login")
    return time.time()


def run_once(stage, screen, checkout):
    """Seconds of each stage."""
    with tempfile.TemporaryFile("w+") as trace:
        environment = dict(stage.environment, BASH_XTRACEFD=str(trace.fileno()))
        # A shell of root takes no PS4 from outside.
        command = ["bash", "-c", "PS4='+$EPOCHREALTIME '; set -x; . ./run"]
        begin = time.time()
        process = subprocess.Popen(command, cwd=checkout, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, pass_fds=[trace.fileno()],
                                   start_new_session=True)
        try:
            painted = wait_for_login(screen, process)
        finally:
            os.killpg(process.pid, signal.SIGTERM)
            process.wait()
        stages.wait_for("the window to go", lambda: not screen.has_amber(program.LOGIN_BUTTON_LINE, 1280))
        trace.seek(0)
        lines = [line.lstrip("+").split(" ", 1) for line in trace if line.startswith("+")]
    ends = [next(float(at) for at, words in lines if words.startswith(mark)) for _, mark in STAGES[:-1]] + [painted]
    return [after - before for before, after in zip([begin, *ends], ends)]


def main():
    checkout = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent).resolve()
    # The stage has a home of its own; the compiler's cache stays where it is.
    cache = os.environ.get("CCACHE_DIR", str(pathlib.Path("~").expanduser() / ".cache" / "ccache"))
    with stages.Stage(checkout / "build" / "program", sound=False) as stage:
        stage.environment["CCACHE_DIR"] = cache
        screen = program.Screen(stage.environment["DISPLAY"])
        run_once(stage, screen, checkout)
        runs = [run_once(stage, screen, checkout) for _ in range(RUNS)]
    for (name, _), seconds in zip(STAGES, zip(*runs)):
        print(f"{name}: median {statistics.median(seconds) * 1000:.0f} ms")
    whole = [sum(run) * 1000 for run in runs]
    print(f"./run to the login painted, nothing changed: median {statistics.median(whole):.0f} ms "
          f"(min {min(whole):.0f}, max {max(whole):.0f}, {RUNS} runs)")


if __name__ == "__main__":
    main()
