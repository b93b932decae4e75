"""Pages that mean harm, one row of the table each.

A page is a script that begins by itself, and goes on when it is clicked. It tells what it got hold of by asking for
"/got/WORD"; anything that arrives there is a fault. MARK stands in whatever is meant to land on the disk.
"""

import dataclasses

MARK = "hostile-payload-7c1e"
SECRET_NAME = "marked-name-of-ada"
SECRET_WORD = "marked-word-of-ada"
MEGABYTE = 1 << 20

# What a page told is harmless; what it got hold of is not.
# What lets nothing else happen waits until the word is out: `begun(what)`.
BEGAN = ("const word = new Image(); word.src = '/told/began?' + Math.random();"
         "const begun = (act) => { word.onload = word.onerror = act };")
GOT = BEGAN + "const got = (word) => { new Image().src = '/got/' + encodeURIComponent(String(word).slice(0, 200)) };"


@dataclasses.dataclass(frozen=True)
class Hostile:
    """`script` runs in a page of the site; without one the site answers `path` in a way of its own, or the page is on
    the disk."""

    name: str
    script: str = ""
    body: str = ""
    path: str = ""
    scheme: str = "http"    # or the certificate that the https site shows
    head: str = ""
    clicks: bool = True     # a person clicks into it meanwhile
    arrives: bool = True    # False: the request must not reach the site


def again(statement, every=10):
    return f"setInterval(() => {{ {statement} }}, {every}); document.onclick = () => {{ {statement} }};"


LOOPS = [
    Hostile("alert loop", "begun(() => { for (let i = 0; ; i++) alert('alert ' + i) })"),
    Hostile("confirm and prompt loop", "begun(() => { for (let i = 0; ; i++) { confirm('sure ' + i); prompt('name ' + i) } })"),
    Hostile("print loop", again("print()")),
    Hostile("beforeunload loop", "onbeforeunload = (e) => { e.preventDefault(); return e.returnValue = 'stay' };"
            + again("location.reload()", 50)),
    Hostile("beforeunload at the close of its tab", "onbeforeunload = (e) => { e.preventDefault(); e.returnValue = 'stay';"
            " for (const end = Date.now() + 20000; Date.now() < end;); return 'stay' };"),
    Hostile("endless script", "begun(() => { for (;;); })"),
    Hostile("endless script on a click", "document.onclick = () => { for (;;); }"),
    Hostile("meta refresh loop", head="<meta http-equiv=refresh content=0>"),
    Hostile("redirect loop", path="/redirect/0"),
    Hostile("password prompt loop", path="/password"),
    Hostile("window that closes itself", again("window.close(); window.stop(); open('', '_self').close()", 50)),
]

FLOODS = [
    Hostile("pop-up flood", again("open('/quiet?' + Math.random())")),
    Hostile("pop-ups that open pop-ups", path="/breeding"),
    Hostile("download flood", "let n = 0;" + again(
        "const a = document.createElement('a'); a.href = '/download/plain?' + n; a.download = 'same.bin'; a.click(); n++")),
    Hostile("downloads with hostile names", "let n = 0;" + again(
        "const f = document.createElement('iframe'); f.src = '/download/' + n++; document.body.append(f)", 60)),
    Hostile("permission flood", again(
        "navigator.geolocation.getCurrentPosition(p => got('place'), () => {});"
        "navigator.mediaDevices && navigator.mediaDevices.getUserMedia({audio: true, video: true}).then("
        "  s => got('camera'), () => {});"
        "navigator.mediaDevices && navigator.mediaDevices.getDisplayMedia({video: true}).then(s => got('screen'), () => {});"
        "navigator.permissions.query({name: 'geolocation'}).catch(() => {});"
        "navigator.requestMIDIAccess && navigator.requestMIDIAccess({sysex: true}).then(() => got('midi'), () => {});")),
    Hostile("notification flood", again(
        "Notification.requestPermission().then(p => { if (p === 'granted') got('notifications') }, () => {});"
        "try { new Notification('hostile ' + Math.random()) } catch (e) {}")),
    Hostile("title flood", "let n = 0;" + again("for (let i = 0; i < 50; i++) document.title = ++n + 'x'.repeat(3000)", 1)),
    Hostile("favicon flood", "const l = document.createElement('link'); l.rel = 'icon'; document.head.append(l);"
            + again("l.href = '/icon/small?' + Math.random()", 1)),
    Hostile("pushed state flood", "let n = 0;" + again(
        "try { for (let i = 0; i < 50; i++) history.pushState(n, '', '?' + n++) } catch (e) {} location.hash = n++", 1)),
    Hostile("colour chooser flood", body="<input type=color id=i>", script=again("i.showPicker ? 0 : 0; i.click()", 20)),
    Hostile("file chooser flood", body="<input type=file multiple id=i>", script=again("i.click()", 20)),
    Hostile("focus flood", again("focus(); blur(); moveTo(0, 0); resizeTo(10, 10); moveBy(9, 9)", 5)),
]

WAYS = [
    Hostile("data navigation", again("location = 'data:text/html,<title>data</title>' + Math.random()", 100)),
    Hostile("script navigation", again("location = 'javascript:void(document.title = Math.random())'", 5)),
    Hostile("file navigation", "const look = (u) => { fetch(u).then(r => r.text()).then(t => got('file ' + t.length), () => {});"
            " const s = document.createElement('script'); s.src = u; s.onload = () => got('file script');"
            " document.head.append(s) };"
            "for (const u of ['file:///etc/passwd', 'file:///etc/', 'filesystem:file:///etc/passwd']) look(u);"
            + again("location = 'file:///etc/passwd'; open('file:///etc/passwd')", 100)),
    Hostile("redirect to a file", path="/away/file"),
    Hostile("own scheme navigation", "for (const u of ['brindlepost://start/', 'brindlepost:settings',"
            " 'brindlepost://settings/', 'brindlepost:downloads']) { fetch(u).then(r => r.text()).then(t => got('own ' + t),"
            " () => {}); const f = document.createElement('iframe'); f.src = u; document.body.append(f);"
            " f.onload = () => { try { if (f.contentDocument.body.innerText) got('own frame') } catch (e) {} } }"
            + again("location = 'brindlepost:settings?forget=all'", 200)),
    Hostile("redirect to the own scheme", path="/away/own"),
    Hostile("foreign schemes", again("for (const s of ['mailto:x', 'tel:1', 'steam://run', 'vscode://x', 'chrome://crash',"
            " 'chrome://kill', 'view-source:/', 'about:blank#', 'qrc:/']) { const f = document.createElement('iframe');"
            " f.src = s; document.body.append(f); f.remove(); location = s }", 50)),
    Hostile("frames over local files", path="file"),
    Hostile("login page of a wrong host", path="/?pal.example"),
    Hostile("login page that looks alike", path="/pal.example"),
    Hostile("login page as its own frame", path="/loginframes?pal.example/"),
    Hostile("clipboard", again(
        "navigator.clipboard && navigator.clipboard.readText().then(t => got('clipboard ' + t), () => {});"
        "navigator.clipboard && navigator.clipboard.writeText('" + MARK + "').catch(() => {});"
        "document.execCommand('paste')", 30)),
    Hostile("full-screen trap", "const trap = () => { document.documentElement.requestFullscreen().catch(() => {});"
            " document.body.requestPointerLock(); navigator.keyboard && navigator.keyboard.lock &&"
            " navigator.keyboard.lock().catch(() => {}) };"
            "document.onclick = document.onkeydown = document.onfullscreenchange = trap; setInterval(trap, 20);"),
    Hostile("certificate of nobody", scheme="selfsigned", arrives=False),
    Hostile("certificate out of date", scheme="expired", arrives=False),
    Hostile("certificate of another host", scheme="wronghost", arrives=False),
]

WEIGHTS = [
    Hostile("200 MB of nodes", "const end = Date.now() + 1500; let b = ''; for (let i = 0; i < 2000; i++)"
            " b += '<p>' + 'node '.repeat(8); const go = () => { const d = document.createElement('div'); d.innerHTML = b;"
            " document.body.append(d); if (document.body.childElementCount < 200) setTimeout(go) }; go();"),
    Hostile("endless document", path="/endless"),
    Hostile("memory", "const kept = []; const go = () => { kept.push(new Uint8Array(" + str(16 * MEGABYTE)
            + ").fill(7)); if (kept.length < 24) setTimeout(go, 10) }; go();"),
    Hostile("workers", "const w = 'for (const end = Date.now() + 60000; Date.now() < end;) { Math.sqrt(Math.random()) }';"
            "const u = URL.createObjectURL(new Blob([w])); for (let i = 0; i < 8; i++) new Worker(u);"),
    Hostile("huge favicon", head="<link rel=icon href=/icon/huge>"),
    Hostile("drawing", body="<canvas id=c width=1600 height=1200>", script="const x = c.getContext('2d');"
            "const draw = (t) => { for (let i = 0; i < 400; i++) { x.fillStyle = 'hsl(' + (t + i) % 360 + ',90%,50%)';"
            " x.fillRect(Math.random() * 1600, Math.random() * 1200, 300, 300) } requestAnimationFrame(draw) }; draw(0);"),
    Hostile("blown-up text", path="/bomb"),
    Hostile("renderer killed", "setInterval(() => fetch('/told/alive'), 200)"),
]

# What hangs comes last: a page that was closed may hold up one of the same site.
TABLE = WAYS + FLOODS + WEIGHTS + LOOPS

# Those that every run of the tests has time for are all but these, each of which has a like among the others.
RARE = {"redirect to a file", "redirect to the own scheme", "foreign schemes", "login page as its own frame",
        "notification flood", "file chooser flood", "focus flood", "memory", "workers", "huge favicon", "drawing",
        "blown-up text", "beforeunload at the close of its tab", "endless script on a click", "meta refresh loop",
        "redirect loop", "window that closes itself"}

# What a server may call a file. The text is put into the header as it stands.
DOWNLOAD_NAMES = [
    'filename="../../../escape-' + MARK + '.txt"',
    'filename="..\\..\\..\\escape-' + MARK + '.txt"',
    'filename="/tmp/absolute-' + MARK + '.txt"',
    "filename*=UTF-8''..%2F..%2F..%2Fcoded-" + MARK + ".txt",
    "filename*=UTF-8''%2e%2e%2f" + MARK + ".txt",
    "filename*=UTF-8''bidi-%E2%80%AE" + MARK + "gnp.exe",
    "filename*=UTF-8''control-%00%01%0A%0D%1B%7F" + MARK + ".txt",
    'filename="' + "long-" * 2000 + MARK + '.txt"',
    "filename*=UTF-8''" + "%E2%82%AC" * 3000 + MARK + ".txt",
    'filename="."',
    'filename=".."',
    'filename=""',
    'filename=".bashrc-' + MARK + '"',
    'filename="~/.config/autostart/' + MARK + '.desktop"',
    'filename="-rf ' + MARK + '"',
    'filename="CON"',
    'filename="' + MARK + '.desktop"',
    'filename="' + MARK + '.txt; rm -rf ~"',
    'filename="$(touch ' + MARK + ')"',
    "filename*=UTF-8''" + MARK + "%E2%80%8B%E2%81%A6.sh",
]


def login_form(post):
    """A page with every element that the two login routines fill, which also gives away what was filled in."""
    return (f"<form name=theForm method=post action='{post}'><input name=email><input name=password><input name=login>"
            f"<input name=passwd><input type=submit name=SI></form><script>{GOT} setInterval(() => {{"
            " for (const e of document.querySelectorAll('input')) if (e.value && e.type !== 'submit') got(e.name + e.value) },"
            " 50)</script>")
