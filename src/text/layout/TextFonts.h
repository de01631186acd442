// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/layout/TextShaper.h"

#include <QHash>

#include <array>
#include <optional>

namespace lorva {

/// The fonts of one layout: the one that it was asked for, and those that stand in for what it
/// lacks.
///
/// A grapheme cluster of which the main font lacks a character goes whole to another font, without
/// the main font's feature settings, for those were chosen for that face. Joiners, selectors and
/// controls are not missed; characters of private use are not looked for, for they mean something
/// else in every font. A cluster that the main font can write composed or decomposed stays.
///
/// Thread: any, one at a time per object.
class TextFonts
{
public:
    TextFonts(const Font &font, const TextLayoutOptions &options);

    const Font &main() const { return m_shapers.front()->font(); }
    const Font &font(const TextItem &item) const { return shaper(item).font(); }
    const TextShaper &shaper(const TextItem &item) const { return *m_shapers[size_t(item.font)]; }
    const TextShaper &mainShaper() const { return *m_shapers.front(); }
    /// The items of a paragraph, cut where fonts change.
    std::vector<TextItem> assign(QStringView paragraph, std::vector<TextItem> items);

private:
    class Splitter;
    bool hasGlyphFor(char32_t c);
    bool canWrite(QStringView text);
    bool lacks(QStringView cluster);
    bool lacksAny(QStringView text);
    int fontFor(QStringView cluster, const TextItem &item);
    int indexOf(const Font &font);

    const double m_letterSpacing;
    const QByteArray m_language;
    const std::shared_ptr<const FontFallback> m_fallback;
    std::shared_ptr<hb_font_t> m_mainFont;
    /// What the main font says of ASCII.
    std::array<std::optional<bool>, 128> m_ascii;
    /// The main font's first.
    std::vector<std::unique_ptr<TextShaper>> m_shapers;
    /// What was asked already, by language and cluster.
    QHash<std::pair<QByteArray, QString>, int> m_known;
};

} // namespace lorva
