// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/WarmFaces.h"

#include "text/FontLimits.h"
#include "text/TableBytes.h"

#include <hb-ot.h>

#include <algorithm>
#include <atomic>
#include <limits>
#include <map>
#include <tuple>

namespace lorva {

namespace {

/// HarfBuzz's own objects of all faces that live.
std::atomic<qint64> overheadBytes = 0;

using SharedTable = std::shared_ptr<const TableBytes>;

/// The large tables in memory, so that the ten faces of a CJK collection hold their common outlines
/// once. Thread: any.
class LargeTables
{
public:
    /// Smaller tables cost less to read again than to look up.
    static constexpr quint32 kSmallest = 64 << 10;

    SharedTable find(const FileIdentity &identity, const TableEntry &entry)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_tables.find(keyOf(identity, entry));
        return found == m_tables.end() ? nullptr : found->second.lock();
    }
    void insert(const FileIdentity &identity, const TableEntry &entry, const SharedTable &table)
    {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_tables, [](const auto &item) { return item.second.expired(); });
        m_tables[keyOf(identity, entry)] = table;
    }

private:
    using Key = std::tuple<quint64, quint64, qint64, qint64, quint64, quint32>;
    static Key keyOf(const FileIdentity &i, const TableEntry &e)
    {
        return {i.device, i.inode, i.size, i.modifiedNs, e.offset, e.length};
    }

    std::mutex m_mutex;
    std::map<Key, std::weak_ptr<const TableBytes>> m_tables;
};

LargeTables &largeTables()
{
    // Never destroyed, as the faces that ask for them.
    static auto *tables = new LargeTables;
    return *tables;
}

/// Outlines and pictures are looked at glyph by glyph.
TableUse useOf(FontTag tag)
{
    constexpr FontTag kOfGlyphs[]{fontTag('g', 'l', 'y', 'f'), fontTag('C', 'F', 'F', ' '),
                                  fontTag('C', 'F', 'F', '2'), fontTag('C', 'B', 'D', 'T'),
                                  fontTag('s', 'b', 'i', 'x'), fontTag('S', 'V', 'G', ' ')};
    return std::find(std::begin(kOfGlyphs), std::end(kOfGlyphs), tag) != std::end(kOfGlyphs)
        ? TableUse::pieces
        : TableUse::whole;
}

/// HarfBuzz's own objects of one face, lookup accelerators included; about.
constexpr qint64 kFaceOverhead = 8 << 10;

} // namespace

/// What HarfBuzz's table requests are answered from.
struct WarmFace::TableSource
{
    TableSource(std::shared_ptr<const FontFile::Data> fontFile, SfntDirectory tables)
        : file(std::move(fontFile))
        , directory(std::move(tables))
    {
        overheadBytes += kFaceOverhead;
    }
    ~TableSource() { overheadBytes -= kFaceOverhead; }
    TableSource(const TableSource &) = delete;
    TableSource &operator=(const TableSource &) = delete;

    SharedTable load(FontTag tag);
    SharedTable find(const TableEntry &entry, FontTag tag) const;
    SharedTable read(const TableEntry &entry, FontTag tag) const;

    const std::shared_ptr<const FontFile::Data> file;
    const SfntDirectory directory;
    /// Of this face, so that a file of overlapping giant tables cannot fill the memory.
    std::atomic<qint64> loadedBytes = 0;
    std::atomic<qint64> loadedWeight = 0;
};

SharedTable WarmFace::TableSource::load(FontTag tag)
{
    const TableEntry *entry = directory.find(tag);
    if (!entry || entry->length == 0 || entry->length > kMaxTableBytes)
        return nullptr;
    if (loadedBytes.fetch_add(entry->length) + entry->length > kMaxFaceBytes)
        return nullptr;
    const SharedTable table = find(*entry, tag);
    if (table)
        loadedWeight += table->weight();
    return table;
}

SharedTable WarmFace::TableSource::find(const TableEntry &entry, FontTag tag) const
{
    if (entry.length < LargeTables::kSmallest)
        return read(entry, tag);
    if (SharedTable known = largeTables().find(file->identity, entry))
        return known;
    SharedTable table = read(entry, tag);
    if (table)
        largeTables().insert(file->identity, entry, table);
    return table;
}

SharedTable WarmFace::TableSource::read(const TableEntry &entry, FontTag tag) const
{
    const auto opened = file->reopen();
    return opened ? TableBytes::load(**opened, entry.offset, entry.length, useOf(tag)) : nullptr;
}

hb_blob_t *WarmFace::referenceTable(hb_face_t *, hb_tag_t tag, void *source)
{
    const SharedTable table = static_cast<TableSource *>(source)->load(tag);
    if (!table)
        return nullptr;
    // Read-only, so that HarfBuzz copies before it mends a damaged table that others share.
    return hb_blob_create(table->data(), table->size(), HB_MEMORY_MODE_READONLY,
                          new SharedTable(table),
                          [](void *held) { delete static_cast<SharedTable *>(held); });
}

WarmFace::WarmFace(const std::shared_ptr<const FontFile::Data> &file,
                   const SfntDirectory &directory)
    : m_source(new TableSource(file, directory))
{
    m_face.reset(hb_face_create_for_tables(
        referenceTable, m_source, [](void *owned) { delete static_cast<TableSource *>(owned); }));
    hb_face_make_immutable(m_face.get());
    m_font.reset(hb_font_create(m_face.get()));
    const int unitsPerEm = int(hb_face_get_upem(m_face.get()));
    hb_font_set_scale(m_font.get(), unitsPerEm, unitsPerEm);
    hb_font_make_immutable(m_font.get());
}

std::optional<quint32> WarmFace::glyphFor(char32_t scalar) const
{
    hb_codepoint_t glyph = 0;
    if (!hb_font_get_nominal_glyph(font(), scalar, &glyph) || glyph == 0)
        return std::nullopt;
    return glyph;
}

/// Opening the file anew for each of some fifteen tables would cost as much as shaping a line.
void WarmFace::readForDrawing() const
{
    std::call_once(m_readOnce, [this] {
        const auto opened = m_source->file->reopen();
        if (!opened)
            return;
        m_source->file->keepOpen(*opened);
        hb_codepoint_t glyph = 0;
        hb_glyph_extents_t extents;
        hb_font_extents_t lineExtents;
        hb_font_get_nominal_glyph(font(), U'x', &glyph);
        hb_font_get_glyph_h_advance(font(), glyph);
        hb_font_get_glyph_extents(font(), glyph, &extents);
        hb_font_get_h_extents(font(), &lineExtents);
        hb_ot_layout_has_glyph_classes(face());
        hb_ot_layout_has_substitution(face());
        hb_ot_layout_has_positioning(face());
    });
}

qint64 WarmFace::bytes() const
{
    return kFaceOverhead + m_source->loadedWeight;
}

WarmFaces &WarmFaces::instance()
{
    // Never destroyed: workers may still be drawing while the process ends.
    static auto *faces = new WarmFaces;
    return *faces;
}

std::shared_ptr<const WarmFace> WarmFaces::face(const std::shared_ptr<const FontFile::Data> &file,
                                                int faceIndex, const SfntDirectory &directory)
{
    Key key{file->path, file->identity, faceIndex};
    if (auto known = find(key))
        return known;
    return insert(std::move(key), std::make_shared<const WarmFace>(file, directory));
}

std::shared_ptr<const WarmFace> WarmFaces::find(const Key &key)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_index.find(key);
    if (found == m_index.end())
        return nullptr;
    m_entries.splice(m_entries.begin(), m_entries, found->second);
    return found->second->face;
}

std::shared_ptr<const WarmFace> WarmFaces::insert(Key key, std::shared_ptr<const WarmFace> face)
{
    Entries evicted; // freed after the lock: destroying a face takes time
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_index.find(key); found != m_index.end())
        return found->second->face;
    evictIdle(kWarmTableBytes, kWarmFaces - 1, evicted);
    m_entries.push_front({std::move(key), face});
    m_index[m_entries.front().key] = m_entries.begin();
    return face;
}

/// Tables are read after a face is inserted, so the bytes are weighed when the next one comes.
void WarmFaces::evictIdle(qint64 budget, size_t count, Entries &evicted)
{
    qint64 excess = tableBytes() - budget;
    for (auto entry = m_entries.end();
         (excess > 0 || m_entries.size() > count) && entry != m_entries.begin();) {
        --entry;
        if (entry->face.use_count() > 1)
            continue;
        excess -= entry->face->bytes();
        const auto next = std::next(entry);
        m_index.erase(entry->key);
        evicted.splice(evicted.begin(), m_entries, entry);
        entry = next;
    }
}

qint64 WarmFaces::tableBytes()
{
    return TableBytes::total() + overheadBytes;
}

void WarmFaces::clear()
{
    Entries evicted;
    const std::lock_guard lock(m_mutex);
    evictIdle(std::numeric_limits<qint64>::min() / 2, 0, evicted);
}

} // namespace lorva
