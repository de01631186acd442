// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/ControlColors.h"

#include "ui/style/Palette.h"

namespace lorva {

namespace {

constexpr double kBedAlpha = 0.09;
constexpr double kShadowAlpha = 0.24;
constexpr double kEdgeAlpha = 0.4;
constexpr double kHoverAlpha = 0.07;
constexpr double kPressedAlpha = 0.14;
constexpr double kFocusRingWidth = 2.0;

} // namespace

ControlColors ControlColors::from(const QColor &foreground, const QColor &background)
{
    const QColor ground = blended(background, Qt::white);
    ControlColors colors;
    colors.ink = controlColor(foreground, background);
    colors.bed = withAlpha(colors.ink, kBedAlpha);
    // On a light ground paper-white stands out by its shadow; on a dark one by the ink's own
    // colour.
    const bool isLightGround = contrastingNeutral(ground) == QColor(Qt::black);
    colors.raised = isLightGround ? QColor(Qt::white) : blended(colors.ink, ground);
    colors.inkOnRaised =
        controlColor(isLightGround ? colors.ink : blended(ground, Qt::black), colors.raised);
    colors.shadow = withAlpha(Qt::black, kShadowAlpha);
    colors.edge = quietColor(colors.ink, ground, kEdgeAlpha);
    return colors;
}

void drawRaised(QPainter &painter, const QRectF &rect, double radius, const ControlColors &colors)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.shadow);
    painter.drawRoundedRect(rect.adjusted(-0.5, 0.0, 0.5, 1.0), radius + 0.5, radius + 0.5);
    painter.setBrush(withAlpha(colors.shadow, 0.5));
    painter.drawRoundedRect(rect.adjusted(-0.75, -0.5, 0.75, 1.5), radius + 0.75, radius + 0.75);
    painter.setBrush(colors.raised);
    painter.drawRoundedRect(rect, radius, radius);
}

void drawHover(QPainter &painter, const QRectF &rect, double radius, const QColor &ink,
               bool isPressed)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(ink, isPressed ? kPressedAlpha : kHoverAlpha));
    painter.drawRoundedRect(rect, radius, radius);
}

void drawFocusRing(QPainter &painter, const QRectF &rect, double radius)
{
    constexpr double outset = kFocusRingWidth / 2.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accentColor(), kFocusRingWidth));
    painter.drawRoundedRect(rect.adjusted(-outset, -outset, outset, outset), radius + outset,
                            radius + outset);
}

bool showsFocusRing(Qt::FocusReason reason, bool showedBefore)
{
    switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return showedBefore;
    default:
        return false;
    }
}

} // namespace lorva
