// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/PictureFile.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QMarginsF>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <array>
#include <vector>

namespace lorva {

struct FontQuizCounts;

/// The poster of the font quiz, each of its parts in its place: for the screen and for files alike.
///
/// A value. Units: points, y down, from the page's top left.
struct FontQuizPosterPage
{
    /// One line.
    struct Text
    {
        QString text;
        QFont font;
        /// The left end of its baseline.
        QPointF origin;
        /// Of a gradient, it is painted as outlines.
        QBrush brush;
    };
    struct Dot
    {
        QRectF rect;
        QColor color;
    };

    QSizeF size;
    QColor ground;
    std::vector<Text> texts;
    std::vector<Dot> dots;
    QString title;
};

/// What a poster is made for.
struct FontQuizPosterSetting
{
    QSizeF size;
    bool isDark = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    /// Left free in the bottom corner that lies at the end of lines: the buttons stand there.
    QSizeF corner;
    /// How far the bloom is, 0 … 1.
    double progress = 1;
};

/// One number of the poster while it blooms.
struct FontQuizNumberLayer
{
    /// What it has counted up to.
    int shown = 0;
    /// 0 … 1.
    double opacity = 1;
    bool operator==(const FontQuizNumberLayer &) const = default;
};

/// The total and then the categories in the order of their tiles, one coming after the other;
/// `progress` 0 … 1.
std::array<FontQuizNumberLayer, 7> fontQuizNumberLayers(const FontQuizCounts &counts,
                                                        double progress);

/// Margins of the page, in which nothing stands.
QMarginsF fontQuizPosterMargins(const QSizeF &size);
/// Everything fits into the page from 640×480 on; `sentence` with as many paragraphs as it has.
/// Thread: main.
FontQuizPosterPage fontQuizPosterPage(const FontQuizCounts &counts, const QString &sentence,
                                      const FontQuizPosterSetting &setting);

/// Paints all but the ground: text as the interface sets it on pixels, as outlines elsewhere.
/// Thread: any.
void paintPosterPage(QPainter &painter, const FontQuizPosterPage &page);
/// For a file; no fonts inside. Thread: any.
PictureContent pictureOf(const FontQuizPosterPage &page);

} // namespace lorva
