// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/PopupButton.h"

#include "ui/style/DeviceSpace.h"
#include "ui/style/MenuLook.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kHeight = 28;
constexpr int kPadding = spacing::k12;
constexpr int kSymbol = 12;
constexpr double kRadius = 7;
constexpr double kFillAlpha = 0.075;
constexpr double kHoverAlpha = 0.12;
constexpr double kPressedAlpha = 0.19;
constexpr double kSymbolAlpha = 0.7;

QFont buttonFont()
{
    return interfaceFont(InterfaceSize::body);
}

} // namespace

PopupButton::PopupButton(QString label, QStringList choices, QWidget *parent)
    : FocusRinged(parent)
    , m_label(std::move(label))
    , m_choices(std::move(choices))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setFont(buttonFont());
    setAutoDefault(false);
    // With the menu up, the press that closes it must not open it again: pressed, not clicked.
    connect(this, &QPushButton::pressed, this, &PopupButton::openMenu);
    setCurrentIndex(0);
}

void PopupButton::setCurrentIndex(int index)
{
    m_current = std::clamp(index, 0, int(m_choices.size()) - 1);
    setText(m_choices.at(m_current));
    //: A setting, and what is chosen for it; spoken.
    setAccessibleName(tr("%1 %2").arg(m_label, text()));
    update();
}

void PopupButton::choose(int index)
{
    if (index == m_current)
        return;
    setCurrentIndex(index);
    Q_EMIT chosen(index);
}

QSize PopupButton::sizeHint() const
{
    const QFontMetrics metrics(buttonFont());
    int widest = 0;
    for (const QString &choice : m_choices)
        widest = std::max(widest, metrics.horizontalAdvance(choice));
    return QSize(kPadding + widest + spacing::k8 + kSymbol + spacing::k8, kHeight);
}

QSize PopupButton::minimumSizeHint() const
{
    return QSize(120, kHeight);
}

void PopupButton::openMenu()
{
    if (m_menu)
        return;
    m_menu = makeChoiceMenu(*this, m_choices, m_current, [this](int index) { choose(index); });
    m_menu->setObjectName(QStringLiteral("PopupButton.Menu"));
    const int shift = isRightToLeft() ? width() - m_menu->sizeHint().width() : 0;
    m_menu->setMinimumWidth(width());
    m_menu->popup(mapToGlobal(QPoint(shift, height() + spacing::k4)));
}

void PopupButton::keyPressEvent(QKeyEvent *event)
{
    if (isMenuKey(*event))
        openMenu();
    else
        FocusRinged::keyPressEvent(event);
}

void PopupButton::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF box(rect());
    if (hasFocusRing()) {
        drawFocusRing(painter, box.adjusted(2, 2, -2, -2), kRadius - 2);
        box.adjust(3, 3, -3, -3);
    }
    const bool isOpen = m_menu && m_menu->isVisible();
    const double alpha = isDown() || isOpen ? kPressedAlpha
        : underMouse()                      ? kHoverAlpha
                                            : kFillAlpha;
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(neutral.text, alpha));
    painter.drawRoundedRect(box, kRadius, kRadius);

    const bool isMirrored = isRightToLeft();
    const int symbolLeft = isMirrored ? spacing::k8 : width() - spacing::k8 - kSymbol;
    const QRect room = isMirrored
        ? rect().adjusted(symbolLeft + kSymbol + spacing::k8, 0, -kPadding, 0)
        : rect().adjusted(kPadding, 0, -(width() - symbolLeft + spacing::k8), 0);
    painter.setPen(neutral.text);
    painter.setFont(buttonFont());
    painter.drawText(room,
                     int(Qt::AlignVCenter | Qt::AlignAbsolute)
                         | int(isMirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::TextSingleLine,
                     QFontMetrics(buttonFont()).elidedText(text(), Qt::ElideRight, room.width()));
    const DeviceSpace device(painter);
    device.drawImage(QPointF(symbolLeft, (height() - kSymbol) / 2.0), {},
                     symbolImage(QStringLiteral("chevron.down"), kSymbol,
                                 withAlpha(neutral.text, kSymbolAlpha), device.ratio()));
}

} // namespace lorva
