// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainter>

namespace lorva {

/// The colours of a small control on a ground that the user chose.
///
/// Always visible: where the foreground cannot be told from the ground, black or white takes its
/// place.
struct ControlColors
{
    /// Symbols and texts.
    QColor ink;
    /// What is sunk into the ground: a slider's track, the bed of segments.
    QColor bed;
    /// What lies on it: the knob, the chosen segment.
    QColor raised;
    /// Symbols on `raised`.
    QColor inkOnRaised;
    /// The hair of shadow around `raised`.
    QColor shadow;
    /// What bounds a part that cannot be told from the ground otherwise.
    QColor edge;

    static ControlColors from(const QColor &foreground, const QColor &background);
};

/// Fills a raised rounded rectangle with its shadow.
void drawRaised(QPainter &painter, const QRectF &rect, double radius, const ControlColors &colors);
/// Fills the ground of something that lies flat until it is pointed at.
void drawHover(QPainter &painter, const QRectF &rect, double radius, const QColor &ink,
               bool isPressed);
/// The two-point ring around what has the keyboard's focus.
void drawFocusRing(QPainter &painter, const QRectF &rect, double radius);

/// Whether what gets the focus for `reason` shows its ring: where the keyboard brought it. A window
/// or a menu that gives it back leaves it as it was.
bool showsFocusRing(Qt::FocusReason reason, bool showedBefore);

} // namespace lorva
