// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace lorva {

/// The text ends as a sentence does, of Western or East Asian languages. Thread: any.
inline bool endsSentence(QStringView text)
{
    constexpr QStringView kEnds = u".!?…。！？";
    return !text.isEmpty() && kEnds.contains(text.back());
}

} // namespace lorva
