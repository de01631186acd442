// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QColor>
#include <QImage>
#include <QWidget>

namespace lorva {

/// A colour as people choose it: hue, saturation and brightness, 0 … 1. Grey keeps its hue.
struct Hsv
{
    float hue = 0;
    float saturation = 0;
    float value = 0;

    /// With `former`'s hue and saturation where the colour has none of its own.
    static Hsv from(const QColor &color, const Hsv &former);
    QColor color() const { return QColor::fromHsvF(hue, saturation, value); }
};

/// A surface of colours on which a point is chosen by pointer or arrow keys: a slider to assistive
/// technology. Thread: main.
class ColorSurface : public FocusRinged<QWidget>
{
    Q_OBJECT
public:
    ColorSurface(const QString &name, QSize size, QWidget *parent);

    const Hsv &hsv() const { return m_hsv; }
    void setHsv(const Hsv &hsv);

    /// What assistive technology reads and sets: 0 … accessibleMaximum().
    virtual int accessibleValue() const = 0;
    virtual int accessibleMaximum() const = 0;
    virtual void setAccessibleValue(int value) = 0;
    virtual QString valueText() const = 0;

Q_SIGNALS:
    void chosen(const lorva::Hsv &hsv);
    void held(bool isHeld);

protected:
    /// Where the knob stands, each 0 … 1 from the top left.
    virtual QPointF place() const = 0;
    virtual Hsv hsvAt(QPointF place) const = 0;
    virtual QImage drawSurface(QSize sizePx) const = 0;
    /// Whether the drawn surface is another one.
    virtual bool changesSurface(const Hsv &former, const Hsv &next) const = 0;
    /// What one step of a key is.
    virtual QPointF keyStep(bool isLarge) const = 0;
    void choose(const Hsv &hsv);

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool isBar() const;
    QRectF track() const;
    void chooseAt(QPointF point);
    void setHeld(bool isHeld);
    void paintKnob(QPainter &painter) const;

    Hsv m_hsv;
    QImage m_surface;
    bool m_isHeld = false;
};

/// Saturation from left to right, brightness upwards, of one hue.
class SaturationField final : public ColorSurface
{
    Q_OBJECT
public:
    explicit SaturationField(QWidget *parent);
    int accessibleValue() const override;
    int accessibleMaximum() const override { return 100; }
    void setAccessibleValue(int value) override;
    QString valueText() const override;

protected:
    QPointF place() const override;
    Hsv hsvAt(QPointF place) const override;
    QImage drawSurface(QSize sizePx) const override;
    bool changesSurface(const Hsv &former, const Hsv &next) const override;
    QPointF keyStep(bool isLarge) const override;
};

/// The hues from left to right.
class HueBar final : public ColorSurface
{
    Q_OBJECT
public:
    explicit HueBar(QWidget *parent);
    int accessibleValue() const override;
    int accessibleMaximum() const override { return 359; }
    void setAccessibleValue(int value) override;
    QString valueText() const override;

protected:
    QPointF place() const override;
    Hsv hsvAt(QPointF place) const override;
    QImage drawSurface(QSize sizePx) const override;
    bool changesSurface(const Hsv &, const Hsv &) const override { return false; }
    QPointF keyStep(bool isLarge) const override;
};

} // namespace lorva
