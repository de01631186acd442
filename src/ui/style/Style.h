// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace lorva {

// The measures and the type of the interface, in points. Thread: main.

/// The spacing scale; a distance that is not on it needs a reason.
namespace spacing {
inline constexpr int k2 = 2;
inline constexpr int k4 = 4;
inline constexpr int k8 = 8;
inline constexpr int k12 = 12;
inline constexpr int k16 = 16;
inline constexpr int k20 = 20;
inline constexpr int k24 = 24;
inline constexpr int k28 = 28;
inline constexpr int k32 = 32;
inline constexpr int k40 = 40;
inline constexpr int k48 = 48;
} // namespace spacing

/// The six sizes of the interface's type.
enum class InterfaceSize {
    tag = 10,
    caption = 11,
    label = 12,
    body = 13,
    title = 15,
    heading = 20
};

/// The three weights of the interface's type.
enum class InterfaceWeight { regular = 400, medium = 500, semibold = 600 };

/// Tabular figures have one width, so that counts line up and do not jump while they change.
enum class Figures { proportional, tabular };

/// The desktop's interface font. Tabular figures need a toolkit that can switch font features
/// (Qt 6.7); before it the figures stay as the font has them.
QFont interfaceFont(InterfaceSize size, InterfaceWeight weight = InterfaceWeight::regular,
                    Figures figures = Figures::proportional);

} // namespace lorva
