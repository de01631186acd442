// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizFlightView.h"

#include "base/Trace.h"

#include <QPainter>

namespace lorva {

FontQuizFlightView::FontQuizFlightView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("FontQuizFlightView"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void FontQuizFlightView::updateCard()
{
    if (m_card)
        update(fontQuizCardRegion(m_card->pose));
}

void FontQuizFlightView::setCard(std::optional<FontQuizShownCard> card)
{
    updateCard();
    m_card = std::move(card);
    updateCard();
}

void FontQuizFlightView::setPose(const FontQuizPose &pose)
{
    updateCard();
    if (m_card)
        m_card->pose = pose;
    updateCard();
}

void FontQuizFlightView::paintEvent(QPaintEvent *)
{
    if (!m_card)
        return;
    const TraceStage stage("quiz: flight");
    QPainter painter(this);
    drawFontQuizCard(painter, *m_card);
}

} // namespace lorva
