// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/names/NameTable.h"

#include "text/FontLimits.h"
#include "text/names/NameText.h"

#include <algorithm>
#include <tuple>

namespace lorva {

namespace {

/// Three names on three platforms in a hundred languages. A table of thousands, each face with its
/// own, would take seconds to decode.
constexpr size_t kMaxFamilyNameRecords = 1000;

enum Rank : quint8 { windowsEnglish, macEnglish, otherLanguage };

constexpr quint16 kUnicodePlatform = 0;
constexpr quint16 kMacPlatform = 1;
constexpr quint16 kWindowsPlatform = 3;

bool isUtf16(quint16 platform, quint16 encoding)
{
    return platform == kUnicodePlatform
        || (platform == kWindowsPlatform && (encoding == 0 || encoding == 1 || encoding == 10));
}

Rank rankOf(quint16 platform, quint16 language)
{
    constexpr quint16 kPrimaryLanguage = 0x3FF;
    constexpr quint16 kEnglish = 9;
    constexpr quint16 kFirstLanguageTag = 0x8000;
    if (platform == kWindowsPlatform && language < kFirstLanguageTag
        && (language & kPrimaryLanguage) == kEnglish)
        return windowsEnglish;
    return platform == kMacPlatform && language == 0 ? macEnglish : otherLanguage;
}

bool isFamilyName(quint16 id)
{
    return NameId(id) == NameId::typographicFamily || NameId(id) == NameId::family
        || NameId(id) == NameId::wwsFamily;
}

bool isSelected(quint16 id, NameSelection selection)
{
    constexpr quint16 kFirstOwnId = 256;
    if (selection == NameSelection::all)
        return true;
    if (selection == NameSelection::families)
        return isFamilyName(id);
    if (id >= kFirstOwnId)
        return selection == NameSelection::withInstances;
    switch (NameId(id)) {
    case NameId::family:
    case NameId::style:
    case NameId::full:
    case NameId::postScript:
    case NameId::manufacturer:
    case NameId::typographicFamily:
    case NameId::typographicStyle:
    case NameId::variationsPostScriptPrefix:
        return true;
    default:
        return false;
    }
}

} // namespace

char16_t macRomanToUnicode(quint8 byte)
{
    static constexpr char16_t kUpperHalf[] = u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
                                             u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
                                             u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
                                             u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";
    static_assert(std::size(kUpperHalf) == 129);
    return byte < 0x80 ? char16_t(byte) : kUpperHalf[byte - 0x80];
}

NameTable::NameTable(QByteArrayView table, NameSelection selection)
    : m_table(table)
{
    const int count = std::min<int>(m_table.u16(2), kMaxNameRecords);
    for (int i = 0; i < count; ++i) {
        Record record;
        if (readRecord(6 + 12 * quint64(i), quint16(i), selection, record))
            m_records.push_back(record);
    }
    std::sort(m_records.begin(), m_records.end(), [](const Record &a, const Record &b) {
        return std::tie(a.id, a.rank, a.order) < std::tie(b.id, b.rank, b.order);
    });
}

bool NameTable::readRecord(quint64 at, quint16 order, NameSelection selection, Record &record) const
{
    if (!m_table.has(at, 12))
        return false;
    const quint16 platform = m_table.u16(at);
    const quint16 encoding = m_table.u16(at + 2);
    record.id = m_table.u16(at + 6);
    record.isMacRoman = platform == kMacPlatform && encoding == 0;
    if (!isSelected(record.id, selection) || !(record.isMacRoman || isUtf16(platform, encoding)))
        return false;
    record.rank = rankOf(platform, m_table.u16(at + 4));
    record.order = order;
    record.length = m_table.u16(at + 8);
    record.offset = quint32(m_table.u16(4)) + m_table.u16(at + 10);
    return record.length > 0 && m_table.has(record.offset, record.length);
}

QString NameTable::text(NameId id, int maxBytes) const
{
    return text(quint16(id), maxBytes);
}

QString NameTable::text(quint16 id, int maxBytes) const
{
    auto record = std::lower_bound(m_records.begin(), m_records.end(), id,
                                   [](const Record &r, quint16 wanted) { return r.id < wanted; });
    for (; record != m_records.end() && record->id == id; ++record)
        if (QString found = decode(*record, maxBytes); !found.isEmpty())
            return found;
    return {};
}

std::vector<QString> NameTable::familyNames() const
{
    std::vector<Record> wanted;
    std::copy_if(m_records.begin(), m_records.end(), std::back_inserter(wanted),
                 [](const Record &record) { return isFamilyName(record.id); });
    std::sort(wanted.begin(), wanted.end(),
              [](const Record &a, const Record &b) { return a.order < b.order; });
    wanted.resize(std::min(wanted.size(), kMaxFamilyNameRecords));
    std::vector<QString> texts;
    for (const Record &record : wanted)
        if (QString found = decode(record, kMaxNameBytes); !found.isEmpty())
            texts.push_back(std::move(found));
    return texts;
}

QString NameTable::decode(const Record &record, int maxBytes) const
{
    const QByteArrayView bytes =
        m_table.bytes(record.offset, std::min<quint64>(record.length, quint64(maxBytes)));
    NameText cleaner(bytes.size());
    if (record.isMacRoman) {
        for (const char byte : bytes)
            cleaner.append(macRomanToUnicode(quint8(byte)));
    } else {
        const TableView view(bytes);
        for (quint64 at = 0; at + 1 < view.size(); at += 2)
            cleaner.append(view.u16(at));
    }
    return cleaner.take();
}

} // namespace lorva
