// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "text/TextLayout.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <optional>

namespace lorva {

/// All that a specimen line needs to know: what to show, in which face, how.
///
/// A value; workers read copies of it. Lengths are points.
struct FontPreviewConfiguration
{
    /// The user's sample text; may be blank, see specimenText().
    QString text;
    QString familyName;
    /// The whole record rather than its label: a label alone does not name a file. Absent: the
    /// family's default face.
    std::optional<FontStyleRecord> style;
    /// Of the 100–900 scale, for faces with a weight axis; absent: as the style has it.
    std::optional<int> weight;
    double pointSize = 36;
    TextAlignment alignment = TextAlignment::natural;
    /// Text and logo tint.
    QColor textColor = Qt::black;
    /// Drawn before the text; absent: text only.
    std::optional<QImage> logoImage;
    /// Logo height as a multiple of the font's cap height.
    double logoSizeRatio = 1.0;
    /// Gap after the logo as a multiple of the point size.
    double logoSpacing = 0.15;
    /// One line that ends in an ellipsis instead of wrapping.
    bool singleLine = false;
    WritingScript primaryScript = WritingScript::latin;
    /// A face that is not at hand is loaded by a worker instead of on the calling thread.
    bool prefersAsyncResolution = false;

    bool operator==(const FontPreviewConfiguration &) const = default;
};

} // namespace lorva
