// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "text/Font.h"

#include <QString>
#include <QStringView>

namespace lorva {

// Which text a specimen shows. Thread: any; the memo behind coverage() is shared and locked.

/// The pangram shown for a blank sample text.
QString defaultPangram(WritingScript script);

/// The short text that stands for a script: shown for placeholders and for texts the font cannot
/// draw.
QString coverageProbe(WritingScript script);

inline constexpr int kCoverageCharacters = 1000;

/// The share (0 … 1) of the text's alphabetic scalars that the font has a glyph for; 1 for a text
/// without any. Of a long text its first kCoverageCharacters count. Memoised for the 16,384 pairs
/// of face and text asked for last.
double coverage(const Font &font, const QString &text);

/// The probe, reduced to the letters that the font has where it lacks some; the whole probe where
/// nothing would be left. A Hangul font without U+AE00, korean → "한 123"; a font of digits only,
/// latin → "Aa 123".
QString fallbackText(const Font &font, WritingScript script);

/// As much of `text` as may be seen on one line of `widthPt` points at `pointSize`: shaping a novel
/// for a line of it would take longer than a frame. Reckons with letters of a twentieth of the size
/// and leaves room for marks, which take no width; never half a surrogate pair.
QString lineExcerpt(const QString &text, double widthPt, double pointSize);

/// What a specimen in `font` shows for the user's `sampleText`: blank → the pangram; "Aa 123", "Aa"
/// and texts of which the font covers less than two thirds → the fallback; everything else as
/// typed.
QString specimenText(const QString &sampleText, const Font &font, WritingScript script);

} // namespace lorva
