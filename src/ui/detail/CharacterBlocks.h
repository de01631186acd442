// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/CharacterSet.h"

#include <QStringList>

#include <vector>

namespace lorva {

/// The groups in which the characters of a face are shown, in the order in which they are shown.
enum class Block { latin, digits, punctuationAndSymbols, kana, hangul, han, other };

struct CharacterGridSection
{
    Block block = Block::other;
    /// One character each, in display order.
    QStringList characters;

    bool operator==(const CharacterGridSection &) const = default;
};

// Thread: any, except where said.

/// U+0041 → latin, U+30FB → kana, U+00A0 → punctuationAndSymbols, U+0391 → other.
Block blockOf(char32_t scalar);
/// "Punctuation & Symbols".
QString blockName(Block block);

/// The upper-case ASCII letter that a Latin character is sorted by: its own or its base's; 0 for
/// one that has none (æ, ß, ı).
char32_t latinSortLetter(char32_t scalar);
/// Whether a cell is made for it: no control characters, no surrogates, nothing that only says how
/// others look, and nothing beyond plane 3.
bool isListed(char32_t scalar);

/// The characters of a face in their groups, none of them empty. Latin letters stand with those of
/// the same base, everything else in the order of Unicode. Work grows with the characters that the
/// set holds.
std::vector<CharacterGridSection> enumerateCharacters(const CharacterSet &characters);

} // namespace lorva
