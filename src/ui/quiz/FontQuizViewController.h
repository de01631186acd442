// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/LorvaAppModel.h"
#include "platform/UserAccount.h"
#include "ui/preview/FontResolver.h"
#include "ui/quiz/FontQuizDeck.h"
#include "ui/quiz/FontQuizTimeline.h"

#include <QDate>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace lorva {

class FontQuizCompletionPosterView;
class FontQuizGame;
class FontQuizGround;
class FontQuizIntroView;
class FontQuizStageView;
class FontQuizVeil;
class TextButton;

/// Where the quiz gets from what is different each time.
struct FontQuizSources
{
    FontQuizDeck::Random random = FontQuizDeck::systemRandom();
    std::function<QDate()> today = [] { return QDate::currentDate(); };
    /// Asked by a worker: it may have to wait for the network.
    std::function<QString()> fullName = userFullName;
};

/// The font quiz: deals the families that have no style category yet, one card at a time; the
/// player sorts each into one of six. It covers the window while it is open; a new one is made each
/// time, and its deck with it.
///
/// Every choice is written at once. Does not own the model, which must outlive it. Thread: main.
class FontQuizViewController final : public QWidget
{
    Q_OBJECT
public:
    enum class Phase { intro, playing, done };

    /// Deals the deck and shows the introduction.
    FontQuizViewController(LorvaAppModel &model, std::shared_ptr<FontResolver> resolver,
                           QWidget *parent = nullptr, FontQuizSources sources = {});
    ~FontQuizViewController() override;

    /// The player wants to leave; the quiz may be deleted when it returns to the event loop.
    std::function<void()> onClose;

    Phase phase() const { return m_phase; }
    /// As if Start were pressed; only in the introduction, and with a deck that is not empty.
    void start();
    /// Puts the current card onto a tile's pile, 1 … 6. Ignored while one flies, or out of play.
    void choose(int tile);
    /// The current card goes to the end of the deck. Ignored likewise.
    void skip();
    /// Takes the last choice back: its family has no category again, its card comes back. Ignored
    /// likewise.
    void takeBack();
    /// Shows the end of the game as it is now: for a picture of the poster.
    void showPoster();
    /// What is shown has been drawn: faces have arrived, nothing flies.
    bool isSettled() const;

    const FontQuizDeck &deck() const;
    int currentIndex() const { return deck().currentIndex(); }
    /// A card flies.
    bool isAnimating() const;
    const FontQuizStageView &stage() const { return *m_stage; }
    /// All that moves; tests drive its time.
    FontQuizTimeline &timeline() { return *m_timeline; }

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void close() const;
    void place();
    void placeClose();
    void askName();
    void setPhase(Phase phase);
    void focusPhase();
    void focusEnd();
    void showIntro();
    void showIntroCards();
    void deckChanged(const FontQuizDeck::Difference &difference, const QString &formerFamily,
                     const FontQuizCardTheme &formerTheme);
    void countsChanged(const FontQuizDeck::Difference &difference);
    void catalogChanged();
    void noteIntroSeen();
    void noteCurrent();
    void resume();
    void endIfExhausted();
    void end();
    void showEmpty();
    void fadeFromHere();
    void updateGround();
    void bloom();
    bool isPlayable() const;
    bool isHeldStill(const QKeyEvent &event) const;
    void introKey(const QKeyEvent &event);
    void playingKey(const QKeyEvent &event);

    LorvaAppModel &m_model;
    const FontQuizSources m_sources;
    Phase m_phase = Phase::intro;
    /// Nothing while it is asked for.
    std::optional<QString> m_fullName;
    FontQuizTimeline *m_timeline;
    FontQuizGame *m_game;
    FontQuizGround *m_ground;
    FontQuizStageView *m_stage;
    FontQuizIntroView *m_intro;
    /// Null until the game has ended.
    FontQuizCompletionPosterView *m_poster = nullptr;
    TextButton *m_closeButton;
    /// Null unless one phase fades into another.
    FontQuizVeil *m_veil;
    /// The current card as it was shown last.
    QString m_currentFamily;
    FontQuizCardTheme m_currentTheme;
    /// The key that was let go last, and the time stamp of that.
    int m_releasedKey = 0;
    quint64 m_releasedAt = 0;
};

} // namespace lorva
