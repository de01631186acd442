// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/UnreadableParts.h"

#include "cli/Texts.h"
#include "platform/PreferenceStore.h"

#include <algorithm>

namespace lorva::cli {

namespace {

bool isReplaced(const UnreadablePart &part, const OrganizationEdit &edit, bool hasDisplaySettings)
{
    if (part.part == OrganizationPart::displaySettings)
        return hasDisplaySettings;
    const std::vector<KnownPreference> &all = knownPreferences();
    return std::any_of(all.begin(), all.end(), [&](const KnownPreference &known) {
        return known.key == part.key && known.isChangedBy && known.isChangedBy(edit);
    });
}

/// Values that were kept before have the lower numbers.
QString lastKeptKey(const QString &key, const PreferenceStore &preferences)
{
    const QString first = key % QStringLiteral(".unreadable");
    QString last = first;
    for (int number = 2;; ++number) {
        const QString next = first % u'.' % QString::number(number);
        if (!preferences.contains(next))
            return last;
        last = next;
    }
}

} // namespace

std::vector<UnreadablePart> unreadableParts(const PreferenceStore &preferences)
{
    using Part = OrganizationPart;
    return unreadableParts(
        preferences, {Part::collections, Part::styles, Part::foundries, Part::displaySettings});
}

std::vector<UnreadablePart> unreadableParts(const PreferenceStore &preferences,
                                            std::initializer_list<OrganizationPart> parts)
{
    std::vector<UnreadablePart> unreadable;
    for (const KnownPreference &known : knownPreferences()) {
        if (std::find(parts.begin(), parts.end(), known.part) == parts.end())
            continue;
        if (const Result<void> checked = checkStored(known, preferences); !checked)
            unreadable.push_back({known.key, known.part, checked.error().detail});
    }
    return unreadable;
}

std::vector<UnreadablePart> replacedParts(const std::vector<UnreadablePart> &parts,
                                          const OrganizationEdit &edit, bool hasDisplaySettings)
{
    std::vector<UnreadablePart> replaced;
    std::copy_if(
        parts.begin(), parts.end(), std::back_inserter(replaced),
        [&](const UnreadablePart &part) { return isReplaced(part, edit, hasDisplaySettings); });
    return replaced;
}

QString textOf(const UnreadablePart &part)
{
    return Texts::tr("the preference %1 cannot be read (%2)").arg(part.key, part.reason);
}

QString textOfKept(const UnreadablePart &part, const PreferenceStore &preferences)
{
    return Texts::tr("%1; what stood there is kept as %2")
        .arg(textOf(part), lastKeptKey(part.key, preferences));
}

} // namespace lorva::cli
