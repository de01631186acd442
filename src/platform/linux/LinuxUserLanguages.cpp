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

/// The locale that asks for no language: texts stay as they are in the code.
bool isPlain(const QString &locale)
{
    return locale == QLatin1String("C") || locale == QLatin1String("POSIX");
}

} // namespace

QStringList userLanguages()
{
    const QString locale = messagesLocale();
    if (isPlain(locale))
        return {};
    const QStringList wanted = qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts)
        << locale;
    QStringList languages;
    for (const QString &each : wanted) {
        if (isPlain(each))
            return languages << QStringLiteral("en");
        languages << each;
    }
    return languages;
}

} // namespace lorva
