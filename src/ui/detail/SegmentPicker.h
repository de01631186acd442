// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

namespace lorva {

/// Choices of which one is taken, as segments as far as there is room, the others in a menu.
struct SegmentPickerState
{
    QStringList visibleSegments;
    QStringList overflowSegments;
    QString selected;
    /// The user took another one.
    std::function<void(const QString &label)> onChange = {};
};

/// What the segments may take, in points.
struct SegmentRoom
{
    int width = 0;
    /// What the menu's button takes of it, if it is needed.
    int overflowButton = 0;
    /// Of the control around the segments.
    int padding = 0;
    /// Of each segment.
    std::function<int(const QString &label)> widthOf;
};

/// In their order, as many labels as fit; of those that do not all fit, as many as leave room for
/// the menu's button. The selected one is always a segment: it changes places with the last one
/// that fits, or with as many of the last ones as it takes. One segment there is in any room. An
/// unknown selection counts as the first label.
SegmentPickerState segmentsThatFit(const QStringList &labels, const QString &selected,
                                   const SegmentRoom &room);

} // namespace lorva
