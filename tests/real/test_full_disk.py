"""A disk that is full below the user's pages costs the cookies, not the page: `test_full_disk.py BUILD_FOLDER`, as root."""

import os
import pathlib
import sys

import mounts
import small_disk
import stage as stages
from browsing import Browsing, check, page
from stage import wait_for

PLACE = "BRINDLEPOST_SMALL_DISK"
PAGES = {
    "/leave": page("Leave", script="document.cookie = 'who=ada; max-age=3600'; fetch('/told/left')"),
    "/store": page("Store", script="""
        const kept = 'x'.repeat(100000);
        try { for (let i = 0; i < 20; i++) localStorage.setItem('kept' + i, kept) } catch (e) {}
        for (let i = 0; i < 6; i++) document.cookie = 'c' + i + '=' + kept.slice(0, 3000) + '; max-age=3600';
        const wish = indexedDB.open('kept'); wish.onupgradeneeded = () => wish.result.createObjectStore('all');
        wish.onsuccess = () => wish.result.transaction('all', 'readwrite').objectStore('all').put(kept.repeat(30), 1);
        setTimeout(() => fetch('/told/stored'), 1000)"""),
    "/look": page("Look", script="fetch('/told/found-' + (document.cookie.includes('who') ? 'who' : 'nothing'))"),
    "/plain": page("Plain"),
}


class Cramped(Browsing):

    def a_page_leaves_a_cookie(self):
        self.go("/leave")
        wait_for("the cookie to be left", lambda: self.site.told("left") == 1)
        self.wait_for_caption("Leave")
        check(any(self.place.rglob("Cookies")), "the user's pages are not on the small disk")

    def on_a_full_disk_pages_go_on(self):
        small_disk.fill(self.place)
        self.go("/look")
        wait_for("the cookie to be found", lambda: self.site.told("found-who") == 1)
        self.open("/store", "Store")
        wait_for("the page to have stored what it could", lambda: self.site.told("stored") >= 1, 30)
        self.open("/plain", "Plain")
        self.must_run()

    def the_program_ends_and_starts_on_a_full_disk(self):
        self.end()
        small_disk.fill(self.place)
        self.program = self.stage.launch(self.application)
        wait_for("the main window alone", lambda: len(self.stage.stacking()) == 1 and self.eyes.shows("Address", "text"), 60)
        self.window_id = self.largest_window()
        self.open("/plain", "Plain")
        self.go("/look")
        wait_for("the page to run", lambda: self.site.told("found-who") + self.site.told("found-nothing") == 2)
        self.wait_for_caption("Look")
        self.end()

    def steps(self):
        return [self.a_page_leaves_a_cookie, self.on_a_full_disk_pages_go_on, self.the_program_ends_and_starts_on_a_full_disk]


def main():
    if not mounts.have(PLACE, small_disk.mount):
        return mounts.SKIPPED
    build = stages.become_unprivileged(sys.argv[1])
    with stages.Stage(build) as stage:
        stage.environment["XDG_DATA_HOME"] = os.environ[PLACE]
        Cramped.place = pathlib.Path(os.environ[PLACE])
        person = Cramped(stage, PAGES)
        try:
            good = stage.run_steps(person.steps(), picture="failure.png")
        finally:
            person.close()
    if good:
        stage.remove()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
