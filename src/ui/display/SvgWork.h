// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QSvgRenderer;

namespace lorva {

/// How much work it is to paint a drawing at that size, in roughly nanoseconds; infinite when it
/// has no end. Paints nothing, and takes a fraction of that itself. Thread: the renderer's.
double svgWork(QSvgRenderer &renderer, QSize sizePx);

} // namespace lorva
