// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The cards that lie on the tiles, as the deck has them.

#include "ui/quiz/FontQuizStageView.h"

#include "ui/quiz/FontQuizCategoryView.h"
#include "ui/quiz/FontQuizFlightView.h"

#include <algorithm>

namespace lorva {

namespace {

/// What a pile draws of a card; the large pictures of many would be kept for nothing.
FontQuizCardPictures::Picture smallPicture(const FontQuizCardPictures::Picture &picture)
{
    if (!picture || picture->image.size() == picture->quarter.size())
        return picture;
    auto small = std::make_shared<FontQuizCardPicture>();
    small->image = small->half = small->quarter = picture->quarter;
    small->isStandIn = picture->isStandIn;
    return small;
}

} // namespace

/// For the card where it flies or lies.
void FontQuizStageView::takePicture(const QString &familyName)
{
    if (m_isAnimating && familyName == m_flyingFamily) {
        FontQuizShownCard card = *m_flightView->card();
        card.picture = m_flyingPicture = m_pictures->find(familyName);
        m_flightView->setCard(std::move(card));
    }
    for (int tile = 1; tile <= kFontQuizTiles; ++tile) {
        for (LandedCard &card : m_landedPiles[size_t(tile - 1)]) {
            if (card.picture || card.familyName != familyName)
                continue;
            card.picture = smallPicture(m_pictures->find(familyName));
            showPile(tile);
        }
    }
}

FontQuizCardPictures::Picture FontQuizStageView::landedPicture(const QString &familyName) const
{
    for (const auto &pile : m_landedPiles) {
        for (const LandedCard &card : pile) {
            if (card.familyName == familyName)
                return card.picture;
        }
    }
    return nullptr;
}

FontQuizStageView::LandedCard FontQuizStageView::landed(const FontQuizDeck::Choice &choice,
                                                        int number) const
{
    FontQuizCardPictures::Picture picture = landedPicture(choice.familyName);
    if (!picture)
        picture = smallPicture(shown(choice.familyName, choice.theme).picture);
    return {choice.familyName, choice.theme, number, std::move(picture)};
}

/// As the deck has it: what lies deeper comes to light again when cards above it leave.
void FontQuizStageView::fillPile(int tile)
{
    std::vector<LandedCard> pile;
    int number = m_deck.counts()[size_t(tile - 1)];
    for (const FontQuizDeck::Choice &choice : m_deck.topChoices(tile, m_maxPileSize + 1)) {
        --number;
        if (choice.familyName != m_thrownFamily && int(pile.size()) < m_maxPileSize)
            pile.push_back(landed(choice, number));
    }
    std::reverse(pile.begin(), pile.end());
    const int count = m_deck.counts()[size_t(tile - 1)];
    const bool isShown = m_categoryViews[size_t(tile - 1)]->count() == count;
    if (isShown && pile == m_landedPiles[size_t(tile - 1)])
        return;
    m_landedPiles[size_t(tile - 1)] = std::move(pile);
    showPile(tile);
}

void FontQuizStageView::fillPiles()
{
    for (int tile = 1; tile <= kFontQuizTiles; ++tile)
        fillPile(tile);
}

void FontQuizStageView::showPile(int tile)
{
    const auto place = size_t(tile - 1);
    std::vector<FontQuizShownCard> cards;
    for (const LandedCard &card : m_landedPiles[place])
        cards.push_back(
            {card.picture, card.theme, fontQuizPilePose(m_layout.tiles[place], card.number)});
    m_categoryViews[place]->setPile(std::move(cards), m_deck.counts()[place]);
}

} // namespace lorva
