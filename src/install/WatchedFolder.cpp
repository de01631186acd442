// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/WatchedFolder.h"

#include "base/Json.h"

namespace lorva {

namespace {

/// As it is stored: the path as text, not as an address.
struct StoredFolder
{
    QString id;
    QByteArray bookmark;
    JsonUtf8 lastKnownPath;
};

template <class Fields, JsonRecordOf<StoredFolder> Record>
void jsonFields(Fields &fields, Record &folder)
{
    fields("id", folder.id);
    fields("bookmark", folder.bookmark);
    fields("lastKnownPath", folder.lastKnownPath);
}

} // namespace

void readJson(JsonReader &in, WatchedFolder &out)
{
    StoredFolder stored;
    readJson(in, stored);
    out = {std::move(stored.id), std::move(stored.bookmark),
           FilePath(std::move(stored.lastKnownPath.bytes))};
}

void writeJson(JsonWriter &out, const WatchedFolder &value)
{
    writeJson(out, StoredFolder{value.id, value.bookmark, {value.lastKnownPath.bytes()}});
}

FilePath folderURL(const WatchedFolder &folder)
{
    const QByteArray &path = folder.lastKnownPath.bytes();
    return path.startsWith('/') && !path.contains('\0') ? folder.lastKnownPath : FilePath();
}

} // namespace lorva
