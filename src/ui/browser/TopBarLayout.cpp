// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/TopBarLayout.h"

#include <QStyle>

namespace lorva {

using namespace barspace;

BarRow::BarRow(int width, Qt::LayoutDirection direction)
    : m_bar(0, 0, width, kTopBarHeight)
    , m_direction(direction)
    , m_edge(width - kPadding)
{
}

QRect BarRow::place(QSize size, int gap, int room)
{
    m_edge -= gap - room - m_roomBehind + size.width();
    m_roomBehind = room;
    return visual(QRect(m_edge, (kTopBarHeight - size.height()) / 2, size.width(), size.height()));
}

int BarRow::restWidth(int start, int gap) const
{
    return m_edge + m_roomBehind - gap - start;
}

QRect BarRow::rest(int start, int gap) const
{
    return visual(QRect(start, 0, std::max(restWidth(start, gap), 0), kTopBarHeight));
}

QRect BarRow::visual(const QRect &logical) const
{
    return QStyle::visualRect(m_direction, m_bar, logical);
}

namespace {

constexpr int kSmallestSearch = 96;

/// What search loses when the narrowest form does not fit.
QSize searchSize(int width, const TopBarParts &parts)
{
    const int others = parts.chips.width() - 2 * kChipRoom + 3 * parts.button.width()
        - 4 * kButtonRoom + parts.mode.width() + 4 * kGroupGap + 2 * kPadding;
    const int room = std::max(width - others, kSmallestSearch);
    return QSize(std::min(parts.search.width(), room), parts.search.height());
}

} // namespace

TopBarLayout layOutTopBar(int width, const TopBarParts &parts, Qt::LayoutDirection direction)
{
    TopBarLayout layout;
    BarRow row(width, direction);
    layout.search = row.place(searchSize(width, parts), 0);
    layout.mode = row.place(parts.mode, kGroupGap);
    layout.sampleText = row.place(parts.button, kGroupGap, kButtonRoom);
    layout.logo = row.place(parts.button, kButtonGap, kButtonRoom);
    layout.chips = row.place(parts.chips, kGroupGap, kChipRoom);
    if (width < kTopBarWeightWidth)
        layout.more = row.place(parts.button, kGroupGap, kButtonRoom);
    else
        layout.weight = row.place(parts.slider, kGroupGap);
    if (width >= kTopBarSizeWidth)
        layout.size = row.place(parts.slider, kGroupGap);
    layout.title = row.rest(kPadding, kGroupGap);
    return layout;
}

} // namespace lorva
