// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/PaneColors.h"

#include "ui/style/Palette.h"

#include <QWidget>

namespace lorva {

QColor groundUnder(const QColor &foreground, const QColor &background)
{
    const bool isOverImage = background.alpha() < 255;
    return isOverImage ? contrastingNeutral(foreground) : background;
}

void fillPane(QWidget &pane, const QColor &background)
{
    // The window's own role would be taken otherwise.
    pane.setBackgroundRole(QPalette::Window);
    pane.setAutoFillBackground(background.alpha() == 255);
    if (pane.palette().color(QPalette::Window) == background)
        return;
    QPalette colors = pane.palette();
    colors.setColor(QPalette::Window, background);
    pane.setPalette(colors);
}

} // namespace lorva
