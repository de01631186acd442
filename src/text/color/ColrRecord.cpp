// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrRecord.h"

#include <cmath>

namespace lorva {

namespace {

constexpr double kPi = 3.14159265358979323846;

QTransform around(const QTransform &transform, double x, double y)
{
    return QTransform::fromTranslate(-x, -y) * transform * QTransform::fromTranslate(x, y);
}

/// Counter-clockwise in half turns, y up.
QTransform rotation(double halfTurns)
{
    const double sine = std::sin(halfTurns * kPi);
    const double cosine = std::cos(halfTurns * kPi);
    return QTransform(cosine, sine, -sine, cosine, 0, 0);
}

QTransform skew(double xHalfTurns, double yHalfTurns)
{
    return QTransform(1, std::tan(yHalfTurns * kPi), -std::tan(xHalfTurns * kPi), 1, 0, 0);
}

} // namespace

QTransform colrTransform(quint8 format, const ColrRecord &record)
{
    switch (format & ~1) {
    case 14:
        return QTransform::fromTranslate(record.word(4, 0), record.word(6, 1));
    case 16:
        return QTransform::fromScale(record.f2dot14(4, 0), record.f2dot14(6, 1));
    case 18:
        return around(QTransform::fromScale(record.f2dot14(4, 0), record.f2dot14(6, 1)),
                      record.word(8, 2), record.word(10, 3));
    case 20:
        return QTransform::fromScale(record.f2dot14(4, 0), record.f2dot14(4, 0));
    case 22:
        return around(QTransform::fromScale(record.f2dot14(4, 0), record.f2dot14(4, 0)),
                      record.word(6, 1), record.word(8, 2));
    case 24:
        return rotation(record.f2dot14(4, 0));
    case 26:
        return around(rotation(record.f2dot14(4, 0)), record.word(6, 1), record.word(8, 2));
    case 28:
        return skew(record.f2dot14(4, 0), record.f2dot14(6, 1));
    case 30:
        return around(skew(record.f2dot14(4, 0), record.f2dot14(6, 1)), record.word(8, 2),
                      record.word(10, 3));
    default:
        return {};
    }
}

QTransform colrAffine(const ColrRecord &record)
{
    return QTransform(record.fixed(0, 0), record.fixed(4, 1), record.fixed(8, 2),
                      record.fixed(12, 3), record.fixed(16, 4), record.fixed(20, 5));
}

bool isUsable(const QTransform &t)
{
    constexpr double kFurthest = 1e9;
    const double values[]{t.m11(), t.m12(), t.m21(), t.m22(), t.dx(), t.dy()};
    // Written so that what is no number fails too.
    return std::all_of(std::begin(values), std::end(values),
                       [](double value) { return std::abs(value) <= kFurthest; });
}

} // namespace lorva
