// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InstanceButton.h"

#include "ui/inspector/InspectorLook.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/MenuLook.h"
#include "ui/style/SymbolImage.h"

#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kSymbol = 12;

} // namespace

InstanceButton::InstanceButton(std::vector<QString> names, QWidget *parent)
    : FocusRinged(parent)
    , m_names(std::move(names))
{
    setObjectName(QStringLiteral("InstanceButton"));
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    // With the menu up, the press that closes it must not open it again: pressed, not clicked.
    connect(this, &QAbstractButton::pressed, this, &InstanceButton::openMenu);
    setCurrent(std::nullopt);
}

QString InstanceButton::currentName() const
{
    //: Settings of a variable font that are none of its named instances.
    return m_current ? m_names[*m_current].left(kLongestShownName) : tr("Custom");
}

void InstanceButton::setCurrent(std::optional<size_t> index)
{
    m_current = index && *index < m_names.size() ? index : std::nullopt;
    setText(currentName());
    setAccessibleName(tr("Instance: %1").arg(currentName()));
    update();
}

void InstanceButton::openMenu()
{
    if (m_menu)
        return;
    QStringList entries;
    for (const QString &name : m_names)
        entries << menuEntryText(name);
    m_menu = makeChoiceMenu(*this, entries, m_current, [this](int index) {
        if (onChosen)
            onChosen(size_t(index));
    });
    m_menu->setObjectName(QStringLiteral("InstanceButton.Menu"));
    const int menuWidth = m_menu->sizeHint().width();
    const int x = isRightToLeft() ? kInspectorPadding : width() - kInspectorPadding - menuWidth;
    m_menu->popup(mapToGlobal(QPoint(x, height())));
}

void InstanceButton::keyPressEvent(QKeyEvent *event)
{
    if (isMenuKey(*event))
        openMenu();
    else
        FocusRinged::keyPressEvent(event);
}

void InstanceButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect inside = rect().adjusted(kInspectorPadding, 0, -kInspectorPadding, 0);
    if (hasFocusRing())
        drawFocusRing(painter, QRectF(inside).adjusted(-4, 3, 4, -3), 5);
    painter.setFont(interfaceFont(InterfaceSize::body));
    painter.setPen(inspectorInk());
    //: A named setting of a variable font, such as Condensed Bold.
    const QString label = tr("Instance");
    drawInspectorLine(painter, *this, inside, label);
    const bool isLit = underMouse() || isDown();
    const int labelWidth = painter.fontMetrics().horizontalAdvance(label) + spacing::k12;
    const QRect room(inside.left() + labelWidth, 0,
                     inside.width() - labelWidth - kSymbol - spacing::k4, height());
    painter.setFont(interfaceFont(InterfaceSize::label));
    painter.setPen(isLit ? inspectorInk() : inspectorQuiet());
    drawInspectorLine(painter, *this, room, text(), Qt::AlignRight);
    const QRect symbol(inside.right() + 1 - kSymbol, (height() - kSymbol) / 2, kSymbol, kSymbol);
    const DeviceSpace device(painter);
    device.drawImage(QStyle::visualRect(layoutDirection(), rect(), symbol).topLeft(), {},
                     symbolImage(QStringLiteral("chevron.down"), kSymbol,
                                 isLit ? inspectorInk() : inspectorQuiet(), device.ratio()));
}

} // namespace lorva
