"""Damaged files in the real program, each followed by a good song that has to start: `test_damaged.py BUILD_FOLDER [COUNT]`.

COUNT damages of each of thirteen kinds, 4 unless told otherwise. The program has to run on, the next song to start within
three seconds of when it should; decoders that a file ends are counted.
"""

import os
import subprocess
import sys
import time

import stage
from decoders import BACK_WITHIN, Listener, say
from stage import Stage, make_tone, wait_for
from story import check

COUNT = 4
# A damaged file that plays on after this long is left by hand.
PATIENCE = 2.0


class Damaged(Listener):
    """Plays damaged files, each followed by a good song."""

    def __init__(self, scene, build, count):
        damaged = scene.folder / "Music"
        damaged.mkdir(parents=True, exist_ok=True)
        subprocess.run([str(build / "tests" / "real" / "damage" / "damage_files"), str(damaged), str(count)], check=True,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        good = make_tone(damaged / "good.mp3", 440, 20)
        songs = []
        for number, path in enumerate(sorted(damaged.glob("Bad - *"))):
            follower = damaged / f"Good - {number:04}.mp3"
            os.link(good, follower)
            songs += [path, follower]
        # The list shows its songs by their names; the order is that of the list.
        for number, path in enumerate(songs):
            songs[number] = path.rename(damaged / f"{number:04} {path.name}")
        super().__init__(scene, songs)

    def walk(self):
        self.launch()
        rows = self.eyes.rows("Tracks")
        check(rows == sorted(rows), "the tracks are not in their order")
        ended = by_hand = 0
        slowest = 0.0
        before = self.decoders()
        self.double_click(0)
        number = played = 0
        while number < len(self.songs):
            goods = [song.stem.partition(" - ")[2] for song in self.songs[number + 1::2]]
            bad = self.songs[number]
            began = time.monotonic()
            plays = lambda: self.title() in goods and self.is_going_on()
            try:
                wait_for(f"the song after {bad.name}", plays, PATIENCE)
            except stage.StageError:
                by_hand += 1
                if self.title() == bad.stem.partition(" - ")[2]:
                    self.playerctl("next")
                wait_for(f"the song after {bad.name}", plays, 2 + BACK_WITHIN)
            slowest = max(slowest, time.monotonic() - began)
            played += 1
            self.stay_alive(bad.name)
            now = self.decoders()
            ended += sum(now.get(channel) != before[channel] for channel in before)
            before = now if len(now) == 2 else wait_for("both decoders", lambda: len(self.decoders()) == 2 and self.decoders())
            # A file that ended by itself just before it was left by hand takes the one after the good song along.
            number += 2 * (goods.index(self.title()) + 1)
            if number < len(self.songs):
                self.playerctl("next")
        say(f"   {played} of {len(self.songs) // 2} damaged files: the next song always started ({by_hand} by hand, slowest "
            f"{slowest:.1f} s), {ended} decoders ended")


def main():
    build = stage.become_unprivileged(sys.argv[1])
    count = int(sys.argv[2]) if len(sys.argv) > 2 else COUNT
    with Stage(build) as scene:
        listener = Damaged(scene, build, count)
        try:
            is_done = scene.run_steps([listener.walk])
        finally:
            listener.close()
    if is_done:
        scene.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
