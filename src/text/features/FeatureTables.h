// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFeatures.h"
#include "text/names/NameTable.h"

#include <hb-ot.h>

namespace lorva {

class WarmFace;

/// The layout features of a face, as HarfBuzz reads them.
///
/// Keeps the face's tables in memory while it lives. Thread: any, one at a time per object.
class FeatureTables
{
public:
    struct Record
    {
        /// HB_OT_TAG_GSUB or HB_OT_TAG_GPOS.
        hb_tag_t table = 0;
        unsigned index = 0;
        FontTag tag = 0;
    };

    explicit FeatureTables(const FontFace &face);

    hb_face_t *face() const;
    hb_font_t *font() const;
    /// Of `GSUB`, then of `GPOS`, those of all scripts and languages, at most kMaxFeatureRecords of
    /// each.
    const std::vector<Record> &records() const { return m_records; }
    /// Each once, in order of first appearance.
    std::vector<FontTag> tags() const;

private:
    void readRecords(hb_tag_t table);

    std::shared_ptr<const WarmFace> m_warm;
    std::vector<Record> m_records;
};

/// What the naming table calls features. Reads it when first asked.
class FaceTexts
{
public:
    FaceTexts(const FontFace &face, const FeatureTables &tables);

    /// Empty when there is none.
    QString text(hb_ot_name_id_t id) const;
    /// The font's own name of a stylistic set or character variant; empty when there is none.
    QString featureLabel(FontTag tag) const;
    FeatureTexts featureTexts(FontTag tag) const;

private:
    struct NameIds
    {
        hb_ot_name_id_t label = HB_OT_NAME_ID_INVALID;
        hb_ot_name_id_t toolTip = HB_OT_NAME_ID_INVALID;
        hb_ot_name_id_t sample = HB_OT_NAME_ID_INVALID;
        unsigned valueCount = 0;
        hb_ot_name_id_t firstValue = HB_OT_NAME_ID_INVALID;
    };

    std::vector<char32_t> characters(const FeatureTables::Record &record) const;
    std::optional<NameIds> nameIds(const FeatureTables::Record &record) const;

    const FontFace &m_face;
    const FeatureTables &m_tables;
    mutable bool m_isRead = false;
    mutable QByteArray m_bytes;
    mutable NameTable m_names;
};

} // namespace lorva
