// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Json.h"

namespace lorva {

void readJson(JsonReader &in, FilePath &out)
{
    JsonUtf8 url;
    in.read(url);
    if (in.hasFailed())
        return;
    Result<FilePath> path = FilePath::fromUrl(url.bytes);
    if (path)
        out = *std::move(path);
    else
        in.fail(path.error().kind, path.error().detail);
}

void writeJson(JsonWriter &out, const FilePath &value)
{
    out.utf8(value.toUrl());
}

void readJson(JsonReader &in, QStringList &out)
{
    in.readArray([&] { in.read(out.emplace_back()); });
}

void writeJson(JsonWriter &out, const QStringList &value)
{
    writeJsonArray(out, value);
}

} // namespace lorva
