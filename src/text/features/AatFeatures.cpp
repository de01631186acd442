// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/features/AatFeatures.h"

#include "text/features/FeatureRegistry.h"
#include "text/FontLimits.h"
#include "text/HeldTable.h"

#include <hb-aat.h>

#include <algorithm>
#include <map>
#include <set>

namespace lorva {

namespace {

/// Which pairs leave the subtables switched as they are at the start (`morx`, or the older `mort`):
/// the pairs that are on by themselves.
class ChainDefaults
{
public:
    explicit ChainDefaults(hb_face_t *face)
    {
        const HeldTable extended(face, fontTag('m', 'o', 'r', 'x'));
        if (!extended.view().isEmpty())
            readChains(extended.view(), 16);
        else
            readChains(HeldTable(face, fontTag('m', 'o', 'r', 't')).view(), 12);
    }

    std::optional<bool> isOn(FeaturePair pair) const
    {
        const auto found = m_isOn.find(pair);
        return found == m_isOn.end() ? std::nullopt : std::optional(found->second);
    }

private:
    /// A chain's header of 16 bytes counts its features in 32 bits, one of 12 in 16.
    void readChains(const TableView &table, quint64 headerSize)
    {
        const quint32 chains = std::min<quint32>(table.u32(4), kMaxAatChains);
        quint64 at = 8;
        for (quint32 i = 0; i < chains && table.has(at, headerSize); ++i) {
            const quint32 entries = headerSize == 16 ? table.u32(at + 8) : table.u16(at + 8);
            readChain(table, at, headerSize, std::min<quint32>(entries, kMaxAatSelectors));
            const quint32 length = table.u32(at + 4);
            if (length < headerSize)
                return;
            at += length;
        }
    }

    void readChain(const TableView &table, quint64 chain, quint64 headerSize, quint32 entries)
    {
        const quint32 defaults = table.u32(chain);
        for (quint32 i = 0; i < entries; ++i) {
            const quint64 at = chain + headerSize + quint64(i) * 12;
            if (!table.has(at, 12))
                return;
            const FeaturePair pair{table.u16(at), table.u16(at + 2)};
            const quint32 selected = (defaults & table.u32(at + 8)) | table.u32(at + 4);
            const bool isOnHere = selected == defaults;
            const auto [known, isNew] = m_isOn.emplace(pair, isOnHere);
            known->second = known->second && isOnHere;
        }
    }

    std::map<FeaturePair, bool, FeaturePairLess> m_isOn;
};

class Reader
{
public:
    Reader(const FeatureTables &tables, const FaceTexts &texts)
        : m_face(tables.face())
        , m_texts(texts)
        , m_defaults(tables.face())
    {
    }

    void readType(hb_aat_layout_feature_type_t type, std::vector<FontFeature> &features) const
    {
        std::vector<hb_aat_layout_feature_selector_info_t> selectors(kMaxAatSelectors);
        auto count = unsigned(selectors.size());
        unsigned standard = HB_AAT_LAYOUT_NO_SELECTOR_INDEX;
        hb_aat_layout_feature_type_get_selector_infos(m_face, type, 0, &count, selectors.data(),
                                                      &standard);
        QString typeName = m_texts.text(hb_aat_layout_feature_type_get_name_id(m_face, type));
        if (typeName.isEmpty())
            typeName = registeredTypeName(int(type));
        for (unsigned i = 0; i < count && features.size() < size_t(kMaxAatSelectors); ++i) {
            FontFeature feature = read({int(type), int(selectors[i].enable)}, selectors[i].name_id);
            feature.typeName = typeName;
            feature.isExclusive = standard != HB_AAT_LAYOUT_NO_SELECTOR_INDEX;
            if (feature.isExclusive)
                feature.isDefaultOn = i == standard;
            features.push_back(std::move(feature));
        }
    }

private:
    FontFeature read(FeaturePair pair, hb_ot_name_id_t nameId) const
    {
        FontFeature feature;
        feature.pair = pair;
        if (const auto answer = answerTo(pair)) {
            feature.tag = answer->tag;
            feature.value = answer->value;
        }
        feature.name = m_texts.text(nameId);
        if (feature.name.isEmpty())
            feature.name = registeredSelectorName(pair);
        if (feature.name.isEmpty() && feature.tag != 0 && feature.value != 0)
            feature.name = tagText(feature.tag);
        const bool isUsual = feature.tag != 0 && isOnByItself(feature.tag) == (feature.value != 0);
        feature.isDefaultOn = m_defaults.isOn(pair).value_or(isUsual);
        return feature;
    }

    hb_face_t *m_face;
    const FaceTexts &m_texts;
    const ChainDefaults m_defaults;
};

} // namespace

std::vector<FontFeature> aatFeatures(const FeatureTables &tables, const FaceTexts &texts)
{
    std::vector<FontFeature> features;
    std::vector<hb_aat_layout_feature_type_t> types(kMaxAatTypes);
    auto count = unsigned(types.size());
    if (hb_aat_layout_get_feature_types(tables.face(), 0, &count, types.data()) == 0)
        return features;
    const Reader reader(tables, texts);
    for (unsigned i = 0; i < count; ++i)
        reader.readType(types[i], features);
    std::vector<FontFeature> unique;
    std::set<FeaturePair, FeaturePairLess> met;
    for (FontFeature &feature : features) {
        if (met.insert(feature.pair).second)
            unique.push_back(std::move(feature));
    }
    return unique;
}

} // namespace lorva
