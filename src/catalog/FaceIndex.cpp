// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FaceIndex.h"

#include <QHashFunctions>

#include <algorithm>
#include <tuple>

namespace lorva {

namespace {

quint32 hashOf(const QString &name)
{
    return quint32(qHash(name));
}

} // namespace

int fontManagerWeight(qint64 weight)
{
    struct Step
    {
        qint64 below;
        int weight;
    };
    constexpr Step kSteps[]{{150, 2}, {250, 3}, {350, 4}, {450, 5},
                            {550, 6}, {650, 7}, {750, 8}, {850, 9}};
    for (const Step &step : kSteps) {
        if (weight < step.below)
            return step.weight;
    }
    return 11;
}

FaceIndex::FaceIndex(std::vector<FontFamilyRecord> families)
    : m_families(std::move(families))
{
}

void FaceIndex::prepare() const
{
    std::call_once(m_built, [this] { build(); });
}

void FaceIndex::build() const
{
    for (quint32 family = 0; family < m_families.size(); ++family) {
        m_familyPlaces.push_back({hashOf(m_families[family].familyName), family, 0});
        const std::vector<FontStyleRecord> &styles = m_families[family].styles;
        for (quint32 style = 0; style < styles.size(); ++style)
            m_stylePlaces.push_back({hashOf(styles[style].postScriptName), family, style});
    }
    const auto isBefore = [](const Place &a, const Place &b) {
        return std::tie(a.hash, a.family, a.style) < std::tie(b.hash, b.family, b.style);
    };
    std::sort(m_familyPlaces.begin(), m_familyPlaces.end(), isBefore);
    std::sort(m_stylePlaces.begin(), m_stylePlaces.end(), isBefore);
}

std::pair<std::vector<FaceIndex::Place>::const_iterator,
          std::vector<FaceIndex::Place>::const_iterator>
FaceIndex::placesOf(const std::vector<Place> &places, const QString &name)
{
    struct ByHash
    {
        bool operator()(const Place &place, quint32 hash) const { return place.hash < hash; }
        bool operator()(quint32 hash, const Place &place) const { return hash < place.hash; }
    };
    return std::equal_range(places.begin(), places.end(), hashOf(name), ByHash());
}

const FontFamilyRecord *FaceIndex::family(const QString &familyName) const
{
    prepare();
    const auto [begin, end] = placesOf(m_familyPlaces, familyName);
    for (auto place = begin; place != end; ++place) {
        if (m_families[place->family].familyName == familyName)
            return &m_families[place->family];
    }
    return nullptr;
}

std::vector<const FontStyleRecord *> FaceIndex::stylesNamed(const QString &postScriptName) const
{
    prepare();
    std::vector<const FontStyleRecord *> styles;
    const auto [begin, end] = placesOf(m_stylePlaces, postScriptName);
    for (auto place = begin; place != end; ++place) {
        const FontStyleRecord &style = m_families[place->family].styles[place->style];
        if (style.postScriptName == postScriptName)
            styles.push_back(&style);
    }
    return styles;
}

const FontStyleRecord *FaceIndex::style(const QString &familyName, bool isItalic,
                                        int managerWeight) const
{
    const FontFamilyRecord *record = family(familyName);
    if (!record)
        return nullptr;
    const auto matches = [&](const FontStyleRecord &style) {
        return style.isItalic == isItalic && fontManagerWeight(style.weight) == managerWeight;
    };
    const auto found = std::find_if(record->styles.begin(), record->styles.end(), matches);
    return found == record->styles.end() ? nullptr : &*found;
}

} // namespace lorva
