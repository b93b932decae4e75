"""Levels over time out of a recording, as figures and as a picture.

    python3 levels.py RECORDING PICTURE.svg --tones 440,660      one curve a tone, in percent of --full
    python3 levels.py RECORDING PICTURE.svg --channels           one curve a channel
    further: --title TEXT  --begin SECONDS  --end SECONDS  --full AMPLITUDE  --channel left|right|both

The recording is a WAV file or the raw samples of a Recorder: 16 bits, two channels, 44,100 a second. A level is an
amplitude: a tone that a file holds at 0.5 of full scale shows as 100 percent when --full is 0.5, the default.
"""

import argparse
import array
import html
import math
import pathlib
import wave
from operator import mul

RATE = 44100
FULL_SCALE = 32768.0
COLOURS = ["#e9a24b", "#57b8a8", "#d9695f", "#b9ab9a"]
GROUND, PANEL, LINE, TEXT, MUTED = "#1d1916", "#27211d", "#4b4037", "#f2e9de", "#b9ab9a"


def read(path):
    """(left, right) samples of a recording, 1 being full scale."""
    path = pathlib.Path(path)
    if path.suffix.lower() == ".wav":
        with wave.open(str(path)) as file:
            if (file.getnchannels(), file.getsampwidth(), file.getframerate()) != (2, 2, RATE):
                raise ValueError(f"{path} is not 16 bits, two channels, {RATE} a second")
            data = file.readframes(file.getnframes())
    else:
        data = path.read_bytes()
    both = array.array("h", data[: len(data) // 4 * 4])
    return [s / FULL_SCALE for s in both[0::2]], [s / FULL_SCALE for s in both[1::2]]


def cut(samples, begin, end):
    return samples[int(begin * RATE): len(samples) if end is None else int(end * RATE)]


def level_of_tone(samples, hertz, step=0.02, window=0.03):
    """[(seconds, amplitude)] of one tone, one point every `step`, each measured over `window` seconds."""
    count = int(window * RATE)
    bell = [1 - math.cos(2 * math.pi * (i + 0.5) / count) for i in range(count)]
    turn = 2 * math.pi * hertz / RATE
    cosines = [b * math.cos(turn * i) for i, b in enumerate(bell)]
    sines = [b * math.sin(turn * i) for i, b in enumerate(bell)]
    points = []
    for begin in range(0, len(samples) - count + 1, int(step * RATE)):
        piece = samples[begin:begin + count]
        amplitude = 2 * math.hypot(sum(map(mul, piece, cosines)), sum(map(mul, piece, sines))) / sum(bell)
        points.append(((begin + count / 2) / RATE, amplitude))
    return points


def level_of_channel(samples, step=0.01, window=0.01):
    """[(seconds, amplitude)] of whatever is heard on a channel; a sine counts with its amplitude."""
    count = int(window * RATE)
    points = []
    for begin in range(0, len(samples) - count + 1, int(step * RATE)):
        piece = samples[begin:begin + count]
        points.append(((begin + count / 2) / RATE, math.sqrt(2 * sum(map(mul, piece, piece)) / count)))
    return points


def _ticks(length):
    step = next(s for s in (0.1, 0.2, 0.5, 1, 2, 5, 10, 30, 60, 300, 1e9) if length / s <= 10)
    return [i * step for i in range(int(length / step + 1e-9) + 1)]


def draw(curves, title, full=0.5, size=(960, 360)):
    """An SVG picture of [(name, [(seconds, amplitude)])]; `full` is the amplitude that counts as 100 percent."""
    width, height = size
    left, top, right, bottom = 64, 56, width - 24, height - 44
    begin = min((points[0][0] for _, points in curves if points), default=0.0)
    length = max(max((points[-1][0] for _, points in curves if points), default=1.0) - begin, 1e-3)

    def x(seconds):
        return left + (seconds - begin) / length * (right - left)

    def y(percent):
        return bottom - min(percent, 110.0) / 110.0 * (bottom - top)

    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" height="{height}" '
        'font-family="sans-serif" font-size="12">',
        f'<title>{html.escape(title)}</title>',
        f'<rect width="{width}" height="{height}" fill="{GROUND}"/>',
        f'<rect x="{left}" y="{top}" width="{right - left}" height="{bottom - top}" fill="{PANEL}"/>',
        f'<text x="{left}" y="24" fill="{TEXT}" font-size="15">{html.escape(title)}</text>',
    ]
    for percent in (0, 25, 50, 75, 100):
        parts.append(f'<path d="M{left} {y(percent):.1f}H{right}" stroke="{LINE}"/>')
        parts.append(f'<text x="{left - 8}" y="{y(percent) + 4:.1f}" fill="{MUTED}" text-anchor="end">{percent} %</text>')
    for seconds in _ticks(length):
        at = x(begin + seconds)
        parts.append(f'<path d="M{at:.1f} {bottom}v5" stroke="{MUTED}"/>')
        parts.append(f'<text x="{at:.1f}" y="{bottom + 20}" fill="{MUTED}" text-anchor="middle">{seconds:g} s</text>')
    for number, (name, points) in enumerate(curves):
        colour = COLOURS[number % len(COLOURS)]
        line = " ".join(f"{x(t):.1f},{y(100 * a / full):.1f}" for t, a in points)
        parts.append(f'<polyline points="{line}" fill="none" stroke="{colour}" stroke-width="1.6"/>')
        place = left + 170 * number
        parts.append(f'<path d="M{place} 42h22" stroke="{colour}" stroke-width="3"/>')
        parts.append(f'<text x="{place + 30}" y="46" fill="{TEXT}">{html.escape(name)}</text>')
    parts.append("</svg>")
    return "\n".join(parts) + "\n"


def curves_of_tones(samples, tones, step=0.02):
    return [(f"{tone:g} Hz", level_of_tone(samples, tone, step)) for tone in tones]


def curves_of_channels(left, right, step=0.01):
    return [("left", level_of_channel(left, step)), ("right", level_of_channel(right, step))]


def main():
    parser = argparse.ArgumentParser(description="Draws levels over time out of a recording.")
    parser.add_argument("recording")
    parser.add_argument("picture")
    wanted = parser.add_mutually_exclusive_group(required=True)
    wanted.add_argument("--tones", help="frequencies in hertz, with commas between")
    wanted.add_argument("--channels", action="store_true")
    parser.add_argument("--title", default="Levels")
    parser.add_argument("--begin", type=float, default=0.0)
    parser.add_argument("--end", type=float)
    parser.add_argument("--full", type=float, default=0.5)
    parser.add_argument("--channel", choices=["left", "right", "both"], default="left")
    options = parser.parse_args()
    left, right = (cut(samples, options.begin, options.end) for samples in read(options.recording))
    if options.channels:
        curves = curves_of_channels(left, right)
    else:
        heard = {"left": left, "right": right, "both": [(a + b) / 2 for a, b in zip(left, right)]}[options.channel]
        curves = curves_of_tones(heard, [float(tone) for tone in options.tones.split(",")])
    pathlib.Path(options.picture).write_text(draw(curves, options.title, options.full), encoding="utf-8")


if __name__ == "__main__":
    main()
