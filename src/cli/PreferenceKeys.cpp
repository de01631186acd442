// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/PreferenceKeys.h"

#include "cli/Texts.h"
#include "install/WatchedFolder.h"
#include "model/records/RecordsJson.h"
#include "platform/PreferenceStore.h"

namespace lorva::cli {

namespace {

QString counted(qsizetype count)
{
    return Texts::tr("%n entries", nullptr, int(count));
}

template <class T>
Result<QString> describeJson(const PreferenceValue &value)
{
    const Result<T> decoded = decodeJson<T>(std::get<QByteArray>(value));
    if (!decoded)
        return tl::unexpected(decoded.error());
    if constexpr (requires { decoded->size(); })
        return counted(qsizetype(decoded->size()));
    else
        return Texts::tr("readable");
}

template <class T>
Result<QString> describeCount(const PreferenceValue &value)
{
    return counted(std::get<T>(value).size());
}

Result<QString> describeText(const PreferenceValue &value)
{
    return std::get<QString>(value);
}

Result<QString> describeBoolean(const PreferenceValue &value)
{
    return std::get<bool>(value) ? QStringLiteral("true") : QStringLiteral("false");
}

/// Whatever else stands there counts as no choice.
Result<QString> describeMethod(const PreferenceValue &value)
{
    const QString &name = std::get<QString>(value);
    if (installMethodFromName(name))
        return name;
    return failure(ErrorKind::invalidValue, Texts::tr("neither copy nor register"));
}

/// What the store holds under the key, if it is of the kind that is expected there.
std::optional<PreferenceValue> heldValue(const KnownPreference &known,
                                         const PreferenceStore &preferences)
{
    const auto value = [](const auto &held) {
        return held ? std::optional<PreferenceValue>(*held) : std::nullopt;
    };
    if (known.kind == "data")
        return value(preferences.data(known.key));
    if (known.kind == "stringArray")
        return value(preferences.stringArray(known.key));
    if (known.kind == "stringDictionary")
        return value(preferences.stringDictionary(known.key));
    if (known.kind == "boolean")
        return value(preferences.boolean(known.key));
    return value(preferences.string(known.key));
}

tl::unexpected<Error> otherKind(const KnownPreference &known)
{
    return failure(ErrorKind::typeMismatch,
                   Texts::tr("not a whole value of kind %1").arg(QString::fromLatin1(known.kind)));
}

} // namespace

const std::vector<KnownPreference> &knownPreferences()
{
    using Dictionary = QHash<QString, QString>;
    using Settings = std::map<QString, SourceDisplaySettings>;
    using Part = OrganizationPart;
    static const std::vector<KnownPreference> kKnown{
        {"vantrel.merid.collections", "data", Part::collections,
         describeJson<std::vector<FontCollectionRecord>>,
         [](const OrganizationEdit &edit) { return !edit.collections.empty(); }},
        {"vantrel.merid.styles", "data", Part::styles,
         describeJson<std::vector<FontStyleCategoryRecord>>,
         [](const OrganizationEdit &edit) { return !edit.styleCategories.empty(); }},
        {"vantrel.merid.displaySettings", "data", Part::displaySettings, describeJson<Settings>},
        {"vantrel.merid.dismissedFoundries", "stringArray", Part::foundries,
         describeCount<QStringList>,
         [](const OrganizationEdit &edit) {
             return !edit.dismissed.isEmpty() || !edit.broughtBack.isEmpty();
         }},
        {"vantrel.merid.foundryOverrides", "stringDictionary", Part::foundries,
         describeCount<Dictionary>,
         [](const OrganizationEdit &edit) { return !edit.foundryOverrides.empty(); }},
        {"vantrel.merid.foundryNameOverrides", "stringDictionary", Part::foundries,
         describeCount<Dictionary>,
         [](const OrganizationEdit &edit) { return !edit.foundryNames.empty(); }},
        {"vantrel.merid.fontInstallations", "data", Part::activation,
         describeJson<std::map<QString, QString>>},
        {"vantrel.merid.lorvaRegisteredURLs", "stringArray", Part::activation,
         describeCount<QStringList>},
        {"vantrel.merid.fontOrigins", "stringDictionary", Part::activation,
         describeCount<Dictionary>},
        {"vantrel.merid.defaultInstallMethod", "string", Part::activation, describeMethod},
        {"vantrel.merid.watchedFolders", "data", Part::watchedFolders,
         describeJson<std::vector<WatchedFolder>>},
        {"vantrel.merid.collapsedSidebarGroups", "stringArray", Part::none,
         describeCount<QStringList>},
        {"vantrel.merid.stylesClassified.v3", "boolean", Part::none, describeBoolean},
        {"vantrel.merid.stylesClassified.v2", "boolean", Part::none, describeBoolean},
        {"vantrel.merid.logo", "data", Part::none, describeJson<LogoConfiguration>},
        {"vantrel.merid.hasCompletedOnboarding", "boolean", Part::none, describeBoolean},
        {"vantrel.merid.hasSeenQuizIntro", "boolean", Part::none, describeBoolean},
        {"vantrel.merid.hideQuizPromoInSidebar", "boolean", Part::none, describeBoolean},
        {"vantrel.merid.windowFrame.LorvaMainWindow", "string", Part::none, describeText},
    };
    return kKnown;
}

Result<QString> describeStored(const KnownPreference &known, const PreferenceRow &row)
{
    const std::optional<PreferenceValue> value = preferenceOfRow(row);
    if (!value || row.kind != known.kind)
        return otherKind(known);
    return known.describe(*value);
}

Result<void> checkStored(const KnownPreference &known, const PreferenceStore &preferences)
{
    if (!preferences.contains(known.key))
        return {};
    const std::optional<PreferenceValue> value = heldValue(known, preferences);
    if (!value)
        return otherKind(known);
    const Result<QString> described = known.describe(*value);
    if (!described)
        return tl::unexpected(described.error());
    return {};
}

} // namespace lorva::cli
