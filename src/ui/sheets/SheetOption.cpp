// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetOption.h"

#include "ui/sheets/SheetText.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr double kRadius = 10;
constexpr double kFill = 0.045;
constexpr double kHoverFill = 0.075;
constexpr double kPressedFill = 0.12;
constexpr double kSymbolSize = 20;
constexpr double kSymbolAlpha = 0.78;
constexpr double kDescriptionAlpha = 0.62;
constexpr int kPadding = spacing::k16;
constexpr int kVerticalPadding = 14;
constexpr int kTextLeft = kPadding + int(kSymbolSize) + 14;
constexpr int kUsualWidth = 424;

WrappedText titleText(const QString &text)
{
    return {text, interfaceFont(InterfaceSize::body, InterfaceWeight::semibold)};
}

WrappedText descriptionText(const QString &text)
{
    return {text, interfaceFont(InterfaceSize::label)};
}

} // namespace

SheetOption::SheetOption(QString symbol, const QString &title, QString description, QWidget *parent)
    : FocusRinged(parent)
    , m_symbol(std::move(symbol))
    , m_description(std::move(description))
{
    setText(title);
    setAccessibleDescription(m_description);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize SheetOption::sizeHint() const
{
    return {kUsualWidth, heightForWidth(kUsualWidth)};
}

int SheetOption::heightForWidth(int width) const
{
    const int textWidth = std::max(1, width - kTextLeft - kPadding);
    return 2 * kVerticalPadding + titleText(text()).heightFor(textWidth) + spacing::k2
        + descriptionText(m_description).heightFor(textWidth);
}

void SheetOption::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        FocusRinged::keyPressEvent(event);
}

QRect SheetOption::visual(const QRect &rect) const
{
    return QStyle::visualRect(layoutDirection(), this->rect(), rect);
}

void SheetOption::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const double alpha = isDown() ? kPressedFill : underMouse() ? kHoverFill : kFill;
    const QColor fill = blended(withAlpha(neutral.text, alpha), neutral.ground);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect(), kRadius, kRadius);

    const QRect symbol =
        visual({kPadding, (height() - int(kSymbolSize)) / 2, int(kSymbolSize), int(kSymbolSize)});
    DeviceSpace(painter).drawImage(symbol.topLeft(), {},
                                   symbolImage(m_symbol, kSymbolSize,
                                               quietColor(neutral.text, fill, kSymbolAlpha),
                                               devicePixelRatioF()));

    const QRect texts = visual(rect().adjusted(kTextLeft, kVerticalPadding, -kPadding, 0));
    const WrappedText title = titleText(text());
    painter.setPen(neutral.text);
    title.draw(painter, texts, layoutDirection());
    painter.setPen(quietColor(neutral.text, fill, kDescriptionAlpha));
    const int titleHeight = title.heightFor(texts.width());
    descriptionText(m_description)
        .draw(painter, texts.adjusted(0, titleHeight + spacing::k2, 0, 0), layoutDirection());
    if (hasFocusRing())
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRadius - 2);
}

} // namespace lorva
