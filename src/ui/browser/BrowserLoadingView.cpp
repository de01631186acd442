// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserLoadingView.h"

#include "ui/sheets/FontIndexingSheetController.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"

#include <QPainter>

#include <chrono>

namespace lorva {

namespace {

constexpr int kRingSize = 24;
constexpr double kRingWidth = 2;
constexpr std::chrono::milliseconds kFrame{33};
constexpr int kDegreesPerFrame = 12;
constexpr double kTrackAlpha = 0.1;
constexpr double kArcAlpha = 0.5;

} // namespace

BrowserLoadingView::BrowserLoadingView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("BrowserLoadingView"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_timer.setInterval(kFrame);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_angle = (m_angle + kDegreesPerFrame) % 360;
        update();
    });
}

void BrowserLoadingView::setForeground(const QColor &foreground)
{
    m_foreground = foreground;
    update();
}

void BrowserLoadingView::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    update();
}

void BrowserLoadingView::paintEvent(QPaintEvent *)
{
    // A sheet that says the same, and better, is not echoed below.
    if (showsProgressSheet(*window()))
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont font =
        interfaceFont(InterfaceSize::label, InterfaceWeight::regular, Figures::tabular);
    const int textHeight = QFontMetrics(font).height();
    const int top = (height() - kRingSize - spacing::k16 - textHeight) / 2;
    const QRectF ring(rect().center().x() - kRingSize / 2.0, top, kRingSize, kRingSize);
    painter.setPen(QPen(withAlpha(m_foreground, kTrackAlpha), kRingWidth));
    painter.drawEllipse(ring);
    painter.setPen(
        QPen(withAlpha(m_foreground, kArcAlpha), kRingWidth, Qt::SolidLine, Qt::RoundCap));
    // Qt counts sixteenths of a degree, anticlockwise; the ring turns clockwise.
    painter.drawArc(ring, -m_angle * 16, 90 * 16);
    painter.setFont(font);
    painter.drawText(QRectF(0, ring.bottom() + spacing::k16, width(), textHeight), Qt::AlignCenter,
                     m_text);
}

void BrowserLoadingView::showEvent(QShowEvent *)
{
    if (!prefersReducedMotion(this))
        m_timer.start();
}

void BrowserLoadingView::hideEvent(QHideEvent *)
{
    m_timer.stop();
}

} // namespace lorva
