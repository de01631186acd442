// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/IconButton.h"

#include "ui/style/ControlColors.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/SymbolImage.h"

#include <QPainter>

namespace lorva {

namespace {

constexpr int kSide = 28;
constexpr double kSymbolSize = 16;
constexpr double kRadius = 7;
constexpr double kSymbolAlpha = 0.78;
constexpr double kDisabledOpacity = 0.4;
/// Room for the focus ring.
constexpr double kInset = 2;
constexpr double kDot = 5;

} // namespace

IconButton::IconButton(QString symbol, const QString &label, QWidget *parent)
    : FocusRinged(parent)
    , m_symbol(std::move(symbol))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Clicking must not take the keyboard away from the specimens.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setToolTip(label);
    setAccessibleName(label);
}

void IconButton::setSymbol(const QString &symbol)
{
    m_symbol = symbol;
    update();
}

void IconButton::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    update();
}

void IconButton::setMarked(bool isMarked)
{
    m_isMarked = isMarked;
    update();
}

QSize IconButton::sizeHint() const
{
    return QSize(kSide, kSide);
}

void IconButton::paintEvent(QPaintEvent *)
{
    const ControlColors colors = ControlColors::from(m_foreground, m_background);
    const QColor ground = blended(m_background, Qt::white);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(kDisabledOpacity);
    const QRectF box = QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset);
    if (isEnabled() && (underMouse() || isDown() || isChecked()))
        drawHover(painter, box, kRadius - kInset / 2, colors.ink, isDown() || isChecked());
    if (hasFocusRing())
        drawFocusRing(painter, box, kRadius - kInset / 2);
    const QRectF symbol((width() - kSymbolSize) / 2, (height() - kSymbolSize) / 2, kSymbolSize,
                        kSymbolSize);
    const DeviceSpace device(painter);
    device.drawImage(symbol.topLeft(), {},
                     symbolImage(m_symbol, kSymbolSize,
                                 quietColor(colors.ink, ground, isDown() ? 1.0 : kSymbolAlpha),
                                 device.ratio()));
    if (!m_isMarked)
        return;
    const double x = isRightToLeft() ? symbol.left() - kDot / 2 : symbol.right() - kDot / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.ink);
    painter.drawEllipse(QRectF(x, symbol.top() - kDot / 2 + 1, kDot, kDot));
}

} // namespace lorva
