// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

namespace lorva {

/// The soft wide shadow of a card, in the middle of an otherwise transparent image of that size.
/// Made once for each size and then shared. `ratio`: device pixels for a point of the card.
/// Premultiplied, of ratio 1. Thread: any.
QImage fontQuizShadow(QSize sizePx, double ratio, bool isDark);

} // namespace lorva
