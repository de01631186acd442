// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InspectorStates.h"

#include "base/GroupedNumber.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// OpenType `fvar` counts in 65536ths.
constexpr double kSameCoordinate = 1.0 / 65536;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontInspector)
};

bool isSwitchedOffBy(const FontFeature &other, const FontFeature &chosen)
{
    const bool isSameTag = chosen.tag != 0 && other.tag == chosen.tag;
    return isSameTag || (chosen.isExclusive && other.pair.type == chosen.pair.type);
}

/// Where the instance has the axis; nothing where it does not tell.
std::optional<double> coordinateOf(const NamedInstance &instance, FontTag tag)
{
    const auto found =
        std::find_if(instance.coordinates.begin(), instance.coordinates.end(),
                     [tag](const VariationSetting &setting) { return setting.tag == tag; });
    if (found == instance.coordinates.end() || !std::isfinite(found->value))
        return std::nullopt;
    return found->value;
}

double within(const FontVariationAxisRecord &axis, double value)
{
    return std::clamp(value, axis.minValue, axis.maxValue);
}

bool fits(const NamedInstance &instance, const std::vector<FontVariationAxisRecord> &axes)
{
    return std::all_of(axes.begin(), axes.end(), [&](const FontVariationAxisRecord &axis) {
        const double wanted = coordinateOf(instance, axis.tag).value_or(axis.defaultValue);
        return std::abs(within(axis, wanted) - axis.currentValue) < kSameCoordinate;
    });
}

QString statusText(const FontFamilyActivation &activation)
{
    if (!activation.isActive())
        //: Whether a family is switched on.
        return Texts::tr("Inactive");
    //: Whether a family is switched on, and whether the system did it.
    return activation.method() ? Texts::tr("Active") : Texts::tr("Active (System)");
}

InfoSection identifiers(const FontMetadataInfo &metadata)
{
    return {Texts::tr("Identifiers"),
            {{Texts::tr("Family Name"), metadata.familyName},
             {Texts::tr("Style Name"), metadata.styleName},
             {Texts::tr("Full Name"), metadata.fullName},
             {Texts::tr("PostScript Name"), metadata.postScriptName}}};
}

void addKnown(InfoSection &section, const QString &label, const QString &value)
{
    if (!value.isEmpty())
        section.rows.push_back({label, value});
}

InfoSection description(const FontMetadataInfo &metadata)
{
    InfoSection section{Texts::tr("Description"), {}};
    addKnown(section, Texts::tr("Designer"), metadata.designer);
    addKnown(section, Texts::tr("Manufacturer"), metadata.manufacturer);
    return section;
}

InfoSection details(const InspectorInfoState &state)
{
    const FontMetadataInfo &metadata = state.metadata;
    InfoSection section{Texts::tr("Details"), {}};
    addKnown(section, Texts::tr("Version"), metadata.version);
    if (state.activation)
        //: Whether the family is switched on.
        section.rows.push_back({Texts::tr("Status"), statusText(*state.activation)});
    if (!metadata.fileLocation.isEmpty())
        //: The file of a font.
        section.rows.push_back({Texts::tr("Location"), metadata.fileLocation, {}, true});
    //: The file format of a font.
    section.rows.push_back({Texts::tr("Format"), metadata.format});
    section.rows.push_back({Texts::tr("Glyph Count"), groupedNumber(metadata.glyphCount)});
    return section;
}

} // namespace

std::vector<FeatureGroup> featureGroups(const std::vector<OpenTypeFeatureRecord> &features)
{
    std::vector<FeatureGroup> groups;
    QHash<QString, size_t> places;
    for (size_t i = 0; i < features.size(); ++i) {
        //: Features of a font that belong to no group.
        const QString name = features[i].group.isEmpty() ? Texts::tr("Other") : features[i].group;
        const auto place = places.find(name);
        if (place == places.end()) {
            places.insert(name, groups.size());
            groups.push_back({name, {i}});
        } else {
            groups[*place].indices.push_back(i);
        }
    }
    return groups;
}

void InspectorFeaturesState::setFeature(size_t index, bool isEnabled)
{
    if (index >= features.size() || features[index].isEnabled == isEnabled)
        return;
    for (size_t i = 0; isEnabled && i < std::min(features.size(), offered.size()); ++i) {
        if (i != index && isSwitchedOffBy(offered[i], offered[index]))
            features[i].isEnabled = false;
    }
    features[index].isEnabled = isEnabled;
    if (onChange)
        onChange(features);
}

void InspectorFeaturesState::setAxis(size_t index, double value)
{
    if (index >= axes.size() || !std::isfinite(value))
        return;
    value = within(axes[index], value);
    if (value == axes[index].currentValue)
        return;
    axes[index].currentValue = value;
    if (onAxesChange)
        onAxesChange(axes);
}

void InspectorFeaturesState::applyInstance(size_t index)
{
    if (index >= instances.size())
        return;
    for (FontVariationAxisRecord &axis : axes) {
        const auto wanted = coordinateOf(instances[index], axis.tag);
        axis.currentValue = within(axis, wanted.value_or(axis.defaultValue));
    }
    if (onAxesChange)
        onAxesChange(axes);
}

void InspectorFeaturesState::reset()
{
    for (size_t i = 0; i < std::min(features.size(), offered.size()); ++i)
        features[i].isEnabled = offered[i].isDefaultOn;
    for (size_t i = 0; i < std::min(axes.size(), axisBaselines.size()); ++i)
        axes[i].currentValue = axisBaselines[i];
}

void InspectorFeaturesState::rebase(const std::vector<FontVariationAxisRecord> &base)
{
    for (const FontVariationAxisRecord &record : base) {
        for (size_t i = 0; i < std::min(axes.size(), axisBaselines.size()); ++i) {
            if (axes[i].tag != record.tag || axisBaselines[i] == record.currentValue)
                continue;
            axisBaselines[i] = record.currentValue;
            axes[i].currentValue = record.currentValue;
        }
    }
}

bool InspectorFeaturesState::areFeaturesChanged() const
{
    return !std::equal(features.begin(), features.end(), offered.begin(), offered.end(),
                       [](const OpenTypeFeatureRecord &record, const FontFeature &feature) {
                           return record.isEnabled == feature.isDefaultOn;
                       });
}

std::vector<VariationSetting> InspectorFeaturesState::changedAxes() const
{
    std::vector<VariationSetting> changed;
    for (size_t i = 0; i < std::min(axes.size(), axisBaselines.size()); ++i) {
        if (axes[i].currentValue != axisBaselines[i])
            changed.push_back({axes[i].tag, axes[i].currentValue});
    }
    return changed;
}

std::vector<VariationSetting> InspectorFeaturesState::axisValues() const
{
    std::vector<VariationSetting> values;
    for (const FontVariationAxisRecord &axis : axes)
        values.push_back({axis.tag, axis.currentValue});
    return values;
}

std::optional<size_t> InspectorFeaturesState::fittingInstance() const
{
    const auto found = std::find_if(instances.begin(), instances.end(),
                                    [this](const NamedInstance &each) { return fits(each, axes); });
    if (found == instances.end())
        return std::nullopt;
    return size_t(found - instances.begin());
}

std::vector<InfoSection> infoSections(const InspectorInfoState &state)
{
    std::vector<InfoSection> sections{identifiers(state.metadata)};
    if (InfoSection section = description(state.metadata); !section.rows.empty())
        sections.push_back(std::move(section));
    sections.push_back(details(state));
    if (!state.metadata.copyright.isEmpty())
        sections.push_back({Texts::tr("Copyright"), {{QString(), state.metadata.copyright}}});
    return sections;
}

} // namespace lorva
