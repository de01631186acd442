// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/PaneColors.h"

#include <QWidget>

namespace lorva {

void fillPane(QWidget &pane, const QColor &background)
{
    pane.setAutoFillBackground(background.alpha() == 255);
    if (pane.palette().color(QPalette::Window) == background)
        return;
    QPalette colors = pane.palette();
    colors.setColor(QPalette::Window, background);
    pane.setPalette(colors);
}

} // namespace lorva
