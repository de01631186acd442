// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCategoryView.h"

#include "base/GroupedNumber.h"
#include "ui/quiz/FontQuizCategories.h"
#include "ui/quiz/FontQuizGround.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>

#include <utility>

namespace lorva {

namespace {

constexpr double kRadius = 16;
/// Where the lines of text have their middles, to the tile's height.
constexpr double kNameShare = 0.71;
constexpr double kKeyShare = 0.845;
constexpr double kKeyAlpha = 0.55;
constexpr double kFlashAlpha = 0.55;
constexpr double kPressedShade = 0.06;

} // namespace

FontQuizCategoryView::FontQuizCategoryView(int tile, QWidget *parent)
    : FocusRinged(parent)
    , m_tile(tile)
{
    setObjectName(QStringLiteral("FontQuizCategoryView.%1").arg(tile));
    setText(fontQuizCategoryName(tile));
    // A click must not take the keyboard away from the cards.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    describe();
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (onClick)
            onClick();
    });
}

void FontQuizCategoryView::describe()
{
    //: A style of fonts, the key that chooses it, and how many fonts have it; spoken.
    const QString says = tr("%1, key %2, %3 fonts", nullptr, m_count);
    setAccessibleName(says.arg(text(), locale().toString(m_tile), groupedNumber(m_count)));
}

void FontQuizCategoryView::setPile(std::vector<FontQuizShownCard> pile, int count)
{
    m_pile = std::move(pile);
    if (std::exchange(m_count, count) != count)
        describe();
    update();
}

void FontQuizCategoryView::setFlash(const QColor &color, double strength)
{
    m_flashColor = color;
    m_flash = strength;
    update();
}

void FontQuizCategoryView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn)
        return FocusRinged::keyPressEvent(event);
    if (!event->isAutoRepeat())
        click();
}

void FontQuizCategoryView::paintSurface(QPainter &painter) const
{
    const FontQuizColors colors = fontQuizColors(isDarkDesktop());
    painter.setPen(Qt::NoPen);
    painter.setBrush(underMouse() && isEnabled() ? colors.tileHover : colors.tile);
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    if (m_flash > 0) {
        painter.setBrush(withAlpha(m_flashColor, kFlashAlpha * m_flash));
        painter.drawRoundedRect(rect(), kRadius, kRadius);
    }
    if (isDown()) {
        painter.setBrush(withAlpha(colors.text, kPressedShade));
        painter.drawRoundedRect(rect(), kRadius, kRadius);
    }
}

void FontQuizCategoryView::paintTexts(QPainter &painter) const
{
    const FontQuizColors colors = fontQuizColors(isDarkDesktop());
    const auto line = [&](double share, const QFont &font, const QColor &color,
                          const QString &text) {
        const int height = QFontMetrics(font).height();
        const QRect room(spacing::k8, int(this->height() * share) - height / 2,
                         width() - 2 * spacing::k8, height);
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(room, Qt::AlignCenter | Qt::TextSingleLine,
                         QFontMetrics(font).elidedText(text, Qt::ElideRight, room.width()));
    };
    line(kNameShare, interfaceFont(InterfaceSize::body, InterfaceWeight::semibold), colors.text,
         text());
    line(kKeyShare,
         interfaceFont(InterfaceSize::caption, InterfaceWeight::regular, Figures::tabular),
         quietColor(colors.text, blended(colors.tileHover, colors.ground), kKeyAlpha),
         locale().toString(m_tile));
}

void FontQuizCategoryView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSurface(painter);
    paintTexts(painter);
    painter.translate(-pos());
    for (const FontQuizShownCard &card : m_pile)
        drawFontQuizCard(painter, card);
    painter.translate(pos());
    if (hasFocusRing())
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRadius - 2);
}

} // namespace lorva
