// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/PersistedCache.h"

#include "base/Json.h"
#include "base/Trace.h"
#include "base/WholeFile.h"
#include "catalog/SharedTexts.h"
#include "model/records/RecordsJson.h"

#include <algorithm>
#include <cmath>

namespace lorva {

template <class Fields, JsonRecordOf<FamilyScriptIdentity> Record>
void jsonFields(Fields &fields, Record &identity)
{
    fields("scripts", identity.scripts);
    fields("primary", identity.primary);
    fields("alternates", identity.alternates);
}

namespace {

/// Two million faces take less.
constexpr qint64 kMostBytes = qint64(512) << 20;
constexpr qsizetype kTypicalRowBytes = 320;

/// One face, as it stands in the file.
struct PersistedStyle
{
    QString familyName;
    QString id;
    QString label;
    QString postScriptName;
    qint64 weight = 0;
    bool isItalic = false;
    std::optional<JsonUtf8> path;
};

/// One font file, as it stands in the file.
struct PersistedFile
{
    JsonUtf8 path;
    qint64 size = 0;
    FileTime modified = 0;
    std::vector<PersistedStyle> styles;
};

template <class Fields, JsonRecordOf<PersistedStyle> Record>
void jsonFields(Fields &fields, Record &style)
{
    fields("f", style.familyName);
    fields("id", style.id);
    fields("l", style.label);
    fields("ps", style.postScriptName);
    fields("w", style.weight);
    fields("i", style.isItalic);
    fields("u", style.path);
}

template <class Fields, JsonRecordOf<PersistedFile> Record>
void jsonFields(Fields &fields, Record &file)
{
    fields("p", file.path);
    fields("s", file.size);
    fields("m", file.modified);
    fields("e", file.styles);
}

// What a scan gives; nothing is written that would not be read.

bool isPlausiblePath(const FilePath &path)
{
    return path.bytes().startsWith('/') && !path.bytes().contains('\0');
}

bool isPlausible(const FilePath &path, const ParsedEntry &entry)
{
    const std::optional<FilePath> &file = entry.style.fileURL;
    return !entry.familyName.isEmpty() && isPlausibleWeight(entry.style.weight)
        && (!file || *file == path || isPlausiblePath(*file));
}

bool isPlausible(const FilePath &path, const ParsedFontFile &file)
{
    return file.fileSize >= 0 && std::isfinite(file.modified) && isPlausiblePath(path)
        && std::all_of(file.entries.begin(), file.entries.end(),
                       [&](const ParsedEntry &entry) { return isPlausible(path, entry); });
}

// --- Writing ---

/// JSON is text, and a path need not be.
bool hasTextPaths(const FilePath &path, const ParsedFontFile &file)
{
    return path.isUtf8()
        && std::all_of(file.entries.begin(), file.entries.end(), [](const ParsedEntry &entry) {
               return !entry.style.fileURL || entry.style.fileURL->isUtf8();
           });
}

PersistedStyle rowOf(const ParsedEntry &entry)
{
    const FontStyleRecord &style = entry.style;
    PersistedStyle row{entry.familyName, style.id,       style.label, style.postScriptName,
                       style.weight,     style.isItalic, std::nullopt};
    if (style.fileURL)
        row.path = JsonUtf8{style.fileURL->bytes()};
    return row;
}

PersistedFile rowOf(const FilePath &path, const ParsedFontFile &file)
{
    PersistedFile row{JsonUtf8{path.bytes()}, file.fileSize, file.modified, {}};
    row.styles.reserve(file.entries.size());
    for (const ParsedEntry &entry : file.entries)
        row.styles.push_back(rowOf(entry));
    return row;
}

using FileRow = std::pair<const FilePath *, const ParsedFontFile *>;

/// By path: equal caches give equal texts, and the faces of a family come together.
std::vector<FileRow> keptFiles(const QHash<FilePath, ParsedFontFile> &files)
{
    std::vector<FileRow> rows;
    rows.reserve(size_t(files.size()));
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (isPlausible(file.key(), *file) && hasTextPaths(file.key(), *file))
            rows.emplace_back(&file.key(), &*file);
    }
    std::sort(rows.begin(), rows.end(),
              [](const FileRow &a, const FileRow &b) { return *a.first < *b.first; });
    return rows;
}

// --- Reading ---

struct FormatVersion
{
};

/// Fails at once: what else stands in a file of another format says nothing.
void readJson(JsonReader &in, FormatVersion &)
{
    qint64 version = 0;
    in.read(version);
    if (!in.hasFailed() && version != PersistedCache::kVersion)
        in.fail(ErrorKind::unsupported, QStringLiteral("another version"));
}

/// Turns the rows into what the loader holds, one by one, so that they are never there twice.
class FileRows
{
public:
    QHash<FilePath, ParsedFontFile> files;

    void readNext(JsonReader &in)
    {
        m_row.styles.clear();
        lorva::readJson(in, m_row);
        if (!in.hasFailed())
            takeRow(in);
    }

private:
    void takeRow(JsonReader &in)
    {
        const FilePath path(std::move(m_row.path.bytes));
        ParsedFontFile file{m_row.size, m_row.modified, entriesOf(path)};
        if (!isPlausible(path, file))
            return in.fail(ErrorKind::invalidValue, QStringLiteral("no scan gives such a file"));
        const qsizetype known = files.size();
        // Assigned, because QHash::insert() copies.
        files[path] = std::move(file);
        if (files.size() == known)
            in.fail(ErrorKind::invalidValue, QStringLiteral("the path is there already"));
    }

    std::vector<ParsedEntry> entriesOf(const FilePath &path)
    {
        std::vector<ParsedEntry> entries;
        entries.reserve(m_row.styles.size());
        for (PersistedStyle &style : m_row.styles)
            entries.push_back(entryOf(path, std::move(style)));
        return entries;
    }

    ParsedEntry entryOf(const FilePath &path, PersistedStyle row)
    {
        ParsedEntry entry{std::move(row.familyName),
                          {std::move(row.id), std::move(row.label), std::move(row.postScriptName),
                           row.weight, row.isItalic, std::nullopt}};
        if (row.path)
            entry.style.fileURL =
                row.path->bytes == path.bytes() ? path : FilePath(std::move(row.path->bytes));
        m_texts.shareFamilyName(entry.familyName);
        m_texts.share(entry.style);
        return entry;
    }

    /// Kept for its memory.
    PersistedFile m_row;
    SharedTexts m_texts;
};

void readJson(JsonReader &in, FileRows &out)
{
    in.readArray([&] { out.readNext(in); });
}

struct Document
{
    FormatVersion version;
    FileRows files;
    QHash<QString, QString> manufacturers;
    std::optional<qint64> identityVersion;
    std::optional<QHash<QString, FamilyScriptIdentity>> identities;
};

template <class Fields, JsonRecordOf<Document> Record>
void jsonFields(Fields &fields, Record &document)
{
    fields("version", document.version);
    fields("files", document.files);
    fields("manufacturers", document.manufacturers);
    fields("identities", document.identities);
    fields("identityVersion", document.identityVersion);
}

} // namespace

QByteArray encodePersistedCache(const PersistedCache &cache)
{
    JsonWriter out;
    out.beginObject();
    JsonFieldWriter fields(out);
    fields("version", PersistedCache::kVersion);
    fields("identityVersion", PersistedCache::kIdentityVersion);
    out.key("files");
    out.beginArray();
    for (const auto &[path, file] : keptFiles(cache.files))
        writeJson(out, rowOf(*path, *file));
    out.endArray();
    fields("manufacturers", cache.manufacturers);
    fields("identities", cache.identities);
    out.endObject();
    return out.take();
}

Result<PersistedCache> decodePersistedCache(QByteArray json)
{
    Document document;
    // A table that grows looks at every path again; a row takes some hundred bytes.
    document.files.files.reserve(json.size() / kTypicalRowBytes);
    JsonReader in(std::move(json));
    lorva::readJson(in, document);
    if (std::optional<Error> error = in.finish())
        return tl::unexpected<Error>(*std::move(error));
    PersistedCache cache{std::move(document.files.files), std::move(document.manufacturers), {}};
    if (document.identityVersion == PersistedCache::kIdentityVersion && document.identities)
        cache.identities = *std::move(document.identities);
    return cache;
}

Result<PersistedCache> readPersistedCache(const FilePath &file)
{
    const TraceStage stage("parse cache: read");
    Result<QByteArray> json = readWholeFile(file, kMostBytes);
    if (!json)
        return tl::unexpected(std::move(json.error()));
    return decodePersistedCache(*std::move(json));
}

} // namespace lorva
