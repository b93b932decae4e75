#!/usr/bin/env python3
"""Runs a test that records sound; on a machine that was kept busy by others, up to three times.

    calm.py PROGRAM [ARGUMENT...]

A recording made while other programs waited for a processor shows gaps of the machine, not of the player. So a
test that failed is run again when, while it ran, some process waited for a processor for more than BUSY of the time
(the kernel's pressure file; on a quiet machine a recording stays below a third of that), and only then: on a quiet machine
a failure is a failure at once, and one that comes three times is one on any. Every run's output is kept.
"""

import os
import sys
import time

BUSY = 0.6
TRIES = 3
LONGEST_WAIT = 20  # seconds for the machine to come to rest
PRESSURE = "/proc/pressure/cpu"


def waited():
    """Seconds since the start of the machine in which some process waited; None where the kernel does not tell."""
    try:
        with open(PRESSURE, encoding="ascii") as file:
            return int(file.readline().rsplit("=", 1)[1]) / 1e6
    except (OSError, ValueError, IndexError):
        return None


def run(command):
    """The exit code, and how much of the time was waited in: 0 to 1."""
    sys.stdout.flush()
    before, begin = waited(), time.monotonic()
    code = os.waitstatus_to_exitcode(os.waitpid(os.spawnvp(os.P_NOWAIT, command[0], command), 0)[1])
    share = 0 if before is None else (waited() - before) / (time.monotonic() - begin)
    return code, share


def wait_for_rest():
    end = time.monotonic() + LONGEST_WAIT
    while time.monotonic() < end:
        before = waited()
        time.sleep(1)
        if waited() - before < BUSY:
            return


def main():
    command = sys.argv[1:]
    code, share = run(command)
    for _ in range(TRIES - 1):
        if code == 0 or share <= BUSY:
            break
        print(f"Processes waited for {share:.0%} of this run; it is made again.")
        wait_for_rest()
        code, share = run(command)
    return code if code >= 0 else 128 - code


if __name__ == "__main__":
    sys.exit(main())
