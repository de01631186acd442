// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>

namespace lorva {

/// True when the bytes begin as an SVG document does. Thread: any.
bool isSvg(const QByteArray &bytes);

/// A drawing that is known to ask for nothing but itself.
struct SafeSvg
{
    /// A new document, made of the elements and attributes that we know.
    QByteArray xml;
    /// Of the drawing, in its own units; empty when it does not say.
    QSizeF size;
};

/// Copies what is known to be harmless into a new document: shapes, gradients, text, references
/// within the document, pictures that it carries itself (decoded and written anew). Left out are
/// scripts, handlers, foreign content, animations, every reference to something outside, document
/// type and processing instructions.
///
/// Fails with `malformed`, or with `tooLarge` when its elements, their depth, or what it draws by
/// repeating itself go beyond any drawing. Thread: any.
Result<SafeSvg> sanitizeSvg(const QByteArray &bytes);

/// Draws it as large as `maximumSidePx` allows, on a transparent ground, smaller where the work
/// would take longer than about a second. Fails as sanitizeSvg(), and with `tooLarge` where no size
/// helps. Thread: any.
Result<QImage> readSafeSvg(const QByteArray &bytes, int maximumSidePx);

} // namespace lorva
