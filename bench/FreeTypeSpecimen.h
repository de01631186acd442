// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QImage>
#include <QString>

#include <memory>

namespace lorva::bench {

/// What a program does that opens a font with FreeType, shapes with HarfBuzz over it, and has
/// FreeType fill unhinted glyphs. In the default instance; COLR v0 and bitmaps in colour.
void freeTypeSpecimen(QImage &image, const FilePath &path, const QString &text, double sizePx,
                      QPoint at);
/// Opens, looks, closes; −1 for a file that FreeType does not take.
long freeTypeGlyphCount(const FilePath &path);

/// Shapes in one face that stays open.
class FreeTypeShaper
{
public:
    FreeTypeShaper(const FilePath &path, double sizePx);
    ~FreeTypeShaper();

    bool isReady() const;
    /// Of the whole text as one run, in pixels.
    double advance(const QString &text);

private:
    struct Handles;
    std::unique_ptr<Handles> m_handles;
};

} // namespace lorva::bench
