// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFile.h"

#include <QLatin1StringView>
#include <QStringView>

#include <optional>

namespace lorva {

// How heavy and how upright a face is, judged by what its designer calls it first and by its tables
// second: labels are written for people and checked by them, tables are often left at their
// defaults.

/// Weight (100–900) that a style label names; nothing when it names none and the traits must
/// decide. "W6" → 600, "Semi Bold Italic" → 600, "Condensed" → 400, "Poster" → nothing.
std::optional<int> weightFromStyleLabel(QStringView label);

/// Weight (100–900) of a weight trait (−1 … 1).
int weightFromTrait(double trait);

/// The label's weight, else the trait's.
int styleWeight(QStringView label, const FaceTraits &traits);

/// True when the face leans, carries the italic bit, or says so in its label as a word of its own.
bool isItalicStyle(QStringView label, const FaceTraits &traits);

/// A word of a style label that says nothing about weight, but may say how wide the style is or for
/// which size it was drawn.
struct NeutralStyleWord
{
    enum class Kind { width, opticalSize, spacing, other };

    QLatin1StringView word;
    Kind kind = Kind::other;
    /// Per cent of the usual width; points of the size.
    int measure = 0;
};

/// `word` in lower case and without modifiers; null for any other word.
const NeutralStyleWord *neutralStyleWord(QStringView word);

} // namespace lorva
