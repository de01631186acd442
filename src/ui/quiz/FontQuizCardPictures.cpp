// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCardPictures.h"

#include <QPointer>

#include <algorithm>

namespace lorva {

namespace {

/// Faces are kept by size; the card's texts take theirs from it.
constexpr double kResolvedSize = 48;

} // namespace

FontQuizCardPictures::FontQuizCardPictures(std::shared_ptr<FontResolver> resolver, QObject *parent)
    : QObject(parent)
    , m_resolver(std::move(resolver))
{
}

FontQuizCardPictures::~FontQuizCardPictures()
{
    for (const auto &[name, entry] : m_entries)
        *entry.isWanted = false;
}

void FontQuizCardPictures::setLook(const FontQuizCardLook &look)
{
    if (m_look == look)
        return;
    m_look = look;
    for (auto &[name, entry] : m_entries)
        request(entry);
}

void FontQuizCardPictures::dropUnwanted(const std::vector<FontQuizCard> &cards)
{
    std::erase_if(m_entries, [&](const auto &item) {
        const Entry &entry = item.second;
        const bool isKept = std::find(cards.begin(), cards.end(), entry.card) != cards.end();
        if (!isKept)
            *entry.isWanted = false;
        return !isKept;
    });
}

void FontQuizCardPictures::want(const std::vector<FontQuizCard> &cards)
{
    dropUnwanted(cards);
    // What is asked for last is served first.
    for (size_t i = cards.size(); i-- > 0;) {
        const FontQuizCard &card = cards[i];
        const auto [place, isNew] = m_entries.try_emplace(card.familyName, Entry{card, {}, {}});
        if (isNew)
            request(place->second);
    }
}

void FontQuizCardPictures::request(Entry &entry)
{
    if (entry.isWanted)
        *entry.isWanted = false;
    const auto ticket = entry.isWanted = std::make_shared<std::atomic<bool>>(true);
    // Written by the worker before the completion is sent to the main thread, which reads it.
    const auto picture = std::make_shared<FontQuizCardPicture>();
    PendingResolve pending;
    pending.familyName = entry.card.familyName;
    pending.style = entry.card.style;
    pending.pointSize = kResolvedSize;
    pending.isWanted = [ticket] { return ticket->load(); };
    pending.prepare = [picture, card = entry.card, look = m_look](const Font &font) {
        *picture = paintFontQuizCard(card, font, look);
        return QImage();
    };
    pending.completion = [pictures = QPointer(this), name = entry.card.familyName, ticket,
                          picture](const ResolvedFace &) {
        if (pictures)
            pictures->accept(name, ticket, picture);
    };
    m_resolver->resolveAsync(std::move(pending));
}

void FontQuizCardPictures::accept(const QString &familyName,
                                  const std::shared_ptr<std::atomic<bool>> &ticket,
                                  std::shared_ptr<FontQuizCardPicture> picture)
{
    const auto found = m_entries.find(familyName);
    if (found == m_entries.end() || found->second.isWanted != ticket)
        return;
    // A resolver need not have called for the pixels.
    if (picture->image.isNull())
        *picture = paintBlankFontQuizCard(found->second.card.theme, m_look);
    paintFontQuizCardName(*picture, found->second.card, m_look);
    found->second.picture = std::move(picture);
    if (onArrived)
        onArrived(familyName);
}

FontQuizCardPictures::Picture FontQuizCardPictures::find(const QString &familyName) const
{
    const auto found = m_entries.find(familyName);
    return found == m_entries.end() ? nullptr : found->second.picture;
}

bool FontQuizCardPictures::isComplete() const
{
    return std::all_of(m_entries.begin(), m_entries.end(),
                       [](const auto &item) { return item.second.picture != nullptr; });
}

void FontQuizCardPictures::retryStandIns()
{
    for (auto &[name, entry] : m_entries) {
        if (!entry.picture || entry.picture->isStandIn)
            request(entry);
    }
}

} // namespace lorva
