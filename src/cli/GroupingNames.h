// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "cli/GroupingTexts.h"

#include <QString>

#include <vector>

namespace lorva::cli {

/// A collection, style category or foundry, to be found by what somebody typed.
struct GroupingName
{
    QString id;
    QString name;
};

template <class Record>
std::vector<GroupingName> groupingNames(const std::vector<Record> &records)
{
    std::vector<GroupingName> names;
    names.reserve(records.size());
    for (const Record &record : records)
        names.push_back({record.id, record.name});
    return names;
}

/// The place of the one that is meant: by its id, else by its name, else by its name as lorvactl
/// prints it or as it would be stored, else by its name in another case. Fails with notFound for
/// none, and with invalidValue for several, whose ids the error lists.
Result<size_t> findGrouping(const std::vector<GroupingName> &groupings, const QString &typed,
                            const GroupingTexts &texts);

} // namespace lorva::cli
