"""What plays is told to the outside, and the outside steers it: `test_bus.py BUILD_FOLDER`.

A messenger, a screen saver and a desktop's player controls, none of them this house's own, on a bus of the test's own.
"""

import base64
import pathlib
import signal
import subprocess
import sys
import urllib.parse

from gi.repository import GLib

import bus_peers
import stage
from bus_peers import message
from stage import PageServer, Stage, wait_for
from story import Story, check, check_equal

SONGS = [("Ada Larkspur", "Größe 夜 #1", "mp3", 440), ("Bell Tower", "Second", "wav", 660), ("Delta", "Film", "avi", 550)]
NOTHING = message("", "", playing=False)
SECOND = 1_000_000

SOUNDING_PAGE = """<!doctype html><title>Sounding page</title><body style="background:#1f6f8b">
<audio id="a" loop src="data:audio/wav;base64,{sound}"></audio><script>
navigator.mediaSession.metadata = new MediaMetadata({{title: "Page song", artist: "Page"}});
navigator.mediaSession.setActionHandler("pause", () => document.title = "Paused by a key");
document.addEventListener("mousedown", () => document.getElementById("a").play().then(
  () => document.title = "Sounding now", (e) => document.title = "Refused " + e));
</script>"""


class Listener(Story):
    """The person of the story, in a household with a bus."""

    def __init__(self, scene):
        super().__init__(scene)
        self.address = scene.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.peers = bus_peers.BusPeers(self.address)
        self.paths = []
        self.store_songs()

    def store_songs(self):
        rows = []
        for number, (artist, title, kind, tone) in enumerate(SONGS, 1):
            path = stage.make_tone(self.music / f"{artist} - {title}.{kind}", tone, 60)
            self.paths.append(path)
            stored = "C:" + str(path).replace("/", "\\")
            rows.append(f"insert into tblSong values({number},'{artist}','{title}','{stored}',0);")
        subprocess.run(["sqlite3", str(self.application / "dbMedia.mdb"), "".join(rows)], check=True)
        subprocess.run(["sqlite3", str(self.application / "dbLogin.mdb"),
                        "insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')"], check=True)

    def close(self):
        super().close()
        self.peers.close()

    def launch(self, environment=None):
        self.program = self.stage.launch(self.application, environment=environment)
        wait_for("the tracks in their list", lambda: len(self.eyes.rows("Tracks")) == len(SONGS), 30)
        wait_for("the splash to go", lambda: "Brindlepost" not in self.stage.stacking(), 30)

    def playerctl(self, *words):
        return self.stage.run("playerctl", "-p", "brindlepost", *words).strip()

    def wait_for_status(self, status):
        wait_for(f"the status '{status}'", lambda: self.playerctl("status") == status)

    def take_blocks(self, count):
        wait_for(f"{count} blocks at the messenger", lambda: len(self.peers.blocks) >= count)
        taken, self.peers.blocks[:] = list(self.peers.blocks), []
        return taken

    def position(self):
        return self.peers.property("Position") / SECOND

    # -- the steps --

    def one_player_of_the_program(self):
        self.launch()
        check_equal("the media players on the bus", self.peers.media_players(),
                    [("org.mpris.MediaPlayer2.brindlepost", self.program.pid)])
        check_equal("its name", self.peers.property("Identity", "org.mpris.MediaPlayer2"), "Brindlepost")
        check_equal("its desktop entry", self.peers.property("DesktopEntry", "org.mpris.MediaPlayer2"), "brindlepost")
        check_equal("its status", self.playerctl("status"), "Stopped")
        check(all(block == NOTHING for block in self.peers.blocks), f"told at the start: {self.peers.blocks}")
        self.peers.blocks.clear()

    def a_song_is_told(self):
        artist, title, _, tone = SONGS[0]
        self.choose_row("Tracks", 0, times=2)
        self.wait_for_status("Playing")
        check_equal("the messenger's block", self.take_blocks(1), [message(artist + " ", title)])
        check_equal("the title", self.playerctl("metadata", "xesam:title"), title)
        check_equal("the artist", self.playerctl("metadata", "xesam:artist"), artist)
        address = self.playerctl("metadata", "xesam:url")
        check_equal("the file", urllib.parse.unquote(address), "file://" + str(self.paths[0]))
        length = int(self.playerctl("metadata", "mpris:length"))
        check(abs(length - 60 * SECOND) < SECOND // 5, f"the length is {length}")
        check(abs(self.peers.property("Rate") - 1.03) < 1e-9, "the rate is not the program's normal speed")
        check_equal("the volume", self.peers.property("Volume"), 1.0)
        self.hear("the song", tone)

    def it_is_steered(self):
        tone = SONGS[0][3]
        self.playerctl("pause")
        self.wait_for_status("Paused")
        self.hear_nothing("pause from outside")
        check(self.eyes.shows("Play"), "the program's own button does not offer to play")
        held = self.position()
        self.playerctl("position", "30")
        wait_for("the jump", lambda: self.peers.jumps)
        check(abs(self.position() - 30) < 0.05, f"30 s were asked for, it stands at {self.position()} and stood at {held}")
        check_equal("the status after a jump in a pause", self.playerctl("status"), "Paused")
        self.playerctl("play-pause")
        self.wait_for_status("Playing")
        self.hear("the song again", tone)
        before = self.position()
        wait_for("the position to move", lambda: self.position() > before)
        self.playerctl("position", "5-")
        wait_for("the position to go back", lambda: self.position() < before)

    def levels_are_steered(self):
        self.playerctl("volume", "0.5")
        wait_for("half the volume", lambda: abs(self.peers.property("Volume") - 0.5) < 0.01)
        check(any(abs(change.get("Volume", 9) - 0.5) < 0.01 for change in self.peers.changes), "the change was not told")
        self.peers.set_property("Rate", GLib.Variant("d", 1.5))
        wait_for("the rate", lambda: abs(self.peers.property("Rate") - 1.5) < 0.01)
        self.peers.set_property("Rate", GLib.Variant("d", 1.0))
        self.playerctl("volume", "1.0")
        wait_for("the full volume", lambda: self.peers.property("Volume") == 1.0)

    def nonsense_is_harmless(self):
        track = self.peers.property("Metadata")["mpris:trackid"]
        before = self.position()
        for name, value in (("Volume", float("nan")), ("Rate", float("nan")), ("Rate", -5.0), ("Rate", float("inf"))):
            self.peers.set_property(name, GLib.Variant("d", value))
        for place in (-1, 2**63 - 1, -2**63):
            self.peers.player("SetPosition", GLib.Variant("(ox)", (track, place)))
        self.peers.player("SetPosition", GLib.Variant("(ox)", ("/nobody/knows/this", 5 * SECOND)))
        try:
            self.peers.player("OpenUri", GLib.Variant("(s)", ("file:///etc/passwd",)))
            check(False, "a file was opened from outside")
        except GLib.Error:
            pass
        check_equal("the volume", self.peers.property("Volume"), 1.0)
        check(before <= self.position() < before + 5, f"the song jumped from {before} to {self.position()}")
        self.peers.player("Seek", GLib.Variant("(x)", (-2**63,)))
        wait_for("the start of the song", lambda: self.position() < before)
        self.wait_for_status("Playing")

    def next_previous_stop(self):
        track = self.playerctl("metadata", "mpris:trackid")
        self.playerctl("next")
        wait_for("the next song", lambda: self.playerctl("metadata", "xesam:title") == SONGS[1][1])
        check(self.playerctl("metadata", "mpris:trackid") != track, "another song is the same track")
        check_equal("the messenger's block", self.take_blocks(1), [message("Bell Tower ", "Second")])
        self.peers.player("Seek", GLib.Variant("(x)", (2**63 - 1,)))
        wait_for("the song after that", lambda: self.playerctl("metadata", "xesam:title") == "Film [Video]")
        self.playerctl("previous")
        wait_for("the song before", lambda: self.playerctl("metadata", "xesam:title") == SONGS[1][1])
        self.take_blocks(2)
        self.playerctl("stop")
        self.wait_for_status("Stopped")
        check_equal("the messenger's block", self.take_blocks(1), [NOTHING])
        check_equal("the title after stop", self.playerctl("metadata", "xesam:title"), "")

    def keys_of_the_keyboard(self):
        self.choose_row("Tracks", 0)
        for where, focus in (("the address", lambda: self.press("Address", "text")), ("the tracks", lambda: None)):
            focus()
            self.stage.key("XF86AudioPlay")
            self.wait_for_status("Playing")
            self.stage.key("XF86AudioPlay")
            self.wait_for_status("Paused")
            check_equal(f"the title, keys in {where}", self.playerctl("metadata", "xesam:title"), SONGS[0][1])
        self.stage.key("XF86AudioNext")
        wait_for("the next song", lambda: self.playerctl("metadata", "xesam:title") == SONGS[1][1])
        self.stage.key("XF86AudioPrev")
        wait_for("the song before", lambda: self.playerctl("metadata", "xesam:title") == SONGS[0][1])
        self.stage.key("XF86AudioLowerVolume")
        wait_for("a lower volume", lambda: abs(self.peers.property("Volume") - (1785 - 300) / 1785) < 0.001)
        self.stage.key("XF86AudioRaiseVolume")
        wait_for("a higher volume", lambda: self.peers.property("Volume") == 1.0)
        self.stage.key("XF86AudioMute")
        wait_for("no volume", lambda: self.peers.property("Volume") == 0.0)
        self.stage.key("XF86AudioMute")
        wait_for("the volume again", lambda: self.peers.property("Volume") == 1.0)
        self.stage.key("alt+XF86AudioStop")
        self.stage.key("XF86AudioStop")
        self.wait_for_status("Stopped")

    def a_page_with_sound_is_no_second_player(self):
        sound = pathlib.Path(stage.make_tone(self.music / "page.wav", 880, 2)).read_bytes()
        self.pages.close()
        self.pages = PageServer({"/": SOUNDING_PAGE.format(sound=base64.b64encode(sound).decode())})
        self.write_into("Address", f"http://127.0.0.1:{self.pages.port}/", "text")
        self.stage.key("Return")
        window = self.main_window("Brindlepost - Sounding page", 20)
        x, y, width, height = self.stage.window_rect(window)

        def sounds():
            self.stage.click(x + width // 2, y + height // 2)
            return self.stage.has_window("Brindlepost - Sounding now")

        wait_for("the page to play", sounds, 10, 0.3)
        self.hear("the page", 880)
        check_equal("the media players on the bus", self.peers.media_players(),
                    [("org.mpris.MediaPlayer2.brindlepost", self.program.pid)])
        check_equal("its status", self.playerctl("status"), "Stopped")
        # The key goes to the program, although a page has the focus, and not to the page.
        self.stage.key("XF86AudioNext")
        self.wait_for_status("Playing")
        self.take_blocks(1)
        check(self.stage.has_window("Brindlepost - Sounding now"), "the page took the key")

    def a_film_keeps_the_screen_on(self):
        check_equal("what the screen saver was told before", self.peers.saver_calls[2:], [])
        self.peers.saver_calls.clear()
        while self.playerctl("metadata", "xesam:title") != "Film [Video]":
            before = self.playerctl("metadata", "mpris:trackid")
            self.playerctl("next")
            wait_for("another song", lambda old=before: self.playerctl("metadata", "mpris:trackid") != old)
        wait_for("the promise", lambda: self.peers.promises)
        check_equal("who asks, and why", self.peers.saver_calls[-1], ("Inhibit", "Brindlepost", "A video plays"))
        self.playerctl("pause")
        wait_for("the promise given back at the pause", lambda: not self.peers.promises)
        self.playerctl("play")
        wait_for("the promise again", lambda: self.peers.promises)

    def a_crash_lets_the_screen_go_dark(self):
        self.program.send_signal(signal.SIGKILL)
        self.program.wait()
        wait_for("the promise to end with the program", lambda: not self.peers.promises)
        check_equal("the media players on the bus", self.peers.media_players(), [])

    def quitting_tells_that_nothing_plays(self):
        self.launch()
        self.peers.blocks.clear()
        self.choose_row("Tracks", 2, times=2)
        wait_for("the promise", lambda: self.peers.promises)
        check_equal("the messenger's block", self.take_blocks(1), [message("Delta ", "Film [Video]")])
        self.peers.player("Quit", interface="org.mpris.MediaPlayer2")
        check_equal("the exit code", self.program.wait(10), 0)
        # At the question the stop and the exit itself, at the save both again; a layout in between stops once more.
        last_words = self.take_blocks(4)
        check_equal("the last words", last_words, [NOTHING] * len(last_words))
        check_equal("the last word to the screen saver", self.peers.saver_calls[-1][0], "UnInhibit")

    def the_bus_hangs_and_dies(self):
        self.launch()
        self.choose_row("Tracks", 0, times=2)
        self.hear("the song", SONGS[0][3])
        # The screen reader's services hang with the bus, and they see every key first: only the mouse is left.
        button = self.eyes.centre("Pause")
        self.signal_bus(signal.SIGSTOP)
        self.stage.click(*button)
        self.hear_nothing("a pause while the bus hangs")
        self.stage.click(*button)
        self.hear("the song while the bus hangs", SONGS[0][3])
        self.signal_bus(signal.SIGKILL)
        self.stage.key("XF86AudioPlay")
        self.hear_nothing("a pause without the bus")
        self.stage.key("XF86AudioPlay")
        self.hear("the song without the bus", SONGS[0][3])
        self.stage.key("XF86AudioStop")
        self.hear_nothing("stop without the bus")
        self.end_program()

    def signal_bus(self, number):
        for process in self.stage.processes("dbus-daemon"):
            process.send_signal(number)
            if number == signal.SIGKILL:
                process.wait()

    def end_program(self):
        self.stage.key("alt+F4")
        check_equal("the exit code", self.program.wait(10), 0)

    def without_a_bus(self):
        place = self.track_place
        for address in ("unix:path=/nonexistent/bus", None):
            changed = {"DBUS_SESSION_BUS_ADDRESS": address} if address else {}
            if not address:
                self.stage.environment.pop("DBUS_SESSION_BUS_ADDRESS")
            self.program = self.stage.launch(self.application, environment=changed)
            self.main_window("Brindlepost - Music Player", 30)
            wait_for("the splash to go", lambda: "Brindlepost" not in self.stage.stacking(), 30)
            self.stage.click(*place, times=2)
            self.hear("a song without any bus", SONGS[0][3])
            self.stage.click(*self.stop_place)
            self.hear_nothing("stop without any bus")
            self.end_program()

    track_place = None
    stop_place = None

    def remember_the_places(self):
        x, y, _, height = self.eyes.row_rect("Tracks", 0)
        self.track_place = (x + 60, y + height // 2)
        self.stop_place = self.eyes.centre("Stop")

    def steps(self):
        return [self.one_player_of_the_program, self.remember_the_places, self.a_song_is_told, self.it_is_steered,
                self.levels_are_steered, self.nonsense_is_harmless, self.next_previous_stop, self.keys_of_the_keyboard,
                self.a_page_with_sound_is_no_second_player, self.a_film_keeps_the_screen_on,
                self.a_crash_lets_the_screen_go_dark, self.quitting_tells_that_nothing_plays, self.the_bus_hangs_and_dies,
                self.without_a_bus]


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with Stage(build) as scene:
        person = Listener(scene)
        try:
            is_done = scene.run_steps(person.steps())
        finally:
            person.close()
    if is_done:
        scene.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
