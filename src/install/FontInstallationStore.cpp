// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontInstallationStore.h"

#include "model/records/RecordsJson.h"
#include "model/stores/StoredValue.h"

namespace lorva {

namespace {

using StoredMethods = std::map<QString, QString>;
using StoredOrigins = QHash<QString, QString>;

/// Nothing for a text that names no file: only whole paths may reach the file system.
std::optional<FilePath> storedPath(const QString &text)
{
    if (!text.startsWith(u'/') || text.contains(QChar::Null))
        return std::nullopt;
    return FilePath::fromText(text);
}

QString pathText(const FilePath &path)
{
    return QString::fromUtf8(path.bytes());
}

void changeMethods(PreferenceStore &defaults, const QString &key,
                   const std::map<QString, std::optional<InstallMethod>> &changes)
{
    const auto stored = storedJson<StoredMethods>(defaults, key);
    StoredMethods methods = stored.value_or(StoredMethods());
    const StoredMethods before = methods;
    for (const auto &[family, method] : changes) {
        if (method)
            methods[family] = storedName(*method);
        else
            methods.erase(family);
    }
    if (methods != before)
        storeJson(defaults, key, methods, storedState(stored.has_value()));
}

void changeRegisteredURLs(PreferenceStore &defaults, const QString &key,
                          const std::map<FilePath, bool> &changes)
{
    const std::optional<QStringList> stored = defaults.stringArray(key);
    const QStringList list = stored.value_or(QStringList());
    std::set<QString> paths(list.begin(), list.end());
    const std::set<QString> before = paths;
    for (const auto &[path, isRegistered] : changes) {
        if (!path.isUtf8())
            continue;
        if (isRegistered)
            paths.insert(pathText(path));
        else
            paths.erase(pathText(path));
    }
    if (paths == before)
        return;
    if (!stored)
        defaults.keepUnreadable(key);
    defaults.setStringArray(key, QStringList(paths.begin(), paths.end()));
}

void changeOrigins(PreferenceStore &defaults, const QString &key,
                   const std::map<FilePath, std::optional<FilePath>> &changes)
{
    const std::optional<StoredOrigins> stored = defaults.stringDictionary(key);
    StoredOrigins origins = stored.value_or(StoredOrigins());
    const StoredOrigins before = origins;
    for (const auto &[copy, source] : changes) {
        if (!copy.isUtf8())
            continue;
        // A source that cannot be written down is at least not the one that was.
        if (source && source->isUtf8())
            origins.insert(pathText(copy), pathText(*source));
        else
            origins.remove(pathText(copy));
    }
    if (origins == before)
        return;
    if (!stored)
        defaults.keepUnreadable(key);
    defaults.setStringDictionary(key, origins);
}

std::optional<InstallMethod> storedDefaultMethod(const PreferenceStore &defaults,
                                                 const QString &key)
{
    const std::optional<QString> name = defaults.string(key);
    return name ? installMethodFromName(*name) : std::nullopt;
}

void changeDefaultMethod(PreferenceStore &defaults, const QString &key,
                         std::optional<InstallMethod> method)
{
    const std::optional<InstallMethod> stored = storedDefaultMethod(defaults, key);
    if (stored == method && (method || !defaults.contains(key)))
        return;
    if (!stored)
        defaults.keepUnreadable(key);
    if (method)
        defaults.setString(key, storedName(*method));
    else
        defaults.remove(key);
}

} // namespace

FontInstallationStore::FontInstallationStore(PreferenceStore &defaults, QString methodsKey,
                                             QString registeredURLsKey, QString originsKey,
                                             QString defaultMethodKey)
    : m_defaults(defaults)
    , m_methodsKey(std::move(methodsKey))
    , m_registeredURLsKey(std::move(registeredURLsKey))
    , m_originsKey(std::move(originsKey))
    , m_defaultMethodKey(std::move(defaultMethodKey))
{
}

const std::map<QString, InstallMethod> &FontInstallationStore::methods() const
{
    if (!m_cachedMethods) {
        m_cachedMethods.emplace();
        const auto stored = storedJson<StoredMethods>(m_defaults, m_methodsKey);
        // A method that is not known reads as copy.
        for (const auto &[family, name] : stored.value_or(StoredMethods()))
            m_cachedMethods->emplace(family,
                                     installMethodFromName(name).value_or(InstallMethod::copy));
    }
    return *m_cachedMethods;
}

const QSet<FilePath> &FontInstallationStore::registeredURLs() const
{
    if (!m_cachedRegisteredURLs) {
        m_cachedRegisteredURLs.emplace();
        const QStringList stored =
            m_defaults.stringArray(m_registeredURLsKey).value_or(QStringList());
        for (const QString &text : stored) {
            if (std::optional<FilePath> path = storedPath(text))
                m_cachedRegisteredURLs->insert(*std::move(path));
        }
    }
    return *m_cachedRegisteredURLs;
}

const QHash<FilePath, FilePath> &FontInstallationStore::origins() const
{
    if (!m_cachedOrigins) {
        m_cachedOrigins.emplace();
        const auto stored = m_defaults.stringDictionary(m_originsKey).value_or(StoredOrigins());
        for (const auto &[copy, source] : stored.asKeyValueRange()) {
            const std::optional<FilePath> copyPath = storedPath(copy);
            const std::optional<FilePath> sourcePath = storedPath(source);
            if (copyPath && sourcePath)
                m_cachedOrigins->insert(*copyPath, *sourcePath);
        }
    }
    return *m_cachedOrigins;
}

std::optional<InstallMethod> FontInstallationStore::defaultMethod() const
{
    return storedDefaultMethod(m_defaults, m_defaultMethodKey);
}

void FontInstallationStore::setDefaultMethod(std::optional<InstallMethod> method)
{
    m_defaults.inTransaction([&defaults = m_defaults, key = m_defaultMethodKey, method] {
        changeDefaultMethod(defaults, key, method);
    });
}

void FontInstallationStore::change(const Changes &changes)
{
    if (changes.isEmpty())
        return;
    m_defaults.inTransaction([&defaults = m_defaults, methodsKey = m_methodsKey,
                              registeredURLsKey = m_registeredURLsKey, originsKey = m_originsKey,
                              changes] {
        if (!changes.methods.empty())
            changeMethods(defaults, methodsKey, changes.methods);
        if (!changes.registeredURLs.empty())
            changeRegisteredURLs(defaults, registeredURLsKey, changes.registeredURLs);
        if (!changes.origins.empty())
            changeOrigins(defaults, originsKey, changes.origins);
    });
    dropCaches();
}

bool FontInstallationStore::isWritten()
{
    return m_defaults.writeWaitingChanges();
}

void FontInstallationStore::dropCaches()
{
    m_cachedMethods.reset();
    m_cachedRegisteredURLs.reset();
    m_cachedOrigins.reset();
}

} // namespace lorva
