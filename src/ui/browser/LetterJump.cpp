// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/LetterJump.h"

#include <QKeyEvent>

namespace lorva {

namespace {

/// Enough for any letter, lower-cased; the rest of a name need not be.
constexpr int kPrefixLength = 4;

} // namespace

QString jumpLetter(const QKeyEvent &event)
{
    // Caps Lock is no modifier to the toolkit.
    if ((event.modifiers() & ~Qt::ShiftModifier) != Qt::NoModifier)
        return {};
    const auto scalars = event.text().toUcs4();
    if (scalars.size() != 1 || !QChar::isLetter(scalars.front()))
        return {};
    // By scalar: "ß" would else become two letters.
    const char32_t upper = QChar::toUpper(scalars.front());
    return QString::fromUcs4(&upper, 1);
}

int firstWithLetter(const QStringList &names, const QString &letter)
{
    const QString prefix = letter.toLower();
    for (int index = 0; index < names.size(); ++index) {
        if (names.at(index).left(kPrefixLength).toLower().startsWith(prefix))
            return index;
    }
    return -1;
}

} // namespace lorva
