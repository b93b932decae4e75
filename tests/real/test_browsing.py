"""Browsing by keyboard on the real program: `test_browsing.py BUILD_FOLDER [PICTURE_FOLDER]`.

Keys while a page has the keyboard, suggestions under the address row, the list of tabs, a tab's cross without a mouse,
and the refresh that comes by itself.
"""

import pathlib
import subprocess
import sys
import time

import stage
from stage import Eyes, PageServer, StageError, role_of, wait_for

PAGE = """<!doctype html><html><head><title>{title}</title><style>
body {{ margin: 0; background: {colour}; color: white; font: 20px sans-serif; }} main {{ margin: 60px; }}
</style></head><body><main><h1>{title}</h1><p><input id="box" aria-label="Box on {title}" autofocus></p></main></body></html>"""
PAGES = {
    "/first": PAGE.format(title="First page", colour="#1f6f8b"),
    "/second": PAGE.format(title="Second page", colour="#8b3a1f"),
    "/third": PAGE.format(title="Third page", colour="#3a6b2f"),
}


def check(condition, text):
    if not condition:
        raise StageError(text)


class Browsing:
    def __init__(self, scene, pictures):
        self.stage = scene
        self.pictures = pictures
        self.eyes = Eyes()
        self.pages = PageServer(PAGES)
        self.application = scene.make_application()
        self._sql("dbLogin", "insert into tblLogin values('ada','secret',' ',' ',' ',' ',' ',' ','True','True')")
        self._sql("dbFavs", "insert into tblFavs(ID,GroupName,FriendName,URL) "
                            f"values(2,'Home Pages','  - Garden of owls','{self.address('/third')}')")
        # A library that is not empty asks nothing.
        self._sql("dbMedia", "insert into tblSong values(1,'Owl','Hoot','C:\\nowhere\\a.mp3',0)")
        self.program = None

    def address(self, path):
        return f"http://127.0.0.1:{self.pages.port}{path}"

    def _sql(self, store, statement):
        subprocess.run(["sqlite3", str(self.application / (store + ".mdb")), statement], check=True)

    def picture(self, name):
        if self.pictures:
            self.stage.screenshot(self.pictures / (name + ".png"))

    def in_front(self, title):
        self.stage.window(f"Brindlepost - {title}$", 30)

    def count(self, path):
        return sum(1 for asked in self.pages.requests if asked == path)

    def typed(self):
        return self.eyes.text(self.eyes.find("Address", "text"))

    def click_into_page(self, title):
        self.stage.click(*self.eyes.centre("Box on " + title, None, 30))
        wait_for("the page to have the keyboard", lambda: self._focused("Box on " + title))

    def _focused(self, name):
        return any(node.get_state_set().contains(self.eyes.focused) for node in self.eyes.find_all(name))

    def enter(self, text):
        self.stage.key("ctrl+l")
        self.stage.type(text)
        self.stage.key("Return")

    # -- the steps --

    def home_pages_come_with_the_login(self):
        self.program = self.stage.launch(self.application)
        wait_for("the home page", lambda: self.count("/third") == 1, 60)
        wait_for("the window to have the keyboard",
                 lambda: self.stage.front_window() == "Brindlepost - Music Player", 60)

    def an_address_is_entered_by_keys_alone(self):
        self.enter(self.address("/first"))
        self.in_front("First page")
        self.enter(self.address("/second"))
        self.in_front("Second page")

    def keys_reach_the_window_while_a_page_has_the_keyboard(self):
        self.click_into_page("Second page")
        self.stage.key("ctrl+1")
        self.in_front("Music Player")
        self.stage.key("ctrl+9")
        self.in_front("Second page")
        self.click_into_page("Second page")
        self.stage.key("ctrl+shift+Tab")
        wait_for("the list of tabs", lambda: self.eyes.shows("Tabs", "list"))
        self.picture("walking-tabs")
        self.in_front("First page")
        wait_for("the list to go", lambda: not self.eyes.shows("Tabs", "list"))

    def the_page_in_front_is_loaded_again(self):
        self.click_into_page("First page")
        before = self.count("/first")
        self.stage.key("F5")
        wait_for("the page to be asked for again", lambda: self.count("/first") == before + 1)

    def a_closed_tab_comes_back_without_being_loaded(self):
        before = self.count("/first")
        self.click_into_page("First page")
        self.stage.key("ctrl+w")
        self.in_front("Third page")
        self.stage.key("ctrl+shift+t")
        self.in_front("First page")
        check(self.count("/first") == before, "the page was asked for again")

    def suggestions_come_while_one_types(self):
        self.stage.key("ctrl+l")
        self.stage.type("second")
        rows = wait_for("the suggestions", lambda: self._suggestions())
        check(rows == [self.address("/second")], f"suggested: {rows}")
        self.stage.key("ctrl+a")
        self.stage.type("owls")
        wait_for("the favourite", lambda: self._suggestions() and "Garden of owls" in self._suggestions()[0])
        self.stage.key("ctrl+a")
        self.stage.type("127")
        wait_for("all of them", lambda: len(self._suggestions()) == 3)
        self.stage.key("Down")
        self.picture("suggestions")
        wait_for("a suggestion in the row", lambda: self.typed().startswith("http://127"))
        self.stage.key("Escape")
        wait_for("the list to go", lambda: not self._suggestions())
        check(self.typed() == "127", f"in the row: {self.typed()}")

    def _suggestions(self):
        return self.eyes.rows("Suggested addresses") if self.eyes.shows("Suggested addresses", "list") else []

    def a_picked_suggestion_opens(self):
        self.stage.key("ctrl+l")
        self.stage.type("second")
        wait_for("the suggestions", lambda: self._suggestions())
        before = self.count("/second")
        self.stage.key("Down", "Return")
        wait_for("the page to be asked for", lambda: self.count("/second") == before + 1)
        self.in_front("Second page")

    def a_clicked_suggestion_opens(self):
        self.stage.key("ctrl+l")
        self.stage.type("second")
        wait_for("the suggestions", lambda: self._suggestions())
        before = self.count("/second")
        left, top, _, height = self.eyes.row_rect("Suggested addresses", 0)
        self.stage.click(left + 40, top + height // 2)
        wait_for("the page to be asked for", lambda: self.count("/second") == before + 1)
        wait_for("the list to go", lambda: not self._suggestions())
        self.stage.key("ctrl+w")
        self.in_front("Third page")
        self.stage.key("ctrl+9")
        self.in_front("Second page")

    def a_tab_is_found_by_a_few_letters(self):
        self.stage.key("ctrl+shift+a")
        wait_for("the list of tabs", lambda: len(self.eyes.rows("Tabs")) == 5)
        self.stage.type("fir")
        wait_for("the one that is meant", lambda: self.eyes.rows("Tabs") == ["First page"])
        self.picture("finding-a-tab")
        self.stage.key("Return")
        self.in_front("First page")

    def a_cross_is_reached_and_pressed_without_a_mouse(self):
        before = len(self._crosses())
        self.stage.key("ctrl+l")
        for _ in range(60):
            self.stage.key("shift+Tab")
            if self._focused("Close this tab"):
                break
        check(self._focused("Close this tab"), "no cross of a tab has the keyboard")
        check(all(role_of(node) == "push button" for node in self._crosses()), "a cross is no button")
        self.stage.key("space")
        wait_for("one tab less", lambda: len(self._crosses()) == before - 1)

    def _crosses(self):
        return self.eyes.find_all("Close this tab")

    def the_page_refreshes_itself_while_that_is_on(self):
        self.enter(self.address("/second"))
        self.in_front("Second page")
        wait_for("the page", lambda: self.eyes.shows("Box on Second page"))
        self.stage.click(*self.eyes.centre("Refresh automatically", "push button"))
        x, y = self.eyes.centre("Seconds between refreshes", "text")
        self.stage.click(x, y)
        self.stage.key("ctrl+a")
        self.stage.type("2")
        before = self.count("/second")
        begin = time.monotonic()
        wait_for("three refreshes", lambda: self.count("/second") >= before + 3, 30)
        took = time.monotonic() - begin
        check(took > 3.5, f"three refreshes in {took:.1f} s")
        self.stage.click(*self.eyes.centre("Stop refreshing automatically", "push button"))
        wait_for("the field to go", lambda: not self.eyes.shows("Seconds between refreshes", "text"))
        before = self.count("/second")
        end = time.monotonic() + 5
        while time.monotonic() < end:
            check(self.count("/second") <= before + 1, "it is refreshed although that is off")
            time.sleep(0.1)

    def the_window_fills_the_screen_and_comes_back(self):
        window = self.stage.window("Brindlepost - Second page$")
        before = self.stage.window_rect(window)
        self.stage.key("F11")
        wait_for("the whole screen", lambda: self.stage.window_rect(window)[:2] == (0, 0)
                 and self.stage.window_rect(window)[2] > before[2])
        wait_for("the row to reach the edge", lambda: self._right_edge_of_row() > before[0] + before[2])
        self.picture("full-screen")
        self.stage.key("F11")
        wait_for("the window as it was", lambda: self.stage.window_rect(window)[2:] == before[2:])
        wait_for("the row as it was", lambda: self._right_edge_of_row() <= before[0] + before[2])

    def _right_edge_of_row(self):
        left, _, width, _ = self.eyes.rect(self.eyes.find("Help", "push button"))
        return left + width

    def steps(self):
        return [
            self.home_pages_come_with_the_login,
            self.an_address_is_entered_by_keys_alone,
            self.keys_reach_the_window_while_a_page_has_the_keyboard,
            self.the_page_in_front_is_loaded_again,
            self.a_closed_tab_comes_back_without_being_loaded,
            self.suggestions_come_while_one_types,
            self.a_picked_suggestion_opens,
            self.a_clicked_suggestion_opens,
            self.a_tab_is_found_by_a_few_letters,
            self.a_cross_is_reached_and_pressed_without_a_mouse,
            self.the_page_refreshes_itself_while_that_is_on,
            self.the_window_fills_the_screen_and_comes_back,
        ]


def main():
    pictures = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
    build = stage.become_unprivileged(sys.argv[1])
    with stage.Stage(build, sound=False) as scene:
        browsing = Browsing(scene, pictures)
        try:
            if not scene.run_steps(browsing.steps()):
                return 1
        finally:
            browsing.pages.close()
        scene.remove()
    return 0


if __name__ == "__main__":
    sys.exit(main())
