#!/usr/bin/env python3
"""Every key in the two tables of keys is on the page of keys and in the document for users."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TABLES = ("web/PageKeysRoom.cpp", "platform/webengine/PageKeys.cpp")
PAGE = "platform/webengine/pages/keys.html"
DOCUMENT = "docs/browser.md"
NAMES = {"Escape": "Esc", "Plus": "+", "Minus": "-", "PadPlus": "+", "PadMinus": "-", "PadZero": "0"}
ROW = re.compile(r"\{\s*('.'|(?:controls::)?k\w+),\s*(k\w+),")


def name_of(key, shift):
    if key.startswith("'"):
        name = key[1]
    else:
        bare = re.sub("^k(Key)?", "", key.split("::")[-1])
        name = NAMES.get(bare, bare)
    if name == "+":
        shift = shift.replace("Shift", "")  # many keyboards have the plus above another sign
    before = [word for part, word in (("Control", "Ctrl"), ("Alt", "Alt"), ("Shift", "Shift")) if part in shift]
    return "+".join(before + [name])


def main():
    page = (ROOT / PAGE).read_text(encoding="utf-8")
    document = (ROOT / DOCUMENT).read_text(encoding="utf-8")
    found = 0
    missing = []
    for table in TABLES:
        for key, shift in ROW.findall((ROOT / table).read_text(encoding="utf-8")):
            found += 1
            name = name_of(key, shift)
            if f"<kbd>{name}</kbd>" not in page:
                missing.append(f"{PAGE}: {name} of {table}")
            if f"`{name}`" not in document:
                missing.append(f"{DOCUMENT}: {name} of {table}")
    if found < 20:
        missing.append(f"only {found} keys found: do the tables have another form?")
    print("\n".join(missing) or f"{found} keys, all listed")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
