// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace lorva {

// What is told of one character. Thread: any.

/// The first code point of a text; 0 for an empty one, U+FFFD for half a surrogate pair.
char32_t firstScalar(QStringView text);
QString textOf(char32_t scalar);

/// "U+0041", "U+1F600".
QString codePointText(char32_t scalar);
/// "LATIN CAPITAL LETTER A"; its alias where it has no name of its own (controls, corrected names);
/// empty for one without either.
QString unicodeName(char32_t scalar);
/// "Letter, uppercase" (the general category, in words).
QString categoryText(char32_t scalar);
/// "C3 A9": its bytes in UTF-8.
QString utf8Text(char32_t scalar);
/// "&#xE9;".
QString htmlText(char32_t scalar);

} // namespace lorva
