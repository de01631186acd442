// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QKeyEvent;

namespace lorva {

// Jumping through the cards by their first letters. Thread: any.

/// The letter of a key press, upper-cased: exactly one letter of any script, and no modifiers but
/// Shift and Caps Lock. Empty for all other keys.
QString jumpLetter(const QKeyEvent &event);

/// The first of the names that begins with the letter, in either case; −1 when none does.
int firstWithLetter(const QStringList &names, const QString &letter);

} // namespace lorva
