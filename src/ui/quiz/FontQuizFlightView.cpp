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

QRect FontQuizFlightView::covered() const
{
    return m_card ? fontQuizCardRegion(m_card->pose) : QRect();
}

void FontQuizFlightView::setCard(std::optional<FontQuizShownCard> card)
{
    const QRect before = covered();
    m_card = std::move(card);
    update(before | covered());
}

/// One rectangle: pictures are drawn much faster into one than into several.
void FontQuizFlightView::setPose(const FontQuizPose &pose)
{
    const QRect before = covered();
    if (m_card)
        m_card->pose = pose;
    update(before | covered());
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
