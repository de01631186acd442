// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/TopBarLayout.h"

#include "ui/style/Style.h"

#include <QStyle>

namespace lorva {

namespace {

constexpr int kPadding = spacing::k24;
constexpr int kGroupGap = 22;
/// Parts are larger than what is seen of them: room for rings and for the pointer.
constexpr int kButtonRoom = 6;
constexpr int kChipRoom = 4;
constexpr int kSmallestSearch = 96;

/// Places parts one before the other, from the trailing edge.
class Row
{
public:
    Row(int width, Qt::LayoutDirection direction)
        : m_bar(0, 0, width, kTopBarHeight)
        , m_direction(direction)
        , m_edge(width - kPadding)
    {
    }

    /// `gap`: to the part behind, as the eye sees it; `room`: what of the part is not seen on
    /// either side.
    QRect place(QSize size, int gap, int room = 0)
    {
        m_edge -= gap - room - m_roomBehind + size.width();
        m_roomBehind = room;
        return visual(
            QRect(m_edge, (kTopBarHeight - size.height()) / 2, size.width(), size.height()));
    }
    QRect rest() const
    {
        const int end = m_edge + m_roomBehind - kGroupGap;
        return visual(QRect(kPadding, 0, std::max(end - kPadding, 0), kTopBarHeight));
    }

private:
    QRect visual(const QRect &logical) const
    {
        return QStyle::visualRect(m_direction, m_bar, logical);
    }

    const QRect m_bar;
    const Qt::LayoutDirection m_direction;
    int m_edge;
    int m_roomBehind = 0;
};

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
    Row row(width, direction);
    layout.search = row.place(searchSize(width, parts), 0);
    layout.mode = row.place(parts.mode, kGroupGap);
    layout.sampleText = row.place(parts.button, kGroupGap, kButtonRoom);
    // The two buttons stand side by side, as wide as they are to the pointer.
    layout.logo = row.place(parts.button, 2 * kButtonRoom, kButtonRoom);
    layout.chips = row.place(parts.chips, kGroupGap, kChipRoom);
    if (width < kTopBarWeightWidth)
        layout.more = row.place(parts.button, kGroupGap, kButtonRoom);
    else
        layout.weight = row.place(parts.slider, kGroupGap);
    if (width >= kTopBarSizeWidth)
        layout.size = row.place(parts.slider, kGroupGap);
    layout.title = row.rest();
    return layout;
}

} // namespace lorva
