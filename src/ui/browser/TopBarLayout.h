// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <optional>

namespace lorva {

/// A row of groups, 22 points apart as the eye sees them.
namespace barspace {
inline constexpr int kPadding = 24;
inline constexpr int kGroupGap = 22;
/// Parts are larger than what is seen of them: room for rings and for the pointer.
inline constexpr int kButtonRoom = 6;
inline constexpr int kChipRoom = 4;
/// Between the parts of two buttons that stand side by side, as wide as they are to the pointer.
inline constexpr int kButtonGap = 2 * kButtonRoom;
} // namespace barspace

inline constexpr int kTopBarHeight = 52;

/// Places the parts of a bar one before the other, from the trailing edge. Units: points.
class BarRow
{
public:
    BarRow(int width, Qt::LayoutDirection direction);

    /// `gap`: to the part behind, as the eye sees it; `room`: what of the part is not seen on
    /// either side.
    QRect place(QSize size, int gap, int room = 0);
    /// What is left from `start` on, `gap` before the part that was placed last.
    QRect rest(int start, int gap) const;
    /// How wide that is; below 0: so much is missing.
    int restWidth(int start, int gap) const;
    /// A rectangle as it would be from left to right.
    QRect visual(const QRect &logical) const;

private:
    const QRect m_bar;
    const Qt::LayoutDirection m_direction;
    int m_edge;
    int m_roomBehind = 0;
};

/// Where the parts of the bar over the cards lie: a row of groups, 22 points apart as the eye sees
/// them, at the trailing edge; the title has the rest.
///
/// A slider that finds no room is absent, and its controls move behind the "more" button. Units:
/// points.
struct TopBarLayout
{
    QRect title;
    std::optional<QRect> size;
    std::optional<QRect> weight;
    /// Present while a slider is absent.
    std::optional<QRect> more;
    QRect chips;
    QRect logo;
    QRect sampleText;
    QRect mode;
    QRect search;
};

/// Narrower bars have no weight slider,
inline constexpr int kTopBarWeightWidth = 1008;
/// and these no size slider.
inline constexpr int kTopBarSizeWidth = 868;

/// The sizes that the parts ask for.
struct TopBarParts
{
    QSize slider{144, 28};
    QSize chips{107, 26};
    QSize button{28, 28};
    QSize mode{64, 24};
    QSize search{220, 28};
};

/// Narrower than the parts, the title goes first, then the search field shrinks.
TopBarLayout layOutTopBar(int width, const TopBarParts &parts, Qt::LayoutDirection direction);

} // namespace lorva
