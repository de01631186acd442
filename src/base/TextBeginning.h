// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>

namespace lorva {

/// The longest beginning of at most `units` UTF-16 units that does not end in half a surrogate
/// pair. Thread: any.
inline QString textBeginning(const QString &text, qsizetype units)
{
    if (text.size() <= units)
        return text;
    const bool cutsPair = units > 0 && text[units - 1].isHighSurrogate();
    return text.left(std::max<qsizetype>(cutsPair ? units - 1 : units, 0));
}

} // namespace lorva
