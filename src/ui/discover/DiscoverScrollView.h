// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

#include <functional>

namespace lorva {

class OverlayScrollBar;
class SmoothScroller;

/// Scrolls a page by wheel and keys, with a slim bar over it. Thread: main.
class DiscoverScrollView final : public QScrollArea
{
    Q_OBJECT
public:
    explicit DiscoverScrollView(QWidget *parent);

    /// Other parts of the page are in sight.
    std::function<void()> onScrolled;

    /// Of the bar's knob.
    void setForeground(const QColor &color);
    /// After the page or the view has another size.
    void adaptScrollBar();

protected:
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    OverlayScrollBar *m_overlay;
    SmoothScroller *m_scroller;
};

} // namespace lorva
