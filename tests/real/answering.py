"""How soon a window answers: the window manager's own question, `_NET_WM_PING`, asked again and again."""

import ctypes
import select
import threading
import time

CLIENT_MESSAGE = 33
SUBSTRUCTURE_NOTIFY = 1 << 19
EVERY = 0.05


class _Message(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5)]


class _Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("message", _Message), ("room", ctypes.c_long * 24)]


class Answering:
    """Asks a window every 50 ms, one question at a time, and keeps how long each answer took."""

    def __init__(self, display, window):
        self._x = ctypes.CDLL("libX11.so.6")
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XDefaultRootWindow.restype = self._x.XInternAtom.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x.XOpenDisplay(display.encode()))
        self._window = ctypes.c_ulong(int(window))
        self._root = ctypes.c_ulong(self._x.XDefaultRootWindow(self._display))
        self._protocols = self._x.XInternAtom(self._display, b"WM_PROTOCOLS", False)
        self._ping = self._x.XInternAtom(self._display, b"_NET_WM_PING", False)
        self._x.XSelectInput(self._display, self._root, ctypes.c_long(SUBSTRUCTURE_NOTIFY))
        self._answers = []      # (asked at, seconds)
        self._asked = None
        self._lock = threading.Lock()
        self._ends = threading.Event()
        self._thread = threading.Thread(target=self._go_on)
        self._thread.start()

    def longest(self, begin, end=None):
        """The longest wait for an answer that was asked for since `begin`, one that is still waited for too."""
        now = time.monotonic()
        with self._lock:
            waits = [took for asked, took in self._answers if asked + took >= begin and (end is None or asked <= end)]
            if self._asked is not None:
                waits.append(now - self._asked)
        return max(waits, default=0.0)

    def close(self):
        self._ends.set()
        self._thread.join()
        self._x.XCloseDisplay(self._display)

    def _go_on(self):
        serial = 0
        while not self._ends.is_set():
            serial += 1
            self._ask(serial)
            self._wait_for(serial)
            self._ends.wait(EVERY)

    def _ask(self, serial):
        event = _Event()
        message = event.message
        message.type, message.window, message.message_type, message.format = (
            CLIENT_MESSAGE, self._window.value, self._protocols, 32)
        message.data[0], message.data[1], message.data[2] = self._ping, serial, self._window.value
        with self._lock:
            self._asked = time.monotonic()
        self._x.XSendEvent(self._display, self._window, False, ctypes.c_long(0), ctypes.byref(event))
        self._x.XFlush(self._display)

    def _wait_for(self, serial):
        connection = self._x.XConnectionNumber(self._display)
        while not self._ends.is_set():
            if not self._x.XPending(self._display):
                select.select([connection], [], [], 0.1)
                continue
            event = _Event()
            self._x.XNextEvent(self._display, ctypes.byref(event))
            message = event.message
            if (event.type == CLIENT_MESSAGE and message.message_type == self._protocols
                    and message.data[0] == self._ping and message.data[1] == serial):
                with self._lock:
                    self._answers.append((self._asked, time.monotonic() - self._asked))
                    self._asked = None
                return
