// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/EditText.h"

#include "cli/Words.h"
#include "model/stores/DisplaySettingsStore.h"

namespace lorva::cli {

namespace {

/// "3 families joined, 1 family left"; empty for no change of members.
QString memberText(const GroupingChange &change)
{
    QStringList parts;
    if (!change.joined.empty())
        parts.push_back(QStringLiteral("%1 joined").arg(families(qsizetype(change.joined.size()))));
    if (!change.left.empty())
        parts.push_back(QStringLiteral("%1 left").arg(families(qsizetype(change.left.size()))));
    return parts.join(QStringLiteral(", "));
}

template <class Record>
QString nameOf(const std::vector<Record> &records, const QString &id)
{
    for (const Record &record : records) {
        if (record.id == id)
            return record.name;
    }
    return id;
}

QString groupingLine(const QString &noun, const GroupingChange &change, const QString &name)
{
    if (!change.nameAfter && change.nameBefore)
        return QStringLiteral("%1 %2 deleted").arg(noun, quoted(*change.nameBefore));
    if (!change.nameBefore && change.nameAfter)
        return QStringLiteral("%1 %2 created with %3")
            .arg(noun, quoted(*change.nameAfter), families(qsizetype(change.joined.size())));
    QStringList parts;
    if (change.nameBefore != change.nameAfter)
        parts.push_back(QStringLiteral("renamed from %1").arg(quoted(*change.nameBefore)));
    if (const QString members = memberText(change); !members.isEmpty())
        parts.push_back(members);
    return QStringLiteral("%1 %2: %3").arg(noun, quoted(name), parts.join(QStringLiteral(", ")));
}

QString overrideLine(const EntryChange &change)
{
    const QString family = quoted(change.key);
    if (!change.after)
        return QStringLiteral("family %1: of the foundry that its fonts name").arg(family);
    if (change.after->isEmpty())
        return QStringLiteral("family %1: of no foundry").arg(family);
    return QStringLiteral("family %1: of the foundry %2").arg(family, quoted(*change.after));
}

QString foundryNameLine(const EntryChange &change)
{
    return change.after
        ? QStringLiteral("foundry %1: called %2").arg(quoted(change.key), quoted(*change.after))
        : QStringLiteral("foundry %1: called by its own name").arg(quoted(change.key));
}

} // namespace

QStringList editLines(const OrganizationEdit &edit, const Organization &after)
{
    QStringList lines;
    for (const GroupingChange &change : edit.collections)
        lines.push_back(groupingLine(QStringLiteral("collection"), change,
                                     nameOf(after.collections, change.id)));
    for (const GroupingChange &change : edit.styleCategories)
        lines.push_back(groupingLine(QStringLiteral("style"), change,
                                     nameOf(after.styleCategories, change.id)));
    for (const EntryChange &change : edit.foundryOverrides)
        lines.push_back(overrideLine(change));
    for (const EntryChange &change : edit.foundryNames)
        lines.push_back(foundryNameLine(change));
    for (const QString &id : edit.dismissed)
        lines.push_back(QStringLiteral("foundry %1: hidden").arg(quoted(id)));
    for (const QString &id : edit.broughtBack)
        lines.push_back(QStringLiteral("foundry %1: shown again").arg(quoted(id)));
    return lines;
}

QString displaySettingsLine(const QString &key, const Organization &after)
{
    if (key == kSharedDisplaySettingsKey)
        return QStringLiteral("display settings of all fonts: taken in");
    const qsizetype idStart = displaySettingsKey(BrowserSource::collection({})).size();
    return QStringLiteral("display settings of collection %1: taken in")
        .arg(quoted(nameOf(after.collections, key.mid(idStart))));
}

} // namespace lorva::cli
