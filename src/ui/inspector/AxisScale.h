// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/InspectorRecords.h"

#include <QLocale>

#include <optional>

namespace lorva {

/// How finely an axis is moved and told: in steps of a power of ten, so that axes from 0 … 1 to
/// 100 … 900 take some forty to some hundred steps and more.
///
/// A value. Positions are whole numbers for a slider: for steps of 1 the values themselves. Thread:
/// any.
class AxisScale
{
public:
    /// The least value lies below the greatest, and both are finite.
    AxisScale(double minValue, double maxValue);
    explicit AxisScale(const FontVariationAxisRecord &axis)
        : AxisScale(axis.minValue, axis.maxValue)
    {
    }

    double step() const { return 1.0 / m_perUnit; }
    int firstPosition() const { return positionOf(m_minValue); }
    int lastPosition() const { return positionOf(m_maxValue); }
    /// The nearest one.
    int positionOf(double value) const;
    /// The first and the last position stand for the ends of the axis, wherever these are.
    double valueAt(int position) const;
    /// `value` moved on to a whole number of steps, within the axis.
    double stepped(double value, int steps) const;
    double clamped(double value) const;

    /// With as many decimals as it takes, up to two more than a step has.
    QString text(double value, const QLocale &locale) const;
    /// What a person typed, clamped; nothing where it is no number.
    std::optional<double> parsed(const QString &text, const QLocale &locale) const;

private:
    double m_minValue;
    double m_maxValue;
    int m_decimals = 0;
    /// Steps in a unit.
    double m_perUnit = 1;
};

} // namespace lorva
