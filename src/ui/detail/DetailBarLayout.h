// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <optional>

namespace lorva {

/// Where the parts of the bar over the detail page lie: what leads elsewhere and the family's name
/// at the leading edge; what sets the preview's look, what is beside it, and the search at the
/// trailing one. Units: points.
///
/// A slider that finds no room is absent, and its controls move behind the "more" button: letter
/// spacing first, then weight, then size.
struct DetailBarLayout
{
    QRect back;
    QRect previous;
    QRect next;
    QRect title;
    std::optional<QRect> size;
    std::optional<QRect> weight;
    std::optional<QRect> letterSpacing;
    /// Present while a slider is absent.
    std::optional<QRect> more;
    QRect chips;
    QRect logo;
    QRect stages;
    QRect inspector;
    QRect menu;
    QRect search;
};

/// The sizes that the parts ask for.
struct DetailBarParts
{
    QSize slider{144, 28};
    QSize chips{107, 26};
    QSize button{28, 28};
    QSize stages{94, 24};
    QSize search{220, 28};
    /// Of the family's name: a long one is given of the search field's room.
    int title = 0;
};

/// The name keeps room for a short one while sliders go; then the groups move together, then the
/// search field shrinks.
DetailBarLayout layOutDetailBar(int width, const DetailBarParts &parts,
                                Qt::LayoutDirection direction);

} // namespace lorva
