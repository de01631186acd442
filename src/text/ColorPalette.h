// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <QString>

#include <vector>

namespace lorva {

class Font;
class FontFace;

/// Which of a colour font's palettes to draw with, and which of its entries to replace.
struct PaletteChoice
{
    struct Override
    {
        quint16 entry = 0;
        QRgb color = 0;
        bool operator==(const Override &) const = default;
    };
    int index = 0;
    std::vector<Override> overrides;
    bool operator==(const PaletteChoice &) const = default;
};

/// One palette of OpenType `CPAL`.
struct ColorPalette
{
    /// Empty where the font gives none.
    QString name;
    bool isForLightBackground = false;
    bool isForDarkBackground = false;
    /// Not premultiplied.
    std::vector<QRgb> colors;
};

struct ColorPalettes
{
    std::vector<ColorPalette> palettes;
    /// What each entry colours ("Outline"); as many as entries, empty where the font gives none.
    std::vector<QString> entryNames;
};
/// At most 256 palettes of 4,096 entries. Thread: any.
ColorPalettes readColorPalettes(const FontFace &face);

/// The colours of the palette that the font is drawn in, its overrides applied; the first palette's
/// where the chosen one does not exist. Not premultiplied; empty without palettes. Thread: any.
std::vector<QRgb> chosenColors(const Font &font);

} // namespace lorva
