// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CatalogCache.h"

#include "base/Json.h"
#include "base/RunThen.h"
#include "base/Trace.h"
#include "base/WholeFile.h"
#include "catalog/SharedTexts.h"
#include "model/records/RecordsJson.h"
#include "platform/ThreadPriority.h"

#include <QLoggingCategory>

#include <algorithm>

#include <unistd.h>

namespace lorva {

Q_LOGGING_CATEGORY(snapshotLog, "lorva.catalog.snapshot", QtWarningMsg)

namespace {

/// Two million faces take less.
constexpr qint64 kMostBytes = qint64(1) << 30;

bool isPlausible(const FontFamilyRecord &family)
{
    return !family.familyName.isEmpty()
        && std::all_of(
            family.styles.begin(), family.styles.end(),
            [](const FontStyleRecord &style) { return isPlausibleWeight(style.weight); });
}

class FamilyRows
{
public:
    std::vector<FontFamilyRecord> families;

    /// Judges the family read last and makes it small.
    void take(JsonReader &in)
    {
        if (in.hasFailed())
            return;
        FontFamilyRecord &family = families.back();
        if (!isPlausible(family))
            return in.fail(ErrorKind::invalidValue, QStringLiteral("no scan gives such a family"));
        const qsizetype known = m_names.size();
        m_names.insert(family.familyName);
        if (m_names.size() == known)
            return in.fail(ErrorKind::invalidValue, QStringLiteral("the family is there already"));
        for (FontStyleRecord &style : family.styles)
            m_texts.share(style);
        family.styles.shrink_to_fit();
    }

private:
    QSet<QString> m_names;
    SharedTexts m_texts;
};

void readJson(JsonReader &in, FamilyRows &out)
{
    in.readArray([&] {
        lorva::readJson(in, out.families.emplace_back());
        out.take(in);
    });
}

struct Document
{
    FamilyRows families;
    QHash<QString, QString> manufacturers;
};

template <class Fields, JsonRecordOf<Document> Record>
void jsonFields(Fields &fields, Record &document)
{
    fields("families", document.families);
    fields("manufacturers", document.manufacturers);
}

bool writeSnapshot(const FilePath &file, const CatalogSnapshot &snapshot)
{
    const TraceStage stage("snapshot: save");
    const Result<void> written = writeWholeFile(file, encodeSnapshot(snapshot));
    if (!written)
        qCInfo(snapshotLog).noquote() << written.error().detail;
    return written.has_value();
}

Result<CatalogSnapshot> readSnapshot(const FilePath &file)
{
    const TraceStage stage("snapshot: read");
    Result<QByteArray> json = readWholeFile(file, kMostBytes);
    if (!json)
        return tl::unexpected(std::move(json.error()));
    return decodeSnapshot(*std::move(json));
}

std::optional<CatalogSnapshot> loadSnapshot(const FilePath &file)
{
    // Of what every first start lacks nothing is said: a start reads while it still makes the
    // application object, which words would have to be translated by.
    if (::access(file.c_str(), F_OK) != 0)
        return std::nullopt;
    Result<CatalogSnapshot> snapshot = readSnapshot(file);
    if (snapshot)
        return *std::move(snapshot);
    qCInfo(snapshotLog).noquote() << snapshot.error().detail;
    return std::nullopt;
}

} // namespace

bool CatalogSnapshot::operator==(const CatalogSnapshot &other) const
{
    return *families == *other.families && manufacturers == other.manufacturers;
}

QByteArray encodeSnapshot(const CatalogSnapshot &snapshot)
{
    JsonWriter out;
    out.beginObject();
    JsonFieldWriter fields(out);
    fields("families", *snapshot.families);
    fields("manufacturers", snapshot.manufacturers);
    out.endObject();
    return out.take();
}

Result<CatalogSnapshot> decodeSnapshot(QByteArray json)
{
    Result<Document> document = decodeJson<Document>(std::move(json));
    if (!document)
        return tl::unexpected(std::move(document.error()));
    return CatalogSnapshot{makeFamilyList(std::move(document->families.families)),
                           std::move(document->manufacturers)};
}

CatalogCache::CatalogCache(FilePath file)
    : m_fileURL(std::move(file))
{
    static_cast<void>(makeFolders(m_fileURL.parent()));
    m_ioQueue.setObjectName(QStringLiteral("vantrel.lorva.catalog-cache"));
    m_ioQueue.setMaxThreadCount(1);
}

CatalogCache::~CatalogCache()
{
    m_ioQueue.waitForDone();
}

void CatalogCache::save(CatalogSnapshot snapshot)
{
    std::function<void()> work = [this, snapshot = std::move(snapshot)] {
        detail::passOrder();
        lowerThisThreadsPriority();
        m_hasFailed = !writeSnapshot(m_fileURL, snapshot);
    };
    detail::passOrder();
    m_ioQueue.start(std::move(work));
}

void CatalogCache::prefetch()
{
    using Snapshot = std::optional<CatalogSnapshot>;
    const auto promise = std::make_shared<std::promise<Snapshot>>();
    m_prefetched = promise->get_future();
    detail::passOrder();
    m_ioQueue.start([file = m_fileURL, promise] {
        detail::passOrder();
        promise->set_value(loadSnapshot(file));
    });
}

std::optional<CatalogSnapshot> CatalogCache::load()
{
    return m_prefetched.valid() ? m_prefetched.get() : loadSnapshot(m_fileURL);
}

} // namespace lorva
