// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizDeck.h"

#include <QRandomGenerator>

#include <algorithm>

namespace lorva {

namespace {

/// Fisher–Yates.
void shuffle(QStringList &names, const FontQuizDeck::Random &random)
{
    for (qsizetype left = names.size(); left > 1; --left)
        names.swapItemsAt(left - 1, qsizetype(random(quint32(left))));
}

} // namespace

FontQuizDeck::Random FontQuizDeck::systemRandom()
{
    return [](quint32 bound) { return QRandomGenerator::system()->bounded(bound); };
}

FontQuizDeck::FontQuizDeck(const std::vector<FontFamilyRecord> &families,
                           const QHash<QString, QString> &styleIDByFamily, const Random &random)
{
    for (const FontFamilyRecord &family : families) {
        if (!styleIDByFamily.contains(family.familyName))
            m_families.append(family.familyName);
    }
    shuffle(m_families, random);
    const auto themes = fontQuizCardThemes();
    m_themeSequence.reserve(size_t(m_families.size()));
    for (size_t i = 0; i < size_t(m_families.size()); ++i)
        m_themeSequence.push_back(themes[i % themes.size()]);
}

FontQuizDeck::Choice FontQuizDeck::choiceAt(int position) const
{
    const auto place = size_t(position);
    return {m_families[position], m_tiles[place], m_themeSequence[place]};
}

std::optional<FontQuizDeck::Choice> FontQuizDeck::lastChoice() const
{
    if (m_tiles.empty())
        return std::nullopt;
    return choiceAt(currentIndex() - 1);
}

std::vector<FontQuizDeck::Choice> FontQuizDeck::topChoices(int tile, int most) const
{
    std::vector<Choice> top;
    const int end = std::min(most, m_counts[size_t(tile - 1)]);
    for (int i = currentIndex(); i-- > 0 && int(top.size()) < end;) {
        if (m_tiles[size_t(i)] == tile)
            top.push_back(choiceAt(i));
    }
    return top;
}

bool FontQuizDeck::isDealtFrom(const std::vector<FontFamilyRecord> &families,
                               const QHash<QString, QString> &styleIDByFamily) const
{
    const QSet<QString> waiting(m_families.begin() + currentIndex(), m_families.end());
    qsizetype unsorted = 0;
    for (const FontFamilyRecord &family : families) {
        if (styleIDByFamily.contains(family.familyName))
            continue;
        ++unsorted;
        if (!waiting.contains(family.familyName))
            return false;
    }
    return unsorted == waiting.size();
}

void FontQuizDeck::choose(int tile)
{
    Q_ASSERT(!isExhausted() && tile >= 1 && tile <= kFontQuizTiles);
    m_formerTiles.clear();
    m_tiles.push_back(tile);
    ++m_counts[size_t(tile - 1)];
}

bool FontQuizDeck::skip()
{
    if (size() - currentIndex() < 2)
        return false;
    const auto current = currentIndex();
    m_families.move(current, m_families.size() - 1);
    const auto theme = m_themeSequence.begin() + current;
    std::rotate(theme, theme + 1, m_themeSequence.end());
    return true;
}

/// One flag for each card.
void FontQuizDeck::removeAt(const std::vector<bool> &leaves)
{
    size_t kept = 0;
    size_t keptTiles = 0;
    for (size_t i = 0; i < leaves.size(); ++i) {
        if (leaves[i])
            continue;
        if (i < m_tiles.size())
            m_tiles[keptTiles++] = m_tiles[i];
        m_families.swapItemsAt(qsizetype(kept), qsizetype(i));
        m_themeSequence[kept++] = m_themeSequence[i];
    }
    m_families.resize(qsizetype(kept));
    m_themeSequence.resize(kept);
    m_tiles.resize(keptTiles);
}

std::vector<FontQuizDeck::Choice> FontQuizDeck::takeBack(
    const QHash<QString, QString> &styleIDByFamily)
{
    std::vector<bool> leaves(size_t(size()), false);
    std::vector<Choice> taken;
    for (int i = 0; i < currentIndex(); ++i) {
        if (styleIDByFamily.contains(m_families[i]))
            continue;
        leaves[size_t(i)] = true;
        taken.push_back(choiceAt(i));
        m_formerTiles[taken.back().familyName] = taken.back().tile;
        --m_counts[size_t(taken.back().tile - 1)];
    }
    if (!taken.empty())
        removeAt(leaves);
    return taken;
}

void FontQuizDeck::putInFront(const Choice &choice)
{
    m_families.insert(currentIndex(), choice.familyName);
    m_themeSequence.insert(m_themeSequence.begin() + currentIndex(), choice.theme);
}

void FontQuizDeck::takeAway(const QHash<QString, QString> &styleIDByFamily,
                            const QSet<QString> *present, Difference &difference)
{
    std::vector<bool> leaves(size_t(size()), false);
    for (int i = currentIndex(); i < size(); ++i) {
        const QString &name = m_families[i];
        const bool isPresent = !present || present->contains(name);
        if (!styleIDByFamily.contains(name) && isPresent)
            continue;
        leaves[size_t(i)] = true;
        m_removed.push_back({name, m_themeSequence[size_t(i)], isPresent});
        ++difference.removed;
    }
    difference.hasLostCurrent = !isExhausted() && leaves[size_t(currentIndex())];
    if (difference.removed > 0)
        removeAt(leaves);
}

bool FontQuizDeck::isRedone(const Removed &card, const QString &styleID) const
{
    const int tile = m_formerTiles.value(card.familyName);
    return tile > 0 && styleID == fontQuizCategoryID(tile);
}

void FontQuizDeck::putAtEnd(const Removed &card)
{
    m_families.append(card.familyName);
    m_themeSequence.push_back(card.theme);
}

FontQuizDeck::Choice FontQuizDeck::putOnPile(const Removed &card)
{
    const Choice choice{card.familyName, m_formerTiles.take(card.familyName), card.theme};
    putInFront(choice);
    m_tiles.push_back(choice.tile);
    ++m_counts[size_t(choice.tile - 1)];
    return choice;
}

void FontQuizDeck::giveBack(const QHash<QString, QString> &styleIDByFamily,
                            const QSet<QString> *present, Difference &difference)
{
    std::erase_if(m_removed, [&](Removed &card) {
        card.isPresent = present ? present->contains(card.familyName) : card.isPresent;
        const auto style = styleIDByFamily.constFind(card.familyName);
        const bool isSorted = style != styleIDByFamily.constEnd();
        if (!card.isPresent || (isSorted && !isRedone(card, *style)))
            return false;
        if (isSorted) {
            difference.redone.push_back(putOnPile(card));
        } else {
            putAtEnd(card);
            ++difference.returned;
        }
        return true;
    });
}

FontQuizDeck::Difference FontQuizDeck::reconcile(const QHash<QString, QString> &styleIDByFamily,
                                                 const QSet<QString> *present)
{
    Difference difference;
    takeAway(styleIDByFamily, present, difference);
    giveBack(styleIDByFamily, present, difference);
    difference.takenBack = takeBack(styleIDByFamily);
    for (const Choice &choice : difference.takenBack) {
        if (!present || present->contains(choice.familyName))
            putInFront(choice);
        else
            m_removed.push_back({choice.familyName, choice.theme, false});
    }
    return difference;
}

} // namespace lorva
