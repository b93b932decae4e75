"""A recording is made again where the machine was at fault, and only there: `test_calm.py`."""

import os
import pathlib
import sys
import tempfile
import time
import unittest

import calm


class MadeUpWatch:
    """Says what it is told to."""

    def __init__(self, *reasons):
        self.reasons = list(reasons)

    def __call__(self):
        return self

    def end(self):
        return self.reasons.pop(0)


class CalmTest(unittest.TestCase):
    def setUp(self):
        calm.LONGEST_WAIT = 0
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.runs = pathlib.Path(self.folder.name) / "runs"

    def program(self, fails):
        """Notes each of its runs, of which the first so many fail with 3."""
        self.runs.write_text("")
        return ["sh", "-c", f'echo run >> "{self.runs}"; [ $(wc -l < "{self.runs}") -gt {fails} ] || exit 3']

    def counted(self):
        return len(self.runs.read_text().splitlines())

    def test_a_failure_on_a_quiet_machine_counts_at_once(self):
        self.assertEqual(calm.main(self.program(fails=1), MadeUpWatch("")), 3)
        self.assertEqual(self.counted(), 1)

    def test_what_the_machine_spoilt_is_made_again(self):
        self.assertEqual(calm.main(self.program(fails=1), MadeUpWatch("A core was held", "")), 0)
        self.assertEqual(self.counted(), 2)

    def test_what_fails_three_times_is_a_failure(self):
        self.assertEqual(calm.main(self.program(fails=9), MadeUpWatch("busy", "busy", "busy")), 3)
        self.assertEqual(self.counted(), 3)

    def test_what_passes_is_not_made_again(self):
        self.assertEqual(calm.main(self.program(fails=0), MadeUpWatch("busy")), 0)
        self.assertEqual(self.counted(), 1)

    def test_a_run_that_a_signal_ended_has_failed(self):
        self.assertEqual(calm.main(["sh", "-c", "kill -TERM $$"], MadeUpWatch("")), 128 + 15)

    def test_a_sleeper_who_oversleeps_is_told(self):
        real = time.sleep
        self.addCleanup(setattr, time, "sleep", real)
        watch = calm.Watch()
        time.sleep = lambda seconds: real(seconds + 2 * calm.STILL)
        real(4 * calm.STILL)
        told = watch.end()
        self.assertTrue("was held" in told or "waited" in told, told)

    def test_the_sleepers_leave_the_cores_of_the_run_as_they_were(self):
        before = os.sched_getaffinity(0)
        calm.Watch().end()
        self.assertEqual(os.sched_getaffinity(0), before)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])     # without the build folder, which every script here gets
