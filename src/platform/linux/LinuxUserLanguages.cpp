// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/UserLanguages.h"

namespace lorva {

namespace {

/// POSIX: the first of these that is set and not empty names the locale of messages.
QString messagesLocale()
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            return value;
    }
    return QStringLiteral("C");
}

} // namespace

QStringList userLanguages()
{
    const QString locale = messagesLocale();
    if (locale == QLatin1String("C") || locale == QLatin1String("POSIX"))
        return {};
    return qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts) << locale;
}

} // namespace lorva
