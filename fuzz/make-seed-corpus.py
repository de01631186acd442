#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Gathers a seed corpus of small fonts of every kind into a folder.

    fuzz/make-seed-corpus.py FOLDER

Real fonts of the installed packages are cut down to a few characters with their layout tables; kinds that
no package holds are built, here and by tests/fonts/make-fonts.py. Each comes once for each of the fuzzer's
trials, which the last byte chooses. Needs python3-fonttools.
"""
import pathlib
import struct
import subprocess
import sys
import tempfile

from fontTools import subset
from fontTools.fontBuilder import FontBuilder
from fontTools.pens.t2CharStringPen import T2CharStringPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTCollection, TTFont

FONTS = pathlib.Path("/usr/share/fonts")
TEXT = "Aa 123 office \u05d0\u05d1\u05b8 \u0627\u0644\u0633\u0645 \u0915\u094d\u0937\u093f \u0e01\u0e47 \uac01 \u6c38 e\u0301 . \U0001f600\u2764"
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
    "truetype/noto/NotoColorEmoji.ttf",
    "opentype/fonts-hosny-amiri/AmiriQuranColored.ttf",
    "truetype/jetbrains-mono/JetBrainsMono-Regular.ttf",
]
MAKE_FONTS = pathlib.Path(__file__).resolve().parent.parent / "tests/fonts/make-fonts.py"
# What the fuzzer looks at; larger inputs would be cut there.
LARGEST = 65536
# FontTrials.cpp: as many trials.
TRIALS = 6
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


def add(folder, name, data):
    """One seed for each trial; what is too large for the fuzzer is told and left out."""
    if len(data) + 1 > LARGEST:
        print(f"{name} is too large: {len(data)} bytes; left out", file=sys.stderr)
        return
    for trial in range(TRIALS):
        (folder / f"{name}.{trial}.font").write_bytes(data + bytes([trial]))


def real_fonts(scratch):
    for name in REAL:
        if (FONTS / name).exists():
            target = scratch / pathlib.Path(name).stem
            cut_down(FONTS / name, target)
            yield target.name, target.read_bytes()
        else:
            print(f"{name} is not installed; left out", file=sys.stderr)


def built_fonts(scratch):
    built = {"truetype": build(True).font, "cff": build(False).font, "variable": variable(),
             "colored": colored()}
    for name, font in built.items():
        font.save(scratch / name)
        yield name, (scratch / name).read_bytes()
    collection = TTCollection()
    collection.fonts = [TTFont(scratch / "truetype"), TTFont(scratch / "cff")]
    collection.save(scratch / "collection")
    yield "collection", (scratch / "collection").read_bytes()
    data = (scratch / "truetype").read_bytes()
    yield "suitcase", suitcase(data)
    yield "cut", data[: len(data) // 2]


def made_fonts(scratch):
    """Those of the tests: colour of every kind, variations, CFF2."""
    subprocess.run([sys.executable, str(MAKE_FONTS), str(scratch / "made")], check=True)
    for path in sorted((scratch / "made").glob("*.[to]t[fc]")):
        yield path.name, path.read_bytes()


def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as scratch:
        for kind in (real_fonts, built_fonts, made_fonts):
            for name, data in kind(pathlib.Path(scratch)):
                add(folder, name, data)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
