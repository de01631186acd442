// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "organize/SidebarTree.h"

#include <vector>

namespace lorva {

/// Who holds the rows of a group and is told each step of a change before and after it is made.
class SidebarDifferenceSink
{
public:
    virtual ~SidebarDifferenceSink() = default;
    virtual std::vector<SidebarRow> &rows() = 0;
    virtual void aboutToRemove(int first, int last) = 0;
    virtual void removed() = 0;
    virtual void aboutToInsert(int first, int last) = 0;
    virtual void inserted() = 0;
    virtual void aboutToReorder() = 0;
    /// `newPlaces`: where each row has gone, by its old place.
    virtual void reordered(const std::vector<int> &newPlaces) = 0;
    /// Label, symbol or count of some rows between them.
    virtual void changed(int first, int last) = 0;
};

/// Makes the sink's rows equal to `wanted` (without its doubles) in as few steps as their order
/// allows; a row that stays is never removed. Thread: the sink's.
void applySidebarRows(SidebarDifferenceSink &sink, std::vector<SidebarRow> wanted);

} // namespace lorva
