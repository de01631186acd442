// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/features/FeatureTables.h"

#include "text/features/FeatureRegistry.h"
#include "text/FontFaceData.h"
#include "text/FontLimits.h"
#include "text/WarmFaces.h"

#include <algorithm>
#include <unordered_set>

namespace lorva {

namespace {

bool isPrintable(FontTag tag)
{
    for (int shift = 0; shift < 32; shift += 8) {
        const unsigned byte = (tag >> shift) & 0xFF;
        if (byte < 0x20 || byte > 0x7E)
            return false;
    }
    return true;
}

} // namespace

FeatureTables::FeatureTables(const FontFace &face)
{
    const FontFace::Data &data = face.data();
    m_warm = WarmFaces::instance().face(data.file, data.key.faceIndex, data.directory);
    readRecords(HB_OT_TAG_GSUB);
    readRecords(HB_OT_TAG_GPOS);
}

hb_face_t *FeatureTables::face() const
{
    return m_warm->face();
}

hb_font_t *FeatureTables::font() const
{
    return m_warm->font();
}

void FeatureTables::readRecords(hb_tag_t table)
{
    std::vector<hb_tag_t> tags(kMaxFeatureRecords);
    auto count = unsigned(tags.size());
    hb_ot_layout_table_get_feature_tags(face(), table, 0, &count, tags.data());
    for (unsigned i = 0; i < count; ++i) {
        if (isPrintable(tags[i]))
            m_records.push_back({table, i, tags[i]});
    }
}

std::vector<FontTag> FeatureTables::tags() const
{
    std::vector<FontTag> tags;
    std::unordered_set<FontTag> met;
    for (const Record &record : m_records) {
        if (met.insert(record.tag).second)
            tags.push_back(record.tag);
    }
    return tags;
}

FaceTexts::FaceTexts(const FontFace &face, const FeatureTables &tables)
    : m_face(face)
    , m_tables(tables)
{
}

QString FaceTexts::text(hb_ot_name_id_t id) const
{
    if (id > 0xFFFF)
        return {};
    if (!m_isRead) {
        m_isRead = true;
        if (const auto opened = m_face.data().file->reopen())
            m_bytes = readTable(**opened, m_face.data().directory, fontTag('n', 'a', 'm', 'e'),
                                kMaxNameTableBytes);
        m_names = NameTable(m_bytes, NameSelection::all);
    }
    return m_names.text(quint16(id), kMaxNameBytes);
}

std::optional<FaceTexts::NameIds> FaceTexts::nameIds(const FeatureTables::Record &record) const
{
    NameIds ids;
    if (!hb_ot_layout_feature_get_name_ids(m_tables.face(), record.table, record.index, &ids.label,
                                           &ids.toolTip, &ids.sample, &ids.valueCount,
                                           &ids.firstValue))
        return std::nullopt;
    return ids;
}

QString FaceTexts::featureLabel(FontTag tag) const
{
    if (!isNamedByFonts(tag))
        return {};
    for (const FeatureTables::Record &record : m_tables.records()) {
        const auto ids = record.tag == tag ? nameIds(record) : std::nullopt;
        if (const QString label = ids ? text(ids->label) : QString(); !label.isEmpty())
            return label;
    }
    return {};
}

std::vector<char32_t> FaceTexts::characters(const FeatureTables::Record &record) const
{
    std::vector<hb_codepoint_t> found(kMaxVariantCharacters);
    auto count = unsigned(found.size());
    hb_ot_layout_feature_get_characters(m_tables.face(), record.table, record.index, 0, &count,
                                        found.data());
    std::vector<char32_t> characters;
    for (unsigned i = 0; i < count; ++i) {
        if (found[i] != 0 && found[i] <= QChar::LastValidCodePoint)
            characters.push_back(found[i]);
    }
    return characters;
}

FeatureTexts FaceTexts::featureTexts(FontTag tag) const
{
    FeatureTexts texts;
    for (const FeatureTables::Record &record : m_tables.records()) {
        const auto ids = record.tag == tag ? nameIds(record) : std::nullopt;
        if (!ids)
            continue;
        texts.name = text(ids->label);
        texts.toolTip = text(ids->toolTip);
        texts.sampleText = text(ids->sample);
        for (unsigned i = 0; i < std::min(ids->valueCount, kMaxVariantValues); ++i)
            texts.valueNames.push_back(text(ids->firstValue + i));
        texts.characters = characters(record);
        break;
    }
    return texts;
}

} // namespace lorva
