// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/onboarding/LetterScene.h"
#include "ui/onboarding/LetterSupply.h"

#include <QPainterPath>
#include <QRegion>

#include <chrono>
#include <memory>
#include <vector>

class QPainter;

namespace lorva {

/// The opaque ground of the welcome, following the desktop. Thread: main.
QColor welcomeGround(bool isDark);

/// The scene of the welcome from its first letter to its rest: which letters come when, where from,
/// how large and in which colour.
///
/// Time passes only in advance(). Owns the physics and the supply. Thread: main. Units: points.
class LetterFall
{
public:
    LetterFall(std::unique_ptr<LetterSupply> supply, QSize size);

    void resize(QSize size);
    void advance(std::chrono::nanoseconds time);
    /// All letters lie still, or it has taken as long as anyone likes to watch.
    bool isOver() const;
    /// Nothing moves and nothing comes any more.
    bool isAtRest() const;
    /// No further letters come.
    void endSupply() { m_supply.reset(); }
    /// No further letters come, and those in the air stay there.
    void freeze();
    /// All letters come and fall at once: takes seconds. For a picture.
    void settle();
    /// Letters are late.
    bool isWaiting() const { return m_supply && m_supply->isWaiting(); }
    int count() const { return int(m_letters.size()); }
    const LetterScene &scene() const { return m_scene; }

    /// What looks otherwise than at the last call.
    QRegion takeChanged();
    /// The letters in `exposed`.
    void paint(QPainter &painter, const QRegion &exposed, bool isDark) const;

private:
    struct Letter
    {
        QPainterPath outline;
        /// From its centre to what is farthest of it.
        double reach = 0;
        int color = 0;
        /// As it was at the last takeChanged().
        QTransform shown;
        bool wasShown = false;
    };

    double pointSize(int number) const;
    QRect rectOf(const QTransform &transform, const Letter &letter) const;
    void letIn(std::chrono::nanoseconds time);
    QPointF freePlace(QPointF at, double reach) const;
    void drop(const FallingLetter &letter);
    std::chrono::nanoseconds interval() const;

    LetterScene m_scene;
    /// Null when no further letters come.
    std::unique_ptr<LetterSupply> m_supply;
    QSize m_size;
    int m_wantedCount;
    double m_scale;
    std::vector<Letter> m_letters;
    bool m_isFrozen = false;
    std::chrono::nanoseconds m_now{0};
    std::chrono::nanoseconds m_nextLetter{0};
    std::chrono::nanoseconds m_firstLetter{0};
};

} // namespace lorva
