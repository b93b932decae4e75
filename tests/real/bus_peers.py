"""Programs on the session bus that have nothing to do with the one under test: a messenger, a screen saver, a watcher.

They live on a thread and an event loop of their own, so that they answer while the test waits.
"""

import threading

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

MESSENGER_CLASS = "MsnMsgrUIManager"
MESSENGER = f"""<node><interface name="{MESSENGER_CLASS}.Window"><method name="CopyData">
<arg type="u" direction="in"/><arg type="u" direction="in"/><arg type="ay" direction="in"/>
</method></interface></node>"""
SCREEN_SAVER = """<node><interface name="org.freedesktop.ScreenSaver">
<method name="Inhibit"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="u" direction="out"/></method>
<method name="UnInhibit"><arg type="u" direction="in"/></method></interface></node>"""
PLAYER_PATH = "/org/mpris/MediaPlayer2"
PLAYER_INTERFACE = "org.mpris.MediaPlayer2.Player"


class BusPeer:
    """A connection of its own, with a thread on which `_begin` and every answer run."""

    def __init__(self, address):
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop.new(self._context, False)
        self._ready = threading.Event()
        self._thread = threading.Thread(target=self._run, args=(address,), daemon=True)
        self._thread.start()
        self._ready.wait(10)

    def _run(self, address):
        self._context.push_thread_default()
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self.bus.set_exit_on_close(False)
        self._begin()
        self._ready.set()
        self._loop.run()

    def close(self):
        self._loop.quit()
        self._thread.join(5)

    def _serve(self, name, path, interface, answer):
        """Answers under a name that is taken from whoever has it."""
        self.bus.register_object(path, Gio.DBusNodeInfo.new_for_xml(interface).interfaces[0], answer, None, None)
        self._call_bus("RequestName", GLib.Variant("(su)", (name, 4)))

    def _call_bus(self, method, arguments=None):
        return self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method, arguments,
                                  None, Gio.DBusCallFlags.NONE, 5000, None).unpack()


class BusPeers(BusPeer):
    """A messenger, a screen saver's service, and somebody who watches media players."""

    def __init__(self, address):
        self.blocks = []  # (dwData, cbData, bytes) as the messenger received them
        self.saver_calls = []  # ("Inhibit", program, reason) and ("UnInhibit", cookie)
        self.promises = {}  # cookie: whom it was promised to
        self.changes = []  # dictionaries of PropertiesChanged
        self.jumps = []
        super().__init__(address)

    def _begin(self):
        self._serve(MESSENGER_CLASS + ".Main", "/" + MESSENGER_CLASS, MESSENGER, self._on_messenger)
        self._serve("org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", SCREEN_SAVER, self._on_screen_saver)
        subscribe = self.bus.signal_subscribe
        subscribe(None, "org.freedesktop.DBus.Properties", "PropertiesChanged", PLAYER_PATH, PLAYER_INTERFACE,
                  Gio.DBusSignalFlags.NONE, lambda *told: self.changes.append(told[5].unpack()[1]))
        subscribe(None, PLAYER_INTERFACE, "Seeked", PLAYER_PATH, None, Gio.DBusSignalFlags.NONE,
                  lambda *told: self.jumps.append(told[5].unpack()[0]))
        subscribe("org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged", None, None,
                  Gio.DBusSignalFlags.NONE, self._on_owner_changed)

    def _on_messenger(self, _bus, _sender, _path, _interface, _method, arguments, call):
        what, length, data = arguments.unpack()
        self.blocks.append((what, length, bytes(data)))
        call.return_value(None)

    def _on_screen_saver(self, _bus, sender, _path, _interface, method, arguments, call):
        self.saver_calls.append((method, *arguments.unpack()))
        if method == "UnInhibit":
            self.promises.pop(arguments.unpack()[0], None)
            call.return_value(None)
            return
        cookie = len(self.saver_calls)
        self.promises[cookie] = sender
        call.return_value(GLib.Variant("(u)", (cookie,)))

    def _on_owner_changed(self, *told):
        name, _, owner = told[5].unpack()
        if not owner:
            self.promises = {cookie: whom for cookie, whom in self.promises.items() if whom != name}

    # -- what the watcher asks --

    def media_players(self):
        """(name, process number) of every media player on the bus."""
        names = [name for name in self._call_bus("ListNames")[0] if name.startswith("org.mpris.MediaPlayer2")]
        return [(name, self._call_bus("GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))[0]) for name in names]

    def player(self, method, arguments=None, interface=PLAYER_INTERFACE):
        return self.bus.call_sync("org.mpris.MediaPlayer2.brindlepost", PLAYER_PATH, interface, method, arguments, None,
                                  Gio.DBusCallFlags.NONE, 5000, None).unpack()

    def property(self, name, interface=PLAYER_INTERFACE):
        return self.player("Get", GLib.Variant("(ss)", (interface, name)), "org.freedesktop.DBus.Properties")[0]

    def set_property(self, name, value):
        self.player("Set", GLib.Variant("(ssv)", (PLAYER_INTERFACE, name, value)), "org.freedesktop.DBus.Properties")


def message(artist, title, own="", playing=True):
    """The block that a messenger is sent, built by hand: (dwData, cbData, bytes)."""
    fields = ["", "Music", "1" if playing else "0", "{0} - {1} {2}", artist, title, own, "", ""]
    data = ("\\0".join(fields) + "\0").encode("utf-16-le")
    return 1351, len(data), data
