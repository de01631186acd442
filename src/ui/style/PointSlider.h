// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QSlider>

namespace lorva {

/// A horizontal slider with a track of 104×3 points and a round knob of 14, in any foreground and
/// background colour. A press on the track takes the knob there. Thread: main.
class PointSlider final : public QSlider
{
    Q_OBJECT
public:
    explicit PointSlider(QWidget *parent = nullptr);

    void setColors(const QColor &foreground, const QColor &background);
    /// The knob, in points of the widget.
    QRectF knobRect() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QRectF trackRect() const;
    bool isMirrored() const;
    int valueAt(double x) const;

    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    bool m_showsFocus = false;
};

} // namespace lorva
