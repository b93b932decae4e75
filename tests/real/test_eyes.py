"""What reads the screen goes on when something goes away while it is looked at: `test_eyes.py`, with made-up lists."""

import sys
import unittest

from gi.repository import GLib

import stage
from stage import Eyes, StageError


class Row:
    def __init__(self, name):
        self.name = name

    def get_name(self):
        return self.name

    def get_extents(self, _):
        return type("Extents", (), {"x": 1, "y": 2, "width": 3, "height": 4})


class List:
    """Fails at the looks that it is told to."""

    def __init__(self, *answers):
        self.answers = list(answers)

    def get_child_count(self):
        if isinstance(self.answers[0], Exception):
            raise self.answers.pop(0)
        return len(self.answers[0])

    def get_child_at_index(self, index):
        rows = self.answers[0]
        return rows[index] if index < len(rows) else None


class Held:
    """A control, and what it holds."""

    def __init__(self, name, role, *held):
        self.name, self.role, self.held, self.asked = name, role, held, 0

    def get_role_name(self):
        return self.role

    def get_child_count(self):
        return len(self.held)

    def get_child_at_index(self, index):
        self.asked += 1
        return self.held[index]


def gone():
    return GLib.Error("The application no longer exists")


class EyesTest(unittest.TestCase):
    def setUp(self):
        stage.LIST_PATIENCE = 0.2
        self.eyes = Eyes.__new__(Eyes)
        self.eyes._atspi = type("Atspi", (), {"CoordType": type("CoordType", (), {"SCREEN": 0})})

    def show(self, *lists):
        shown = list(lists)
        self.eyes.find = lambda _name, _role: shown.pop(0) if len(shown) > 1 else shown[0]

    def test_the_rows_are_read_again_after_the_list_went_away(self):
        self.show(List(gone(), []), List([Row("one"), Row("two")]))
        self.assertEqual(self.eyes.rows("Tracks"), ["one", "two"])

    def test_a_list_without_rows_is_one(self):
        self.show(List([]))
        self.assertEqual(self.eyes.rows("Tracks"), [])

    def test_a_row_that_went_away_is_left_out(self):
        self.show(List([Row("one"), None]))
        self.assertEqual(self.eyes.rows("Tracks"), ["one"])

    def test_the_place_of_a_row_is_asked_for_again(self):
        self.show(List([]), List([Row("one")]))
        self.assertEqual(self.eyes.row_rect("Tracks", 0), (1, 2, 3, 4))

    def test_a_row_that_never_comes_is_named(self):
        self.show(List([]))
        with self.assertRaisesRegex(StageError, "Tracks"):
            self.eyes.row_rect("Tracks", 5)

    def test_a_window_is_looked_at_whole(self):
        window = Held("window", "frame", *[Held(str(number), "label") for number in range(500)])
        self.assertEqual([node.name for node in self.eyes.below(window)][-1], "499")

    def test_of_a_long_list_only_the_beginning_is_read(self):
        tracks = Held("Tracks", "list", *[Held(str(number), "list item") for number in range(500)])
        self.assertEqual(len(list(self.eyes.below(tracks))), 301)
        self.assertEqual(tracks.asked, 300)


if __name__ == "__main__":
    sys.argv = sys.argv[:1]     # the build folder, which every script here gets
    unittest.main()
