// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCardPainting.h"

#include "ui/style/DeviceSpace.h"

#include <QPainter>

#include <cmath>

namespace lorva {

namespace {

constexpr double kSlack = 1e-6;
/// A picture may be drawn so much larger than it is before the next larger one is taken.
constexpr double kLargest = 1.15;

QRectF cardRect(double margin)
{
    const QSizeF size(kFontQuizCardSize);
    return QRectF(-size.width() / 2, -size.height() / 2, size.width(), size.height())
        .adjusted(-margin, -margin, margin, margin);
}

const QImage &pictureFor(const FontQuizCardPicture &picture, double pixelsPerPoint)
{
    const double full = picture.image.width() / cardRect(kFontQuizShadowReach).width();
    if (pixelsPerPoint <= full / 4 * kLargest)
        return picture.quarter;
    return pixelsPerPoint <= full / 2 * kLargest ? picture.half : picture.image;
}

bool isPixelForPixel(const QImage &image, const FontQuizPose &pose, double ratio)
{
    const double width = cardRect(kFontQuizShadowReach).width() * pose.scale * ratio;
    return std::abs(pose.degrees) < kSlack && std::abs(image.width() - width) < 1;
}

void drawBlank(QPainter &painter, const FontQuizCardTheme &theme)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.background);
    painter.drawRoundedRect(cardRect(0), kFontQuizCardRadius, kFontQuizCardRadius);
}

void drawPicture(QPainter &painter, const FontQuizShownCard &card)
{
    const DeviceSpace device(painter);
    const QImage &image = pictureFor(*card.picture, card.pose.scale * device.ratio());
    const QRectF room = cardRect(kFontQuizShadowReach);
    if (isPixelForPixel(image, card.pose, device.ratio()))
        return device.drawImage(card.pose.centre + room.topLeft() * card.pose.scale, {}, image);
    painter.setTransform(card.pose.transform(), true);
    painter.drawImage(room, image, QRectF(image.rect()));
}

/// Well within the card, so that what is left out never shows.
QRect coveredBy(const FontQuizPose &pose)
{
    const double inset = 28 + std::abs(pose.degrees) * 8;
    return pose.opacity < 1 ? QRect() : pose.bounds(-inset).toAlignedRect().adjusted(2, 2, -2, -2);
}

} // namespace

void drawFontQuizCard(QPainter &painter, const FontQuizShownCard &card)
{
    if (card.pose.opacity <= 0)
        return;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setOpacity(painter.opacity() * card.pose.opacity);
    if (card.picture) {
        drawPicture(painter, card);
    } else {
        painter.setTransform(card.pose.transform(), true);
        drawBlank(painter, card.theme);
    }
    painter.restore();
}

QRect fontQuizCardRegion(const FontQuizPose &pose)
{
    return pose.bounds(kFontQuizShadowReach).toAlignedRect().adjusted(-2, -2, 2, 2);
}

void drawFontQuizCards(QPainter &painter, const std::vector<FontQuizShownCard> &nearestFirst,
                       const QRegion &exposed)
{
    for (size_t i = nearestFirst.size(); i-- > 0;) {
        QRegion seen = exposed & fontQuizCardRegion(nearestFirst[i].pose);
        if (i > 0)
            seen -= coveredBy(nearestFirst.front().pose);
        if (seen.isEmpty())
            continue;
        painter.save();
        if (i > 0)
            painter.setClipRegion(seen);
        drawFontQuizCard(painter, nearestFirst[i]);
        painter.restore();
    }
}

} // namespace lorva
