// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <optional>

struct hb_font_t;

namespace lorva {

class FontFace;

/// The names of a face's glyphs (OpenType `post`, `CFF `).
///
/// Holds the face's tables while it lives. Immutable. Thread: any.
/// Hostile fonts: names are cut at 127 characters, unprintable ones replaced.
class GlyphNames
{
public:
    explicit GlyphNames(const FontFace &face);

    /// Whether the face names glyphs at all.
    bool hasNames() const { return m_hasNames; }
    /// The font's own name; "gid123" where it gives none.
    QString name(quint32 glyph) const;
    std::optional<quint32> glyph(const QString &name) const;

private:
    std::shared_ptr<hb_font_t> m_font;
    bool m_hasNames = false;
};

} // namespace lorva
