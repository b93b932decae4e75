"""What sites ask the user for, on the real program: `test_asking.py BUILD_FOLDER [PICTURE_FOLDER]`."""

import pathlib
import shutil
import sys

import stage as stages
from browsing import Browsing, page
from stage import wait_for

PAGES = {
    "/asks": page("Asks", script="Notification.requestPermission().then(v => fetch('/told/asked-' + v))"),
    "/knows": page("Knows", script="fetch('/told/knows-' + Notification.permission)"),
    "/flood": page("Flood", script="setInterval(() => { Notification.requestPermission();"
                                   "navigator.geolocation.getCurrentPosition(() => {}, () => {}) }, 20)"),
    "/copies": page("Copies", "<div class=all>copy</div>", """
        const copy = (when) => navigator.clipboard.writeText('copied ' + when).then(
            () => fetch('/told/' + when + '-written'), () => fetch('/told/' + when + '-refused'));
        const read = () => navigator.clipboard.readText().then(
            () => fetch('/told/read'), () => fetch('/told/read-refused'));
        copy('unasked');
        document.querySelector('div').onclick = () => copy('asked').then(read);"""),
}


class Asking(Browsing):
    pictures = None

    def bars(self):
        return sum(node.get_name() == "Block" for node in self.eyes.nodes())

    def picture(self, name):
        if self.pictures:
            self.stage.screenshot(self.stage.folder / name)

    def a_site_asks_in_a_bar(self):
        self.open("/asks", "Asks")
        self.eyes.find("Allow", "push button")
        self.picture("bar.png")
        wait_for("the buttons to be awake", lambda: self.eyes.is_enabled(self.eyes.find("Allow", "push button")))
        self.press("Allow")
        wait_for("the site to hear it", lambda: self.site.told("asked-granted") == 1)
        wait_for("the bar to go", lambda: self.bars() == 0)

    def it_is_remembered(self):
        self.open("/knows", "Knows")
        wait_for("the site to know it", lambda: self.site.told("knows-granted") == 1)

    def it_is_listed_and_taken_back(self):
        self.give("brindlepost:settings")
        self.stage.key("Return")
        self.wait_for_caption("Settings")
        x, y, _, _ = self.page_rect()
        self.stage.click(x + 20, y + 20)
        self.stage.key("End")
        self.eyes.find("Forget all of them", "push button")
        self.picture("settings.png")
        self.press("Forget all of them")
        wait_for("the list to be empty", lambda: not self.eyes.shows("Forget all of them"))
        self.open("/knows", "Knows")
        wait_for("the site to hear it", lambda: self.site.told("knows-default") == 1)

    def a_flood_is_one_bar(self):
        self.open("/flood", "Flood")
        self.eyes.find("Block", "push button")
        if self.bars() != 1:
            raise stages.StageError(f"{self.bars()} bars")
        self.must_run()

    def a_page_copies_on_a_click_only(self):
        self.open("/copies", "Copies")
        wait_for("the page to be refused", lambda: self.site.told("unasked-refused") == 1)
        self.click_page()
        wait_for("the page to copy", lambda: self.site.told("asked-written") == 1)
        wait_for("the page not to read", lambda: self.site.told("read-refused") == 1)
        self.give("")
        self.stage.key("ctrl+v")
        wait_for("the words in the address row", lambda: self.address_text() == "copied asked")

    def the_keys_are_on_a_page(self):
        self.give("brindlepost:keys")
        self.stage.key("Return")
        self.wait_for_caption("Keys")
        self.eyes.find("Loads the page again")
        self.picture("keys.png")

    def steps(self):
        return [self.a_site_asks_in_a_bar, self.it_is_remembered, self.it_is_listed_and_taken_back, self.a_flood_is_one_bar,
                self.a_page_copies_on_a_click_only, self.the_keys_are_on_a_page]


def main():
    build = stages.become_unprivileged(sys.argv[1])
    with stages.Stage(build) as stage:
        person = Asking(stage, PAGES)
        person.pictures = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
        try:
            done = stage.run_steps(person.steps())
        finally:
            person.close()
        for picture in stage.folder.glob("*.png") if person.pictures else []:
            shutil.copy(picture, person.pictures)
    if done:
        stage.remove()
    return 0 if done else 1


if __name__ == "__main__":
    sys.exit(main())
