// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// Tiles and piles are numbered 1 … 6; each stands for a style category.
inline constexpr int kFontQuizTiles = 6;

/// The category's id. Thread: any.
QString fontQuizCategoryID(int tile);
/// The name that the quiz shows for it. Thread: any.
QString fontQuizCategoryName(int tile);

} // namespace lorva
