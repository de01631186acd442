// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"

#include <mutex>

namespace lorva {

/// Settles, while files are read in parallel, by which file a new family is judged: the first that
/// holds it, in the order of the files and however the threads are timed.
///
/// A file that claims a family although a later file did so before is right, and judges it again;
/// who takes the results in looks at the first file's alone. Thread: any.
class FamilyClaims
{
public:
    using Identities = QHash<QString, FamilyScriptIdentity>;

    /// Families of `known` need no judging; nobody may change it meanwhile.
    explicit FamilyClaims(const Identities &known)
        : m_known(known)
    {
    }

    /// True when the file with this place in the order should judge the family, as far as is known
    /// by now.
    bool claim(const QString &familyName, size_t file)
    {
        if (m_known.contains(familyName))
            return false;
        const std::lock_guard lock(m_lock);
        const auto claimed = m_first.find(familyName);
        if (claimed != m_first.end() && *claimed <= file)
            return false;
        m_first.insert(familyName, file);
        return true;
    }

private:
    const Identities &m_known;
    std::mutex m_lock;
    QHash<QString, size_t> m_first;
};

} // namespace lorva
