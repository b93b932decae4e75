"""The whole road on the real program: `test_story.py BUILD_FOLDER`. The first step that fails ends it."""

import sys
import time
import traceback

import stage
from story import Story


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with stage.Stage(build) as scene:
        story = Story(scene)
        story.make_media()
        for number, (heading, step) in enumerate(story.steps(), 1):
            begin = time.monotonic()
            try:
                measured = step()
            except Exception:
                picture = scene.screenshot(scene.folder / "failure.png")
                print(f"FAILED at step {number}: {heading}", flush=True)
                traceback.print_exc(file=sys.stdout)
                print(f"The program says:\n{scene.program_output()[-3000:]}")
                print(f"Screenshot: {picture}\nLogs: {scene.folder}")
                story.close()
                return 1
            facts = ", ".join(f"{what}: {value}" for what, value in measured)
            print(f"ok {number:2d} {heading} ({time.monotonic() - begin:.1f} s) {facts}", flush=True)
        story.close()
    scene.remove()
    return 0


if __name__ == "__main__":
    sys.exit(main())
