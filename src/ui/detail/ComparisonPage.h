// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/SpecimenPage.h"

#include <vector>

namespace lorva {

// What a comparison consists of, without widgets. Thread: any. Units: points.

enum class ComparisonMode { beside, overlaid };

/// A family beside the one that is shown.
struct ComparedFace
{
    QString familyName;
    QString styleName;
    /// Null while it is on its way. A stand-in is not drawn: it would pass for the family.
    Font font;
};

struct Comparison
{
    DetailSpecimen specimen;
    std::vector<ComparedFace> others;
    ComparisonMode mode = ComparisonMode::beside;
    /// The others are scaled so that their small letters are as high as those of the specimen.
    bool matchesXHeight = false;
};

/// How many characters of a text, and lines of one face, are compared: what a glance takes in.
inline constexpr int kMostComparedCharacters = 2000;
inline constexpr int kMostComparedLines = 24;
/// Free behind a caption, for the button that takes the face out.
inline constexpr int kCaptionButtonSide = 24;

struct ComparisonPage
{
    SpecimenPage page;
    /// For each text of the page what it is cut at.
    std::vector<QRectF> rooms;
    /// For each of the others the place of the button behind its caption.
    std::vector<QRect> buttons;
};

/// beside: in columns where they hold a few words each, else in fewer columns or one below the
/// other; faces in one row share every baseline, so that small letters can be compared by eye.
/// overlaid: all on the same origin and baselines, broken where the specimen breaks, the specimen
/// in its own colour and the others in transparent tints over it. The specimen alone has features
/// and axis values; letter spacing goes for all. `isMirrored`: the first column is at the right.
ComparisonPage layOutComparison(const Comparison &comparison, double width, bool isMirrored);

/// How many columns of a comparison stand beside each other.
int comparisonColumns(int faces, double width, double pointSize);

/// The other face at the specimen's size, or with the specimen's x-height if both have one.
Font comparedFont(const Font &other, const Font &specimen, bool matchesXHeight);

/// The colour, transparency included, of the face at `index` among the others when they are
/// overlaid: seen on the background (3:1 at least) and told apart from each other and from the
/// foreground.
QColor comparisonTint(int index, const QColor &foreground, const QColor &background);

} // namespace lorva
