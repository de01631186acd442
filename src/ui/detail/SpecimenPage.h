// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "text/TextLayout.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <vector>

namespace lorva {

/// Texts that stand ready in their places: what a stage of the detail page shows, for the screen
/// and for files alike.
///
/// A value. Units: points, y down, from the page's top left.
struct SpecimenPage
{
    struct Text
    {
        TextLayout layout;
        /// Where the layout's box has its top left.
        QPointF origin;
        QColor color;
    };
    /// Words about the specimens, in the interface's own type.
    struct Caption
    {
        QString text;
        QRectF rect;
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
        /// Points.
        int size = 11;
        QColor color;
    };
    struct Picture
    {
        QImage image;
        QRectF rect;
    };

    QSizeF size;
    std::vector<Text> texts;
    std::vector<Caption> captions;
    std::vector<Picture> pictures;
};

/// Paints all of it. Thread: any.
void paintPage(QPainter &painter, const SpecimenPage &page);

/// Writes it as PNG (twice as many pixels as points), SVG or PDF (outlines, no fonts inside), by
/// the ending of the file's name; `background` transparent: none. The file is replaced at once or
/// not at all. Fails with usage for another ending, tooLarge, and what writing gives; the detail is
/// fit to be shown. Thread: any.
Result<void> writePage(const SpecimenPage &page, const QColor &background, const FilePath &target);

} // namespace lorva
