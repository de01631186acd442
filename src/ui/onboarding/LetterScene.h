// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QSizeF>
#include <QTransform>

#include <chrono>
#include <memory>
#include <vector>

namespace lorva {

/// Letters that fall into a window and pile up on its lower edge.
///
/// Owns the physics. Time passes only in advance(), in fixed steps, so that the same calls give the
/// same pile. Letters that have come to rest cost nothing. Always true: a letter that has left the
/// window at a side or below is dropped in again from above. Thread: any, one at a time. Units:
/// points, y down, the window's top left at the origin; radians, clockwise as seen.
class LetterScene
{
public:
    /// How a letter comes in.
    struct Entry
    {
        QPointF position;
        double angle = 0;
        QPointF velocityPerSecond = {};
        double spinPerSecond = 0;
    };

    explicit LetterScene(QSizeF size);
    ~LetterScene();

    /// Walls and floor move; what lies on the floor goes with it.
    void resize(QSizeF size);
    /// `parts`: of the letter around its origin, as convexParts() gives them; at least one. Gives
    /// the index of the letter.
    int add(const std::vector<QPolygonF> &parts, const Entry &entry);
    int count() const;
    /// Where the letter is now.
    QTransform transform(int index) const;
    /// Of the letter's parts, as it lies now.
    QRectF bounds(int index) const;

    /// Takes at most a few steps, whatever the time: after a pause the letters go on where they
    /// were.
    void advance(std::chrono::nanoseconds time);
    /// Nothing moves any more. True for a scene without letters.
    bool isAtRest() const;
    /// Lets the time pass that it takes to come to rest; takes seconds.
    void settle();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace lorva
