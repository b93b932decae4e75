"""Measures the library's jobs at three sizes and draws how their times grow.

    python3 bench/library.py BUILD PICTURE.svg

Every figure is the median processor time of five runs. Both axes of the picture grow tenfold from line to line, so a
job whose time grows as the library does runs parallel to the dashed line.
"""

import collections
import json
import math
import pathlib
import subprocess
import sys

JOBS = {
    "Command1": ("all lists rebuilt", "#e9a24b"),
    "Command1EveryArtistDifferent": ("the same, every artist different", "#c9564f"),
    "SearchAll": ("search, every song found", "#d2691e"),
    "SearchMany": ("search, one song of three found", "#b565a7"),
    "SearchFew": ("search, few songs found", "#57b8a8"),
    "Top20": ("[Top 20]", "#7aa5e0"),
    "Last20": ("[Last 20]", "#9bbf5a"),
    "BareScan": ("bare scan of prepared text", "#b9ab9a"),
}
SIZES = (10_000, 100_000, 1_000_000)
LEFT, TOP, WIDTH, HEIGHT, LEGEND = 70, 24, 420, 360, 240
FASTEST, SLOWEST = 0.01, 1000  # milliseconds


def measure(build):
    run = subprocess.run(
        [build / "bench" / "bench_library", "--benchmark_format=json", "--benchmark_min_time=0.1",
         "--benchmark_repetitions=5", "--benchmark_report_aggregates_only=true"],
        stdout=subprocess.PIPE, check=True)
    medians = collections.defaultdict(dict)
    for one in json.loads(run.stdout)["benchmarks"]:
        if one["aggregate_name"] == "median":
            job, size = one["run_name"].split("/")
            medians[job][int(size)] = (one["cpu_time"], one.get("hits"))
    return medians


def x_of(size):
    return LEFT + WIDTH * (math.log10(size) - 4) / 2


def y_of(milliseconds):
    part = (math.log10(milliseconds) - math.log10(FASTEST)) / (math.log10(SLOWEST) - math.log10(FASTEST))
    return TOP + HEIGHT * (1 - part)


def polyline(points, style):
    places = " ".join(f"{x_of(size):.1f},{y_of(time):.1f}" for size, time in points)
    return f'<polyline points="{places}" fill="none" {style}/>'


def grid():
    for size in SIZES:
        x = x_of(size)
        yield f'<line x1="{x}" y1="{TOP}" x2="{x}" y2="{TOP + HEIGHT}" stroke="#4b4037"/>'
        yield f'<text x="{x}" y="{TOP + HEIGHT + 20}" text-anchor="middle">{size:,} songs</text>'
    for power in range(-2, 4):
        y = y_of(10 ** power)
        yield f'<line x1="{LEFT}" y1="{y}" x2="{LEFT + WIDTH}" y2="{y}" stroke="#4b4037"/>'
        yield f'<text x="{LEFT - 8}" y="{y + 4}" text-anchor="end">{10 ** power:g} ms</text>'


def picture(medians):
    width, height = LEFT + WIDTH + LEGEND, TOP + HEIGHT + 40
    yield (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
           f'font-family="sans-serif" font-size="12" fill="#f2e9de">')
    yield f'<rect width="{width}" height="{height}" fill="#1d1916"/>'
    yield from grid()
    yield polyline([(size, size / 100_000) for size in SIZES], 'stroke="#f2e9de" stroke-dasharray="5 5"')
    for row, (job, (caption, colour)) in enumerate(JOBS.items()):
        points = [(size, medians[job][size][0]) for size in SIZES]
        yield polyline(points, f'stroke="{colour}" stroke-width="2"')
        for size, time in points:
            yield f'<circle cx="{x_of(size):.1f}" cy="{y_of(time):.1f}" r="3" fill="{colour}"/>'
        y = TOP + 16 + 22 * row
        yield f'<rect x="{LEFT + WIDTH + 20}" y="{y - 9}" width="14" height="10" fill="{colour}"/>'
        yield f'<text x="{LEFT + WIDTH + 42}" y="{y}">{caption}</text>'
    y = TOP + 16 + 22 * len(JOBS)
    yield (f'<line x1="{LEFT + WIDTH + 20}" y1="{y - 4}" x2="{LEFT + WIDTH + 36}" y2="{y - 4}" stroke="#f2e9de" '
           'stroke-dasharray="5 3"/>')
    yield f'<text x="{LEFT + WIDTH + 42}" y="{y}">as the library grows</text>'
    yield "</svg>"


def main():
    medians = measure(pathlib.Path(sys.argv[1]))
    for job, times in medians.items():
        print(job, *(f"{times[size][0]:.2f} ms" + (f" ({times[size][1]:.0f} found)" if times[size][1] else "")
                     for size in SIZES), sep=" | ")
    pathlib.Path(sys.argv[2]).write_text("\n".join(picture(medians)) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
