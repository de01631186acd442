// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizGround.h"

#include "ui/quiz/FontQuizLayout.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// Half axes of the wash, in points.
constexpr QSizeF kReach{760, 520};
constexpr double kStrength = 0.16;
constexpr double kDarkStrength = 0.2;

double washAt(QPointF place, double strength)
{
    const double distance = std::hypot(place.x() / kReach.width(), place.y() / kReach.height());
    const double t = std::clamp(1.0 - distance, 0.0, 1.0);
    return strength * t * t * (3 - 2 * t);
}

/// Between 0 and 1, different for neighbours: without it so faint a gradient shows its steps.
double noise(int x, int y)
{
    const double value = 52.9829189 * std::fmod(0.06711056 * x + 0.00583715 * y, 1.0);
    return value - std::floor(value);
}

QRgb mixed(const QColor &ground, const QColor &bloom, double share, double grain)
{
    const auto channel = [&](int from, int to) {
        return std::clamp(int(std::floor(from + (to - from) * share + grain)), 0, 255);
    };
    return qRgb(channel(ground.red(), bloom.red()), channel(ground.green(), bloom.green()),
                channel(ground.blue(), bloom.blue()));
}

void paintRow(QImage &image, int row, const FontQuizGround::Look &look, const QColor &ground)
{
    auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
    const double strength = look.isDark ? kDarkStrength : kStrength;
    for (int column = 0; column < image.width(); ++column) {
        const QPointF place = QPointF(column, row) / look.devicePixelRatio - look.centre;
        const double share = washAt(place, strength);
        line[column] =
            share > 0 ? mixed(ground, look.bloom, share, noise(column, row)) : ground.rgb();
    }
}

QImage paintGround(const FontQuizGround::Look &look, const std::stop_token &stop)
{
    const QColor ground = fontQuizColors(look.isDark).ground;
    QImage image((QSizeF(look.size) * look.devicePixelRatio).toSize(), QImage::Format_RGB32);
    for (int row = 0; row < image.height() && !stop.stop_requested(); ++row)
        paintRow(image, row, look, ground);
    return image;
}

} // namespace

FontQuizColors fontQuizColors(bool isDark)
{
    if (isDark) {
        const QColor ground(0x1c, 0x1b, 0x19);
        const QColor text(0xed, 0xeb, 0xe7);
        return {ground, text, withAlpha(text, 0.07), withAlpha(text, 0.13)};
    }
    const QColor ground(0xee, 0xed, 0xe8);
    const QColor text(0x1d, 0x1c, 0x1a);
    return {ground, text, withAlpha(text, 0.05), withAlpha(text, 0.105)};
}

FontQuizGround::FontQuizGround(QObject *parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.quiz-ground"));
}

FontQuizGround::~FontQuizGround()
{
    m_painting.cancel();
    m_pool.clear();
    m_pool.waitForDone();
}

void FontQuizGround::setLook(const Look &look)
{
    if (look == m_look)
        return;
    m_look = look;
    m_painting.cancel();
    m_painting = runThen(
        m_pool, this, [look](const std::stop_token &stop) { return paintGround(look, stop); },
        [this, look](const QImage &image) { accept(look, image); });
}

void FontQuizGround::accept(const Look &look, const QImage &image)
{
    if (look != m_look)
        return;
    const bool isSameSize = m_image.size() == image.size() && m_shownLook.isDark == look.isDark;
    m_former = isSameSize ? m_image : QImage();
    m_image = image;
    m_share = isSameSize ? 0 : 1;
    m_shownLook = look;
    if (onArrived)
        onArrived();
}

QRect FontQuizGround::bloomRect() const
{
    const QRectF rect(m_look.centre - QPointF(kReach.width(), kReach.height()), kReach * 2);
    return rect.toAlignedRect().intersected(QRect(QPoint(0, 0), m_look.size));
}

/// Pixel for pixel; smeared over the others where these are not the pixels that it was made for.
void FontQuizGround::draw(QPainter &painter, const QImage &image) const
{
    const DeviceSpace device(painter);
    if (qFuzzyCompare(device.ratio(), m_look.devicePixelRatio))
        device.drawImage({}, {}, image);
    else
        painter.drawImage(QRectF(QPointF(0, 0), m_look.size), image, QRectF(image.rect()));
}

void FontQuizGround::paint(QPainter &painter, const QRect &exposed) const
{
    const QSize wanted = (QSizeF(m_look.size) * m_look.devicePixelRatio).toSize();
    if (m_image.size() != wanted)
        return painter.fillRect(exposed, fontQuizColors(m_look.isDark).ground);
    const double before = painter.opacity();
    const bool isComing = m_share < 1 && !m_former.isNull();
    if (isComing)
        draw(painter, m_former);
    painter.setOpacity(isComing ? before * m_share : before);
    draw(painter, m_image);
    painter.setOpacity(before);
}

} // namespace lorva
