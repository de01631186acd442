// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverLinkButton.h"

#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kHeight = 28;
constexpr int kPadding = spacing::k12;
constexpr int kSymbol = 12;
constexpr int kGap = spacing::k4;
constexpr double kRadius = 7;

QFont wordFont()
{
    return interfaceFont(InterfaceSize::body, InterfaceWeight::medium);
}

} // namespace

DiscoverLinkButton::DiscoverLinkButton(QWidget *parent)
    : FocusRinged(parent)
{
    //: Opens the web page of a foundry.
    setText(tr("Visit"));
    setAccessibleDescription(tr("Open Website"));
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

QSize DiscoverLinkButton::sizeHint() const
{
    const int word = QFontMetrics(wordFont()).horizontalAdvance(text());
    return {2 * kPadding + word + kGap + kSymbol, kHeight};
}

void DiscoverLinkButton::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect()).adjusted(2, 2, -2, -2);
    if (underMouse() || isDown())
        drawHover(painter, box, kRadius - 2, neutral.text, isDown());
    if (hasFocusRing())
        drawFocusRing(painter, box, kRadius - 2);
    const auto place = [this](const QRect &logical) {
        return QStyle::visualRect(layoutDirection(), rect(), logical);
    };
    const int end = width() - kPadding - kSymbol;
    painter.setFont(wordFont());
    painter.setPen(neutral.text);
    painter.drawText(place({kPadding, 0, end - kGap - kPadding, height()}),
                     int(Qt::AlignCenter) | int(Qt::TextSingleLine), text());
    const DeviceSpace device(painter);
    device.drawImage(
        place({end, (height() - kSymbol) / 2 + 1, kSymbol, kSymbol}).topLeft(), {},
        symbolImage(QStringLiteral("arrow.up.right"), kSymbol, neutral.text, device.ratio()));
}

/// Return opens a link, as in a browser.
void DiscoverLinkButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        FocusRinged::keyPressEvent(event);
}

} // namespace lorva
