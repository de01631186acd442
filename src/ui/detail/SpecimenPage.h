// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "text/PictureFile.h"
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
    /// A hairline across, along the rectangle's lower edge.
    struct Rule
    {
        QRectF rect;
        QColor color;
    };
    /// A filled ellipse.
    struct Dot
    {
        QRectF rect;
        QColor color;
    };

    QSizeF size;
    std::vector<Text> texts;
    std::vector<Caption> captions;
    std::vector<Picture> pictures;
    std::vector<Rule> rules;
    std::vector<Dot> dots;
    /// Of the document, where a file has one.
    QString title;
};

/// Room around a page in a file: a page's own edges are the pane's, where ink may hang over.
inline constexpr double kFileMargin = 48;

/// Paints all of it. On pixels captions are set as the interface sets its texts; on a page without
/// pixels they are outlines. Thread: any.
void paintPage(QPainter &painter, const SpecimenPage &page);
/// Paints all but texts and pictures: what a view draws around specimens that it keeps as images.
void paintPageFurniture(QPainter &painter, const SpecimenPage &page);

/// The page with a margin around it, for a file: twice as many pixels as points in a PNG; in SVG
/// and PDF outlines, no fonts inside. `background` transparent: none. Owns a copy of the page.
/// Thread: any.
PictureContent pictureOf(const SpecimenPage &page, const QColor &background);
/// Writes that; see writePicture(). The same page gives the same bytes. Thread: any.
Result<void> writePage(const SpecimenPage &page, const QColor &background, const FilePath &target);

} // namespace lorva
