// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/FontBuilder.h"

#include <QChar>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace lorva::test {

namespace {

constexpr int kAdvance = 600;
constexpr int kBoxLeft = 50;
constexpr int kBoxWidth = 500;

/// Appends big-endian numbers, as every sfnt table is written.
class Writer
{
public:
    Writer &u8(quint32 v)
    {
        bytes.append(char(v));
        return *this;
    }
    Writer &u16(qint64 v) { return u8(quint32(v >> 8)).u8(quint32(v)); }
    Writer &u32(qint64 v) { return u16(v >> 16).u16(v & 0xFFFF); }
    Writer &fixed(double v) { return u32(qint64(std::lround(v * 65536.0)) & 0xFFFFFFFF); }
    Writer &raw(const QByteArray &v)
    {
        bytes.append(v);
        return *this;
    }
    Writer &zeros(int count) { return raw(QByteArray(count, '\0')); }
    Writer &padTo(int multiple)
    {
        while (bytes.size() % multiple != 0)
            bytes.append('\0');
        return *this;
    }

    QByteArray bytes;
};

QByteArray utf16(const QString &text)
{
    Writer out;
    for (const QChar unit : text)
        out.u16(unit.unicode());
    return out.bytes;
}

quint32 readU32(const QByteArray &bytes, qsizetype at)
{
    quint32 value = 0;
    for (int i = 0; i < 4; ++i)
        value = (value << 8) | quint8(at + i < bytes.size() ? bytes[at + i] : 0);
    return value;
}

void writeU32(QByteArray &bytes, qsizetype at, quint32 value)
{
    bytes.replace(at, 4, Writer().u32(value).bytes);
}

quint32 checksum(const QByteArray &bytes)
{
    quint32 sum = 0;
    for (qsizetype at = 0; at < bytes.size(); at += 4)
        sum += readU32(bytes, at);
    return sum;
}

bool hasInk(char32_t character)
{
    return !QChar::isSpace(character);
}

QByteArray boxGlyph(int height, bool isHollow)
{
    const int right = kBoxLeft + kBoxWidth;
    Writer out;
    out.u16(isHollow ? 2 : 1).u16(kBoxLeft).u16(0).u16(right).u16(height);
    out.u16(3);
    if (isHollow)
        out.u16(7);
    out.u16(0);
    const int points = isHollow ? 8 : 4;
    for (int i = 0; i < points; ++i)
        out.u8(1);
    const int w = kBoxWidth;
    const int h = height;
    out.u16(kBoxLeft).u16(0).u16(w).u16(0);
    if (isHollow)
        out.u16(-w + 60).u16(w - 120).u16(0).u16(-w + 120);
    out.u16(0).u16(h).u16(0).u16(-h);
    if (isHollow)
        out.u16(60).u16(0).u16(h - 120).u16(0);
    return out.padTo(4).bytes;
}

/// OpenType "Organization of an OpenType Font": the table directory and the tables behind it.
QByteArray assemble(quint32 version, const std::map<QByteArray, QByteArray> &tables)
{
    const int count = int(tables.size());
    const int power = count > 0 ? int(std::floor(std::log2(count))) : 0;
    Writer out;
    out.u32(version).u16(count).u16(16 << power).u16(power).u16(count * 16 - (16 << power));
    qint64 offset = 12 + 16 * count;
    for (const auto &[tag, bytes] : tables) {
        out.raw(tag).u32(checksum(bytes)).u32(offset).u32(bytes.size());
        offset += (bytes.size() + 3) / 4 * 4;
    }
    for (const auto &[tag, bytes] : tables)
        out.raw(bytes).padTo(4);
    return out.bytes;
}

} // namespace

FontBuilder::FontBuilder(const QString &family, const QString &style)
{
    std::u32string ascii;
    for (char32_t c = 0x20; c < 0x7F; ++c)
        ascii.push_back(c);
    codePoints(ascii);
    name(1, family).name(2, style);
}

FontBuilder &FontBuilder::name(int nameId, const QString &text, int language)
{
    return rawName(3, 1, language, nameId, utf16(text));
}

FontBuilder &FontBuilder::rawName(int platform, int encoding, int language, int nameId,
                                  const QByteArray &bytes)
{
    const auto same = [&](const NameRecord &r) {
        return r.platform == platform && r.encoding == encoding && r.language == language
            && r.nameId == nameId;
    };
    std::erase_if(m_names, same);
    m_names.push_back({platform, encoding, language, nameId, bytes});
    return *this;
}

FontBuilder &FontBuilder::withoutNames()
{
    m_names.clear();
    return *this;
}

FontBuilder &FontBuilder::weightClass(int value)
{
    m_weightClass = value;
    return *this;
}

FontBuilder &FontBuilder::italic()
{
    return fsSelection(0x01).macStyle(0x02).italicAngle(-12);
}

FontBuilder &FontBuilder::fsSelection(int bits)
{
    m_fsSelection = bits;
    return *this;
}

FontBuilder &FontBuilder::macStyle(int bits)
{
    m_macStyle = bits;
    return *this;
}

FontBuilder &FontBuilder::italicAngle(double degrees)
{
    m_italicAngle = degrees;
    return *this;
}

FontBuilder &FontBuilder::unitsPerEm(int units)
{
    m_unitsPerEm = units;
    return *this;
}

FontBuilder &FontBuilder::capHeight(int units)
{
    m_capHeight = units;
    return *this;
}

FontBuilder &FontBuilder::xHeight(int units)
{
    m_xHeight = units;
    return *this;
}

FontBuilder &FontBuilder::os2Version(int version)
{
    m_os2Version = version;
    return *this;
}

FontBuilder &FontBuilder::codePoints(const std::u32string &characters)
{
    m_glyphs.clear();
    for (const char32_t c : characters)
        m_glyphs[c] = 0;
    int glyph = 1;
    for (auto &[character, id] : m_glyphs)
        id = glyph++;
    return *this;
}

FontBuilder &FontBuilder::advance(char32_t character, int units)
{
    m_advances[character] = units;
    return *this;
}

FontBuilder &FontBuilder::substitution(const char *feature, char32_t from, char32_t to)
{
    m_substitutions.push_back({feature, from, to});
    return *this;
}

FontBuilder &FontBuilder::axis(const char *tag, double minimum, double standard, double maximum,
                               bool isHidden)
{
    m_axes.push_back(
        {tag, minimum, standard, maximum, isHidden, addName(QString::fromLatin1(tag))});
    return *this;
}

FontBuilder &FontBuilder::instance(const QString &name, const std::vector<double> &coordinates,
                                   const QString &postScriptName)
{
    const int nameId = addName(name);
    const int postScriptId = postScriptName.isEmpty() ? -1 : addName(postScriptName);
    m_instances.push_back({nameId, postScriptId, coordinates});
    return *this;
}

FontBuilder &FontBuilder::table(const char *tag, const QByteArray &bytes)
{
    m_tables[tag] = bytes.isNull() ? QByteArray("") : bytes;
    return *this;
}

FontBuilder &FontBuilder::withoutTable(const char *tag)
{
    m_tables[tag] = QByteArray();
    return *this;
}

FontBuilder &FontBuilder::sfntVersion(quint32 version)
{
    m_sfntVersion = version;
    return *this;
}

int FontBuilder::glyphOf(char32_t character) const
{
    const auto found = m_glyphs.find(character);
    return found == m_glyphs.end() ? 0 : found->second;
}

QByteArray FontBuilder::build() const
{
    std::map<QByteArray, QByteArray> tables = standardTables();
    for (const auto &[tag, bytes] : m_tables) {
        if (bytes.isNull())
            tables.erase(tag);
        else
            tables[tag] = bytes;
    }
    return assemble(m_sfntVersion, tables);
}

QByteArray FontBuilder::collection(const QList<QByteArray> &fonts)
{
    Writer out;
    out.raw("ttcf").u32(0x00010000).u32(fonts.size());
    qint64 start = 12 + 4 * fonts.size();
    for (const QByteArray &font : fonts) {
        out.u32(start);
        start += (font.size() + 3) / 4 * 4;
    }
    for (QByteArray font : fonts) {
        // Table offsets count from the start of the file, not of the face.
        const quint32 shift = quint32(out.bytes.size());
        const int count = int(readU32(font, 4) >> 16);
        for (int i = 0; i < count; ++i)
            writeU32(font, 12 + 16 * i + 8, readU32(font, 12 + 16 * i + 8) + shift);
        out.raw(font).padTo(4);
    }
    return out.bytes;
}

/// Inside Macintosh "Resource Manager": the format of a resource fork.
QByteArray FontBuilder::dfont(const QList<QByteArray> &fonts)
{
    constexpr int kDataStart = 256;
    Writer data;
    Writer references;
    for (int i = 0; i < fonts.size(); ++i) {
        references.u16(128 + i).u16(0xFFFF).u32(data.bytes.size() & 0xFFFFFF).u32(0);
        data.u32(fonts[i].size()).raw(fonts[i]);
    }
    Writer header;
    const qint64 mapSize = 28 + 10 + references.bytes.size();
    header.u32(kDataStart).u32(kDataStart + data.bytes.size()).u32(data.bytes.size()).u32(mapSize);
    Writer map;
    map.raw(header.bytes).u32(0).u16(0).u16(0).u16(28).u16(mapSize);
    map.u16(0).raw("sfnt").u16(fonts.size() - 1).u16(10).raw(references.bytes);
    return Writer().raw(header.bytes).zeros(kDataStart - 16).raw(data.bytes).raw(map.bytes).bytes;
}

int FontBuilder::addName(const QString &text)
{
    const int id = m_nextNameId++;
    name(id, text);
    return id;
}

std::map<QByteArray, QByteArray> FontBuilder::standardTables() const
{
    std::map<QByteArray, QByteArray> tables{
        {"name", nameTable()}, {"OS/2", os2Table()},  {"head", headTable()}, {"hhea", hheaTable()},
        {"hmtx", hmtxTable()}, {"maxp", maxpTable()}, {"post", postTable()}, {"cmap", cmapTable()},
    };
    addOutlines(tables);
    if (!m_axes.empty())
        tables["fvar"] = fvarTable();
    if (!m_substitutions.empty())
        tables["GSUB"] = gsubTable();
    return tables;
}

int FontBuilder::boxHeight(char32_t character) const
{
    return QChar::isLower(character) ? m_xHeight : m_capHeight;
}

QByteArray FontBuilder::nameTable() const
{
    std::vector<NameRecord> records = m_names;
    std::stable_sort(records.begin(), records.end(), [](const auto &a, const auto &b) {
        return std::tie(a.platform, a.encoding, a.language, a.nameId)
            < std::tie(b.platform, b.encoding, b.language, b.nameId);
    });
    Writer out;
    Writer storage;
    out.u16(0).u16(qint64(records.size())).u16(6 + 12 * qint64(records.size()));
    for (const NameRecord &r : records) {
        out.u16(r.platform).u16(r.encoding).u16(r.language).u16(r.nameId);
        out.u16(r.bytes.size()).u16(storage.bytes.size());
        storage.raw(r.bytes);
    }
    return out.raw(storage.bytes).bytes;
}

QByteArray FontBuilder::os2Table() const
{
    Writer out;
    out.u16(m_os2Version).u16(kAdvance).u16(m_weightClass).u16(5).u16(0);
    out.zeros(20).u16(0).zeros(10).zeros(16).raw("LRVA").u16(m_fsSelection);
    out.u16(m_glyphs.empty() ? 0 : qint64(std::min<char32_t>(m_glyphs.begin()->first, 0xFFFF)));
    out.u16(m_glyphs.empty() ? 0 : qint64(std::min<char32_t>(m_glyphs.rbegin()->first, 0xFFFF)));
    out.u16(m_unitsPerEm * 8 / 10).u16(-(m_unitsPerEm * 2 / 10)).u16(0);
    out.u16(m_unitsPerEm).u16(m_unitsPerEm * 3 / 10);
    if (m_os2Version >= 1)
        out.zeros(8);
    if (m_os2Version >= 2)
        out.u16(m_xHeight).u16(m_capHeight).u16(0).u16(32).u16(2);
    return out.bytes;
}

QByteArray FontBuilder::headTable() const
{
    Writer out;
    out.u32(0x00010000).u32(0x00010000).u32(0).u32(0x5F0F3CF5).u16(3).u16(m_unitsPerEm);
    out.zeros(16).u16(0).u16(0).u16(kAdvance).u16(m_capHeight);
    return out.u16(m_macStyle).u16(8).u16(2).u16(1).u16(0).bytes;
}

QByteArray FontBuilder::hheaTable() const
{
    Writer out;
    out.u32(0x00010000).u16(m_unitsPerEm * 8 / 10).u16(-(m_unitsPerEm * 2 / 10)).u16(0);
    out.u16(kAdvance).u16(kBoxLeft).u16(kBoxLeft).u16(kBoxLeft + kBoxWidth).u16(1).u16(0).u16(0);
    return out.zeros(10).u16(1 + qint64(m_glyphs.size())).bytes;
}

QByteArray FontBuilder::hmtxTable() const
{
    Writer out;
    out.u16(kAdvance).u16(kBoxLeft);
    for (const auto &[character, glyph] : m_glyphs) {
        const auto own = m_advances.find(character);
        out.u16(own == m_advances.end() ? kAdvance : own->second).u16(kBoxLeft);
    }
    return out.bytes;
}

QByteArray FontBuilder::maxpTable() const
{
    Writer out;
    out.u32(0x00010000).u16(1 + qint64(m_glyphs.size())).u16(8).u16(2);
    return out.zeros(4).u16(2).zeros(16).bytes;
}

QByteArray FontBuilder::postTable() const
{
    return Writer().u32(0x00030000).fixed(m_italicAngle).u16(-100).u16(50).zeros(20).bytes;
}

/// OpenType `cmap` formats 4 and 12, one segment per character.
QByteArray FontBuilder::cmapTable() const
{
    std::vector<std::pair<char32_t, int>> basic;
    for (const auto &entry : m_glyphs)
        if (entry.first < 0xFFFF)
            basic.push_back(entry);
    const int segments = int(basic.size()) + 1;
    Writer format4;
    format4.u16(4).u16(16 + 8 * segments).u16(0).u16(2 * segments);
    const int power = int(std::floor(std::log2(segments)));
    format4.u16(2 << power).u16(power).u16(2 * segments - (2 << power));
    for (const auto &[character, glyph] : basic)
        format4.u16(character);
    format4.u16(0xFFFF).u16(0);
    for (const auto &[character, glyph] : basic)
        format4.u16(character);
    format4.u16(0xFFFF);
    for (const auto &[character, glyph] : basic)
        format4.u16((glyph - int(character)) & 0xFFFF);
    format4.u16(1).zeros(2 * segments);

    Writer format12;
    const qint64 groups = qint64(m_glyphs.size());
    format12.u16(12).u16(0).u32(16 + 12 * groups).u32(0).u32(groups);
    for (const auto &[character, glyph] : m_glyphs)
        format12.u32(character).u32(character).u32(glyph);

    const bool needsWide = basic.size() != m_glyphs.size();
    Writer out;
    out.u16(0).u16(needsWide ? 2 : 1).u16(3).u16(1).u32(needsWide ? 20 : 12);
    if (needsWide)
        out.u16(3).u16(10).u32(20 + format4.bytes.size());
    out.raw(format4.bytes);
    return (needsWide ? out.raw(format12.bytes) : out).bytes;
}

QByteArray FontBuilder::fvarTable() const
{
    const bool hasPostScriptNames =
        std::any_of(m_instances.begin(), m_instances.end(),
                    [](const Instance &i) { return i.postScriptNameId >= 0; });
    const qint64 axes = qint64(m_axes.size());
    Writer out;
    out.u32(0x00010000).u16(16).u16(2).u16(axes).u16(20).u16(qint64(m_instances.size()));
    out.u16(4 + 4 * axes + (hasPostScriptNames ? 2 : 0));
    for (const Axis &a : m_axes) {
        out.raw(a.tag).fixed(a.minimum).fixed(a.standard).fixed(a.maximum);
        out.u16(a.isHidden ? 1 : 0).u16(a.nameId);
    }
    for (const Instance &i : m_instances) {
        out.u16(i.nameId).u16(0);
        for (qint64 a = 0; a < axes; ++a)
            out.fixed(size_t(a) < i.coordinates.size() ? i.coordinates[size_t(a)] : 0);
        if (hasPostScriptNames)
            out.u16(i.postScriptNameId >= 0 ? i.postScriptNameId : 0xFFFF);
    }
    return out.bytes;
}

/// OpenType `GSUB`: one feature, one lookup and one single substitution (format 2) per request.
QByteArray FontBuilder::gsubTable() const
{
    std::vector<Substitution> sorted = m_substitutions;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto &a, const auto &b) { return a.feature < b.feature; });
    const qint64 count = qint64(sorted.size());
    Writer scripts;
    scripts.u16(1).raw("DFLT").u16(8).u16(4).u16(0).u16(0).u16(0xFFFF).u16(count);
    for (qint64 i = 0; i < count; ++i)
        scripts.u16(i);
    Writer features;
    features.u16(count);
    for (qint64 i = 0; i < count; ++i)
        features.raw(sorted[size_t(i)].feature).u16(2 + 6 * count + 6 * i);
    for (qint64 i = 0; i < count; ++i)
        features.u16(0).u16(1).u16(i);
    Writer lookups;
    lookups.u16(count);
    for (qint64 i = 0; i < count; ++i)
        lookups.u16(2 + 2 * count + 22 * i);
    for (const Substitution &s : sorted) {
        lookups.u16(1).u16(0).u16(1).u16(8);
        lookups.u16(2).u16(8).u16(1).u16(glyphOf(s.to));
        lookups.u16(1).u16(1).u16(glyphOf(s.from));
    }
    Writer out;
    out.u32(0x00010000).u16(10).u16(10 + scripts.bytes.size());
    out.u16(10 + scripts.bytes.size() + features.bytes.size());
    return out.raw(scripts.bytes).raw(features.bytes).raw(lookups.bytes).bytes;
}

void FontBuilder::addOutlines(std::map<QByteArray, QByteArray> &tables) const
{
    Writer glyf;
    Writer loca;
    loca.u32(0);
    glyf.raw(boxGlyph(m_capHeight, true));
    for (const auto &[character, glyph] : m_glyphs) {
        loca.u32(glyf.bytes.size());
        if (hasInk(character))
            glyf.raw(boxGlyph(boxHeight(character), false));
    }
    tables["loca"] = loca.u32(glyf.bytes.size()).bytes;
    tables["glyf"] = glyf.bytes;
}

} // namespace lorva::test
