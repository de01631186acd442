// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/DisplayRecords.h"

#include <QColor>

class QWidget;

namespace lorva {

/// The colours of a pane that shows specimens.
struct PaneColors
{
    QColor foreground = Qt::black;
    /// Transparent over an image, which lies beneath the pane.
    QColor background = Qt::white;
    bool operator==(const PaneColors &) const = default;
};

/// Of a pane's state.
template <class State>
PaneColors paneColorsOf(const State &state)
{
    if (state.colorMode == ColorMode::image)
        return {QColor(state.imageForegroundColorHex), QColor(Qt::transparent)};
    return {QColor(state.foregroundColorHex), QColor(state.backgroundColorHex)};
}

/// The pane's background, or, where it is transparent over an image, what the foreground is
/// readable on.
QColor groundUnder(const QColor &foreground, const QColor &background);

/// The widget paints it as its own ground; a transparent one lets through what lies beneath.
void fillPane(QWidget &pane, const QColor &background);

} // namespace lorva
