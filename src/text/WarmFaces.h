// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFileData.h"

#include <list>
#include <mutex>
#include <optional>
#include <unordered_map>

#include <hb.h>

namespace lorva {

/// HarfBuzz's view of one face; its tables are read when HarfBuzz first asks and stay for its
/// lifetime.
///
/// Immutable. Thread: any.
class WarmFace
{
public:
    WarmFace(const std::shared_ptr<const FontFile::Data> &file, const SfntDirectory &directory);

    hb_face_t *face() const { return m_face.get(); }
    /// At the default instance, scaled to unitsPerEm, immutable.
    hb_font_t *font() const { return m_font.get(); }
    /// The nominal glyph of a character; nothing for unmapped ones and for glyph 0.
    std::optional<quint32> glyphFor(char32_t scalar) const;
    /// Has everything read that drawing Latin text would ask for, in one opening of the file; once.
    void readForDrawing() const;
    /// What letting the face go would free at most.
    qint64 bytes() const;

private:
    struct TableSource;
    static hb_blob_t *referenceTable(hb_face_t *face, hb_tag_t tag, void *source);

    template <auto destroy>
    struct Destroy
    {
        template <class T>
        void operator()(T *object) const
        {
            destroy(object);
        }
    };
    /// Owned by the face.
    TableSource *m_source;
    std::unique_ptr<hb_face_t, Destroy<hb_face_destroy>> m_face;
    std::unique_ptr<hb_font_t, Destroy<hb_font_destroy>> m_font;
    mutable std::once_flag m_readOnce;
};

/// The faces used last, process-wide, within kWarmTableBytes of table bytes and kWarmFaces.
///
/// A face in use elsewhere is never let go; an idle one may be, and is made anew when next asked
/// for. Thread: any; files are read outside the lock.
class WarmFaces
{
public:
    static WarmFaces &instance();

    std::shared_ptr<const WarmFace> face(const std::shared_ptr<const FontFile::Data> &file,
                                         int faceIndex, const SfntDirectory &directory);

    /// Table bytes that HarfBuzz holds just now, in use or idle.
    static qint64 tableBytes();
    /// Lets every idle face go.
    void clear();

private:
    struct Key
    {
        FilePath path;
        FileIdentity identity;
        int faceIndex = 0;
        bool operator==(const Key &) const = default;
    };
    struct KeyHash
    {
        size_t operator()(const Key &key) const
        {
            return qHashMulti(0, key.identity.inode, key.identity.modifiedNs, key.faceIndex);
        }
    };
    struct Entry
    {
        Key key;
        std::shared_ptr<const WarmFace> face;
    };
    using Entries = std::list<Entry>;

    std::shared_ptr<const WarmFace> find(const Key &key);
    std::shared_ptr<const WarmFace> insert(Key key, std::shared_ptr<const WarmFace> face);
    void evictIdle(qint64 budget, size_t count, Entries &evicted);

    std::mutex m_mutex;
    /// Most recently used first.
    Entries m_entries;
    std::unordered_map<Key, Entries::iterator, KeyHash> m_index;
};

} // namespace lorva
