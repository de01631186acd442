#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Lists the characters of fonts in their blocks, by fontTools and Python's own Unicode data: FILE#FACE…

For each font a line "font", then one line per block: its name and the code points in display order. Characters
newer than Python's Unicode data come as the block "unknown".
"""
import sys
import unicodedata

from fontTools.ttLib import TTFont

# As HarfBuzz chooses: symbol maps first, then full ones, then those of plane 0.
MAPS = [(3, 0), (3, 10), (0, 6), (0, 4), (3, 1), (0, 3), (0, 2), (0, 1), (0, 0)]
ORDER = ["latin", "digits", "punctuationAndSymbols", "kana", "hangul", "han", "other", "unknown"]
IGNORABLE = [(0xAD, 0xAD), (0x34F, 0x34F), (0x61C, 0x61C), (0x115F, 0x1160), (0x17B4, 0x17B5), (0x180B, 0x180F),
             (0x200B, 0x200F), (0x202A, 0x202E), (0x2060, 0x206F), (0x3164, 0x3164), (0xFE00, 0xFE0F),
             (0xFEFF, 0xFEFF), (0xFFA0, 0xFFA0), (0xFFF0, 0xFFF8), (0x1BCA0, 0x1BCA3), (0x1D173, 0x1D17A),
             (0xE0000, 0xE0FFF)]
SYMBOLS = {"Pc", "Pd", "Ps", "Pe", "Pi", "Pf", "Po", "Sm", "Sc", "Sk", "So", "Zs"}


def within(c, *ranges):
    return any(first <= c <= last for first, last in ranges)


def characters(font):
    maps = {(each.platformID, each.platEncID): each.cmap for each in font["cmap"].tables if each.isUnicode()
            or each.isSymbol()}
    chosen = next((key for key in MAPS if key in maps), None)
    if chosen is None:
        return set()
    first_glyph = font.getGlyphOrder()[0]
    mapped = {c for c, glyph in maps[chosen].items() if glyph != first_glyph}
    if chosen == (3, 0):
        mapped |= {c - 0xF000 for c in mapped if 0xF000 <= c <= 0xF0FF}
    return mapped


def block(c):
    category = unicodedata.category(chr(c))
    if within(c, (0x30, 0x39)):
        return "digits"
    if within(c, (0x3041, 0x30FF), (0x31F0, 0x31FF), (0xFF66, 0xFF9F)):
        return "kana"
    if within(c, (0x1100, 0x11FF), (0x3130, 0x318F), (0xA960, 0xA97F), (0xAC00, 0xD7FF)):
        return "hangul"
    if within(c, (0x2E80, 0x2FDF), (0x3400, 0x4DBF), (0x4E00, 0x9FFF), (0xF900, 0xFAFF), (0x20000, 0x3FFFF)):
        return "han"
    if category == "Cn":
        return "unknown"
    if within(c, (0x41, 0x5A), (0x61, 0x7A)):
        return "latin"
    if within(c, (0xC0, 0x24F), (0x1E00, 0x1EFF)) and category[0] == "L":
        return "latin"
    return "punctuationAndSymbols" if category in SYMBOLS else "other"


def sort_letter(c):
    base = unicodedata.normalize("NFD", chr(c))[0]
    return base.upper() if base.isascii() and base.isalpha() else "["


def main(arguments):
    for argument in arguments:
        path, face = argument.rsplit("#", 1)
        blocks = {name: [] for name in ORDER}
        with TTFont(path, fontNumber=int(face), lazy=True) as font:
            for c in sorted(characters(font)):
                hidden = c < 0x20 or 0x7F <= c <= 0x9F or 0xD800 <= c <= 0xDFFF or c > 0x3FFFF
                if not hidden and not within(c, *IGNORABLE):
                    blocks[block(c)].append(c)
        blocks["latin"].sort(key=sort_letter)
        print("font")
        for name, members in blocks.items():
            if members:
                print(name, *(f"{c:X}" for c in members))


if __name__ == "__main__":
    main(sys.argv[1:])
