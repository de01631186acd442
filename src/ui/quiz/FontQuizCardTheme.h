// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <span>

namespace lorva {

/// The colours of one card.
struct FontQuizCardTheme
{
    QColor background;
    QColor foreground;

    bool operator==(const FontQuizCardTheme &) const = default;
};

/// Those that the cards of a deck take in turn: a strong one, then pale ones, so that neighbours
/// differ. The same on every desktop. Thread: any.
std::span<const FontQuizCardTheme> fontQuizCardThemes();

} // namespace lorva
