// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "cli/Texts.h"

#include <QString>
#include <QStringList>

namespace lorva::cli {

// What messages are put together from.

/// As every name stands in a message.
inline QString quoted(const QString &name)
{
    //: a name within a message, in the quotation marks of the language
    return Texts::tr("\"%1\"").arg(name);
}

/// The parts one after the other.
inline QString listed(const QStringList &parts)
{
    //: between the parts of a list
    return parts.join(Texts::tr(", "));
}

/// What is wrong with a file.
inline QString aboutFile(const FilePath &file, const QString &reason)
{
    //: a file, and what is wrong with it
    return Texts::tr("%1: %2").arg(file.displayText(), reason);
}

/// "1 family", "2 families".
inline QString families(qsizetype count)
{
    return Texts::tr("%n families", nullptr, int(count));
}

/// "1 font file", "2 font files".
inline QString fontFiles(qsizetype count)
{
    return Texts::tr("%n font files", nullptr, int(count));
}

} // namespace lorva::cli
