// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/WatchedFolderDelegate.h"

#include "base/GroupedNumber.h"
#include "ui/style/ControlColors.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QFontMetrics>
#include <QListWidgetItem>
#include <QPainter>

namespace lorva {

namespace {

constexpr int kTrailingRole = Qt::UserRole;
constexpr int kIsAwayRole = Qt::UserRole + 1;
constexpr int kSymbol = 16;
constexpr double kRadius = 6;
constexpr double kSelectedFill = 0.08;
constexpr double kHoverFill = 0.04;
constexpr double kSecondaryAlpha = 0.62;
constexpr double kPlateAlpha = 0.045;

QString countText(int fonts)
{
    if (fonts == 0)
        return WatchedFolderDelegate::tr("No fonts");
    return WatchedFolderDelegate::tr("%1 fonts", nullptr, fonts).arg(groupedNumber(fonts));
}

QString trailingText(const WatchedFolderRow &row)
{
    //: A folder that is missing.
    if (row.isThere == false)
        return WatchedFolderDelegate::tr("Not there");
    return row.isThere && row.fonts ? countText(*row.fonts) : QString();
}

void drawSymbol(QPainter &painter, const QRect &rect, const QString &name, const QColor &color)
{
    const DeviceSpace device(painter);
    device.drawImage(rect.topLeft(), {}, symbolImage(name, kSymbol, color, device.ratio()));
}

/// In visual coordinates of a row.
struct Places
{
    QRect symbol;
    QRect path;
    QRect awaySymbol;
    QRect trailing;

    static Places of(const QRect &row, int trailingWidth, bool isAway,
                     Qt::LayoutDirection direction)
    {
        const QRect inner = row.adjusted(spacing::k8, 0, -spacing::k8, 0);
        const int symbolTop = row.top() + (row.height() - kSymbol) / 2;
        QRect trailing = inner;
        trailing.setLeft(inner.right() + 1 - trailingWidth);
        const QRect away(trailing.left() - spacing::k4 - kSymbol, symbolTop, kSymbol, kSymbol);
        QRect path = inner;
        path.setLeft(inner.left() + kSymbol + spacing::k8);
        path.setRight((isAway ? away.left() : trailing.left()) - spacing::k12);
        const auto visual = [&](const QRect &rect) {
            return QStyle::visualRect(direction, row, rect);
        };
        return {visual({inner.left(), symbolTop, kSymbol, kSymbol}), visual(path), visual(away),
                visual(trailing)};
    }
};

} // namespace

WatchedFolderDelegate::WatchedFolderDelegate(std::function<bool()> showsFocus, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_showsFocus(std::move(showsFocus))
{
}

void WatchedFolderDelegate::write(const WatchedFolderRow &row, QListWidgetItem &item)
{
    const QString trailing = trailingText(row);
    item.setText(row.path);
    item.setToolTip(row.path);
    item.setData(kTrailingRole, trailing);
    item.setData(kIsAwayRole, row.isThere && !*row.isThere);
    item.setData(Qt::AccessibleTextRole,
                 //: A folder, and how many fonts are in it; spoken.
                 trailing.isEmpty() ? row.path : tr("%1, %2").arg(row.path, trailing));
}

QSize WatchedFolderDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return QSize(0, kRowHeight);
}

void WatchedFolderDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
    const double fill = isSelected ? kSelectedFill : isHovered ? kHoverFill : 0.0;
    painter->setPen(Qt::NoPen);
    painter->setBrush(withAlpha(neutral.text, fill));
    painter->drawRoundedRect(option.rect, kRadius, kRadius);
    if (option.state.testFlag(QStyle::State_HasFocus) && m_showsFocus())
        drawFocusRing(*painter, QRectF(option.rect).adjusted(2, 2, -2, -2), kRadius - 2);

    const QFont font =
        interfaceFont(InterfaceSize::caption, InterfaceWeight::regular, Figures::tabular);
    const QFontMetrics metrics(font);
    const QString trailing = index.data(kTrailingRole).toString();
    const bool isAway = index.data(kIsAwayRole).toBool();
    const Places places =
        Places::of(option.rect, metrics.horizontalAdvance(trailing), isAway, option.direction);
    const QColor ground = blended(
        withAlpha(neutral.text, kPlateAlpha + (isSelected ? kSelectedFill : 0.0)), neutral.ground);
    const QColor quiet = quietColor(neutral.text, ground, kSecondaryAlpha);
    drawSymbol(*painter, places.symbol, QStringLiteral("folder"), quiet);
    if (isAway)
        drawSymbol(*painter, places.awaySymbol, QStringLiteral("exclamationmark.triangle"), quiet);
    painter->setFont(font);
    painter->setPen(quiet);
    const Qt::Alignment leading = QStyle::visualAlignment(option.direction, Qt::AlignLeft)
        | Qt::AlignAbsolute | Qt::AlignVCenter;
    // A path runs from left to right, whichever way the window goes.
    painter->setLayoutDirection(Qt::LeftToRight);
    painter->drawText(
        places.path, int(leading) | Qt::TextSingleLine,
        metrics.elidedText(index.data().toString(), Qt::ElideMiddle, places.path.width()));
    painter->setLayoutDirection(Qt::LayoutDirectionAuto);
    painter->drawText(places.trailing, int(leading) | Qt::TextSingleLine, trailing);
    painter->restore();
}

} // namespace lorva
