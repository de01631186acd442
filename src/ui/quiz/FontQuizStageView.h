// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/quiz/FontQuizCardPictures.h"
#include "ui/quiz/FontQuizLayout.h"
#include "ui/quiz/FontQuizTimeline.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>
#include <vector>

class QLabel;

namespace lorva {

class FontQuizCardView;
class FontQuizCategoryView;
class FontQuizFlightView;
struct FontQuizShownCard;
class LorvaAppModel;

/// What is seen while one plays: the cards, the six tiles with their piles, how far one is, and the
/// card that flies. Decides nothing.
///
/// Does not own model, deck and timeline, which outlive it. Thread: main.
class FontQuizStageView final : public QWidget
{
    Q_OBJECT
public:
    /// A card on its pile.
    struct LandedCard
    {
        QString familyName;
        FontQuizCardTheme theme;
        /// From 0; says how it lies.
        int number = 0;
        /// As small as a pile draws it; null: blank, until it has arrived.
        FontQuizCardPictures::Picture picture;

        bool operator==(const LandedCard &) const = default;
    };
    using LandedPiles = std::array<std::vector<LandedCard>, kFontQuizTiles>;

    static constexpr std::chrono::milliseconds kFlight{420};
    static constexpr std::chrono::milliseconds kShift{220};
    static constexpr std::chrono::milliseconds kFlash{560};

    FontQuizStageView(const LorvaAppModel &model, const FontQuizDeck &deck,
                      std::shared_ptr<FontResolver> resolver, FontQuizTimeline &timeline,
                      QWidget *parent);
    ~FontQuizStageView() override;

    /// A tile was clicked.
    std::function<void(int tile)> onTile;
    /// What flew has arrived; nothing moves any more.
    std::function<void()> onSettled;
    /// The first cards have other pictures.
    std::function<void()> onPictures;

    /// Lays everything out for its size, which counts also while it is hidden.
    void place();
    /// Shows the deck as it is, at once.
    void showDeck();
    /// The deck's last choice was just made, or made again: its card flies to the pile, and the
    /// next ones rise.
    void throwCard();
    /// The card that was current was put aside, or taken away.
    void putAside(const QString &familyName, const FontQuizCardTheme &theme);
    void fadeAway(const QString &familyName, const FontQuizCardTheme &theme);
    /// Choices hold no longer, the newest last: the newest one's card flies back.
    void bringBack(const std::vector<FontQuizDeck::Choice> &takenBack);
    /// In a quiet line, until the next card; empty: nothing.
    void setNotice(const QString &text);

    bool isAnimating() const { return m_isAnimating; }
    /// The cards that are drawn; each pile's topmost last.
    const LandedPiles &landedPiles() const { return m_landedPiles; }
    int maxPileSize() const { return m_maxPileSize; }
    /// Of the whole deck; their poses are of no matter.
    std::vector<FontQuizShownCard> firstCards() const;
    FontQuizCardPictures &pictures() { return *m_pictures; }
    FontQuizCardView &cardView() { return *m_cardView; }
    const FontQuizLayout &quizLayout() const { return m_layout; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// How a card goes from one place to another.
    struct Flight
    {
        FontQuizPose from;
        FontQuizPose to;
        bool isThrown = false;
        /// The cards behind it move up (1) or down (−1).
        int direction = 1;
        std::chrono::milliseconds duration{kShift};
    };

    void wantPictures();
    void describeCard();
    std::vector<FontQuizShownCard> deckCards(int first, double depthShift) const;
    FontQuizShownCard shown(const QString &familyName, const FontQuizCardTheme &theme) const;
    void fly(const QString &familyName, FontQuizShownCard card, const Flight &flight,
             std::function<void()> done);
    void settleFlight();
    void endFlight();
    void takeColors();
    void land(const FontQuizDeck::Choice &choice);
    void flashTile(const FontQuizDeck::Choice &choice);
    FontQuizCardPictures::Picture landedPicture(const QString &familyName) const;
    LandedCard landed(const FontQuizDeck::Choice &choice, int number) const;
    void fillPile(int tile);
    void fillPiles();
    void showPile(int tile);
    void takePicture(const QString &familyName);
    void pictureArrived(const QString &familyName);

    const LorvaAppModel &m_model;
    const FontQuizDeck &m_deck;
    FontQuizTimeline &m_timeline;
    FontQuizCardPictures *m_pictures;
    FontQuizCardView *m_cardView;
    std::array<FontQuizCategoryView *, kFontQuizTiles> m_categoryViews{};
    QLabel *m_notice;
    FontQuizFlightView *m_flightView;
    FontQuizLayout m_layout;
    LandedPiles m_landedPiles;
    /// It is on its way to a pile on which the deck has it already; else empty.
    QString m_thrownFamily;
    const int m_maxPileSize = 4;
    bool m_isAnimating = false;
    /// Of the card that flies, or flew last: it may have left the pictures that are wanted.
    FontQuizCardPictures::Picture m_flyingPicture;
    QString m_flyingFamily;
};

} // namespace lorva
