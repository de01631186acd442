// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextCarets.h"

#include <optional>
#include <utility>

namespace lorva {

/// Where the keyboard sends a caret. Left and right are as seen.
enum class CaretMove {
    left,
    right,
    wordLeft,
    wordRight,
    lineStart,
    lineEnd,
    up,
    down,
    textStart,
    textEnd
};

/// Leads a caret through a text that is set, and remembers at which x it goes up and down.
/// Thread: main. Units: points of the layout.
class CaretMotion
{
public:
    /// Up from the first line leads to the text's start, down from the last one to its end.
    TextPosition moved(const TextCarets &carets, TextPosition from, CaretMove move);
    /// Without Shift an arrow leads to one side of what is selected, not on from its caret.
    static TextPosition collapsed(const TextCarets &carets, int start, int end, bool toRight);
    /// The caret went some other way.
    void forget() { m_keptX.reset(); }

private:
    TextPosition vertically(const TextCarets &carets, TextPosition from, bool down);

    std::optional<double> m_keptX;
};

/// The grapheme cluster under a point, or nearest to it, by its first index. Where a line ends that
/// of its last one, or the line break's.
int clusterAt(const TextCarets &carets, QPointF point);

/// What a click, a double click and a triple click take.
enum class SelectionUnit { character, word, paragraph };

/// The unit around an index of `text`, whose carets these are; empty for characters.
std::pair<int, int> unitAt(const TextCarets &carets, QStringView text, int index,
                           SelectionUnit unit);

} // namespace lorva
