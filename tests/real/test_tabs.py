"""A day's worth of tabs on the real program: `test_tabs.py BUILD_FOLDER [PICTURE_FOLDER]`.

Thirty tabs, of which the strip shows a few: each is asked for once, bears its own title, is reached by keys, goes and comes
back without being loaded again, and ends with the log out.
"""

import pathlib
import sys

import stage as stages
from browsing import MUSIC_CAPTION, Browsing, check, check_equal, page
from stage import StageError, wait_for

COUNT = 30
CLOSED = 10
REOPENED = 3
TRIES = 3
LONG = 60       # seconds that a busy machine may take
NAMES = [f"Leaf {number:02}" for number in range(1, COUNT + 1)]
# The middle one of all, from which on tabs are closed.
MIDDLE = NAMES[COUNT // 2]


def path_of(name):
    return "/" + name[-2:]


class Tabs(Browsing):

    def __init__(self, stage, pictures):
        self.pictures = pictures
        self.closed = []
        super().__init__(stage, {path_of(name): page(name) for name in NAMES})

    # -- what a person sees --

    def picture(self, name):
        if self.pictures:
            self.stage.screenshot(self.pictures / (name + ".png"))

    def listed(self):
        """The list of tabs, when it is there."""
        for shown in self.eyes.find_all("Tabs", "list"):
            rows = [shown.get_child_at_index(index) for index in range(shown.get_child_count())]
            return [row.get_name() for row in rows if row is not None]
        return []

    def wait_for_listed(self, expected):
        try:
            wait_for("the list of tabs", lambda: self.listed() == expected, LONG)
        except StageError as error:
            raise StageError(f"{error}: {self.listed()}") from error

    def all_tabs(self):
        """All titles, in the order of the strip."""
        return ["Music Player", *(name for name in NAMES if name not in self.closed)]

    def check_all_tabs(self):
        self.stage.key("ctrl+shift+a")
        self.wait_for_listed(self.all_tabs())
        self.picture(f"all-{len(self.all_tabs())}")
        self.stage.key("Escape")
        wait_for("the list to go", lambda: not self.listed(), LONG)

    def check_loads(self):
        check_equal("how often each page was asked for", {name: self.site.count(path_of(name)) for name in NAMES},
                    dict.fromkeys(NAMES, 1))

    def engines(self):
        """How many processes hold pages."""
        found = 0
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                found += b"--type=renderer" in (process / "cmdline").read_bytes() and self.is_below(int(process.name))
            except (OSError, ValueError):
                continue
        return found

    def is_below(self, pid):
        """Whether a process was started by the program, over however many steps."""
        while pid > 1 and pid != self.program.pid:
            pid = int(pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[1])
        return pid == self.program.pid

    # -- the steps --

    def thirty_tabs_are_opened(self):
        row = self.eyes.find("Address", "text")
        for name in NAMES:
            self.write_address(row, self.site.address(path_of(name)))
            self.stage.key("Return")
            wait_for(f"{name} to be asked for", lambda path=path_of(name): self.site.count(path) == 1, LONG)
            self.wait_for_caption(name, LONG)
        self.picture("thirty")

    def write_address(self, row, address):
        """As a person does, who looks at what stands in the row: on a busy machine the tab before may still be on its way there."""
        for _ in range(TRIES):
            self.stage.key("ctrl+l", "ctrl+a")
            self.stage.type(address)
            try:
                wait_for("the address in its row", lambda: self.eyes.text(row) == address, 10)
                return
            except StageError:
                continue
        raise StageError(f"in the row is '{self.eyes.text(row)}'")

    def each_bears_its_own_title(self):
        self.check_all_tabs()
        check_equal("tabs on the strip", self.tabs(), COUNT)
        check(self.engines() > 1, "no page has a process")

    def any_is_found_by_a_few_letters(self):
        for name in (NAMES[0], NAMES[-2], MIDDLE):
            self.stage.key("ctrl+shift+a")
            self.wait_for_listed(self.all_tabs())
            self.stage.type(name.lower())
            self.wait_for_listed([name])
            self.stage.key("Return")
            self.wait_for_caption(name, LONG)

    def keys_walk_to_the_next_and_the_one_before(self):
        place = NAMES.index(MIDDLE)
        for number in (1, 2, 3):
            self.stage.key("ctrl+Tab")
            self.wait_for_caption(NAMES[place + number], LONG)
        self.stage.key("ctrl+shift+Tab")
        self.wait_for_caption(NAMES[place + 2], LONG)
        wait_for("the list to go", lambda: not self.listed(), LONG)

    def ten_are_closed(self):
        for number in range(1, CLOSED + 1):
            name = self.title().removeprefix("Brindlepost - ")
            check(name in NAMES and name not in self.closed, f"after {number - 1} were closed the title is '{name}'")
            self.closed.append(name)
            self.stage.key("ctrl+w")
            wait_for("another page in front", lambda gone=name: self.title() != f"Brindlepost - {gone}", LONG)
        self.check_all_tabs()
        check_equal("tabs on the strip", self.tabs(), COUNT - CLOSED)

    def three_come_back_without_being_loaded(self):
        for _ in range(REOPENED):
            name = self.closed.pop()
            self.stage.key("ctrl+shift+t")
            self.wait_for_caption(name, LONG)
        self.check_all_tabs()
        self.check_loads()

    def the_log_out_ends_them_all(self):
        self.menu("File", "Log Out")
        self.stage.window("Log Out Brindlepost$", LONG)
        self.stage.key("Return")
        self.stage.window("Brindlepost - Login$", LONG)
        wait_for("the processes of the pages to end", lambda: self.engines() == 0, LONG)
        self.must_run()

    def steps(self):
        return [self.thirty_tabs_are_opened, self.each_bears_its_own_title, self.any_is_found_by_a_few_letters,
                self.keys_walk_to_the_next_and_the_one_before, self.ten_are_closed,
                self.three_come_back_without_being_loaded, self.the_log_out_ends_them_all]


def main():
    build = stages.become_unprivileged(sys.argv[1])
    pictures = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
    with stages.Stage(build, sound=False) as stage:
        person = Tabs(stage, pictures)
        check_equal("the title", person.title(), MUSIC_CAPTION)
        try:
            good = stage.run_steps(person.steps())
        finally:
            person.close()
    if good:
        stage.remove()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
