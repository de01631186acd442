// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizPosterPage.h"

#include <QPaintEngine>
#include <QPainterPath>

#include <cmath>
#include <memory>

namespace lorva {

namespace {

constexpr int kPngPixelsPerPoint = 2;

void paintText(QPainter &painter, const FontQuizPosterPage::Text &line)
{
    const bool hasPixels =
        painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
    if (hasPixels && line.brush.style() == Qt::SolidPattern) {
        painter.setFont(line.font);
        painter.setPen(line.brush.color());
        painter.drawText(QPointF(line.origin.x(), std::round(line.origin.y())), line.text);
        return;
    }
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    outlines.addText(line.origin, line.font, line.text);
    painter.fillPath(outlines, line.brush);
}

} // namespace

void paintPosterPage(QPainter &painter, const FontQuizPosterPage &page)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    for (const FontQuizPosterPage::Text &line : page.texts)
        paintText(painter, line);
    painter.setPen(Qt::NoPen);
    for (const FontQuizPosterPage::Dot &dot : page.dots) {
        painter.setBrush(dot.color);
        painter.drawEllipse(dot.rect);
    }
    painter.restore();
}

PictureContent pictureOf(const FontQuizPosterPage &page)
{
    const auto kept = std::make_shared<const FontQuizPosterPage>(page);
    PictureContent content;
    content.size = page.size.toSize();
    content.pixelsPerPoint = kPngPixelsPerPoint;
    content.background = page.ground;
    content.title = page.title;
    content.creator = QStringLiteral("Lorva");
    content.onImage = [kept](QImage &image) {
        QPainter painter(&image);
        paintPosterPage(painter, *kept);
    };
    content.onPage = [kept](QPainter &painter) { paintPosterPage(painter, *kept); };
    return content;
}

} // namespace lorva
