"""The browser of every day, between the second tab and the way back to the music: by keys, as the page for users lists them.

Each step does what a person does, waits for what the person would see, checks it and returns what it measured as
(what, value), as in `story.py`.
"""

from errands import Errands
from stage import wait_for
from story import check, check_equal

AFTER = "A second tab"
WORDS = "a tab of its own"


class Everyday(Errands):

    def in_front(self, title):
        return self.main_window("Brindlepost - " + title, 20)

    def find_in_page(self):
        self.stage.key("ctrl+f")
        wait_for("the bar to find words", lambda: self.eyes.shows("Find in this page"))
        self.stage.type(WORDS)
        wait_for("the words to be counted", lambda: self.eyes.shows("1 of 1"), 20)
        self.picture_now()
        self.stage.key("Escape")
        wait_for("the bar to go", lambda: not self.eyes.shows("Find in this page"))
        return [("looked for", WORDS), ("found", "1 of 1")]

    def zoom(self):
        self.stage.key("ctrl+plus")
        self.picture_now()
        self.stage.key("ctrl+0")
        self.in_front("Second page")
        return []

    def suggestions(self):
        self.stage.key("ctrl+l", "ctrl+a")
        self.stage.type("first")
        wait_for("the suggestions", lambda: self.eyes.shows("Suggested addresses", "list"))
        rows = self.eyes.rows("Suggested addresses")
        check(any("/first" in row for row in rows), f"suggested: {rows}")
        self.picture_now()
        self.stage.key("Escape")
        wait_for("the suggestions to go", lambda: not self.eyes.shows("Suggested addresses", "list"))
        return [("typed", "first"), ("suggested", rows[0])]

    def find_a_tab(self):
        self.stage.key("ctrl+shift+a")
        wait_for("the list of tabs", lambda: len(self.eyes.rows("Tabs")) == 3)
        self.stage.type("fir")
        wait_for("the one that is meant", lambda: self.eyes.rows("Tabs") == ["First page"])
        self.picture_now()
        self.stage.key("Return")
        self.in_front("First page")
        return [("typed", "fir"), ("tab", "First page")]

    def close_and_reopen(self):
        before = self.pages.requests.count("/first")
        self.stage.key("ctrl+w")
        wait_for("the tab to go", lambda: not self.tab("First page"))
        self.stage.key("ctrl+shift+t")
        self.in_front("First page")
        check_equal("loads", self.pages.requests.count("/first"), before)
        return [("loaded again", "no")]

    def downloads(self):
        self.stage.key("ctrl+j")
        window = self.stage.window("^Downloads")
        self.picture_now()
        self.stage.key("alt+F4")
        wait_for("the list to go", lambda: not self.stage.has_window_id(window))
        return []

    def whole_screen(self):
        window = self.in_front("First page")
        before = self.stage.window_rect(window)
        self.stage.key("F11")
        wait_for("the whole screen", lambda: self.stage.window_rect(window)[2] > before[2])
        wait_for("the row to reach the edge", lambda: self.right_edge_of_row() > before[0] + before[2])
        self.picture_now()
        self.stage.key("F11")
        wait_for("the window as it was", lambda: self.stage.window_rect(window)[2:] == before[2:])
        return []

    def right_edge_of_row(self):
        left, _, width, _ = self.eyes.rect(self.eyes.find("Help", "push button"))
        return left + width

    def the_keys(self):
        self.stage.key("ctrl+l", "ctrl+a")
        self.stage.type("brindlepost:keys")
        self.stage.key("Return")
        self.in_front("Keys")
        self.picture_now()
        self.stage.key("ctrl+w")
        self.in_front("First page")
        return []

    def picture_now(self):
        if self.on_box:
            self.on_box("")

    def everyday(self):
        return [
            ("Words are found in the page", self.find_in_page),
            ("The page is larger, and as usual again", self.zoom),
            ("Suggestions while one types", self.suggestions),
            ("A tab is found by a few letters", self.find_a_tab),
            ("A closed tab comes back without being loaded", self.close_and_reopen),
            ("The list of downloads", self.downloads),
            ("The window on the whole screen, and back", self.whole_screen),
            ("The page of keys", self.the_keys),
        ]

    def steps(self):
        road = super().steps()
        place = [heading for heading, _ in road].index(AFTER) + 1
        return road[:place] + self.everyday() + road[place:]
