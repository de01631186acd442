// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/VariableWeight.h"
#include "model/records/Activation.h"
#include "ui/browser/MembershipOptions.h"
#include "ui/display/DisplayControls.h"

#include <QHash>
#include <QImage>

#include <optional>
#include <vector>

namespace lorva {

/// What the top of the detail page shows of the family.
enum class DetailStage { text, waterfall, comparison };

/// Everything that the detail view shows, as one immutable value.
struct FontDetailState
{
    FontFamilyRecord family;
    std::vector<FontVariant> variants;
    QString selectedVariantLabel;
    double pointSize = 96;
    int fontWeight = 400;
    QString foregroundColorHex = QStringLiteral("#000000");
    QString backgroundColorHex = QStringLiteral("#FFFFFF");
    ColorMode colorMode = ColorMode::white;
    QString customForegroundColorHex = QStringLiteral("#FFFFFF");
    QString customBackgroundColorHex = QStringLiteral("#F04000");
    QString imageForegroundColorHex = QStringLiteral("#FFFFFF");
    std::optional<QString> backgroundImageID;
    std::optional<QString> backgroundImageUserFilename;
    QString sampleText;
    /// Absent as well when the user made the logo invisible.
    std::optional<QImage> logoImage;
    double logoSizeRatio = 1.0;
    double logoSpacing = 0.15;
    /// Ems.
    double letterSpacing = 0;
    /// A style that is not in it cannot be switched.
    QHash<QString, FontFamilyActivation> activationByStyleID;
    std::vector<StyleMembershipOption> styleOptions;
    std::vector<CollectionMembershipOption> collectionOptions;
    std::vector<FoundryMembershipOption> foundryOptions;
    /// Nothing: a family that the user cannot switch.
    std::optional<FontFamilyActivation> familyActivation;

    /// What the display controls show of all that.
    DisplayControlsState display;
    /// The styles of one file are switched together: by style id, the labels of the others.
    QHash<QString, QStringList> labelsInSameFile;
    /// What the top of the page shows.
    DetailStage stage = DetailStage::text;
    bool showsInspector = true;
    /// There is a family before and after this one, in the order of the browser.
    bool hasPrevious = false;
    bool hasNext = false;
};

/// The face set that is shown.
struct ActiveVariant
{
    QString key;
    QString familyName;
    std::vector<FontStyleRecord> styles;
    std::optional<VariableWeight> variableWeight;

    bool operator==(const ActiveVariant &) const = default;
};

/// The face whose preview is shown, for the inspector beside it.
struct DisplayedFace
{
    QString familyName;
    FontStyleRecord style;
    /// The face as it is, without the user's features and axis values, and what its axes are at
    /// when the weight control moved them. Null while none is shown.
    Font font;

    bool operator==(const DisplayedFace &) const = default;
};

/// What the user does in the detail view, told to whoever decides.
class FontDetailDelegate
{
public:
    virtual ~FontDetailDelegate() = default;
    /// Of the controls that browser and detail view share: all but the size.
    virtual DisplayControlsDelegate &display() = 0;
    virtual void detailPointSizeChanged(double pointSize) = 0;
    virtual void detailClosed() = 0;
    /// The family after (1) or before (-1) this one in the browser's order.
    virtual void detailNeighbourWanted(int step) = 0;
    virtual void detailVariantSelected(const QString &label) = 0;
    /// Ems.
    virtual void detailLetterSpacingChanged(double letterSpacing) = 0;
    virtual void detailStageChanged(DetailStage stage) = 0;
    virtual void detailInspectorToggled() = 0;
    /// The family as a whole.
    virtual void detailActivationWanted() = 0;
    virtual void detailRemainingActivationWanted() = 0;
    virtual void detailDeactivationWanted() = 0;
    virtual void detailStyleActivationWanted(const FontStyleRecord &style) = 0;
    virtual void detailStyleDeactivationWanted(const FontStyleRecord &style) = 0;
    /// As in the browser; nothing: of no category.
    virtual void detailCategoryChosen(const std::optional<QString> &categoryID) = 0;
    virtual void detailCollectionToggled(const QString &collectionID) = 0;
    virtual void detailFoundryChosen(const QString &foundryID) = 0;
    /// Another face is shown, or the same with other base values.
    virtual void detailFaceShown(const DisplayedFace &face) = 0;
};

} // namespace lorva
