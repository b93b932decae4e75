"""Searching folders, adding what is found and cleaning up, beside the system's own tools: `scan.py BUILD_FOLDER`.

100,000 files in 5,000 folders, and 100,000 files in one folder, in a warm cache. The peer is `find` over the same folders and
one bulk insert of the same rows by the sqlite3 shell, in the same run; both stores end with every row durable. A thread asks
all the while how long the window takes to serve an event.
"""

import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = 5
FILES = 100_000
FOLDERS = 5_000

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "real"))
import stage as stages  # noqa: E402


def make_tree(root, folders):
    for number in range(folders):
        below = root / f"Artist Number {number // 50}" / f"Album {number % 50} of Theirs" if folders > 1 else root
        below.mkdir(parents=True, exist_ok=True)
        for song in range(number, FILES, folders):
            (below / f"Artist Number {number // 50} - A Title of Usual Length {song}.mp3").touch()


def milliseconds(action):
    begin = time.monotonic()
    action()
    return (time.monotonic() - begin) * 1000


def time_find(root, listing):
    with open(listing, "wb") as output:
        return milliseconds(lambda: subprocess.run(["find", str(root), "-name", "*.mp3"], stdout=output, check=True))


def time_insert(store, rows, work):
    """The rows that the program stored, put into an empty table of the same kind by the shell."""
    peer = work / "peer.mdb"
    for file in work.glob("peer.mdb*"):
        file.unlink()
    schema = subprocess.run(["sqlite3", str(store), ".schema"], capture_output=True, text=True, check=True).stdout
    subprocess.run(["sqlite3", str(peer), schema], check=True)
    commands = f"PRAGMA journal_mode=WAL;\nPRAGMA synchronous=FULL;\n.mode csv\n.import {rows} tblSong\n"
    took = milliseconds(lambda: subprocess.run(["sqlite3", str(peer)], input=commands, text=True, check=True,
                                               stdout=subprocess.DEVNULL))
    found = subprocess.run(["sqlite3", str(peer), "select count(*) from tblSong"], capture_output=True, text=True, check=True)
    assert found.stdout.strip() == str(FILES), found.stdout
    return took


def run_program(stage, build, root, work):
    """What it printed: (search, longest wait, add, longest wait, clean-up, longest wait), in milliseconds."""
    output = stage.run(str(build / "bench" / "scan_and_add"), str(root), str(work), timeout=120)
    numbers = [float(word) for word in output.split() if word.replace(".", "", 1).isdigit()]
    assert len(numbers) == 8 and numbers[2] == FILES and numbers[7] == FILES, output
    return numbers[0], numbers[1], numbers[3], numbers[4], numbers[5], numbers[6]


def measure(stage, build, name, folders, work):
    root = work / name
    make_tree(root, folders)
    time_find(root, work / "listing")
    rounds, peers = [], []
    for _ in range(ROUNDS):
        rounds.append(run_program(stage, build, root, work))
        store, rows = work / "dbMedia.mdb", work / "rows.csv"
        with open(rows, "wb") as output:
            subprocess.run(["sqlite3", "-csv", str(store), "select * from tblSong"], stdout=output, check=True)
        peers.append((time_find(root, work / "listing"), time_insert(store, rows, work)))
    search, wait_in_search, add, wait_in_add, clean, wait_in_clean = (statistics.median(column) for column in zip(*rounds))
    find, insert = (statistics.median(column) for column in zip(*peers))
    both, peer = (statistics.median(a + b for a, b in pairs)
                  for pairs in ([(r[0], r[2]) for r in rounds], peers))
    worst = max(max(r[1], r[3]) for r in rounds)
    print(f"{FILES} files in {folders} folders: search {search:.0f} ms and add {add:.0f} ms, together {both:.0f} ms; "
          f"find {find:.0f} ms and insert {insert:.0f} ms, together {peer:.0f} ms: {both / peer:.2f} times. "
          f"Longest wait of an event: {wait_in_search:.0f} ms searching, {wait_in_add:.0f} ms adding, worst of all "
          f"{ROUNDS} rounds {worst:.0f} ms. Clean-up {clean:.0f} ms, longest wait {wait_in_clean:.0f} ms", flush=True)


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="brindlepost-bench-", dir="/var/tmp") as folder:
        with stages.Stage(build, sound=False) as stage:
            measure(stage, build, "tree", FOLDERS, pathlib.Path(folder))
            measure(stage, build, "flat", 1, pathlib.Path(folder))
    stage.remove()


if __name__ == "__main__":
    main()
