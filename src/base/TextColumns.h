// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace lorva {

// Text in the columns of a terminal, where the letters of East Asia are twice as wide as others and
// marks that combine with a letter take no room.

/// How many columns the text takes. Control characters count as none.
int displayWidth(QStringView text);

/// The text and as many spaces as it lacks to be so wide.
QString padded(const QString &text, int columns);

/// Lines of at most `columns`, broken at spaces, and between East Asian letters where their rules
/// let a line end; a word that is longer has its own line. At least one line.
QStringList wrapped(const QString &text, int columns);

/// Each line with one tab becomes a line of a table: what follows the tab begins in the same column
/// everywhere, which is `leastColumns` or as many as the longest beginning needs. Other lines stay.
QString alignedAtTabs(const QString &lines, int leastColumns);

} // namespace lorva
