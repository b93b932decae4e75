"""Favourites on the real program: `test_favourites.py BUILD_FOLDER [STEP...]`.

The panel and its dialog with the mouse and the keyboard, a page dropped on the panel, and favourites from and for other browsers
through the settings page.
"""

import sys

import stage as stages
from browsing import Browsing, check, check_equal, page
from stage import wait_for

PAGES = {"/plain": page("Plain"), "/other": page("Other")}
PANEL = "Favourites by group"
BOOKMARKS = """<!DOCTYPE NETSCAPE-Bookmark-file-1>
<DL><p><DT><H3>Birds</H3><DL><p><DT><A HREF="http://owl.example/?a=1&amp;b=2">Owls &amp; more</A>
<DT><A HREF="javascript:alert(1)">Not this</A></DL><p></DL><p>
"""


class Favourites(Browsing):

    # -- what a person does --

    def favourites(self):
        return self.rows_of("dbFavs", "select trim(GroupName) || '|' || trim(FriendName) || '|' || trim(URL) from tblFavs")

    def row_of(self, name, text):
        row = [shown.strip() for shown in self.eyes.rows(name)].index(text)
        x, y, width, height = self.eyes.row_rect(name, row)
        return x + min(60, width // 2), y + height // 2

    def choose(self, name, text, times=1):
        wait_for(f"'{text}' in {name}", lambda: text in [row.strip() for row in self.eyes.rows(name)])
        self.stage.click(*self.row_of(name, text), times=times)

    def say_yes(self, title):
        box = self.stage.window(title)
        self.press("Yes")
        wait_for(f"the box '{title}' to go", lambda: not self.stage.has_window_id(box))

    def dialog_goes(self):
        wait_for("the dialog to go", lambda: not self.stage.has_window("Add Favourite") and
                 not self.stage.has_window("Delete Group"))

    # -- steps --

    def the_panel_opens(self):
        self.open("/plain", "Plain")
        self.menu("View", "Favourites")
        wait_for("the panel", lambda: self.eyes.shows(PANEL, "list"))
        check_equal("its lines", [row.strip() for row in self.eyes.rows(PANEL)], ["[All Favourites]", "Home Pages"])

    def the_page_in_front_is_added(self):
        self.menu("Edit", "Favourites")
        self.stage.window("Add Favourite")
        check_equal("the name", self.eyes.text(self.eyes.find("Favourite name", "text")), "Plain")
        check_equal("the address", self.eyes.text(self.eyes.find("Favourite URL", "text")), self.site.address("/plain"))
        self.choose("Group", "Home Pages")
        self.stage.click(*self.eyes.centre("Favourite name", "text"))
        self.stage.key("Return")
        self.dialog_goes()
        wait_for("the row", lambda: f"Home Pages|- Plain|{self.site.address('/plain')}" in self.favourites())

    def a_favourite_opens_from_the_panel(self):
        asked = self.site.count("/plain")
        self.choose(PANEL, "Home Pages")
        self.choose(PANEL, "- Plain", times=2)
        wait_for("the page to be asked for", lambda: self.site.count("/plain") == asked + 1)
        self.wait_for_caption("Plain")

    def a_page_dropped_on_the_panel_is_offered(self):
        dropped = self.stage.folder / "dropped.html"
        dropped.write_text(page("Dropped"), encoding="utf-8")
        check_equal("the drag", self.drag(self.row_of(PANEL, "[All Favourites]"), dropped), "taken")
        self.stage.window("Add Favourite")
        wait_for("its path", lambda: self.eyes.text(self.eyes.find("Favourite URL", "text")).endswith("dropped.html"))
        self.stage.click(*self.eyes.centre("Favourite URL", "text"))
        self.stage.key("Escape")
        self.dialog_goes()

    def a_favourite_is_deleted(self):
        if "- Plain" not in [row.strip() for row in self.eyes.rows(PANEL)]:
            self.choose(PANEL, "Home Pages")
        self.choose(PANEL, "- Plain")
        self.stage.click(*self.eyes.centre("Delete favourite or group"))
        self.say_yes("Delete Favourite")
        wait_for("the row to go", lambda: not any("Plain" in row for row in self.favourites()))

    def a_group_is_made(self):
        self.menu("Edit", "Favourites")
        self.stage.window("Add Favourite")
        self.press("New Group")
        self.answer("New Group", "Songbirds")
        wait_for("the group", lambda: "Songbirds||" in self.favourites())
        self.stage.click(*self.eyes.centre("Favourite name", "text"))
        self.stage.key("Escape")
        self.dialog_goes()

    def a_group_is_deleted_by_the_keyboard_alone(self):
        self.menu("File", "Delete", "Favourites Group")
        self.stage.window("Delete Group")
        self.choose("Group", "Songbirds")
        for _ in range(6):
            self.stage.key("Tab")
            names = {node.get_name() for node in self.eyes.nodes() if node.get_state_set().contains(self.eyes.focused)}
            check(not names & {"Favourite URL", "Favourite name", "Add", "New Group"},
                  f"the keyboard is on what nobody sees: {names}")
        self.choose("Group", "Songbirds")
        self.stage.key("Return")
        self.say_yes("Delete Group")
        wait_for("the group to go", lambda: "Songbirds||" not in self.favourites())
        self.stage.key("Escape")
        self.dialog_goes()

    def favourites_of_another_browser_come_in(self):
        bookmarks = self.stage.folder / "bookmarks.html"
        bookmarks.write_text(BOOKMARKS, encoding="utf-8")
        self.give("brindlepost:settings")
        self.stage.key("Return")
        self.wait_for_caption("Settings")
        # The favourites are at the page's end.
        x, y, _, _ = self.page_rect()
        self.stage.click(x + 20, y + 20)
        self.stage.key("End")
        self.file_errand("Import...", "Import favourites", bookmarks)
        wait_for("the favourite", lambda: "Birds|- Owls & more|http://owl.example/?a=1&b=2" in self.favourites())
        check(not any("Not this" in row for row in self.favourites()), "a script came in")
        wait_for("the group in the panel", lambda: "Birds" in [row.strip() for row in self.eyes.rows(PANEL)])
        self.stage.screenshot(self.stage.folder / "settings.png")

    def favourites_go_out(self):
        exported = self.stage.folder / "exported.html"
        self.file_errand("Export...", "Export favourites", exported)
        wait_for("the file", lambda: exported.exists() and "Owls &amp; more" in exported.read_text(encoding="utf-8"))

    def file_errand(self, button, title, path):
        self.press(button)
        dialog = self.stage.window(title)
        self.stage.key("ctrl+a")
        self.stage.type(str(path))
        self.stage.key("Return")
        wait_for("the file dialog to go", lambda: not self.stage.has_window_id(dialog))

    def steps(self):
        return [self.the_panel_opens, self.the_page_in_front_is_added, self.a_favourite_opens_from_the_panel,
                self.a_page_dropped_on_the_panel_is_offered, self.a_favourite_is_deleted, self.a_group_is_made,
                self.a_group_is_deleted_by_the_keyboard_alone, self.favourites_of_another_browser_come_in,
                self.favourites_go_out]


def main():
    build = stages.become_unprivileged(sys.argv[1])
    wanted = sys.argv[2:]
    with stages.Stage(build) as stage:
        person = Favourites(stage, PAGES)
        try:
            steps = [step for step in person.steps() if not wanted or step.__name__ in wanted]
            done = stage.run_steps(steps)
        finally:
            person.close()
    if done:
        stage.remove()
    return 0 if done else 1


if __name__ == "__main__":
    sys.exit(main())
