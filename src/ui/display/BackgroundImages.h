// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

#include <span>

namespace lorva {

/// One of the background images that the program draws itself.
struct BackgroundImage
{
    /// Stored; never changes.
    const char *id;
    /// For people; goes through translation.
    const char *name;
};

/// At least eight, in the order of the panel.
std::span<const BackgroundImage> builtInBackgroundImages();
/// Its name in the user's language; empty for an unknown id.
QString backgroundImageName(const QString &id);
/// Draws it to fill `sizePx` device pixels; null for an unknown id. The same each time. Thread:
/// any.
QImage drawBackgroundImage(const QString &id, QSize sizePx);
/// What it comes to from afar, without drawing it large; invalid for an unknown id. Thread: any.
QColor averageBackgroundColor(const QString &id);
/// The middle of `image`, scaled to cover `sizePx`. Thread: any.
QImage coveringImage(const QImage &image, QSize sizePx);
/// That of all pixels, as if they lay on white. Thread: any.
QColor averageColor(const QImage &image);

} // namespace lorva
