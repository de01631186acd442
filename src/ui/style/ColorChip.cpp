// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/ColorChip.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"

#include <QPainterPath>

namespace lorva {

namespace {

constexpr double kDisc = 18;
constexpr double kRingGap = 2;
constexpr double kRingWidth = 2;
constexpr int kSide = int(kDisc + 2 * (kRingGap + kRingWidth));
constexpr double kRingAlpha = 0.55;
/// A disc that differs this much from its pane needs no edge.
constexpr double kSeenContrast = 3.0;
constexpr double kDisabledOpacity = 0.4;

} // namespace

ColorChip::ColorChip(const QString &label, QWidget *parent)
    : FocusRinged(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCheckable(true);
    // One of several is chosen; this is also what makes it a radio button to assistive technology.
    setAutoExclusive(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setToolTip(label);
    setAccessibleName(label);
}

void ColorChip::setChipColors(const QColor &foreground, const QColor &background)
{
    m_first = foreground;
    m_second = background;
    m_image = {};
    update();
}

void ColorChip::setChipImage(const QImage &image)
{
    m_image = image;
    update();
}

void ColorChip::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    update();
}

QSize ColorChip::sizeHint() const
{
    return QSize(kSide, kSide);
}

void ColorChip::paintEvent(QPaintEvent *)
{
    const ControlColors colors = ControlColors::from(m_foreground, m_background);
    const QColor ground = blended(m_background, Qt::white);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(kDisabledOpacity);
    const QRectF disc((width() - kDisc) / 2, (height() - kDisc) / 2, kDisc, kDisc);
    paintDisc(painter, disc);
    painter.setBrush(Qt::NoBrush);
    const bool isSeen = m_image.isNull() && contrastRatio(m_first, ground) >= kSeenContrast
        && contrastRatio(m_second, ground) >= kSeenContrast;
    if (!isSeen) {
        painter.setPen(QPen(colors.edge, 1));
        painter.drawEllipse(disc.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    constexpr double outset = kRingGap + kRingWidth / 2;
    const QRectF ring = disc.adjusted(-outset, -outset, outset, outset);
    if (hasFocusRing()) {
        drawFocusRing(painter, disc.adjusted(-kRingGap, -kRingGap, kRingGap, kRingGap),
                      kDisc / 2 + kRingGap);
    } else if (isChecked() || isDown() || (underMouse() && isEnabled())) {
        const QColor ringColor = quietColor(colors.ink, ground, kRingAlpha);
        painter.setPen(QPen(isChecked() ? ringColor : withAlpha(ringColor, 0.4),
                            isChecked() ? kRingWidth : 1.0));
        painter.drawEllipse(ring);
    }
}

void ColorChip::paintDisc(QPainter &painter, const QRectF &disc) const
{
    painter.setPen(Qt::NoPen);
    if (!m_image.isNull()) {
        QPainterPath round;
        round.addEllipse(disc);
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QBrush brush(m_image);
        QTransform toDisc;
        toDisc.translate(disc.left(), disc.top());
        toDisc.scale(disc.width() / m_image.width(), disc.height() / m_image.height());
        brush.setTransform(toDisc);
        painter.fillPath(round, brush);
        painter.restore();
        return;
    }
    painter.setBrush(m_second);
    painter.drawEllipse(disc);
    if (m_first == m_second)
        return;
    // The upper left half is the ground, the lower right one the text.
    painter.setBrush(m_first);
    painter.drawPie(disc, 225 * 16, 180 * 16);
}

} // namespace lorva
