// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/ProgressIndicators.h"

#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"

#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace lorva {

namespace {

constexpr int kSpinnerSide = 16;
constexpr double kSpinnerStroke = 1.8;
constexpr double kBedAlpha = 0.12;
constexpr double kArcAlpha = 0.62;
constexpr int kArcDegrees = 100;
constexpr int kStepDegrees = 9;
/// Once round in about a second.
constexpr std::chrono::milliseconds kStep{25};

constexpr int kBarHeight = 4;
constexpr int kBarUsualWidth = 240;
constexpr double kBarAlpha = 0.75;
/// Finer than the pixels of any window.
constexpr int kBarSteps = 10000;

} // namespace

QuietSpinner::QuietSpinner(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_turn.setInterval(kStep);
    connect(&m_turn, &QTimer::timeout, this, [this] {
        m_step = (m_step + 1) % (360 / kStepDegrees);
        update();
    });
}

QSize QuietSpinner::sizeHint() const
{
    return {kSpinnerSide, kSpinnerSide};
}

void QuietSpinner::showEvent(QShowEvent *)
{
    if (!prefersReducedMotion(this))
        m_turn.start();
}

void QuietSpinner::hideEvent(QHideEvent *)
{
    m_turn.stop();
}

void QuietSpinner::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double inset = kSpinnerStroke / 2 + 0.5;
    const QRectF ring =
        QRectF(0, 0, kSpinnerSide, kSpinnerSide).adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(withAlpha(neutral.text, kBedAlpha), kSpinnerStroke));
    painter.drawEllipse(ring);
    painter.setPen(
        QPen(withAlpha(neutral.text, kArcAlpha), kSpinnerStroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, (90 - m_step * kStepDegrees) * 16, -kArcDegrees * 16);
}

ThinProgressBar::ThinProgressBar(QWidget *parent)
    : QProgressBar(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setRange(0, kBarSteps);
    setTextVisible(false);
}

void ThinProgressBar::setFraction(double fraction)
{
    const double bounded = std::isfinite(fraction) ? std::clamp(fraction, 0.0, 1.0) : 0.0;
    setValue(int(std::lround(bounded * kBarSteps)));
}

double ThinProgressBar::fraction() const
{
    return double(std::max(value(), 0)) / kBarSteps;
}

QSize ThinProgressBar::sizeHint() const
{
    return {kBarUsualWidth, kBarHeight};
}

void ThinProgressBar::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double radius = kBarHeight / 2.0;
    const QRectF bed(0, (height() - kBarHeight) / 2.0, width(), kBarHeight);
    painter.setBrush(withAlpha(neutral.text, kBedAlpha));
    painter.drawRoundedRect(bed, radius, radius);
    if (value() <= 0)
        return;
    // Round from its beginning on.
    QRectF done = bed;
    done.setWidth(std::max<double>(kBarHeight, bed.width() * fraction()));
    if (isRightToLeft())
        done.moveRight(bed.right());
    painter.setBrush(withAlpha(neutral.text, kBarAlpha));
    painter.drawRoundedRect(done, radius, radius);
}

} // namespace lorva
