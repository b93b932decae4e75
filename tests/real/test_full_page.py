"""The page alone on the whole screen, on the real program: `test_full_page.py BUILD_FOLDER [PICTURE_FOLDER]`.

F11 leaves nothing but the page; tabs and rows come for what has the keyboard besides, and everything is back after F11 or
Escape. The log out and another tab find their way from there.
"""

import pathlib
import sys

import stage as stages
from browsing import Browsing, page
from stage import wait_for

LONG = 60       # seconds that a busy machine may take
SCREEN = (0, 0, 1280, 860)
COUNTING = "let n = 0; onkeydown = () => fetch('/told/key?' + ++n)"


class FullPage(Browsing):

    def __init__(self, stage, pictures):
        self.pictures = pictures
        super().__init__(stage, {"/one": page("One", script=COUNTING), "/two": page("Two")})
        self.usual = None

    def picture(self, name):
        if self.pictures:
            self.stage.screenshot(self.pictures / (name + ".png"))

    def wait_for_place(self, rect):
        wait_for(f"the page at {rect}", lambda: self.eyes.shows("Web page") and self.page_rect() == rect, LONG)

    def wait_for_rows(self):
        """Beside the page, on the full screen, there are the tabs and rows again."""
        wait_for("tabs and rows", lambda: self.page_rect() != SCREEN and self.eyes.shows("Close this tab"), LONG)

    # -- the steps --

    def the_page_fills_the_screen_and_has_the_keyboard(self):
        self.open("/two", "Two")
        self.open("/one", "One")
        self.usual = self.page_rect()
        self.picture("before")
        self.stage.key("F11")
        self.wait_for_place(SCREEN)
        self.stage.key("a")
        wait_for("the key in the page", lambda: self.site.told("key"), LONG)
        self.picture("alone")

    def the_address_row_comes_for_its_key(self):
        self.stage.key("ctrl+l")
        self.wait_for_rows()
        self.picture("with-rows")
        self.click_page()
        self.wait_for_place(SCREEN)

    def another_tab_is_seen_among_the_tabs(self):
        self.stage.key("ctrl+1")
        self.stage.key("ctrl+2")
        self.wait_for_caption("Two", LONG)
        self.wait_for_rows()
        self.click_page()
        self.wait_for_place(SCREEN)

    def escape_brings_everything_back(self):
        self.stage.key("Escape")
        self.wait_for_place(self.usual)

    def a_tab_that_closes_leaves_the_rows(self):
        self.stage.key("F11")
        self.wait_for_place(SCREEN)
        self.stage.key("ctrl+w")
        self.wait_for_caption("One", LONG)
        self.wait_for_rows()

    def the_log_out_is_the_usual_one(self):
        self.click_page()
        self.wait_for_place(SCREEN)
        self.stage.key("ctrl+l")
        self.wait_for_rows()
        self.menu("File", "Log Out")
        self.stage.window("Log Out Brindlepost$", LONG)
        self.stage.key("Return")
        self.stage.window("Brindlepost - Login$", LONG)
        self.must_run()

    def steps(self):
        return [self.the_page_fills_the_screen_and_has_the_keyboard, self.the_address_row_comes_for_its_key,
                self.another_tab_is_seen_among_the_tabs, self.escape_brings_everything_back,
                self.a_tab_that_closes_leaves_the_rows, self.the_log_out_is_the_usual_one]


def main():
    build = stages.become_unprivileged(sys.argv[1])
    pictures = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
    with stages.Stage(build, sound=False) as stage:
        person = FullPage(stage, pictures)
        try:
            good = stage.run_steps(person.steps())
        finally:
            person.close()
    if good:
        stage.remove()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
