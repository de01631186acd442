// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

namespace lorva {

/// Draws one row or column of device pixels just inside `edge` of `rect` (points), at every
/// device-pixel ratio. Thread: the painter's.
void drawHairline(QPainter &painter, const QRectF &rect, Qt::Edge edge, const QColor &color);

} // namespace lorva
