// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QColor>
#include <QImage>

namespace lorva {

/// A short text without and with a feature, on one baseline, ready to be laid side by side. Null
/// images where the feature shows in nothing.
struct FeatureSampleImages
{
    QString text;
    QImage before;
    QImage after;
};

struct FeatureSampleLook
{
    QColor before;
    QColor after;
    /// For both together, in points; larger samples are set smaller.
    double widthPt = 0;
    double devicePixelRatio = 1;
};

/// Sets the sample in `font` with its variations, whatever its own features. Thread: any; the font
/// is searched for a sample, which may take tens of milliseconds.
FeatureSampleImages paintFeatureSample(const Font &font, FontTag tag,
                                       const FeatureSampleLook &look);

} // namespace lorva
