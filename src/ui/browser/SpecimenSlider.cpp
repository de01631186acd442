// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/SpecimenSlider.h"

#include "model/SourceDisplay.h"
#include "ui/style/Palette.h"
#include "ui/style/PointSlider.h"
#include "ui/style/Style.h"

#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr double kLetterAlpha = 0.6;
constexpr int kLetterWidth = 13;
/// The slider's room for its knob reaches under the letters.
constexpr int kOverlap = 3;
constexpr int kSliderLeft = kLetterWidth - kOverlap;
constexpr int kHeight = spacing::k28;
constexpr int kWeightStep = 10;
constexpr int kWeightStop = 100;
constexpr int kSizePage = 10;

} // namespace

SpecimenSlider::SpecimenSlider(Kind kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
    , m_slider(new PointSlider(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setUpSlider();
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
        if (!m_suppressCallbacks)
            Q_EMIT valueChosen(value);
    });
    connect(m_slider, &QSlider::sliderPressed, this, [this] { Q_EMIT holdChanged(true); });
    connect(m_slider, &QSlider::sliderReleased, this, [this] { Q_EMIT holdChanged(false); });
}

void SpecimenSlider::setUpSlider()
{
    static const DisplayValues defaults;
    if (m_kind == Kind::size) {
        m_slider->setObjectName(QStringLiteral("pointSizeSlider"));
        m_slider->setAccessibleName(tr("Specimen size"));
        m_slider->setToolTip(tr("Size"));
        m_slider->setRange(int(SourceDisplay::kMinimumPointSize),
                           int(SourceDisplay::kMaximumPointSize));
        m_slider->setPageStep(kSizePage);
        m_slider->setDefaultValue(qRound(defaults.browserPointSize));
        m_slider->setValue(qRound(defaults.browserPointSize));
        return;
    }
    m_slider->setObjectName(QStringLiteral("fontWeightSlider"));
    m_slider->setAccessibleName(tr("Specimen weight"));
    m_slider->setToolTip(tr("Weight"));
    m_slider->setRange(int(SourceDisplay::kMinimumWeight), int(SourceDisplay::kMaximumWeight));
    m_slider->setStops(kWeightStep, kWeightStop);
    m_slider->setDefaultValue(qRound(defaults.browserFontWeight));
    m_slider->setValue(qRound(defaults.browserFontWeight));
}

void SpecimenSlider::setValue(double value)
{
    if (m_slider->isSliderDown())
        return;
    m_suppressCallbacks = true;
    m_slider->setValue(qRound(std::clamp<double>(value, m_slider->minimum(), m_slider->maximum())));
    m_suppressCallbacks = false;
}

void SpecimenSlider::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    m_slider->setColors(foreground, background);
    update();
}

QSize SpecimenSlider::sizeHint() const
{
    return QSize(m_slider->sizeHint().width() + 2 * kSliderLeft, kHeight);
}

void SpecimenSlider::resizeEvent(QResizeEvent *)
{
    const int sliderHeight = m_slider->sizeHint().height();
    m_slider->setGeometry(kSliderLeft, (height() - sliderHeight) / 2, width() - 2 * kSliderLeft,
                          sliderHeight);
}

QFont SpecimenSlider::letterFont(bool isLarge) const
{
    if (m_kind == Kind::size)
        return interfaceFont(isLarge ? InterfaceSize::title : InterfaceSize::tag);
    QFont font = interfaceFont(InterfaceSize::label);
    // A specimen of what the slider does, not a text of the interface.
    font.setWeight(isLarge ? QFont::Black : QFont::Light);
    return font;
}

void SpecimenSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ground = blended(m_background, Qt::white);
    painter.setPen(quietColor(controlColor(m_foreground, m_background), ground, kLetterAlpha));
    const QString letter = m_kind == Kind::size ? QStringLiteral("A") : QStringLiteral("W");
    for (const bool isLarge : {false, true}) {
        const int x = isLarge ? width() - kLetterWidth : 0;
        const QRect logical(x, 0, kLetterWidth, height());
        painter.setFont(letterFont(isLarge));
        painter.drawText(QStyle::visualRect(layoutDirection(), rect(), logical),
                         Qt::AlignCenter | Qt::TextDontClip, letter);
    }
}

} // namespace lorva
