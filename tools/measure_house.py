#!/usr/bin/env python3
"""Figures of the house: `measure_house.py [FOLDER]` prints them for a checkout.

`measure_house.py --check [FOLDER]` looks at the includes alone and fails if a folder includes what the table in
docs/architecture.md does not allow, or if headers include one another in a circle.

Functions are found by universal-ctags, which counts lambdas as functions of their own; a length goes from the line of
the name to the closing brace. A forwarder is a function of one statement in the files that wire the rooms.
"""

import collections
import json
import pathlib
import re
import subprocess
import sys

CONTROL = re.compile(r"\bWindow\(\)|\b(?:frm|cmd|mnu|lst|lbl|img|pic|tmr|dat|fra|chk|txt|cmb|drv|dir)[A-Z]\w*")
WIRING = re.compile(r"^(?:window|desktop)/.*(?:Links|Switchboard|Relays?)\.(?:h|cpp)$")


def stripped(text):
    """The text with comments, and what is inside literals, as blanks; every line stays where it is."""
    pattern = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])*\'', re.S)

    def blank(match):
        kept = match.group(0)
        if kept.startswith("/"):
            return re.sub(r"[^\n]", " ", kept)
        return '"' + re.sub(r"[^\n]", " ", kept[1:-1]) + '"'

    return pattern.sub(blank, text)


class Function:
    def __init__(self, name, first, last, code):
        self.name, self.first, self.lines = name, first, last - first + 1
        text = "\n".join(code.splitlines()[first - 1:last])
        self.body = text[text.find("{") + 1:text.rfind("}")].strip()


def _closing(code, opening):
    depth = 0
    for position in range(opening, len(code)):
        depth += {"{": 1, "}": -1}.get(code[position], 0)
        if depth == 0:
            return position
    return len(code) - 1


class House:
    def __init__(self, root):
        self.root = root
        self.allowed = self._read_table()
        self.files = {}
        for folder in self.allowed:
            for path in sorted((root / folder).rglob("*")):
                if path.suffix in (".h", ".cpp"):
                    self.files[str(path.relative_to(root))] = path.read_text()
        self.code = {name: stripped(text) for name, text in self.files.items()}
        self.includes = {name: [other for other in re.findall(r'^\s*#include "([^"]+)"', text, re.M)
                                if (root / other).exists()] for name, text in self.files.items()}

    def _read_table(self):
        """Folder to the folders it may include, from the table in docs/architecture.md, whose rows go upward."""
        page = (self.root / "docs" / "architecture.md").read_text()
        allowed = {}
        for folder, may in re.findall(r"^\| `([\w/]+)/` \|[^|]*\| ([^|]+) \|$", page, re.M):
            if may == "nothing else":
                allowed[folder] = set()
            elif may in ("all of the above", "everything"):
                allowed[folder] = set(allowed)
            else:
                allowed[folder] = {name.strip("` ") for name in re.sub(r"\(.*?\)", "", may).split(",")}
        return allowed

    def wrong_includes(self):
        """What goes upward or sideways, one line each."""
        wrong = []
        for name, others in self.includes.items():
            own = name.split("/")[0]
            for other in others:
                folder = other.split("/")[0]
                if folder != own and folder not in self.allowed[own]:
                    wrong.append(f"{name} includes {other}, and {own}/ may not include {folder}/")
        return wrong

    def circles(self):
        """Headers that include one another, one circle a line."""
        found, state, way = [], {}, []

        def visit(name):
            state[name] = "open"
            way.append(name)
            for other in self.includes.get(name, []):
                if state.get(other) == "open":
                    found.append(" > ".join(way[way.index(other):] + [other]))
                elif other not in state:
                    visit(other)
            way.pop()
            state[name] = "done"

        for name in self.files:
            if name not in state:
                visit(name)
        return found

    def interfaces(self):
        """Classes with a pure virtual function, by file, in the folders of rooms and in roles/."""
        found = collections.defaultdict(list)
        for name, code in self.code.items():
            if name.split("/")[0] in ("base", "ports", "controls", "store", "platform", "app"):
                continue
            for match in re.finditer(r"\b(?:class|struct)\s+(\w+)[^;{()]*\{", code):
                body = code[match.end():_closing(code, match.end() - 1)]
                if re.search(r"\)\s*(?:const\s*)?(?:noexcept\s*)?=\s*0\s*;", body):
                    found[name].append(match.group(1))
        return found

    def functions(self):
        """All functions with a body, as pairs of file and function."""
        answer = subprocess.run(
            ["ctags", "--languages=C++", "--langmap=C++:.cpp.h", "--kinds-C++=f", "--fields=+ne", "--output-format=json",
             "-f", "-", "-L", "-"], input="\n".join(self.files), cwd=self.root, capture_output=True, text=True, check=True)
        tags = map(json.loads, answer.stdout.splitlines())
        return [(tag["path"], Function(tag["name"], tag["line"], tag["end"], self.code[tag["path"]]))
                for tag in tags if "end" in tag]


def report(house):
    interfaces = house.interfaces()
    count = sum(map(len, interfaces.values()))
    # A consumer's own words for what it needs of others, or the words of a subject that others use.
    outgoing = {name: classes for name, classes in interfaces.items()
                if name.startswith("roles/") or re.search(r"(Outgoing|Outlets)\.h$", name)}
    print(f"interfaces between rooms    {count}, of them outgoing {sum(map(len, outgoing.values()))}")
    for name, classes in sorted(interfaces.items()):
        print(f"    {name}: {', '.join(classes)}")

    found = house.functions()
    short = [(name, function) for name, function in found
             if not function.name.startswith("__anon") and function.body.count(";") == 1]
    forwarders = [(name, function) for name, function in short if WIRING.match(name)]
    touching = [f"{name}:{f.first} {f.name}" for name, f in forwarders if CONTROL.search(f.body)]
    print(f"one-statement forwarders    {len(forwarders)}, of them touching a control {len(touching)}")
    for name, number in collections.Counter(name for name, _ in forwarders).most_common():
        print(f"    {name}: {number}")
    for line in touching:
        print(f"    touches a control: {line}")
    print(f"functions of one statement in the main window's folder  "
          f"{sum(name.startswith(('window/', 'desktop/')) for name, _ in short)}")

    print(f"includes that go upward     {len(house.wrong_includes())}")
    print(f"circles of includes         {len(house.circles())}")

    found = [(name, function) for name, function in found if name.endswith(".cpp")]
    lengths = sorted(function.lines for _, function in found)
    part = {name: lengths[min(len(lengths) - 1, int(len(lengths) * share))]
            for name, share in (("median", 0.5), ("p90", 0.9), ("p99", 0.99))}
    print(f"functions in *.cpp          {len(lengths)}, lines: median {part['median']}, p90 {part['p90']}, "
          f"p99 {part['p99']}, longest {lengths[-1]}")
    for name, function in sorted(found, key=lambda entry: -entry[1].lines)[:10]:
        print(f"    {function.lines:3} {name}:{function.first} {function.name}")


def main():
    arguments = sys.argv[1:]
    check = "--check" in arguments
    folders = [text for text in arguments if text != "--check"]
    house = House(pathlib.Path(folders[0] if folders else pathlib.Path(__file__).parent.parent).resolve())
    if not check:
        report(house)
        return 0
    wrong = house.wrong_includes() + ["a circle: " + circle for circle in house.circles()]
    if not house.includes or not house.allowed:
        wrong.append("nothing was found to look at")
    print("\n".join(wrong) or f"{len(house.files)} files, no circle, nothing upward")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
