// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizStageView.h"

#include "base/GroupedNumber.h"
#include "model/LorvaAppModel.h"
#include "ui/quiz/FontQuizCardView.h"
#include "ui/quiz/FontQuizCategoryView.h"
#include "ui/quiz/FontQuizFlightView.h"
#include "ui/quiz/FontQuizGame.h"
#include "ui/quiz/FontQuizGround.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"

#include <QAccessible>
#include <QEasingCurve>
#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace lorva {

namespace {

/// The cards that are seen, and one that is about to be.
constexpr int kShownCards = 4;
/// In the fan of the introduction.
constexpr int kFirstCards = 5;
/// The share of a flight in which the cards behind move: then the one that flies still covers them,
/// and what comes after costs little.
constexpr double kRiseShare = 0.45;
/// Painted ahead, so that a quick hand never waits.
constexpr int kReadyCards = 6;
constexpr double kProgressAlpha = 0.55;
constexpr double kHintAlpha = 0.5;
const QByteArray kFlightTrack = QByteArrayLiteral("flight");

double risen(double share)
{
    return QEasingCurve(QEasingCurve::OutCubic).valueForProgress(share);
}

} // namespace

FontQuizStageView::FontQuizStageView(const LorvaAppModel &model, const FontQuizDeck &deck,
                                     std::shared_ptr<FontResolver> resolver,
                                     FontQuizTimeline &timeline, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_deck(deck)
    , m_timeline(timeline)
    , m_pictures(new FontQuizCardPictures(std::move(resolver), this))
    , m_cardView(new FontQuizCardView(this))
{
    setObjectName(QStringLiteral("FontQuizStageView"));
    for (int tile = 1; tile <= kFontQuizTiles; ++tile) {
        auto *view = m_categoryViews[size_t(tile - 1)] = new FontQuizCategoryView(tile, this);
        view->onClick = [this, tile] {
            if (onTile)
                onTile(tile);
        };
    }
    m_notice = new QLabel(this);
    m_notice->setObjectName(QStringLiteral("FontQuizNotice"));
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setFont(interfaceFont(InterfaceSize::label, InterfaceWeight::medium));
    m_flightView = new FontQuizFlightView(this);
    m_pictures->onArrived = [this](const QString &name) { pictureArrived(name); };
    setNotice({});
}

FontQuizStageView::~FontQuizStageView() = default;

void FontQuizStageView::takeColors()
{
    const QColor text = fontQuizColors(isDarkDesktop()).text;
    QPalette palette = m_notice->palette();
    if (palette.color(QPalette::WindowText) == text)
        return;
    palette.setColor(QPalette::WindowText, text);
    m_notice->setPalette(palette);
}

void FontQuizStageView::place()
{
    takeColors();
    m_layout = fontQuizLayout(size(), layoutDirection());
    m_pictures->setLook({m_layout.cardScale, devicePixelRatioF(), isDarkDesktop()});
    QRect cards;
    for (int depth = 0; depth < 3; ++depth)
        cards |= fontQuizCardRegion(fontQuizRestPose(m_layout, depth));
    m_cardView->setGeometry(cards);
    m_notice->setGeometry(m_layout.notice);
    m_flightView->setGeometry(rect());
    for (int tile = 1; tile <= kFontQuizTiles; ++tile) {
        m_categoryViews[size_t(tile - 1)]->setGeometry(m_layout.tiles[size_t(tile - 1)]);
        showPile(tile);
    }
    settleFlight();
    showDeck();
}

void FontQuizStageView::wantPictures()
{
    std::vector<FontQuizCard> cards;
    const int end = std::min(m_deck.currentIndex() + kReadyCards, m_deck.size());
    for (int i = m_deck.currentIndex(); i < end; ++i) {
        if (const FontFamilyRecord *family = m_model.family(m_deck.families()[i]))
            cards.push_back(fontQuizCard(*family, m_deck.themeSequence()[size_t(i)]));
    }
    for (const auto &pile : m_landedPiles) {
        for (const LandedCard &card : pile) {
            const FontFamilyRecord *family =
                card.picture ? nullptr : m_model.family(card.familyName);
            if (family)
                cards.push_back(fontQuizCard(*family, card.theme));
        }
    }
    m_pictures->want(cards);
}

FontQuizShownCard FontQuizStageView::shown(const QString &familyName,
                                           const FontQuizCardTheme &theme) const
{
    FontQuizCardPictures::Picture picture = m_pictures->find(familyName);
    if (!picture && familyName == m_flyingFamily)
        picture = m_flyingPicture;
    return {std::move(picture), theme, {}};
}

/// The cards from the deck's `first` on, all `depthShift` deeper than they rest.
std::vector<FontQuizShownCard> FontQuizStageView::deckCards(int first, double depthShift) const
{
    std::vector<FontQuizShownCard> cards;
    const int end = std::min(first + kShownCards, m_deck.size());
    for (int i = first; i < end; ++i) {
        cards.push_back(shown(m_deck.families()[i], m_deck.themeSequence()[size_t(i)]));
        const int depth = i - first;
        cards.back().pose = between(fontQuizRestPose(m_layout, depth),
                                    fontQuizRestPose(m_layout, depth + 1), depthShift);
    }
    return cards;
}

std::vector<FontQuizShownCard> FontQuizStageView::firstCards() const
{
    std::vector<FontQuizShownCard> cards;
    for (int i = 0; i < std::min(kFirstCards, m_deck.size()); ++i)
        cards.push_back(shown(m_deck.families()[i], m_deck.themeSequence()[size_t(i)]));
    return cards;
}

void FontQuizStageView::describeCard()
{
    if (m_deck.isExhausted()) {
        m_cardView->setAccessibleName({});
        return m_cardView->setAccessibleDescription({});
    }
    m_cardView->setAccessibleName(m_deck.currentFamily());
    m_cardView->setAccessibleDescription(
        tr("Card %1 of %2. Press 1 to 6 to choose its style, Space to skip it, Backspace to take "
           "the last choice back.")
            .arg(groupedNumber(m_deck.currentIndex() + 1), groupedNumber(m_deck.size())));
}

void FontQuizStageView::showDeck()
{
    fillPiles();
    wantPictures();
    describeCard();
    if (!m_isAnimating)
        m_cardView->setCards(deckCards(m_deck.currentIndex(), 0));
    update();
}

void FontQuizStageView::pictureArrived(const QString &familyName)
{
    takePicture(familyName);
    if (!m_isAnimating)
        m_cardView->setCards(deckCards(m_deck.currentIndex(), 0));
    if (onPictures)
        onPictures();
}

/// The deck is as it will be when the card has arrived.
void FontQuizStageView::fly(const QString &familyName, FontQuizShownCard card, const Flight &flight,
                            std::function<void()> done)
{
    m_flyingPicture = card.picture;
    m_flyingFamily = familyName;
    setNotice({});
    wantPictures();
    describeCard();
    update();
    if (prefersReducedMotion(this))
        return done();
    m_isAnimating = true;
    card.pose = flight.from;
    m_flightView->setCard(std::move(card));
    const int first = m_deck.currentIndex() + (flight.direction < 0 ? 1 : 0);
    m_timeline.run(
        kFlightTrack, flight.duration,
        [this, flight, first, last = -1.0](double share) mutable {
            m_flightView->setPose(flight.isThrown ? thrown(flight.from, flight.to, share)
                                                  : between(flight.from, flight.to, risen(share)));
            const double moved = risen(std::min(1.0, share / kRiseShare));
            if (std::exchange(last, moved) != moved)
                m_cardView->setCards(deckCards(first, flight.direction > 0 ? 1 - moved : moved));
        },
        std::move(done));
}

/// What flies arrives now.
void FontQuizStageView::settleFlight()
{
    m_timeline.finish(kFlightTrack);
}

void FontQuizStageView::endFlight()
{
    m_isAnimating = false;
    m_flightView->setCard(std::nullopt);
    showDeck();
    if (onSettled)
        onSettled();
}

void FontQuizStageView::throwCard()
{
    settleFlight();
    const FontQuizDeck::Choice choice = *m_deck.lastChoice();
    m_thrownFamily = choice.familyName;
    const auto place = size_t(choice.tile - 1);
    const FontQuizPose top = fontQuizPilePose(m_layout.tiles[place], m_deck.counts()[place] - 1);
    FontQuizShownCard card = shown(choice.familyName, choice.theme);
    flashTile(choice);
    fly(choice.familyName, std::move(card), {fontQuizRestPose(m_layout, 0), top, true, 1, kFlight},
        [this, choice] { land(choice); });
}

void FontQuizStageView::flashTile(const FontQuizDeck::Choice &choice)
{
    FontQuizCategoryView *view = m_categoryViews[size_t(choice.tile - 1)];
    if (prefersReducedMotion(this))
        return;
    m_timeline.run("flash" + QByteArray::number(choice.tile), kFlash,
                   [view, color = choice.theme.background](double share) {
                       view->setFlash(color, (1 - share) * (1 - share));
                   });
}

void FontQuizStageView::land(const FontQuizDeck::Choice &choice)
{
    m_thrownFamily.clear();
    fillPile(choice.tile);
    endFlight();
}

void FontQuizStageView::bringBack(const std::vector<FontQuizDeck::Choice> &takenBack)
{
    const FontQuizDeck::Choice &newest = takenBack.back();
    FontQuizShownCard card = shown(newest.familyName, newest.theme);
    if (!card.picture)
        card.picture = landedPicture(newest.familyName);
    settleFlight();
    fillPiles();
    if (m_deck.isExhausted() || m_deck.currentFamily() != newest.familyName)
        return endFlight();
    const auto place = size_t(newest.tile - 1);
    const FontQuizPose pile = fontQuizPilePose(m_layout.tiles[place], m_deck.counts()[place]);
    fly(newest.familyName, std::move(card),
        {pile, fontQuizRestPose(m_layout, 0), true, -1, kFlight}, [this] { endFlight(); });
}

void FontQuizStageView::putAside(const QString &familyName, const FontQuizCardTheme &theme)
{
    const FontQuizPose rest = fontQuizRestPose(m_layout, 0);
    FontQuizPose aside = rest;
    aside.centre.rx() += (isRightToLeft() ? -0.3 : 0.3) * m_layout.card.width();
    aside.degrees = isRightToLeft() ? -4 : 4;
    aside.opacity = 0;
    fly(familyName, shown(familyName, theme), {rest, aside}, [this] { endFlight(); });
}

void FontQuizStageView::fadeAway(const QString &familyName, const FontQuizCardTheme &theme)
{
    FontQuizShownCard card = shown(familyName, theme);
    settleFlight();
    const FontQuizPose rest = fontQuizRestPose(m_layout, 0);
    FontQuizPose gone = rest;
    gone.opacity = 0;
    fly(familyName, std::move(card), {rest, gone}, [this] { endFlight(); });
}

void FontQuizStageView::setNotice(const QString &text)
{
    if (m_notice->text() == text && m_notice->isVisibleTo(this) == !text.isEmpty())
        return;
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    QAccessibleEvent alert(m_notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void FontQuizStageView::paintEvent(QPaintEvent *)
{
    const FontQuizColors colors = fontQuizColors(isDarkDesktop());
    QPainter painter(this);
    const auto line = [&](const QRect &place, const QFont &font, double alpha,
                          const QString &text) {
        painter.setFont(font);
        painter.setPen(quietColor(colors.text, colors.ground, alpha));
        painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter.drawText(place, Qt::AlignCenter, text);
    };
    if (!m_deck.isExhausted())
        line(m_layout.progress,
             interfaceFont(InterfaceSize::body, InterfaceWeight::regular, Figures::tabular),
             kProgressAlpha,
             //: The card that is shown, and how many there are.
             tr("%1 of %2")
                 .arg(groupedNumber(m_deck.currentIndex() + 1), groupedNumber(m_deck.size())));
    if (!m_layout.hint.isEmpty())
        line(m_layout.hint, interfaceFont(InterfaceSize::caption), kHintAlpha,
             tr("Space skips a card. Backspace takes the last one back."));
}

} // namespace lorva
