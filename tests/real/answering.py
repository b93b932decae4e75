"""How soon a window answers: the window manager's own question, `_NET_WM_PING`, asked again and again."""

import ctypes
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
    """Asks a window every 50 ms, and keeps how long each answer took.

    A question that is not answered is followed by another half a second later. Answers come in the order of the questions, so
    one that was left out was lost on its way and says nothing."""

    def __init__(self, display, window):
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
        self._answers = []      # (asked at, seconds)
        self._asked = {}        # serial: asked at
        self._lock = threading.Lock()
        self._ends = threading.Event()
        self._thread = threading.Thread(target=self._go_on)
        self._thread.start()

    def longest(self, begin):
        """The longest wait for an answer since `begin`, one that is still waited for too."""
        now = time.monotonic()
        with self._lock:
            waits = [took for asked, took in self._answers if asked + took >= begin]
            waits += [now - asked for asked in self._asked.values()]
        return max(waits, default=0.0)

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
            self._ends.wait(EVERY)

    def _ask(self):
        event = _Event()
        message = event.message
        self._serial += 1
        message.type, message.window, message.message_type, message.format = (
            CLIENT_MESSAGE, self._window.value, self._protocols, 32)
        message.data[0], message.data[1], message.data[2] = self._ping, self._serial, self._window.value
        with self._lock:
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
            self._answers.append((asked, time.monotonic() - asked))
            # Those before it were lost.
            for lost in [serial for serial in self._asked if serial < message.data[1]]:
                del self._asked[lost]
