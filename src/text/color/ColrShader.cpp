// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrShader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace lorva {

namespace {

constexpr double kPi = 3.14159265358979323846;
/// Says that a place has no colour at all.
constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();

struct PremultipliedColor
{
    double alpha = 0;
    double red = 0;
    double green = 0;
    double blue = 0;

    static PremultipliedColor of(const QColor &color)
    {
        const double alpha = color.alphaF();
        return {alpha, color.redF() * alpha, color.greenF() * alpha, color.blueF() * alpha};
    }

    PremultipliedColor towards(const PremultipliedColor &other, double share) const
    {
        const auto mix = [share](double a, double b) { return a + (b - a) * share; };
        return {mix(alpha, other.alpha), mix(red, other.red), mix(green, other.green),
                mix(blue, other.blue)};
    }

    QRgb pixel() const
    {
        const auto byte = [](double value) { return int(std::lround(value * 255)); };
        return qRgba(byte(red), byte(green), byte(blue), byte(alpha));
    }
};

/// The colours along a gradient, from its first stop to its last.
class ColorLine
{
public:
    ColorLine(const ColrGradient &gradient, const QColor &foreground)
        : m_first(gradient.stops.front().offset)
        , m_length(gradient.stops.back().offset - m_first)
        , m_extend(gradient.extend)
    {
        fill(gradient.stops, foreground);
    }

    /// A line without length paints on both of its sides if it is to be padded, else nothing.
    bool isEmpty() const { return m_length <= 0 && m_extend != ColrExtend::pad; }

    QRgb at(double offset) const
    {
        if (std::isnan(offset))
            return 0;
        if (m_length <= 0)
            return offset < m_first ? m_colors.front() : m_colors.back();
        return m_colors[index((offset - m_first) / m_length)];
    }

private:
    static constexpr int kSteps = 1024;

    /// `share` of the way from the first stop to the last.
    size_t index(double share) const
    {
        switch (m_extend) {
        case ColrExtend::pad:
            break;
        case ColrExtend::repeat:
            share -= std::floor(share);
            break;
        case ColrExtend::reflect:
            share = std::abs(share - 2 * std::floor((share + 1) / 2));
            break;
        }
        return size_t(std::clamp(std::floor(share * kSteps), -1.0, double(kSteps)) + 1);
    }

    void fill(const std::vector<ColrStop> &stops, const QColor &foreground)
    {
        std::vector<PremultipliedColor> colors;
        colors.reserve(stops.size());
        for (const ColrStop &stop : stops)
            colors.push_back(PremultipliedColor::of(stop.color.with(foreground)));
        m_colors.front() = colors.front().pixel();
        m_colors.back() = colors.back().pixel();
        size_t next = 1;
        for (int i = 0; i < kSteps && m_length > 0; ++i) {
            const double offset = m_first + (i + 0.5) / kSteps * m_length;
            while (next + 1 < stops.size() && stops[next].offset <= offset)
                ++next;
            const double gap = stops[next].offset - stops[next - 1].offset;
            const double share = gap > 0 ? (offset - stops[next - 1].offset) / gap : 1;
            m_colors[size_t(i) + 1] = colors[next - 1].towards(colors[next], share).pixel();
        }
    }

    const double m_first;
    const double m_length;
    const ColrExtend m_extend;
    /// The colour before the line, the line's own, the colour after it.
    std::array<QRgb, kSteps + 2> m_colors{};
};

/// Each of these gives the offset on the colour line at a place of the gradient's own space.
class LinearOffset
{
public:
    explicit LinearOffset(const ColrGradient &gradient)
        : m_start(gradient.start)
    {
        const QPointF along = gradient.end - gradient.start;
        m_slope = along / QPointF::dotProduct(along, along);
    }
    double operator()(QPointF at) const { return QPointF::dotProduct(at - m_start, m_slope); }

private:
    QPointF m_start;
    QPointF m_slope;
};

/// OpenType `COLR`, "Radial Gradients": of the circles that pass through the place, the one
/// furthest along whose radius is not negative.
class RadialOffset
{
public:
    explicit RadialOffset(const ColrGradient &gradient)
        : m_start(gradient.start)
        , m_move(gradient.end - gradient.start)
        , m_radius(gradient.startRadius)
        , m_growth(gradient.endRadius - gradient.startRadius)
        , m_a(QPointF::dotProduct(m_move, m_move) - m_growth * m_growth)
    {
    }

    double operator()(QPointF at) const
    {
        const QPointF from = at - m_start;
        const double b = QPointF::dotProduct(from, m_move) + m_radius * m_growth;
        const double c = QPointF::dotProduct(from, from) - m_radius * m_radius;
        if (m_a == 0)
            return b == 0 ? kNowhere : usable(c / (2 * b));
        const double discriminant = b * b - m_a * c;
        if (discriminant < 0)
            return kNowhere;
        const double root = std::sqrt(discriminant);
        const double one = (b + root) / m_a;
        const double other = (b - root) / m_a;
        const double further = usable(std::max(one, other));
        return std::isnan(further) ? usable(std::min(one, other)) : further;
    }

private:
    double usable(double offset) const
    {
        return m_radius + offset * m_growth >= 0 ? offset : kNowhere;
    }

    QPointF m_start;
    QPointF m_move;
    double m_radius;
    double m_growth;
    double m_a;
};

class SweepOffset
{
public:
    explicit SweepOffset(const ColrGradient &gradient)
        : m_center(gradient.start)
        , m_startAngle(gradient.startAngle)
        , m_turn(gradient.endAngle - gradient.startAngle)
    {
    }

    double operator()(QPointF at) const
    {
        const QPointF from = at - m_center;
        const double angle = std::atan2(from.y(), from.x()) * 180 / kPi;
        return ((angle < 0 ? angle + 360 : angle) - m_startAngle) / m_turn;
    }

private:
    QPointF m_center;
    double m_startAngle;
    double m_turn;
};

template <class Offset>
void shadePixels(QImage &image, QPoint corner, const QTransform &deviceToUnits,
                 const Offset &offset, const ColorLine &line)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *const row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QPointF center(corner.x() + x + 0.5, corner.y() + y + 0.5);
            row[x] = line.at(offset(deviceToUnits.map(center)));
        }
    }
}

/// A sweep without width is padded on both sides: the first colour up to its angle, the last from
/// there.
ColrGradient withWidth(ColrGradient gradient)
{
    constexpr double kHairDegrees = 1e-6;
    if (gradient.startAngle == gradient.endAngle)
        gradient.endAngle += kHairDegrees;
    return gradient;
}

} // namespace

QImage shade(const ColrGradient &gradient, const QTransform &unitsToDevice, const QRect &devicePx,
             const QColor &foreground)
{
    QImage image(devicePx.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    bool canInvert = false;
    const QTransform deviceToUnits = unitsToDevice.inverted(&canInvert);
    const ColorLine line(gradient, foreground);
    const bool isHair = gradient.kind == ColrGradient::Kind::sweep
        && gradient.startAngle == gradient.endAngle && gradient.extend != ColrExtend::pad;
    if (!canInvert || line.isEmpty() || isHair)
        return image;
    const QPoint corner = devicePx.topLeft();
    switch (gradient.kind) {
    case ColrGradient::Kind::linear:
        shadePixels(image, corner, deviceToUnits, LinearOffset(gradient), line);
        break;
    case ColrGradient::Kind::radial:
        shadePixels(image, corner, deviceToUnits, RadialOffset(gradient), line);
        break;
    case ColrGradient::Kind::sweep:
        shadePixels(image, corner, deviceToUnits, SweepOffset(withWidth(gradient)), line);
        break;
    }
    return image;
}

} // namespace lorva
