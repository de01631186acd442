// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/PreferenceKeys.h"
#include "cli/ReportSections.h"
#include "model/records/Activation.h"
#include "model/records/RecordsJson.h"
#include "model/SourceDisplay.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/WindowFrameStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>

#include <algorithm>

namespace lorva::cli {

namespace {

using Entries = std::vector<ReportEntry>;
using Rows = PreferenceLook::Rows;

const QString kPrefix = QStringLiteral("vantrel.merid.");
const QString kKeptMark = QStringLiteral(".unreadable");
const QString kLogo = QStringLiteral("vantrel.merid.logo");
const QString kDisplaySettings = QStringLiteral("vantrel.merid.displaySettings");

QString damaged()
{
    return QStringLiteral("damaged");
}

/// What a value means or how much it holds, never a text out of it: that may be anything.
struct Contents
{
    const KnownPreference &known;

    ReportValue operator()(bool value) const { return value; }
    ReportValue operator()(const QStringList &texts) const { return qint64(texts.size()); }
    ReportValue operator()(const QHash<QString, QString> &texts) const
    {
        return qint64(texts.size());
    }
    ReportValue operator()(const QByteArray &json) const
    {
        if (known.key == kLogo)
            return QStringLiteral("set");
        const QJsonDocument document = QJsonDocument::fromJson(json);
        return qint64(document.isArray() ? document.array().size() : document.object().size());
    }
    ReportValue operator()(const QString &text) const
    {
        if (const std::optional<InstallMethod> method = installMethodFromName(text))
            return storedName(*method);
        const std::optional<QRect> frame = windowFrameFromText(text);
        return frame ? QStringLiteral("%1 by %2").arg(frame->width()).arg(frame->height())
                     : damaged();
    }
};

ReportValue contents(const KnownPreference &known, const Rows &rows)
{
    const auto row = rows.find(known.key);
    if (row == rows.end())
        return NothingThere{};
    if (!describeStored(known, row->second))
        return damaged();
    return std::visit(Contents{known}, *preferenceOfRow(row->second));
}

bool isKnown(const QString &key)
{
    const std::vector<KnownPreference> &all = knownPreferences();
    return std::any_of(all.begin(), all.end(),
                       [&](const KnownPreference &each) { return each.key == key; });
}

ReportSection preferenceSection(const Rows &rows)
{
    Entries entries;
    for (const KnownPreference &known : knownPreferences())
        entries.push_back({known.key.mid(kPrefix.size()), contents(known, rows)});
    qint64 kept = 0;
    qint64 unknown = 0;
    for (const auto &[key, row] : rows) {
        const bool isKept = key.contains(kKeptMark);
        kept += isKept ? 1 : 0;
        unknown += isKept || isKnown(key) ? 0 : 1;
    }
    entries.push_back({QStringLiteral("keptUnreadable"), kept});
    entries.push_back({QStringLiteral("unknownKeys"), unknown});
    return {"preferences", std::move(entries)};
}

template <class T>
ReportValue number(const std::optional<T> &value)
{
    return value ? ReportValue(*value) : ReportValue(NothingThere{});
}

ReportValue color(const std::optional<QString> &text)
{
    if (!text)
        return NothingThere{};
    return colorHex(*text).value_or(damaged());
}

template <class T>
ReportValue whetherSet(const std::optional<T> &value)
{
    return value ? ReportValue(QStringLiteral("set")) : ReportValue(NothingThere{});
}

ReportValue colorMode(const std::optional<ColorMode> &mode)
{
    if (!mode)
        return NothingThere{};
    switch (*mode) {
    case ColorMode::black:
        return QStringLiteral("black");
    case ColorMode::custom:
        return QStringLiteral("custom");
    case ColorMode::image:
        return QStringLiteral("image");
    case ColorMode::white:
        break;
    }
    return QStringLiteral("white");
}

ReportValue logoBytes(const SourceDisplaySettings &display)
{
    return display.logoImageData ? ReportValue(qint64(display.logoImageData->size()))
                                 : ReportValue(NothingThere{});
}

Entries displayEntries(const SourceDisplaySettings &display)
{
    return {{QStringLiteral("colorMode"), colorMode(display.colorMode)},
            {QStringLiteral("customForeground"), color(display.customForegroundColorHex)},
            {QStringLiteral("customBackground"), color(display.customBackgroundColorHex)},
            {QStringLiteral("imageForeground"), color(display.imageForegroundColorHex)},
            {QStringLiteral("builtInBackground"), whetherSet(display.backgroundImageID)},
            {QStringLiteral("ownBackground"), whetherSet(display.backgroundImageUserFilename)},
            {QStringLiteral("pointSize"), number(display.browserPointSize)},
            {QStringLiteral("weight"), number(display.browserFontWeight)},
            {QStringLiteral("sampleText"), whetherSet(display.sampleText)},
            {QStringLiteral("logoBytes"), logoBytes(display)},
            {QStringLiteral("logoSizeRatio"), number(display.logoSizeRatio)},
            {QStringLiteral("logoSpacing"), number(display.logoSpacing)},
            {QStringLiteral("logoVisible"), number(display.logoVisible)}};
}

/// The settings that all sources share, and how many have settings of their own.
ReportSection displaySection(const Rows &rows)
{
    using Settings = std::map<QString, SourceDisplaySettings>;
    const auto row = rows.find(kDisplaySettings);
    Settings all;
    if (row != rows.end()) {
        const std::optional<PreferenceValue> value = preferenceOfRow(row->second);
        if (const auto *const json = value ? std::get_if<QByteArray>(&*value) : nullptr)
            all = decodeJson<Settings>(*json).value_or(Settings());
    }
    const auto shared = all.find(kSharedDisplaySettingsKey);
    const bool hasShared = shared != all.end();
    Entries entries = displayEntries(hasShared ? shared->second : SourceDisplaySettings());
    entries.push_back(
        {QStringLiteral("sourcesWithTheirOwn"), qint64(all.size()) - (hasShared ? 1 : 0)});
    return {"display", std::move(entries)};
}

} // namespace

std::vector<ReportSection> settingsSections(const PreferenceLook &preferences)
{
    const Rows rows = preferences.rows.value_or(Rows());
    return {preferenceSection(rows), displaySection(rows)};
}

} // namespace lorva::cli
