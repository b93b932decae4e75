"""High contrast that the desktop's portal asks for, and takes back, while the program runs: `test_contrast.py BUILD_FOLDER`."""

import sys

from gi.repository import GLib

import stage as stages
from bus_peers import BusPeer
from house import MAIN, House
from stage import Stage, wait_for
from story import check_equal

PORTAL = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
INTERFACE = f"""<node><interface name="{SETTINGS}"><method name="Read"><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="v" direction="out"/></method></interface></node>"""
SPACE = "org.freedesktop.appearance"
BLACK = (0, 0, 0)
GROUND = (0x1D, 0x19, 0x16)


class Portal(BusPeer):
    """The desktop's settings, of which it has the contrast only."""

    def __init__(self, address, contrast):
        self.contrast = contrast
        super().__init__(address)

    def _begin(self):
        self._serve(PORTAL, PATH, INTERFACE, self._on_read)

    def _on_read(self, _bus, _sender, _path, _interface, _method, arguments, call):
        if arguments.unpack() != (SPACE, "contrast"):
            call.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")
            return
        call.return_value(GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("u", self.contrast)),)))

    def change(self, contrast):
        self.contrast = contrast
        told = GLib.Variant("(ssv)", (SPACE, "contrast", GLib.Variant("u", contrast)))
        self.bus.emit_signal(None, PATH, SETTINGS, "SettingChanged", told)


class Contrast:
    def __init__(self, stage):
        self.stage = stage
        self.house = House(stage)
        self.portal = Portal(stage.environment["DBUS_SESSION_BUS_ADDRESS"], 1)

    def ground(self):
        """The window's own ground, right of everything."""
        x, y, width, height = self.stage.window_rect(self.stage.window(MAIN))
        return self.stage.pixels((x + width - 6, y + 200, 1, 1), (1, 1))[0]

    def page(self):
        """The ground of the page in front, beside its text."""
        x, y, width, height = self.stage.window_rect(self.stage.window(MAIN))
        return self.stage.pixels((x + width - 60, y + height // 2, 1, 1), (1, 1))[0]

    def shows(self, what, wanted):
        seen = []

        def is_there():
            seen[:] = [what()]
            return seen == [wanted]

        wait_for(f"{wanted}, not {seen}", is_there)

    def is_asked_for_at_the_start(self):
        self.house.launch()
        self.house.reach_main_window()
        self.shows(self.ground, BLACK)

    def goes_and_comes_while_it_runs(self):
        self.portal.change(0)
        self.shows(self.ground, GROUND)
        self.portal.change(1)
        self.shows(self.ground, BLACK)

    def is_that_of_the_built_in_pages(self):
        for contrast, colour in ((1, BLACK), (0, GROUND)):
            self.portal.change(contrast)
            self.stage.key("ctrl+l")
            self.stage.type("brindlepost://keys")
            self.stage.key("Return")
            self.stage.window(MAIN + "Keys", 40)
            self.shows(self.page, colour)
        check_equal("the program", self.house.program.poll(), None)

    def close(self):
        self.house.close()
        self.portal.close()


def main():
    build = stages.become_unprivileged(sys.argv[1])
    with Stage(build, sound=False) as stage:
        contrast = Contrast(stage)
        try:
            is_done = stage.run_steps([contrast.is_asked_for_at_the_start, contrast.goes_and_comes_while_it_runs,
                                       contrast.is_that_of_the_built_in_pages])
        finally:
            contrast.close()
    if is_done:
        stage.remove()
    return 0 if is_done else 1


if __name__ == "__main__":
    sys.exit(main())
