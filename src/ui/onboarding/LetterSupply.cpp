// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/LetterSupply.h"

#include "base/NotificationCentre.h"
#include "catalog/RepresentativeStyle.h"
#include "model/LorvaAppModel.h"
#include "ui/preview/FontResolver.h"

#include <QPointer>
#include <QRandomGenerator>

#include <algorithm>
#include <numeric>

namespace lorva {

namespace {

constexpr int kAhead = 12;
/// The welcome is seen once, so it need not differ from time to time; tests are glad of it.
constexpr quint32 kSeed = 20260;
/// Where families of rare writing systems come: every so many letters, this often.
constexpr size_t kRareEvery = 7;
constexpr size_t kMostRare = 6;
/// After so many families more than there are, nothing is to be had of them.
constexpr size_t kPatience = 16;
constexpr int kMostTriesNow = 64;

std::vector<size_t> shuffledOrder(size_t count)
{
    std::vector<size_t> order(count);
    std::iota(order.begin(), order.end(), size_t(0));
    QRandomGenerator random(kSeed);
    std::ranges::shuffle(order, random);
    return order;
}

bool isRare(const FontFamilyRecord &family)
{
    return family.primaryScript && *family.primaryScript != WritingScript::latin;
}

/// Moves some families of rare writing systems forward.
void mixInRare(std::vector<size_t> &order, const std::vector<FontFamilyRecord> &families)
{
    size_t from = 0;
    for (size_t place = 3, moved = 0; place < order.size() && moved < kMostRare;
         place += kRareEvery, ++moved) {
        from = std::max(from, place);
        while (from < order.size() && !isRare(families[order[from]]))
            ++from;
        if (from == order.size())
            return;
        std::swap(order[place], order[from]);
    }
}

} // namespace

LetterSupply::LetterSupply(LorvaAppModel &model, std::shared_ptr<FontResolver> resolver)
    : m_model(model)
    , m_resolver(std::move(resolver))
    , m_isWanted(std::make_shared<std::atomic<bool>>(true))
{
    NotificationCentre::shared().observe(LorvaAppModel::changeNotification(), this,
                                         [this](const void *sender) {
                                             if (sender == &m_model)
                                                 takeFamilies();
                                         });
    takeFamilies();
}

LetterSupply::~LetterSupply()
{
    *m_isWanted = false;
}

void LetterSupply::takeFamilies()
{
    if (m_families == m_model.allFamilies())
        return;
    m_families = m_model.allFamilies();
    m_order = shuffledOrder(m_families->size());
    mixInRare(m_order, *m_families);
    m_next = 0;
    m_passedOver = 0;
}

void LetterSupply::allowSystemFont()
{
    m_allowsSystemFont = true;
}

bool LetterSupply::canAsk() const
{
    const bool givesNothing = m_passedOver > m_order.size() + kPatience;
    return m_resolver && !givesNothing && (hasFamilies() || m_allowsSystemFont);
}

LetterSupply::Wanted LetterSupply::nextWanted()
{
    const int number = m_number++;
    const double size = pointSize ? pointSize(number) : 100;
    if (!hasFamilies())
        return {{}, {}, size, lettersToTry(number, {})};
    const FontFamilyRecord &family = (*m_families)[m_order[m_next++ % m_order.size()]];
    const FontStyleRecord *style = representativeStyle(family.styles);
    return {family.familyName, style ? std::optional(*style) : std::nullopt, size,
            lettersToTry(number, family.primaryScript)};
}

void LetterSupply::request()
{
    const Wanted wanted = nextWanted();
    // Written by the worker before the completion is sent to the main thread, which reads it.
    const auto letter = std::make_shared<std::optional<FallingLetter>>();
    PendingResolve pending;
    pending.familyName = wanted.familyName;
    pending.style = wanted.style;
    pending.pointSize = wanted.pointSize;
    pending.isWanted = [isWanted = m_isWanted] { return isWanted->load(); };
    pending.prepare = [letter, characters = wanted.characters](const Font &font) {
        *letter = makeFallingLetter(font, characters);
        return QImage();
    };
    pending.completion = [self = QPointer(this), letter, wanted](const ResolvedFace &face) {
        if (!self)
            return;
        --self->m_pending;
        self->received(wanted, std::move(*letter), face.font.isStandIn());
    };
    ++m_pending;
    m_resolver->resolveAsync(std::move(pending));
}

void LetterSupply::received(const Wanted &wanted, std::optional<FallingLetter> letter,
                            bool isStandIn)
{
    // No family may claim letters of the system's font.
    if (!letter || (isStandIn && !wanted.familyName.isEmpty())) {
        ++m_passedOver;
        return;
    }
    m_passedOver = 0;
    m_ready.push_back(std::move(*letter));
}

void LetterSupply::askAhead()
{
    while (canAsk() && m_pending + int(m_ready.size()) < kAhead)
        request();
}

std::optional<FallingLetter> LetterSupply::take()
{
    askAhead();
    if (m_ready.empty())
        return {};
    FallingLetter letter = std::move(m_ready.front());
    m_ready.pop_front();
    return letter;
}

std::optional<FallingLetter> LetterSupply::takeNow()
{
    for (int i = 0; i < kMostTriesNow && m_ready.empty() && canAsk(); ++i) {
        const Wanted wanted = nextWanted();
        const Font font = m_resolver->resolve(wanted.familyName, wanted.style, wanted.pointSize);
        received(wanted, makeFallingLetter(font, wanted.characters), font.isStandIn());
    }
    if (m_ready.empty())
        return {};
    FallingLetter letter = std::move(m_ready.front());
    m_ready.pop_front();
    return letter;
}

} // namespace lorva
