"""Holds the preparation of every code point against the tables of RFC 3454 as Python has them.

ORTHOLAN_LIBRARY names the shared library. Where thousands of neighbours are alike every 61st is asked
for, with --all each. What is mapped is told by the categories of Unicode 3.2,
which RFC 4518 2.2 lists, case by table B.2 of the RFC.
"""

import ctypes
import os
import pathlib
import stringprep
import sys
import unicodedata

ROOT = pathlib.Path(__file__).resolve().parents[3]
UCD = unicodedata.ucd_3_2_0
PROHIBITED = (stringprep.in_table_a1, stringprep.in_table_c3, stringprep.in_table_c4,
              stringprep.in_table_c5, stringprep.in_table_c8)
DROPPED = "\u00AD\u1806\u034F\u180B\u180C\u180D\uFFFC\u200B" + "".join(map(chr, range(0xFE00, 0xFE10)))
BLANKS = "\t\n\v\f\r\x85"


class Text(ctypes.Structure):
    _fields_ = [("data", ctypes.c_char_p), ("size", ctypes.c_size_t)]


prepare_text = ctypes.CDLL(os.environ["ORTHOLAN_LIBRARY"]).ortholan_prepare_text
prepare_text.argtypes = [Text, ctypes.c_char_p, ctypes.c_size_t, ctypes.c_void_p, ctypes.c_void_p]
ROOM = ctypes.create_string_buffer(1 << 17)
SIZE = ctypes.c_size_t()


def ours(text):
    octets = text.encode("utf-8", "surrogatepass")
    if prepare_text(Text(octets, len(octets)), ROOM, len(ROOM), ctypes.byref(SIZE), None) != 0:
        return None
    return ctypes.string_at(ROOM, SIZE.value).decode()


def read_case():
    lines = (ROOT / "scripts/data/rfc3454_b2.tsv").read_text().splitlines()
    pairs = (line.split("\t") for line in lines if not line.startswith("#"))
    return {chr(int(a, 16)): "".join(chr(int(c, 16)) for c in b.split()) for a, b in pairs}


CASE = read_case()


def mapped(char):
    if char in BLANKS:
        return " "
    category = UCD.category(char)
    if char in DROPPED or category in ("Cc", "Cf"):
        return ""
    return " " if category[0] == "Z" else CASE.get(char, char)


def theirs(text):
    text = UCD.normalize("NFKC", "".join(map(mapped, text)))
    if any(char == "\uFFFD" or any(table(char) for table in PROHIBITED) for char in text):
        return None
    words, word = [], ""
    for char, after in zip(text, text[1:] + " "):
        if char == " " and UCD.category(after)[0] != "M":
            words.append(word)
            word = ""
        else:
            word += char
    return " " + "  ".join(filter(None, words + [word])) + " "


# Ideographs, syllables, surrogates, private and unassigned ones.
ALIKE = (range(0x3400, 0x4DB0), range(0x4E00, 0x9FA0), range(0xAC00, 0xF8F0),
         range(0x10500, 0x1D000), range(0x1D800, 0x2F7F0), range(0x2FA20, 0x30000))
# Nothing is assigned outside the first three planes but tags.
TAGS = range(0xE0000, 0xE1000)


def asked(points):
    if "--all" in sys.argv:
        return points
    return [point for point in points
            if point % 61 == 0 or not any(point in alike for alike in ALIKE)]


def main():
    faults = 0
    points = asked(range(0x30000))
    samples = [chr(point) for points in (points, TAGS) for point in points]
    samples += [f"a{chr(point)} \u0323b" for point in points]
    samples += ["a" + "\u0301\u0323" * count + "b" for count in (15, 16, 17, 100, 5000)]
    for sample in samples:
        if ours(sample) != theirs(sample):
            faults += 1
            if faults < 10:
                print(ascii(sample), ascii(ours(sample)), ascii(theirs(sample)), file=sys.stderr)
    others = set(range(0x30000, 0x110000, 1 if "--all" in sys.argv else 61)) - set(TAGS)
    faults += sum(ours(chr(point)) is not None for point in others)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
