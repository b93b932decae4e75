"""The markers of song, cross fade and speed under a mouse: `test_markers.py BUILD_FOLDER`.

A marker is a line of a pixel with a grip of eight. It creeps by the ratio of the present to the pressed place, so a drag is
judged by its direction, and by what comes of it: the place in the song, the seconds of the fade, the rate.
"""

import subprocess
import sys

import bus_peers
import stage
from stage import Stage, wait_for
from story import Story, check

SECOND = 1_000_000
GRIP = 8  # pixels


class Hand(Story):
    def __init__(self, scene):
        super().__init__(scene)
        self.peers = bus_peers.BusPeers(scene.environment["DBUS_SESSION_BUS_ADDRESS"])
        statements = ["insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True');"]
        self._into("dbLogin", statements)
        self._into("dbMedia", [self._song(number) for number in (1, 2)])

    def _song(self, number):
        path = stage.make_tone(self.music / f"Ada - Long {number}.wav", 330 + 110 * number, 100)
        stored = "C:" + str(path).replace("/", "\\")
        return f"insert into tblSong values({number},'Ada','Long {number}','{stored}',0);"

    def _into(self, store, statements):
        subprocess.run(["sqlite3", str(self.application / (store + ".mdb")), "".join(statements)], check=True)

    def close(self):
        super().close()
        self.peers.close()

    def start(self):
        self.program = self.stage.launch(self.application)
        wait_for("the tracks in their list", lambda: len(self.eyes.rows("Tracks")) == 2, 30)
        wait_for("the splash to go", lambda: "Brindlepost" not in self.stage.stacking(), 30)
        x, y, _, height = self.eyes.row_rect("Tracks", 0)
        self.stage.click(x + 60, y + height // 2, times=2)
        wait_for("the song", lambda: self.peers.property("PlaybackStatus") == "Playing")

    def rect(self, name):
        return self.eyes.rect(self.eyes.find(name))

    def drag(self, name, pixels):
        """Takes a marker right of its middle, where the ratio is small, and pulls it."""
        # A bar may have the name of its marker.
        x, y, width, height = min((self.eyes.rect(node) for node in self.eyes.find_all(name)), key=lambda r: r[2])
        check(GRIP <= width < 2 * GRIP, f"the grip of {name} is {width} wide")
        at = (str(x + width - 2), str(y + height // 2))
        self.stage.run("xdotool", "mousemove", *at, "mousedown", "1")
        step = pixels // 4
        for _ in range(4):
            self.stage.run("xdotool", "mousemove_relative", "--", str(step), "0")
        self.stage.run("xdotool", "mouseup", "1")

    def song_is_dragged(self):
        before = self.peers.property("Position") / SECOND
        self.drag("Position", 120)
        wait_for("a later place in the song", lambda: self.peers.property("Position") / SECOND > before + 8)
        check(self.peers.property("PlaybackStatus") == "Playing", "the song does not go on after the drag")
        there = self.peers.property("Position") / SECOND
        self.drag("Position", -120)
        wait_for("an earlier place in the song", lambda: self.peers.property("Position") / SECOND < there - 4)

    def fade_is_dragged(self):
        bar = self.rect("Position in the song")
        self.drag("Start of the cross fade", -40)
        after = self.rect("Start of the cross fade")
        from_end = bar[0] + bar[2] - after[0]
        check(from_end > 2 * GRIP + bar[2] // 20, f"the fade's marker is {from_end} pixels from the end")
        self.peers.player("Next")
        wait_for("the second song", lambda: "Long 2" in str(self.peers.property("Metadata")))
        wait_for("the fade of the next song as long",
                 lambda: abs(self.rect("Start of the cross fade")[0] - after[0]) <= bar[2] // 100 + 1)

    def speed_is_dragged(self):
        rate = self.peers.property("Rate")
        self.drag("Speed", 24)
        wait_for("a higher rate", lambda: self.peers.property("Rate") > rate + 0.03)
        higher = self.peers.property("Rate")
        self.drag("Speed", -60)
        wait_for("a lower rate", lambda: self.peers.property("Rate") < higher - 0.03)

    def steps(self):
        return [self.start, self.song_is_dragged, self.fade_is_dragged, self.speed_is_dragged]


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with Stage(build) as scene:
        hand = Hand(scene)
        try:
            is_done = scene.run_steps(hand.steps())
        finally:
            hand.close()
    if is_done:
        scene.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
