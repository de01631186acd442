// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphNames.h"

#include "text/FontFace.h"

#include <hb.h>

#include <array>
#include <cstring>

namespace lorva {

namespace {

constexpr QStringView kNumberedPrefix = u"gid";

/// As many characters as the tables' own names may have, and the end.
using NameBuffer = std::array<char, 128>;

bool readName(hb_font_t *font, quint32 glyph, NameBuffer &buffer)
{
    return hb_font_get_glyph_name(font, glyph, buffer.data(), unsigned(buffer.size()))
        && buffer[0] != '\0';
}

bool namesAny(hb_font_t *font, quint32 count)
{
    NameBuffer buffer;
    for (quint32 glyph = 0; glyph < count; ++glyph)
        if (readName(font, glyph, buffer))
            return true;
    return false;
}

QString printable(const char *name)
{
    QString text = QString::fromLatin1(name);
    for (QChar &c : text)
        if (c <= u' ' || c >= u'\x7F')
            c = QChar::ReplacementCharacter;
    return text;
}

} // namespace

GlyphNames::GlyphNames(const FontFace &face)
    : m_font(face.shapingFont({}))
    , m_hasNames(namesAny(m_font.get(), quint32(face.glyphCount())))
{
}

QString GlyphNames::name(quint32 glyph) const
{
    NameBuffer buffer;
    if (m_hasNames && readName(m_font.get(), glyph, buffer))
        return printable(buffer.data());
    return kNumberedPrefix.toString() + QString::number(glyph);
}

std::optional<quint32> GlyphNames::glyph(const QString &name) const
{
    const QByteArray wanted = name.toLatin1();
    hb_codepoint_t glyph = 0;
    if (m_hasNames && !wanted.isEmpty()
        && hb_font_get_glyph_from_name(m_font.get(), wanted.constData(), int(wanted.size()),
                                       &glyph))
        return glyph;
    bool isNumber = false;
    const quint32 number =
        QStringView(name).sliced(std::min<qsizetype>(3, name.size())).toUInt(&isNumber);
    const bool isNumbered = isNumber && name.startsWith(kNumberedPrefix)
        && number < hb_face_get_glyph_count(hb_font_get_face(m_font.get()));
    return isNumbered && this->name(number) == name ? std::optional(number) : std::nullopt;
}

} // namespace lorva
