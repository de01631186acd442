// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizViewController.h"

#include "base/RunThen.h"
#include "ui/quiz/FontQuizCardView.h"
#include "ui/quiz/FontQuizCompletionPosterView.h"
#include "ui/quiz/FontQuizGame.h"
#include "ui/quiz/FontQuizGround.h"
#include "ui/quiz/FontQuizIntroView.h"
#include "ui/quiz/FontQuizStageView.h"
#include "ui/quiz/FontQuizVeil.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"

#include <QFontMetrics>
#include <QPainter>
#include <QThreadPool>

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kFade{320};
constexpr std::chrono::milliseconds kBloom{600};
/// A picture of a larger window takes longer than a frame; what is shown next comes out of the bare
/// ground then.
constexpr double kMostGrabbedPixels = 2.4e6;
/// Points.
constexpr int kNameInNotice = 240;
/// The wash is so faint that its steps cannot be seen; each repaints half of the window.
constexpr int kBloomSteps = 8;

FontQuizCounts countsOf(const FontQuizDeck &deck)
{
    const auto &piles = deck.counts();
    return {deck.currentIndex(), piles[0], piles[1], piles[2], piles[3], piles[4], piles[5]};
}

/// So much of a name that the reason behind it is seen as well.
QString inNotice(const QString &familyName)
{
    const QFontMetrics metrics(interfaceFont(InterfaceSize::label, InterfaceWeight::medium));
    return metrics.elidedText(familyName.simplified(), Qt::ElideMiddle, kNameInNotice);
}

} // namespace

FontQuizViewController::FontQuizViewController(LorvaAppModel &model,
                                               std::shared_ptr<FontResolver> resolver,
                                               QWidget *parent, FontQuizSources sources)
    : QWidget(parent)
    , m_model(model)
    , m_sources(std::move(sources))
    , m_timeline(new FontQuizTimeline(this))
    , m_game(new FontQuizGame(model, m_sources.random, this))
    , m_ground(new FontQuizGround(this))
    , m_stage(new FontQuizStageView(model, m_game->deck(), std::move(resolver), *m_timeline, this))
    , m_intro(new FontQuizIntroView(this))
    , m_closeButton(new TextButton(tr("Close"), TextButton::Kind::plain, this))
    , m_veil(new FontQuizVeil(this))
{
    setObjectName(QStringLiteral("FontQuizViewController"));
    setAccessibleName(tr("Font Quiz"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
    m_closeButton->setObjectName(QStringLiteral("FontQuizViewController.Close"));
    m_closeButton->setFocusPolicy(Qt::TabFocus);
    connect(m_closeButton, &QPushButton::clicked, this, &FontQuizViewController::close);
    m_intro->onStart = [this] { start(); };
    m_stage->onTile = [this](int tile) { choose(tile); };
    m_stage->onSettled = [this] { endIfExhausted(); };
    m_stage->onPictures = [this] { showIntroCards(); };
    m_ground->onArrived = [this] { bloom(); };
    m_game->onCatalog = [this] { catalogChanged(); };
    m_game->onChange = [this](const FontQuizDeck::Difference &difference) {
        deckChanged(difference, m_currentFamily, m_currentTheme);
    };
    askName();
    showIntro();
}

/// In the pool that nobody waits for while the program runs: closing must not take as long as an
/// account database that does not answer.
void FontQuizViewController::askName()
{
    runThen(
        *QThreadPool::globalInstance(), this,
        [ask = m_sources.fullName](const std::stop_token &) { return ask(); },
        [this](const QString &name) {
            m_fullName = name;
            if (m_poster)
                m_poster->setFullName(name);
        });
}

FontQuizViewController::~FontQuizViewController() = default;

const FontQuizDeck &FontQuizViewController::deck() const
{
    return m_game->deck();
}

bool FontQuizViewController::isAnimating() const
{
    return m_stage->isAnimating();
}

bool FontQuizViewController::isSettled() const
{
    return !m_timeline->isRunning() && m_fullName && m_ground->isComplete()
        && m_stage->pictures().isComplete();
}

void FontQuizViewController::close() const
{
    if (onClose)
        onClose();
}

void FontQuizViewController::catalogChanged()
{
    if (m_phase == Phase::intro)
        showIntro();
    m_stage->pictures().retryStandIns();
}

void FontQuizViewController::noteCurrent()
{
    if (deck().isExhausted())
        return;
    m_currentFamily = deck().currentFamily();
    m_currentTheme = deck().themeSequence()[size_t(deck().currentIndex())];
    updateGround();
}

void FontQuizViewController::showIntro()
{
    m_intro->setNumbers(m_game->sortedElsewhere(), deck().size());
    m_stage->showDeck();
    noteCurrent();
    showIntroCards();
    setPhase(Phase::intro);
    noteIntroSeen();
}

/// Saying so makes the model tell everybody, which is for later.
void FontQuizViewController::noteIntroSeen()
{
    if (isVisible() && m_phase == Phase::intro && !deck().isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { m_model.setHasSeenQuizIntro(); }, Qt::QueuedConnection);
}

void FontQuizViewController::showIntroCards()
{
    if (m_phase == Phase::intro)
        m_intro->setCards(m_stage->firstCards());
}

void FontQuizViewController::setPhase(Phase phase)
{
    m_phase = phase;
    if (phase != Phase::intro)
        m_game->begin();
    m_stage->setVisible(phase == Phase::playing);
    m_intro->setVisible(phase == Phase::intro || (phase == Phase::done && !m_poster));
    if (m_poster)
        m_poster->setVisible(phase == Phase::done);
    m_closeButton->raise();
    m_veil->raise();
    m_closeButton->setAccessibleDescription(
        m_intro->isVisibleTo(this) && deck().isExhausted() ? m_intro->sentence() : QString());
    if (isVisible())
        focusPhase();
}

/// A key that was meant for the last card must not reach the end's button: that gets the keyboard
/// when it can be seen.
void FontQuizViewController::focusPhase()
{
    m_timeline->drop("focus");
    if (m_phase == Phase::playing)
        return m_stage->cardView().setFocus(Qt::OtherFocusReason);
    if (m_phase == Phase::done) {
        setFocus(Qt::OtherFocusReason);
        m_timeline->run(
            "focus", kFade, [](double) {}, [this] { focusEnd(); });
    } else if (deck().isExhausted())
        m_closeButton->setFocus(Qt::OtherFocusReason);
    else {
        m_intro->focusPage();
    }
}

void FontQuizViewController::focusEnd()
{
    if (m_poster)
        m_poster->focusPage();
    else
        m_closeButton->setFocus(Qt::OtherFocusReason);
}

void FontQuizViewController::start()
{
    if (m_phase != Phase::intro || deck().isEmpty())
        return;
    fadeFromHere();
    setPhase(Phase::playing);
}

bool FontQuizViewController::isPlayable() const
{
    return m_phase == Phase::playing && !isAnimating() && !deck().isExhausted();
}

void FontQuizViewController::choose(int tile)
{
    if (tile < 1 || tile > kFontQuizTiles || !isPlayable())
        return;
    const QString family = deck().currentFamily();
    const Result<void> written = m_game->choose(tile);
    if (!written)
        return m_stage->setNotice(
            tr("“%1” could not be put into %2: %3")
                .arg(inNotice(family), fontQuizCategoryName(tile), written.error().detail));
    noteCurrent();
    m_stage->throwCard();
}

void FontQuizViewController::skip()
{
    if (!isPlayable() || !m_game->skip())
        return;
    const QString family = std::exchange(m_currentFamily, QString());
    const FontQuizCardTheme theme = m_currentTheme;
    noteCurrent();
    m_stage->putAside(family, theme);
}

void FontQuizViewController::takeBack()
{
    if (m_phase == Phase::intro || isAnimating())
        return;
    const Result<void> written = m_game->takeBack();
    if (!written)
        m_stage->setNotice(
            tr("The last choice could not be taken back: %1").arg(written.error().detail));
}

void FontQuizViewController::deckChanged(const FontQuizDeck::Difference &difference,
                                         const QString &formerFamily,
                                         const FontQuizCardTheme &formerTheme)
{
    noteCurrent();
    if (m_phase == Phase::intro)
        return showIntro();
    if (m_phase == Phase::done && deck().isExhausted())
        return countsChanged(difference);
    if (m_phase == Phase::done)
        resume();
    if (!difference.takenBack.empty())
        m_stage->bringBack(difference.takenBack);
    else if (!difference.redone.empty() && difference.hasLostCurrent)
        m_stage->throwCard();
    else if (difference.hasLostCurrent)
        m_stage->fadeAway(formerFamily, formerTheme);
    else
        m_stage->showDeck();
    if (!isAnimating())
        endIfExhausted();
}

/// What the end tells is not so any more, but there is no card to go on with.
void FontQuizViewController::countsChanged(const FontQuizDeck::Difference &difference)
{
    if (!difference.takenBack.empty() || !difference.redone.empty())
        end();
}

/// There are cards again, and the game goes on.
void FontQuizViewController::resume()
{
    fadeFromHere();
    setPhase(Phase::playing);
}

void FontQuizViewController::endIfExhausted()
{
    if (m_phase == Phase::playing && deck().isExhausted())
        end();
}

void FontQuizViewController::end()
{
    fadeFromHere();
    if (deck().currentIndex() == 0)
        showEmpty();
    else
        showPoster();
}

void FontQuizViewController::showEmpty()
{
    if (m_poster) {
        m_poster->hide();
        m_poster->deleteLater();
        m_poster = nullptr;
    }
    m_intro->setNumbers(0, 0);
    m_intro->setCards({});
    setPhase(Phase::done);
}

void FontQuizViewController::showPoster()
{
    if (!m_poster) {
        m_poster = new FontQuizCompletionPosterView(this);
        connect(m_poster, &FontQuizCompletionPosterView::doneWanted, this,
                &FontQuizViewController::close);
    }
    m_poster->setContent(countsOf(deck()), m_sources.today(), m_fullName.value_or(QString()));
    m_poster->setGeometry(rect());
    setPhase(Phase::done);
}

/// What is seen now fades into what is shown next.
void FontQuizViewController::fadeFromHere()
{
    if (!isVisible() || prefersReducedMotion(this))
        return;
    m_timeline->drop("fade");
    m_veil->setStrength(0);
    const bool isLarge =
        double(width()) * height() * devicePixelRatioF() * devicePixelRatioF() > kMostGrabbedPixels;
    m_veil->cover(isLarge ? QPixmap() : grab(), fontQuizColors(isDarkDesktop()).ground);
    m_timeline->run("fade", kFade, [this](double share) { m_veil->setStrength(1 - share); });
}

void FontQuizViewController::updateGround()
{
    const bool isDark = isDarkDesktop();
    // Without a card there is no colour to wash it with.
    const QColor wash = m_currentTheme.background.isValid() ? m_currentTheme.background
                                                            : fontQuizColors(isDark).ground;
    m_ground->setLook(
        {size(), m_stage->quizLayout().card.center(), devicePixelRatioF(), wash, isDark});
}

/// The wash in the colour of the next card has been painted.
void FontQuizViewController::bloom()
{
    if (prefersReducedMotion(this) || !isVisible()) {
        m_ground->setShare(1);
        return update();
    }
    m_timeline->run("bloom", kBloom, [this, last = -1](double share) mutable {
        const int step = int(share * kBloomSteps);
        if (std::exchange(last, step) == step)
            return;
        m_ground->setShare(double(step) / kBloomSteps);
        update(m_ground->bloomRect());
    });
}

void FontQuizViewController::placeClose()
{
    const QSize size = m_closeButton->sizeHint();
    const int left = isRightToLeft() ? spacing::k24 : width() - spacing::k24 - size.width();
    m_closeButton->setGeometry(QRect(QPoint(left, spacing::k24), size));
}

void FontQuizViewController::place()
{
    m_stage->setGeometry(rect());
    m_stage->place();
    m_intro->setGeometry(rect());
    if (m_poster)
        m_poster->setGeometry(rect());
    m_timeline->finish("fade");
    placeClose();
    updateGround();
}

void FontQuizViewController::resizeEvent(QResizeEvent *)
{
    place();
}

bool FontQuizViewController::event(QEvent *event)
{
    // Another screen may have other pixels.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LayoutDirectionChange
        || event->type() == QEvent::ScreenChangeInternal)
        place();
    return QWidget::event(event);
}

void FontQuizViewController::showEvent(QShowEvent *)
{
    place();
    setPhase(m_phase);
    noteIntroSeen();
}

void FontQuizViewController::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    m_ground->paint(painter, event->rect());
}

} // namespace lorva
