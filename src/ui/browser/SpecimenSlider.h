// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>

namespace lorva {

class PointSlider;

/// The slider of the specimens' size or weight, between two letters that show what it does.
///
/// Values that setValue() brings are never reported back, nor do they move a knob that the user
/// holds. Thread: main.
class SpecimenSlider final : public QWidget
{
    Q_OBJECT
public:
    enum class Kind { size, weight };

    explicit SpecimenSlider(Kind kind, QWidget *parent = nullptr);

    Kind kind() const { return m_kind; }
    /// Points, or a weight from 100 to 900; clamped.
    void setValue(double value);
    void setColors(const QColor &foreground, const QColor &background);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// By the user.
    void valueChosen(int value);
    void holdChanged(bool isHeld);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QFont letterFont(bool isLarge) const;
    void setUpSlider();

    const Kind m_kind;
    PointSlider *m_slider;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    bool m_suppressCallbacks = false;
};

} // namespace lorva
