"""The measure of gaps, held against made-up sound."""

import array
import math
import sys
import unittest

import gaps


def tone(milliseconds, amplitude=0.3):
    samples = array.array("h")
    for i in range(int(milliseconds * gaps.RATE / 1000)):
        value = int(32767 * amplitude * math.sin(2 * math.pi * 440 * i / gaps.RATE))
        samples.extend((value, value))
    return samples.tobytes()


def silence(milliseconds):
    return bytes(4 * int(milliseconds * gaps.RATE / 1000))


class Gaps(unittest.TestCase):
    def test_a_steady_tone_has_none(self):
        self.assertEqual(gaps.quiet_runs(tone(500)), [])

    def test_a_gap_is_found_with_its_place_and_length(self):
        (begin, length), = gaps.quiet_runs(tone(200) + silence(7) + tone(200))

        self.assertAlmostEqual(begin, 0.2, delta=0.001)
        self.assertAlmostEqual(length, 7, delta=0.2)

    def test_the_longest_of_several_is_told(self):
        self.assertAlmostEqual(gaps.longest_gap(tone(50) + silence(3) + tone(50) + silence(12) + tone(50)), 12, delta=0.2)

    def test_silence_at_the_end_counts(self):
        self.assertAlmostEqual(gaps.longest_gap(tone(50) + silence(40)), 40, delta=0.2)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
