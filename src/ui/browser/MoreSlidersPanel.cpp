// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/MoreSlidersPanel.h"

#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace lorva {

namespace {

constexpr int kCaptionHeight = spacing::k20;
constexpr double kCaptionAlpha = 0.55;

} // namespace

MoreSlidersPanel::MoreSlidersPanel(const std::vector<SpecimenSlider::Kind> &kinds, QWidget *parent)
    : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::k16, spacing::k12, spacing::k16, spacing::k12);
    column->setSpacing(spacing::k12 + kCaptionHeight);
    column->setSizeConstraint(QLayout::SetMinimumSize);
    column->addSpacing(kCaptionHeight - column->spacing());
    for (const SpecimenSlider::Kind kind : kinds)
        m_sliders.push_back(new SpecimenSlider(kind, this));
    for (SpecimenSlider *slider : m_sliders)
        column->addWidget(slider);
    takeColors();
}

void MoreSlidersPanel::takeColors()
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    for (SpecimenSlider *slider : m_sliders)
        slider->setColors(neutral.text, neutral.ground);
}

void MoreSlidersPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

void MoreSlidersPanel::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.setFont(interfaceFont(InterfaceSize::caption, InterfaceWeight::semibold));
    painter.setPen(quietColor(neutral.text, neutral.ground, kCaptionAlpha));
    for (const SpecimenSlider *slider : m_sliders) {
        const QRect place = slider->geometry();
        const QRect caption(place.left(), place.top() - kCaptionHeight, place.width(),
                            kCaptionHeight);
        painter.drawText(
            caption,
            int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)),
            slider->label());
    }
}

} // namespace lorva
