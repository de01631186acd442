// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetCheckBox.h"

#include "ui/sheets/SheetFooter.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kBox = 14;
constexpr double kRadius = 4;
constexpr int kGap = spacing::k8;
/// The focus ring around the box takes it.
constexpr int kInset = SheetFooter::kOverhang;
constexpr int kTextLeft = kInset + kBox + kGap;
constexpr double kEdgeAlpha = 0.4;
constexpr double kHoverAlpha = 0.06;
constexpr double kPressedAlpha = 0.14;
constexpr double kTextAlpha = 0.85;
constexpr double kMark = 12;

QFont textFont()
{
    return interfaceFont(InterfaceSize::label);
}

} // namespace

SheetCheckBox::SheetCheckBox(const QString &text, QWidget *parent)
    : FocusRinged(parent)
{
    setText(text);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize SheetCheckBox::sizeHint() const
{
    const int textWidth = QFontMetrics(textFont()).horizontalAdvance(text()) + 1;
    return {kTextLeft + textWidth, heightForWidth(kTextLeft + textWidth)};
}

int SheetCheckBox::heightForWidth(int width) const
{
    const int textHeight =
        WrappedText{text(), textFont()}.heightFor(std::max(1, width - kTextLeft));
    return std::max(textHeight, kBox + 2 * kInset);
}

void SheetCheckBox::paintBox(QPainter &painter, const QRectF &box) const
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const ControlColors colors = ControlColors::from(neutral.text, neutral.ground);
    const double alpha = isDown() ? kPressedAlpha : underMouse() ? kHoverAlpha : 0.0;
    const QColor edge = quietColor(neutral.text, neutral.ground, kEdgeAlpha);
    painter.setPen(isChecked() ? QPen(Qt::NoPen) : QPen(edge, 1));
    painter.setBrush(isChecked() ? colors.ink : withAlpha(colors.ink, alpha));
    painter.drawRoundedRect(isChecked() ? box : box.adjusted(0.5, 0.5, -0.5, -0.5), kRadius,
                            kRadius);
    if (isChecked()) {
        const double ratio = painter.device()->devicePixelRatioF();
        const double inset = (kBox - kMark) / 2;
        DeviceSpace(painter).drawImage(
            box.topLeft() + QPointF(inset, inset), {},
            symbolImage(QStringLiteral("checkmark"), kMark, neutral.ground, ratio));
    }
    if (hasFocusRing())
        drawFocusRing(painter, box.adjusted(-1, -1, 1, 1), kRadius + 1);
}

void SheetCheckBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const WrappedText wrapped{text(), textFont()};
    const QRect textRoom(kTextLeft, 0, std::max(1, width() - kTextLeft), height());
    const int textHeight = wrapped.heightFor(textRoom.width());
    const QRect boxRect(kInset, (height() - kBox) / 2, kBox, kBox);
    paintBox(painter, QStyle::visualRect(layoutDirection(), rect(), boxRect));
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    painter.setPen(quietColor(neutral.text, neutral.ground, kTextAlpha));
    wrapped.draw(painter,
                 QStyle::visualRect(layoutDirection(), rect(),
                                    textRoom.adjusted(0, (height() - textHeight) / 2, 0, 0)),
                 layoutDirection());
}

} // namespace lorva
