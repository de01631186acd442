// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/GroupingNames.h"

#include "cli/Console.h"
#include "cli/Words.h"
#include "model/stores/OrganizationChanges.h"
#include "model/stores/OrganizationNames.h"

#include <QStringList>

#include <functional>

namespace lorva::cli {

namespace {

using Fits = std::function<bool(const GroupingName &)>;

std::vector<size_t> placesWhere(const std::vector<GroupingName> &groupings, const Fits &fits)
{
    std::vector<size_t> places;
    for (size_t place = 0; place < groupings.size(); ++place) {
        if (fits(groupings[place]))
            places.push_back(place);
    }
    return places;
}

QString idsOf(const std::vector<GroupingName> &groupings, const std::vector<size_t> &places)
{
    QStringList ids;
    for (const size_t place : places)
        ids.push_back(groupings[place].id);
    return listed(ids);
}

/// The strictest first; whoever copies an id means that one.
std::vector<Fits> waysToMean(const QString &typed)
{
    const QString cleaned = cleanedName(typed);
    const QString comparable = comparableName(cleaned);
    return {
        [=](const GroupingName &each) { return each.id == typed; },
        [=](const GroupingName &each) { return each.name == typed; },
        [=](const GroupingName &each) {
            return singleLine(each.name) == typed || (!cleaned.isEmpty() && each.name == cleaned);
        },
        [=](const GroupingName &each) {
            return comparableName(singleLine(each.name)) == comparableName(typed)
                || (!cleaned.isEmpty() && comparableName(each.name) == comparable);
        },
    };
}

} // namespace

Result<size_t> findGrouping(const std::vector<GroupingName> &groupings, const QString &typed,
                            const GroupingTexts &texts)
{
    for (const Fits &fits : waysToMean(typed)) {
        const std::vector<size_t> found = placesWhere(groupings, fits);
        if (found.size() == 1)
            return found.front();
        if (found.size() > 1)
            return failure(ErrorKind::invalidValue,
                           Texts::tr(texts.ambiguous).arg(quoted(typed), idsOf(groupings, found)));
    }
    return failure(ErrorKind::notFound, Texts::tr(texts.unknown).arg(quoted(typed)));
}

} // namespace lorva::cli
