// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QWidget>

namespace lorva {

/// One part of the detail page, which lays its sections out one below the other and scrolls over
/// them. A section has no margins of its own at the sides. Thread: main. Units: points.
class DetailSection : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// How high it has to be at a width; 0: nothing to show.
    virtual int heightFor(int width) const = 0;
    /// The rows from `top` to `bottom` of this widget are in sight: only what lies there need
    /// exist. Called after every layout and scroll.
    virtual void setVisibleBand(int top, int bottom)
    {
        Q_UNUSED(top);
        Q_UNUSED(bottom);
    }

Q_SIGNALS:
    /// heightFor() gives something new.
    void heightChanged();
    /// What the keyboard leads to should be in sight; in this widget's coordinates.
    void revealWanted(const QRect &rect);
};

} // namespace lorva
