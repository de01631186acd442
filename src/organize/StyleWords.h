// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <span>

namespace lorva {

// What in the name of a family speaks for its category. All of it is in lower case but the known
// families. Thread: any.

std::span<const QStringView> sansWords();
/// Sans-serif in Chinese, Japanese and Korean.
std::span<const QStringView> gothicWords();
/// Serif in Chinese, Japanese and Korean. "Batang" is not among them, as it is also a part of other
/// words.
std::span<const QStringView> mingWords();
/// Chinese and Korean brush scripts.
std::span<const QStringView> brushWords();

/// Families without serifs whose names do not say so, as their makers write them.
std::span<const QStringView> knownSansFamilies();
/// Whether the name is that of a known family or begins with it.
bool isKnownSansFamily(QStringView lowerCasedName);

} // namespace lorva
