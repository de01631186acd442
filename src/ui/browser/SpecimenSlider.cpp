// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/SpecimenSlider.h"

#include "model/SourceDisplay.h"
#include "ui/style/Palette.h"
#include "ui/style/PointSlider.h"
#include "ui/style/Style.h"

#include <QLocale>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>
#include <vector>

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
/// Ems.
constexpr double kTightest = -0.1;
constexpr double kWidest = 0.5;
constexpr double kSpacingStep = 0.01;
constexpr int kSpacingPage = 5;
/// So many steps around 0 are 0 to a knob that is held: about three points of its way.
constexpr int kStickySteps = 2;
constexpr double kUsualDetailSize = 96;
/// No value is out here, and all of them are whole numbers.
constexpr double kFarthest = 1e6;

/// Sizes as one would choose them: the larger, the farther apart.
const std::vector<int> kDetailSizes = [] {
    std::vector<int> sizes;
    for (const auto &[end, step] : {std::pair(48, 1), {100, 2}, {200, 4}, {401, 8}}) {
        for (int size = sizes.empty() ? 12 : sizes.back() + step; size < end; size += step)
            sizes.push_back(size);
        if (end < 400)
            sizes.push_back(end);
    }
    return sizes;
}();

constexpr double kGapHeight = 9;
constexpr double kNarrowGap = 3;
constexpr double kWideGap = 9;
constexpr double kGapStroke = 1.2;

} // namespace

SpecimenSlider::SpecimenSlider(Kind kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
    , m_slider(new PointSlider(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setUpSlider();
    connect(m_slider, &QSlider::valueChanged, this, &SpecimenSlider::moved);
    connect(m_slider, &QSlider::sliderPressed, this, [this] { Q_EMIT holdChanged(true); });
    connect(m_slider, &QSlider::sliderReleased, this, [this] { Q_EMIT holdChanged(false); });
}

QString SpecimenSlider::label() const
{
    switch (m_kind) {
    case Kind::size:
    case Kind::detailSize:
        //: Of the letters.
        return tr("Size");
    case Kind::weight:
        //: How heavy letters are, from Thin to Black.
        return tr("Weight");
    case Kind::letterSpacing:
        break;
    }
    return tr("Letter Spacing");
}

void SpecimenSlider::setUpSlider()
{
    static const DisplayValues defaults;
    m_slider->setToolTip(label());
    switch (m_kind) {
    case Kind::size:
        m_slider->setObjectName(QStringLiteral("pointSizeSlider"));
        m_slider->setAccessibleName(tr("Specimen size"));
        m_slider->setPageStep(kSizePage);
        return setUpRange(SourceDisplay::kMinimumPointSize, SourceDisplay::kMaximumPointSize,
                          defaults.browserPointSize);
    case Kind::weight:
        m_slider->setObjectName(QStringLiteral("fontWeightSlider"));
        m_slider->setAccessibleName(tr("Specimen weight"));
        m_slider->setStops(kWeightStep, kWeightStop);
        return setUpRange(SourceDisplay::kMinimumWeight, SourceDisplay::kMaximumWeight,
                          defaults.browserFontWeight);
    case Kind::detailSize:
        m_slider->setObjectName(QStringLiteral("detailSizeSlider"));
        m_slider->setAccessibleName(tr("Preview size"));
        m_slider->setPageStep(kSizePage);
        return setUpRange(kDetailSizes.front(), kDetailSizes.back(), kUsualDetailSize);
    case Kind::letterSpacing:
        m_slider->setObjectName(QStringLiteral("letterSpacingSlider"));
        m_slider->setAccessibleName(tr("Letter spacing"));
        m_slider->setPageStep(kSpacingPage);
        return setUpRange(kTightest, kWidest, 0);
    }
}

void SpecimenSlider::setUpRange(double least, double most, double usual)
{
    m_slider->setRange(positionOf(least), positionOf(most));
    m_slider->setDefaultValue(positionOf(usual));
    setValue(usual);
}

int SpecimenSlider::positionOf(double value) const
{
    if (m_kind == Kind::letterSpacing)
        return qRound(std::clamp(value, kTightest, kWidest) / kSpacingStep);
    if (m_kind != Kind::detailSize)
        return qRound(std::clamp(value, -kFarthest, kFarthest));
    const auto nearest = std::ranges::min_element(kDetailSizes, {},
                                                  [&](int size) { return std::abs(size - value); });
    return int(nearest - kDetailSizes.begin());
}

double SpecimenSlider::valueAt(int position) const
{
    if (m_kind == Kind::letterSpacing)
        return position * kSpacingStep;
    return m_kind == Kind::detailSize ? kDetailSizes[size_t(position)] : position;
}

void SpecimenSlider::setValue(double value)
{
    if (m_slider->isSliderDown())
        return;
    m_suppressCallbacks = true;
    m_slider->setValue(positionOf(value));
    m_suppressCallbacks = false;
    m_position = m_slider->value();
    describe();
}

void SpecimenSlider::moved(int position)
{
    if (m_suppressCallbacks)
        return;
    const bool sticks = m_kind == Kind::letterSpacing && m_slider->isSliderDown();
    if (sticks && std::abs(position) <= kStickySteps) {
        m_suppressCallbacks = true;
        m_slider->setValue(0);
        m_suppressCallbacks = false;
        position = 0;
    }
    if (std::exchange(m_position, position) == position)
        return;
    describe();
    Q_EMIT valueChosen(valueAt(position));
}

/// Where a position is not the value itself.
void SpecimenSlider::describe()
{
    const QLocale locale;
    if (m_kind == Kind::detailSize)
        //: The size of letters; spoken.
        m_slider->setAccessibleDescription(tr("%1 points").arg(valueAt(m_position)));
    if (m_kind == Kind::letterSpacing)
        m_slider->setAccessibleDescription(tr("%1 em").arg(locale.toString(valueAt(m_position))));
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
    if (m_kind != Kind::weight)
        return interfaceFont(isLarge ? InterfaceSize::title : InterfaceSize::tag);
    QFont font = interfaceFont(InterfaceSize::label);
    // A specimen of what the slider does, not a text of the interface.
    font.setWeight(isLarge ? QFont::Black : QFont::Light);
    return font;
}

/// Two strokes, near each other or far apart.
void SpecimenSlider::paintGap(QPainter &painter, const QRectF &room, bool isWide) const
{
    const double half = (isWide ? kWideGap : kNarrowGap) / 2;
    const QPointF center = room.center();
    for (const double x : {center.x() - half, center.x() + half}) {
        const QRectF stroke(x - kGapStroke / 2, center.y() - kGapHeight / 2, kGapStroke,
                            kGapHeight);
        painter.fillRect(stroke, painter.pen().color());
    }
}

void SpecimenSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = blended(m_background, Qt::white);
    painter.setPen(quietColor(controlColor(m_foreground, m_background), ground, kLetterAlpha));
    const QString letter = m_kind == Kind::weight ? QStringLiteral("W") : QStringLiteral("A");
    for (const bool isLarge : {false, true}) {
        const int x = isLarge ? width() - kLetterWidth : 0;
        const QRect logical(x, 0, kLetterWidth, height());
        const QRect room = QStyle::visualRect(layoutDirection(), rect(), logical);
        painter.setFont(letterFont(isLarge));
        if (m_kind == Kind::letterSpacing)
            paintGap(painter, room, isLarge);
        else
            painter.drawText(room, Qt::AlignCenter | Qt::TextDontClip, letter);
    }
}

} // namespace lorva
