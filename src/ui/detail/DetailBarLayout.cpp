// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailBarLayout.h"

#include "ui/browser/TopBarLayout.h"

#include <algorithm>

namespace lorva {

namespace {

using namespace barspace;

constexpr int kAllSliders = 3;
constexpr int kRoomForTitle = 90;
constexpr int kRoomForLongTitle = 220;
constexpr int kSmallestSearch = 140;
constexpr int kSmallestGap = 12;
/// The two arrows are narrower than other buttons, and belong together.
constexpr int kArrowWidth = 22;
constexpr int kArrowGap = 8;
constexpr int kTitleGap = 14;

/// A way to fill the bar.
struct Form
{
    int sliders = kAllSliders;
    int searchWidth = 0;
    int gap = kGroupGap;
};

class Placer
{
public:
    Placer(int width, const DetailBarParts &parts, Qt::LayoutDirection direction)
        : m_parts(parts)
        , m_row(width, direction)
    {
    }

    DetailBarLayout place(const Form &form)
    {
        const int start = placeLeading();
        placeTrailing(form);
        placeSliders(form);
        m_layout.title = m_row.rest(start, form.gap);
        m_titleWidth = m_row.restWidth(start, form.gap);
        return m_layout;
    }
    /// May be less than none.
    int titleWidth() const { return m_titleWidth; }

private:
    /// Gives where the title begins.
    int placeLeading()
    {
        const QSize button = m_parts.button;
        const int top = (kTopBarHeight - button.height()) / 2;
        const auto placed = [&](int left, int width) {
            return QRect(left, top, width, button.height());
        };
        const QRect back = placed(kPadding - kButtonRoom, button.width());
        const QRect previous = placed(back.right() + 1 + kArrowGap, kArrowWidth);
        const QRect next = placed(previous.right() + 1, kArrowWidth);
        m_layout.back = m_row.visual(back);
        m_layout.previous = m_row.visual(previous);
        m_layout.next = m_row.visual(next);
        return next.right() + 1 + kTitleGap;
    }
    void placeTrailing(const Form &form)
    {
        m_layout.search = m_row.place({form.searchWidth, m_parts.search.height()}, 0);
        m_layout.menu = m_row.place(m_parts.button, form.gap, kButtonRoom);
        m_layout.inspector = m_row.place(m_parts.button, kButtonGap, kButtonRoom);
        m_layout.stages = m_row.place(m_parts.stages, form.gap);
        m_layout.logo = m_row.place(m_parts.button, form.gap, kButtonRoom);
        m_layout.chips = m_row.place(m_parts.chips, form.gap, kChipRoom);
    }
    void placeSliders(const Form &form)
    {
        if (form.sliders < kAllSliders)
            m_layout.more = m_row.place(m_parts.button, form.gap, kButtonRoom);
        if (form.sliders > 2)
            m_layout.letterSpacing = m_row.place(m_parts.slider, form.gap);
        if (form.sliders > 1)
            m_layout.weight = m_row.place(m_parts.slider, form.gap);
        if (form.sliders > 0)
            m_layout.size = m_row.place(m_parts.slider, form.gap);
    }

    const DetailBarParts &m_parts;
    BarRow m_row;
    DetailBarLayout m_layout;
    int m_titleWidth = 0;
};

} // namespace

DetailBarLayout layOutDetailBar(int width, const DetailBarParts &parts,
                                Qt::LayoutDirection direction)
{
    const auto missing = [&](const Form &form) {
        Placer placer(width, parts, direction);
        placer.place(form);
        return kRoomForTitle - placer.titleWidth();
    };
    const int search = parts.search.width();
    Form form{kAllSliders, search, kGroupGap};
    while (form.sliders > 0 && missing(form) > 0)
        --form.sliders;
    while (form.gap > kSmallestGap && missing(form) > 0)
        --form.gap;
    const int longerTitle = std::clamp(parts.title, kRoomForTitle, kRoomForLongTitle);
    form.searchWidth = std::clamp(search - missing(form) - (longerTitle - kRoomForTitle),
                                  std::min(kSmallestSearch, search), search);
    return Placer(width, parts, direction).place(form);
}

} // namespace lorva
