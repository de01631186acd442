// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/ColorPalette.h"

#include "text/Font.h"
#include "text/FontFaceData.h"
#include "text/FontLimits.h"
#include "text/HeldTable.h"
#include "text/names/NameTable.h"

#include <hb-ot.h>
#include <hb.h>

#include <algorithm>

namespace lorva {

namespace {

std::vector<QRgb> colorsOf(hb_face_t *face, unsigned palette)
{
    std::vector<hb_color_t> read(kMaxPaletteEntries);
    auto count = unsigned(read.size());
    hb_ot_color_palette_get_colors(face, palette, 0, &count, read.data());
    std::vector<QRgb> colors;
    colors.reserve(count);
    for (const hb_color_t color : std::span(read).first(count))
        colors.push_back(qRgba(hb_color_get_red(color), hb_color_get_green(color),
                               hb_color_get_blue(color), hb_color_get_alpha(color)));
    return colors;
}

/// The font's `name` with the bytes that it borrows.
class PaletteNames
{
public:
    explicit PaletteNames(hb_face_t *face)
        : m_table(face, fontTag('n', 'a', 'm', 'e'))
        , m_names(m_table.bytes(kMaxNameTableBytes), NameSelection::all)
    {
    }

    QString text(hb_ot_name_id_t id) const
    {
        return id == HB_OT_NAME_ID_INVALID ? QString() : m_names.text(quint16(id), kMaxNameBytes);
    }

private:
    HeldTable m_table;
    NameTable m_names;
};

ColorPalette readPalette(hb_face_t *face, unsigned index, const PaletteNames &names)
{
    // The font's own bits, whether or not the enumeration has them.
    const auto flags = quint32(hb_ot_color_palette_get_flags(face, index));
    ColorPalette palette;
    palette.name = names.text(hb_ot_color_palette_get_name_id(face, index));
    palette.isForLightBackground =
        (flags & HB_OT_COLOR_PALETTE_FLAG_USABLE_WITH_LIGHT_BACKGROUND) != 0;
    palette.isForDarkBackground =
        (flags & HB_OT_COLOR_PALETTE_FLAG_USABLE_WITH_DARK_BACKGROUND) != 0;
    palette.colors = colorsOf(face, index);
    return palette;
}

} // namespace

ColorPalettes readColorPalettes(const FontFace &face)
{
    ColorPalettes result;
    if (!face.data().directory.has(fontTag('C', 'P', 'A', 'L')))
        return result;
    const std::shared_ptr<hb_font_t> font = face.shapingFont({});
    hb_face_t *const hbFace = hb_font_get_face(font.get());
    const PaletteNames names(hbFace);
    const unsigned count = std::min(hb_ot_color_palette_get_count(hbFace), kMaxPalettes);
    for (unsigned i = 0; i < count; ++i)
        result.palettes.push_back(readPalette(hbFace, i, names));
    const size_t entries = result.palettes.empty() ? 0 : result.palettes.front().colors.size();
    for (unsigned i = 0; i < entries; ++i)
        result.entryNames.push_back(names.text(hb_ot_color_palette_color_get_name_id(hbFace, i)));
    return result;
}

std::vector<QRgb> chosenColors(const Font &font)
{
    if (font.isNull() || !font.face()->data().directory.has(fontTag('C', 'P', 'A', 'L')))
        return {};
    const std::shared_ptr<hb_font_t> shaping = font.shapingFont();
    hb_face_t *const face = hb_font_get_face(shaping.get());
    const PaletteChoice &choice = font.palette();
    const unsigned count = std::min(hb_ot_color_palette_get_count(face), kMaxPalettes);
    const bool exists = choice.index >= 0 && unsigned(choice.index) < count;
    std::vector<QRgb> colors = colorsOf(face, exists ? unsigned(choice.index) : 0);
    for (const PaletteChoice::Override &override : choice.overrides) {
        if (override.entry < colors.size())
            colors[override.entry] = override.color;
    }
    return colors;
}

} // namespace lorva
