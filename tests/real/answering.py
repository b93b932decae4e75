"""How soon a window answers: the window manager's own question, `_NET_WM_PING`, asked again and again."""

import ctypes
import pathlib
import select
import threading
import time

CLIENT_MESSAGE = 33
# An answer goes to whoever looks at the root window; the toolkit names the first of these, others the second.
STRUCTURE_NOTIFY, SUBSTRUCTURE_NOTIFY = 1 << 17, 1 << 19
EVERY = 0.05
AGAIN = 0.5


class _Message(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5)]


# A window may go between two questions; the library would end the script for that.
_NOTHING = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda _display, _error: 0)


class _Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("message", _Message), ("room", ctypes.c_long * 24)]


class Answering:
    """Asks a window every 50 ms, or as often as `every` says, and keeps how long each answer took.

    A question that is not answered is followed by another half a second later. Answers come in the order of the questions, so
    one that was left out was lost on its way and says nothing. With the `process` of the window, what its first thread did
    meanwhile is kept too: a figure that tells the program's work from the machine's."""

    def __init__(self, display, window, process=None, every=EVERY):
        self._every = every
        self._x = ctypes.CDLL("libX11.so.6")
        # Each of them has a thread and a connection of its own.
        self._x.XInitThreads()
        self._x.XSetErrorHandler(_NOTHING)
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XDefaultRootWindow.restype = self._x.XInternAtom.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x.XOpenDisplay(display.encode()))
        self._window = ctypes.c_ulong(int(window))
        self._root = ctypes.c_ulong(self._x.XDefaultRootWindow(self._display))
        self._protocols = self._x.XInternAtom(self._display, b"WM_PROTOCOLS", False)
        self._ping = self._x.XInternAtom(self._display, b"_NET_WM_PING", False)
        self._x.XSelectInput(self._display, self._root, ctypes.c_long(STRUCTURE_NOTIFY | SUBSTRUCTURE_NOTIFY))
        self._serial = 0
        self._answers = []      # (asked at, seconds, what the thread did)
        self._asked = {}        # serial: asked at
        self._before = {}       # serial: what the thread had done
        self._thread_file = process and pathlib.Path(f"/proc/{process}/task/{process}/schedstat")
        self._lock = threading.Lock()
        self._ends = threading.Event()
        self._thread = threading.Thread(target=self._go_on)
        self._thread.start()

    def longest(self, begin):
        """The longest wait for an answer since `begin`, one that is still waited for too."""
        now = time.monotonic()
        with self._lock:
            waits = [took for asked, took, _ in self._answers if asked + took >= begin]
            waits += [now - asked for asked in self._asked.values()]
        return max(waits, default=0.0)

    def longest_work(self, begin):
        """Of the longest wait that was answered: seconds that the thread ran, and that it waited for a processor."""
        with self._lock:
            return max(((took, did) for asked, took, did in self._answers if asked + took >= begin), default=(0, (0, 0)))[1]

    def _done(self):
        """Seconds that the thread has run, and has waited for a processor."""
        try:
            ran, waited = self._thread_file.read_text().split()[:2]
            return int(ran) / 1e9, int(waited) / 1e9
        except (AttributeError, OSError, ValueError):
            return 0.0, 0.0

    def longest_silence(self, begin):
        """The longest stretch since `begin` in which no answer came."""
        with self._lock:
            came = sorted(asked + took for asked, took, _ in self._answers if asked + took > begin)
        return max(after - before for before, after in zip([begin, *came], [*came, time.monotonic()]))

    def close(self):
        self._ends.set()
        self._thread.join()
        self._x.XCloseDisplay(self._display)

    def _go_on(self):
        while not self._ends.is_set():
            self._ask()
            end = time.monotonic() + AGAIN
            while self._asked and time.monotonic() < end and not self._ends.is_set():
                self._take_answer()
            self._ends.wait(self._every)

    def _ask(self):
        event = _Event()
        message = event.message
        self._serial += 1
        message.type, message.window, message.message_type, message.format = (
            CLIENT_MESSAGE, self._window.value, self._protocols, 32)
        message.data[0], message.data[1], message.data[2] = self._ping, self._serial, self._window.value
        with self._lock:
            self._before[self._serial] = self._done()
            self._asked[self._serial] = time.monotonic()
        self._x.XSendEvent(self._display, self._window, False, ctypes.c_long(0), ctypes.byref(event))
        self._x.XFlush(self._display)

    def _take_answer(self):
        if not self._x.XPending(self._display):
            select.select([self._x.XConnectionNumber(self._display)], [], [], 0.1)
            return
        event = _Event()
        self._x.XNextEvent(self._display, ctypes.byref(event))
        message = event.message
        if event.type != CLIENT_MESSAGE or message.message_type != self._protocols or message.data[0] != self._ping:
            return
        if message.data[2] != self._window.value:
            return  # another one is asked as well
        with self._lock:
            asked = self._asked.pop(message.data[1], None)
            if asked is None:
                return
            took, before, now = time.monotonic() - asked, self._before[message.data[1]], self._done()
            self._answers.append((asked, took, (now[0] - before[0], now[1] - before[1])))
            # Those before it were lost.
            for lost in [serial for serial in self._asked if serial < message.data[1]]:
                del self._asked[lost]
            self._before = {serial: self._before[serial] for serial in self._asked}
