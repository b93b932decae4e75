"""Plays the story on the real program and writes the summary: `demo.py BUILD_FOLDER OUTPUT_FOLDER`.

Every step gets a numbered picture and what was measured; the sound of the whole run is written as sound.wav. The exit
code is 0 only when every step went as it should.
"""

import html
import pathlib
import shutil
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent.parent / "tests" / "real"))

import stage  # noqa: E402
from everyday import Everyday  # noqa: E402

# Up to here each step needs the one before; afterwards one that fails is told and the next one is tried.
ESSENTIAL = 9

STYLE = """
:root { color-scheme: dark; }
body { margin: 0; background: #14110f; color: #ece3d8; font: 16px/1.5 "DejaVu Sans", system-ui, sans-serif; }
header { padding: 56px 32px 28px; border-bottom: 1px solid #3a312a;
         background: radial-gradient(circle at 20% 0, #33261a, #14110f 65%); }
header, main { margin: 0 auto; }
header > div, main { max-width: 1180px; margin: 0 auto; }
h1 { margin: 0; font-size: 34px; font-weight: 600; letter-spacing: .01em; }
h1 span { color: #e9a04b; }
header p { margin: 8px 0 0; color: #b5a797; max-width: 720px; }
.facts { display: flex; flex-wrap: wrap; gap: 12px; margin-top: 24px; }
.facts div { background: #211c18; border: 1px solid #3a312a; border-radius: 10px; padding: 10px 18px; }
.facts b { display: block; font-size: 22px; color: #e9a04b; font-weight: 600; }
.facts small { color: #a39585; }
main { padding: 32px; }
audio { width: 100%; max-width: 560px; margin-top: 22px; }
section { display: grid; grid-template-columns: minmax(0, 1.7fr) minmax(260px, 1fr); gap: 28px; padding: 26px 0;
          border-bottom: 1px solid #2b2420; align-items: start; }
section img + img { margin-top: 12px; }
section img { width: 100%; display: block; border: 1px solid #3a312a; border-radius: 8px; background: #000; }
h2 { margin: 0 0 10px; font-size: 18px; font-weight: 600; }
h2 i { font-style: normal; color: #e9a04b; margin-right: 10px; }
.state { display: inline-block; font-size: 13px; border-radius: 99px; padding: 1px 12px; margin-bottom: 12px;
         background: #1d4d46; color: #a9e4d9; }
.failed .state { background: #5b1f18; color: #ffc9bf; }
table { border-collapse: collapse; width: 100%; font-size: 14px; }
td { padding: 5px 0; border-top: 1px solid #2b2420; vertical-align: top; overflow-wrap: anywhere; }
td:first-child { color: #a39585; padding-right: 16px; width: 46%; }
pre { white-space: pre-wrap; background: #211c18; border-radius: 8px; padding: 12px; color: #ffc9bf; font-size: 13px; }
@media (max-width: 820px) { section { grid-template-columns: 1fr; } }
"""


class Summary:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.steps = []

    def add(self, heading, picture, measured, seconds, error=None, drawing=None):
        self.steps.append((heading, picture, measured, seconds, error, drawing))

    def fact(self, what):
        for _, _, measured, *_ in self.steps:
            for name, value in measured:
                if name == what:
                    return value
        return "-"

    def write(self, sound_seconds):
        good = sum(error is None for *_, error, _ in self.steps)
        facts = [
            (f"{good} of {len(self.steps)}", "steps as they should be"),
            (self.fact("start to login window"), "start to login window"),
            (self.fact("songs stored"), "songs in the library"),
            (self.fact("left, 440 Hz"), "level of the first song's tone"),
            (f"{sound_seconds:.0f} s", "of sound recorded"),
        ]
        tiles = "".join(f"<div><b>{html.escape(value)}</b><small>{html.escape(what)}</small></div>" for value, what in facts)
        sections = "\n".join(self._section(number, *step) for number, step in enumerate(self.steps, 1))
        audio = '<audio controls src="sound.wav"></audio>' if sound_seconds else ""
        (self.folder / "index.html").write_text(
            f'<!doctype html><html lang="en"><head><meta charset="utf-8"><title>Brindlepost, played by itself</title>'
            f'<meta name="viewport" content="width=device-width"><style>{STYLE}</style></head><body><header><div>'
            f"<h1><span>Brindlepost</span>, played by itself</h1><p>From an empty machine to a song and a page, and on through the library and the player, with real "
            f"mouse and keyboard events on the real program. Each picture shows the screen at the end of its step.</p>"
            f'<div class="facts">{tiles}</div>{audio}</div></header><main>{sections}</main></body></html>\n')

    @staticmethod
    def _section(number, heading, picture, measured, seconds, error, drawing):
        rows = "".join(f"<tr><td>{html.escape(what)}</td><td>{html.escape(value)}</td></tr>"
                       for what, value in [*measured, ("step took", f"{seconds:.1f} s")])
        trouble = f"<pre>{html.escape(error)}</pre>" if error else ""
        course = f'<img src="{drawing}" alt="Levels over time">' if drawing else ""
        return (f'<section class="{"failed" if error else ""}"><a href="{picture}"><img src="{picture}" loading="lazy" '
                f'alt="{html.escape(heading)}">{course}</a><div><h2><i>{number:02d}</i>{html.escape(heading)}</h2>'
                f'<span class="state">{"failed" if error else "as it should be"}</span><table>{rows}</table>{trouble}'
                f"</div></section>")


def file_name(number, heading):
    words = "".join(letter if letter.isalnum() else " " for letter in heading.lower()).split()
    return f"{number:02d}-{'-'.join(words)}.png"


def play(scene, story, summary):
    for number, (heading, step) in enumerate(story.steps(), 1):
        picture = file_name(number, heading)
        shown = []

        def picture_now(_title=None, picture=picture, shown=shown):
            if not shown:
                shown.append(scene.screenshot(summary.folder / picture))

        # A box and the counting splash are gone at the end of their step, so they are taken while they stand.
        story.on_box = story.on_splash = picture_now
        story.drawing = None
        begin = time.monotonic()
        print(f"{number:2d} {heading} ...", end=" ", flush=True)
        measured, error = [], None
        try:
            measured = step()
        except Exception as trouble:
            error = f"{type(trouble).__name__}: {trouble}"
        picture_now()
        drawing = pathlib.Path(shutil.copy(story.drawing, summary.folder)).name if story.drawing else None
        summary.add(heading, picture, measured, time.monotonic() - begin, error, drawing)
        print(error or "; ".join(f"{what}: {value}" for what, value in measured) or "ok", flush=True)
        if error and (number <= ESSENTIAL or story.program.poll() is not None):
            break


def main():
    output = pathlib.Path(sys.argv[2]).resolve()
    build = stage.become_unprivileged(sys.argv[1])
    summary = Summary(output)
    with stage.Stage(build) as scene:
        story = Everyday(scene)
        print("Making songs and pages ...", flush=True)
        story.make_media()
        try:
            play(scene, story, summary)
        finally:
            story.close()
        seconds = story.recorder.seconds()
        story.recorder.write_wav(output / "sound.wav")
    summary.write(seconds)
    scene.remove()
    wanted = len(story.steps())
    return 0 if len(summary.steps) == wanted and not any(error for *_, error, _ in summary.steps) else 1


if __name__ == "__main__":
    sys.exit(main())
