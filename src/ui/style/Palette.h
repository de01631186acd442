// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <optional>

namespace lorva {

// The colours of the interface. Pure functions but where they ask the desktop. Thread: any; main
// for those.

/// What sidebar, inspector, Discover, Settings and sheets are coloured with.
struct NeutralColors
{
    QColor ground;
    QColor sidebar;
    QColor text;
};

NeutralColors neutralColors(bool isDark);
/// True when the desktop's windows are dark. Thread: main.
bool isDarkDesktop();
/// Decides in the desktop's place; nothing gives the decision back to it. Every widget hears of it
/// as of a new palette. Thread: main.
void setDarkDesktopOverride(std::optional<bool> isDark);
/// The desktop's own accent, for caret, focus and default buttons only. Thread: main.
QColor accentColor();

/// `color` with its alpha multiplied by `alpha` (0 … 1).
QColor withAlpha(QColor color, double alpha);
/// `over` laid on an opaque `ground`.
QColor blended(const QColor &over, const QColor &ground);

/// From 1 (the same) to 21 (black on white); alpha is not looked at (WCAG 2, relative luminance).
double contrastRatio(const QColor &a, const QColor &b);
/// Black or white, whichever is seen better on `background`.
QColor contrastingNeutral(const QColor &background);
/// `foreground` where controls drawn in it can be seen on `background`, else black or white. A
/// background that is not opaque is taken as it would be on white.
QColor controlColor(const QColor &foreground, const QColor &background);

/// `ink` at `alpha`, or at as much more as it takes to be read on an opaque `ground` (4.5:1).
QColor quietColor(const QColor &ink, const QColor &ground, double alpha);

/// Lines between cards: 8.5 % of black on a white ground, 13 % of white on a black one, 20 % of the
/// foreground on a colour, and where an image shows through.
QColor hairlineColor(const QColor &foreground, const QColor &background);

} // namespace lorva
