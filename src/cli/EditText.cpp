// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/EditText.h"

#include "cli/Texts.h"
#include "cli/Words.h"
#include "model/stores/DisplaySettingsStore.h"

namespace lorva::cli {

namespace {

/// What there is to say of one kind of grouping, for Texts::tr(). %1: its name.
struct EditTexts
{
    const char *deleted;
    /// %n: its families.
    const char *created;
    /// %2: the changes.
    const char *changed;
};

constexpr EditTexts kCollectionEdits{
    QT_TRANSLATE_NOOP("lorvactl", "collection %1 deleted"),
    QT_TRANSLATE_N_NOOP("lorvactl", "collection %1 created with %n families"),
    QT_TRANSLATE_NOOP("lorvactl", "collection %1: %2"),
};

constexpr EditTexts kStyleEdits{
    QT_TRANSLATE_NOOP("lorvactl", "style %1 deleted"),
    QT_TRANSLATE_N_NOOP("lorvactl", "style %1 created with %n families"),
    QT_TRANSLATE_NOOP("lorvactl", "style %1: %2"),
};

/// "3 families joined, 1 family left"; nothing for no change of members.
QStringList memberTexts(const GroupingChange &change)
{
    QStringList parts;
    if (!change.joined.empty())
        parts.push_back(Texts::tr("%n families joined", nullptr, int(change.joined.size())));
    if (!change.left.empty())
        parts.push_back(Texts::tr("%n families left", nullptr, int(change.left.size())));
    return parts;
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

QString groupingLine(const EditTexts &texts, const GroupingChange &change, const QString &name)
{
    if (!change.nameAfter && change.nameBefore)
        return Texts::tr(texts.deleted).arg(quoted(*change.nameBefore));
    if (!change.nameBefore && change.nameAfter)
        return Texts::tr(texts.created, nullptr, int(change.joined.size()))
            .arg(quoted(*change.nameAfter));
    QStringList parts;
    if (change.nameBefore != change.nameAfter)
        parts.push_back(Texts::tr("renamed from %1").arg(quoted(*change.nameBefore)));
    parts += memberTexts(change);
    return Texts::tr(texts.changed).arg(quoted(name), listed(parts));
}

QString overrideLine(const EntryChange &change)
{
    const QString family = quoted(change.key);
    if (!change.after)
        return Texts::tr("family %1: of the foundry that its fonts name").arg(family);
    if (change.after->isEmpty())
        return Texts::tr("family %1: of no foundry").arg(family);
    return Texts::tr("family %1: of the foundry %2").arg(family, quoted(*change.after));
}

QString foundryNameLine(const EntryChange &change)
{
    return change.after
        ? Texts::tr("foundry %1: called %2").arg(quoted(change.key), quoted(*change.after))
        : Texts::tr("foundry %1: called by its own name").arg(quoted(change.key));
}

} // namespace

QStringList editLines(const OrganizationEdit &edit, const Organization &after)
{
    QStringList lines;
    for (const GroupingChange &change : edit.collections)
        lines.push_back(
            groupingLine(kCollectionEdits, change, nameOf(after.collections, change.id)));
    for (const GroupingChange &change : edit.styleCategories)
        lines.push_back(
            groupingLine(kStyleEdits, change, nameOf(after.styleCategories, change.id)));
    for (const EntryChange &change : edit.foundryOverrides)
        lines.push_back(overrideLine(change));
    for (const EntryChange &change : edit.foundryNames)
        lines.push_back(foundryNameLine(change));
    for (const QString &id : edit.dismissed)
        lines.push_back(Texts::tr("foundry %1: hidden").arg(quoted(id)));
    for (const QString &id : edit.broughtBack)
        lines.push_back(Texts::tr("foundry %1: shown again").arg(quoted(id)));
    return lines;
}

QString displaySettingsLine(const QString &key, const Organization &after)
{
    if (key == kSharedDisplaySettingsKey)
        return Texts::tr("display settings of all fonts: taken in");
    const qsizetype idStart = displaySettingsKey(BrowserSource::collection({})).size();
    return Texts::tr("display settings of collection %1: taken in")
        .arg(quoted(nameOf(after.collections, key.mid(idStart))));
}

} // namespace lorva::cli
