// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCardView.h"

#include "base/Trace.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPaintEvent>

namespace lorva {

namespace {

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *view = qobject_cast<FontQuizCardView *>(object);
    return view ? new QAccessibleWidget(view, QAccessible::Graphic) : nullptr;
}

void installAccessibleFactory()
{
    [[maybe_unused]] static const bool once = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

} // namespace

FontQuizCardView::FontQuizCardView(QWidget *parent)
    : FocusRinged(parent)
{
    installAccessibleFactory();
    setObjectName(QStringLiteral("FontQuizCardView"));
    setFocusPolicy(Qt::StrongFocus);
}

void FontQuizCardView::setCards(std::vector<FontQuizShownCard> cards)
{
    m_cards = std::move(cards);
    update();
}

FontQuizCardParts FontQuizCardView::shownParts() const
{
    const bool hasPicture = !m_cards.empty() && m_cards.front().picture;
    return hasPicture ? m_cards.front().picture->parts : FontQuizCardParts();
}

void FontQuizCardView::paintEvent(QPaintEvent *event)
{
    const TraceStage stage("quiz: cards");
    QPainter painter(this);
    painter.translate(-pos());
    drawFontQuizCards(painter, m_cards, event->region().translated(pos()));
    if (!hasFocusRing() || m_cards.empty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const FontQuizPose &pose = m_cards.front().pose;
    drawFocusRing(painter, pose.bounds(0), kFontQuizCardRadius * pose.scale);
}

} // namespace lorva
