// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonPlace.h"

#include "base/FilePath.h"

namespace lorva {

namespace {

bool isIdentifier(std::string_view key)
{
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                          "0123456789_";
    return !key.empty() && key.size() <= 60
        && key.find_first_not_of(kLetters) == std::string_view::npos;
}

} // namespace

QString placeOfKey(std::string_view key)
{
    const QByteArray bytes(key.data(), qsizetype(key.size()));
    if (isIdentifier(key))
        return QString::fromLatin1(bytes);
    return QLatin1String("[\"") + FilePath(bytes).displayText().left(60) + QLatin1String("\"]");
}

QString joinedPlace(const QString &outer, const QString &inner)
{
    if (inner.isEmpty() || inner.startsWith(u'['))
        return outer + inner;
    return outer + u'.' + inner;
}

} // namespace lorva
