// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterCells.h"

#include "base/Trace.h"
#include "ui/detail/CharacterNames.h"
#include "ui/detail/CharacterSearch.h"

namespace lorva {

namespace {

CharacterCells foundCells(std::shared_ptr<const CharacterListing> listing, bool areGlyphs,
                          const QString &text, const std::stop_token &stop)
{
    const TraceStage stage("characters: search");
    const CharacterQuery query(text);
    CharacterCells cells;
    cells.areGlyphs = areGlyphs;
    if (!areGlyphs)
        cells.sections = foundCharacters(listing->sections, query, stop);
    else if (listing->glyphNames)
        cells.glyphs = foundGlyphs(listing->characterOfGlyph, *listing->glyphNames, query, stop);
    cells.listing = std::move(listing);
    return cells;
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CharacterCells)
};

} // namespace

std::vector<CharacterGridLayout::Section> CharacterCells::layoutSections() const
{
    std::vector<CharacterGridLayout::Section> placed;
    if (areGlyphs && !glyphs.empty())
        placed.push_back({int(glyphs.size()), false});
    for (const CharacterGridSection &section : sections)
        placed.push_back({int(section.characters.size()), true});
    return placed;
}

int CharacterCells::count() const
{
    qsizetype sum = qsizetype(glyphs.size());
    for (const CharacterGridSection &section : sections)
        sum += section.characters.size();
    return int(sum);
}

QString CharacterCells::characterAt(CellIndex cell) const
{
    if (!areGlyphs)
        return sections.at(size_t(cell.section)).characters.at(cell.index);
    const quint32 glyph = glyphs.at(size_t(cell.index));
    const char32_t character = listing->characterOfGlyph.at(glyph);
    return character ? textOf(character) : QString();
}

quint32 CharacterCells::glyphAt(CellIndex cell, const Font &font) const
{
    if (areGlyphs)
        return glyphs.at(size_t(cell.index));
    return font.isNull() ? 0 : font.face()->glyphFor(firstScalar(characterAt(cell))).value_or(0);
}

QString CharacterCells::glyphName(quint32 glyph) const
{
    return listing->glyphNames ? listing->glyphNames->name(glyph) : QString();
}

QString CharacterCells::nameAt(CellIndex cell, const Font &font) const
{
    const QString character = characterAt(cell);
    if (character.isEmpty())
        return glyphName(glyphAt(cell, font));
    const QString name = unicodeName(firstScalar(character));
    //: A character, and its name.
    return name.isEmpty() ? character : Texts::tr("%1, %2").arg(character, name);
}

QString CharacterCells::descriptionAt(CellIndex cell) const
{
    const QString character = characterAt(cell);
    return character.isEmpty() ? Texts::tr("No character leads to this glyph.")
                               : codePointText(firstScalar(character));
}

CharacterFinder::CharacterFinder(QObject *parent)
    : QObject(parent)
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.character-search"));
    m_pool.setMaxThreadCount(1);
}

CharacterFinder::~CharacterFinder()
{
    m_run.cancel();
    m_pool.waitForDone();
}

void CharacterFinder::setListing(std::shared_ptr<const CharacterListing> listing)
{
    if (listing == m_listing)
        return;
    m_listing = std::move(listing);
    find();
}

void CharacterFinder::setGlyphsShown(bool areGlyphs)
{
    if (areGlyphs == m_areGlyphs)
        return;
    m_areGlyphs = areGlyphs;
    find();
}

void CharacterFinder::setQuery(const QString &query)
{
    if (query == m_query)
        return;
    m_query = query;
    find();
}

void CharacterFinder::find()
{
    m_run.cancel();
    m_isSearching = false;
    if (m_query.isEmpty()) {
        show(foundCells(m_listing, m_areGlyphs, {}, {}));
        return;
    }
    m_isSearching = true;
    m_run = runThen(
        m_pool, this,
        [listing = m_listing, areGlyphs = m_areGlyphs, query = m_query](
            const std::stop_token &stop) { return foundCells(listing, areGlyphs, query, stop); },
        [this](CharacterCells cells) {
            m_isSearching = false;
            show(std::move(cells));
        });
    Q_EMIT changed();
}

void CharacterFinder::show(CharacterCells cells)
{
    m_cells = std::move(cells);
    Q_EMIT changed();
}

} // namespace lorva
