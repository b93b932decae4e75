"""The whole road on the real program: `test_story.py BUILD_FOLDER`. The first step that fails ends it."""

import sys
import time

import stage
from errands import Errands


# Up to here each step needs the one before; afterwards one that fails is told and the next one is tried.
ESSENTIAL = 9


def walk(scene, story):
    """How many steps failed."""
    failures = 0
    for number, (heading, step) in enumerate(story.steps(), 1):
        begin = time.monotonic()
        try:
            measured = step()
        except Exception:
            scene.tell_failure(f"at step {number}: {heading}", f"failure-{number:02d}.png")
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
        story = Errands(scene)
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
