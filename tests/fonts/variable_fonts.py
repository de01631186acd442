# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Variable fonts of every make, and what other software makes of them at one instance."""
import struct
from io import BytesIO
from pathlib import Path

from fontTools.fontBuilder import FontBuilder
from fontTools.misc.psCharStrings import T2CharString
from fontTools.misc.timeTools import epoch_diff
from fontTools.otlLib.builder import buildStatTable
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.subset import Options, Subsetter
from fontTools.ttLib import TTFont, newTable
from fontTools.ttLib.tables import otTables
from fontTools.ttLib.tables.DefaultTable import DefaultTable
from fontTools.ttLib.tables.TupleVariation import TupleVariation
from fontTools.varLib import builder, instancer, mutator

INTER = "/usr/share/fonts/truetype/inter-vf/Inter-roman.var.ttf"
GLYPHS = [".notdef", "A", "B"]
AXES = [("wght", 100, 400, 900, "Weight"), ("wdth", 75, 100, 125, "Width")]


def box(width, height):
    pen = TTGlyphPen(None)
    pen.moveTo((50, 0))
    pen.lineTo((50, height))
    pen.lineTo((50 + width, height))
    pen.lineTo((50 + width, 0))
    pen.closePath()
    return pen.glyph()


def wider(axes, width, advance):
    """The box's right side moves by `width`, its advance (a phantom point) by `advance`."""
    corners = [(0, 0), (0, 0), (width, 0), (width, 0)]
    return TupleVariation(axes, corners + [(0, 0), (advance, 0), (0, 0), (0, 0)])


def start(is_ttf, name):
    font = FontBuilder(1000, isTTF=is_ttf)
    font.updateHead(created=1700000000 - epoch_diff, modified=1700000000 - epoch_diff)
    font.setupGlyphOrder(GLYPHS)
    font.setupCharacterMap({0x41: "A", 0x42: "B"})
    font.setupNameTable({"familyName": name, "styleName": "Regular", "psName": name + "-Regular"}, mac=False)
    return font


def finish(font, path):
    font.setupOS2(sTypoAscender=800, sTypoDescender=-200, usWinAscent=900, usWinDescent=300, sCapHeight=700,
                  sxHeight=500, yStrikeoutPosition=300, yStrikeoutSize=50, fsSelection=0xC0, version=4)
    font.setupPost(underlinePosition=-100, underlineThickness=50)
    font.save(path)


def glyf_font(name):
    """Widths and heights on two axes; no HVAR, so that the phantom points alone tell the advances."""
    font = start(True, name)
    font.setupGlyf({".notdef": box(400, 700), "A": box(400, 700), "B": box(300, 500)})
    font.setupHorizontalMetrics({glyph: (500, 50) for glyph in GLYPHS})
    font.setupHorizontalHeader(ascent=800, descent=-200)
    font.setupFvar(AXES, [dict(stylename="Black", location=dict(wght=900, wdth=100))])
    font.setupGvar({
        "A": [wider({"wght": (0, 1, 1)}, 200, 220), wider({"wght": (-1, -1, 0)}, -100, -90),
              wider({"wdth": (0, 1, 1)}, 100, 101), wider({"wght": (0, 1, 1), "wdth": (0, 1, 1)}, 31, 33)],
        "B": [wider({"wght": (0, 0.5, 1)}, 80, 60)],
    })
    return font


def phantom(path):
    finish(glyf_font("Phantom"), path)


def segments(path):
    """avar 1: the weight 650 lies at 0.8 of the way."""
    font = glyf_font("Segments")
    avar = newTable("avar")
    avar.segments = {"wght": {-1.0: -1.0, 0.0: 0.0, 0.5: 0.8, 1.0: 1.0}, "wdth": {-1.0: -1.0, 0.0: 0.0, 1.0: 1.0}}
    font.font["avar"] = avar
    finish(font, path)


def store_bytes(axis_count, regions, rows):
    """An ItemVariationStore with one set of 16-bit deltas; regions of (start, peak, end) for each axis."""
    data = struct.pack(">HHH", len(rows), len(regions), len(regions)) + b"".join(
        struct.pack(">H", i) for i in range(len(regions)))
    data += b"".join(struct.pack(">%dh" % len(row), *row) for row in rows)
    region_list = struct.pack(">HH", axis_count, len(regions)) + b"".join(
        struct.pack(">3h", *(round(part * 16384) for part in axis)) for region in regions for axis in region)
    return struct.pack(">HIHI", 1, 12 + len(data), 1, 12) + data + region_list


def second_avar(index_map):
    """avar 2: weight pulls width along, and a full weight with a full width gives some weight back."""
    maps = struct.pack(">H", 3) + struct.pack(">6h", -16384, -16384, 0, 0, 16384, 16384)
    maps += struct.pack(">H", 4) + struct.pack(">8h", -16384, -16384, 0, 0, 8192, 4096, 16384, 16384)
    store = store_bytes(2, [[(0, 1, 1), (0, 0, 0)], [(0, 1, 1), (0, 1, 1)]], [[0, -4096], [8192, 0]])
    head = struct.pack(">HHHH", 2, 0, 0, 2) + maps
    at = len(head) + 8
    return head + struct.pack(">II", at if index_map else 0, at + len(index_map)) + index_map + store


def second_avar_font(index_map):
    def build(path):
        font = glyf_font("Second")
        finish(font, path)
        # This fonttools reads and writes avar 1 only.
        table = DefaultTable("avar")
        table.data = second_avar(index_map)
        with TTFont(path) as saved:
            saved["avar"] = table
            saved.save(path)
    return build


def metrics(path):
    """MVAR: the metrics that follow the weight."""
    font = glyf_font("Metrics")
    regions = builder.buildVarRegionList([{"wght": (0, 1, 1)}], ["wght", "wdth"])
    deltas = {"cpht": 40, "hasc": 100, "hdsc": -50, "stro": 20, "strs": 30, "undo": -10, "unds": 40, "xhgt": 60}
    data = builder.buildVarData([0], [[delta] for _, delta in sorted(deltas.items())], optimize=False)
    mvar = newTable("MVAR")
    mvar.table = otTables.MVAR()
    mvar.table.Version = 0x00010000
    mvar.table.Reserved = 0
    mvar.table.ValueRecordSize = 8
    mvar.table.VarStore = builder.buildVarStore(regions, [data])
    mvar.table.ValueRecord = []
    for index, tag in enumerate(sorted(deltas)):
        record = otTables.MetricsValueRecord()
        record.ValueTag = tag
        record.VarIdx = index
        mvar.table.ValueRecord.append(record)
    mvar.table.ValueRecordCount = len(deltas)
    font.font["MVAR"] = mvar
    finish(font, path)


def cff2(path):
    """CFF2 outlines; the advances in HVAR."""
    font = start(False, "Compact")

    def program(delta):
        # Right side: 400 + blend(delta for the heavy end).
        return T2CharString(program=[50, 0, "rmoveto", 700, "vlineto", 400, delta, 1, "blend", "hlineto",
                                     -700, "vlineto"])
    font.setupFvar(AXES[:1], [])
    regions = [{"wght": (0.0, 1.0, 1.0)}]
    font.setupCFF2({".notdef": program(0), "A": program(200), "B": program(50)}, [{}], regions)
    font.setupHorizontalMetrics({glyph: (500, 50) for glyph in GLYPHS})
    font.setupHorizontalHeader(ascent=800, descent=-200)
    store = builder.buildVarStore(builder.buildVarRegionList(regions, ["wght"]),
                                  [builder.buildVarData([0], [[0], [220], [60]], optimize=False)])
    hvar = newTable("HVAR")
    hvar.table = otTables.HVAR()
    hvar.table.Version = 0x00010000
    hvar.table.VarStore = store
    hvar.table.AdvWidthMap = hvar.table.LsbMap = hvar.table.RsbMap = None
    font.font["HVAR"] = hvar
    finish(font, path)


def named_values(path):
    """STAT of every format, one of them with names in two languages."""
    font = glyf_font("Named")
    buildStatTable(font.font, [
        dict(tag="wght", name="Weight", values=[
            dict(value=400, name={"en": "Regular", "de": "Normal"}, flags=2, linkedValue=700),
            dict(nominalValue=650, rangeMinValue=600, rangeMaxValue=800, name="Bold"),
            dict(nominalValue=900, rangeMinValue=800, name="Black"),
        ]),
        dict(tag="wdth", name="Width", values=[dict(value=75, name="Condensed", flags=1)]),
    ], locations=[dict(name="Odd", location=dict(wght=500, wdth=90))], macNames=False)
    finish(font, path)


def inter_part():
    """A few letters of Inter with all its variations."""
    font = TTFont(INTER, recalcTimestamp=False)
    options = Options(drop_tables=["GSUB", "GPOS", "GDEF"], notdef_outline=True, layout_features=[])
    subsetter = Subsetter(options)
    subsetter.populate(text="Hamburg12")
    subsetter.subset(font)
    kept = BytesIO()
    font.save(kept)
    return kept


def inter(path):
    Path(path).write_bytes(inter_part().getvalue())


def inter_at(**location):
    def build(path):
        font = TTFont(BytesIO(inter_part().getvalue()), recalcTimestamp=False)
        instancer.instantiateVariableFont(font, location, inplace=True)
        font.save(path)
    return build


def instance_of(make, location, instantiate=instancer.instantiateVariableFont):
    def build(path):
        make(path)
        with TTFont(path, recalcTimestamp=False) as font:
            done = instantiate(font, location)
            (done or font).save(path)
    return build


FONTS = {
    "phantom.ttf": phantom,
    "phantom-650-110.ttf": instance_of(phantom, dict(wght=650, wdth=110)),
    "phantom-200.ttf": instance_of(phantom, dict(wght=200, wdth=100)),
    "avar1.ttf": segments,
    "avar1-650.ttf": instance_of(segments, dict(wght=650, wdth=100)),
    "avar2.ttf": second_avar_font(b""),
    # Both axes by way of a map, swapped: weight takes the row of width and the other way round.
    "avar2-mapped.ttf": second_avar_font(struct.pack(">BBH", 0, 0x00, 2) + bytes([1, 0])),
    "mvar.ttf": metrics,
    "mvar-650.ttf": instance_of(metrics, dict(wght=650, wdth=100)),
    "cff2.otf": cff2,
    "cff2-650.otf": instance_of(cff2, dict(wght=650), mutator.instantiateVariableFont),
    "stat.ttf": named_values,
    "inter-part.ttf": inter,
    "inter-part-650.ttf": inter_at(wght=650),
    "inter-part-150.ttf": inter_at(wght=150),
}
