// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// At most `longest` UTF-16 units of `text`, never a part of what is read as one character, nor
/// white space at the end. Thread: any.
QString cutBetweenCharacters(const QString &text, qsizetype longest);

/// What two names have in common that are one name in different case, or in other code points for
/// the same letters. Accents count. Thread: any.
QString comparableName(const QString &name);

} // namespace lorva
