// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/CharacterSet.h"
#include "text/FontFace.h"

namespace lorva {

/// A feature type and one of its selectors, as the published feature registry numbers them.
struct FeaturePair
{
    int type = 0;
    int selector = 0;
    auto operator<=>(const FeaturePair &) const = default;
};

/// One selector that a face offers.
struct FontFeature
{
    FeaturePair pair;
    /// The OpenType feature that the pair switches; 0 for a `feat` pair that no feature answers.
    FontTag tag = 0;
    /// What the tag is set to when the pair is on.
    quint32 value = 1;
    /// Empty for a tag without a registered pair.
    QString typeName;
    /// The font's own name, else the registry's, else the tag.
    QString name;
    bool isDefaultOn = false;
    /// Selectors of the type switch each other off.
    bool isExclusive = false;

    bool operator==(const FontFeature &) const = default;
};

/// What the face offers: the pairs of its `feat` table if it has one (types and selectors in the
/// table's order), else its GSUB and GPOS features by their registered pairs, in the order of first
/// appearance, each pair once. A tag without a registered pair has the packed tag as type and 1 as
/// selector. Features that shaping needs whatever the user wants (`ccmp`, `init`, `mark`, …) are
/// left out, and so are those that are no switch for running text (`aalt`, `size`, `vkrn`, …). Of
/// two features with one registered pair (`hlig`, `hist`) one goes as a tag without a pair. Thread:
/// any.
std::vector<FontFeature> fontFeatures(const FontFace &face);

/// Every feature tag of the face, also those that are no switch for people, each once: `GSUB`,
/// `GPOS`, then what answers the pairs of `feat`. Thread: any.
std::vector<FontTag> featureTags(const FontFace &face);

/// What to shape with so that exactly `enabled` is on: those that are on by themselves and missing
/// are switched off; of an exclusive type the last one wins. Pairs that the face does not offer are
/// passed over.
std::vector<FeatureSetting> featureSettings(std::span<const FontFeature> offered,
                                            std::span<const FeaturePair> enabled);

/// The registry's pair of an OpenType feature; nothing for tags that have none (`ss21`, `cv01`).
std::optional<FeaturePair> registeredPair(FontTag tag);
/// "Discretionary Ligatures" for `dlig`: the registered friendly name of an OpenType feature, for
/// people; empty for an unknown tag.
QString featureTagName(FontTag tag);

/// What a face says of one of its stylistic sets or character variants.
struct FeatureTexts
{
    QString name;
    QString toolTip;
    QString sampleText;
    /// Names of the values 1, 2, …, of a character variant.
    std::vector<QString> valueNames;
    /// The characters that the font says it varies.
    std::vector<char32_t> characters;
};
FeatureTexts featureTexts(const FontFace &face, FontTag tag);

/// One glyph that a feature changes when it is applied to the glyph alone.
struct ChangedGlyph
{
    quint32 before = 0;
    /// The first is what value 1 gives; more for alternates (value 2, …). Several glyphs that stand
    /// for one are not told here.
    std::vector<quint32> alternates;
    /// A character that leads to `before`; 0 if none does.
    char32_t character = 0;
    bool operator==(const ChangedGlyph &) const = default;
};

/// What a feature does, for showing before and after.
struct FeatureEffect
{
    /// Single and alternate substitutions, by glyph.
    std::vector<ChangedGlyph> substitutions;
    /// Sequences of characters that it joins ("ffi"), shortest first, at most 200.
    std::vector<QString> ligatures;
    /// All glyphs that it looks at, those included that it changes only among neighbours or only
    /// moves.
    int touchedGlyphs = 0;
};
/// Bounded: at most kMaxFeatureEffects substitutions and a bounded number of lookups. Thread: any.
FeatureEffect featureEffect(const FontFace &face, FontTag tag);

/// A short text, of at most `maxClusters` letters or ligatures, that looks different with the
/// feature; empty when none is found. Thread: any.
QString featureSample(const FontFace &face, FontTag tag, int maxClusters = 12);

} // namespace lorva
