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
/// The limit that PostScript interpreters set for a name (Adobe Technical Note 5902).
constexpr int kMaxPostScriptNameLength = 127;

/// Roboto Flex has 13 axes; HarfBuzz and the file format would take thousands.
constexpr int kMaxVariationAxes = 64;
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

/// A specimen is a line or a paragraph, never a book: shaping and breaking stay within
/// milliseconds.
constexpr int kMaxLayoutCharacters = 20000;
/// The most intricate glyphs in use have some ten thousand segments; hostile ones have millions.
constexpr int kMaxOutlineSegments = 65536;

} // namespace lorva
