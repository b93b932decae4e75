"""Video and light shows as a person sees them: `test_video.py BUILD_FOLDER`. Every step that fails is told."""

import sys
import time

import stage as stages
from screening import (BLACK, BLUE, FIRST_FIELDS, GREEN, RED, SECOND_FIELDS, WHITE, YELLOW, Screening,
                       make_film, near)
from stage import make_tone, wait_for

CAPTION = 20  # height of the strip along the top of the video window, which covers the picture there
MAXIMISE = "Full screen, or back into the main window"
ATTACH = "Put the video into the main window"
SHOWS = ("Music Player", "Special", "Visualisations")


class Failed(Exception):
    """What stands on the screen is not what should."""


def check(condition, text):
    if not condition:
        raise Failed(text)


def picture_rect(window, film):
    """Where a film of that size is to be seen in the window's place: its proportions kept, in the middle."""
    x, y, width, height = window
    scale = min(width / film[0], height / film[1])
    wide, high = film[0] * scale, film[1] * scale
    return x + (width - wide) / 2, y + (height - high) / 2, wide, high


class Show:
    def __init__(self, stage):
        self.stage = stage
        music = stage.folder / "Music"
        self.sizes = {"Wide": (640, 360), "Tall": (180, 320), "Old": (320, 240)}
        films = [
            ("Old", make_film(music / "Film - Old.mpg", self.sizes["Old"], 60, FIRST_FIELDS, 440)),
            ("Tall", make_film(music / "Film - Tall.avi", self.sizes["Tall"], 60, SECOND_FIELDS, 550)),
            ("Wide", make_film(music / "Film - Wide.mp4", self.sizes["Wide"], 60, FIRST_FIELDS, 0)),
            ("Song", make_tone(music / "Film - Song.mp3", 660, 90)),
        ]
        self.screening = Screening(stage, films)
        self.fields = {"Old": FIRST_FIELDS, "Tall": SECOND_FIELDS, "Wide": FIRST_FIELDS}

    # -- what is seen --

    def colour(self, x, y):
        found = self.stage.pixels((int(x), int(y), 1, 1), (1, 1))
        return found[0] if found else None

    def see(self, what, points, seconds=6):
        """Waits until every (x, y) on the screen has its colour."""
        seen = {}

        def looks_right():
            seen.clear()
            width, height = self.stage_size
            every = self.stage.pixels((0, 0, width, height), (width, height))
            for (x, y), colour in points.items():
                seen[(x, y)] = every[int(y) * width + int(x)]
            return all(near(seen[place], colour) for place, colour in points.items())

        try:
            wait_for(what, looks_right, seconds)
        except stages.StageError as error:
            differences = {place: (seen.get(place), colour) for place, colour in points.items()
                           if not near(seen.get(place, (1, 2, 3)), colour)}
            raise Failed(f"{what}: (found, expected) {differences}") from error

    stage_size = (1280, 860)

    def picture_points(self, title, window):
        """Places in the four fields, near the corners, and in the black beside the picture."""
        x, y, wide, high = picture_rect(window, self.sizes[title])
        inset = 5
        top = max(y + inset, window[1] + CAPTION + inset)
        fields = self.fields[title]
        points = {(x + inset, top): fields[0], (x + wide - inset, top): fields[1],
                  (x + inset, y + high - inset): fields[2], (x + wide - inset, y + high - inset): fields[3]}
        if x - window[0] > 2 * inset:
            points[(x - inset, y + high / 2)] = BLACK
            points[(x + wide + inset, y + high / 2)] = BLACK
        if window[1] + window[3] - (y + high) > 2 * inset:
            points[(x + wide / 2, y + high + inset)] = BLACK
        return points

    def see_picture(self, what, title):
        rect = self.screening.video_rect()
        self.see(what, self.picture_points(title, rect))
        return rect

    def in_hole(self, rect):
        main = self.stage.window_rect(self.screening.main_window())
        return main[0] < rect[0] and rect[0] + rect[2] < main[0] + 200 and main[1] < rect[1] < main[1] + main[3]

    def below(self):
        """The video window lies below the main window."""
        order = [title.split(" - ")[0] for title in self.stage.stacking()]
        return "Film" in order and order.index("Film") < order.index("Brindlepost")

    # -- the steps --

    def hole(self):
        for title in ("Old", "Tall", "Wide"):
            self.screening.play(title)
            self.stage.window(f"Film - {title} ")
            rect = self.see_picture(f"{title} in its hole", title)
            check(self.in_hole(rect), f"{title} stands at {rect}, not in the hole")
            check(self.below(), f"{title} lies above the main window: {self.stage.stacking()}")
        check("Brindlepost" in self.stage.front_window(), "the video took the keyboard")

    def moved_and_resized(self):
        before = self.screening.video_rect()
        window = self.screening.main_window()
        self.stage.run("xdotool", "windowsize", "--sync", window, "1000", "700")
        self.stage.run("xdotool", "windowmove", "--sync", window, "150", "90")
        wait_for("the video to follow", lambda: self.screening.video_rect() != before)
        wait_for("the video in the hole", lambda: self.in_hole(self.screening.video_rect()))
        time.sleep(0.1)
        self.see_picture("the picture after the main window moved", "Wide")

    def dragged_by_hand(self):
        """While the main window is dragged by its title, the video keeps its place in the hole at every moment."""
        window, video = self.screening.main_window(), self.screening.video_window()

        def offset():
            # The second look at the main window tells whether it moved between the two others.
            before = self.stage.window_rect(window)
            film = self.stage.window_rect(video)
            still = before == self.stage.window_rect(window)
            return (film[0] - before[0], film[1] - before[1]) if still else None

        x, y, width, _ = self.stage.window_rect(window)
        wait_for("a window at rest", lambda: offset() == offset())
        wanted = offset()
        # The place of a window with a frame is told with the title's height added once more.
        self.stage.run("xdotool", "mousemove", str(x + width // 2), str(y - 30), "mousedown", "1")
        seen = []
        for step in range(20):
            self.stage.run("xdotool", "mousemove_relative", "--", "5", "3" if step % 2 else "-2")
            time.sleep(0.06)
            seen.append(offset())
        self.stage.run("xdotool", "mouseup", "1")
        check(self.stage.window_rect(window)[0] > x + 50, "the main window was not dragged")
        away = [place for place in seen if place is not None and place != wanted]
        print(f"   in place at {len(seen) - len(away)} of {len(seen)} moments of the drag", flush=True)
        check(len(away) <= len(seen) // 4, f"the video stayed behind: {away}, not {wanted}")
        self.stage.run("xdotool", "windowmove", "--sync", window, "150", "90")
        wait_for("the video at rest", lambda: offset() == wanted)
        self.see_picture("the picture after the drag", "Wide")

    def panel_closed(self):
        """Closing the favourites panel closes the hole whole, and opening it brings the picture back."""
        x, y, width, height = hole = self.screening.video_rect()
        self.screening.press("Favourites panel")
        wait_for("the music pane in the panel's place",
                 lambda: self.screening.control_rect("Playlists")[0] < x + width // 2)
        time.sleep(0.3)
        for place in ((x + 5, y + height - 5), (x + width / 2, y + height / 2), (x + width - 5, y + height - 1),
                      (x + width / 2, y + height + 1)):
            left = self.colour(*place)
            check(not near(left, BLACK, 10) and not any(near(left, colour) for colour in FIRST_FIELDS),
                  f"{left} shows through at {place}")
        check(self.screening.video_rect() == hole, f"the video went to {self.screening.video_rect()}")
        self.screening.press("Favourites panel")
        self.see_picture("the picture after the panel opened again", "Wide")

    def another_program_between(self):
        x, y, width, height = self.screening.video_rect()
        other = self.stage.spawn(["xlogo", "-geometry", f"{width}x{height}+{x}+{y}", "-bg", "#884400"])
        cover = self.stage.window("xlogo")
        wait_for("the other window in front", lambda: self.stage.stacking()[-1] == "xlogo")
        self.screening.play("Wide")
        time.sleep(0.5)
        check(self.stage.stacking()[-1] != "xlogo", "a press on the main window did not bring it up")
        self.see_picture("the picture with another program's window below", "Wide")
        self.stage.run("xdotool", "windowkill", cover)
        other.wait(5)

    def minimised(self):
        window = self.screening.main_window()
        x, y, width, height = self.screening.video_rect()
        self.stage.run("xdotool", "windowminimize", window)
        self.see("an empty screen", {(x + width / 2, y + height / 2): BLACK, (x + 5, y + height - 5): BLACK})
        wait_for("no video window", lambda: not self.stage.has_window("Film - "))
        self.stage.run("xdotool", "windowactivate", window)
        wait_for("the video back in its hole", lambda: self.in_hole(self.screening.video_rect()))
        self.see_picture("the picture after the main window came back", "Wide")
        check(self.below(), f"the video came back above: {self.stage.stacking()}")

    def maximised(self):
        self.screening.press(MAXIMISE)
        wait_for("the video over the whole screen", lambda: self.screening.video_rect()[2:] == self.stage_size)
        self.see_picture("the picture on the whole screen", "Wide")
        self.screening.press(MAXIMISE)
        wait_for("the video back in the hole", lambda: self.in_hole(self.screening.video_rect()))
        self.see_picture("the picture back in its hole", "Wide")
        check(self.below(), f"the video came back above: {self.stage.stacking()}")

    def floating(self):
        x, y, width, _ = hole = self.screening.video_rect()
        self.stage.run("xdotool", "mousemove", str(x + 25), str(y + 8), "mousedown", "1")
        for _ in range(8):
            self.stage.run("xdotool", "mousemove_relative", "--", "30", "-20")
            time.sleep(0.03)
        self.stage.run("xdotool", "mouseup", "1")
        wait_for("the video to float", lambda: not self.in_hole(self.screening.video_rect()))
        self.see_picture("the floating picture", "Wide")
        # Where the hole was, the main window is whole.
        mended = self.colour(x + width / 2, y + 60)
        check(mended is not None and not near(mended, RED) and not near(mended, GREEN), f"{mended} stands in the hole")
        self.screening.press("Pause")
        self.see_picture("the floating picture after a press in the main window", "Wide")
        self.screening.press(ATTACH)
        wait_for("the video back", lambda: self.screening.video_rect() == hole)
        self.see_picture("the paused picture back in its hole", "Wide")

    def resized_while_paused(self):
        window = self.screening.main_window()
        before = self.screening.video_rect()
        self.stage.run("xdotool", "windowsize", "--sync", window, "1000", "560")
        wait_for("another size", lambda: self.screening.video_rect()[2:] != before[2:])
        self.see_picture("the paused picture in a smaller hole", "Wide")
        self.stage.run("xdotool", "windowsize", "--sync", window, "1000", "700")
        self.see_picture("the paused picture in a larger hole", "Wide")
        self.screening.press("Play")

    def full_screen(self):
        self.screening.menu("View", "Full Screen")
        window = self.screening.main_window()
        wait_for("the main window on the whole screen", lambda: self.stage.window_rect(window)[2] >= 1270)
        wait_for("the video in the hole", lambda: self.in_hole(self.screening.video_rect()))
        self.see_picture("the picture in the maximised main window", "Wide")

    def song_closes_the_hole(self):
        x, y, width, height = self.screening.video_rect()
        self.screening.play("Song")
        wait_for("the video window to go", lambda: not self.stage.has_window("Film - Wide"))

        def ground():
            found = self.colour(x + width / 2, y + height / 2)
            return max(found) < 80 and not near(found, BLACK, 10)

        # A busy machine draws the window a moment after the hole has closed.
        wait_for("the window's ground where the video was", ground, 5)
        for _ in range(3):
            check(ground(), "something lies over the window's ground where the video was")

    def strobe_warns(self):
        self.screening.menu(*SHOWS)
        place = self.screening.eyes.centre("Strobe Light", "menu item")
        self.stage.run("xdotool", "mousemove", str(place[0] - 5), str(place[1]), "mousemove", str(place[0]), str(place[1]))
        wait_for("the warning over the strobe light", lambda: any(
            "flashing light" in (node.get_name() or "") and node.get_role_name() in ("tool tip", "label")
            for node in self.screening.eyes.nodes()), 5)
        self.stage.key("Escape", "Escape", "Escape", "Escape")

    def light_show(self, entry, colours, seconds=6):
        """Every one of the colours is seen in the window, and nothing else."""
        self.screening.menu(*SHOWS, entry)
        self.stage.window("Visualisations|Video|Film - ")
        title = "Visualisations" if self.stage.has_window("Visualisations") else "Film - |Video"
        x, y, width, height = self.stage.window_rect(self.stage.window(title))
        missing, other = set(colours), set()

        def all_seen():
            found = self.colour(x + width / 2, y + height - 20)
            match = [colour for colour in colours if near(found, colour, 12)]
            if not match:
                other.add(found)
            missing.difference_update(match)
            return not missing

        try:
            wait_for(f"the colours of {entry}", all_seen, seconds)
        except stages.StageError as error:
            raise Failed(f"{entry}: never seen {missing}, besides {other}") from error
        check(len(other) <= 1, f"{entry} shows {other}")

    def strobe(self):
        self.light_show("Strobe Light", (BLUE, WHITE, BLACK), 15)

    def party(self):
        self.light_show("Party Light", (GREEN, RED, YELLOW, BLUE, BLACK), 25)

    def mood(self):
        self.screening.menu(*SHOWS, "Mood Light")
        x, y, width, height = self.stage.window_rect(self.stage.window("Visualisations|Film - |Video"))
        place = (x + width / 2, y + height - 20)
        # The walk goes from black to red in 2.55 s, and through yellow to white.
        reds = []

        def rises():
            reds.append(self.colour(*place))
            red, green, blue = reds[-1]
            return red > 150 and green < 60 and blue < 60

        wait_for("a red mood", rises, 8)
        check(all(g <= 60 and b <= 60 for _, g, b in reds[1:]), f"the mood went by {reds}")
        wait_for("a yellow mood", lambda: near(self.colour(*place), (255, 200, 0), 56), 8)

    def animation(self):
        self.screening.menu(*SHOWS, "Animation")
        rect = self.stage.window_rect(self.stage.window("Visualisations|Film - |Video"))
        looks = set()

        def both():
            looks.add(tuple(self.stage.pixels(rect, (24, 24))))
            return len(looks) >= 2

        wait_for("both pictures of the animation", both, 8)
        check(all(len(set(look)) > 3 for look in looks), "the animation is one colour")

    def no_show(self):
        self.screening.menu(*SHOWS, "None")
        wait_for("the show to go", lambda: not self.stage.has_window("Visualisations"))

    def still_runs(self):
        check(self.screening.program.poll() is None, "the program ended")
        check("rror" not in self.stage.program_output(), self.stage.program_output()[-2000:])

    def steps(self):
        return [self.hole, self.moved_and_resized, self.dragged_by_hand, self.panel_closed,
                self.another_program_between, self.minimised, self.maximised, self.floating,
                self.resized_while_paused, self.full_screen, self.song_closes_the_hole,
                self.strobe_warns, self.strobe, self.party, self.mood, self.animation, self.no_show, self.still_runs]


if __name__ == "__main__":
    sys.exit(stages.run_step_by_step(sys.argv[1], Show))
