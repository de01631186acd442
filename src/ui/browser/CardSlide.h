// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QVariantAnimation>

#include <vector>

class QWidget;

namespace lorva {

/// Lets cards that stand elsewhere than before slide there, so that the eye can follow.
///
/// Only the picture lags: what is pressed or selected goes by where the cards belong. Does not own
/// the cards; stop() before one of them dies or moves. Thread: main.
class CardSlide final : public QObject
{
    Q_OBJECT
public:
    static constexpr int kMilliseconds = 180;

    struct Move
    {
        QWidget *card = nullptr;
        QPoint from;
        QPoint to;
    };

    explicit CardSlide(QObject *parent);

    void start(std::vector<Move> moves);
    /// Leaves the cards where they are at the moment.
    void stop();
    bool isRunning() const { return !m_moves.empty(); }

private:
    void step(double share);

    QVariantAnimation m_animation;
    std::vector<Move> m_moves;
};

} // namespace lorva
