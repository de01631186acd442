// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailFaces.h"

#include "catalog/RepresentativeStyle.h"
#include "catalog/WeightChoice.h"

#include <algorithm>

namespace lorva {

const FontStyleRecord *shownStyle(const FontFamilyRecord &family, const FontVariant &variant,
                                  const QString &chosenStyleID, int weight)
{
    const auto find = [&variant](const QString &id) -> const FontStyleRecord * {
        const auto found = std::ranges::find(variant.styles, id, &FontStyleRecord::id);
        return found == variant.styles.end() ? nullptr : &*found;
    };
    if (const FontStyleRecord *chosen = find(chosenStyleID))
        return chosen;
    FontFamilyRecord shown;
    shown.styles = variant.styles;
    if (const std::optional<FontStyleRecord> weighted = styleForWeight(shown, weight))
        return find(weighted->id);
    const FontStyleRecord *ofCard = representativeStyle(family.styles);
    const FontStyleRecord *same = ofCard ? find(ofCard->id) : nullptr;
    return same ? same : representativeStyle(variant.styles);
}

const FontVariant *variantOf(const FontDetailState &state, const QString &label)
{
    if (state.variants.empty())
        return nullptr;
    const auto found = std::ranges::find(state.variants, label, &FontVariant::label);
    return found == state.variants.end() ? &state.variants.front() : &*found;
}

bool isSameFace(const DisplayedFace &shown, const DisplayedFace &wanted)
{
    if (wanted.style != shown.style || wanted.familyName != shown.familyName)
        return false;
    if (wanted.font.isNull() || shown.font.isNull())
        return wanted.font.isNull() == shown.font.isNull();
    const FontFace &before = *shown.font.face();
    const FontFace &now = *wanted.font.face();
    // A catalog that is applied anew gives new objects for the same faces.
    return &before == &now
        || (before.path() == now.path() && before.key() == now.key() && before.isUpToDate());
}

Font withSettings(const Font &base, const std::optional<std::vector<FeatureSetting>> &features,
                  const std::vector<VariationSetting> &axes)
{
    if (base.isNull())
        return base;
    Font font = base;
    if (!axes.empty()) {
        std::vector<VariationSetting> variations = base.variations();
        variations.insert(variations.end(), axes.begin(), axes.end());
        font = font.withVariations(std::move(variations));
    }
    return features ? font.withFeatures(*features) : font;
}

void dropOverruled(std::vector<VariationSetting> &axes, const Font &before, const Font &after)
{
    if (before.isNull() || after.isNull() || before.variations() == after.variations())
        return;
    std::erase_if(axes, [&](const VariationSetting &axis) {
        const auto valueIn = [&axis](const Font &font) -> std::optional<double> {
            const auto &values = font.variations();
            const auto found = std::ranges::find(values, axis.tag, &VariationSetting::tag);
            return found == values.end() ? std::nullopt : std::optional(found->value);
        };
        return valueIn(before) != valueIn(after);
    });
}

} // namespace lorva
