// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "model/records/Activation.h"

#include <QHash>
#include <QSet>

#include <map>
#include <optional>

namespace lorva {

class PreferenceStore;

/// The books of activation, kept in the user's preferences: which method a family was activated by,
/// which files were registered in place, and where the copies in the Fonts folder came from.
///
/// What is read is kept until dropCaches() or a change. Changes re-read what they change, in one
/// transaction, so that two processes lose nothing of each other's. Paths that are no UTF-8 are not
/// taken in. Undecodable records count as empty and are kept aside when they are replaced. Holds
/// the preference store, which outlives it. Thread: main.
class FontInstallationStore
{
public:
    explicit FontInstallationStore(
        PreferenceStore &defaults,
        QString methodsKey = QStringLiteral("vantrel.merid.fontInstallations"),
        QString registeredURLsKey = QStringLiteral("vantrel.merid.lorvaRegisteredURLs"),
        QString originsKey = QStringLiteral("vantrel.merid.fontOrigins"),
        QString defaultMethodKey = QStringLiteral("vantrel.merid.defaultInstallMethod"));

    /// By family name.
    const std::map<QString, InstallMethod> &methods() const;
    const QSet<FilePath> &registeredURLs() const;
    /// Where a copy came from, by the copy's path.
    const QHash<FilePath, FilePath> &origins() const;
    /// Nothing: ask each time; also for a value that is no method.
    std::optional<InstallMethod> defaultMethod() const;
    void setDefaultMethod(std::optional<InstallMethod> method);

    /// Entries to write; nothing for one to remove.
    struct Changes
    {
        std::map<QString, std::optional<InstallMethod>> methods;
        std::map<FilePath, bool> registeredURLs;
        std::map<FilePath, std::optional<FilePath>> origins;

        bool isEmpty() const
        {
            return methods.empty() && registeredURLs.empty() && origins.empty();
        }
        bool operator==(const Changes &) const = default;
    };
    /// Writes the entries that differ, in one transaction; writes nothing when none does.
    void change(const Changes &changes);

    /// True when everything is in the preferences' file, not only in memory.
    bool isWritten();

    /// What others have written is read when it is asked for next.
    void dropCaches();

private:
    PreferenceStore &m_defaults;
    const QString m_methodsKey;
    const QString m_registeredURLsKey;
    const QString m_originsKey;
    const QString m_defaultMethodKey;
    mutable std::optional<std::map<QString, InstallMethod>> m_cachedMethods;
    mutable std::optional<QSet<FilePath>> m_cachedRegisteredURLs;
    mutable std::optional<QHash<FilePath, FilePath>> m_cachedOrigins;
};

} // namespace lorva
