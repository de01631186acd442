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

template <class Call>
void forEachField(const Call &call)
{
    using Settings = SourceDisplaySettings;
    call(&Settings::colorMode);
    call(&Settings::customForegroundColorHex);
    call(&Settings::customBackgroundColorHex);
    call(&Settings::logoImageData);
    call(&Settings::logoSizeRatio);
    call(&Settings::logoSpacing);
    call(&Settings::logoVisible);
    call(&Settings::browserPointSize);
    call(&Settings::browserFontWeight);
    call(&Settings::sampleText);
    call(&Settings::backgroundImageID);
    call(&Settings::backgroundImageUserFilename);
    call(&Settings::imageForegroundColorHex);
}

/// The settings but for those fields that `changed` has.
SourceDisplaySettings without(const SourceDisplaySettings &changed, SourceDisplaySettings settings)
{
    forEachField([&](auto field) {
        if (changed.*field)
            (settings.*field).reset();
    });
    return settings;
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
    , m_stored(store.all())
{
    resolve();
}

bool SourceDisplay::select(const BrowserSource &source)
{
    const QString key = displaySettingsKey(source);
    if (key == m_key)
        return false;
    writeHeldChanges();
    m_key = key;
    return resolve();
}

bool SourceDisplay::reload()
{
    m_stored = m_store.all();
    for (const Change &change : m_heldChanges)
        change(m_stored[m_key]);
    return resolve();
}

void SourceDisplay::setForThisRun(const SourceDisplaySettings &settings)
{
    m_forThisRun = settings;
    if (settings.browserPointSize)
        m_forThisRun.browserPointSize =
            std::clamp(*settings.browserPointSize, kMinimumPointSize, kMaximumPointSize);
    if (settings.browserFontWeight)
        m_forThisRun.browserFontWeight =
            std::clamp(*settings.browserFontWeight, qint64(kMinimumWeight), qint64(kMaximumWeight));
    m_changedInThisRun.clear();
    resolve();
}

void SourceDisplay::update(std::function<void(SourceDisplaySettings &)> change)
{
    // Made on nothing, the change says which of the start's values it takes the place of.
    change(m_changedInThisRun[m_key]);
    if (m_isHeld) {
        change(m_stored[m_key]);
        m_heldChanges.push_back(std::move(change));
    } else {
        m_stored = m_store.update(m_key, std::move(change));
    }
    resolve();
}

void SourceDisplay::setHeld(bool isHeld)
{
    m_isHeld = isHeld;
    if (!isHeld)
        writeHeldChanges();
}

void SourceDisplay::writeHeldChanges()
{
    if (m_heldChanges.empty())
        return;
    m_stored = m_store.update(
        m_key, [changes = std::exchange(m_heldChanges, {})](SourceDisplaySettings &own) {
            for (const Change &change : changes)
                change(own);
        });
}

void SourceDisplay::reset()
{
    m_forThisRun = {};
    m_changedInThisRun.clear();
    update([](SourceDisplaySettings &own) { own = {}; });
}

bool SourceDisplay::resolve()
{
    DisplayValues values;
    for (const QString &key : {kSharedDisplaySettingsKey, m_key}) {
        if (const auto found = m_stored.find(key); found != m_stored.end())
            take(values, found->second);
    }
    SourceDisplaySettings forThisRun = m_forThisRun;
    for (const QString &key : {kSharedDisplaySettingsKey, m_key}) {
        if (const auto found = m_changedInThisRun.find(key); found != m_changedInThisRun.end())
            forThisRun = without(found->second, std::move(forThisRun));
    }
    take(values, forThisRun);
    return std::exchange(m_values, values) != values;
}

} // namespace lorva
