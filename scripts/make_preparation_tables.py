#!/usr/bin/env python3
"""Makes the tables of strict/matching/preparation.cpp.

    scripts/make_preparation_tables.py           writes strict/matching/preparation_tables.inc
    scripts/make_preparation_tables.py --check   tells by its exit status whether that file is current

The tables say what RFC 4518 makes of a code point for caseIgnoreMatch: the mapping of section 2.2
with table B.2 of RFC 3454, then NFKC, and which code points section 2.4 prohibits, all by Unicode
3.2. B.2 is read from data/rfc3454_b2.tsv, because Python's stringprep folds by a later Unicode; the
other tables of RFC 3454 are Python's.
"""

import os
import stringprep
import sys
import unicodedata

UCD = unicodedata.ucd_3_2_0
HERE = os.path.dirname(os.path.abspath(__file__))
TARGET = os.path.join(HERE, "..", "strict", "matching", "preparation_tables.inc")

BLOCK = 64
# Planes 0 to 2. Above them stand only what is mapped to nothing (U+E0001, U+E0020 to U+E007F) and
# what is prohibited, which the library knows without a table.
LIMIT = 0x30000

# Entries of a leaf; preparation_tables.h has the same numbers and says what they mean.
PLAIN, UNDEFINED, NOTHING, BLANK, FIRST_CLASS, FIRST_MAPPING = 0, 1, 2, 3, 4, 64
# The octet in front of a mapping: how many octets follow; whether the first of them may join what
# precedes; whether there is a blank in them, or more than twice as many octets as before.
JOINS_BEFORE, NEEDS_CARE = 0x80, 0x40
SHORT_MAPPING = 8

# Code points from PAIRS_FROM to PAIRS_TO take two octets of UTF-8 and have a table of their own: what
# becomes of them, where it is two octets as well and stands alone, or 0.
PAIRS_FROM, PAIRS_TO = 0x100, 0x800

# RFC 4518 2.2. Its "FF00-FE0F" are the variation selectors, U+FE00 to U+FE0F.
TO_NOTHING = (
    "00AD 1806 034F 180B-180D FE00-FE0F FFFC 0000-0008 000E-001F 007F-0084 0086-009F 06DD 070F "
    "180E 200C-200F 202A-202E 2060-2063 206A-206F FEFF FFF9-FFFB 1D173-1D17A E0001 E0020-E007F 200B")
TO_BLANK = "0009-000D 0085 0020 00A0 1680 2000-200A 2028-2029 202F 205F 3000"


def points(text):
    for part in text.split():
        first, _, last = part.partition("-")
        yield from range(int(first, 16), int(last or first, 16) + 1)


def mapping():
    """Section 2.2: what a code point becomes, where that is not itself."""
    table = {}
    with open(os.path.join(HERE, "data", "rfc3454_b2.tsv"), encoding="ascii") as lines:
        for line in lines:
            if not line.startswith("#"):
                source, target = line.rstrip("\n").split("\t")
                table[int(source, 16)] = "".join(chr(int(each, 16)) for each in target.split())
    table.update((point, "") for point in points(TO_NOTHING))
    table.update((point, " ") for point in points(TO_BLANK))
    return table


def prohibited(char):
    """Section 2.4."""
    return (stringprep.in_table_a1(char) or stringprep.in_table_c3(char)
            or stringprep.in_table_c4(char) or stringprep.in_table_c5(char)
            or stringprep.in_table_c8(char) or char == "\uFFFD")


def is_mark(char):
    return UCD.category(char)[0] == "M"


def compositions():
    """(first, second, composite) of every canonical pair that NFC joins, without Hangul's."""
    found = []
    for point in range(LIMIT):
        char = chr(point)
        parts = UCD.decomposition(char).split()
        if len(parts) == 2 and parts[0][0] != "<" and UCD.normalize("NFC", char) == char:
            found.append((int(parts[0], 16), int(parts[1], 16), point))
    return sorted(found)


class Tables:
    def __init__(self):
        self.mapping = mapping()
        self.pairs = compositions()
        joining = {second for _, second, _ in self.pairs}
        joining.update(range(0x1161, 0x1176))  # Vowels and finals of Hangul join what precedes them.
        joining.update(range(0x11A8, 0x11C3))
        self.joining = joining
        self.classes = {}
        self.offsets = {}
        self.pool = bytearray()
        self.leaves = []
        self.blocks = []
        entries = [self.entry(point) for point in range(LIMIT)]
        self.check(entries)
        self.pairs_folded = [self.folded_pair(point, entries[point])
                             for point in range(PAIRS_FROM, PAIRS_TO)]
        self.pool += bytes(SHORT_MAPPING)  # So that as many octets can be copied from every row.
        known = {}
        for start in range(0, LIMIT, BLOCK):
            block = tuple(entries[start:start + BLOCK])
            if block not in known:
                known[block] = len(known)
                self.leaves.extend(block)
            self.blocks.append(known[block])
        assert len(known) <= 256 and len(self.pool) + FIRST_MAPPING < 0x10000

    def stands_alone(self, char):
        """Whether `char` leaves what precedes it as it is, under normalisation and as a mark."""
        return not UCD.combining(char) and not is_mark(char) and ord(char) not in self.joining

    def class_of(self, char):
        key = (UCD.combining(char), is_mark(char))
        return FIRST_CLASS + self.classes.setdefault(key, len(self.classes))

    def entry(self, point):
        char = chr(point)
        mapped = self.mapping.get(point, char)
        text = UCD.normalize("NFKC", mapped)
        if any(map(prohibited, text)):
            return UNDEFINED
        if not text:
            return NOTHING
        if text == " ":
            return BLANK
        if text == char:
            return PLAIN if self.stands_alone(char) else self.class_of(char)
        octets = text.encode()
        # Other characters than the first join the ones before them in their own mapping, which is
        # normalised already.
        head = len(octets)
        if not self.stands_alone(UCD.normalize("NFKD", text)[0]):
            head |= JOINS_BEFORE
        if " " in text or len(octets) > 2 * len(char.encode()):
            head |= NEEDS_CARE
        assert len(octets) < NEEDS_CARE
        return self.offset(bytes([head]) + octets)

    def folded_pair(self, point, entry):
        if entry == PLAIN:
            return int.from_bytes(chr(point).encode(), "big")
        row = self.pool[entry - FIRST_MAPPING:] if entry >= FIRST_MAPPING else b"\0"
        return int.from_bytes(row[1:3], "big") if row[0] == 2 else 0

    def offset(self, row):
        if row not in self.offsets:
            self.offsets[row] = FIRST_MAPPING + len(self.pool)
            self.pool += row
        return self.offsets[row]

    def check(self, entries):
        """What the library relies on beside the numbers themselves."""
        assert max(composite for _, _, composite in self.pairs) < 0x10000
        assert FIRST_CLASS + len(self.classes) <= FIRST_MAPPING
        for first, second, composite in self.pairs:
            assert first != 0x20 and not UCD.combining(chr(first))
            assert is_mark(chr(first)) == is_mark(chr(composite))
        # A code point that decomposition leaves has its class in its own entry.
        for point, entry in enumerate(entries):
            if entry in (UNDEFINED, NOTHING):
                continue
            text = UCD.normalize("NFKC", self.mapping.get(point, chr(point)))
            assert all(len(UCD.normalize("NFD", char)) <= 4 for char in text)
            for char in UCD.normalize("NFKD", text):
                if not 0x1100 <= ord(char) < 0x1200 and not self.stands_alone(char):
                    assert FIRST_CLASS <= entries[ord(char)] < FIRST_MAPPING, hex(ord(char))
        for point in range(LIMIT, sys.maxunicode + 1):
            char = chr(point)
            assert (point in self.mapping) != prohibited(char) and UCD.normalize("NFKC", char) == char

    def rows(self, kind, name, values, digits):
        yield f"const {kind} {name}[] = {{"
        line = ""
        for value in values:
            text = f"0x{value:0{digits}X},"
            if len(line) + len(text) > 97:
                yield "   " + line
                line = ""
            line += " " + text
        yield "   " + line
        yield "};"

    def text(self):
        by_composite = sorted(range(len(self.pairs)), key=lambda at: self.pairs[at][2])
        lines = [
            "// Made by scripts/make_preparation_tables.py. Do not edit.",
            "",
            f"static_assert(kPlain == {PLAIN} && kUndefined == {UNDEFINED} && kNothing == {NOTHING});",
            f"static_assert(kBlank == {BLANK} && kFirstClass == {FIRST_CLASS});",
            f"static_assert(kFirstMapping == {FIRST_MAPPING} && kTableLimit == 0x{LIMIT:X});",
            f"static_assert(kJoinsBefore == 0x{JOINS_BEFORE:X} && kNeedsCare == 0x{NEEDS_CARE:X});",
            f"static_assert(kPairsFrom == 0x{PAIRS_FROM:X} && kPairsTo == 0x{PAIRS_TO:X});",
            f"static_assert(kShortMapping == {SHORT_MAPPING});",
            f"static_assert(kPairCount == {len(self.pairs)});",
            "",
            *self.rows("uint8_t", "kBlocks", self.blocks, 2),
            *self.rows("uint16_t", "kLeaves", self.leaves, 4),
            *self.rows("uint8_t", "kMappings", self.pool, 2),
            *self.rows("uint16_t", "kFoldedPairs", self.pairs_folded, 4),
            *self.rows("uint16_t", "kClasses", (mark << 8 | ccc for ccc, mark in self.classes), 4),
            *self.rows("uint32_t", "kPairs", (a << 16 | b for a, b, _ in self.pairs), 8),
            *self.rows("uint16_t", "kComposites", (pair[2] for pair in self.pairs), 4),
            *self.rows("uint16_t", "kByComposite", by_composite, 4),
        ]
        return "\n".join(lines) + "\n"

    def size(self):
        return (len(self.blocks) + 2 * len(self.leaves) + len(self.pool) + 2 * len(self.classes)
                + 8 * len(self.pairs) + 2 * len(self.pairs_folded))


def main(arguments):
    tables = Tables()
    if arguments == ["--check"]:
        with open(TARGET, encoding="ascii", newline="") as file:
            current = file.read() == tables.text()
        if not current:
            print("preparation_tables.inc is not what its script makes", file=sys.stderr)
        return 0 if current else 1
    if arguments:
        print(__doc__, file=sys.stderr)
        return 2
    with open(TARGET, "w", encoding="ascii", newline="") as file:
        file.write(tables.text())
    print(f"{tables.size()} octets of tables")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
