// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FaceInformation.h"

#include "text/FontFaceData.h"
#include "text/FontLimits.h"
#include "text/LayoutLanguages.h"
#include "text/names/NameListing.h"
#include "text/names/NameTable.h"
#include "text/OpenedFile.h"
#include "text/StyleAttributes.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

/// `nameId` 0 to 25; none for 15, which is reserved.
constexpr const char *kNameKinds[] = {
    QT_TRANSLATE_NOOP("FaceInformation", "Copyright"),
    QT_TRANSLATE_NOOP("FaceInformation", "Family"),
    QT_TRANSLATE_NOOP("FaceInformation", "Style"),
    QT_TRANSLATE_NOOP("FaceInformation", "Unique identifier"),
    QT_TRANSLATE_NOOP("FaceInformation", "Full name"),
    QT_TRANSLATE_NOOP("FaceInformation", "Version"),
    QT_TRANSLATE_NOOP("FaceInformation", "PostScript name"),
    QT_TRANSLATE_NOOP("FaceInformation", "Trademark"),
    QT_TRANSLATE_NOOP("FaceInformation", "Manufacturer"),
    QT_TRANSLATE_NOOP("FaceInformation", "Designer"),
    QT_TRANSLATE_NOOP("FaceInformation", "Description"),
    QT_TRANSLATE_NOOP("FaceInformation", "Manufacturer’s address"),
    QT_TRANSLATE_NOOP("FaceInformation", "Designer’s address"),
    QT_TRANSLATE_NOOP("FaceInformation", "Licence"),
    QT_TRANSLATE_NOOP("FaceInformation", "Licence address"),
    nullptr,
    QT_TRANSLATE_NOOP("FaceInformation", "Typographic family"),
    QT_TRANSLATE_NOOP("FaceInformation", "Typographic style"),
    QT_TRANSLATE_NOOP("FaceInformation", "Compatible full name"),
    QT_TRANSLATE_NOOP("FaceInformation", "Sample text"),
    QT_TRANSLATE_NOOP("FaceInformation", "PostScript CID name"),
    QT_TRANSLATE_NOOP("FaceInformation", "WWS family"),
    QT_TRANSLATE_NOOP("FaceInformation", "WWS style"),
    QT_TRANSLATE_NOOP("FaceInformation", "Palette for light backgrounds"),
    QT_TRANSLATE_NOOP("FaceInformation", "Palette for dark backgrounds"),
    QT_TRANSLATE_NOOP("FaceInformation", "Variations PostScript name prefix"),
};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FaceInformation)
};

/// The bytes of a table, and a view of them.
class Table
{
public:
    Table(const OpenedFile &file, const SfntDirectory &directory, FontTag tag, qint64 limit)
        : m_bytes(readTable(file, directory, tag, limit))
    {
    }
    const QByteArray &bytes() const { return m_bytes; }
    TableView view() const { return TableView(m_bytes); }

private:
    QByteArray m_bytes;
};

/// Seconds since 1904, as OpenType counts. A clock that was never set gives dates before the first
/// font of this kind or long after us: nothing then.
std::optional<QDateTime> dateAt(const TableView &table, quint64 at)
{
    constexpr qint64 kFrom1904To1970 = 2082844800;
    constexpr int kFirstYear = 1984;
    constexpr int kLastYear = 2100;
    const qint64 seconds = qint64((quint64(table.u32(at)) << 32) | table.u32(at + 4));
    constexpr qint64 kLast = qint64(1) << 33;
    if (!table.has(at, 8) || seconds <= 0 || seconds > kLast)
        return std::nullopt;
    const QDateTime date = QDateTime::fromSecsSinceEpoch(seconds - kFrom1904To1970, Qt::UTC);
    const int year = date.date().year();
    return year >= kFirstYear && year <= kLastYear ? std::optional(date) : std::nullopt;
}

void readHead(const TableView &head, FaceInformation &information)
{
    information.fontRevision = head.fixed(4);
    information.created = dateAt(head, 20);
    information.modified = dateAt(head, 28);
    for (size_t i = 0; i < information.bounds.size(); ++i)
        information.bounds[i] = head.i16(36 + 2 * i);
    information.lowestReadablePixels = head.u16(46);
}

EmbeddingRights embeddingRights(quint16 fsType)
{
    constexpr quint16 kRestricted = 0x0002;
    constexpr quint16 kPreviewAndPrint = 0x0004;
    constexpr quint16 kEditable = 0x0008;
    constexpr quint16 kNoSubsetting = 0x0100;
    constexpr quint16 kBitmapsOnly = 0x0200;
    using Usage = EmbeddingRights::Usage;
    EmbeddingRights rights;
    rights.fsType = fsType;
    rights.allowsSubsetting = (fsType & kNoSubsetting) == 0;
    rights.allowsBitmapsOnly = (fsType & kBitmapsOnly) != 0;
    // Old fonts set several: the least restrictive one holds.
    if ((fsType & kEditable) != 0)
        rights.usage = Usage::editable;
    else if ((fsType & kPreviewAndPrint) != 0)
        rights.usage = Usage::previewAndPrint;
    else if ((fsType & kRestricted) != 0)
        rights.usage = Usage::restricted;
    return rights;
}

ScriptMetrics scriptMetrics(const TableView &os2, quint64 at)
{
    return {double(os2.i16(at)), double(os2.i16(at + 2)), double(os2.i16(at + 4)),
            double(os2.i16(at + 6))};
}

/// The first sixty-four bytes stand in every version, the vertical metrics in all but the earliest,
/// code pages from version 1 on.
void readOs2(const TableView &os2, FaceInformation &information)
{
    if (!os2.has(0, 64))
        return;
    information.averageCharacterWidth = os2.i16(2);
    information.weightClass = os2.u16(4);
    information.widthClass = os2.u16(6);
    information.embedding = embeddingRights(os2.u16(8));
    information.subscript = scriptMetrics(os2, 10);
    information.superscript = scriptMetrics(os2, 18);
    information.strikeout = StrokeMetrics{double(os2.i16(28)), double(os2.i16(26))};
    std::array<quint8, 10> panose;
    const QByteArrayView digits = os2.bytes(32, 10);
    std::copy(digits.begin(), digits.end(), panose.begin());
    information.panose = panose;
    const QByteArrayView vendor = os2.bytes(58, 4);
    if (vendor.front() != '\0')
        information.vendorId = tagText(os2.u32(58)).replace(u'?', u' ').trimmed();
    if (!os2.has(68, 10))
        return;
    information.usesTypoMetrics = (os2.u16(62) & (1 << 7)) != 0;
    information.typoMetrics =
        VerticalMetricsSet{double(os2.i16(68)), double(os2.i16(70)), double(os2.i16(72))};
    information.windowsMetrics = VerticalMetricsSet{double(os2.u16(74)), -double(os2.u16(76)), 0};
    if (os2.u16(0) >= 1 && os2.has(78, 4))
        information.codePages = os2.u32(78);
}

void readHhea(const TableView &hhea, FaceInformation &information)
{
    if (!hhea.has(0, 36))
        return;
    information.horizontalMetrics =
        VerticalMetricsSet{double(hhea.i16(4)), double(hhea.i16(6)), double(hhea.i16(8))};
    information.maximumAdvance = hhea.u16(10);
}

void readPost(const TableView &post, FaceInformation &information)
{
    if (!post.has(0, 16))
        return;
    information.italicAngleDegrees = post.fixed(4);
    information.underline = StrokeMetrics{double(post.i16(8)), double(post.i16(10))};
    information.isMonospaced = post.u32(12) != 0;
}

bool isEnglish(const LocalizedName &name)
{
    return name.language == "en" || name.language.startsWith("en-");
}

} // namespace

QString nameIdText(quint16 nameId)
{
    const char *text = nameId < std::size(kNameKinds) ? kNameKinds[nameId] : nullptr;
    return text ? Texts::tr(text) : QString();
}

QString embeddingText(const EmbeddingRights &rights)
{
    using Usage = EmbeddingRights::Usage;
    static constexpr const char *kUsages[] = {
        QT_TRANSLATE_NOOP("FaceInformation", "Installable"),
        QT_TRANSLATE_NOOP("FaceInformation", "Restricted: not without the owner’s permission"),
        QT_TRANSLATE_NOOP("FaceInformation", "Preview and print"),
        QT_TRANSLATE_NOOP("FaceInformation", "Editable"),
    };
    static_assert(int(Usage::installable) == 0 && int(Usage::restricted) == 1
                  && int(Usage::previewAndPrint) == 2 && int(Usage::editable) == 3);
    const QString usage = Texts::tr(kUsages[int(rights.usage)]);
    if (rights.allowsSubsetting && !rights.allowsBitmapsOnly)
        return usage;
    //: %1 is what a licence lets documents do with the font that they embed, such as "Editable".
    if (rights.allowsSubsetting)
        return Texts::tr("%1, bitmaps only").arg(usage);
    return (rights.allowsBitmapsOnly ? Texts::tr("%1, no subsetting, bitmaps only")
                                     : Texts::tr("%1, no subsetting"))
        .arg(usage);
}

std::vector<LocalizedName> FaceInformation::namesOf(quint16 nameId) const
{
    std::vector<LocalizedName> found;
    std::copy_if(names.begin(), names.end(), std::back_inserter(found),
                 [nameId](const LocalizedName &name) { return name.nameId == nameId; });
    std::stable_partition(found.begin(), found.end(), isEnglish);
    return found;
}

QString FaceInformation::nameOf(quint16 nameId) const
{
    const std::vector<LocalizedName> found = namesOf(nameId);
    return found.empty() ? QString() : found.front().text;
}

FaceInformation readFaceInformation(const FontFace &face)
{
    FaceInformation information;
    const SfntDirectory &directory = face.data().directory;
    for (const TableEntry &entry : directory.tables)
        information.tables.emplace_back(entry.tag, entry.length);
    const auto opened = face.data().file->reopen();
    if (!opened)
        return information;
    const auto read = [&](FontTag tag, qint64 limit) {
        return Table(**opened, directory, tag, limit);
    };
    const Table names = read(fontTag('n', 'a', 'm', 'e'), kMaxNameTableBytes);
    const Table tags = read(fontTag('l', 't', 'a', 'g'), kMaxNameTableBytes);
    information.names = listNames(names.bytes(), tags.bytes());
    readHead(read(fontTag('h', 'e', 'a', 'd'), 54).view(), information);
    readOs2(read(fontTag('O', 'S', '/', '2'), 82).view(), information);
    readHhea(read(fontTag('h', 'h', 'e', 'a'), 36).view(), information);
    readPost(read(fontTag('p', 'o', 's', 't'), 32).view(), information);
    const Table substitution = read(fontTag('G', 'S', 'U', 'B'), kMaxScriptListBytes);
    const Table positioning = read(fontTag('G', 'P', 'O', 'S'), kMaxScriptListBytes);
    information.layoutLanguages = listLayoutLanguages(substitution.view(), positioning.view());
    const Table stat = read(fontTag('S', 'T', 'A', 'T'), kMaxStyleAttributesBytes);
    information.axisValues =
        listAxisValues(stat.view(), NameTable(names.bytes(), NameSelection::all), face.axes());
    return information;
}

} // namespace lorva
