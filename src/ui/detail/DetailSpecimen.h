// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <optional>

namespace lorva {

/// What the large specimens of the detail page show, and how: the editable preview, the waterfall
/// and the comparison are given the same.
struct DetailSpecimen
{
    QString familyName;
    /// The style's label.
    QString styleName;
    QString text;
    /// At the chosen size, with the chosen features and axis values; null before there is one.
    Font font;
    /// Ems.
    double letterSpacing = 0;
    QColor foreground = Qt::black;
    /// What it is to be readable on; see groundUnder().
    QColor background = Qt::white;
    /// As FontPreviewConfiguration.
    std::optional<QImage> logoImage = {};
    double logoSizeRatio = 1.0;
    double logoSpacing = 0.15;

    bool operator==(const DetailSpecimen &) const = default;
};

} // namespace lorva
