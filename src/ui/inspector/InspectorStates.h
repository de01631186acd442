// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Activation.h"
#include "model/records/InspectorRecords.h"
#include "text/FontFeatures.h"

#include <QUrl>

#include <functional>
#include <optional>
#include <vector>

namespace lorva {

/// Features that are listed under one heading.
struct FeatureGroup
{
    QString name;
    /// Positions in the list of features.
    std::vector<size_t> indices;
    bool operator==(const FeatureGroup &) const = default;
};

/// Groups in the order in which they first appear; features without a group are listed under
/// "Other".
std::vector<FeatureGroup> featureGroups(const std::vector<OpenTypeFeatureRecord> &features);

/// The features and axes of a face, and what the user has made of them.
///
/// Changes are told by the two functions, where set; what the program changes is not. Thread: main.
struct InspectorFeaturesState
{
    std::vector<OpenTypeFeatureRecord> features;
    std::vector<FontVariationAxisRecord> axes;
    /// The values of `axes` when the face was loaded; one for each.
    std::vector<double> axisBaselines;
    /// What `features` were made of; one for each.
    std::vector<FontFeature> offered;
    std::vector<NamedInstance> instances;

    std::function<void(const std::vector<OpenTypeFeatureRecord> &)> onChange;
    std::function<void(const std::vector<FontVariationAxisRecord> &)> onAxesChange;

    /// A selector of an exclusive type switches the others off, and so does one that sets the same
    /// OpenType feature.
    void setFeature(size_t index, bool isEnabled);
    /// Kept within the axis.
    void setAxis(size_t index, double value);
    /// All axes at once.
    void applyInstance(size_t index);

    /// Features as the font has them, axes at their baselines; told to nobody.
    void reset();
    /// Axes whose base value is another now go there; the others stay where the user put them. Told
    /// to nobody.
    void rebase(const std::vector<FontVariationAxisRecord> &base);

    bool areFeaturesChanged() const;
    /// The values of the axes that are not at their baselines.
    std::vector<VariationSetting> changedAxes() const;
    std::vector<VariationSetting> axisValues() const;
    /// The first named instance at which all axes are; nothing where none fits.
    std::optional<size_t> fittingInstance() const;
};

/// What the info tab tells beside the names.
struct InspectorInfoState
{
    FontMetadataInfo metadata;
    std::optional<FontFamilyActivation> activation;
    bool operator==(const InspectorInfoState &) const = default;
};

/// A fact. Without a label the value speaks for itself.
struct InfoRow
{
    QString label;
    QString value;
    /// Where a click leads; invalid for most.
    QUrl link = {};
    /// The value is where the file lies.
    bool isFile = false;
    bool operator==(const InfoRow &) const = default;
};

struct InfoSection
{
    QString title;
    std::vector<InfoRow> rows;
    bool operator==(const InfoSection &) const = default;
};

/// What the face says of itself; facts that are not known are left out.
std::vector<InfoSection> infoSections(const InspectorInfoState &state);

} // namespace lorva
