"""The measure of levels, held against made-up sound whose levels are known."""

import array
import math
import pathlib
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

import levels

SECONDS = 1.0
LOW, HIGH = 440.0, 1500.0


def crossfade():
    """The low tone goes from 0.5 to nothing, the high one the other way."""
    count = int(SECONDS * levels.RATE)
    samples = []
    for i in range(count):
        share, turn = i / count, 2 * math.pi * i / levels.RATE
        samples.append(0.5 * ((1 - share) * math.sin(turn * LOW) + share * math.sin(turn * HIGH)))
    return samples


class Levels(unittest.TestCase):
    def test_each_tone_of_a_crossfade_has_its_own_level(self):
        samples = crossfade()

        falling = levels.level_of_tone(samples, LOW)
        rising = levels.level_of_tone(samples, HIGH)

        self.assertGreater(len(falling), 40)
        for (at, low), (_, high) in zip(falling, rising):
            self.assertAlmostEqual(low, 0.5 * (1 - at / SECONDS), delta=0.005)
            self.assertAlmostEqual(high, 0.5 * at / SECONDS, delta=0.005)

    def test_a_channel_shows_the_amplitude_of_its_tone(self):
        tone = [0.5 * math.sin(2 * math.pi * LOW * i / levels.RATE) for i in range(levels.RATE // 2)]
        silence = [0.0] * len(tone)

        (_, left), (_, right) = levels.curves_of_channels(tone, silence, 0.05)

        for _, amplitude in left:
            self.assertAlmostEqual(amplitude, 0.5, delta=0.06)
        self.assertEqual({amplitude for _, amplitude in right}, {0.0})

    def test_the_picture_has_a_curve_for_each_tone_at_its_height(self):
        with tempfile.TemporaryDirectory() as folder:
            both = array.array("h", (int(s * 32767) for sample in crossfade() for s in (sample, 0.0)))
            recording = pathlib.Path(folder) / "sound.raw"
            recording.write_bytes(both.tobytes())
            picture = pathlib.Path(folder) / "levels.svg"

            subprocess.run([sys.executable, levels.__file__, recording, picture, "--tones", f"{LOW},{HIGH}"], check=True)

            drawn = xml.etree.ElementTree.parse(picture)
        curves = [[float(point.split(",")[1]) for point in line.get("points").split()]
                  for line in drawn.iter("{http://www.w3.org/2000/svg}polyline")]
        self.assertEqual(len(curves), 2)
        self.assertLess(curves[0][0], curves[0][-1] - 150)
        self.assertGreater(curves[1][0], curves[1][-1] + 150)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
