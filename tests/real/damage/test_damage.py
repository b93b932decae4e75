"""Damaged media through the whole player on the real engine: `test_damage.py BUILD_FOLDER [all|sample|FROM-TO] [KIND...]`.

Thirteen kinds, and the two files that are kept, times forty damages ("all"), or for each kind a share of them that reaches every damage over the kinds
("sample", the default), or the damages FROM to TO, where those from 40 on are the same at other places. After each damaged file the next song must start: by itself, or, when the damage made a long
song of it, when the person goes on. Each kind plays in a process of its own, several at a time; one that a damage ends
is told by the damage's name and signal, and the rest of its kind goes on in a new process.
"""

import os
import pathlib
import queue
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

KINDS = ["mp3", "wma", "mpg", "mpeg", "wav", "wmv", "mid", "mp4", "m4a", "mov", "avi", "vob", "jpeg", "kept"]
DAMAGES = 40
EACH_IN_SAMPLE = 8
AT_A_TIME = 5
# Start, patience and the way to the next song, each at its bound.
LONGEST_CASE = 20
# The library's own complaint, and the backtrace after it.
LAST_WORDS = 30


class Batch:
    """The damages of one kind: what came of each, by number."""

    def __init__(self, program, kind, numbers, folder):
        self.kind = kind
        self.results = {}
        self.names = {}
        waiting = list(numbers)
        while waiting:
            ended = self._play(program, waiting, folder)
            waiting = [number for number in waiting if number not in self.results]
            if ended is None:
                break
            self.results[ended[0]] = ended[1]
            waiting = [number for number in waiting if number != ended[0]]

    def _play(self, program, numbers, folder):
        """None when all were told; otherwise the damage that ended the process, and how."""
        environment = dict(os.environ, TMPDIR=str(folder))
        errors = open(folder / f"{self.kind}.stderr", "w+", errors="replace")
        child = subprocess.Popen([program, self.kind, *map(str, numbers)], stdout=subprocess.PIPE, stderr=errors,
                                 stdin=subprocess.DEVNULL, env=environment, text=True, start_new_session=True)
        bound = threading.Timer(LONGEST_CASE * (len(numbers) + 1), child.kill)
        bound.start()
        current = None
        for line in child.stdout:
            words = line.split(maxsplit=3)
            if words[0] == "begin":
                current = int(words[2])
                self.names[current] = words[3].strip()
            else:
                self.results[current] = line.strip()
        child.wait()
        bound.cancel()
        # What it started, its sound server, may have outlived it.
        try:
            os.killpg(child.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        errors.seek(0)
        last_words = [line.strip() for line in errors if line.strip()][-LAST_WORDS:]
        errors.close()
        if all(number in self.results for number in numbers):
            return None
        how = signal.Signals(-child.returncode).name if child.returncode < 0 else f"exit code {child.returncode}"
        left = [number for number in numbers if number not in self.results]
        return left[0], f"CRASHED {how}:" + "".join(f"\n        {line}" for line in last_words)


def sample_of(index):
    """Eight damages of a kind; over the kinds each damage comes up at least twice."""
    return sorted({(index * 3 + step * 5 + index // 5) % DAMAGES for step in range(EACH_IN_SAMPLE)})


def numbers_of(words):
    """The damages that were asked for; none for a sample of them."""
    if "all" in words:
        return range(-1, DAMAGES)
    for word in words:
        first, dash, last = word.partition("-")
        if dash:
            return range(int(first), int(last) + 1)
    return None


def play_all(program, plan):
    folder = pathlib.Path(tempfile.mkdtemp(prefix="brindlepost-damage-"))
    work, done = queue.Queue(), []
    for kind, numbers in plan:
        work.put((kind, numbers))

    def run():
        while True:
            try:
                kind, numbers = work.get_nowait()
            except queue.Empty:
                return
            done.append(Batch(program, kind, numbers, folder))

    threads = [threading.Thread(target=run) for _ in range(AT_A_TIME)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    shutil.rmtree(folder, ignore_errors=True)
    return sorted(done, key=lambda batch: KINDS.index(batch.kind))


def tell(batches):
    """How many failed."""
    failures = 0
    for batch in batches:
        well = [text for text in batch.results.values() if text.startswith("ok")]
        by_hand = sum("by hand" in text for text in well)
        slowest = max((float(text.split()[1]) for text in well), default=0)
        print(f"{batch.kind:4s} {len(well):2d} of {len(batch.results)}: the next song started "
              f"({by_hand} by hand, slowest {slowest:.1f} s)", flush=True)
        for number, text in sorted(batch.results.items()):
            if not text.startswith("ok"):
                failures += 1
                print(f"     {number:2d} {batch.names.get(number, '?')}: {text}", flush=True)
    return failures


def main():
    program = str(pathlib.Path(sys.argv[1]).resolve() / "tests" / "real" / "damage" / "damage_player")
    numbers = numbers_of(sys.argv[2:])
    kinds = [word for word in sys.argv[2:] if word in KINDS] or KINDS
    plan = [(kind, numbers or sample_of(KINDS.index(kind))) for kind in kinds]
    begin = time.monotonic()
    batches = play_all(program, plan)
    failures = tell(batches)
    count = sum(len(batch.results) for batch in batches)
    expected = sum(len(numbers) for _, numbers in plan)
    print(f"{count} files, {failures} failures, {time.monotonic() - begin:.0f} s")
    return 0 if failures == 0 and count == expected else 1


if __name__ == "__main__":
    sys.exit(main())
