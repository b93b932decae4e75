"""The whole road on the real program: `test_story.py BUILD_FOLDER`. The first step that fails ends it."""

import sys
import time
import traceback

import stage
from tour import Tour


# Up to here each step needs the one before; afterwards one that fails is told and the next one is tried.
ESSENTIAL = 9


def tell_failure(scene, number, heading):
    picture = scene.screenshot(scene.folder / f"failure-{number:02d}.png")
    print(f"FAILED at step {number}: {heading}")
    traceback.print_exc(file=sys.stdout)
    print(f"The program says:\n{scene.program_output()[-3000:]}")
    print(f"Screenshot: {picture}\nLogs: {scene.folder}", flush=True)


def walk(scene, story):
    """How many steps failed."""
    failures = 0
    for number, (heading, step) in enumerate(story.steps(), 1):
        begin = time.monotonic()
        try:
            measured = step()
        except Exception:
            tell_failure(scene, number, heading)
            failures += 1
            if number <= ESSENTIAL or story.program.poll() is not None:
                break
            continue
        facts = ", ".join(f"{what}: {value}" for what, value in measured)
        print(f"ok {number:2d} {heading} ({time.monotonic() - begin:.1f} s) {facts}", flush=True)
    return failures


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with stage.Stage(build) as scene:
        story = Tour(scene)
        story.make_media()
        try:
            failures = walk(scene, story)
        finally:
            story.close()
    if failures:
        return 1
    scene.remove()
    return 0


if __name__ == "__main__":
    sys.exit(main())
