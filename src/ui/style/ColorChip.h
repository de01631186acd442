// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>
#include <QColor>
#include <QImage>
#include <QPainter>

namespace lorva {

/// A round chip of 18 points that stands for a ground: one colour, two (halves), or an image. The
/// chosen one has a two-point ring, two points off. On any pane colour its edge stays visible.
/// Thread: main.
class ColorChip final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    /// `label`: tool tip and name for assistive technology. Checkable; a radio button to assistive
    /// technology.
    explicit ColorChip(const QString &label, QWidget *parent = nullptr);

    /// Both the same: one colour.
    void setChipColors(const QColor &foreground, const QColor &background);
    void setChipImage(const QImage &image);
    /// Of the pane it lies on.
    void setColors(const QColor &foreground, const QColor &background);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintDisc(QPainter &painter, const QRectF &disc) const;

    QColor m_first = Qt::black;
    QColor m_second = Qt::white;
    QImage m_image;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
