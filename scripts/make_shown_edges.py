#!/usr/bin/env python3
"""Writes strict/names/shown_edges.inc: where runs of characters that can be seen begin and end.

Seen are letters, marks, digits, punctuation and symbols of the Unicode version that this Python
knows, without those that are there to be ignored (Default_Ignorable_Code_Point, DerivedCoreProperties)
and the blank Braille pattern.
"""
import sys
import unicodedata

IGNORED = {0x034F, 0x115F, 0x1160, 0x17B4, 0x17B5, 0x2800, 0x3164, 0xFFA0}
IGNORED.update(range(0x180B, 0x1810), range(0xFE00, 0xFE10), range(0xE0000, 0xE1000))
HIDDEN = {"Cc", "Cf", "Cs", "Co", "Cn", "Zl", "Zp", "Zs"}


def is_shown(point):
    if point == 0x20:
        return True
    return unicodedata.category(chr(point)) not in HIDDEN and point not in IGNORED


def edges():
    shown = False
    for point in range(0x110000):
        if is_shown(point) != shown:
            shown = not shown
            yield point


def main():
    line = ""
    print(f"// By scripts/make_shown_edges.py, Unicode {unicodedata.unidata_version}.")
    for edge in edges():
        cell = f"0x{edge:X},"
        if len(line) + 1 + len(cell) > 100:
            print(line)
            line = ""
        line += (" " if line else "") + cell
    print(line)


sys.exit(main())
