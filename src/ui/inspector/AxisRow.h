// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/inspector/AxisScale.h"

#include <QWidget>

#include <functional>

namespace lorva {

class AxisValueField;
class PointSlider;

/// An axis: its name, its value and the slider below, with a mark where the axis has its default.
/// Thread: main.
class AxisRow final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 50;

    AxisRow(const FontVariationAxisRecord &axis, QWidget *parent);

    /// Without a word.
    void setValue(double value);
    /// By the user.
    std::function<void(double)> onValue;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void takePosition(int position);
    void placeParts();
    void takeColors();
    /// Where the slider's knob stands at the default, in points of the row.
    double defaultX() const;

    const FontVariationAxisRecord m_axis;
    const AxisScale m_scale;
    PointSlider *m_slider;
    AxisValueField *m_field;
};

} // namespace lorva
