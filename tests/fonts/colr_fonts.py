# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Colour fonts with COLR and CPAL: every kind of paint on boxes, so that a pixel tells which is wrong.

The outlines, in font units of 1,000 to the em: "box" is 100 ... 900 by 0 ... 800, "left" its left half, "bottom" its
lower half, "small" the square of 200 around its middle.
"""
from fontTools.colorLib.builder import ColorPaletteType
from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib.tables import otTables as ot
from fontTools.varLib import builder as variations

RED, GREEN, BLUE, YELLOW, ORANGE, TEAL = range(6)
FOREGROUND = 0xFFFF
PALETTES = [
    [(1, 0, 0, 1), (0, 1, 0, 1), (0, 0, 1, 1), (1, 1, 0, 1), (1, 0.5, 0, 1), (0, 0.4, 0.6, 1)],
    [(0, 1, 1, 1), (1, 0, 1, 1), (1, 1, 0, 0.5), (0, 0, 1, 1), (0, 0.5, 1, 1), (1, 0.6, 0.4, 1)],
]
BOXES = {
    "box": (100, 0, 900, 800),
    "left": (100, 0, 500, 800),
    "bottom": (100, 0, 900, 400),
    "small": (400, 300, 600, 500),
}
P = ot.PaintFormat


def named(character):
    return f"color{ord(character):04X}"


def drawn(box):
    pen = TTGlyphPen(None)
    if box:
        left, bottom, right, top = box
        pen.moveTo((left, bottom))
        for point in ((left, top), (right, top), (right, bottom)):
            pen.lineTo(point)
        pen.closePath()
    return pen.glyph()


class Statics:
    """Makes paints with the values that they are given."""

    store = None

    def paint(self, name, values, **fields):
        return dict(Format=getattr(P, "Paint" + name), **{key: value for key, (_, value) in values.items()}, **fields)

    def affine(self, child, values):
        return dict(Format=P.PaintTransform, Paint=child, Transform=tuple(values))

    def line(self, stops, extend):
        return dict(Extend=extend, ColorStop=[
            dict(StopOffset=offset, PaletteIndex=entry, Alpha=alpha) for offset, entry, alpha in stops])

    def clip(self, box):
        return tuple(box)


class Variables(Statics):
    """Makes paints of the variable kinds that have their neutral values at weight 400, those given at 900."""

    def __init__(self, is_mapped):
        self.deltas = []
        self.is_mapped = is_mapped

    def vary(self, pairs):
        """The variation index of pairs of a neutral value and the wanted one, both in units of their last place."""
        base = len(self.deltas)
        self.deltas += [[round(wanted) - round(neutral)] for neutral, wanted in pairs]
        return base

    @staticmethod
    def unit(key):
        if "angle" in key.lower():
            return 16384 / 180
        return 16384 if key.lower().startswith(("scale", "alpha")) else 1

    def paint(self, name, values, **fields):
        if not values:
            return super().paint(name, values, **fields)
        base = self.vary([(neutral * self.unit(key), wanted * self.unit(key))
                          for key, (neutral, wanted) in values.items()])
        neutrals = {key: neutral for key, (neutral, _) in values.items()}
        return dict(Format=getattr(P, "PaintVar" + name), VarIndexBase=base, **neutrals, **fields)

    def affine(self, child, values):
        base = self.vary([(a * 65536, b * 65536) for a, b in zip((1, 0, 0, 1, 0, 0), values)])
        neutral = dict(xx=1, yx=0, xy=0, yy=1, dx=0, dy=0, VarIndexBase=base)
        return dict(Format=P.PaintVarTransform, Paint=child, Transform=neutral)

    def line(self, stops, extend):
        return dict(Extend=extend, ColorStop=[
            dict(StopOffset=0.25, PaletteIndex=entry, Alpha=0.5, VarIndexBase=self.vary(
                [(0.25 * 16384, offset * 16384), (0.5 * 16384, alpha * 16384)]))
            for offset, entry, alpha in stops])

    def clip(self, box):
        return (0, 0, 1000, 1000, self.vary(zip((0, 0, 1000, 1000), box)))

    def tables(self):
        regions = variations.buildVarRegionList([dict(wght=(0, 1, 1))], ["wght"])
        if not self.is_mapped:
            return variations.buildVarStore(regions, [variations.buildVarData([0], self.deltas)]), None
        # Backwards, and shared out between two sets of deltas.
        half = len(self.deltas) // 2
        first, second = self.deltas[:half][::-1], self.deltas[half:][::-1]
        store = variations.buildVarStore(
            regions, [variations.buildVarData([0], first), variations.buildVarData([0], second)])
        places = [half - 1 - i for i in range(half)]
        places += [(1 << 16) + len(second) - 1 - i for i in range(len(second))]
        # The map leads each of colorLib's own index numbers to where its delta stands.
        return store, variations.buildDeltaSetIndexMap(places)


class Paints:
    def __init__(self, kind):
        self.kind = kind

    def solid(self, entry, alpha=1.0):
        return self.kind.paint("Solid", dict(Alpha=(0.5, alpha)), PaletteIndex=entry)

    def glyph(self, name, child):
        return dict(Format=P.PaintGlyph, Glyph=name, Paint=child)

    def fill(self, name, entry, alpha=1.0):
        return self.glyph(name, self.solid(entry, alpha))

    def layers(self, *children):
        return dict(Format=P.PaintColrLayers, Layers=list(children))

    def linear(self, points, stops, extend="pad"):
        names = ("x0", "y0", "x1", "y1", "x2", "y2")
        values = {name: (0, value) for name, value in zip(names, points)}
        return self.kind.paint("LinearGradient", values, ColorLine=self.kind.line(stops, extend))

    def radial(self, circles, stops, extend="pad"):
        names = ("x0", "y0", "r0", "x1", "y1", "r1")
        values = {name: (0, value) for name, value in zip(names, circles)}
        return self.kind.paint("RadialGradient", values, ColorLine=self.kind.line(stops, extend))

    def sweep(self, center, angles, stops, extend="pad"):
        names = ("centerX", "centerY", "startAngle", "endAngle")
        values = {name: (0, value) for name, value in zip(names, (*center, *angles))}
        return self.kind.paint("SweepGradient", values, ColorLine=self.kind.line(stops, extend))

    def moved(self, name, child, center=None, **values):
        neutral = 1 if name.startswith("Scale") else 0
        pairs = {key: (neutral, value) for key, value in values.items()}
        if center:
            name += "AroundCenter"
            pairs |= dict(centerX=(0, center[0]), centerY=(0, center[1]))
        return self.kind.paint(name, pairs, Paint=child)

    def composite(self, mode, source, backdrop):
        return dict(Format=P.PaintComposite, CompositeMode=mode, SourcePaint=source, BackdropPaint=backdrop)


RED_TO_BLUE = [(0, RED, 1.0), (1, BLUE, 1.0)]
MIDDLE = (500, 400)


def pictures(kind):
    """From the character to its paint."""
    p = Paints(kind)
    small = p.fill("small", RED)

    def gradient(paint):
        return p.glyph("box", paint)

    result = {
        "A": p.fill("box", RED),
        "B": p.layers(p.fill("box", RED), p.fill("left", BLUE, 0.5)),
        "C": p.fill("box", FOREGROUND, 0.5),
        "D": gradient(p.linear((300, 0, 700, 0, 300, 100), RED_TO_BLUE)),
        "E": gradient(p.linear((300, 0, 500, 0, 300, 100), RED_TO_BLUE, "repeat")),
        "F": gradient(p.linear((300, 0, 500, 0, 300, 100), RED_TO_BLUE, "reflect")),
        "G": gradient(p.linear((100, 0, 900, 0, 900, 800), RED_TO_BLUE)),
        "H": gradient(p.radial((*MIDDLE, 0, *MIDDLE, 400), RED_TO_BLUE)),
        "I": gradient(p.radial((300, 400, 50, 700, 400, 150), RED_TO_BLUE)),
        "J": gradient(p.sweep(MIDDLE, (0, 180), RED_TO_BLUE)),
        "K": gradient(p.sweep(MIDDLE, (0, 90), RED_TO_BLUE, "repeat")),
        "L": gradient(p.sweep(MIDDLE, (90, 0), RED_TO_BLUE)),
        "M": dict(Format=P.PaintColrGlyph, Glyph=named("A")),
        "N": p.moved("Translate", small, dx=200, dy=100),
        "O": p.moved("Scale", small, scaleX=0.5, scaleY=1.5),
        "P": p.moved("Scale", small, MIDDLE, scaleX=1.75, scaleY=0.5),
        "Q": p.moved("ScaleUniform", small, scale=0.5),
        "R": p.moved("ScaleUniform", small, MIDDLE, scale=1.75),
        "S": p.moved("Translate", p.moved("Rotate", small, angle=90), dx=800, dy=0),
        "T": p.moved("Rotate", small, MIDDLE, angle=45),
        "U": p.moved("Translate", p.moved("Skew", small, xSkewAngle=45, ySkewAngle=0), dx=500, dy=0),
        "V": p.moved("Skew", small, MIDDLE, xSkewAngle=0, ySkewAngle=45),
        "W": kind.affine(small, (0, 1, -1, 0, 800, 0)),
        "X": p.fill("box", RED),
        "Y": p.glyph("left", p.layers(p.fill("bottom", RED))),
        "Z": p.layers(p.fill("left", RED), dict(Format=P.PaintColrGlyph, Glyph=named("X"))),
        "a": p.layers(p.fill("left", RED), dict(Format=P.PaintColrGlyph, Glyph=named("a"))),
        "b": p.solid(BLUE),
        "c": p.solid(BLUE),
        "d": gradient(p.moved("Translate", p.linear((300, 0, 700, 0, 300, 100), RED_TO_BLUE), dx=100, dy=0)),
        "e": gradient(p.linear((100, 0, 900, 0, 100, 100),
                               [(0, RED, 1.0), (0.5, RED, 1.0), (0.5, BLUE, 1.0), (1, BLUE, 1.0)])),
        "f": gradient(p.linear((100, 0, 900, 0, 100, 100), [(0, RED, 1.0), (1, BLUE, 0.0)])),
        "g": gradient(p.linear((100, 0, 900, 0, 100, 100), [(0.5, GREEN, 1.0)])),
        "h": gradient(p.linear((100, 0, 900, 0, 100, 100), [(0.5, RED, 1.0), (0.5, BLUE, 1.0)])),
        "i": gradient(p.linear((100, 0, 900, 0, 100, 100), [(-1, RED, 1.0), (1.5, BLUE, 1.0)])),
        "j": gradient(p.linear((100, 0, 500, 0, 100, 100), [(0.25, RED, 1.0), (0.5, BLUE, 1.0)], "reflect")),
        "k": gradient(p.linear((100, 0, 900, 0, 500, 0), RED_TO_BLUE)),
        "l": gradient(p.radial((*MIDDLE, 100, *MIDDLE, 200), RED_TO_BLUE, "repeat")),
        "m": gradient(p.radial((400, 400, 100, 700, 400, 100), RED_TO_BLUE)),
        "n": gradient(p.sweep(MIDDLE, (-90, 90), RED_TO_BLUE)),
        "o": gradient(p.sweep(MIDDLE, (90, 90), RED_TO_BLUE)),
        "p": gradient(p.radial((*MIDDLE, 400, *MIDDLE, 0), RED_TO_BLUE)),
        "q": p.moved("Rotate", gradient(p.linear((300, 0, 700, 0, 300, 100), RED_TO_BLUE)), MIDDLE, angle=90),
        "r": p.composite("src_over", p.fill("left", BLUE), p.fill("box", RED)),
        "s": p.composite("src_in", p.solid(GREEN), p.fill("left", RED)),
        "t": gradient(p.radial((300, 400, 0, 500, 400, 300), RED_TO_BLUE, "reflect")),
        "u": p.glyph("box", p.moved("Scale", p.sweep(MIDDLE, (0, 360), RED_TO_BLUE), MIDDLE, scaleX=1.5, scaleY=0.5)),
    }
    for number, mode in enumerate(sorted(ot.CompositeMode, key=int)):
        result[chr(0xE100 + number)] = p.composite(mode, p.fill("bottom", TEAL, 0.5), p.fill("left", ORANGE))
    return result


CLIPS = {"X": (100, 0, 500, 400), "b": (200, 100, 800, 700)}


def base(characters):
    order = [".notdef", *BOXES, *map(named, characters)]
    fonts = FontBuilder(1000, isTTF=True)
    fonts.setupGlyphOrder(order)
    fonts.setupCharacterMap({ord(character): named(character) for character in characters})
    # Where colour fails, the small square shows.
    boxes = {name: BOXES.get(name, BOXES["small"]) for name in order} | {".notdef": None}
    fonts.setupGlyf({name: drawn(box) for name, box in boxes.items()})
    fonts.setupHorizontalMetrics({name: (1000, box[0] if box else 0) for name, box in boxes.items()})
    fonts.setupHorizontalHeader(ascent=800, descent=-200)
    fonts.setupNameTable(dict(familyName="Colours", styleName="Regular", psName="Colours-Regular"))
    fonts.setupOS2(sTypoAscender=800, sTypoDescender=-200, sCapHeight=700, sxHeight=500)
    fonts.setupPost()
    return fonts


def palettes(fonts):
    fonts.setupCPAL(PALETTES,
                    paletteTypes=[ColorPaletteType.USABLE_WITH_LIGHT_BACKGROUND,
                                  ColorPaletteType.USABLE_WITH_DARK_BACKGROUND],
                    paletteLabels=[dict(en="Day", de="Tag"), dict(en="Night", de="Nacht")],
                    paletteEntryLabels=["Fill", None, "Outline", None, None, None])


def version0(path):
    fonts = base("AB")
    fonts.setupCOLR({named("A"): [("box", RED), ("left", BLUE)], named("B"): [("box", FOREGROUND)]}, version=0)
    palettes(fonts)
    fonts.save(path)


def version1(path, kind):
    paints = pictures(kind)
    fonts = base(paints)
    clips = {named(character): kind.clip(box) for character, box in CLIPS.items()}
    store, index_map = (None, None)
    if isinstance(kind, Variables):
        store, index_map = kind.tables()
        fonts.setupFvar([("wght", 400, 400, 900, "Weight")], [])
    fonts.setupCOLR({named(character): paint for character, paint in paints.items()}, version=1,
                    varStore=store, varIndexMap=index_map, clipBoxes=clips)
    palettes(fonts)
    fonts.save(path)


FONTS = {
    "colr0.ttf": version0,
    "colr1.ttf": lambda path: version1(path, Statics()),
    "colr1-variable.ttf": lambda path: version1(path, Variables(is_mapped=False)),
    "colr1-mapped.ttf": lambda path: version1(path, Variables(is_mapped=True)),
}
