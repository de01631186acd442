// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarRowPainter.h"

#include "ui/style/ControlColors.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QFontMetrics>
#include <QLocale>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kPanePadding = 10;
constexpr int kHeaderGap = 6;
constexpr int kSymbol = 16;
constexpr int kAddButton = 24;
constexpr double kRadius = 6.0;
constexpr qsizetype kLongestLabel = 300;

constexpr double kSelectedFill = 0.08;
constexpr double kHoverFill = 0.04;
constexpr double kDropFill = 0.10;
constexpr double kDropRing = 0.55;
constexpr double kMenuRing = 0.30;
constexpr double kSymbolAlpha = 0.68;
constexpr double kCountAlpha = 0.45;
constexpr double kSelectedCountAlpha = 0.6;
constexpr double kHeaderAlpha = 0.55;

NeutralColors colorsNow()
{
    return neutralColors(isDarkDesktop());
}

QFont labelFont(bool isSelected)
{
    return interfaceFont(InterfaceSize::body,
                         isSelected ? InterfaceWeight::medium : InterfaceWeight::regular);
}

QFont countFont(bool isSelected)
{
    return interfaceFont(InterfaceSize::caption,
                         isSelected ? InterfaceWeight::medium : InterfaceWeight::regular,
                         Figures::tabular);
}

Qt::Alignment alignment(Qt::Alignment edge, Qt::LayoutDirection direction)
{
    return QStyle::visualAlignment(direction, edge) | Qt::AlignAbsolute | Qt::AlignVCenter;
}

void drawLine(QPainter &painter, const QRect &rect, const QString &text, Qt::Alignment align)
{
    const QString shown =
        QFontMetrics(painter.font()).elidedText(text, Qt::ElideRight, rect.width());
    painter.drawText(rect, int(align) | Qt::TextSingleLine, shown);
}

void drawSymbol(QPainter &painter, const QRect &rect, const QString &name, const QColor &color,
                bool isMirrored = false)
{
    const DeviceSpace device(painter);
    QImage image = symbolImage(name, rect.width(), color, device.ratio());
    if (image.isNull())
        return;
    if (isMirrored)
        image = image.mirrored(true, false);
    device.drawImage(rect.topLeft(), QPoint(), image);
}

void drawRing(QPainter &painter, const QRect &plate, const QColor &color, double width)
{
    const double inset = width / 2.0;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(QRectF(plate).adjusted(inset, inset, -inset, -inset), kRadius - inset,
                            kRadius - inset);
}

void drawPlate(QPainter &painter, const QRect &plate, const SidebarRowMarks &marks)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = colorsNow().text;
    double fill = marks.isHovered ? kHoverFill : 0.0;
    if (marks.isSelected)
        fill = kSelectedFill;
    if (marks.isDropTarget)
        fill = kDropFill;
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(ink, fill));
    painter.drawRoundedRect(plate, kRadius, kRadius);
    if (marks.isDropTarget)
        drawRing(painter, plate, withAlpha(ink, kDropRing), 2.0);
    else if (marks.isMenuTarget)
        drawRing(painter, plate, withAlpha(ink, kMenuRing), 1.0);
    if (marks.isFocused)
        // Inside the row: what lies outside of it is not painted anew when the focus goes.
        drawFocusRing(painter, QRectF(plate).adjusted(2, 2, -2, -2), kRadius - 2);
}

} // namespace

SidebarRowPlaces SidebarRowPlaces::of(const QRect &row, const QString &countText,
                                      Qt::LayoutDirection direction)
{
    const QRect plate = row.adjusted(kPanePadding, 0, -kPanePadding, 0);
    const QRect inner = plate.adjusted(spacing::k8, 0, -spacing::k8, 0);
    const QRect symbol(inner.left(), plate.top() + (plate.height() - kSymbol) / 2, kSymbol,
                       kSymbol);
    // The width for the heavier figures of a selected row, so that nothing moves on selection.
    const int countWidth =
        countText.isEmpty() ? 0 : QFontMetrics(countFont(true)).horizontalAdvance(countText);
    QRect count = inner;
    count.setLeft(inner.right() + 1 - countWidth);
    QRect label = inner;
    label.setLeft(symbol.right() + 1 + spacing::k8);
    label.setRight(countWidth > 0 ? count.left() - spacing::k8 - 1 : inner.right());
    const auto visual = [&](const QRect &rect) { return QStyle::visualRect(direction, row, rect); };
    return {plate, visual(symbol), visual(label), visual(count)};
}

SidebarHeaderPlaces SidebarHeaderPlaces::of(const QRect &row, Qt::LayoutDirection direction)
{
    QRect plate = row.adjusted(kPanePadding, 0, -kPanePadding, 0);
    plate.setTop(row.bottom() + 1 - kSidebarRowHeight);
    const QRect inner = plate.adjusted(spacing::k8, 0, -spacing::k8, 0);
    // The arrow is narrower than its box; the tip of it ends where the counts do.
    const QRect chevron(inner.right() + 1 - kSymbol + spacing::k2,
                        plate.top() + (plate.height() - kSymbol) / 2, kSymbol, kSymbol);
    const QRect add(chevron.left() - kAddButton, plate.top() + (plate.height() - kAddButton) / 2,
                    kAddButton, kAddButton);
    QRect label = inner;
    label.setRight(add.left() - 1);
    const auto visual = [&](const QRect &rect) { return QStyle::visualRect(direction, row, rect); };
    return {plate, visual(label), visual(add), visual(chevron)};
}

int sidebarHeaderHeight(bool isFirst)
{
    return kSidebarRowHeight + (isFirst ? kPanePadding : kHeaderGap);
}

QString sidebarLineOf(const QString &label)
{
    return label.left(kLongestLabel).simplified();
}

QString sidebarCountText(std::optional<int> count)
{
    return count ? QLocale().toString(*count) : QString();
}

bool isSidebarLabelElided(const QRect &row, const QString &label, const QString &countText,
                          bool isSelected)
{
    const QRect place = SidebarRowPlaces::of(row, countText, Qt::LeftToRight).label;
    return QFontMetrics(labelFont(isSelected)).horizontalAdvance(sidebarLineOf(label))
        > place.width();
}

void paintSidebarRow(QPainter &painter, const QRect &row, const QString &label,
                     const QString &symbol, const QString &countText, const SidebarRowMarks &marks)
{
    const SidebarRowPlaces places = SidebarRowPlaces::of(row, countText, marks.direction);
    const QColor ink = colorsNow().text;
    drawPlate(painter, places.plate, marks);
    drawSymbol(painter, places.symbol, symbol,
               marks.isSelected ? ink : withAlpha(ink, kSymbolAlpha));
    painter.setPen(ink);
    painter.setFont(labelFont(marks.isSelected));
    drawLine(painter, places.label, sidebarLineOf(label),
             alignment(Qt::AlignLeft, marks.direction));
    painter.setPen(withAlpha(ink, marks.isSelected ? kSelectedCountAlpha : kCountAlpha));
    painter.setFont(countFont(marks.isSelected));
    painter.drawText(places.count, int(alignment(Qt::AlignRight, marks.direction)), countText);
}

void paintSidebarHeader(QPainter &painter, const QRect &row, const QString &label,
                        const SidebarRowMarks &marks)
{
    const SidebarHeaderPlaces places = SidebarHeaderPlaces::of(row, marks.direction);
    const QColor ink = withAlpha(colorsNow().text, kHeaderAlpha);
    SidebarRowMarks plateMarks = marks;
    plateMarks.isHovered = false;
    drawPlate(painter, places.plate, plateMarks);
    painter.setPen(ink);
    painter.setFont(interfaceFont(InterfaceSize::caption, InterfaceWeight::semibold));
    drawLine(painter, places.label, label, alignment(Qt::AlignLeft, marks.direction));
    drawSymbol(painter, places.chevron,
               marks.isExpanded ? QStringLiteral("chevron.down") : QStringLiteral("chevron.right"),
               ink, marks.direction == Qt::RightToLeft);
}

} // namespace lorva
