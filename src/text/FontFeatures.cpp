// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFeatures.h"

#include "text/features/AatFeatures.h"
#include "text/features/FeatureRegistry.h"
#include "text/features/FeatureTables.h"
#include "text/FontLimits.h"

#include <algorithm>
#include <set>

namespace lorva {

namespace {

/// Whether the face has another feature with a better right to the pair.
bool isPairOfAnother(FeaturePair pair, FontTag tag, std::span<const FontTag> tags)
{
    const auto answer = answerTo(pair);
    return answer && answer->tag != tag
        && std::find(tags.begin(), tags.end(), answer->tag) != tags.end();
}

/// The pair under which the face offers the feature, while `taken` holds those that it offers
/// already. A feature that shares its pair with another one would be lost, so it goes as one
/// without a pair; one that only vertical text uses may go.
std::optional<FeaturePair> offeredPair(FontTag tag, std::span<const FontTag> tags,
                                       const std::set<FeaturePair, FeaturePairLess> &taken)
{
    const FeaturePair own{int(tag), 1};
    const auto registered = registeredPair(tag);
    if (!registered)
        return own;
    if (!taken.contains(*registered) && !isPairOfAnother(*registered, tag, tags))
        return registered;
    return isForVerticalText(tag) ? std::nullopt : std::optional(own);
}

FontFeature openTypeFeature(FontTag tag, FeaturePair pair, const FaceTexts &texts)
{
    FontFeature feature{pair, tag, 1, {}, {}, isOnByItself(tag), false};
    if (registeredPair(tag) == pair) {
        feature.typeName = registeredTypeName(pair.type);
        feature.isExclusive = isExclusiveType(pair.type);
        feature.name = registeredSelectorName(pair);
    }
    if (const QString own = texts.featureLabel(tag); !own.isEmpty())
        feature.name = own;
    if (feature.name.isEmpty())
        feature.name = tagText(tag);
    return feature;
}

std::vector<FontFeature> openTypeFeatures(const FeatureTables &tables, const FaceTexts &texts)
{
    std::vector<FontFeature> features;
    std::set<FeaturePair, FeaturePairLess> taken;
    const std::vector<FontTag> tags = tables.tags();
    for (const FontTag tag : tags) {
        const auto pair = isForPeople(tag) ? offeredPair(tag, tags, taken) : std::nullopt;
        if (!pair || !taken.insert(*pair).second)
            continue;
        features.push_back(openTypeFeature(tag, *pair, texts));
    }
    return features;
}

/// The offered features whose pairs are enabled; of an exclusive type only the last one.
std::vector<const FontFeature *> chosen(std::span<const FontFeature> offered,
                                        std::span<const FeaturePair> enabled)
{
    std::vector<const FontFeature *> features;
    for (const FeaturePair pair : enabled) {
        const auto found =
            std::find_if(offered.begin(), offered.end(),
                         [pair](const FontFeature &feature) { return feature.pair == pair; });
        if (found == offered.end())
            continue;
        if (found->isExclusive)
            std::erase_if(features, [pair](const FontFeature *other) {
                return other->pair.type == pair.type;
            });
        features.push_back(&*found);
    }
    return features;
}

} // namespace

std::vector<FontFeature> fontFeatures(const FontFace &face)
{
    const FeatureTables tables(face);
    const FaceTexts texts(face, tables);
    std::vector<FontFeature> aat = aatFeatures(tables, texts);
    return aat.empty() ? openTypeFeatures(tables, texts) : aat;
}

std::vector<FontTag> featureTags(const FontFace &face)
{
    const FeatureTables tables(face);
    std::vector<FontTag> tags = tables.tags();
    for (const FontFeature &feature : aatFeatures(tables, FaceTexts(face, tables))) {
        if (feature.tag != 0 && std::find(tags.begin(), tags.end(), feature.tag) == tags.end())
            tags.push_back(feature.tag);
    }
    return tags;
}

/// Of a type whose selectors exclude each other only the one that is on is told: to `morx` the
/// setting that comes first would decide, and one for another selector would be in its way.
std::vector<FeatureSetting> featureSettings(std::span<const FontFeature> offered,
                                            std::span<const FeaturePair> enabled)
{
    const std::vector<const FontFeature *> on = chosen(offered, enabled);
    const auto isSettled = [&on](const FontFeature &feature) {
        return std::any_of(on.begin(), on.end(), [&feature](const FontFeature *other) {
            return other == &feature
                || (feature.isExclusive && other->tag != 0
                    && other->pair.type == feature.pair.type);
        });
    };
    std::vector<FeatureSetting> settings;
    for (const FontFeature &feature : offered) {
        if (feature.isDefaultOn && feature.tag != 0 && feature.value != 0 && !isSettled(feature))
            settings.push_back({feature.tag, 0});
    }
    for (const FontFeature *feature : on) {
        if (!feature->isDefaultOn && feature->tag != 0)
            settings.push_back({feature->tag, feature->value});
    }
    return settings;
}

FeatureTexts featureTexts(const FontFace &face, FontTag tag)
{
    const FeatureTables tables(face);
    return FaceTexts(face, tables).featureTexts(tag);
}

} // namespace lorva
