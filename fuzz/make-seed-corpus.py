#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Gathers a seed corpus of small fonts of every kind into a folder.

    fuzz/make-seed-corpus.py FOLDER

Real fonts of the installed packages are cut down to a few characters with their layout tables; kinds that
no package holds are built. Needs python3-fonttools.
"""
import pathlib
import struct
import sys

from fontTools import subset
from fontTools.fontBuilder import FontBuilder
from fontTools.pens.t2CharStringPen import T2CharStringPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTCollection, TTFont

FONTS = pathlib.Path("/usr/share/fonts")
TEXT = "Aa 123 office \u05d0\u05d1\u05b8 \u0627\u0644\u0633\u0645 \u0915\u094d\u0937\u093f \u0e01\u0e47 \uac01 \u6c38 e\u0301 ."
REAL = [
    "opentype/fonts-hosny-amiri/Amiri-Regular.ttf",
    "opentype/ebgaramond/EBGaramond12-Regular.otf",
    "opentype/noto/NotoSansCJK-Regular.ttc",
    "truetype/inter-vf/Inter.var.ttf",
    "truetype/lohit-devanagari/Lohit-Devanagari.ttf",
    "truetype/dejavu/DejaVuSans.ttf",
    "truetype/liberation/LiberationSerif-Regular.ttf",
    "truetype/noto/NotoSansHebrew-Regular.ttf",
    "truetype/noto/NotoSansThai-Regular.ttf",
]
BOX = [(0, 0), (500, 0), (500, 700), (0, 700)]


def cut_down(path, target):
    options = subset.Options(layout_features=["*"], name_IDs=["*"], notdef_outline=True,
                             ignore_missing_unicodes=True, hinting=False, font_number=0)
    font = subset.load_font(str(path), options)
    subsetter = subset.Subsetter(options)
    subsetter.populate(text=TEXT)
    subsetter.subset(font)
    subset.save_font(font, str(target), options)


def draw_box(pen):
    pen.moveTo(BOX[0])
    for point in BOX[1:]:
        pen.lineTo(point)
    pen.closePath()
    return pen


def build(is_truetype):
    builder = FontBuilder(1000, isTTF=is_truetype)
    names = [".notdef", "A", "a", "space", "period"]
    builder.setupGlyphOrder(names)
    builder.setupCharacterMap({0x41: "A", 0x61: "a", 0x20: "space", 0x2E: "period"})
    if is_truetype:
        builder.setupGlyf({name: draw_box(TTGlyphPen(None)).glyph() for name in names})
    else:
        box = draw_box(T2CharStringPen(600, None)).getCharString()
        builder.setupCFF("Seed-Regular", {}, {name: box for name in names}, {})
    builder.setupHorizontalMetrics({name: (600, 0) for name in names})
    builder.setupHorizontalHeader(ascent=800, descent=-200)
    builder.setupNameTable({"familyName": "Seed", "styleName": "Regular"})
    builder.setupOS2(sTypoAscender=800, sCapHeight=700)
    builder.setupPost()
    return builder


def variable():
    builder = build(True)
    builder.setupFvar([("wght", 100, 400, 900, "Weight")],
                      [{"location": {"wght": 700}, "stylename": "Bold"}])
    builder.setupGvar({})
    return builder.font


def colored():
    builder = build(True)
    builder.setupCOLR({"A": [("A", 0), ("a", 1)]})
    builder.setupCPAL([[(1, 0, 0, 1), (0, 0, 1, 0.5)]])
    return builder.font


def suitcase(data):
    """A resource map of one `sfnt` resource around the font."""
    body = struct.pack(">L", len(data)) + data
    head = struct.pack(">LLLL", 256, 256 + len(body), len(body), 50)
    listing = struct.pack(">H4sHH", 0, b"sfnt", 0, 10) + struct.pack(">HhLL", 128, -1, 0, 0)
    resource_map = head + bytes(8) + struct.pack(">HH", 28, 50) + listing
    return head + bytes(240) + body + resource_map


def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name in REAL:
        if (FONTS / name).exists():
            cut_down(FONTS / name, folder / (pathlib.Path(name).stem + ".font"))
        else:
            print(f"{name} is not installed; left out", file=sys.stderr)
    built = {"truetype": build(True).font, "cff": build(False).font, "variable": variable(),
             "colored": colored()}
    for name, font in built.items():
        font.save(folder / f"{name}.font")
    collection = TTCollection()
    collection.fonts = [TTFont(folder / "truetype.font"), TTFont(folder / "cff.font")]
    collection.save(folder / "collection.font")
    data = (folder / "truetype.font").read_bytes()
    (folder / "suitcase.font").write_bytes(suitcase(data))
    (folder / "cut.font").write_bytes(data[: len(data) // 2])


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
