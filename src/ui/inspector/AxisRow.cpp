// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/AxisRow.h"

#include "text/FontFace.h"
#include "ui/inspector/AxisValueField.h"
#include "ui/inspector/InspectorLook.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/PointSlider.h"

#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kNameMiddle = 14;
constexpr int kSliderMiddle = 36;
/// From the slider's side to the end of its track.
constexpr int kTrackInset = 10;
constexpr QSizeF kMark(2, 9);
constexpr double kMarkAlpha = 0.18;

} // namespace

AxisRow::AxisRow(const FontVariationAxisRecord &axis, QWidget *parent)
    : QWidget(parent)
    , m_axis(axis)
    , m_scale(axis)
    , m_slider(new PointSlider(this))
    , m_field(new AxisValueField(m_scale, this))
{
    const QString name = QString(u"Axis." % tagText(axis.tag));
    setObjectName(name);
    m_slider->setObjectName(QString(name % u".slider"));
    m_slider->setAccessibleName(axis.name);
    m_slider->setRange(m_scale.firstPosition(), m_scale.lastPosition());
    m_slider->setDefaultValue(m_scale.positionOf(axis.defaultValue));
    m_field->setObjectName(QString(name % u".value"));
    //: The value of an axis of a variable font, such as Weight; spoken.
    m_field->setAccessibleName(tr("%1, value").arg(axis.name));
    setToolTip(plainToolTip(QString(axis.name % u" · " % tagText(axis.tag))));
    connect(m_slider, &QSlider::valueChanged, this, &AxisRow::takePosition);
    m_field->onValue = [this](double value) {
        setValue(value);
        if (onValue)
            onValue(value);
    };
    setValue(axis.currentValue);
    takeColors();
}

void AxisRow::takePosition(int position)
{
    // Defaults need not lie on a step, but are what most come back to.
    const bool isDefault = position == m_scale.positionOf(m_axis.defaultValue);
    const double value = isDefault ? m_axis.defaultValue : m_scale.valueAt(position);
    m_field->setValue(value);
    if (onValue)
        onValue(value);
}

void AxisRow::setValue(double value)
{
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(m_scale.positionOf(value));
    m_field->setValue(value);
}

void AxisRow::takeColors()
{
    m_slider->setColors(inspectorInk(), inspectorGround());
}

void AxisRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
    else if (event->type() == QEvent::LayoutDirectionChange)
        placeParts();
}

void AxisRow::resizeEvent(QResizeEvent *)
{
    placeParts();
}

void AxisRow::placeParts()
{
    const int sliderHeight = m_slider->sizeHint().height();
    const int outset = kInspectorPadding - kTrackInset;
    m_slider->setGeometry(outset, kSliderMiddle - sliderHeight / 2, width() - 2 * outset,
                          sliderHeight);
    const QSize field = m_field->sizeHint();
    // The figures, not the field, end where the track ends.
    const QRect place(width() - kInspectorPadding + spacing::k4 - field.width(),
                      kNameMiddle - field.height() / 2, field.width(), field.height());
    m_field->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

double AxisRow::defaultX() const
{
    const double share =
        (m_axis.defaultValue - m_axis.minValue) / (m_axis.maxValue - m_axis.minValue);
    const double room = width() - 2.0 * kInspectorPadding;
    return kInspectorPadding + (isRightToLeft() ? 1 - share : share) * room;
}

void AxisRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(inspectorInk(), kMarkAlpha));
    painter.drawRoundedRect(
        QRectF(QPointF(defaultX() - kMark.width() / 2, kSliderMiddle - kMark.height() / 2), kMark),
        1, 1);
    const int nameWidth = width() - 2 * kInspectorPadding - m_field->width();
    const QRect room(kInspectorPadding, kNameMiddle - 12, nameWidth, 24);
    painter.setFont(interfaceFont(InterfaceSize::body));
    painter.setPen(inspectorInk());
    drawInspectorLine(painter, *this, room, m_axis.name);
}

} // namespace lorva
