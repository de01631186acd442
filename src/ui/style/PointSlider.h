// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QColor>
#include <QSlider>

#include <optional>

namespace lorva {

/// A horizontal slider with a track of 104×3 points and a round knob of 14, in any foreground and
/// background colour. A press on the track takes the knob there, a
/// double click on the knob takes it to the default value. Thread: main.
class PointSlider final : public FocusRinged<QSlider>
{
    Q_OBJECT
public:
    explicit PointSlider(QWidget *parent = nullptr);

    void setColors(const QColor &foreground, const QColor &background);
    /// Where a double click on the knob leads.
    void setDefaultValue(int value) { m_defaultValue = value; }
    /// The pointer moves in steps of `step` and sticks to multiples of `stop` from a few points
    /// away; the keys go from stop to stop.
    void setStops(int step, int stop);
    /// The knob, in points of the widget.
    QRectF knobRect() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QRectF trackRect() const;
    bool isMirrored() const;
    int valueAt(double x) const;
    int nextStop(int direction) const;

    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    std::optional<int> m_defaultValue;
    int m_step = 1;
    /// 0: none.
    int m_stop = 0;
    /// From the knob's centre to where it was taken.
    double m_grip = 0;
};

} // namespace lorva
