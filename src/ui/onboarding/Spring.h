// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

/// A damped spring, released at rest one unit away from where it settles (a linear second-order
/// system, m·x″ + c·x′ + k·x = 0). Always true: under-damped, c² < 4·k·m. Units: SI. Thread: any.
struct Spring
{
    double damping = 20;
    double stiffness = 180;
    double mass = 1;

    /// How far on its way it is: 0 at first, 1 where it settles, a little more on the way there.
    double progress(double seconds) const;
    /// After this it never is farther than a thousandth away.
    double settlingSeconds() const;

private:
    double decay() const;
    double frequency() const;
};

} // namespace lorva
