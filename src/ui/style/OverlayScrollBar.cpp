// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/style/OverlayScrollBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>

#include <chrono>

namespace lorva {

namespace {

constexpr int kWidth = 12;
constexpr int kMargin = 2;
constexpr int kKnobWidth = 6;
constexpr int kMinimumKnob = 32;
constexpr std::chrono::milliseconds kLinger{900};
constexpr double kRestingAlpha = 0.22;
constexpr double kActiveAlpha = 0.4;

} // namespace

OverlayScrollBar::OverlayScrollBar(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("OverlayScrollBar"));
    m_hide.setSingleShot(true);
    m_hide.setInterval(kLinger);
    connect(&m_hide, &QTimer::timeout, this, [this] {
        m_isShown = m_isHovered || m_grip >= 0;
        update();
    });
}

void OverlayScrollBar::follow(QScrollBar *source)
{
    m_source = source;
    connect(source, &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
    connect(source, &QScrollBar::rangeChanged, this, &OverlayScrollBar::adapt);
}

void OverlayScrollBar::setForeground(const QColor &color)
{
    m_foreground = color;
    update();
}

void OverlayScrollBar::adapt()
{
    const QRect parent = parentWidget()->rect();
    const QRect trailing(parent.width() - kWidth, 0, kWidth, parent.height());
    setGeometry(QStyle::visualRect(layoutDirection(), parent, trailing));
    setVisible(m_source->maximum() > 0);
    raise();
    update();
}

void OverlayScrollBar::flash()
{
    m_isShown = true;
    m_hide.start();
    update();
}

QRect OverlayScrollBar::knobRect() const
{
    const int room = height() - 2 * kMargin;
    const double total = m_source->maximum() + double(m_source->pageStep());
    if (m_source->maximum() <= 0 || total <= 0)
        return {};
    const int length =
        std::clamp(int(room * m_source->pageStep() / total), std::min(kMinimumKnob, room), room);
    const int top = int((room - length) * double(m_source->value()) / m_source->maximum());
    return {(kWidth - kKnobWidth) / 2, kMargin + top, kKnobWidth, length};
}

void OverlayScrollBar::paintEvent(QPaintEvent *)
{
    if (!m_isShown)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor color = m_foreground;
    color.setAlphaF(float(m_isHovered || m_grip >= 0 ? kActiveAlpha : kRestingAlpha));
    painter.setBrush(color);
    painter.drawRoundedRect(knobRect(), kKnobWidth / 2.0, kKnobWidth / 2.0);
}

void OverlayScrollBar::mousePressEvent(QMouseEvent *event)
{
    const int y = event->position().toPoint().y();
    const QRect knob = knobRect();
    if (y < knob.top() || y > knob.bottom()) {
        m_source->triggerAction(y < knob.top() ? QScrollBar::SliderPageStepSub
                                               : QScrollBar::SliderPageStepAdd);
        return;
    }
    m_grip = y - knob.top();
}

void OverlayScrollBar::mouseMoveEvent(QMouseEvent *event)
{
    const int room = height() - 2 * kMargin - knobRect().height();
    if (m_grip < 0 || room <= 0)
        return;
    const double share = double(event->position().toPoint().y() - m_grip - kMargin) / room;
    m_source->setValue(int(share * m_source->maximum()));
}

void OverlayScrollBar::mouseReleaseEvent(QMouseEvent *)
{
    m_grip = -1;
    flash();
}

void OverlayScrollBar::enterEvent(QEnterEvent *)
{
    m_isHovered = true;
    flash();
}

void OverlayScrollBar::leaveEvent(QEvent *)
{
    m_isHovered = false;
    flash();
}

} // namespace lorva
