// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Activation.h"
#include "model/records/DisplayRecords.h"
#include "model/records/FontRecords.h"

#include <QColor>
#include <QImage>

#include <optional>

namespace lorva {

/// What one card shows. A value; lengths in points.
struct FontCardConfiguration
{
    FontFamilyRecord family;
    /// The style chosen by the weight control; absent: the family's default face.
    std::optional<FontStyleRecord> style;
    /// The weight control's own, for faces with a weight axis; absent: as the style has it.
    std::optional<int> weight;
    QString previewText;
    double pointSize = 36;
    ViewMode viewMode = ViewMode::grid;
    bool isSelected = false;
    /// Keys start at this card, and the focus came by keyboard.
    bool showsFocus = false;
    /// A text field stands in the specimen's place.
    bool isEdited = false;
    bool isFirstColumn = false;
    /// The top bar's hairline stands above the first row; a second one would double it.
    bool isFirstRow = false;
    QColor foregroundColor = Qt::black;
    QColor backgroundColor = Qt::white;
    std::optional<QImage> logoImage;
    double logoSizeRatio = 1.0;
    double logoSpacing = 0.15;
    std::optional<FontFamilyActivation> activation;
    bool isSystem = false;
    /// Changes with every catalog that is applied: a face that could not be loaded is then asked
    /// for again.
    qint64 catalogGeneration = 0;

    bool operator==(const FontCardConfiguration &) const = default;
};

} // namespace lorva
