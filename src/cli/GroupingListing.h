// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Json.h"
#include "cli/Console.h"
#include "model/records/RecordsJson.h"

namespace lorva::cli {

/// A JSON array, or one line each: the name, a tab, the number of families.
template <class Record>
void printGroupings(const std::vector<Record> &groupings, bool isJson)
{
    if (isJson)
        return print(QByteArray(encodeJson(groupings) + '\n'));
    for (const Record &each : groupings)
        printText(QStringLiteral("%1\t%2\n")
                      .arg(singleLine(each.name), QString::number(each.familyNames.size())));
}

/// A JSON object, or its families, one line each.
template <class Record>
void printGrouping(const Record &grouping, bool isJson)
{
    if (isJson)
        return print(QByteArray(encodeJson(grouping) + '\n'));
    for (const QString &name : grouping.familyNames)
        printText(QString(singleLine(name) + u'\n'));
}

} // namespace lorva::cli
