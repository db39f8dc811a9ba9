#!/usr/bin/env python3
"""Writes the table of letters that searches take for others: HalvexPro/Source/HalvexPro/Private/Filters/UnitTextFoldingTable.inl.

A letter folds to what is left of its canonical decomposition without marks, in lower case. Letters that people write without
their strokes and ligatures, but Unicode does not decompose, are listed here.
"""

import pathlib
import unicodedata

RANGES = [(0x00C0, 0x0250), (0x0370, 0x0530), (0x1E00, 0x2000)]
WRITTEN_WITHOUT = {
    "æ": "ae", "œ": "oe", "ø": "o", "đ": "d", "ð": "d", "ħ": "h", "ı": "i", "ł": "l", "ŋ": "n", "þ": "th", "ŧ": "t", "ƒ": "f",
}


def fold(letter):
    lower = unicodedata.normalize("NFD", letter).casefold()
    bare = "".join(c for c in unicodedata.normalize("NFD", lower) if not unicodedata.combining(c))
    return "".join(WRITTEN_WITHOUT.get(c, c) for c in bare)


def main():
    rows = []
    for first, end in RANGES:
        for code in range(first, end):
            letter = chr(code)
            if not unicodedata.category(letter).startswith("L"):
                continue
            folded = fold(letter)
            # Those that only change their case need no row.
            if folded != letter.lower() and folded:
                rows.append('{ 0x%04X, TEXT("%s") }' % (code, "".join(c if c.isascii() else "\\x%04X" % ord(c) for c in folded)))
    lines = ["// Written by Tools/MakeTextFolding.py: letters in the order of their codes, and what searches take them for."]
    for start in range(0, len(rows), 6):
        lines.append(", ".join(rows[start : start + 6]) + ",")
    target = pathlib.Path(__file__).parent.parent / "HalvexPro/Source/HalvexPro/Private/Filters/UnitTextFoldingTable.inl"
    target.write_text("\n".join(lines) + "\n")
    print(len(rows), max(len(eval('"%s"' % r.split('"')[1])) for r in rows))


if __name__ == "__main__":
    main()
