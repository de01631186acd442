// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QByteArrayView>
#include <QRectF>

#include <optional>

namespace lorva {

/// One picture of a glyph, at one of the sizes that the font brings.
struct BitmapGlyph
{
    /// A PNG or a JPEG file; borrowed from the strikes.
    QByteArrayView bytes;
    /// Where it goes, in ems, y down, from the glyph's origin.
    QRectF boxEms;
    double pixelsPerEm = 0;
};

/// The pictures of glyphs that one table of a font holds, in strikes of one size each.
///
/// Thread: any, one at a time per object. Hostile fonts: tables may lie; what lies outside of them
/// does not exist, and strikes and their parts beyond kMaxBitmapStrikes and kMaxBitmapSubtables are
/// not looked at.
class BitmapStrikes
{
public:
    virtual ~BitmapStrikes() = default;

    /// Of the glyph's pictures the smallest with at least so many pixels to an em, else the
    /// largest.
    virtual std::optional<BitmapGlyph> find(quint32 glyph, double pixelsPerEm) const = 0;
};

/// OpenType `CBLC` and `CBDT`; null when the font has none.
std::unique_ptr<BitmapStrikes> openColorBitmaps(const Font &font);
/// OpenType `sbix`; null when the font has none.
std::unique_ptr<BitmapStrikes> openStandardBitmaps(const Font &font);

} // namespace lorva
