# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Fonts for features: names, contexts, several scripts; and one that shapes with `feat` and `morx`."""
import struct

from fontTools.feaLib.builder import addOpenTypeFeaturesFromString
from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib.tables.DefaultTable import DefaultTable

FEATURES = """
languagesystem DFLT dflt;
languagesystem latn dflt;
languagesystem latn TRK;
languagesystem cyrl dflt;

feature ccmp { sub x by y; } ccmp;
feature liga { sub f f i by f_f_i; sub f i by f_i; } liga;
feature hlig { sub c t by c_t; } hlig;
feature hist { sub s by s.alt; } hist;
lookup rare useExtension { sub T h by T_h; } rare;
feature dlig { lookup rare; } dlig;
feature ss01 { featureNames { name "Round a"; name 3 1 0x407 "Rundes a"; }; sub a by a.alt; } ss01;
feature ss02 { sub b by b.alt; } ss02;
feature cv01 {
  cvParameters {
    FeatUILabelNameID { name "Tails"; };
    FeatUITooltipTextNameID { name "How the tail ends"; };
    SampleTextNameID { name "gag"; };
    ParamUILabelNameID { name "Long"; };
    ParamUILabelNameID { name "Short"; };
    Character 0x67;
    Character 0x79;
  };
  sub g from [g.alt g.two];
} cv01;
feature onum { sub one by one.old; } onum;
feature lnum { sub one.old by one; } lnum;
feature calt { sub [d e]' [d e]' s by d.alt; } calt;
feature aalt { sub a by a.alt; } aalt;
feature smcp { script latn; language TRK exclude_dflt; sub i by i.alt; } smcp;
feature c2sc { script cyrl; sub H by H.alt; } c2sc;
feature kern { pos A V -80; pos [T V] [a e] -60; } kern;
feature mark { } mark;
"""

ALTERNATES = {"a.alt": 510, "b.alt": 520, "d.alt": 530, "g.alt": 540, "g.two": 550, "s.alt": 560, "i.alt": 570,
              "H.alt": 580, "one.old": 590, "f_i": 700, "f_f_i": 900, "c_t": 710, "T_h": 720}


def box(width):
    pen = TTGlyphPen(None)
    pen.moveTo((50, 0))
    pen.lineTo((50, 500))
    pen.lineTo((width - 50, 500))
    pen.lineTo((width - 50, 0))
    pen.closePath()
    return pen.glyph()


def letters():
    names = {chr(code): chr(code) for code in (*range(0x41, 0x5B), *range(0x61, 0x7B))}
    return {**names, "space": " ", "zero": "0", "one": "1"}


def base(path, build):
    names = letters()
    widths = {".notdef": 500, **{name: 400 + 7 * index for index, name in enumerate(names)}, **ALTERNATES}
    builder = FontBuilder(1000, isTTF=True)
    builder.setupGlyphOrder(list(widths))
    builder.setupCharacterMap({ord(character): name for name, character in names.items()})
    builder.setupGlyf({name: box(width) for name, width in widths.items()})
    builder.setupHorizontalMetrics({name: (width, 50) for name, width in widths.items()})
    builder.setupHorizontalHeader(ascent=800, descent=-200)
    builder.setupNameTable({"familyName": path.stem, "styleName": "Regular", "psName": path.stem})
    builder.setupOS2()
    builder.setupPost()
    build(builder.font)
    builder.save(path)


def open_type(path):
    base(path, lambda font: addOpenTypeFeaturesFromString(font, FEATURES))


# Rising by type. Type, exclusive, index of the standard selector, name, selectors with names.
FEAT = (
    (1, False, 0, "Joins", ((2, "Plain joins"), (4, None))),
    (21, True, 1, None, ((0, None), (1, None))),
    (37, True, 0, None, ((0, "Plain"), (1, None))),
    (200, False, 0, "House", ((0, "Secret"),)),
)
# Type, selector, the bits that it sets and keeps. Bit 0 stands for common ligatures and is on at the start.
CHAIN_FEATURES = ((1, 2, 1, 0xFFFFFFFF), (1, 3, 0, 0xFFFFFFFE), (1, 4, 2, 0xFFFFFFFF), (1, 5, 0, 0xFFFFFFFD),
                  (37, 1, 4, 0xFFFFFFFF), (37, 0, 0, 0xFFFFFFFB), (21, 0, 8, 0xFFFFFFFF), (21, 1, 0, 0xFFFFFFF7))


def feat_table(font):
    def name_id(text):
        return font["name"].addMultilingualName({"en": text}, font) if text else 0xFFFF

    settings_at = 12 + 12 * len(FEAT)
    records, settings = b"", b""
    for kind, is_exclusive, standard, name, selectors in FEAT:
        flags = 0xC000 | standard if is_exclusive else 0
        offset = settings_at + len(settings)
        records += struct.pack(">HHIHH", kind, len(selectors), offset, flags, name_id(name))
        settings += b"".join(struct.pack(">HH", number, name_id(text)) for number, text in selectors)
    return struct.pack(">IHHI", 0x10000, len(FEAT), 0, 0) + records + settings


def morx_subtable(font, flags, glyph, replacement):
    """Exchanges one glyph: non-contextual, lookup format 6."""
    order = font.getGlyphID
    lookup = struct.pack(">HHHHHH", 6, 4, 1, 4, 0, 0) + struct.pack(">HH", order(glyph), order(replacement))
    lookup += struct.pack(">HH", 0xFFFF, 0xFFFF)
    return struct.pack(">III", 12 + len(lookup), 4, flags) + lookup


def morx_table(font):
    features = b"".join(struct.pack(">HHII", *entry) for entry in CHAIN_FEATURES)
    subtables = [morx_subtable(font, 1, "f", "f_i"), morx_subtable(font, 2, "c", "c_t"),
                 morx_subtable(font, 4, "a", "a.alt"), morx_subtable(font, 8, "one", "one.old")]
    length = 16 + len(features) + sum(map(len, subtables))
    chain = struct.pack(">IIII", 1, length, len(CHAIN_FEATURES), len(subtables))
    return struct.pack(">HHI", 2, 0, 1) + chain + features + b"".join(subtables)


def apple(path):
    def build(font):
        for tag, make in (("feat", feat_table), ("morx", morx_table)):
            font[tag] = DefaultTable(tag)
            font[tag].data = make(font)
    base(path, build)


FONTS = {"features.ttf": open_type, "features-aat.ttf": apple}
