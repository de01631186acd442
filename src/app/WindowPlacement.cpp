// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/WindowPlacement.h"

#include <algorithm>

namespace lorva {

namespace {

/// By which a window can be dragged back: a piece of its title bar.
constexpr int kHandleWidth = 96;
constexpr int kHandleHeight = 24;
constexpr int kLongestSide = 16384;

bool isWithinReach(const QRect &frame, const QRect &screen)
{
    // The title bar lies at, or just above, the upper edge.
    const QRect handle(frame.x(), frame.y(), frame.width(), kHandleHeight);
    const QRect seen = handle & screen;
    return seen.width() >= std::min(kHandleWidth, frame.width()) && seen.height() >= kHandleHeight;
}

qint64 distance(const QRect &frame, const QRect &screen)
{
    const QPoint way = frame.center() - screen.center();
    return qint64(way.x()) * way.x() + qint64(way.y()) * way.y();
}

/// A side that is too long begins at the screen's edge, so that the title bar is there.
QRect centredOn(QRect frame, const QRect &screen)
{
    frame.moveLeft(screen.x() + std::max(0, (screen.width() - frame.width()) / 2));
    frame.moveTop(screen.y() + std::max(0, (screen.height() - frame.height()) / 2));
    return frame;
}

} // namespace

std::optional<QRect> plausibleFrame(const std::optional<QRect> &saved)
{
    const bool isDamage = saved && std::max(saved->width(), saved->height()) > kLongestSide;
    return isDamage ? std::nullopt : saved;
}

QRect keptReachable(const QRect &frame, std::span<const QRect> screens)
{
    const auto reaches = [&](const QRect &screen) { return isWithinReach(frame, screen); };
    if (screens.empty() || std::ranges::any_of(screens, reaches))
        return frame;
    const auto nearest = std::ranges::min_element(
        screens, {}, [&](const QRect &screen) { return distance(frame, screen); });
    return centredOn(frame, *nearest);
}

} // namespace lorva
