#!/usr/bin/env python3
"""PipeWire as a sound server of a test's own, reached as PulseAudio is: `pipewire.py FOLDER`.

Becomes the server that listens on FOLDER/native, with one sink, "test", that is no card. What that server needs ends with it.
"""

import ctypes
import os
import pathlib
import signal
import subprocess
import sys
import time

PR_SET_PDEATHSIG = 1
SINK = """
context.properties = { default.clock.rate = 44100 default.clock.allowed-rates = [ 44100 ] }
context.objects = [ { factory = adapter args = {
  factory.name = support.null-audio-sink node.name = test node.description = test media.class = Audio/Sink
  audio.rate = 44100 audio.position = [ FL FR ] object.linger = true } } ]
"""


def ends_with_its_parent():
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


def main():
    folder = pathlib.Path(sys.argv[1])
    sinks = folder / "pipewire/pipewire.conf.d"
    sinks.mkdir(parents=True, exist_ok=True)
    (sinks / "sink.conf").write_text(SINK)
    for name in ("XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "PULSE_RUNTIME_PATH", "HOME"):
        os.environ[name] = str(folder)
    quiet = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    # The manager of the sessions, which joins players to the sink, does not start without a bus.
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1", f"--address=unix:dir={folder}"],
                           preexec_fn=ends_with_its_parent, **{**quiet, "stdout": subprocess.PIPE})
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
    graph = subprocess.Popen(["pipewire"], preexec_fn=ends_with_its_parent, **quiet)
    end = time.monotonic() + 5
    while not (folder / "pipewire-0").exists() and time.monotonic() < end:
        time.sleep(0.02)
    subprocess.Popen(["wireplumber"], preexec_fn=ends_with_its_parent, **quiet)
    # The class that a desktop gives to what makes sound, where the test may give it.
    subprocess.run(["chrt", "-a", "-r", "-p", "1", str(graph.pid)], check=False, **quiet)
    (folder / "native").unlink(missing_ok=True)
    os.execvp("pipewire-pulse", ["pipewire-pulse"])


if __name__ == "__main__":
    main()
