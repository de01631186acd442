// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilyList.h"
#include "ui/onboarding/FallingLetter.h"

#include <QObject>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace lorva {

class FontResolver;
class LorvaAppModel;

/// Makes letters of the user's families ready, on the resolver's workers, a few ahead of what is
/// taken: each of another family, and of writing systems that are rare among them early, too.
///
/// Takes families as the library comes to know them. What a family cannot give is passed over.
/// Owns: nothing of the model, which must outlive it. Thread: main.
class LetterSupply final : public QObject
{
public:
    LetterSupply(LorvaAppModel &model, std::shared_ptr<FontResolver> resolver);
    ~LetterSupply() override;

    /// How large the letter with that number is to be, in points.
    std::function<double(int number)> pointSize;

    /// The next letter, if one is ready; asks for more.
    std::optional<FallingLetter> take();
    /// As take(), but makes it now where none is ready: takes milliseconds.
    std::optional<FallingLetter> takeNow();
    /// From now on letters of the system's font stand in while no family can give one.
    void allowSystemFont();
    /// None is ready, and some are on their way.
    bool isWaiting() const { return m_ready.empty() && m_pending > 0; }
    /// There are families to take letters from.
    bool hasFamilies() const { return !m_order.empty(); }

private:
    struct Wanted
    {
        QString familyName;
        std::optional<FontStyleRecord> style;
        double pointSize = 0;
        std::u32string characters;
    };

    void takeFamilies();
    bool canAsk() const;
    void request();
    void askAhead();
    Wanted nextWanted();
    void received(const Wanted &wanted, std::optional<FallingLetter> letter, bool isStandIn);

    LorvaAppModel &m_model;
    const std::shared_ptr<FontResolver> m_resolver;
    FontFamilyList m_families;
    /// Of m_families, in the order in which they are asked.
    std::vector<size_t> m_order;
    size_t m_next = 0;
    int m_number = 0;
    int m_pending = 0;
    /// One after the other that gave nothing.
    size_t m_passedOver = 0;
    bool m_allowsSystemFont = false;
    std::deque<FallingLetter> m_ready;
    /// False when nobody waits any more; looked at by the workers.
    const std::shared_ptr<std::atomic<bool>> m_isWanted;
};

} // namespace lorva
