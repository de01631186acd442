// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/WindowGeometry.h"

namespace lorva {

namespace {

/// Left free of the screen in each direction, both sides together.
constexpr int kScreenMargin = 40;

QRect centered(QSize size, const QRect &area)
{
    const QSize room = area.isEmpty() ? QSize(0, 0) : area.size();
    return {QPoint(area.x() + (room.width() - size.width()) / 2,
                   area.y() + (room.height() - size.height()) / 2),
            size};
}

} // namespace

QRect mainWindowFrame(const std::optional<QRect> &saved, const QRect &visibleFrame, QSize minimum,
                      QSize wanted)
{
    QSize size = wanted;
    if (saved)
        size = saved->size();
    else if (!visibleFrame.isEmpty())
        size = wanted.boundedTo(visibleFrame.size() - QSize(kScreenMargin, kScreenMargin));

    const QSize grown = size.expandedTo(minimum);
    if (saved && grown == size)
        return *saved;
    return centered(grown, visibleFrame);
}

} // namespace lorva
