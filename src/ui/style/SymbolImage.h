// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace lorva {

/// The symbol of that name, `sizePt` points square, in one colour. Made once per name, size, colour
/// and ratio and then kept. An unknown name gives a null image and a warning in the log. Thread:
/// main.
QImage symbolImage(const QString &name, double sizePt, const QColor &color,
                   double devicePixelRatio);

} // namespace lorva
