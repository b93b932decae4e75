"""Drags from another program, `drag_source`, whose window is one large thing to drag."""

import contextlib
import time

from stage import wait_for


class Dragging:
    """What a person with a stage can drag."""

    @contextlib.contextmanager
    def source(self, *words):
        """The other program's window, at the right of the screen, and the file of its answers."""
        answers = self.stage.folder / f"answers-{time.monotonic_ns()}"
        with open(answers, "wb") as output:
            program = self.stage.spawn([str(self.stage.build / "tests/real/drag_source"), *map(str, words)],
                                       stdout=output)
        window = self.stage.window("Drag source")
        self.stage.run("xdotool", "windowmove", "--sync", window, "1060", "700")
        try:
            yield window, answers
        finally:
            program.terminate()
            program.wait(5)

    def drag(self, place, *words):
        """Drags files or a text to a place on the screen; "taken" or "refused"."""
        with self.source(*words) as (window, answers):
            x, y, width, height = self.stage.window_rect(window)
            self.pull((x + width // 2, y + height // 2), place)
            return wait_for("the end of the drag", lambda: answers.read_text(encoding="utf-8").strip())

    def pull(self, start, place):
        """Moves the mouse from one place to the other with its button down."""
        self.stage.run("xdotool", "mousemove", *map(str, start), "mousedown", "1")
        for step in range(1, 21):
            at = [str(round(a + (b - a) * step / 20)) for a, b in zip(start, place)]
            self.stage.run("xdotool", "mousemove", *at)
            time.sleep(0.02)
        # The last place is asked for again, as by a hand that is never quite still.
        self.stage.run("xdotool", "mousemove_relative", "1", "1")
        time.sleep(0.3)
        self.stage.run("xdotool", "mouseup", "1")
