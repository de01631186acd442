// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/SfntDirectory.h"

#include "text/FontLimits.h"
#include "text/TableView.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

// The words follow a file's name and a colon.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontFile)
};

constexpr FontTag kCollection = fontTag('t', 't', 'c', 'f');
constexpr FontTag kTrueType = 0x00010000;
constexpr FontTag kAppleTrueType = fontTag('t', 'r', 'u', 'e');
constexpr FontTag kPostScriptInSfnt = fontTag('t', 'y', 'p', '1');
constexpr FontTag kOpenTypeCff = fontTag('O', 'T', 'T', 'O');
constexpr FontTag kSfnt = fontTag('s', 'f', 'n', 't');
/// Fonts are padded to four bytes, and some count the padding of the last table that they do not
/// have.
constexpr quint64 kMissingPadding = 3;

bool isSfntVersion(FontTag version)
{
    return version == kTrueType || version == kAppleTrueType || version == kOpenTypeCff
        || version == kPostScriptInSfnt;
}

/// What a face cannot be drawn or named without.
bool isNeeded(FontTag tag)
{
    constexpr FontTag kNeeded[] = {
        fontTag('c', 'm', 'a', 'p'), fontTag('h', 'e', 'a', 'd'), fontTag('h', 'h', 'e', 'a'),
        fontTag('h', 'm', 't', 'x'), fontTag('m', 'a', 'x', 'p'), fontTag('n', 'a', 'm', 'e'),
        fontTag('l', 'o', 'c', 'a'), fontTag('g', 'l', 'y', 'f'), fontTag('C', 'F', 'F', ' '),
        fontTag('C', 'F', 'F', '2'),
    };
    return std::find(std::begin(kNeeded), std::end(kNeeded), tag) != std::end(kNeeded);
}

tl::unexpected<Error> unsupportedFormat(QByteArrayView start)
{
    struct Known
    {
        QByteArrayView magic;
        const char *words;
    };
    static constexpr Known kKnown[] = {
        {"wOFF", QT_TRANSLATE_NOOP("FontFile", "is a WOFF web font, which is not read")},
        {"wOF2", QT_TRANSLATE_NOOP("FontFile", "is a WOFF2 web font, which is not read")},
        {"%!", QT_TRANSLATE_NOOP("FontFile", "is a Type 1 font, which is not read")},
        {"\x80\x01", QT_TRANSLATE_NOOP("FontFile", "is a Type 1 font, which is not read")},
        {"STARTFONT", QT_TRANSLATE_NOOP("FontFile", "is a BDF bitmap font, which is not read")},
        {"\x01"
         "fcp",
         QT_TRANSLATE_NOOP("FontFile", "is a PCF bitmap font, which is not read")},
        {"\x1f\x8b", QT_TRANSLATE_NOOP("FontFile", "is compressed, which is not read")},
    };
    for (const Known &known : kKnown)
        if (start.startsWith(known.magic))
            return failure(ErrorKind::unsupported, Texts::tr(known.words));
    return failure(ErrorKind::unsupported, Texts::tr("is not a font"));
}

Result<std::vector<FaceLocation>> collectionLocations(const OpenedFile &file,
                                                      const TableView &header)
{
    const quint64 listed = (file.size() - std::min<quint64>(file.size(), 12)) / 4;
    const quint64 count = std::min({quint64(header.u32(8)), listed, quint64(kMaxFacesPerFile)});
    if (count == 0)
        return failure(ErrorKind::truncated, Texts::tr("is a collection without faces"));
    const QByteArray offsets = file.bytes(12, 4 * count);
    const TableView view(offsets);
    std::vector<FaceLocation> locations;
    for (quint64 i = 0; i < count; ++i)
        locations.push_back({view.u32(4 * i), 0});
    return locations;
}

/// Inside Macintosh "Resource Manager": a header of four numbers, repeated at the start of the map.
struct ResourceFork
{
    quint64 data;
    quint64 map;
    quint64 dataLength;
    quint64 mapLength;

    explicit ResourceFork(const TableView &header)
        : data(header.u32(0))
        , map(header.u32(4))
        , dataLength(header.u32(8))
        , mapLength(header.u32(12))
    {
    }
    bool fits(quint64 fileSize) const
    {
        return data >= 16 && map >= data + dataLength && mapLength >= 30
            && map + mapLength <= fileSize;
    }
};

void appendResources(const OpenedFile &file, const ResourceFork &fork, const TableView &references,
                     int count, std::vector<FaceLocation> &locations)
{
    for (int i = 0; i < count && locations.size() < kMaxFacesPerFile; ++i) {
        const quint64 offset = references.u32(12 * quint64(i) + 4) & 0xFFFFFF;
        const quint64 start = fork.data + offset + 4;
        if (references.has(12 * quint64(i), 12) && start < file.size())
            locations.push_back({start, start});
    }
}

Result<std::vector<FaceLocation>> suitcaseLocations(const OpenedFile &file,
                                                    const ResourceFork &fork)
{
    if (file.size() > quint64(kMaxSuitcaseSize))
        return failure(ErrorKind::tooLarge, Texts::tr("is larger than any font suitcase"));
    const QByteArray bytes =
        file.bytes(fork.map, std::min(fork.mapLength, quint64(kMaxResourceMapBytes)));
    const TableView map(bytes);
    const TableView types = map.from(map.u16(24));
    std::vector<FaceLocation> locations;
    const int typeCount = (types.u16(0) + 1) & 0xFFFF;
    for (int i = 0; i < typeCount && types.has(2 + 8 * quint64(i), 8); ++i) {
        const quint64 at = 2 + 8 * quint64(i);
        if (types.u32(at) == kSfnt)
            appendResources(file, fork, types.from(types.u16(at + 6)), types.u16(at + 4) + 1,
                            locations);
    }
    if (locations.empty())
        return failure(ErrorKind::unsupported, Texts::tr("is a suitcase without outline fonts"));
    return locations;
}

/// Whether the table lies in the file; cuts the padding that the file's end may lack.
bool fitIntoFile(TableEntry &entry, quint64 fileSize)
{
    if (entry.offset > fileSize)
        return false;
    const quint64 room = fileSize - entry.offset;
    if (entry.length > room + kMissingPadding)
        return false;
    entry.length = quint32(std::min<quint64>(entry.length, room));
    return true;
}

} // namespace

const TableEntry *SfntDirectory::find(FontTag tag) const
{
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [tag](const TableEntry &e) { return e.tag == tag; });
    return found == tables.end() ? nullptr : &*found;
}

int SfntDirectory::formatNumber() const
{
    if (version == kPostScriptInSfnt)
        return 2;
    if (version == kOpenTypeCff || has(fontTag('C', 'F', 'F', ' '))
        || has(fontTag('C', 'F', 'F', '2')))
        return 3;
    // Some bitmap fonts bring an outline table without any bytes.
    const TableEntry *outlines = find(fontTag('g', 'l', 'y', 'f'));
    if (!outlines || outlines->length == 0)
        return 5;
    return has(fontTag('G', 'S', 'U', 'B')) || has(fontTag('G', 'P', 'O', 'S')) ? 4 : 1;
}

Result<std::vector<FaceLocation>> readFaceLocations(const OpenedFile &file)
{
    if (file.size() == 0)
        return failure(ErrorKind::truncated, Texts::tr("is empty"));
    const QByteArray start = file.bytes(0, std::min<quint64>(file.size(), 16));
    if (start.isNull())
        return failure(ErrorKind::ioFailure, Texts::tr("cannot be read"));
    const TableView header(start);
    const FontTag version = header.u32(0);
    if (header.size() >= 12 && isSfntVersion(version))
        return std::vector<FaceLocation>{{0, 0}};
    if (header.size() >= 12 && version == kCollection)
        return collectionLocations(file, header);
    if (isSfntVersion(version) || version == kCollection)
        return failure(ErrorKind::truncated, Texts::tr("ends within its header"));
    if (const ResourceFork fork(header); header.size() == 16 && fork.fits(file.size()))
        return suitcaseLocations(file, fork);
    return unsupportedFormat(start);
}

Result<SfntDirectory> readDirectory(const OpenedFile &file, const FaceLocation &location)
{
    char head[12] = {};
    if (!file.read(location.directory, head, sizeof head))
        return failure(ErrorKind::truncated, Texts::tr("ends within its header"));
    const TableView header(QByteArrayView(head, sizeof head));
    const int count = header.u16(4);
    SfntDirectory directory{header.u32(0), {}};
    if (!isSfntVersion(directory.version))
        return failure(ErrorKind::unsupported, Texts::tr("holds a face that is not a font"));
    if (count == 0 || count > kMaxTablesPerFace)
        return failure(ErrorKind::malformed, Texts::tr("has a damaged table directory"));
    const QByteArray records = file.bytes(location.directory + 12, 16 * quint64(count));
    if (records.isNull())
        return failure(ErrorKind::truncated, Texts::tr("ends within its table directory"));
    const TableView view(records);
    directory.tables.reserve(size_t(count));
    for (quint64 at = 0; at < view.size(); at += 16) {
        TableEntry entry{view.u32(at), view.u32(at + 12), location.tableBase + view.u32(at + 8)};
        if (fitIntoFile(entry, file.size()))
            directory.tables.push_back(entry);
        else if (isNeeded(entry.tag))
            return failure(ErrorKind::truncated,
                           //: %1 is a table of the font, such as "glyf".
                           Texts::tr("is shorter than its header says: %1 lies beyond the end")
                               .arg(tagText(entry.tag)));
    }
    return directory;
}

QByteArray readTable(const OpenedFile &file, const SfntDirectory &directory, FontTag tag,
                     qint64 limit)
{
    const TableEntry *entry = directory.find(tag);
    return entry ? file.bytes(entry->offset, std::min<quint64>(entry->length, quint64(limit)))
                 : QByteArray();
}

} // namespace lorva
