"""Pages, tabs and the address row on the real program: `test_pages.py BUILD_FOLDER [STEP...]`.

What the page engine and the program's own logic do together: windows a page opens, the ways back and forward, refreshing,
the modes of the address row, the strip of tabs, and starts that name a page.
"""

import subprocess
import sys

import stage as stages
from browsing import MUSIC_CAPTION, TONE, Browsing, check, check_equal, page
from stage import make_tone, wait_for

MANY_TABS = 30
NAMED = "abcdefgh"

PAGES = {
    "/plain": page("Plain"),
    "/linked": page("Linked", "<a class=all href=/behind>on</a>"),
    "/behind": page("Behind"),
    "/counted": page("Counted"),
    "/picked": page("Picked"),
    # Windows that a page opens: by itself, by a click, and through a link.
    "/byscript": page("By script", script="window.open('/popup?byscript')"),
    "/byclick": page("By click", "<div class=all onclick=\"window.open('/popup?byclick').name = 'x'\">click</div>"),
    "/bylink": page("By link", "<a class=all target=_blank href='/popup?bylink'>click</a>"),
    "/popup": page("Pop-up", script="fetch('/told/opener-' + (window.opener ? 'known' : 'none'))"),
    # A pushed state and an anchor are new addresses of the same document.
    "/pushed": page("Pushed", "<div class=all onclick=\"history.pushState({}, '', '/pushed/deeper')\">click</div>"),
    "/changing": page("Before", "<div class=all onclick=\"document.title = 'After <b>it</b> & more'\">click</div>"),
    "/failing": page("Failing", "<a class=all href='http://127.0.0.1:9/'>nobody is there</a>"),
    "/seen": page("Seen", script="setInterval(() => fetch('/told/' + document.visibilityState), 100)"),
}
for letter in NAMED:
    PAGES["/tab-" + letter] = page("Tab " + letter)
for number in range(MANY_TABS):
    PAGES[f"/many-{number}"] = page(f"Many {number}")


class Pages(Browsing):

    # -- windows that pages open --

    def opens_a_tab(self, path, title, click):
        before, popups = self.tabs(), self.site.count("/popup")
        self.go(path)
        if click:
            self.wait_for_caption(title)
            self.click_page()
        self.wait_for_caption("Pop-up")
        wait_for("the pop-up to be asked for", lambda: self.site.count("/popup") == popups + 1)
        check_equal("tabs", self.tabs(), before + 2)
        check(self.tab(title) and self.tab("Pop-up"), "a tab is missing")
        self.wait_for_address(self.site.address("/popup?" + path[1:]))
        self.press_tab(title)
        self.wait_for_caption(title)
        self.close_all_tabs()

    def a_window_by_script_is_a_tab(self):
        self.opens_a_tab("/byscript", "By script", click=False)
        wait_for("the pop-up to know its opener", lambda: self.site.told("opener-known") == 1)

    def a_window_by_a_click_is_a_tab(self):
        self.opens_a_tab("/byclick", "By click", click=True)
        wait_for("the pop-up to know its opener", lambda: self.site.told("opener-known") == 2)

    def a_link_for_a_new_window_is_a_tab(self):
        self.opens_a_tab("/bylink", "By link", click=True)
        wait_for("the tab of a link to have no opener", lambda: self.site.told("opener-none") == 1)

    # -- back, forward, refresh --

    def back_and_forward_walk_the_history(self):
        self.open("/linked", "Linked")
        self.press("Back")
        self.click_page()
        self.wait_for_caption("Behind")
        self.wait_for_address(self.site.address("/behind"))
        check(self.tab("Behind") and not self.tab("Linked"), "the tab bears another title")
        self.press("Back")
        self.wait_for_caption("Linked")
        self.wait_for_address(self.site.address("/linked"))
        self.press("Forward")
        self.wait_for_caption("Behind")
        self.wait_for_address(self.site.address("/behind"))
        self.menu("Options", "Go Back")
        self.wait_for_caption("Linked")
        self.menu("Options", "Go Forward")
        self.wait_for_caption("Behind")
        # Beyond the end there is nothing, and nothing is said.
        asked = self.site.count("/behind")
        self.press("Forward")
        self.press("Refresh the page")
        wait_for("the refresh", lambda: self.site.count("/behind") == asked + 1)
        check_equal("the caption", self.title(), "Brindlepost - Behind")
        self.close_all_tabs()

    def refresh_asks_the_server_again(self):
        self.open("/counted", "Counted")
        asked = self.site.count("/counted")
        for more in (1, 2):
            self.press("Refresh the page")
            wait_for("the refresh", lambda m=more: self.site.count("/counted") == asked + m)
        self.close_all_tabs()

    def refresh_all_leaves_closed_tabs_alone(self):
        for letter in "abc":
            self.open("/tab-" + letter, "Tab " + letter)
        self.menu("File", "Close", "Current Tab")
        wait_for("the third tab to go", lambda: not self.tab("Tab c"))
        before = [self.site.count("/tab-" + letter) for letter in "abc"]
        self.menu("Options", "Refresh All")
        wait_for("both to be asked for", lambda: [self.site.count("/tab-" + letter) for letter in "ab"]
                 == [before[0] + 1, before[1] + 1])
        # What was asked for before the mark would have arrived before it.
        self.open("/plain", "Plain")
        check_equal("loads of the closed tab", self.site.count("/tab-c"), before[2])
        self.close_all_tabs()

    # -- the address row --

    def a_file_is_played_in_the_mode_file(self):
        self.pick_mode("File")
        try:
            self.open_things_in_the_mode_file()
        finally:
            self.pick_mode("Web")

    def open_things_in_the_mode_file(self):
        tabs = self.tabs()
        self.give("C:" + str(self.other).replace("/", "\\"))
        self.stage.key("Return")
        wait_for("the song in the history", lambda: any("Second.wav" in row for row in self.played()))
        # The lists show it at their next filling.
        wait_for("the song in the library", lambda: "Second" in self.rows_of("dbMedia", "select title from tblSong"))
        check_equal("tabs", self.tabs(), tabs)
        # A web address is left alone in this mode; the row is empty after it as after any other.
        asked = self.site.count("/page.htm")
        self.give(self.site.address("/page.htm"))
        self.stage.key("Return")
        wait_for("an empty row", lambda: self.address_text() == "")
        check_equal("tabs", self.tabs(), tabs)
        check_equal("requests", self.site.count("/page.htm"), asked)
        self.press("Stop")

    def a_picked_address_waits_for_enter(self):
        self.open("/picked", "Picked")
        self.open("/plain", "Plain")
        wait_for("both in the history", lambda: {self.site.address("/picked"), self.site.address("/plain")}
                 <= set(self.history("Web")))
        self.to_the_music()
        asked, tabs = self.site.count("/picked"), self.tabs()
        x, y, width, height = self.eyes.rect(self.eyes.find("Address", "text"))
        # The arrow of the box that the row lies over.
        self.stage.click(x + width + 8, y + height // 2)
        wanted = self.site.address("/picked")
        row = wait_for("the row in the list", lambda: [node for node in self.eyes.find_all(wanted, "list item")])[0]
        x, y, width, height = self.eyes.rect(row)
        self.stage.click(x + width // 2, y + height // 2)
        self.wait_for_address(wanted)
        check_equal("requests before Enter", self.site.count("/picked"), asked)
        check_equal("tabs before Enter", self.tabs(), tabs)
        self.stage.key("Return")
        self.wait_for_caption("Picked")
        check_equal("tabs", self.tabs(), tabs + 1)
        check_equal("requests", self.site.count("/picked"), asked + 1)
        self.close_all_tabs()

    def a_page_dropped_on_the_row_opens_in_a_tab(self):
        file = self.stage.folder / "Files" / "dropped page.html"
        file.parent.mkdir(exist_ok=True)
        file.write_text(page("A dropped page"), encoding="utf-8")
        tabs = self.tabs()
        check_equal("the drag", self.drag(self.eyes.centre("Address", "text"), file), "taken")
        self.wait_for_caption("A dropped page")
        check_equal("tabs", self.tabs(), tabs + 1)
        self.close_all_tabs()

    def an_address_follows_its_document(self):
        self.open("/pushed", "Pushed")
        self.wait_for_address(self.site.address("/pushed"))
        self.click_page()
        self.wait_for_address(self.site.address("/pushed/deeper"))
        wait_for("the state in the history", lambda: self.site.address("/pushed/deeper") in self.history("Web"))
        self.press("Back")
        self.wait_for_address(self.site.address("/pushed"))
        check_equal("loads", self.site.count("/pushed"), 1)
        self.close_all_tabs()

    def a_title_is_shown_as_it_is_written(self):
        self.open("/changing", "Before")
        self.click_page()
        self.wait_for_caption("After <b>it</b> & more")
        wait_for("the title on the tab", lambda: self.tab("After <b>it</b> & more"))
        self.close_all_tabs()

    def a_failed_page_leaves_what_was_there(self):
        self.open("/failing", "Failing")
        self.click_page()
        self.press("Refresh the page")
        wait_for("the page again", lambda: self.site.count("/failing") >= 2)
        check_equal("the caption", self.title(), "Brindlepost - Failing")
        self.wait_for_address(self.site.address("/failing"))
        self.close_all_tabs()

    # -- tabs --

    def a_covered_page_is_hidden(self):
        self.open("/seen", "Seen")
        wait_for("the page to be seen", lambda: self.site.told("visible") > 3)
        self.open("/plain", "Plain")
        wait_for("the page to be covered", lambda: self.site.told("hidden") > 0)
        self.press_tab("Seen")
        self.wait_for_caption("Seen")
        visible = self.site.told("visible")
        wait_for("the page to be seen again", lambda: self.site.told("visible") > visible)
        hidden = self.site.told("hidden")
        self.to_the_music()
        wait_for("the page under the music tab to be covered", lambda: self.site.told("hidden") > hidden)
        self.close_all_tabs()

    def the_tab_menu_brings_a_page_forward(self):
        for letter in "ab":
            self.open("/tab-" + letter, "Tab " + letter)
        self.menu("Tab", "Tab a")
        self.wait_for_caption("Tab a")
        self.wait_for_address(self.site.address("/tab-a"))
        self.menu("Tab", "Music Tab")
        self.wait_for_title(MUSIC_CAPTION)
        wait_for("an empty row", lambda: self.address_text() == "")
        self.menu("Tab", "Tab b")
        self.wait_for_caption("Tab b")
        self.close_all_tabs()

    def a_tab_past_the_edge_is_in_front_all_the_same(self):
        for letter in NAMED:
            self.open("/tab-" + letter, "Tab " + letter)
        x, _, width, _ = self.stage.window_rect(self.window_id)
        left, top, wide, _ = self.tab("Tab h")
        check(left + wide > x + width, f"the tab lies within the window, at {left}, {top}")
        check_equal("tabs", self.tabs(), len(NAMED))
        self.menu("File", "Close", "Current Tab")
        # The leftmost takes over.
        self.wait_for_caption("Tab a")
        check(not self.tab("Tab h") and self.tab("Tab g"), "another tab was closed")
        self.menu("Tab", "Tab g")
        self.wait_for_caption("Tab g")
        self.close_all_tabs()

    def without_any_tab_the_backdrop_is_seen(self):
        self.to_the_music()
        self.open("/tab-a", "Tab a")
        self.press("Close the music tab")
        wait_for("the small button", lambda: self.eyes.shows("Open the music tab"))
        check_equal("the caption", self.title(), "Brindlepost - Tab a")
        x = self.tab("Tab a")[0] - self.stage.window_rect(self.window_id)[0]
        check(x < 110, f"the tab did not move to the left: it begins at {x}")
        self.menu("File", "Close", "All Tabs")
        wait_for("the backdrop", lambda: self.eyes.shows("Backdrop page"))
        check(not self.eyes.shows("Tracks", "list"), "the tracks are shown")
        self.open("/tab-b", "Tab b")
        self.press("Open the music tab")
        self.wait_for_title(MUSIC_CAPTION)
        wait_for("the tracks", lambda: self.eyes.shows("Tracks", "list") and len(self.eyes.rows("Tracks")) >= 1)
        check(not self.eyes.shows("Open the music tab"), "the small button is still there")
        self.close_all_tabs()

    def thirty_tabs(self):
        for number in range(MANY_TABS):
            self.go(f"/many-{number}")
            self.wait_for_caption(f"Many {number}", 40)
        # The last ones are told to a screen reader late where the machine has other work.
        wait_for("all tabs on the strip", lambda: self.tabs() == MANY_TABS, 40)
        check_equal("pages asked for", [self.site.count(f"/many-{number}") for number in range(MANY_TABS)], [1] * MANY_TABS)
        for number in (0, MANY_TABS // 2, 1):
            self.menu("Tab", f"Many {number}")
            self.wait_for_caption(f"Many {number}")
        self.to_the_music()
        self.close_all_tabs()
        self.must_run()
        check_equal("the caption", self.title(), MUSIC_CAPTION)

    # -- starts --

    def a_first_start_with_an_address_opens_it(self):
        self.end()
        self.program = self.stage.launch(self.application, self.site.address("/tab-a"))
        self.window_id = self.stage.window("Brindlepost - Tab a", 40)
        self.wait_for_address(self.site.address("/tab-a"))
        check_equal("loads", self.site.count("/tab-a") > 0, True)

    def a_second_start_with_an_address_opens_it_in_the_first(self):
        later = self.stage.launch(self.application, self.site.address("/tab-b"))
        check_equal("the exit code of the second start", later.wait(30), 0)
        self.wait_for_caption("Tab b")
        check(self.tab("Tab a"), "the first tab is gone")
        self.close_all_tabs()
        self.end()

    def home_pages_that_open_no_tab_hurt_nothing(self):
        """A home page that is a song is played; there is no tab then, whatever is asked of the one in front."""
        song = "C:" + str(self.other).replace("/", "\\")
        self.sql("dbFavs", f"insert into tblFavs values(2, 'Home Pages', 'A song', '{song}')")
        self.sql("dbHistory", "update tblHistory set HistoryText = 'False' where HistoryID = 7")
        # A song is not logged twice in a row.
        self.sql("dbHistory", "delete from tblHistory where HistoryType = 'Music'")
        self.program = self.stage.launch(self.application)
        wait_for("the splash to go", lambda: self.stage.stacking() == ["Brindlepost"] and self.eyes.shows("Refresh the page"),
                 30)
        wait_for("the song in the history", self.played)
        wait_for("the backdrop", lambda: self.eyes.shows("Backdrop page"))
        for name in ("Refresh the page", "Back", "Forward"):
            self.press(name)
        self.press("Add favourite")
        window = self.stage.window("Add Favourite")
        self.stage.key("Escape")
        wait_for("the box to go", lambda: not self.stage.has_window_id(window))
        self.menu("Options", "Refresh All")
        self.must_run()
        self.go("/tab-c")
        self.window_id = self.stage.window("Brindlepost - Tab c$", 30)
        self.must_run()
        self.end()

    def sql(self, store, text):
        subprocess.run(["sqlite3", str(self.application / (store + ".mdb")), text], check=True)

    def nothing_was_complained_about(self):
        check("rror" not in self.stage.program_output().replace("NavigateError", ""), self.stage.program_output()[-2000:])

    def steps(self):
        return [self.a_window_by_script_is_a_tab, self.a_window_by_a_click_is_a_tab, self.a_link_for_a_new_window_is_a_tab,
                self.back_and_forward_walk_the_history, self.refresh_asks_the_server_again,
                self.refresh_all_leaves_closed_tabs_alone,
                self.a_file_is_played_in_the_mode_file, self.a_picked_address_waits_for_enter,
                self.a_page_dropped_on_the_row_opens_in_a_tab,
                self.an_address_follows_its_document, self.a_title_is_shown_as_it_is_written, self.a_failed_page_leaves_what_was_there,
                self.a_covered_page_is_hidden, self.the_tab_menu_brings_a_page_forward,
                self.a_tab_past_the_edge_is_in_front_all_the_same, self.without_any_tab_the_backdrop_is_seen,
                self.thirty_tabs, self.a_first_start_with_an_address_opens_it,
                self.a_second_start_with_an_address_opens_it_in_the_first, self.home_pages_that_open_no_tab_hurt_nothing,
                self.nothing_was_complained_about]


# Only when asked for by name: it takes too long beside other work.
BY_HAND = ("thirty_tabs",)


def main():
    build = stages.become_unprivileged(sys.argv[1])
    wanted = sys.argv[2:]
    failures = 0
    with stages.Stage(build) as stage:
        person = Pages(stage, PAGES)
        person.other = make_tone(stage.folder / "Music" / "Film - Second.wav", TONE, 60)
        try:
            steps = [step for step in person.steps()
                     if step.__name__ in wanted or (not wanted and step.__name__ not in BY_HAND)]
            for number, step in enumerate(steps, 1):
                if stage.run_steps([step], picture=f"failure-{number:02d}.png"):
                    continue
                failures += 1
                if person.program.poll() is not None:
                    break
                # The next step begins with what it expects.
                stage.run_steps([person.close_all_tabs])
        finally:
            person.close()
    if not failures:
        stage.remove()
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
