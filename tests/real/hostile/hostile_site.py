"""The site of the hostile pages, a process of its own: `hostile_site.py CERTIFICATES LOG`.

Prints one line of ports as JSON. Every request is a line of the log: which of the sites, and the address. It ends with its
input.
"""

import http.server
import json
import pathlib
import socketserver
import ssl
import struct
import sys
import threading
import time
import zlib

import hostile_pages
from hostile_pages import DOWNLOAD_NAMES, GOT, MARK, MEGABYTE, TABLE, login_form

SCRIPTS = {"/p/" + row.name.replace(" ", "-"): row for row in TABLE}
MOST_ENDLESS = 400 * MEGABYTE


def png(side):
    """A picture of one colour, tiny as a file."""
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    packer = zlib.compressobj(9)
    line = b"\0" * (side // 8 + 1)
    data = b"".join(packer.compress(line) for _ in range(side)) + packer.flush()
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", side, side, 1, 0, 0, 0, 0))
            + chunk(b"IDAT", data) + chunk(b"IEND", b""))


PICTURES = {"small": png(16), "huge": png(16000)}


def text_of(row):
    return (f"<!doctype html><meta charset=utf-8><title>{row.name}</title>{row.head}"
            "<style>html, body { margin: 0; height: 100% }</style>"
            f"<body>{row.body or row.name}<script>{GOT} {row.script}</script>")


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_GET(self):
        self.server.note(self.path)
        path = self.path.split("?")[0]
        for begin, answer in (("/p/", self.give_page), ("/redirect/", self.redirect), ("/password", self.refuse),
                              ("/download/", self.download), ("/icon/", self.icon), ("/away/", self.send_away),
                              ("/endless", self.endless), ("/bomb", self.bomb), ("/breeding", self.breed)):
            if path.startswith(begin):
                return answer(path)
        if "pal.example" in self.path:
            return self.login(path)
        return self.give(f"<title>quiet</title>{path}")

    def do_POST(self):
        body = self.rfile.read(int(self.headers.get("Content-Length") or 0))
        self.server.note("/got/" + body.decode(errors="replace")[:500])
        self.give("thanks")

    def give(self, body, kind="text/html; charset=utf-8", status=200, headers=()):
        data = body if isinstance(body, bytes) else body.encode()
        self.send_response(status)
        for name, value in (("Content-Type", kind), ("Content-Length", str(len(data))), ("Cache-Control", "no-store"),
                            *headers):
            self.send_header(name, value)
        self.end_headers()
        self.wfile.write(data)

    def give_page(self, path):
        row = SCRIPTS.get(path)
        self.give(text_of(row) if row else "<title>unknown</title>", status=200 if row else 404)

    def redirect(self, path):
        number = int(path.rsplit("/", 1)[1])
        self.give("", status=302, headers=[("Location", f"/redirect/{number + 1}")])

    def refuse(self, _):
        body = "<title>refused</title>" + "".join(f"<img src='/password?{n}'>" for n in range(50))
        self.give(body, status=401, headers=[("WWW-Authenticate", f'Basic realm="{time.time()}"')])

    def download(self, path):
        name = path.rsplit("/", 1)[1]
        if name == "plain":
            said = 'filename="same-' + MARK + '.bin"'
        else:
            said = DOWNLOAD_NAMES[int(name) % len(DOWNLOAD_NAMES)]
        self.give(MARK * 100, "application/octet-stream", headers=[("Content-Disposition", "attachment; " + said)])

    def icon(self, path):
        self.give(PICTURES[path.rsplit("/", 1)[1]], "image/png")

    def send_away(self, path):
        where = {"file": "file:///etc/passwd", "own": "brindlepost:settings?forget=all"}[path.rsplit("/", 1)[1]]
        self.give("<title>away</title>", status=302, headers=[("Location", where)])

    def endless(self, _):
        self.send_response(200)
        self.send_header("Content-Type", "text/html")
        self.send_header("Connection", "close")
        self.end_headers()
        piece = b"<div><b>endless" * 4000
        for _ in range(MOST_ENDLESS // len(piece)):
            self.wfile.write(piece)

    def bomb(self, _):
        packer = zlib.compressobj(9, zlib.DEFLATED, 31)
        data = packer.compress(b"<!doctype html><title>bomb</title>") + b"".join(
            packer.compress(b"a " * (MEGABYTE // 2)) for _ in range(100)) + packer.flush()
        self.give(data, headers=[("Content-Encoding", "gzip")])

    def breed(self, _):
        self.give("<title>breeding</title><script>open('/breeding?' + Math.random()); open('/breeding?' + Math.random());"
                  "document.onclick = () => open('/breeding')</script>")

    def login(self, path):
        if path.startswith("/loginframes"):
            frames = "".join("<iframe src='/?pal.example/'></iframe>" for _ in range(3))
            return self.give("<title>frames</title>" + frames + login_form("/got/form"))
        return self.give("<title>login</title>" + login_form("/got/form"))

    def log_message(self, *_):
        pass


class Server(socketserver.ThreadingTCPServer):
    daemon_threads = True
    request_queue_size = 128

    def __init__(self, name, log, context=None):
        super().__init__(("127.0.0.1", 0), Handler)
        self.name, self._log, self._context, self._lock = name, log, context, threading.Lock()
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def note(self, path):
        with self._lock:
            self._log.write(f"{self.name} {path[:600]}\n")
            self._log.flush()

    def finish_request(self, request, client_address):
        if self._context:
            request.settimeout(10)
            request = self._context.wrap_socket(request, server_side=True)
        super().finish_request(request, client_address)

    def handle_error(self, *_):
        pass


def main():
    certificates, log = pathlib.Path(sys.argv[1]), open(sys.argv[2], "a", encoding="utf-8", errors="replace")
    ports = {"http": Server("http", log).server_address[1]}
    for key in sorted(certificates.glob("*.key")):
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(key.with_suffix(".pem"), key)
        ports[key.stem] = Server(key.stem, log, context).server_address[1]
    print(json.dumps(ports), flush=True)
    sys.stdin.read()


if __name__ == "__main__":
    main()
