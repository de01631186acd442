// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSection.h"

#include <QAbstractScrollArea>
#include <QColor>

#include <vector>

namespace lorva {

class OverlayScrollBar;
class SmoothScroller;

/// The page of the detail view: sections one below the other, scrolled as one. The sections move;
/// what each of them shows of itself follows from the band that it is told is in sight.
///
/// Thread: main. Units: points.
class DetailPageView final : public QAbstractScrollArea
{
    Q_OBJECT
public:
    explicit DetailPageView(QWidget *parent = nullptr);

    /// Below those added before, `gap` under them. Takes it over as a child.
    void addSection(DetailSection *section, int gap);
    /// Hidden sections and those without height take no room, nor does the gap above them.
    void layOut();
    /// A foreground for what lies over the page: the scroll bar's knob.
    void setForeground(const QColor &color);
    int scrollOffset() const;
    /// Without a glide.
    void setScrollOffset(int offset);
    /// By as little as brings it into sight; of what is higher than the page the top.
    void reveal(const DetailSection &section, const QRect &rect);
    /// Where the section has its top, on the whole page.
    int topOf(const DetailSection &section) const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    struct Place
    {
        DetailSection *section = nullptr;
        int gap = 0;
        int top = 0;
        int height = 0;
    };

    void measure();
    void placeSections();

    std::vector<Place> m_places;
    OverlayScrollBar *m_overlay;
    SmoothScroller *m_scroller;
    bool m_isLayingOut = false;
    /// A section needs another height.
    bool m_mustMeasure = false;
};

} // namespace lorva
