// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace lorva {

// What a font file may cost, however it was made. Each bound stands well above what real fonts hold
// and well below what would hurt.

/// The largest font files are emoji and CJK collections of some 200 MB; sfnt offsets end at 4 GiB.
constexpr qint64 kMaxFileSize = qint64(1) << 30;
/// Suitcases are a format of the 1990s; the largest known hold some 15 MB.
constexpr qint64 kMaxSuitcaseSize = qint64(64) << 20;
/// Real collections hold at most ten faces; headers can claim 4,294,967,295.
constexpr int kMaxFacesPerFile = 256;
/// Real fonts hold at most about forty tables; a directory can claim 65,535.
constexpr int kMaxTablesPerFace = 512;
/// The largest table in use is a colour bitmap table of some 40 MB.
constexpr qint64 kMaxTableBytes = qint64(64) << 20;
/// All tables of one face that are in memory together: outlines, layout and one colour table.
constexpr qint64 kMaxFaceBytes = qint64(160) << 20;
/// Resource maps address their lists by 16 bits.
constexpr qint64 kMaxResourceMapBytes = qint64(256) << 10;

/// Record offsets and lengths have 16 bits, so nothing beyond three times 64 KiB can be referred
/// to.
constexpr qint64 kMaxNameTableBytes = qint64(192) << 10;
/// Twenty-six kinds of name in a hundred languages; fonts with many named instances reach 1,500.
constexpr int kMaxNameRecords = 8192;
/// Family, style and PostScript names: labels of one line. Longer ones are cut.
constexpr int kMaxNameBytes = 1024;
/// Copyright, version and designer texts. Longer ones are cut.
constexpr int kMaxLongNameBytes = 8192;
/// All texts of one face that are listed; each record may point to the same bytes. The most in use
/// are some 300 KiB.
constexpr qint64 kMaxListedNameBytes = qint64(4) << 20;
/// The limit that PostScript interpreters set for a name (Adobe Technical Note 5902).
constexpr int kMaxPostScriptNameLength = 127;

/// The largest maps of real fonts take half a megabyte. Reading much larger ones for each of 256
/// faces of a collection would take seconds.
constexpr quint32 kMaxCharacterMapBytes = 4 << 20;
/// Subtables of one map: real fonts have at most about ten.
constexpr int kMaxCharacterMaps = 64;
/// Characters that the ranges of one subtable may claim together, overlaps counted: four times all
/// of Unicode.
constexpr quint64 kMaxCharacterMapWork = quint64(4) * 0x110000;
/// Scripts and languages of the layout tables together; Noto Sans has some sixty.
constexpr int kMaxLayoutLanguages = 4096;
/// Where script lists are read: they stand first, and their offsets have 16 bits.
constexpr qint64 kMaxScriptListBytes = qint64(256) << 10;
/// Offsets of axis values have 16 bits, too.
constexpr qint64 kMaxStyleAttributesBytes = qint64(256) << 10;
/// Axis values that a font names; the most in use are some hundred.
constexpr int kMaxNamedAxisValues = 4096;

/// Roboto Flex has 13 axes; HarfBuzz and the file format would take thousands.
constexpr int kMaxVariationAxes = 64;
/// Regions of one variation store. Fonts with a dozen axes reach some three hundred.
constexpr int kMaxVariationRegions = 2048;
/// The most that a published family names is a few hundred.
constexpr int kMaxNamedInstances = 4096;
/// kMaxNamedInstances for each of kMaxFacesPerFile would be a million.
constexpr int kMaxDescriptorsPerFile = 16384;
/// Axes and instances at their limits.
constexpr qint64 kMaxFvarBytes = qint64(2) << 20;

/// Table bytes of faces that nobody is drawing with just now. A Latin face takes 0.1 to 0.5 MB, a
/// CJK one up to 20: this keeps a screenful of either warm.
constexpr qint64 kWarmTableBytes = qint64(48) << 20;
/// And so many of them: three screens of small fonts, whose tables weigh less than what HarfBuzz
/// builds over them.
constexpr size_t kWarmFaces = 160;
/// Tables that are mapped instead of read, all together: one for each of those faces, and as many
/// in use.
constexpr size_t kMaxMappings = 320;

/// Feature records of one layout table. Noto's CJK fonts, with a language system for everyone, have
/// some three hundred.
constexpr int kMaxFeatureRecords = 8192;
/// Characters and named values of one character variant; real ones have a dozen.
constexpr int kMaxVariantCharacters = 4096;
constexpr unsigned kMaxVariantValues = 256;
/// The registry knows forty types; fonts with `feat` tables have at most as many.
constexpr int kMaxAatTypes = 256;
/// Selectors of a face, all types together, and feature entries of one chain.
constexpr int kMaxAatSelectors = 1024;
/// Real `morx` tables have up to some ten.
constexpr int kMaxAatChains = 64;

/// Lookups that one feature asks for. `calt` of programming fonts reaches some three hundred.
constexpr int kMaxFeatureLookups = 1024;
/// Glyphs, rules and ligatures that are looked at to tell what a feature does; Noto Nastaliq's
/// `calt` takes some hundred thousand.
constexpr quint64 kMaxLookupSteps = 4'000'000;
/// Glyphs whose change is told: more than anybody looks through, and all that CJK fonts have.
constexpr int kMaxFeatureEffects = 20'000;
/// Alternates of one glyph: `aalt` of EB Garamond has some twenty.
constexpr int kMaxGlyphAlternates = 64;
/// Letters of one ligature. The longest joins the eighteen of an Arabic honorific.
constexpr int kMaxLigatureParts = 64;

/// Short texts that are shaped twice each to find one that shows a feature: 3 to 6 ms.
constexpr int kMaxSampleShapings = 400;

/// A specimen is a line or a paragraph, never a book: shaping and breaking stay within
/// milliseconds.
constexpr int kMaxLayoutCharacters = 20000;
/// The most intricate glyphs in use have some ten thousand segments; hostile ones have millions.
constexpr int kMaxOutlineSegments = 65536;

/// Published colour fonts have at most some twenty palettes; a table can claim 65,535.
constexpr unsigned kMaxPalettes = 256;
/// Emoji fonts use some 2,500 colours.
constexpr unsigned kMaxPaletteEntries = 4096;

/// Published paint graphs are some ten levels deep.
constexpr int kMaxPaintDepth = 64;
/// The most intricate published emoji has some 500 paints, with those that it reuses.
constexpr int kMaxPaintNodes = 20'000;
/// Of all gradients of one glyph; real ones have two to ten each.
constexpr int kMaxPaintStops = 16'384;
/// Paints read for one text: a page of different emoji takes a tenth of it.
constexpr int kMaxPaintNodesPerText = 1'000'000;
/// Region factors looked at for one text.
constexpr qint64 kMaxPaintDeltaSteps = 64'000'000;
/// Segments of outlines that the colour glyphs of one text are made of, with repetitions.
constexpr qint64 kMaxColorSegments = 64'000'000;
/// The picture of one colour glyph: 2,048 by 2,048 pixels. Larger ones are scaled up.
constexpr qint64 kMaxColorImagePixels = qint64(4) << 20;
/// And of one on a page: 600 dots an inch up to 120 points.
constexpr qint64 kMaxVectorImagePixels = qint64(1) << 20;
/// All layers of one glyph that are in memory together: 64 MB.
constexpr qint64 kMaxColorLayerPixels = qint64(16) << 20;
/// How often each pixel of a colour glyph may be painted over; real glyphs do so some 50 times.
constexpr qint64 kMaxPaintsPerPixel = 100;
/// How often each pixel of a whole image may be, and the same for devices of unknown size.
constexpr qint64 kMaxPaintsPerImagePixel = 1000;
constexpr qint64 kMaxPaintedPixels = qint64(1) << 30;

/// Pictures of glyphs: the largest in use have 1,024 pixels a side.
constexpr int kMaxGlyphPictureSide = 2048;
/// Emoji fonts bring up to some twenty sizes.
constexpr quint32 kMaxBitmapStrikes = 64;
/// Parts of a strike's index; emoji fonts have fewer than twenty.
constexpr quint32 kMaxBitmapSubtables = 1024;
/// Drawn pictures that a font keeps for the next paint: a line of large emoji.
constexpr qsizetype kMaxKeptPictureBytes = qsizetype(4) << 20;

/// SVG documents once inflated; published ones reach some 2 MB for thousands of glyphs.
constexpr qsizetype kMaxSvgDocumentBytes = qsizetype(4) << 20;
/// Documents that a font keeps at hand; each serves many glyphs.
constexpr qsizetype kMaxKeptSvgBytes = qsizetype(8) << 20;
constexpr int kMaxSvgDepth = 64;
/// Documents read for one text; those of a page of different emoji have some 10 MB.
constexpr qsizetype kMaxSvgBytesPerText = qsizetype(64) << 20;
/// And drawn, counted in glyphs that cost as much as one may: a page of emoji comes to two or
/// three.
constexpr double kMaxSvgWorkPerText = 16;
constexpr double kMaxSvgDocumentElements = 50'000;
/// Of one glyph, all that it repeats counted each time; intricate emoji have some 500 elements.
constexpr double kMaxSvgElements = 5000;
/// And bytes of attributes; intricate emoji have some 200 KB.
constexpr double kMaxSvgAttributeBytes = 6e5;
/// And crossings of its outlines with themselves, of which drawn ones have few. Measured, so many
/// take half a second at the largest size, and time grows with them.
constexpr double kMaxSvgCrossings = 250'000;
/// And parts that are composed apart, each in a picture of its own.
constexpr double kMaxSvgLayers = 256;
/// Of a document's style sheets; drawing programs write one for each look, some hundred.
constexpr size_t kMaxSvgRules = 10'000;
/// Each rule of a style sheet is tried on each element.
constexpr double kMaxSvgRuleTrials = 5'000'000;
/// Strokes of a glyph's dashes are outlines each.
constexpr double kMaxSvgDashes = 100'000;
/// Pixels of the pictures that one document carries.
constexpr qint64 kMaxSvgPicturePixels = 4'000'000;

} // namespace lorva
