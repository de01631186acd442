// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva::cli {

// What messages are put together from.

/// As every name stands in a message.
inline QString quoted(const QString &name)
{
    return QStringLiteral("\"%1\"").arg(name);
}

/// "1 family", "2 families".
inline QString families(qsizetype count)
{
    return count == 1 ? QStringLiteral("1 family") : QStringLiteral("%1 families").arg(count);
}

/// "1 font file", "2 font files".
inline QString fontFiles(qsizetype count)
{
    return count == 1 ? QStringLiteral("1 font file") : QStringLiteral("%1 font files").arg(count);
}

} // namespace lorva::cli
