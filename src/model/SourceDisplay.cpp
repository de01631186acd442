// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/SourceDisplay.h"

#include "model/stores/DisplaySettingsStore.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

std::optional<double> within(std::optional<double> number, double least, double most)
{
    if (!number || !std::isfinite(*number) || *number < least || *number > most)
        return std::nullopt;
    return number;
}

std::optional<QString> validColor(const std::optional<QString> &text)
{
    return text ? colorHex(*text) : std::nullopt;
}

/// Only what makes sense.
SourceDisplaySettings valid(SourceDisplaySettings settings)
{
    settings.customForegroundColorHex = validColor(settings.customForegroundColorHex);
    settings.customBackgroundColorHex = validColor(settings.customBackgroundColorHex);
    settings.imageForegroundColorHex = validColor(settings.imageForegroundColorHex);
    settings.browserPointSize = within(settings.browserPointSize, SourceDisplay::kMinimumPointSize,
                                       SourceDisplay::kMaximumPointSize);
    if (!SourceDisplay::isLogoSizeRatio(settings.logoSizeRatio.value_or(0)))
        settings.logoSizeRatio.reset();
    if (!SourceDisplay::isLogoSpacing(settings.logoSpacing.value_or(-1)))
        settings.logoSpacing.reset();
    const qint64 weight = settings.browserFontWeight.value_or(0);
    if (weight < qint64(SourceDisplay::kMinimumWeight)
        || weight > qint64(SourceDisplay::kMaximumWeight))
        settings.browserFontWeight.reset();
    return settings;
}

template <class Value, class Stored>
void take(Value &value, const std::optional<Stored> &stored)
{
    if (stored)
        value = Value(*stored);
}

void takeText(std::optional<QString> &value, const std::optional<QString> &stored)
{
    if (stored)
        value = stored->isEmpty() ? std::nullopt : stored;
}

void take(DisplayValues &values, const SourceDisplaySettings &given)
{
    const SourceDisplaySettings settings = valid(given);
    take(values.colorMode, settings.colorMode);
    take(values.customForegroundColorHex, settings.customForegroundColorHex);
    take(values.customBackgroundColorHex, settings.customBackgroundColorHex);
    take(values.logoImageData, settings.logoImageData);
    take(values.logoSizeRatio, settings.logoSizeRatio);
    take(values.logoSpacing, settings.logoSpacing);
    take(values.logoVisible, settings.logoVisible);
    take(values.browserPointSize, settings.browserPointSize);
    take(values.browserFontWeight, settings.browserFontWeight);
    take(values.sampleText, settings.sampleText);
    takeText(values.backgroundImageID, settings.backgroundImageID);
    takeText(values.backgroundImageUserFilename, settings.backgroundImageUserFilename);
    take(values.imageForegroundColorHex, settings.imageForegroundColorHex);
}

template <class Value>
void forgetChanged(std::optional<Value> &forThisRun, const std::optional<Value> &before,
                   const std::optional<Value> &after)
{
    if (after != before)
        forThisRun.reset();
}

/// What the user has changed is no longer what the program was started with.
void forgetChanged(SourceDisplaySettings &forThisRun, const SourceDisplaySettings &before,
                   const SourceDisplaySettings &after)
{
    forgetChanged(forThisRun.colorMode, before.colorMode, after.colorMode);
    forgetChanged(forThisRun.browserPointSize, before.browserPointSize, after.browserPointSize);
    forgetChanged(forThisRun.browserFontWeight, before.browserFontWeight, after.browserFontWeight);
    forgetChanged(forThisRun.sampleText, before.sampleText, after.sampleText);
}

} // namespace

std::optional<QString> colorHex(const QString &text)
{
    static const QRegularExpression kForm(QStringLiteral("\\A#[0-9A-Fa-f]{6}\\z"));
    if (!kForm.match(text).hasMatch())
        return std::nullopt;
    return text.toUpper();
}

SourceDisplay::SourceDisplay(DisplaySettingsStore &store, const BrowserSource &source)
    : m_store(store)
    , m_key(displaySettingsKey(source))
{
    resolve();
}

bool SourceDisplay::select(const BrowserSource &source)
{
    const QString key = displaySettingsKey(source);
    if (key == m_key)
        return false;
    m_key = key;
    return resolve();
}

bool SourceDisplay::reload()
{
    return resolve();
}

void SourceDisplay::setForThisRun(const SourceDisplaySettings &settings)
{
    m_forThisRun = settings;
    resolve();
}

void SourceDisplay::update(std::function<void(SourceDisplaySettings &)> change)
{
    // The change says by what it does which of the start's values it takes the place of.
    SourceDisplaySettings after;
    change(after);
    forgetChanged(m_forThisRun, {}, after);
    m_store.update(m_key, std::move(change));
    resolve();
}

bool SourceDisplay::resolve()
{
    const std::map<QString, SourceDisplaySettings> stored = m_store.all();
    DisplayValues values;
    for (const QString &key : {kSharedDisplaySettingsKey, m_key}) {
        if (const auto found = stored.find(key); found != stored.end())
            take(values, found->second);
    }
    take(values, m_forThisRun);
    return std::exchange(m_values, values) != values;
}

} // namespace lorva
