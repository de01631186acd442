// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilyList.h"
#include "ui/quiz/FontQuizCardTheme.h"
#include "ui/quiz/FontQuizCategories.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace lorva {

/// The cards of one game: the sorted ones, then the current one, then those that wait.
///
/// Holds families by their names only, so that a new catalog leaves it as it is until reconcile().
/// A value without widgets. Thread: any.
class FontQuizDeck
{
public:
    /// A number from 0 up to, but not including, `bound`; each as likely as the others.
    using Random = std::function<quint32(quint32 bound)>;
    static Random systemRandom();

    struct Choice
    {
        QString familyName;
        /// 1 … 6.
        int tile = 0;
        FontQuizCardTheme theme;

        bool operator==(const Choice &) const = default;
    };

    FontQuizDeck() = default;
    /// The families without a style category, shuffled; card i in theme i, then from the start
    /// again.
    FontQuizDeck(const std::vector<FontFamilyRecord> &families,
                 const QHash<QString, QString> &styleIDByFamily,
                 const Random &random = systemRandom());

    int size() const { return int(m_families.size()); }
    bool isEmpty() const { return m_families.isEmpty(); }
    /// Counts the cards that are sorted; size() when all are.
    int currentIndex() const { return int(m_tiles.size()); }
    bool isExhausted() const { return currentIndex() == size(); }
    const QStringList &families() const { return m_families; }
    /// One for each card; a card keeps its own.
    const std::vector<FontQuizCardTheme> &themeSequence() const { return m_themeSequence; }
    /// The current card; not of an exhausted deck.
    const QString &currentFamily() const { return m_families[currentIndex()]; }
    /// How many cards lie on each pile, from tile 1 on.
    const std::array<int, kFontQuizTiles> &counts() const { return m_counts; }
    std::optional<Choice> lastChoice() const;
    /// What lies on top of a pile, the newest first.
    std::vector<Choice> topChoices(int tile, int most) const;
    /// The waiting cards are all the families without a style category.
    bool isDealtFrom(const std::vector<FontFamilyRecord> &families,
                     const QHash<QString, QString> &styleIDByFamily) const;

    /// The current card goes to a pile and the next one becomes current.
    void choose(int tile);
    /// The current card goes to the end of the deck. False when there is no other one.
    bool skip();

    struct Difference
    {
        /// Choices that hold no longer, the newest last; their cards are in front again, unless
        /// their families have vanished.
        std::vector<Choice> takenBack;
        /// Choices that had been taken back and hold again, the newest last; sorted again.
        std::vector<Choice> redone;
        /// The current card was taken away.
        bool hasLostCurrent = false;
        /// Waiting cards, the current one included, that were taken away.
        int removed = 0;
        /// Cards that were taken away once and wait again, at the end.
        int returned = 0;

        bool isEmpty() const
        {
            return takenBack.empty() && redone.empty() && removed == 0 && returned == 0;
        }
    };
    /// Follows what has happened to the families meanwhile: waiting ones that have a category now
    /// or that have vanished leave, sorted ones without a category come back. What has left comes
    /// back when its reason is gone; a family that gets the category of a choice that was taken
    /// back since the last choose() counts as sorted again. `present`: the families that there
    /// are; null when that is as it was.
    Difference reconcile(const QHash<QString, QString> &styleIDByFamily,
                         const QSet<QString> *present);

private:
    /// A card that was taken away.
    struct Removed
    {
        QString familyName;
        FontQuizCardTheme theme;
        /// The family has not vanished.
        bool isPresent = true;
    };

    FontQuizDeck::Choice choiceAt(int position) const;
    void removeAt(const std::vector<bool> &leaves);
    void takeAway(const QHash<QString, QString> &styleIDByFamily, const QSet<QString> *present,
                  Difference &difference);
    void giveBack(const QHash<QString, QString> &styleIDByFamily, const QSet<QString> *present,
                  Difference &difference);
    bool isRedone(const Removed &card, const QString &styleID) const;
    void putAtEnd(const Removed &card);
    Choice putOnPile(const Removed &card);
    std::vector<Choice> takeBack(const QHash<QString, QString> &styleIDByFamily);
    void putInFront(const Choice &choice);

    QStringList m_families;
    std::vector<FontQuizCardTheme> m_themeSequence;
    /// Where each sorted card lies.
    std::vector<int> m_tiles;
    std::array<int, kFontQuizTiles> m_counts{};
    std::vector<Removed> m_removed;
    /// On which piles the choices lay that were taken back since the last choose().
    QHash<QString, int> m_formerTiles;
};

} // namespace lorva
