// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunThen.h"
#include "ui/detail/CharacterGridLayout.h"
#include "ui/detail/CharacterGridModel.h"

namespace lorva {

/// What stands in the cells: characters in their sections, or glyphs in one. A value.
struct CharacterCells
{
    /// What they were taken from. Never null.
    std::shared_ptr<const CharacterListing> listing = std::make_shared<CharacterListing>();
    bool areGlyphs = false;
    std::vector<CharacterGridSection> sections;
    std::vector<quint32> glyphs;

    std::vector<CharacterGridLayout::Section> layoutSections() const;
    int count() const;
    /// Empty for a glyph that no character reaches.
    QString characterAt(CellIndex cell) const;
    /// The glyph itself, or the one that `font` has for the character: 0 for none.
    quint32 glyphAt(CellIndex cell, const Font &font) const;
    /// As GlyphNames.
    QString glyphName(quint32 glyph) const;
    /// "A, LATIN CAPITAL LETTER A"; a glyph that no character reaches by its own name.
    QString nameAt(CellIndex cell, const Font &font) const;
    /// "U+0041".
    QString descriptionAt(CellIndex cell) const;
};

/// Takes from a listing what is looked for, on a worker: thousands of names would take the main
/// thread longer than a frame. What was found before stays until then.
///
/// Owns its thread, and waits for it at its end. Thread: main.
class CharacterFinder final : public QObject
{
    Q_OBJECT
public:
    explicit CharacterFinder(QObject *parent = nullptr);
    ~CharacterFinder() override;

    void setListing(std::shared_ptr<const CharacterListing> listing);
    void setGlyphsShown(bool areGlyphs);
    /// As CharacterQuery.
    void setQuery(const QString &query);

    const CharacterCells &cells() const { return m_cells; }
    bool isSearching() const { return m_isSearching; }
    bool hasQuery() const { return !m_query.isEmpty(); }
    bool areGlyphsWanted() const { return m_areGlyphs; }

Q_SIGNALS:
    /// Other cells, or a search that began.
    void changed();

private:
    void find();
    void show(CharacterCells cells);

    QThreadPool m_pool;
    std::shared_ptr<const CharacterListing> m_listing = std::make_shared<CharacterListing>();
    QString m_query;
    bool m_areGlyphs = false;
    CharacterCells m_cells;
    RunHandle m_run;
    bool m_isSearching = false;
};

} // namespace lorva
