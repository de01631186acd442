// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>

namespace lorva {

class PointSlider;

/// The slider of the specimens' size, weight or letter spacing, between two marks that show what it
/// does.
///
/// The detail page has larger sizes than the cards, in steps that grow with them. Without letter
/// spacing is where that knob sticks.
///
/// Values that setValue() brings are never reported back, nor do they move a knob that the user
/// holds. Thread: main.
class SpecimenSlider final : public QWidget
{
    Q_OBJECT
public:
    enum class Kind { size, weight, detailSize, letterSpacing };

    explicit SpecimenSlider(Kind kind, QWidget *parent = nullptr);

    Kind kind() const { return m_kind; }
    /// What it sets, for people.
    QString label() const;
    /// Points, a weight from 100 to 900, or ems of letter spacing; the nearest that there is.
    void setValue(double value);
    void setColors(const QColor &foreground, const QColor &background);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// By the user.
    void valueChosen(double value);
    void holdChanged(bool isHeld);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpSlider();
    void setUpRange(double least, double most, double usual);
    int positionOf(double value) const;
    double valueAt(int position) const;
    void moved(int position);
    void describe();
    QFont letterFont(bool isLarge) const;
    void paintGap(QPainter &painter, const QRectF &room, bool isWide) const;

    const Kind m_kind;
    PointSlider *m_slider;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    /// What was told last, or set.
    int m_position = 0;
    bool m_suppressCallbacks = false;
};

} // namespace lorva
