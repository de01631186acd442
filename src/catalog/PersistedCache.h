// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"

namespace lorva {

/// What the loader learned from font files, as it is kept between processes.
struct PersistedCache
{
    /// Of the format; a file of another one is of no use.
    static constexpr int kVersion = 1;
    /// Of the rules by which families are identified; raised when they change, so that only the
    /// identities are found anew.
    static constexpr int kIdentityVersion = 1;

    QHash<FilePath, ParsedFontFile> files;
    /// Manufacturer name by family name.
    QHash<QString, QString> manufacturers;
    /// By family name; empty when they were found by other rules.
    QHash<QString, FamilyScriptIdentity> identities;

    bool operator==(const PersistedCache &) const = default;
};

/// One JSON object with short keys. Left out: files whose path is no UTF-8, and files without a
/// fingerprint (a negative size). Thread: any.
QByteArray encodePersistedCache(const PersistedCache &cache);

/// Fails as a whole, with the place of the damage: malformed JSON, a missing key, a value out of
/// its bounds, another version (unsupported). Equal strings of one file share their memory.
/// Thread: any.
Result<PersistedCache> decodePersistedCache(QByteArray json);

/// decodePersistedCache() of a file; fails as readWholeFile() as well. Thread: any, it takes its
/// time.
Result<PersistedCache> readPersistedCache(const FilePath &file);

} // namespace lorva
