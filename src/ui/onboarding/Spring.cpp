// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/Spring.h"

#include <QtGlobal>

#include <cmath>

namespace lorva {

namespace {

constexpr double kSettled = 0.001;

} // namespace

double Spring::decay() const
{
    return damping / (2.0 * mass);
}

double Spring::frequency() const
{
    const double squared = stiffness / mass - decay() * decay();
    Q_ASSERT(squared > 0);
    return std::sqrt(squared);
}

double Spring::progress(double seconds) const
{
    const double phase = frequency() * seconds;
    const double wave = std::cos(phase) + decay() / frequency() * std::sin(phase);
    return 1.0 - std::exp(-decay() * seconds) * wave;
}

double Spring::settlingSeconds() const
{
    // The hull of the oscillation: its amplitude times the decay.
    const double amplitude = std::hypot(1.0, decay() / frequency());
    return std::log(amplitude / kSettled) / decay();
}

} // namespace lorva
