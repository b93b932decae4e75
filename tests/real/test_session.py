"""Log out, the exit that cannot save, and the about box on the real program: `test_session.py BUILD_FOLDER [PART...]`."""

import subprocess
import sys

import stage
from stage import wait_for
from story import check, check_equal
from test_preferences import person_on

DISCLAIMER = ("Warning: This product is not protected by international copyright laws, this product can be "
              "re-distributed at users consent.")
NOT_SAVED = ("Your settings and your last changes could not be saved.\n\n"
             "The file \"dbHistory.mdb\" can not be written: another program is holding it.\n\n"
             "Brindlepost stays open, so that you can put this right and exit again. If it still can not save then, you "
             "may end it without saving.")
STILL_NOT_SAVED = ("Your settings and your last changes can still not be saved.\n\n"
                   "The file \"dbHistory.mdb\" can not be written: another program is holding it.\n\n"
                   "End Brindlepost without saving them?")


def be_there(person):
    """A program that runs, with the user logged in."""
    if person.program is not None and person.program.poll() is None:
        return
    if person.rows_of("dbLogin", "select count(*) from tblLogin") == ["0"]:
        person.add_user()
        person.fill()
    person.begin()


def open_about(person):
    be_there(person)
    person.choose_menu("Help", "About")
    person.stage.window("About Brindlepost$")
    wait_for("the about box in front", lambda: person.stage.front_window() == "About Brindlepost")


def about_is_gone(person):
    wait_for("the about box to go", lambda: not person.stage.has_window("About Brindlepost"))


def the_about_box_tells_what_runs(person):
    open_about(person)
    for text in ("Brindlepost", "Version 1.1.43", DISCLAIMER):
        person.eyes.find(text, "label")
    engine = [node.get_name() for node in person.eyes.nodes() if node.get_name().startswith("Qt WebEngine ")]
    check(engine and "security patches up to" in engine[0], f"the page engine is not named: {engine}")
    person.picture("about")
    person.stage.key("Escape")
    about_is_gone(person)
    open_about(person)
    person.stage.key("Return")
    about_is_gone(person)


def without_a_tool_system_information_is_unavailable(person):
    open_about(person)
    person.press("System Info...", "push button")
    box = person.stage.window("^Brindlepost$")
    wait_for("what the box says", lambda: person.eyes.shows("System Information Is Unavailable At This Time", "label"))
    person.stage.key("Return")
    wait_for("the box to go", lambda: not person.stage.has_window_id(box))
    person.press("OK", "push button")
    about_is_gone(person)


def a_log_out_leaves_the_login_alone_on_the_screen(person):
    open_about(person)
    person.choose_menu("File", "Log Out")
    person.stage.window("Brindlepost - Login$")
    about_is_gone(person)
    wait_for("the main window to hide", lambda: not person.stage.has_window("Brindlepost - Music Player"))
    person.picture("logged-out")
    person.enter()
    person.main_window("Brindlepost - Music Player", 20)


def an_exit_that_cannot_save_says_so_and_stays(person):
    be_there(person)
    wait_for("the main window in front", lambda: person.stage.front_window() == "Brindlepost - Music Player")
    person.choose_menu("Music Player", "Play Mode", "Shuffle")
    holder = subprocess.Popen(["sqlite3", str(person.store("dbHistory"))], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              text=True)
    try:
        holder.stdin.write("begin immediate;\nselect 'held';\n")
        holder.stdin.flush()
        check_equal("the other program", holder.stdout.readline().strip(), "held")
        person.choose_menu("File", "Exit")
        person.stage.window("Exit Brindlepost$")
        person.picture("not-saved")
        person.answer_box("Exit Brindlepost$", NOT_SAVED, "OK")
        check(person.stage.has_window("Brindlepost - Music Player"), "the main window went")
        person.choose_menu("File", "Exit")
        person.answer_box("Exit Brindlepost$", STILL_NOT_SAVED, "No")
        check(person.program.poll() is None, "the program ended")
        check_equal("shuffle in the file", person.setting(2), "False")
    finally:
        holder.stdin.close()
        holder.wait()
    person.choose_menu("File", "Exit")
    check_equal("exit code", person.wait_for_end(), "0")
    check_equal("shuffle in the file", person.setting(2), "True")


PARTS = [the_about_box_tells_what_runs, without_a_tool_system_information_is_unavailable,
         a_log_out_leaves_the_login_alone_on_the_screen, an_exit_that_cannot_save_says_so_and_stays]

if __name__ == "__main__":
    sys.exit(stage.run_parts(sys.argv[1], person_on, PARTS, sys.argv[2:], "failure-session.png"))
