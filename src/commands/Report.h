// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace lorva {

/// A list to be looked at, as a value: what failed, what was done. Shown by whoever has a window.
struct Report
{
    struct Row
    {
        QString title;
        /// Below the title, more quietly; empty for nothing.
        QString detail;
        /// At the end of the title's line, a time for instance.
        QString trailing = {};
        bool operator==(const Row &) const = default;
    };

    QString title;
    /// Below the title; empty for nothing.
    QString body;
    std::vector<Row> rows;
    /// Stands in for rows when there are none.
    QString emptyText = {};
    /// Everything as text, for the clipboard; empty: not offered.
    QString copyText = {};
    /// The button that saves the list to a file; empty: not offered.
    QString exportLabel = {};
    /// The name that is offered for that file; empty: the title's, as a table.
    QString exportName = {};

    bool operator==(const Report &) const = default;
};

} // namespace lorva
