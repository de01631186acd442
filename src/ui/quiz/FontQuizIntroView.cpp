// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizIntroView.h"

#include "base/GroupedNumber.h"
#include "ui/quiz/FontQuizGround.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace lorva {

namespace {

/// The one line of the program that greets; larger than the interface's own sizes.
constexpr int kTitleSize = 34;
constexpr int kColumn = 460;
constexpr double kFanScale = 0.4;
constexpr double kLeastFanScale = 0.12;
/// What the fan takes, to the height of one card.
constexpr double kFanHeight = 1.5;
constexpr double kSentenceAlpha = 0.7;
constexpr QSize kLeastButton{128, 32};
/// How the cards of the fan lie: steps from its middle.
constexpr std::array kFan{0, -1, 1, -2, 2};
constexpr double kFanStep = 104;
constexpr double kFanDegrees = 8;
constexpr double kFanDrop = 26;

QFont titleFont()
{
    QFont font = interfaceFont(InterfaceSize::heading, InterfaceWeight::semibold);
    font.setPixelSize(kTitleSize);
    return font;
}

QString sentenceFor(int sorted, int waiting)
{
    if (waiting < 1)
        return FontQuizIntroView::tr("Every font is already categorized.");
    if (sorted < 1)
        return FontQuizIntroView::tr(
            "Choose a style for each of your fonts. It'll then appear in that style folder. Don't "
            "worry, you can change the style for a font later.");
    //: The number of forms goes by %2.
    return FontQuizIntroView::tr(
               "Choose a style for each of your fonts. It'll then appear in that style folder. "
               "We've sorted %1 for you, but %2 need your eye. Don't worry, you can change the "
               "style for a font later.",
               nullptr, waiting)
        .arg(groupedNumber(sorted), groupedNumber(waiting));
}

} // namespace

FontQuizIntroView::FontQuizIntroView(QWidget *parent)
    : QWidget(parent)
    //: Begins the quiz.
    , m_startButton(new TextButton(tr("Start"), TextButton::Kind::prominent, this))
{
    setObjectName(QStringLiteral("FontQuizIntroView"));
    setFocusPolicy(Qt::NoFocus);
    m_startButton->setObjectName(QStringLiteral("FontQuizIntroView.Start"));
    connect(m_startButton, &QPushButton::clicked, this, [this] {
        if (onStart)
            onStart();
    });
}

QString FontQuizIntroView::title() const
{
    return m_isEmpty ? QString() : tr("Let's organize your fonts");
}

void FontQuizIntroView::setNumbers(int sorted, int waiting)
{
    m_isEmpty = waiting < 1;
    m_sentence = sentenceFor(sorted, waiting);
    m_startButton->setVisible(!m_isEmpty);
    m_startButton->setAccessibleDescription(m_isEmpty ? QString() : m_sentence);
    setAccessibleName(m_isEmpty ? m_sentence : title());
    setAccessibleDescription(m_isEmpty ? QString() : m_sentence);
    placeButton();
    update();
}

void FontQuizIntroView::setCards(std::vector<FontQuizShownCard> cards)
{
    m_cards = std::move(cards);
    m_cards.resize(std::min(m_cards.size(), kFan.size()));
    update();
}

void FontQuizIntroView::focusPage()
{
    m_startButton->setFocus(Qt::OtherFocusReason);
}

WrappedText FontQuizIntroView::sentenceText() const
{
    return {m_sentence, interfaceFont(InterfaceSize::title), 0, true};
}

/// A column in the middle of the window: the fan, the title, the sentence, the button.
FontQuizIntroView::Places FontQuizIntroView::places() const
{
    Places out;
    const int column = std::min(kColumn, width() - 2 * spacing::k24);
    const int left = (width() - column) / 2;
    const QSize button = m_startButton->sizeHint().expandedTo(kLeastButton);
    const int textHeight = sentenceText().heightFor(column);
    const int titleHeight = m_isEmpty ? 0 : QFontMetrics(titleFont()).height();
    const int below = titleHeight + spacing::k16 + textHeight + spacing::k32 + button.height();
    const double room = (height() - below - 160.0) / (kFontQuizCardSize.height() * kFanHeight);
    const double scale = std::max(kLeastFanScale, std::min({kFanScale, width() / 1900.0, room}));
    const int fan = m_isEmpty ? 0 : int(kFontQuizCardSize.height() * scale * kFanHeight);
    const int gap = m_isEmpty ? 0 : spacing::k40;
    int y = (height() - fan - gap - below) / 2;
    out.fan = {QPointF(width() / 2.0, y + fan * 0.36), scale};
    y += fan + gap;
    out.title = QRect(spacing::k24, y, width() - 2 * spacing::k24, titleHeight);
    y += titleHeight + spacing::k16;
    out.sentence = QRect(left, y, column, textHeight);
    y += textHeight + spacing::k32;
    out.button = QRect(QPoint((width() - button.width()) / 2, y), button);
    return out;
}

void FontQuizIntroView::placeButton()
{
    m_startButton->setGeometry(places().button);
}

void FontQuizIntroView::resizeEvent(QResizeEvent *)
{
    placeButton();
}

void FontQuizIntroView::paintFan(QPainter &painter, const FontQuizPose &middle) const
{
    for (size_t i = m_cards.size(); i-- > 0;) {
        const int step = kFan[i];
        FontQuizShownCard card = m_cards[i];
        card.pose = middle;
        const double grown = middle.scale / kFanScale;
        card.pose.centre +=
            QPointF(step * kFanStep * grown, std::pow(std::abs(step), 1.3) * kFanDrop * grown);
        card.pose.degrees = step * kFanDegrees;
        drawFontQuizCard(painter, card);
    }
}

void FontQuizIntroView::paintEvent(QPaintEvent *)
{
    const FontQuizColors colors = fontQuizColors(isDarkDesktop());
    const Places where = places();
    QPainter painter(this);
    if (!m_isEmpty)
        paintFan(painter, where.fan);
    // The sentences may be of another direction than the window.
    painter.setLayoutDirection(m_sentence.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.setPen(colors.text);
    painter.setFont(titleFont());
    painter.drawText(
        where.title, int(Qt::AlignCenter) | Qt::TextDontClip,
        QFontMetrics(titleFont()).elidedText(title(), Qt::ElideRight, where.title.width()));
    painter.setPen(quietColor(colors.text, colors.ground, kSentenceAlpha));
    sentenceText().draw(painter, where.sentence, painter.layoutDirection());
}

} // namespace lorva
