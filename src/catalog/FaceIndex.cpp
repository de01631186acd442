// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FaceIndex.h"

#include <QHashFunctions>

#include <algorithm>

namespace lorva {

namespace {

quint32 hashOf(const QString &name)
{
    return quint32(qHash(name));
}

quint32 hashOf(const FilePath &path)
{
    return quint32(qHash(path.bytes()));
}

bool hasFaceIn(const FontFamilyRecord &family, const FilePath &path)
{
    return std::any_of(family.styles.begin(), family.styles.end(),
                       [&](const FontStyleRecord &style) { return style.fileURL == path; });
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

FaceIndex::FaceIndex(FontFamilyList families)
    : m_families(std::move(families))
{
}

void FaceIndex::prepareFamilies() const
{
    std::call_once(m_familiesBuilt, [this] { buildFamilies(); });
}

void FaceIndex::prepareLookUps() const
{
    std::call_once(m_namesBuilt, [this] { buildNames(); });
    std::call_once(m_filesBuilt, [this] { buildFiles(); });
}

void FaceIndex::buildFamilies() const
{
    m_familyPlaces.reserve(m_families->size());
    for (quint32 family = 0; family < m_families->size(); ++family)
        m_familyPlaces.push_back({hashOf((*m_families)[family].familyName), family, 0});
    sort(m_familyPlaces);
}

void FaceIndex::buildNames() const
{
    for (quint32 family = 0; family < m_families->size(); ++family) {
        const std::vector<FontStyleRecord> &styles = (*m_families)[family].styles;
        for (quint32 style = 0; style < styles.size(); ++style)
            m_stylePlaces.push_back({hashOf(styles[style].postScriptName), family, style});
    }
    sort(m_stylePlaces);
    m_stylePlaces.shrink_to_fit();
}

void FaceIndex::sort(std::vector<Place> &places)
{
    std::sort(places.begin(), places.end(), [](const Place &a, const Place &b) {
        return std::tie(a.hash, a.family, a.style) < std::tie(b.hash, b.family, b.style);
    });
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

std::optional<quint32> FaceIndex::familyPlace(const QString &familyName) const
{
    prepareFamilies();
    const auto [begin, end] = placesOf(m_familyPlaces, familyName);
    for (auto place = begin; place != end; ++place) {
        if ((*m_families)[place->family].familyName == familyName)
            return place->family;
    }
    return std::nullopt;
}

const FontFamilyRecord *FaceIndex::family(const QString &familyName) const
{
    const std::optional<quint32> place = familyPlace(familyName);
    return place ? &(*m_families)[*place] : nullptr;
}

std::vector<const FontStyleRecord *> FaceIndex::stylesNamed(const QString &postScriptName) const
{
    std::call_once(m_namesBuilt, [this] { buildNames(); });
    std::vector<const FontStyleRecord *> styles;
    const auto [begin, end] = placesOf(m_stylePlaces, postScriptName);
    for (auto place = begin; place != end; ++place) {
        const FontStyleRecord &style = (*m_families)[place->family].styles[place->style];
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

void FaceIndex::buildFiles() const
{
    const std::vector<FontFamilyRecord> &families = *m_families;
    for (quint32 family = 0; family < families.size(); ++family) {
        for (const FontStyleRecord &style : families[family].styles) {
            if (style.fileURL)
                m_filePlaces.push_back({hashOf(*style.fileURL), family});
        }
    }
    std::sort(m_filePlaces.begin(), m_filePlaces.end());
    const auto repeated = std::unique(m_filePlaces.begin(), m_filePlaces.end());
    m_filePlaces.erase(repeated, m_filePlaces.end());
    m_filePlaces.shrink_to_fit();
}

void FaceIndex::addFamiliesOfFile(const FilePath &path, std::set<quint32> &families) const
{
    const quint32 hash = hashOf(path);
    auto place = std::lower_bound(m_filePlaces.begin(), m_filePlaces.end(), FilePlace{hash, 0});
    for (; place != m_filePlaces.end() && place->hash == hash; ++place) {
        if (!families.contains(place->family) && hasFaceIn((*m_families)[place->family], path))
            families.insert(place->family);
    }
}

QStringList FaceIndex::familiesSharingFiles(const QStringList &familyNames) const
{
    std::call_once(m_filesBuilt, [this] { buildFiles(); });
    std::set<quint32> given;
    std::set<quint32> sharing;
    for (const QString &name : familyNames) {
        if (const std::optional<quint32> place = familyPlace(name))
            given.insert(*place);
    }
    for (const quint32 family : given) {
        for (const FontStyleRecord &style : (*m_families)[family].styles) {
            if (style.fileURL)
                addFamiliesOfFile(*style.fileURL, sharing);
        }
    }
    QStringList names;
    for (const quint32 family : sharing) {
        if (!given.contains(family))
            names.append((*m_families)[family].familyName);
    }
    return names;
}

} // namespace lorva
