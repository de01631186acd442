// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QByteArray>
#include <QString>

namespace lorva {

class JsonReader;
class JsonWriter;

/// A folder whose fonts belong to the library.
struct WatchedFolder
{
    /// Made when the folder is added; never changes.
    QString id;
    /// Bytes that find the folder again when it has moved; empty where the platform has no such
    /// thing.
    QByteArray bookmark;
    /// With links resolved, when it was added.
    FilePath lastKnownPath;

    bool operator==(const WatchedFolder &) const = default;
};

/// Where the folder is now; empty for a record that names no place.
FilePath folderURL(const WatchedFolder &folder);

/// An object with the keys "id", "bookmark" (base64) and "lastKnownPath" (the path as it is). All
/// three are required.
void readJson(JsonReader &in, WatchedFolder &out);
void writeJson(JsonWriter &out, const WatchedFolder &value);

} // namespace lorva
