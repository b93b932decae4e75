#!/usr/bin/env python3
"""Writes base/CaseTable.inc: the simple upper and lower case mappings of Unicode, as runs.

Usage: tools/make_case_table.py > base/CaseTable.inc

A run is {first, last, step, delta}: every `step`-th code point from `first` to `last` maps to itself plus `delta`.
ASCII is left out; the code maps it by itself.
"""

import sys
import unicodedata


def simple_lower(code):
    # The only character whose full lower case is longer than one and whose simple one is another character.
    if code == 0x130:
        return 0x69
    mapped = chr(code).lower()
    return ord(mapped) if len(mapped) == 1 else code


def simple_upper(code):
    # Where the full upper case is longer than one, the simple one is the title case, if that is one character.
    for mapped in (chr(code).upper(), chr(code).title()):
        if len(mapped) == 1:
            return ord(mapped)
    return code


def runs(mapping):
    pairs = [(c, mapping(c) - c) for c in range(0x80, 0x110000)
             if not 0xD800 <= c <= 0xDFFF and mapping(c) != c]
    found = []
    for code, delta in pairs:
        if found:
            first, last, step, run_delta = found[-1]
            gap = code - last
            if delta == run_delta and gap <= 2 and step in (0, gap):
                found[-1] = (first, code, gap, delta)
                continue
        found.append((code, code, 0, delta))
    return [(first, last, step or 1, delta) for first, last, step, delta in found]


def write(name, mapping):
    table = runs(mapping)
    print(f"inline constexpr CaseRun {name}[] = {{")
    line = "   "
    for first, last, step, delta in table:
        entry = f" {{0x{first:X}, 0x{last:X}, {step}, {delta}}},"
        if len(line) + len(entry) > 108:
            print(line)
            line = "   "
        line += entry
    print(line)
    print("};")


def main():
    print("// clang-format off")
    print(f"// Made by tools/make_case_table.py from Unicode {unicodedata.unidata_version}; do not edit.")
    write("kLowerRuns", simple_lower)
    write("kUpperRuns", simple_upper)
    return 0


if __name__ == "__main__":
    sys.exit(main())
