"""Decoders that end at a bad moment, in the real program: `test_decoders.py BUILD_FOLDER [KILLS]`.

A decoder is killed at random moments of playing, a crossfade, a jump, a pause and a film (25 times unless told
otherwise): after each the program runs on and a song plays within three seconds. Then the song that comes in during a
crossfade has to go on without a gap when the other decoder is killed, a decoder that hangs is replaced, and both end
with a program that is killed.
"""

import os
import pathlib
import random
import signal
import sys
import time

import gaps
import stage
from decoders import BACK_WITHIN, Listener, say
from stage import Stage, make_tone, wait_for
from story import check

KILLS = 25
SONGS = [("One", "mp3", 440), ("Two", "wav", 660), ("Film", "mp4", 550), ("Four", "mp3", 880), ("Five", "m4a", 770)]
SECONDS = 60
MOMENTS = ["playing", "crossfade", "jump", "pause", "film"]
FADES = 5


class Killed(Listener):
    """Kills decoders, every time in another state of the player."""

    def __init__(self, scene):
        super().__init__(scene, [make_tone(scene.folder / "Music" / f"Ada - {name}.{kind}", tone, SECONDS)
                                 for name, kind, tone in SONGS])
        self.chance = random.Random(20)
        self.started_again = 0

    def reach(self, moment):
        """A state of the player, from one in which a song plays."""
        wait_for("a song to play", self.is_going_on)
        if moment == "film":
            self.double_click([name for name, _, _ in SONGS].index("Film"))
        elif moment == "crossfade":
            self.playerctl("next")
        elif moment == "jump":
            self.playerctl("position", str(self.chance.uniform(1, SECONDS - 15)))
        elif moment == "pause":
            self.playerctl("pause")
        time.sleep(self.chance.uniform(0, 0.6 if moment != "playing" else 1.5))

    def kill_one(self, number, moment):
        what = f"kill {number}, {moment}"
        self.reach(moment)
        channel = self.chance.choice(sorted(self.decoders()))
        os.kill(self.decoders()[channel], signal.SIGKILL)
        began = time.monotonic()
        if moment == "pause":
            self.record(0.2)
            if self.playerctl("status") == "Paused":
                self.playerctl("play")
        wait_for(f"{what}: a song to play again", self.is_going_on, BACK_WITHIN)
        self.stay_alive(what)
        wait_for(f"{what}: both decoders", lambda: len(self.decoders()) == 2, BACK_WITHIN)
        self.started_again += 1
        return time.monotonic() - began

    def kill_many(self, count):
        times = []
        for number in range(count):
            times.append(self.kill_one(number, MOMENTS[number % len(MOMENTS)]))
        times.sort()
        say(f"   {count} decoders killed, {self.started_again} started again, a song played again after "
            f"{times[len(times) // 2]:.1f} s (median), {times[-1]:.1f} s at most")

    def crossfade(self, kills):
        """The longest silence, in ms, from the middle of a crossfade on; in it the outgoing song's decoder may be killed."""
        wait_for("one song to play", lambda: self.is_going_on() and len(self.playing_decoders()) == 1, 20)
        (channel, number), = self.playing_decoders().items()
        self.playerctl("next")
        wait_for("the crossfade", lambda: len(self.playing_decoders()) == 2)
        title = self.title()
        self.record(0.6)
        check(self.decoders().get(channel) == number, "the crossfade was over too soon")
        if kills:
            os.kill(number, signal.SIGKILL)
        self.record(1.2)
        check(self.title() == title, "the other song did not go on")
        with open(self.recorder.path, "rb") as file:
            file.seek(-4 * int(1.2 * stage.SAMPLE_RATE), os.SEEK_END)
            return gaps.longest_gap(file.read())

    def other_channel_has_no_gap(self):
        """The song that comes in goes on as in a crossfade of which nothing is killed; a busy machine has gaps of its own."""
        longest = [(self.crossfade(False), self.crossfade(True)) for _ in range(FADES)]
        control, killed = (sorted(column) for column in zip(*longest))
        say(f"   longest silence after the kill of the outgoing song's decoder, in ms: {[round(gap, 1) for gap in killed]}, "
            f"without one: {[round(gap, 1) for gap in control]}")
        middle = FADES // 2
        check(killed[middle] < 5 or killed[middle] <= control[middle + 1], "the other channel has gaps")

    def hang_one(self):
        """A decoder that no longer answers is ended within two seconds and the next song starts."""
        wait_for("one song to play", lambda: self.is_going_on() and len(self.playing_decoders()) == 1, 20)
        before = self.title()
        (_, number), = self.playing_decoders().items()
        os.kill(number, signal.SIGSTOP)
        wait_for("the next song", lambda: self.title() not in (before, "") and self.is_going_on(), 2 + BACK_WITHIN)
        wait_for("both decoders", lambda: len(self.decoders()) == 2)
        check(number not in self.decoders().values(), "the one that hung is still there")

    def end_takes_both_along(self):
        numbers = list(self.decoders().values())
        self.program.kill()
        self.program.wait(10)
        wait_for("both decoders to end", lambda: not any(pathlib.Path(f"/proc/{number}/fd").exists() for number in numbers), 3)

    def walk(self, kills):
        self.launch()
        self.double_click(0)
        self.kill_many(kills)
        self.other_channel_has_no_gap()
        self.hang_one()
        self.end_takes_both_along()


def main():
    build = stage.become_unprivileged(sys.argv[1])
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else KILLS
    with Stage(build) as scene:
        listener = Killed(scene)
        try:
            is_done = scene.run_steps([listener.walk], kills)
        finally:
            listener.close()
    if is_done:
        scene.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
