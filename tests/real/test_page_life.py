"""Pages as their users live with them, on the real program: `test_page_life.py BUILD_FOLDER [STEP...]`.

Links by hand, sound, the whole screen, boxes under music, and what is kept for whom over a log out and a restart.
"""

import sys

import gaps
import stage as stages
from browsing import Browsing, check, check_equal, page
from stage import SAMPLE_RATE, Recorder, wait_for

PAGE_TONE = 880
LONGEST_GAP = 5.0   # milliseconds, over twice what the peer had
TRIES = 3           # a gap that does not come again is the machine's
ALL = "<a class=all href='{}'>link</a>"
PAGES = {
    "/links": page("Links", ALL.format("/behind")),
    "/behind": page("Behind"),
    "/sounds": page("Sounds", "<div class=all>sound</div>", f"""
        document.onclick = () => {{ const audio = new AudioContext(); const tone = audio.createOscillator();
            tone.frequency.value = {PAGE_TONE}; tone.connect(audio.destination); tone.start(); fetch('/told/sounds') }}"""),
    "/fills": page("Fills", "<div class=all>fill</div>", """
        document.onclick = () => document.body.requestFullscreen();
        document.onkeydown = (e) => fetch('/told/key-' + e.key);
        document.onfullscreenchange = () => fetch('/told/' + (document.fullscreenElement ? 'fills' : 'fits'))"""),
    "/box": page("Box", "<div class=all>box</div>", """
        let clicks = 0; document.onclick = () => { alert('still there?'); fetch('/told/answered-' + ++clicks) }"""),
    "/leave": page("Leave", script="document.cookie = 'who=' + location.search.slice(1) + '; max-age=3600';"
                                   "fetch('/told/left')"),
    "/look": page("Look", script="fetch('/told/found-' + (document.cookie || 'nothing').replace('=', '-'))"),
}


class Life(Browsing):

    def add_bob(self):
        self._sql("dbLogin", "insert into tblLogin values('bob','secret',' ',' ',' ',' ',' ',' ','False','False')")

    # -- links --

    def a_link_with_ctrl_opens_behind(self):
        self.opens_behind(lambda: self.hold("ctrl", self.click_page))

    def a_link_with_the_middle_button_opens_behind(self):
        self.opens_behind(lambda: self.click_page(button=2))

    def hold(self, key, act):
        self.stage.run("xdotool", "keydown", key)
        try:
            act()
        finally:
            self.stage.run("xdotool", "keyup", key)

    def opens_behind(self, click):
        self.open("/links", "Links")
        asked = self.site.count("/behind")
        click()
        wait_for("the link to be asked for", lambda: self.site.count("/behind") == asked + 1)
        wait_for("its tab", lambda: self.tab("Behind"))
        check_equal("tabs", self.tabs(), 2)
        check_equal("the caption", self.title(), "Brindlepost - Links")
        self.press_tab("Behind")
        self.wait_for_caption("Behind")
        check_equal("loads", self.site.count("/behind"), asked + 1)
        self.close_all_tabs()

    # -- sound --

    def a_closed_tab_is_silent_at_once(self):
        heard = Recorder(self.stage, self.stage.folder / "page.raw")
        self.open("/sounds", "Sounds")
        self.click_page()
        wait_for("the page to sound", lambda: self.site.told("sounds") == 1)
        wait_for("the tone of the page", lambda: heard.hears(PAGE_TONE, least=0.02), 20)
        self.to_the_music()
        check(heard.hears(PAGE_TONE, least=0.02), "a covered page is silent")
        self.close_all_tabs()
        wait_for("silence", heard.is_silent, 5)
        heard.stop()

    def a_box_of_a_page_leaves_the_music_alone(self):
        """The peer has as much sound in store as the program begins with, so that a busy machine cuts both short."""
        check(self.stage.run("pactl", "load-module", "module-null-sink", "sink_name=peer", f"rate={SAMPLE_RATE}"),
              "no second sink")
        self.play("Tone")
        music = Recorder(self.stage, self.stage.folder / "music.raw")
        wait_for("the music", lambda: music.hears(440, least=0.02), 20)
        player = self.stage.spawn(["gst-launch-1.0", "-q", "filesrc", f"location={self.tone}", "!", "wavparse", "!",
                                   "audioconvert", "!", "pulsesink", "device=peer", "buffer-time=55000", "latency-time=2000"])
        peer = Recorder(self.stage, self.stage.folder / "peer.raw", "peer.monitor")
        wait_for("the peer's music", lambda: peer.hears(440, least=0.02), 20)
        self.open("/box", "Box")
        found = []
        for number in range(1, TRIES + 1):
            begin = (music.seconds(), peer.seconds())
            self.have_a_box(number, music)
            found.append((gap(music, begin[0]), gap(peer, begin[1])))
            if found[-1][0] <= LONGEST_GAP + 2 * found[-1][1]:
                break
        else:
            raise stages.StageError(f"gaps of the music and of the peer's in milliseconds: {found}")
        player.terminate()
        music.stop()
        peer.stop()
        self.close_all_tabs()
        self.press("Stop")

    def have_a_box(self, number, music):
        self.click_page()
        wait_for("the box", lambda: self.stage.run("xdotool", "getactivewindow").strip() != self.window_id)
        # It is looked at for a while.
        wait_for("two seconds of music", lambda end=music.seconds() + 2: music.seconds() > end, 30)
        self.stage.key("Escape")
        wait_for("the page to go on", lambda: self.site.told(f"answered-{number}") == 1)

    # -- the whole screen --

    def a_page_fills_the_screen_by_a_click_and_escape_ends_it(self):
        self.open("/fills", "Fills")
        before = self.stage.window_rect(self.window_id)
        self.click_page()
        wait_for("the page to fill the screen", lambda: self.site.told("fills") == 1)
        size = tuple(map(int, self.stage.run("xdotool", "getdisplaygeometry").split()))
        window = wait_for("the window of the whole screen",
                          lambda: self.stage.run("xdotool", "getactivewindow").strip())
        wait_for("all of the screen", lambda: self.stage.window_rect(window) == (0, 0, *size))
        self.stage.key("Escape")
        wait_for("the page to be as it was", lambda: self.site.told("fits") == 1)
        wait_for("the main window in front", lambda: self.stage.front_window() == "Brindlepost - Fills")
        check_equal("the window", self.stage.window_rect(self.window_id), before)
        check_equal("keys that the page saw", self.site.told("key-Escape"), 0)
        self.close_all_tabs()

    # -- users --

    def each_user_has_a_cookie_of_their_own_over_a_restart(self):
        self.leave("ada")
        self.log_in("bob")
        self.look("nothing", 1)
        self.leave("bob")
        self.look("who-bob", 1)
        self.log_in("ada")
        self.look("who-ada", 1)
        self.end()
        # Who logged in last is logged in again.
        self.program = self.stage.launch(self.application)
        self.wait_for_main_window()
        self.look("who-ada", 2)
        self.log_in("bob")
        self.look("who-bob", 2)

    def leave(self, name):
        left = self.site.told("left")
        self.go("/leave?" + name)
        wait_for("the cookie to be left", lambda: self.site.told("left") == left + 1)
        self.wait_for_caption("Leave")

    def look(self, word, times):
        self.go("/look")
        wait_for(f"the site to find {word}", lambda: self.site.told("found-" + word) == times)
        self.wait_for_caption("Look")

    def log_in(self, name):
        """As another user, after a log out with a tab open."""
        self.menu("File", "Log Out")
        self.stage.window("Log Out Brindlepost$")
        self.stage.click(*self.eyes.centre("Yes", "push button"))
        self.stage.window("Brindlepost - Login$")
        x, y, width, height = self.eyes.rect(self._users())
        self.stage.click(x + width // 2, y + height // 2)
        self.stage.key("ctrl+a")
        self.stage.type(name)
        wait_for("the name in its box", lambda: self._users().get_description() == name)
        self.stage.click(*self.eyes.centre("Password", "password text"))
        self.stage.key("ctrl+a")
        self.stage.type("secret")
        self.stage.key("Return")
        wait_for("the login to go", lambda: not self.stage.has_window("Brindlepost - Login"))
        self.wait_for_main_window()

    def wait_for_main_window(self):
        """The splash shows above it at first."""
        wait_for("the main window alone", lambda: len(self.stage.stacking()) == 1 and self.eyes.shows("Address", "text"), 60)
        self.window_id = self.largest_window()

    def _users(self):
        """The box of names in the login."""
        window = wait_for("the login", lambda: self.eyes.find_all("Brindlepost - Login"))[0]
        return next(node for node in self.eyes.below(window) if node.get_role_name() == "combo box")

    def steps(self):
        return [self.a_link_with_ctrl_opens_behind, self.a_link_with_the_middle_button_opens_behind,
                self.a_closed_tab_is_silent_at_once, self.a_page_fills_the_screen_by_a_click_and_escape_ends_it,
                self.a_box_of_a_page_leaves_the_music_alone, self.each_user_has_a_cookie_of_their_own_over_a_restart]


def gap(recorder, begin):
    """The longest gap since a place in a recording, in milliseconds."""
    with open(recorder.path, "rb") as file:
        file.seek(int(begin * SAMPLE_RATE) * 4)
        return gaps.longest_gap(file.read())


def main():
    build = stages.become_unprivileged(sys.argv[1])
    wanted = sys.argv[2:]
    with stages.Stage(build) as stage:
        person = Life(stage, PAGES, prepare=Life.add_bob)
        try:
            good = stage.run_steps([step for step in person.steps() if not wanted or step.__name__ in wanted],
                                   picture="failure.png")
        finally:
            person.close()
    if good:
        stage.remove()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
