// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/ColorSurfaces.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace lorva {

namespace {

constexpr double kKnob = 14;
constexpr QSize kFieldSize(240, 128);
/// Taller than its track, as the knob is.
constexpr QSize kBarSize(240, 20);
constexpr double kBarThickness = 12;
constexpr double kRadius = 6;

/// The surface as a slider, whose words tell both of its values.
class AccessibleSurface final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSurface(ColorSurface *surface)
        : QAccessibleWidget(surface, QAccessible::Slider)
        , m_surface(surface)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value || kind == QAccessible::Description)
            return m_surface->valueText();
        return QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return m_surface->accessibleValue(); }
    void setCurrentValue(const QVariant &value) override
    {
        m_surface->setAccessibleValue(value.toInt());
    }
    QVariant maximumValue() const override { return m_surface->accessibleMaximum(); }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    ColorSurface *const m_surface;
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *surface = qobject_cast<ColorSurface *>(object);
    return surface ? new AccessibleSurface(surface) : nullptr;
}

QPointF clampedPlace(QPointF place)
{
    return {std::clamp(place.x(), 0.0, 1.0), std::clamp(place.y(), 0.0, 1.0)};
}

} // namespace

Hsv Hsv::from(const QColor &color, const Hsv &former)
{
    const QColor hsv = color.toHsv();
    Hsv result{former.hue, hsv.hsvSaturationF(), hsv.valueF()};
    if (hsv.hsvHueF() >= 0)
        result.hue = hsv.hsvHueF();
    if (result.value <= 0)
        result.saturation = former.saturation;
    return result;
}

ColorSurface::ColorSurface(const QString &name, QSize size, QWidget *parent)
    : FocusRinged(parent)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    setFixedSize(size);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(name);
    setCursor(Qt::CrossCursor);
}

void ColorSurface::setHsv(const Hsv &hsv)
{
    if (changesSurface(m_hsv, hsv))
        m_surface = {};
    m_hsv = hsv;
    update();
}

void ColorSurface::choose(const Hsv &hsv)
{
    setHsv(hsv);
    QAccessibleValueChangeEvent change(this, accessibleValue());
    QAccessible::updateAccessibility(&change);
    Q_EMIT chosen(m_hsv);
}

bool ColorSurface::isBar() const
{
    return height() == kBarSize.height();
}

/// Where the colours are. The knob stays inside the widget, its middle counts.
QRectF ColorSurface::track() const
{
    const double room = isBar() ? (height() - kBarThickness) / 2 : 0;
    return QRectF(rect()).adjusted(0, room, 0, -room);
}

void ColorSurface::chooseAt(QPointF point)
{
    const QRectF box = track();
    choose(hsvAt(clampedPlace(
        {(point.x() - box.left()) / box.width(), (point.y() - box.top()) / box.height()})));
}

void ColorSurface::setHeld(bool isHeld)
{
    if (std::exchange(m_isHeld, isHeld) != isHeld)
        Q_EMIT held(isHeld);
}

void ColorSurface::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    setHeld(true);
    chooseAt(event->position());
}

void ColorSurface::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isHeld)
        chooseAt(event->position());
}

void ColorSurface::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setHeld(false);
}

/// The panel may close under the pointer.
void ColorSurface::hideEvent(QHideEvent *)
{
    setHeld(false);
}

void ColorSurface::keyPressEvent(QKeyEvent *event)
{
    const QPointF step = keyStep(event->modifiers().testFlag(Qt::ShiftModifier));
    QPointF next = place();
    switch (event->key()) {
    case Qt::Key_Left:
        next.rx() -= step.x();
        break;
    case Qt::Key_Right:
        next.rx() += step.x();
        break;
    case Qt::Key_Up:
        next.ry() -= step.y();
        break;
    case Qt::Key_Down:
        next.ry() += step.y();
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    choose(hsvAt(clampedPlace(next)));
}

void ColorSurface::focusOutEvent(QFocusEvent *)
{
    update();
}

void ColorSurface::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double ratio = devicePixelRatioF();
    const QRectF box = track();
    const QSize sizePx = (box.size() * ratio).toSize();
    if (m_surface.size() != sizePx)
        m_surface = drawSurface(sizePx);
    QPainterPath shape;
    const double radius = std::min(kRadius, box.height() / 2);
    shape.addRoundedRect(box, radius, radius);
    QBrush brush(m_surface);
    brush.setTransform(QTransform::fromTranslate(box.x(), box.y()).scale(1 / ratio, 1 / ratio));
    painter.fillPath(shape, brush);
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    painter.setPen(QPen(withAlpha(neutral.text, 0.14), 1));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    paintKnob(painter);
}

void ColorSurface::paintKnob(QPainter &painter) const
{
    const QRectF box = track();
    QPointF middle(box.left() + place().x() * box.width(), box.top() + place().y() * box.height());
    // Never over the widget's own edge.
    const double reach = kKnob / 2 + 1;
    middle.setX(std::clamp(middle.x(), reach, width() - reach));
    middle.setY(std::clamp(middle.y(), reach, height() - reach));
    const QRectF knob(middle.x() - kKnob / 2, middle.y() - kKnob / 2, kKnob, kKnob);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawEllipse(knob.adjusted(-0.75, -0.5, 0.75, 1));
    painter.setBrush(Qt::white);
    painter.drawEllipse(knob);
    const Hsv pure{m_hsv.hue, 1, 1};
    painter.setBrush(isBar() ? pure.color() : m_hsv.color());
    painter.drawEllipse(knob.adjusted(2.5, 2.5, -2.5, -2.5));
    if (hasFocusRing())
        drawFocusRing(painter, knob.adjusted(1, 1, -1, -1), kKnob / 2 - 1);
}

SaturationField::SaturationField(QWidget *parent)
    : ColorSurface(tr("Saturation and Brightness"), kFieldSize, parent)
{
    setObjectName(QStringLiteral("saturationField"));
}

int SaturationField::accessibleValue() const
{
    return int(std::lround(hsv().saturation * 100));
}

void SaturationField::setAccessibleValue(int value)
{
    choose({hsv().hue, float(std::clamp(value, 0, 100)) / 100, hsv().value});
}

QString SaturationField::valueText() const
{
    return tr("Saturation %1 %, brightness %2 %")
        .arg(accessibleValue())
        .arg(int(std::lround(hsv().value * 100)));
}

QPointF SaturationField::place() const
{
    return {hsv().saturation, 1 - hsv().value};
}

Hsv SaturationField::hsvAt(QPointF place) const
{
    return {hsv().hue, float(place.x()), float(1 - place.y())};
}

QImage SaturationField::drawSurface(QSize sizePx) const
{
    QImage image(sizePx, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient across(0, 0, sizePx.width(), 0);
    across.setColorAt(0, Qt::white);
    across.setColorAt(1, QColor::fromHsvF(hsv().hue, 1, 1));
    painter.fillRect(image.rect(), across);
    QLinearGradient down(0, 0, 0, sizePx.height());
    down.setColorAt(0, QColor(0, 0, 0, 0));
    down.setColorAt(1, Qt::black);
    painter.fillRect(image.rect(), down);
    return image;
}

bool SaturationField::changesSurface(const Hsv &former, const Hsv &next) const
{
    return former.hue != next.hue;
}

QPointF SaturationField::keyStep(bool isLarge) const
{
    return isLarge ? QPointF(0.1, 0.1) : QPointF(0.01, 0.01);
}

HueBar::HueBar(QWidget *parent)
    : ColorSurface(tr("Hue"), kBarSize, parent)
{
    setObjectName(QStringLiteral("hueBar"));
}

int HueBar::accessibleValue() const
{
    return int(std::lround(hsv().hue * 360)) % 360;
}

void HueBar::setAccessibleValue(int value)
{
    choose({float(std::clamp(value, 0, 359)) / 360, hsv().saturation, hsv().value});
}

QString HueBar::valueText() const
{
    return tr("%1 degrees").arg(accessibleValue());
}

QPointF HueBar::place() const
{
    return {hsv().hue, 0.5};
}

Hsv HueBar::hsvAt(QPointF place) const
{
    // The end is red again, which would take the knob back to the beginning.
    return {std::min(float(place.x()), 0.999F), hsv().saturation, hsv().value};
}

QImage HueBar::drawSurface(QSize sizePx) const
{
    QImage image(sizePx, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient across(0, 0, sizePx.width(), 0);
    for (int i = 0; i <= 6; ++i)
        across.setColorAt(i / 6.0, QColor::fromHsvF(float(i % 6) / 6, 1, 1));
    painter.fillRect(image.rect(), across);
    return image;
}

QPointF HueBar::keyStep(bool isLarge) const
{
    return {isLarge ? 1 / 24.0 : 1 / 360.0, 0};
}

} // namespace lorva
