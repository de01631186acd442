# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Fonts whose glyphs are pictures: bitmaps in `sbix` and in `CBDT`, SVG documents."""
import struct
import zlib

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import newTable
from fontTools.ttLib.tables import BitmapGlyphMetrics, C_B_D_T_, E_B_L_C_
from fontTools.ttLib.tables.S_V_G_ import SVGDocument
from fontTools.ttLib.tables.sbixGlyph import Glyph
from fontTools.ttLib.tables.sbixStrike import Strike

RED, GREEN, BLUE, YELLOW = (255, 0, 0, 255), (0, 255, 0, 255), (0, 0, 255, 255), (255, 255, 0, 255)
LETTERS = "ABCDEFGH"


def png(width, height, pixel):
    """pixel(x, y) gives red, green, blue, alpha."""
    rows = b"".join(b"\0" + bytes(c for x in range(width) for c in pixel(x, y)) for y in range(height))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) +
            chunk(b"IEND", b""))


def quarters(width, height, colors=(RED, GREEN, BLUE, YELLOW)):
    """Four plain quarters: top left, top right, bottom left, bottom right."""
    return png(width, height, lambda x, y: colors[(2 * x >= width) + 2 * (2 * y >= height)])


def plain(width, height, color):
    return png(width, height, lambda x, y: color)


def box(left, bottom, right, top):
    pen = TTGlyphPen(None)
    pen.moveTo((left, bottom))
    pen.lineTo((left, top))
    pen.lineTo((right, top))
    pen.lineTo((right, bottom))
    pen.closePath()
    return pen.glyph()


def base(family, outlines):
    """Eight letters, an em of 1,000 units, all advances 1,000."""
    names = [".notdef", *LETTERS]
    builder = FontBuilder(1000, isTTF=True)
    builder.setupGlyphOrder(names)
    builder.setupCharacterMap({ord(letter): letter for letter in LETTERS})
    glyphs = {name: outlines.get(name, TTGlyphPen(None).glyph()) for name in names}
    builder.setupGlyf(glyphs)
    builder.setupHorizontalMetrics({name: (1000, glyphs[name].xMin if glyphs[name].numberOfContours else 0)
                                    for name in names})
    builder.setupHorizontalHeader(ascent=800, descent=-200)
    builder.setupNameTable({"familyName": family, "styleName": "Regular"})
    builder.setupOS2(sTypoAscender=800, sTypoDescender=-200, sCapHeight=700, sxHeight=500)
    builder.setupPost()
    return builder.font


def sbix(path):
    # E is placed from the lower left corner of its outline, which is never drawn.
    font = base("Sbix", {"E": box(100, 200, 600, 700)})
    table = font["sbix"] = newTable("sbix")
    table.version, table.flags, table.strikes = 1, 1, {}
    small = Strike(ppem=20, resolution=72)
    large = Strike(ppem=40, resolution=72)

    def put(strike, name, data, x=0, y=0, kind="png "):
        strike.glyphs[name] = Glyph(glyphName=name, graphicType=kind, imageData=data, originOffsetX=x,
                                    originOffsetY=y)

    put(small, "A", quarters(20, 20))
    put(large, "A", quarters(40, 40, (BLUE, YELLOW, RED, GREEN)))
    put(small, "B", struct.pack(">H", font.getGlyphID("A")), kind="dupe")
    put(small, "C", quarters(10, 10), x=5, y=-4)
    put(large, "D", quarters(40, 40))
    put(small, "E", quarters(10, 10))
    put(small, "F", b"II*\0", kind="tiff")
    # What points to one that points on.
    put(small, "G", struct.pack(">H", font.getGlyphID("B")), kind="dupe")
    # Half red, half blue, in columns of one pixel.
    put(small, "H", png(20, 20, lambda x, y: (RED, BLUE)[x % 2]))
    for strike in (small, large):
        table.strikes[strike.ppem] = strike
    font.save(path)


def big_metrics(size, left, top):
    metrics = BitmapGlyphMetrics.BigGlyphMetrics()
    metrics.height = metrics.width = size
    metrics.horiBearingX, metrics.horiBearingY, metrics.horiAdvance = left, top, 20
    metrics.vertBearingX = metrics.vertBearingY = metrics.vertAdvance = 0
    return metrics


def small_metrics(size, left, top):
    metrics = BitmapGlyphMetrics.SmallGlyphMetrics()
    metrics.height = metrics.width = size
    metrics.BearingX, metrics.BearingY, metrics.Advance = left, top, 20
    return metrics


def bitmap(image_format, size, left, top, data):
    glyph = C_B_D_T_.cbdt_bitmap_classes[image_format](b"", None)
    if image_format == 17:
        glyph.metrics = small_metrics(size, left, top)
    elif image_format == 18:
        glyph.metrics = big_metrics(size, left, top)
    glyph.imageData = data
    return glyph


def line_metrics():
    metrics = E_B_L_C_.SbitLineMetrics()
    for name in ("ascender", "descender", "widthMax", "caretSlopeNumerator", "caretSlopeDenominator",
                 "caretOffset", "minOriginSB", "minAdvanceSB", "maxBeforeBL", "minAfterBL", "pad1", "pad2"):
        setattr(metrics, name, 0)
    return metrics


def strike(ppem, subtables):
    """Subtables are (index format, image format, names, metrics of all)."""
    made = E_B_L_C_.Strike()
    made.bitmapSizeTable = E_B_L_C_.BitmapSizeTable()
    size = made.bitmapSizeTable
    size.colorRef, size.flags, size.bitDepth = 0, 1, 32
    size.ppemX = size.ppemY = ppem
    size.hori = size.vert = line_metrics()
    size.hori = line_metrics()
    size.startGlyphIndex, size.endGlyphIndex = 1, len(LETTERS)
    for index_format, image_format, names, metrics in subtables:
        subtable = E_B_L_C_.eblc_sub_table_classes[index_format](b"", None)
        subtable.names, subtable.indexFormat, subtable.imageFormat = names, index_format, image_format
        if metrics:
            subtable.metrics = metrics
            subtable.imageSize = 0
        made.indexSubTables.append(subtable)
    return made


def cbdt(path):
    font = base("Cbdt", {})
    index = font["CBLC"] = newTable("CBLC")
    data = font["CBDT"] = newTable("CBDT")
    index.version, data.version = 3.0, 3.0
    same = quarters(10, 10)
    pictures = {
        "A": bitmap(17, 20, 0, 20, quarters(20, 20)),
        "B": bitmap(18, 10, 5, 6, quarters(10, 10)),
        "C": bitmap(17, 10, -3, 12, quarters(10, 10)),
        "D": bitmap(19, 10, 2, 14, same),
        "E": bitmap(19, 10, 2, 14, same),
        "F": bitmap(17, 10, 0, 10, quarters(10, 10)),
        "H": bitmap(19, 10, 4, 10, same),
    }
    subtables = [(1, 17, ["A"], None), (3, 18, ["B"], None), (4, 17, ["C", "F"], None),
                 (2, 19, ["D", "E"], big_metrics(10, 2, 14)), (5, 19, ["H"], big_metrics(10, 4, 10))]
    index.strikes = [strike(20, subtables), strike(40, [(1, 17, ["A"], None)])]
    # fontTools takes the size of all from the first picture.
    for subtable in index.strikes[0].indexSubTables:
        if subtable.indexFormat in (2, 5):
            subtable.imageSize = len(same) + 4
    data.strikeData = [pictures, {"A": bitmap(17, 40, 0, 40, quarters(40, 40, (BLUE, YELLOW, RED, GREEN)))}]
    font.save(path)


SVG = '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink"%s>%s</svg>'


def svg(path):
    """A of a document of its own, compressed; B to D of one document; E with a box of its own."""
    font = base("Svg", {letter: box(100, 0, 900, 700) for letter in LETTERS})
    several = """<defs><linearGradient id="fade"><stop offset="0" stop-color="#f00"/>
<stop offset="1" stop-color="#00f"/></linearGradient><clipPath id="round"><circle cx="500" cy="-400" r="300"/></clipPath>
<mask id="half"><rect x="0" y="-800" width="500" height="800" fill="#fff"/></mask></defs>
<style>.clipped { clip-path: url(#round) } .b { fill: url(#fade) }</style>
<g id="glyph2"><rect class="b" x="100" y="-700" width="800" height="700"/></g>
<g id="glyph3" class="clipped"><rect x="100" y="-700" width="800" height="700" fill="green"/></g>
<g id="glyph4" mask="url(#half)"><path d="M100 0V-700H900V0Z" fill="currentColor"/></g>"""
    star = """<g id="glyph1"><radialGradient id="sun" gradientUnits="userSpaceOnUse" cx="500" cy="-350" r="400">
<stop offset="0" stop-color="#ffd"/><stop offset="1" stop-color="#f80"/></radialGradient>
<circle cx="500" cy="-350" r="350" fill="url(#sun)"/><g id="eye"><circle cx="380" cy="-450" r="60"/></g>
<use xlink:href="#eye" x="240"/><path d="M300 -250Q500 -50 700 -250" fill="none" stroke="#620" stroke-width="40"
stroke-linecap="round"/></g>"""
    table = font["SVG "] = newTable("SVG ")
    table.docList = [
        SVGDocument(SVG % ("", star), 1, 1, True),
        SVGDocument(SVG % ("", several), 2, 4, False),
        SVGDocument(SVG % (' id="glyph5" viewBox="0 64 64 64"',
                           '<circle cx="32" cy="32" r="30" opacity="0.5"/><path fill="#fff" d="M20 20h24v24h-24z"/>'), 5, 5,
                    False),
    ]
    font.save(path)


FONTS = {"sbix.ttf": sbix, "cbdt.ttf": cbdt, "svg.ttf": svg}
