// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/names/NameListing.h"

#include "text/FontLimits.h"
#include "text/names/NameEncodings.h"
#include "text/names/NameLanguages.h"
#include "text/TableView.h"

#include <algorithm>
#include <unordered_set>

namespace lorva {

namespace {

constexpr quint64 kHeaderSize = 6;
constexpr quint64 kRecordSize = 12;
constexpr quint16 kFirstLanguageTag = 0x8000;

/// OpenType "langTagRecord": of the n-th language tag of a table of format 1.
QByteArray ownLanguageTag(const TableView &table, quint16 language)
{
    const quint64 countAt = kHeaderSize + kRecordSize * table.u16(2);
    const quint64 index = language - kFirstLanguageTag;
    if (table.u16(0) != 1 || index >= table.u16(countAt))
        return {};
    const quint64 record = countAt + 2 + 4 * index;
    const QByteArrayView utf16 =
        table.bytes(quint64(table.u16(4)) + table.u16(record + 2), table.u16(record));
    const auto text = decodeName({0, 3, 0}, utf16);
    return cleanLanguageTag(text.value_or(QString()).toLatin1());
}

/// Apple `ltag`: what the language ids of Unicode records count.
QByteArray unicodeLanguageTag(const TableView &ltag, quint16 language)
{
    if (ltag.u32(0) != 1 || language >= ltag.u32(8))
        return {};
    const quint64 record = 12 + 4 * quint64(language);
    return cleanLanguageTag(ltag.bytes(ltag.u16(record), ltag.u16(record + 2)));
}

struct Record
{
    quint16 platform;
    quint16 encoding;
    quint16 language;
    quint16 nameId;
    QByteArrayView bytes;

    Record(const TableView &table, quint64 at)
        : platform(table.u16(at))
        , encoding(table.u16(at + 2))
        , language(table.u16(at + 4))
        , nameId(table.u16(at + 6))
        , bytes(table.bytes(quint64(table.u16(4)) + table.u16(at + 10), table.u16(at + 8)))
    {
    }
};

QByteArray languageOf(const Record &record, const TableView &table, const TableView &ltag)
{
    constexpr quint16 kUnicodePlatform = 0;
    constexpr quint16 kMacPlatform = 1;
    if (record.language >= kFirstLanguageTag && table.u16(0) == 1)
        return ownLanguageTag(table, record.language);
    if (record.platform == kUnicodePlatform)
        return unicodeLanguageTag(ltag, record.language);
    return record.platform == kMacPlatform ? macLanguageTag(record.language)
                                           : windowsLanguageTag(record.language);
}

struct NameHash
{
    size_t operator()(const LocalizedName &name) const
    {
        return qHashMulti(0, name.nameId, name.language, name.text);
    }
};

} // namespace

std::vector<LocalizedName> listNames(QByteArrayView nameTable, QByteArrayView languageTagTable)
{
    const TableView table(nameTable);
    const TableView ltag(languageTagTable);
    const int count = std::min<int>(table.u16(2), kMaxNameRecords);
    std::vector<LocalizedName> names;
    std::unordered_set<LocalizedName, NameHash> known;
    qint64 budget = kMaxListedNameBytes;
    for (int i = 0; i < count && budget > 0; ++i) {
        const Record record(table, kHeaderSize + kRecordSize * quint64(i));
        const QByteArrayView bytes =
            record.bytes.first(std::min<qsizetype>(record.bytes.size(), kMaxLongNameBytes));
        const auto text = decodeName({record.platform, record.encoding, record.language}, bytes);
        budget -= bytes.size();
        if (!text || text->isEmpty())
            continue;
        LocalizedName name{record.nameId, languageOf(record, table, ltag), *text};
        if (known.insert(name).second)
            names.push_back(std::move(name));
    }
    return names;
}

} // namespace lorva
