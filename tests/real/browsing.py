"""The program logged in before a site of the test's own, and what a person does with pages and tabs.

A page tells what happens inside it by asking the site for "/told/...", so nothing in a page has to be read off the screen.
"""

import html
import http.server
import socketserver
import threading

from dragging import Dragging
from screening import Screening
from stage import StageError, make_tone, role_of, wait_for

TONE = 440
SMALLEST_WIDTH = 600
MUSIC_CAPTION = "Brindlepost - Music Player"


class Failed(Exception):
    """What a person would see is not what came."""


def check(condition, text):
    if not condition:
        raise Failed(text)


def check_equal(what, found, expected):
    check(found == expected, f"{what}: found {found!r}, expected {expected!r}")


def page(title, body="", script=""):
    """A page whose whole area is its body, so that a click anywhere in it hits what it holds."""
    return (f"<!doctype html><meta charset=utf-8><title>{html.escape(title)}</title><link rel=icon href='data:,'>"
            "<style>html, body { margin: 0; height: 100% } .all { display: block; width: 100%; height: 100% }</style>"
            f"<body>{body or html.escape(title)}<script>{script}</script>")


class Site:
    """Pages on 127.0.0.1, each with the number of times it was asked for, and what they told."""

    def __init__(self, pages):
        self.pages = dict(pages)
        self._lock = threading.Lock()
        self._asked = []
        site = self

        class Handler(http.server.BaseHTTPRequestHandler):
            protocol_version = "HTTP/1.1"

            def do_GET(self):
                site._take(self.path)
                body = site.pages.get(self.path.split("?")[0])
                data = (body if body is not None else page("Not here")).encode()
                known = body is not None or self.path.startswith("/told/")
                self.send_response(200 if known else 404)
                self.send_header("Content-Type", "text/html; charset=utf-8")
                self.send_header("Cache-Control", "no-store")
                self.send_header("Content-Length", str(len(data)))
                self.end_headers()
                self.wfile.write(data)

            def log_message(self, *_):
                pass

        class Server(socketserver.ThreadingTCPServer):
            daemon_threads = True
            request_queue_size = 64

            def handle_error(self, *_):
                pass

        self._server = Server(("127.0.0.1", 0), Handler)
        self.port = self._server.server_address[1]
        # A scene that does not come about must not wait for it.
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)
        self._thread.start()

    def _take(self, path):
        with self._lock:
            self._asked.append(path)

    def address(self, path):
        return f"http://127.0.0.1:{self.port}{path}"

    def count(self, path):
        """How often a path was asked for, whatever its query."""
        with self._lock:
            return sum(asked.split("?")[0] == path for asked in self._asked)

    def told(self, word):
        return self.count("/told/" + word)

    def close(self):
        self._server.shutdown()
        self._server.server_close()
        self._thread.join()


class Browsing(Dragging, Screening):
    """The main window with one song in its library, and a site."""

    def __init__(self, stage, pages, prepare=None):
        """`prepare` is called with the person before the program starts."""
        self.site = Site(pages)
        self._prepare = prepare
        self.tone = make_tone(stage.folder / "Music" / "Film - Tone.wav", TONE, 600)
        super().__init__(stage, [("Tone", self.tone)])
        self.window_id = self.largest_window()

    def start(self):
        if self._prepare:
            self._prepare(self)
        super().start()

    def close(self):
        self.site.close()

    # -- what a person does --

    def give(self, text):
        """Types a text into the address row in place of what stands there."""
        self.stage.click(*self.eyes.centre("Address", "text"))
        self.stage.key("ctrl+a")
        self.stage.type(text)

    def go(self, path):
        """Opens a page of the site in a new tab."""
        self.give(self.site.address(path))
        self.stage.key("Return")

    def open(self, path, title):
        self.go(path)
        self.wait_for_caption(title)

    def page_rect(self):
        """Where the page in front is seen."""
        found = [self.eyes.rect(node) for node in self.eyes.find_all("Web page")]
        check(found, "no page is on the screen")
        return max(found, key=lambda rect: rect[2] * rect[3])

    def click_page(self, button=1):
        x, y, width, height = self.page_rect()
        self.stage.click(x + width // 2, y + height // 2, button=button)

    def press_tab(self, title):
        x, y, width, height = self.tab(title)
        self.stage.click(x + width // 2, y + height // 2)

    def close_all_tabs(self):
        self.menu("File", "Close", "All Tabs")
        wait_for("the tabs to go", lambda: not self.eyes.shows("Close this tab"))

    def to_the_music(self):
        self.stage.click(*self.eyes.centre("Music Player", "page tab"))
        self.wait_for_title(MUSIC_CAPTION)

    def pick_mode(self, mode):
        x, y, width, height = self.eyes.rect(self._mode_box())
        self.stage.click(x + width // 2, y + height // 2)
        self.stage.click(*self.eyes.centre(mode, "list item"))
        wait_for(f"the mode {mode}", lambda: self._mode_box().get_description() == mode)

    def _mode_box(self):
        """The box left of the address row; a combo box says what is in it as its description."""
        row = self.eyes.rect(self.eyes.find("Address", "text"))
        boxes = [node for node in self.eyes.nodes() if node.get_role_name() == "combo box"
                 and abs(self.eyes.rect(node)[1] - row[1]) < 12]
        return min(boxes, key=lambda node: self.eyes.rect(node)[0])

    def answer(self, title, text):
        """Writes an answer into an input box and presses OK."""
        box = self.stage.window(title)
        self.stage.key("ctrl+a")
        self.stage.type(text)
        self.stage.key("Return")
        wait_for(f"the box '{title}' to go", lambda: not self.stage.has_window_id(box))

    # -- what a person sees --

    def largest_window(self):
        """The main window: of the program's it is the largest. The splash bears the same name."""
        return wait_for("the main window", self._widest_window, 30)

    def _widest_window(self):
        found = self.stage.run("xdotool", "search", "--onlyvisible", "--name", "^Brindlepost").split()
        width, window = max(((self.stage.window_rect(window)[2], window) for window in found), default=(0, None))
        return window if width >= SMALLEST_WIDTH else None

    def title(self):
        title = self.stage.run("xdotool", "getwindowname", self.window_id).strip()
        if not title:
            self.window_id = self.largest_window()
        return title

    def wait_for_title(self, title, seconds=20):
        try:
            wait_for(f"the window's title '{title}'", lambda: self.title() == title, seconds)
        except StageError as error:
            raise StageError(f"{error}; it is '{self.title()}'") from error

    def wait_for_caption(self, caption, seconds=20):
        self.wait_for_title(f"Brindlepost - {caption}", seconds)

    def address_text(self):
        return self.eyes.text(self.eyes.find("Address", "text"))

    def wait_for_address(self, address):
        wait_for(f"the address row to show {address}", lambda: self.address_text() == address)

    def tab(self, title):
        """Where a tab bears that title on the strip, past its edge too; the page below may hold the same words."""
        top = self.eyes.rect(self.eyes.find("Back"))[1] - 8
        found = [self.eyes.rect(node) for node in self.eyes.find_all(title, showing=False)
                 if self.is_visible(node) and role_of(node) in ("label", "push button", "page tab")]
        found = [rect for rect in found if top - 40 <= rect[1] < top]
        return max(found, key=lambda rect: rect[2]) if found else None

    def is_visible(self, node):
        return node.get_state_set().contains(self.eyes.visible)

    def tabs(self):
        """How many tabs the strip has, those past its edge too."""
        return sum(map(self.is_visible, self.eyes.find_all("Close this tab", showing=False)))

    def history(self, kind):
        return self.rows_of("dbHistory", f"select HistoryText from tblHistory where HistoryType = '{kind}'")

    def played(self):
        return self.history("Music")

    def must_run(self):
        check(self.program.poll() is None, f"the program ended with {self.program.poll()}")

    def end(self):
        """As by the desktop's own log out."""
        self.program.terminate()
        check_equal("the exit code", self.program.wait(20), 0)
        wait_for("the window to go", lambda: not self.stage.has_window("Brindlepost"))
