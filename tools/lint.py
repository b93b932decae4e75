#!/usr/bin/env python3
"""clang-format and clang-tidy over the whole tree: `lint.py [format|tidy]`, both without a word.

A unit that was clean is not read again until it changes: what was clean is remembered, under the hash of the unit, the
project's headers that it reaches, how it is compiled, the rules and the version of clang-tidy. The memory is
${XDG_CACHE_HOME:-~/.cache}/brindlepost-lint, for every checkout of the user; what was not met for 30 days leaves it.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "debug"
LINT = ROOT / "build" / "lint"
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "brindlepost-lint"
DAYS_KEPT = 30
# Every version breaks lines in its own way; this one is in Debian 12 and in Debian 13.
FORMAT = "clang-format-19"
# Debian 13's version has these, Debian 12's does not and ignores their names. The first takes every system call for one that
# may fail, dirfd too, and a -1 handed to the next one, which refuses it and is asked whether it did, for a fault. The second
# takes an enumeration of bits, as rights and states are, for a list of single values. The third does not see that what a fixture
# fills where it is made is there in its tests; of the program itself it is asked.
NOT_ASKED = "-clang-analyzer-unix.StdCLibraryFunctions,-clang-analyzer-optin.core.EnumCastOutOfRange"
NOT_ASKED_OF_TESTS = NOT_ASKED + ",-bugprone-unchecked-optional-access"


def output(*command):
    return subprocess.run(command, cwd=ROOT, check=True, capture_output=True, text=True).stdout


def sources(*patterns):
    names = output("git", "ls-files", "--cached", "--others", "--exclude-standard", *patterns).split()
    return [name for name in names if (ROOT / name).exists()]


def lint_format():
    wrong = subprocess.run(["xargs", "-P", "2", "-n", "40", FORMAT, "--dry-run", "--Werror"], cwd=ROOT, text=True,
                           input="\n".join(sources("*.cpp", "*.h"))).returncode
    print("clang-format: " + ("not clean" if wrong else "clean"))
    return not wrong


class Reach:
    """The project's files that a file includes, with those that they include."""

    def __init__(self):
        self._direct = {}

    def of(self, name, found=None):
        found = set() if found is None else found
        if name not in found:
            found.add(name)
            for other in self._includes(name):
                self.of(other, found)
        return found

    def _includes(self, name):
        if name not in self._direct:
            file = ROOT / name
            quoted = re.findall(r'^\s*#\s*include\s*"([^"]+)"', file.read_text(), re.M)
            places = (file.parent, ROOT, ROOT / "tests")
            self._direct[name] = [
                next(os.path.relpath(place / other, ROOT) for place in places if (place / other).exists())
                for other in quoted if any((place / other).exists() for place in places)]
        return self._direct[name]


def compile_commands():
    """Of each source how it is compiled, without the compiled header, which is another compiler's."""
    if not (BUILD / "compile_commands.json").exists():
        subprocess.run(["cmake", "--preset", "debug"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    for entry in commands:
        entry["command"] = re.sub(r" -fpch-preprocess| -Winvalid-pch -include \S+", "", entry["command"])
    LINT.mkdir(parents=True, exist_ok=True)
    (LINT / "compile_commands.json").write_text(json.dumps(commands, indent=1))
    return {os.path.relpath(entry["file"], ROOT): entry["command"] for entry in commands}


def tidy(name):
    """What clang-tidy has to say; an empty text when it is clean."""
    but = NOT_ASKED_OF_TESTS if name.startswith("tests/") else NOT_ASKED
    run = subprocess.run(["clang-tidy", "--quiet", "-p", str(LINT), f"--checks={but}", name], cwd=ROOT, text=True,
                         capture_output=True)
    return "" if run.returncode == 0 else run.stdout or run.stderr


def lint_tidy():
    commands, reach = compile_commands(), Reach()
    rules = (ROOT / ".clang-tidy").read_text() + output("clang-tidy", "--version")
    CACHE.mkdir(parents=True, exist_ok=True)
    marks, begin = {}, time.monotonic()
    for name in sources("*.cpp"):
        if name in commands:
            whole = rules + commands[name].replace(str(ROOT), "")
            whole += "".join(file + (ROOT / file).read_text() for file in sorted(reach.of(name)))
            marks[name] = CACHE / hashlib.sha256(whole.encode()).hexdigest()
    unknown = []
    for name, mark in marks.items():
        if mark.exists():
            mark.touch()
        else:
            unknown.append(name)
    wrong = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name, answer in zip(unknown, pool.map(tidy, unknown)):
            if answer:
                wrong += 1
                print(answer)
            else:
                marks[name].touch()
    for mark in CACHE.iterdir():
        if time.time() - mark.stat().st_mtime > DAYS_KEPT * 24 * 3600:
            mark.unlink(missing_ok=True)
    print(f"clang-tidy: {wrong or 'no'} unclean units of {len(marks)}, {len(unknown)} of them read, "
          f"{time.monotonic() - begin:.0f} s")
    return not wrong and bool(marks)


def main():
    what = sys.argv[1] if len(sys.argv) > 1 else "both"
    clean = True
    if what in ("format", "both"):
        clean = lint_format() and clean
    if what in ("tidy", "both"):
        clean = lint_tidy() and clean
    return 0 if clean else 1


if __name__ == "__main__":
    sys.exit(main())
