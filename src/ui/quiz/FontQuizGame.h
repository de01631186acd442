// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "ui/quiz/FontQuizDeck.h"

#include <QObject>

#include <functional>

namespace lorva {

class LorvaAppModel;

/// One game: the deck, the choices as they are written to the model, and what happens to the
/// families elsewhere meanwhile. No widgets.
///
/// Does not own the model, which must outlive it. Thread: main.
class FontQuizGame final : public QObject
{
    Q_OBJECT
public:
    FontQuizGame(LorvaAppModel &model, FontQuizDeck::Random random, QObject *parent);

    const FontQuizDeck &deck() const { return m_deck; }
    /// How many families had a category when the deck was dealt, or have got one elsewhere since.
    int sortedElsewhere() const { return m_dealtFrom - m_deck.size(); }
    /// The player has seen the cards. Until then another catalog is dealt anew, afterwards the
    /// deck only loses what has vanished and what others sort.
    void begin() { m_hasBegun = true; }

    /// Puts the current family into the tile's category, at once and lastingly. Changes nothing
    /// when it fails; the error is fit to be shown.
    Result<void> choose(int tile);
    bool skip() { return m_deck.skip(); }
    /// Undoes the last choice, if there is one; onChange tells what came of it. The error is fit to
    /// be shown.
    Result<void> takeBack();

    /// What happened to the deck other than by choose() and skip().
    std::function<void(const FontQuizDeck::Difference &)> onChange;
    /// The catalog is another one: its fonts may be, and before begin() the deck, too.
    std::function<void()> onCatalog;

private:
    void deal();
    void modelChanged();
    void reconcile(bool hasOtherCatalog);
    void forgetSteps();

    LorvaAppModel &m_model;
    const FontQuizDeck::Random m_random;
    FontQuizDeck m_deck;
    /// So many families there were.
    int m_dealtFrom = 0;
    bool m_hasBegun = false;
    qint64 m_catalogGeneration;
    qint64 m_membershipGeneration;
    /// So many choices are the last commands that can be undone.
    int m_undoSteps = 0;
    /// The model changes because of us.
    bool m_isOwnChange = false;
};

} // namespace lorva
