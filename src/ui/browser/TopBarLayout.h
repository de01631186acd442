// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <optional>

namespace lorva {

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

inline constexpr int kTopBarHeight = 52;
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
