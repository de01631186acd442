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

Font withSettings(const Font &base, const FaceSettings &settings)
{
    if (base.isNull())
        return base;
    Font font = base;
    if (!settings.axes.empty()) {
        std::vector<VariationSetting> variations = base.variations();
        variations.insert(variations.end(), settings.axes.begin(), settings.axes.end());
        font = font.withVariations(std::move(variations));
    }
    if (settings.features)
        font = font.withFeatures(featureSettings(fontFeatures(*base.face()), *settings.features));
    return font;
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
