// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "FreeTypeSpecimen.h"

#include <QPainter>

#include <hb-ft.h>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace lorva::bench {

namespace {

FT_Library library()
{
    static const FT_Library loaded = [] {
        FT_Library made = nullptr;
        FT_Init_FreeType(&made);
        return made;
    }();
    return loaded;
}

struct CloseFace
{
    void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using FacePtr = std::unique_ptr<std::remove_pointer_t<FT_Face>, CloseFace>;

FacePtr openFace(const FilePath &path)
{
    FT_Face face = nullptr;
    return FacePtr(FT_New_Face(library(), path.c_str(), 0, &face) == 0 ? face : nullptr);
}

void setSize(FT_Face face, double sizePx)
{
    if (FT_IS_SCALABLE(face))
        FT_Set_Char_Size(face, 0, FT_F26Dot6(sizePx * 64), 72, 72);
    else if (face->num_fixed_sizes > 0)
        FT_Select_Size(face, 0);
}

using FontPtr = std::unique_ptr<hb_font_t, decltype(&hb_font_destroy)>;
using BufferPtr = std::unique_ptr<hb_buffer_t, decltype(&hb_buffer_destroy)>;

FontPtr shapingFont(FT_Face face)
{
    FontPtr font(hb_ft_font_create(face, nullptr), &hb_font_destroy);
    hb_ft_font_set_load_flags(font.get(), FT_LOAD_NO_HINTING | FT_LOAD_COLOR);
    return font;
}

BufferPtr shaped(hb_font_t *font, const QString &text)
{
    BufferPtr buffer(hb_buffer_create(), &hb_buffer_destroy);
    hb_buffer_add_utf16(buffer.get(), reinterpret_cast<const uint16_t *>(text.utf16()),
                        int(text.size()), 0, int(text.size()));
    hb_buffer_guess_segment_properties(buffer.get());
    hb_shape(font, buffer.get(), nullptr, 0);
    return buffer;
}

void drawBitmap(QPainter &painter, const FT_GlyphSlot slot, QPointF pen, double scale)
{
    const FT_Bitmap &bitmap = slot->bitmap;
    if (bitmap.width == 0 || bitmap.rows == 0)
        return;
    const bool isColored = bitmap.pixel_mode == FT_PIXEL_MODE_BGRA;
    const QImage picture(bitmap.buffer, int(bitmap.width), int(bitmap.rows), bitmap.pitch,
                         isColored ? QImage::Format_ARGB32_Premultiplied : QImage::Format_Alpha8);
    const QPointF corner = pen + QPointF(slot->bitmap_left, -slot->bitmap_top) * scale;
    painter.drawImage(QRectF(corner, QSizeF(picture.size()) * scale), picture);
}

} // namespace

void freeTypeSpecimen(QImage &image, const FilePath &path, const QString &text, double sizePx,
                      QPoint at)
{
    const FacePtr face = openFace(path);
    if (!face)
        return;
    setSize(face.get(), sizePx);
    const double scale =
        FT_IS_SCALABLE(face.get()) ? 1 : sizePx / std::max<double>(1, face->size->metrics.y_ppem);
    const FontPtr font = shapingFont(face.get());
    const BufferPtr buffer = shaped(font.get(), text);
    unsigned count = 0;
    const hb_glyph_info_t *infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    const hb_glyph_position_t *positions = hb_buffer_get_glyph_positions(buffer.get(), nullptr);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale != 1);
    QPointF pen(at);
    for (unsigned i = 0; i < count; ++i) {
        if (FT_Load_Glyph(face.get(), infos[i].codepoint,
                          FT_LOAD_NO_HINTING | FT_LOAD_COLOR | FT_LOAD_RENDER)
            == 0)
            drawBitmap(painter, face->glyph,
                       pen + QPointF(positions[i].x_offset, -positions[i].y_offset) / 64 * scale,
                       scale);
        pen.rx() += positions[i].x_advance / 64.0 * scale;
    }
}

long freeTypeGlyphCount(const FilePath &path)
{
    const FacePtr face = openFace(path);
    return face ? face->num_glyphs + long(face->family_name != nullptr) : -1;
}

struct FreeTypeShaper::Handles
{
    FacePtr face;
    FontPtr font{nullptr, &hb_font_destroy};
};

FreeTypeShaper::FreeTypeShaper(const FilePath &path, double sizePx)
    : m_handles(new Handles{openFace(path)})
{
    if (!isReady())
        return;
    setSize(m_handles->face.get(), sizePx);
    m_handles->font = shapingFont(m_handles->face.get());
}

FreeTypeShaper::~FreeTypeShaper() = default;

bool FreeTypeShaper::isReady() const
{
    return m_handles->face != nullptr;
}

double FreeTypeShaper::advance(const QString &text)
{
    const BufferPtr buffer = shaped(m_handles->font.get(), text);
    unsigned count = 0;
    const hb_glyph_position_t *positions = hb_buffer_get_glyph_positions(buffer.get(), &count);
    double sum = 0;
    for (unsigned i = 0; i < count; ++i)
        sum += positions[i].x_advance / 64.0;
    return sum;
}

} // namespace lorva::bench
