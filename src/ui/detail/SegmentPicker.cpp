// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/SegmentPicker.h"

#include <algorithm>

namespace lorva {

namespace {

int widthOf(const QStringList &labels, const SegmentRoom &room)
{
    int width = room.padding;
    for (const QString &label : labels)
        width += room.widthOf(label);
    return width;
}

/// How many of the first labels fit.
qsizetype fittingCount(const QStringList &labels, const SegmentRoom &room, int width)
{
    int left = width - room.padding;
    qsizetype count = 0;
    while (count < labels.size() && (left -= room.widthOf(labels[count])) >= 0)
        ++count;
    return count;
}

} // namespace

SegmentPickerState segmentsThatFit(const QStringList &labels, const QString &selected,
                                   const SegmentRoom &room)
{
    SegmentPickerState state;
    if (labels.isEmpty())
        return state;
    state.selected = labels.contains(selected) ? selected : labels.front();
    if (fittingCount(labels, room, room.width) == labels.size()) {
        state.visibleSegments = labels;
        return state;
    }
    const int width = room.width - room.overflowButton;
    state.visibleSegments = labels.mid(0, fittingCount(labels, room, width));
    if (!state.visibleSegments.contains(state.selected)) {
        do {
            if (!state.visibleSegments.isEmpty())
                state.visibleSegments.removeLast();
        } while (!state.visibleSegments.isEmpty()
                 && widthOf(state.visibleSegments, room) + room.widthOf(state.selected) > width);
        state.visibleSegments.append(state.selected);
    }
    std::ranges::copy_if(
        labels, std::back_inserter(state.overflowSegments),
        [&](const QString &label) { return !state.visibleSegments.contains(label); });
    return state;
}

} // namespace lorva
