"""A crash of the real program, and the start after it: `test_crash.py BUILD_FOLDER`."""

import os
import re
import signal
import stat
import subprocess
import sys

import stage
from stage import PageServer, wait_for
from story import PAGES, PASSWORD, check, check_equal
from test_bad_start import Person


class Witness(Person):
    """The story's person with a home page, and the logs of the program."""

    def add_home_page(self):
        subprocess.run(["sqlite3", str(self.store("dbFavs")),
                        f"insert into tblFavs values(2,'Home Pages','First','http://127.0.0.1:{self.pages.port}/first')"], check=True)

    def folder(self):
        return self.stage.folder / "home" / ".local" / "state" / "brindlepost"

    def logs(self):
        return sorted(self.folder().glob("run-*.log"))

    def tools(self):
        """Where the program looks for those of the desktop, instead of the usual places."""
        folder = self.stage.folder / "tools"
        folder.mkdir(exist_ok=True)
        return folder

    def log_in(self):
        self.enter()
        self.stage.window("Brindlepost - (Music|First)", 40)

    def crash(self, number=signal.SIGSEGV):
        self.program.send_signal(number)
        check_equal("the exit", self.program.wait(10), -number)


def mode(path):
    return stat.S_IMODE(os.stat(path).st_mode)


def a_crash_leaves_a_report(person):
    person.launch()
    person.log_in()
    wait_for("the home page", lambda: "/first" in person.pages.requests, 40)
    person.crash()
    log, = person.logs()
    check_equal("rights of folder and file", (mode(person.folder()), mode(log)), (0o700, 0o600))
    text = log.read_text()
    check("CRASH SIGSEGV in thread" in text, f"no report: {text}")
    check(re.search(r"\n  libQt6Core\.so\.6\+0x", text), f"no places: {text}")
    for secret in ("127.0.0.1", "localhost", "http", PASSWORD, "/home", str(person.stage.folder)):
        check(secret not in text, f"'{secret}' stands in the log: {text}")


def the_next_start_says_so_in_a_line(person):
    person.launch(environment={"PATH": str(person.tools())})
    person.stage.window("Brindlepost - Login$")
    person.eyes.find("Brindlepost crashed last time.", "label")
    check(person.eyes.shows("Show Report"), "no way to the report")
    check_equal("boxes", person.boxes(), [])
    person.stage.screenshot(person.stage.folder / "login-after-a-crash.png")


def without_a_program_for_the_report_its_place_is_told(person):
    report = person.logs()[0]
    person.press("Show Report", "push button")
    text = person.wait_for_box("No program was found")
    check(str(report) in text, f"the box does not say where the report is: {text!r}")
    person.answer_ok()
    wait_for("the box to go", lambda: not person.boxes())


def the_report_is_opened_by_the_desktop(person):
    tool = person.tools() / "xdg-open"
    tool.write_text('#!/bin/sh\necho "$1" > "$0.new"\nexec /bin/mv "$0.new" "$0.opened"\n')
    tool.chmod(0o755)
    person.press("Show Report", "push button")
    opened = tool.with_suffix(".opened")
    wait_for("the desktop to open the report", opened.exists)
    check_equal("what is opened", opened.read_text().strip(), str(person.logs()[0]))
    check_equal("boxes", person.boxes(), [])


def home_pages_stay_closed(person):
    before = person.pages.requests.count("/first")
    person.press("Start without home pages", "check box")
    person.log_in()
    check(not person.stage.has_window("Brindlepost - First"), "the home page came all the same")
    check_equal("times that the home page was asked for", person.pages.requests.count("/first"), before)
    person.end()
    check("ended with code 0" in person.logs()[-1].read_text(), "the end was not noted")


def the_start_after_is_as_ever(person):
    person.launch()
    person.stage.window("Brindlepost - Login$")
    person.eyes.find("Login", "push button")
    check(not person.eyes.shows("Brindlepost crashed last time."), "the crash was told twice")


def a_kill_is_no_crash(person):
    person.crash(signal.SIGKILL)
    person.launch()
    person.stage.window("Brindlepost - Login$")
    person.eyes.find("Login", "push button")
    check(not person.eyes.shows("Brindlepost crashed last time."), "a kill was told as a crash")
    check("did not end in order" in person.logs()[-1].read_text(), "the kill was not noted")


def a_decoder_that_crashes_is_a_line(person):
    decoder = wait_for("a decoder", lambda: person.stage.run("pgrep", "-P", str(person.program.pid), "-f", "brindlepost-media"))
    os.kill(int(decoder.split()[0]), signal.SIGSEGV)
    person.log_in()
    person.end()
    text = person.logs()[-1].read_text()
    check(re.search(r"brindlepost-media\(\+0x", text), f"no places of the decoder: {text}")


STEPS = [a_crash_leaves_a_report, the_next_start_says_so_in_a_line, without_a_program_for_the_report_its_place_is_told,
         the_report_is_opened_by_the_desktop, home_pages_stay_closed, the_start_after_is_as_ever, a_kill_is_no_crash,
         a_decoder_that_crashes_is_a_line]


def main():
    build = stage.become_unprivileged(sys.argv[1])
    with stage.Stage(build, sound=False) as scene:
        person = Witness(scene)
        person.add_user()
        person.add_home_page()
        try:
            good = scene.run_steps(STEPS, person, picture="failure-crash.png")
        finally:
            person.end()
            person.close()
    if good and not os.environ.get("KEEP"):
        scene.remove()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
