#!/usr/bin/env python3
"""What a sound server plays of what it was told to drop, where a player goes on a little further on: `left_over.py [SERVER]`.

A player of a few calls of the client library, and nothing of the program: a tone, a pause, "drop what you have", silence
from 0 or 10 milliseconds further on, and on it goes. Those 10 milliseconds were never written; what is heard in them is the
server's. SERVER is a program as pipewire.py beside this file; without one it is PulseAudio.
"""

import array
import ctypes
import math
import os
import signal
import subprocess
import sys
import tempfile
import threading
import time

RATE = 44100
PIECE = RATE // 100
PAUSES = 10
S16 = 3
CORKED_TIMED_ADJUSTED = 0x0001 | 0x0002 | 0x0008 | 0x2000
READY = {"context": 4, "stream": 2}
STORE_MS = 100
# None of its samples is 0, so that they can be counted.
TONE = array.array("h", (round(13000 * math.sin(2 * math.pi * 5 * i / PIECE + 0.3)) or 1 for i in range(PIECE)
                         for _ in range(2))).tobytes()
SILENCE = bytes(len(TONE))


class SampleFormat(ctypes.Structure):
    _fields_ = [("format", ctypes.c_int), ("rate", ctypes.c_uint32), ("channels", ctypes.c_uint8)]


class Store(ctypes.Structure):
    _fields_ = [(name, ctypes.c_uint32) for name in ("maxlength", "tlength", "prebuf", "minreq", "fragsize")]


pulse = ctypes.CDLL("libpulse.so.0")
for maker in ("threaded_mainloop_new", "threaded_mainloop_get_api", "context_new", "stream_new", "stream_flush", "stream_cork"):
    getattr(pulse, "pa_" + maker).restype = ctypes.c_void_p
pulse.pa_stream_writable_size.restype = ctypes.c_size_t


class Player:
    """One stream, fed by a thread."""

    def __init__(self, store_ms):
        self.loop = ctypes.c_void_p(pulse.pa_threaded_mainloop_new())
        api = ctypes.c_void_p(pulse.pa_threaded_mainloop_get_api(self.loop))
        self.context = ctypes.c_void_p(pulse.pa_context_new(api, b"left over"))
        pulse.pa_context_connect(self.context, None, 0, None)
        pulse.pa_threaded_mainloop_start(self.loop)
        self.wait_for("context", self.context)
        with self:
            samples = SampleFormat(S16, RATE, 2)
            self.stream = ctypes.c_void_p(pulse.pa_stream_new(self.context, b"tone", ctypes.byref(samples), None))
            store = Store(2**32 - 1, store_ms * len(TONE) // 10, 0, len(TONE), 2**32 - 1)
            pulse.pa_stream_connect_playback(self.stream, b"test", ctypes.byref(store), CORKED_TIMED_ADJUSTED, None, None)
        self.wait_for("stream", self.stream)
        self.piece = SILENCE
        self.is_open = True
        self.feeder = threading.Thread(target=self.feed, daemon=True)
        self.feeder.start()

    def __enter__(self):
        pulse.pa_threaded_mainloop_lock(self.loop)

    def __exit__(self, *_):
        pulse.pa_threaded_mainloop_unlock(self.loop)

    def wait_for(self, kind, thing):
        end = time.monotonic() + 10
        while getattr(pulse, f"pa_{kind}_get_state")(thing) != READY[kind]:
            if time.monotonic() > end:
                sys.exit(f"no {kind}")
            time.sleep(0.01)

    def feed(self):
        while self.is_open:
            with self:
                while pulse.pa_stream_writable_size(self.stream) >= len(self.piece):
                    self.write(self.piece)
            time.sleep(0.002)

    def write(self, piece, skipped=0):
        pulse.pa_stream_write(self.stream, piece, ctypes.c_size_t(len(piece)), None, ctypes.c_int64(skipped), 0)

    def cork(self, is_corked):
        with self:
            pulse.pa_operation_unref(ctypes.c_void_p(pulse.pa_stream_cork(self.stream, int(is_corked), None, None)))

    def drop(self, skipped):
        with self:
            self.piece = SILENCE
            pulse.pa_operation_unref(ctypes.c_void_p(pulse.pa_stream_flush(self.stream, None, None)))
            self.write(SILENCE, skipped)

    def close(self):
        self.is_open = False
        self.feeder.join()
        pulse.pa_threaded_mainloop_stop(self.loop)


class Recording:
    def __init__(self):
        self.child = subprocess.Popen(["parec", "--device=test.monitor", "--raw", "--format=s16le", f"--rate={RATE}",
                                       "--channels=2", "--latency-msec=5"], stdout=subprocess.PIPE)
        self.heard = bytearray()
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()

    def read(self):
        while part := self.child.stdout.read1(4096):
            self.heard += part

    def wait_for(self, what, is_so):
        end = time.monotonic() + 10
        while not is_so():
            if time.monotonic() > end:
                sys.exit(f"{what} is not heard")
            time.sleep(0.02)

    def loud_since(self, begin):
        samples = array.array("h", bytes(self.heard[begin:len(self.heard) // 4 * 4]))[::2]
        return sum(1 for sample in samples if sample)


def milliseconds_left_over(player, recording, skipped):
    """One for each pause; `skipped` bytes are not written after it."""
    left = []
    for i in range(PAUSES):
        begin = len(recording.heard) // 4 * 4
        player.piece = TONE
        recording.wait_for("the tone", lambda: recording.loud_since(begin) > RATE // 4)
        time.sleep(0.003 * i)
        player.cork(True)
        time.sleep(0.5)
        begin = len(recording.heard) // 4 * 4
        player.drop(skipped)
        player.cork(False)
        time.sleep(0.5)
        left.append(recording.loud_since(begin) * 1000 / RATE)
    return left


def pause_and_tell():
    recording = Recording()
    recording.wait_for("the server", lambda: recording.heard)
    player = Player(STORE_MS)
    player.cork(False)
    for skipped_ms in (0, 10):
        left = [ms for ms in milliseconds_left_over(player, recording, skipped_ms * len(TONE) // 10) if ms > 0]
        print(f"goes on {skipped_ms} ms further on: heard after {len(left)} of {PAUSES} pauses"
              + (f", {min(left):.1f} to {max(left):.1f} ms" if left else ""), flush=True)
    player.close()
    recording.child.terminate()
    recording.child.wait()


def main():
    with tempfile.TemporaryDirectory(prefix="left-over-") as folder:
        of_its_own = {name: folder for name in ("XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "HOME")}
        os.environ["PULSE_SERVER"] = f"unix:{folder}/native"
        command = [sys.argv[1], folder] if len(sys.argv) > 1 else [
            "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--realtime=no",
            "--high-priority=no", f"--load=module-native-protocol-unix auth-anonymous=1 socket={folder}/native",
            "--load=module-null-sink sink_name=test rate=44100 channels=2"]
        server = subprocess.Popen(command, env={**os.environ, **of_its_own}, stderr=subprocess.DEVNULL)
        try:
            while subprocess.run(["pactl", "get-sink-volume", "test"], check=False, capture_output=True).returncode:
                time.sleep(0.2)
            pause_and_tell()
        finally:
            server.send_signal(signal.SIGKILL)
            server.wait()


if __name__ == "__main__":
    main()
