// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/inspector/AxisScale.h"

#include <QLineEdit>

#include <functional>

namespace lorva {

/// The value of an axis, which can be typed over: taken with Return or when the keyboard leaves,
/// stepped with the arrow keys (ten steps with Shift), given up with Escape. Numbers as the
/// widget's locale writes them. Thread: main.
class AxisValueField final : public QLineEdit
{
    Q_OBJECT
public:
    AxisValueField(const AxisScale &scale, QWidget *parent);

    /// Without a word. What is being typed goes.
    void setValue(double value);
    /// By the user.
    std::function<void(double)> onValue;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void take();
    void restore();
    void step(int steps);
    void takeColors();

    const AxisScale m_scale;
    double m_value = 0;
    bool m_takesColors = false;
};

} // namespace lorva
