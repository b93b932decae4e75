#!/usr/bin/env python3
"""Runs a test that records sound; on a machine that was kept busy by others, or stood still, up to three times.

    calm.py PROGRAM [ARGUMENT...]

A recording made while other programs waited for a processor, or while a core was held for long, shows gaps of the machine, not of
the player. So a test that failed is run again when, while it ran, some process waited for a processor for more than BUSY of the
time (the kernel's pressure file; on a quiet machine a recording stays below a third of that), or one of the sleepers, of whom each
core has one, waited for it for STILL (on a quiet machine, 2 to 9 ms), and only then: on a quiet machine a failure is a failure at
once, and one that comes three times is one on any. Every run's output is kept.
"""

import os
import sys
import threading
import time

BUSY = 0.6
STILL = 0.015  # seconds; with every core held, the first recordings fail at 24 ms
NAP = 0.002
TRIES = 3
LONGEST_WAIT = 20  # seconds for the machine to come to rest
PRESSURE = "/proc/pressure/cpu"


class Watch:
    """What the machine does beside a run."""

    def __init__(self):
        self._begin, self._before = time.monotonic(), waited()
        self._overslept, self._ended = {}, threading.Event()
        self._sleepers = [threading.Thread(target=self._sleep, args=(core,)) for core in os.sched_getaffinity(0)]
        for sleeper in self._sleepers:
            sleeper.start()

    def _sleep(self, core):
        os.sched_setaffinity(0, {core})     # of this thread alone
        self._overslept[core] = 0.0
        while not self._ended.is_set():
            begin = time.monotonic()
            time.sleep(NAP)
            self._overslept[core] = max(self._overslept[core], time.monotonic() - begin - NAP)

    def end(self):
        """What kept the run from its processor; nothing on a quiet machine."""
        self._ended.set()
        for sleeper in self._sleepers:
            sleeper.join()
        share = 0 if self._before is None else (waited() - self._before) / (time.monotonic() - self._begin)
        still = max(self._overslept.values(), default=0)
        if share > BUSY:
            return f"Processes waited for {share:.0%} of this run"
        return f"A core was held for {1000 * still:.0f} ms of this run" if still > STILL else ""


def waited():
    """Seconds since the start of the machine in which some process waited; None where the kernel does not tell."""
    try:
        with open(PRESSURE, encoding="ascii") as file:
            return int(file.readline().rsplit("=", 1)[1]) / 1e6
    except (OSError, ValueError, IndexError):
        return None


def run(command, watch):
    """The exit code, and what kept it from its processor."""
    sys.stdout.flush()
    process = os.spawnvp(os.P_NOWAIT, command[0], command)
    beside = watch()
    code = os.waitstatus_to_exitcode(os.waitpid(process, 0)[1])
    return code, beside.end()


def wait_for_rest():
    end = time.monotonic() + LONGEST_WAIT
    while time.monotonic() < end:
        before = waited()
        time.sleep(1)
        if before is None or waited() - before < BUSY:
            return


def main(command, watch=Watch):
    code, reason = run(command, watch)
    for _ in range(TRIES - 1):
        if code == 0 or not reason:
            break
        print(f"{reason}; it is made again.")
        wait_for_rest()
        code, reason = run(command, watch)
    return code if code >= 0 else 128 - code


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
