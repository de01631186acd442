// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>
#include <QColor>

namespace lorva {

/// What switches a style on and off: a word in a pill, outlined while the style is active. Pointed
/// at, or with the keyboard on it, it says what a press does. Thread: main. Units: points.
class StyleRowPill final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    static constexpr int kHeight = 22;
    /// Of every pill: each of its words has room in it, whatever their language.
    static int commonWidth();

    explicit StyleRowPill(QWidget *parent = nullptr);

    /// `styleName`: for assistive technology, which is told what a press does.
    void setStyle(const QString &styleName, bool isActive);
    void setColors(const QColor &foreground, const QColor &background);
    QSize sizeHint() const override { return {commonWidth(), kHeight}; }
    /// The word that it shows.
    QString shownText() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isActive = false;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
