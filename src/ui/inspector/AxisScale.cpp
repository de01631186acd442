// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/AxisScale.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr double kLeastSteps = 40;
/// OpenType `fvar` counts in 65536ths; positions of more decimals would not fit.
constexpr int kMostDecimals = 4;

int decimalsFor(double extent)
{
    const double exponent = std::floor(std::log10(extent / kLeastSteps));
    return std::clamp(int(-exponent), 0, kMostDecimals);
}

} // namespace

AxisScale::AxisScale(double minValue, double maxValue)
    : m_minValue(minValue)
    , m_maxValue(std::max(minValue, maxValue))
    , m_decimals(m_maxValue > m_minValue ? decimalsFor(m_maxValue - m_minValue) : 0)
    , m_perUnit(std::pow(10.0, m_decimals))
{
}

double AxisScale::clamped(double value) const
{
    return std::clamp(value, m_minValue, m_maxValue);
}

int AxisScale::positionOf(double value) const
{
    const double position = value >= m_maxValue ? std::ceil(m_maxValue * m_perUnit)
        : value <= m_minValue                   ? std::floor(m_minValue * m_perUnit)
                                                : std::round(value * m_perUnit);
    constexpr double kFurthest = 1e9;
    return int(std::clamp(position, -kFurthest, kFurthest));
}

double AxisScale::valueAt(int position) const
{
    return clamped(position / m_perUnit);
}

double AxisScale::stepped(double value, int steps) const
{
    return clamped((std::round(value * m_perUnit) + steps) / m_perUnit);
}

QString AxisScale::text(double value, const QLocale &locale) const
{
    QLocale plain(locale);
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    const double unseen = std::pow(10.0, -(m_decimals + 2)) / 2;
    int decimals = 0;
    for (double scale = 1; decimals < m_decimals + 2; ++decimals, scale *= 10) {
        if (std::abs(value - std::round(value * scale) / scale) < unseen)
            break;
    }
    // Without it a rounded −0.001 would be told as −0.
    const double rounded = std::round(value * std::pow(10.0, decimals)) == 0 ? 0.0 : value;
    return plain.toString(rounded, 'f', decimals);
}

std::optional<double> AxisScale::parsed(const QString &text, const QLocale &locale) const
{
    QString typed = text.trimmed();
    typed.replace(u'\u2212', u'-');
    bool isNumber = false;
    double value = locale.toDouble(typed, &isNumber);
    if (!isNumber)
        value = QLocale::c().toDouble(typed, &isNumber);
    if (!isNumber || !std::isfinite(value))
        return std::nullopt;
    return clamped(value);
}

} // namespace lorva
