// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QString>

#include <optional>

namespace lorva {

// How the rows of the sidebar look. Lengths in points. Thread: the painter's, which is the main
// one.

/// What a row shows beside its texts.
struct SidebarRowMarks
{
    bool isSelected = false;
    bool isHovered = false;
    /// Families held over it would be dropped on it.
    bool isDropTarget = false;
    /// Its context menu is open.
    bool isMenuTarget = false;
    /// The keyboard is on it.
    bool isFocused = false;
    /// Of a header.
    bool isExpanded = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// Where the parts of a row lie, mirrored where the layout is.
struct SidebarRowPlaces
{
    QRect plate;
    QRect symbol;
    /// Up to the count, if there is one.
    QRect label;
    QRect count;

    static SidebarRowPlaces of(const QRect &row, const QString &countText,
                               Qt::LayoutDirection direction);
};

/// Where the parts of a header lie.
struct SidebarHeaderPlaces
{
    QRect plate;
    QRect label;
    QRect addButton;
    QRect chevron;

    /// The room above the header's line belongs to the row, too.
    static SidebarHeaderPlaces of(const QRect &row, Qt::LayoutDirection direction);
};

inline constexpr int kSidebarRowHeight = 28;
/// `isFirst`: the one at the top of the pane.
int sidebarHeaderHeight(bool isFirst);

/// One line of at most a few hundred characters, whatever stands in a font or a store.
QString sidebarLineOf(const QString &label);
QString sidebarCountText(std::optional<int> count);
/// True when the label does not fit beside its count.
bool isSidebarLabelElided(const QRect &row, const QString &label, const QString &countText,
                          bool isSelected);

void paintSidebarRow(QPainter &painter, const QRect &row, const QString &label,
                     const QString &symbol, const QString &countText, const SidebarRowMarks &marks);
void paintSidebarHeader(QPainter &painter, const QRect &row, const QString &label,
                        const SidebarRowMarks &marks);

} // namespace lorva
