"""The program without a pointer and without eyes: `test_hands.py BUILD_FOLDER [all | PART...]`.

In every window each control that takes the keyboard and is not under a page or a panel is reached with Tab, is left again with
Tab and with Shift+Tab, and has a role and a name for a screen reader. Sliders, lists, buttons and boxes are worked with the arrow keys, the space bar and
Enter; what they do then is told in their value. Without `all` these are the login and the music pane; with it all windows,
and each control looks another when it has the keyboard. Parts are those of `Walk.ALL` in `house.py`, some of them alone.
"""

import subprocess
import sys
import time

import stage as stages
from house import BUTTONS, MAIN, Walk
from stage import Stage, wait_for
from story import check, check_equal

ROLES = {*BUTTONS, "toggle button", "check box", "combo box", "list", "page tab", "slider", "split pane", "text", "entry",
         "password text", "dialog", "radio button", "tree table", "table", "document web", "link", "filler", "tree", "spin button"}
# Reached by arrows or through what holds them.
INNER = {"list item", "table cell", "menu item", "check menu item", "menu", "scroll bar", "document web", "link", "popup menu",
         "entry in a page", "frame", "window", "column header", "table row header", "table column header"}
# What of a window lies over another: panels, and pages in what holds them.
COVERS = {"panel", "filler"}
MOST_TABS = 90
# Looked at by hand: the toolkit's own file dialog, a title without a song, and a box over a page, which goes with the keyboard.
SEEN_BY_HAND = {"What is playing", "Find a tab", "Create New Folder", "List View", "Parent Directory", "Files"}
LEAST_CHANGE = 12  # pixels that the keyboard changes in a control


class Hands(Walk):
    def __init__(self, stage, name, sees):
        """`sees`: the focus is looked for on the screen too, which takes a second a control."""
        self.sees = sees
        self.silent = []
        self.unreached = []
        self.plain = []
        self.counted = {}
        self.compared = set()
        super().__init__(stage, name, self.go_through)

    # -- what is there --

    def window_node(self, title):
        for program in self.eyes.programs():
            for index in range(program.get_child_count()):
                window = program.get_child_at_index(index)
                if window is None or not (window.get_name() or "").startswith(title):
                    continue
                if window.get_state_set().contains(self.eyes.showing):
                    return window
        return None

    def controls(self, title):
        """(node, role, name) of what shows in a window, enabled, and takes the keyboard. Pages have keys of their own."""
        found = []
        top = self.window_node(title)
        stack = [top] if top is not None else []
        while stack:
            node = stack.pop()
            try:
                states, role = node.get_state_set(), node.get_role_name()
                if node is not top and not states.contains(self.eyes.showing):
                    continue
                if role == "document web":
                    continue
                if states.contains(self.eyes.focusable) and states.contains(self.eyes.enabled) and role not in INNER:
                    found.append((node, role, node.get_name()))
                if role != "list":
                    stack.extend(node.get_child_at_index(index) for index in range(min(node.get_child_count(), 300)))
            except (self.eyes._gone, AttributeError):
                continue
        return found

    def has_keyboard(self, node):
        try:
            return node.get_state_set().contains(self.eyes.focused)
        except self.eyes._gone:
            return False

    def focused(self, controls, last=None):
        """The place of the control that has the keyboard; looked for from the one after `last`."""
        begin = 0 if last is None else last
        places = [(begin + step) % len(controls) for step in range(len(controls))]
        return next((place for place in places if self.has_keyboard(controls[place][0])), None)

    # -- every window --

    def go_through(self, name, title):
        if title is None:
            return
        self.to_front(title)
        time.sleep(0.2)
        controls = self.controls(title)
        self.counted[name] = len(controls)
        for _, role, spoken in controls:
            if not spoken or role not in ROLES:
                self.silent.append(f"{name}: a {role} called '{spoken}'")
        self.walk(name, controls)

    def walk(self, name, controls):
        """Tab until every control that is seen had the keyboard; a control that it cannot leave is a trap."""
        reached, now = set(), None
        covered = {index for index, control in enumerate(controls) if self.is_covered(control[0])}
        for _ in range(MOST_TABS):
            now = self.focused(controls, now)
            reached.add(now)
            is_new = self.sees and now is not None and controls[now][1:] not in self.compared
            shot = self.picture() if is_new else None
            self.stage.key("Tab")
            if is_new:
                self.compare(name, controls[now], shot)
            if len(reached - covered - {None}) == len(controls) - len(covered):
                break
        reached.discard(None)
        self.unreached += [f"{name}: stops at '{controls[index][2]}', which is covered" for index in reached & covered]
        for index, (node, role, spoken) in enumerate(controls):
            if index in covered:
                continue
            inside = any(self.is_inside(controls[other][0], node) or self.is_inside(node, controls[other][0])
                         for other in reached)
            if index not in reached and not inside:
                self.unreached.append(f"{name}: the {role} '{spoken}'")
        if len(reached) > 2:
            self.go_back(name, controls)

    def is_inside(self, node, other):
        """A box and its line to type in take the keyboard as one."""
        try:
            parent = node.get_parent()
            return parent is not None and parent == other
        except self.eyes._gone:
            return False

    def is_covered(self, node):
        """A page or a panel lies over all of it: the widgets of one parent come from the back to the front."""
        try:
            rect, below = self.eyes.rect(node), node
            while (parent := below.get_parent()) is not None and parent.get_role_name() != "application":
                before = range(below.get_index_in_parent() + 1, parent.get_child_count())
                if any(self.covers(parent.get_child_at_index(index), rect) for index in before):
                    return True
                below = parent
        except self.eyes._gone:
            pass
        return False

    def covers(self, node, rect):
        if node.get_role_name() not in COVERS or not node.get_state_set().contains(self.eyes.showing):
            return False
        x, y, width, height = self.eyes.rect(node)
        left, top, wide, high = rect
        return x <= left and y <= top and left + wide <= x + width and top + high <= y + height

    def go_back(self, name, controls):
        here = self.focused(controls)
        self.stage.key("Tab")
        there = self.focused(controls)
        self.stage.key("shift+Tab")
        back = self.focused(controls)
        if here is not None and there is not None and back != here:
            self.unreached.append(f"{name}: Shift+Tab does not go back to '{controls[here][2]}'")

    def picture(self):
        done = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "ppm:-"],
                              env=self.stage.environment, capture_output=True, stdin=subprocess.DEVNULL, check=False)
        _, wide, high = done.stdout.split(maxsplit=3)[:3]
        return int(wide), int(high), done.stdout[-3 * int(wide) * int(high):]

    def compare(self, name, control, before):
        """The control that the keyboard went from looks another than before, at once or when it is painted."""
        self.compared.add(control[1:])
        rect = self.eyes.rect(control[0])
        for _ in range(5):
            if self.changed(rect, before, self.picture()) >= LEAST_CHANGE or control[2] in SEEN_BY_HAND:
                return
            time.sleep(0.2)
        self.plain.append(f"{name}: the {control[1]} '{control[2]}'")

    def changed(self, rect, before, after):
        """How many pixels of a piece of the screen differ."""
        x, y, width, height = rect
        wide, high, old = before
        new = after[2]
        changed = 0
        for row in range(max(0, y), min(high, y + height)):
            begin, end = 3 * (row * wide + max(0, x)), 3 * (row * wide + min(wide, x + width))
            if old[begin:end] != new[begin:end]:
                changed += sum(old[at:at + 3] != new[at:at + 3] for at in range(begin, end, 3))
        return changed

    # -- working it --

    def press_key_on(self, name, key, roles=None):
        self.tab_to(name, roles)
        self.stage.key(key)

    def slider_moves(self, name, key):
        node = self.tab_to(name, ("slider", "split pane"))
        before = self.eyes.value(node)
        self.stage.key(key)
        wait_for(f"'{name}' to move from {before} with {key}", lambda: self.eyes.value(node) != before)
        wait_for(f"the keyboard to stay in '{name}'", lambda: self.has_keyboard(node))

    def sliders(self):
        self.slider_moves("Volume", "Left")
        self.slider_moves("Speed", "Right")
        self.slider_moves("Start of the cross fade", "Left")
        self.slider_moves("Drag to share the height between the lists", "Up")
        song = self.node("Position in the song", ("slider",))
        before = self.eyes.value(song)
        self.press_key_on("Position in the song", "Next", ("slider",))
        self.press_key_on("Position in the song", "Prior", ("slider",))
        wait_for("the song to go on", lambda: (self.eyes.value(song) or 0) > before + 5)
        volume = self.node("Volume", ("slider",))
        volume.set_current_value(40)
        wait_for("the volume that a screen reader set", lambda: abs(self.eyes.value(volume) - 40) <= 3)

    def buttons(self):
        self.press_key_on("Pause", "space", BUTTONS)
        self.press_key_on("Play", "Return", BUTTONS)
        self.node("Pause", BUTTONS)
        self.press_key_on("Repeat this song", "space", BUTTONS)
        self.press_key_on("Repeat is on: repeat no more", "space", BUTTONS)
        self.node("Repeat this song", BUTTONS)
        self.tab_to("Tracks", ("list",))
        self.stage.key("End")
        self.press_key_on("Cue the selected track", "space", BUTTONS)
        wait_for("the cued track", lambda: len(self.eyes.rows("Up next")) == 1)
        self.press_key_on("Stop", "space", BUTTONS)
        self.node("Play", BUTTONS)

    def lists(self):
        self.tab_to("Playlists", ("list",))
        self.stage.key("End")
        wait_for("the playlist's two tracks", lambda: len(self.eyes.rows("Tracks")) == 2)
        self.stage.key("Home")
        wait_for("all tracks", lambda: len(self.eyes.rows("Tracks")) == 7)

    def boxes(self):
        check_equal("what is in the box", self.node("What the address box does", ("combo box",)).get_description(), "Web")
        self.menu("Options", "Preferences")
        self.to_front(MAIN + "Preferences")
        box = self.tab_to("Save history", ("check box",))
        for is_ticked in (False, True):
            self.stage.key("space")
            wait_for("the tick to change", lambda t=is_ticked: self.eyes.is_ticked(box) == t)
        self.dismiss(MAIN + "Preferences")
        self.to_front(MAIN)

    def tabs(self):
        face = self.tab_to("Music Player", ("page tab",))
        check(face.get_state_set().contains(self.eyes.selected), "the tab in front does not say so")
        self.stage.key("Menu")
        wait_for("the menu of the tab", lambda: len(self.eyes.find_all("Sound Test")) > 0)
        self.stage.key("Escape")
        self.press_key_on("Close the music tab", "space", BUTTONS)
        self.press_key_on("Open the music tab", "space", BUTTONS)
        self.node("Music Player", ("page tab",))

    def menu_bar(self):
        self.tab_to("Tracks", ("list",))
        self.stage.key("F10", "Right", "Return")
        self.dismiss("Add Favourite")

    def works(self):
        for step in (self.sliders, self.buttons, self.lists, self.boxes, self.tabs, self.menu_bar):
            begin = time.monotonic()
            step()
            print(f"   {step.__name__} by keys ({time.monotonic() - begin:.1f} s)", flush=True)

    # -- the verdict --

    def play(self):
        super().play()
        self.works()

    def verdict(self):
        print("   controls:", ", ".join(f"{name} {count}" for name, count in self.counted.items()))
        check_equal("what is wrong", {"did not come": self.troubles, "without a role or a name": self.silent,
                                      "not reached with Tab": sorted(set(self.unreached)),
                                      "the same with the keyboard": sorted(set(self.plain))},
                    {"did not come": [], "without a role or a name": [], "not reached with Tab": [],
                     "the same with the keyboard": []})


def main():
    build = stages.become_unprivileged(sys.argv[1])
    chosen = sys.argv[2:]
    parts = Hands.ALL if chosen == ["all"] else chosen or Hands.SHORT
    with Stage(build) as stage:
        hands = Hands(stage, "hands", bool(chosen))

        def no_pointer_and_no_eyes():
            hands.go(parts)
            hands.verdict()

        is_done = stage.run_steps([no_pointer_and_no_eyes])
        hands.close()
    if is_done:
        stage.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
