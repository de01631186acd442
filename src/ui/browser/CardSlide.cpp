// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/CardSlide.h"

#include <QWidget>

namespace lorva {

CardSlide::CardSlide(QObject *parent)
    : QObject(parent)
{
    m_animation.setDuration(kMilliseconds);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    connect(&m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &share) { step(share.toDouble()); });
    connect(&m_animation, &QVariantAnimation::finished, this, [this] { m_moves.clear(); });
}

void CardSlide::start(std::vector<Move> moves)
{
    stop();
    m_moves = std::move(moves);
    if (m_moves.empty())
        return;
    step(0);
    m_animation.start();
}

void CardSlide::stop()
{
    m_moves.clear();
    m_animation.stop();
}

void CardSlide::step(double share)
{
    for (const Move &move : m_moves)
        move.card->move(move.from + (move.to - move.from) * share);
}

} // namespace lorva
