// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/GroupingNames.h"

#include <QStringList>

#include <optional>

namespace lorva::cli {

namespace {

template <class Fits>
std::vector<size_t> placesWhere(const std::vector<GroupingName> &groupings, Fits fits)
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
    return ids.join(QStringLiteral(", "));
}

} // namespace

QString withoutCase(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

Result<size_t> findGrouping(const std::vector<GroupingName> &groupings, const QString &typed,
                            const QString &noun)
{
    const QString folded = withoutCase(typed);
    std::vector<size_t> found =
        placesWhere(groupings, [&](const GroupingName &each) { return each.name == typed; });
    if (found.empty())
        found = placesWhere(groupings, [&](const GroupingName &each) { return each.id == typed; });
    if (found.empty())
        found = placesWhere(
            groupings, [&](const GroupingName &each) { return withoutCase(each.name) == folded; });
    if (found.empty())
        return failure(ErrorKind::notFound,
                       QStringLiteral("there is no %1 \"%2\"").arg(noun, typed));
    if (found.size() > 1)
        return failure(ErrorKind::invalidValue,
                       QStringLiteral("there is more than one %1 \"%2\"; their ids: %3")
                           .arg(noun, typed, idsOf(groupings, found)));
    return found.front();
}

} // namespace lorva::cli
