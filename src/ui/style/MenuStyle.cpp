// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/MenuStyle.h"

#include "ui/style/DeviceSpace.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionMenuItem>

namespace lorva {

namespace {

constexpr int kRowHeight = 26;
constexpr int kSeparatorHeight = 9;
constexpr int kPanelPadding = 6;
constexpr double kPanelRadius = 10;
constexpr double kRowRadius = 5;
constexpr int kRowPadding = 10;
/// The check mark and the gap behind it.
constexpr int kMarkWidth = spacing::k20;
constexpr int kArrowWidth = spacing::k16;
constexpr int kShortcutGap = spacing::k24;
constexpr double kRowAlpha = 0.09;
constexpr double kLineAlpha = 0.14;
constexpr double kShortcutAlpha = 0.45;
constexpr double kDisabledAlpha = 0.35;

NeutralColors colors()
{
    return neutralColors(isDarkDesktop());
}

/// Of shortcuts and arrows, which are read as well.
QColor quietInk()
{
    return quietColor(colors().text, colors().ground, kShortcutAlpha);
}

int markRoom(const QStyleOptionMenuItem &item)
{
    return item.menuHasCheckableItems ? kMarkWidth : 0;
}

void drawPanel(const QRect &rect, QPainter &painter, const QWidget *widget)
{
    const double hair = 1.0 / painter.device()->devicePixelRatioF();
    const bool isRound = widget && widget->testAttribute(Qt::WA_TranslucentBackground);
    const double radius = isRound ? kPanelRadius : 0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(blended(withAlpha(colors().text, kLineAlpha), colors().ground), hair));
    painter.setBrush(colors().ground);
    painter.drawRoundedRect(QRectF(rect).adjusted(hair / 2, hair / 2, -hair / 2, -hair / 2), radius,
                            radius);
    painter.restore();
}

void drawSubmenuArrow(QPainter &painter, const QRect &row, Qt::LayoutDirection direction)
{
    const QRect logical(row.right() - kRowPadding - 4, row.center().y() - 4, 5, 9);
    const QRectF box = QStyle::visualRect(direction, row, logical);
    const bool isMirrored = direction == Qt::RightToLeft;
    QPainterPath chevron;
    chevron.moveTo(isMirrored ? box.right() : box.left(), box.top() + 0.5);
    chevron.lineTo(isMirrored ? box.left() : box.right(), box.center().y());
    chevron.lineTo(isMirrored ? box.right() : box.left(), box.bottom() - 0.5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(quietInk(), 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(chevron);
}

void drawCheckMark(QPainter &painter, const QRect &row, Qt::LayoutDirection direction,
                   const QColor &color)
{
    constexpr int side = 14;
    const QRect logical(row.left() + kRowPadding - 2, row.top() + (row.height() - side) / 2, side,
                        side);
    const DeviceSpace device(painter);
    device.drawImage(QStyle::visualRect(direction, row, logical).topLeft(), {},
                     symbolImage(QStringLiteral("checkmark"), side, color, device.ratio()));
}

} // namespace

MenuStyle *MenuStyle::shared()
{
    static MenuStyle *const style = [] {
        auto *made = new MenuStyle;
        made->setParent(qApp);
        return made;
    }();
    return style;
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                           const QWidget *widget) const
{
    switch (metric) {
    case PM_MenuPanelWidth:
    case PM_MenuDesktopFrameWidth:
    case PM_MenuTearoffHeight:
        return 0;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return kPanelPadding;
    case PM_SubMenuOverlap:
        return -2;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_Menu_Scrollable:
    case SH_Menu_MouseTracking:
    case SH_Menu_KeyboardSearch:
        return 1;
    case SH_Menu_Mask:
    case SH_Menu_SupportsSections:
    case SH_Menu_FlashTriggeredItem:
    case SH_Menu_FadeOutOnHide:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                  const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (type != CT_MenuItem || !item)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    if (item->menuItemType == QStyleOptionMenuItem::Separator)
        return QSize(spacing::k16, kSeparatorHeight);
    const bool hasShortcut = item->text.contains(u'\t');
    const int extra = markRoom(*item) + kArrowWidth + (hasShortcut ? kShortcutGap : 0);
    return QSize(size.width() + 2 * kRowPadding + extra, kRowHeight);
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    if (element == PE_PanelMenu)
        drawPanel(option->rect, *painter, widget);
    else if (element != PE_FrameMenu)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (element == CE_MenuEmptyArea)
        return;
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (element != CE_MenuItem || !item)
        return QProxyStyle::drawControl(element, option, painter, widget);
    painter->save();
    drawItem(*item, *painter, widget);
    painter->restore();
}

void MenuStyle::drawItem(const QStyleOptionMenuItem &item, QPainter &painter,
                         const QWidget *widget) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect row = item.rect;
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        const QRect line = row.adjusted(kRowPadding, row.height() / 2, -kRowPadding, 0);
        drawHairline(painter, line, Qt::TopEdge, withAlpha(colors().text, kLineAlpha));
        return;
    }
    const bool isEnabled = item.state & State_Enabled;
    if (isEnabled && (item.state & State_Selected)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(withAlpha(colors().text, kRowAlpha));
        painter.drawRoundedRect(row, kRowRadius, kRowRadius);
    }
    const QColor ink = withAlpha(colors().text, isEnabled ? 1.0 : kDisabledAlpha);
    if (item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked)
        drawCheckMark(painter, row, item.direction, ink);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawSubmenuArrow(painter, row, item.direction);
    painter.setPen(ink);
    drawText(item, painter, row, widget);
}

void MenuStyle::drawText(const QStyleOptionMenuItem &item, QPainter &painter, const QRect &row,
                         const QWidget *widget) const
{
    painter.setFont(item.font);
    const QRect logical = row.adjusted(kRowPadding + markRoom(item), 0, -kRowPadding, 0);
    const QRect room = visualRect(item.direction, row, logical);
    const bool underlines = styleHint(SH_UnderlineShortcut, &item, widget, nullptr);
    const int mnemonic = underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const Qt::Alignment leading =
        visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignVCenter) | Qt::AlignAbsolute;
    const Qt::Alignment trailing =
        visualAlignment(item.direction, Qt::AlignRight | Qt::AlignVCenter) | Qt::AlignAbsolute;
    const auto tab = item.text.indexOf(u'\t');
    const QString label = tab < 0 ? item.text : item.text.left(tab);
    painter.drawText(room, int(leading) | Qt::TextSingleLine | mnemonic, label);
    if (tab < 0)
        return;
    painter.setPen(withAlpha(quietInk(), item.state & State_Enabled ? 1.0 : kDisabledAlpha));
    painter.drawText(room, int(trailing) | Qt::TextSingleLine, item.text.mid(tab + 1));
}

} // namespace lorva
