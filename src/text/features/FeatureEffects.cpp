// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/features/FeatureReach.h"
#include "text/features/LayoutLookups.h"
#include "text/FontLimits.h"
#include "text/HeldTable.h"

#include <QSet>

#include <algorithm>
#include <map>

namespace lorva {

namespace {

constexpr size_t kMaxLigaturesTold = 200;

using SetPtr = std::unique_ptr<hb_set_t, decltype(&hb_set_destroy)>;

/// The lookups of a feature in one table, whatever script and language; at most
/// kMaxFeatureLookups.
std::vector<quint32> lookupsOf(const FeatureTables &tables, hb_tag_t table, FontTag tag)
{
    const SetPtr lookups(hb_set_create(), &hb_set_destroy);
    for (const FeatureTables::Record &record : tables.records()) {
        if (record.table != table || record.tag != tag)
            continue;
        std::vector<unsigned> indices(kMaxFeatureLookups);
        auto count = unsigned(indices.size());
        hb_ot_layout_feature_get_lookups(tables.face(), table, record.index, 0, &count,
                                         indices.data());
        for (unsigned i = 0; i < count; ++i)
            hb_set_add(lookups.get(), indices[i]);
    }
    std::vector<quint32> found;
    hb_codepoint_t lookup = HB_SET_VALUE_INVALID;
    while (hb_set_next(lookups.get(), &lookup) && found.size() < size_t(kMaxFeatureLookups))
        found.push_back(lookup);
    return found;
}

/// What one feature does, table by table.
class EffectReader
{
public:
    EffectReader(const FontFace &face, const FeatureTables &tables, FontTag tag)
        : m_face(face)
        , m_tables(tables)
        , m_tag(tag)
        , m_characters(charactersByGlyph(face))
        , m_touched(size_t(std::max(0, face.glyphCount())))
    {
    }

    FeatureReach read()
    {
        readTable(HB_OT_TAG_GSUB, LayoutLookups::Kind::substitution);
        readTable(HB_OT_TAG_GPOS, LayoutLookups::Kind::positioning);
        FeatureReach reach;
        reach.effect = effect();
        for (size_t glyph = 0; glyph < m_touched.size(); ++glyph) {
            if (m_touched[glyph] && character(quint32(glyph)) != 0)
                reach.characters.push_back(character(quint32(glyph)));
        }
        return reach;
    }

private:
    FeatureEffect effect()
    {
        FeatureEffect effect;
        effect.touchedGlyphs = int(std::count(m_touched.begin(), m_touched.end(), true));
        for (auto &[glyph, alternates] : m_substitutions)
            effect.substitutions.push_back({glyph, std::move(alternates), character(glyph)});
        std::stable_sort(m_ligatures.begin(), m_ligatures.end(),
                         [](const QString &a, const QString &b) { return a.size() < b.size(); });
        effect.ligatures = std::move(m_ligatures);
        if (effect.ligatures.size() > kMaxLigaturesTold)
            effect.ligatures.resize(kMaxLigaturesTold);
        return effect;
    }

    void readTable(hb_tag_t table, LayoutLookups::Kind kind)
    {
        const std::vector<quint32> lookups = lookupsOf(m_tables, table, m_tag);
        if (lookups.empty())
            return;
        const HeldTable held(m_tables.face(), table);
        LayoutLookups reader(held.bytes(held.view().size()), kind, m_face.glyphCount());
        for (const quint32 lookup : lookups) {
            reader.forEachInput(lookup, [this](quint32 glyph) { touch(glyph); });
            if (kind != LayoutLookups::Kind::substitution)
                continue;
            // The first lookup that changes a glyph decides.
            reader.forEachAlternate(lookup, [this](quint32 glyph, const auto &alternates) {
                m_substitutions.try_emplace(glyph, alternates);
                return m_substitutions.size() < size_t(kMaxFeatureEffects);
            });
            reader.forEachLigature(
                lookup, [this](const std::vector<quint32> &glyphs) { return addLigature(glyphs); });
        }
    }

    void touch(quint32 glyph)
    {
        if (glyph < m_touched.size())
            m_touched[glyph] = true;
    }

    bool addLigature(const std::vector<quint32> &glyphs)
    {
        if (m_ligatures.size() >= size_t(kMaxFeatureEffects))
            return false;
        QString text;
        for (const quint32 glyph : glyphs) {
            const char32_t scalar = character(glyph);
            if (scalar == 0)
                return true;
            text += QString::fromUcs4(&scalar, 1);
        }
        if (!m_knownLigatures.contains(text)) {
            m_knownLigatures.insert(text);
            m_ligatures.push_back(std::move(text));
        }
        return true;
    }

    char32_t character(quint32 glyph) const
    {
        return glyph < m_characters.size() ? m_characters[glyph] : 0;
    }

    const FontFace &m_face;
    const FeatureTables &m_tables;
    const FontTag m_tag;
    const std::vector<char32_t> m_characters;
    std::vector<bool> m_touched;
    std::map<quint32, std::vector<quint32>> m_substitutions;
    std::vector<QString> m_ligatures;
    QSet<QString> m_knownLigatures;
};

} // namespace

FeatureReach featureReach(const FontFace &face, const FeatureTables &tables, FontTag tag)
{
    return EffectReader(face, tables, tag).read();
}

FeatureEffect featureEffect(const FontFace &face, FontTag tag)
{
    return featureReach(face, FeatureTables(face), tag).effect;
}

} // namespace lorva
