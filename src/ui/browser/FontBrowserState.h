// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/LorvaAppModel.h"
#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"
#include "model/records/FontFamilySubset.h"
#include "ui/display/DisplayControls.h"

#include <QHash>
#include <QImage>
#include <QSet>

#include <functional>
#include <optional>
#include <variant>

namespace lorva {

/// Why the browser shows no cards.
struct BrowserEmptyState
{
    struct NoSearchResults
    {
        QString query;
        bool operator==(const NoSearchResults &) const = default;
    };
    struct SourceEmpty
    {
        QString title;
        QString subtitle;
        bool showsWatchFolder = false;
        bool operator==(const SourceEmpty &) const = default;
    };
    std::variant<NoSearchResults, SourceEmpty> reason;
    bool operator==(const BrowserEmptyState &) const = default;
};

/// Everything that the browser shows, as one immutable value.
struct FontBrowserState
{
    QString title = QStringLiteral("All Fonts");
    BrowserSource source;
    /// In display order.
    FontFamilySubset families;
    std::optional<QString> selectedFamilyName;
    QString searchQuery;
    ViewMode viewMode = ViewMode::grid;
    double pointSize = 58;
    int fontWeight = 400;
    ColorMode colorMode = ColorMode::white;
    QString foregroundColorHex = QStringLiteral("#000000");
    QString backgroundColorHex = QStringLiteral("#FFFFFF");
    QString customForegroundColorHex = QStringLiteral("#FFFFFF");
    QString customBackgroundColorHex = QStringLiteral("#1328E9");
    QString imageForegroundColorHex = QStringLiteral("#FFFFFF");
    std::optional<QString> backgroundImageID;
    std::optional<QString> backgroundImageUserFilename;
    QString sampleText = QStringLiteral("Aa");
    /// What specimens show; absent as well when the user made the logo invisible.
    std::optional<QImage> logoImage;
    double logoSizeRatio = 1.0;
    double logoSpacing = 0.15;
    /// What the display controls show of all that.
    DisplayControlsState display;
    std::vector<FontStyleCategoryRecord> styleCategories;
    std::vector<FontCollectionRecord> collections;
    QHash<QString, QSet<QString>> collectionMembersByID;
    std::vector<FoundryCollectionRecord> foundryCollections;
    QHash<QString, QString> styleIDByFamily;
    QHash<QString, QString> foundryIDByFamily;
    /// Nothing: a family that the user cannot switch. Thread: main.
    std::function<std::optional<FontFamilyActivation>(const FontFamilyRecord &)>
        activationProvider = [](const FontFamilyRecord &) { return std::nullopt; };
    qint64 catalogGeneration = 0;
    qint64 activationGeneration = 0;
    bool isLoading = false;
    /// What the running scan does, for people; empty when there is nothing to say.
    QString loadingText;
    std::optional<BrowserEmptyState> emptyState;
};

/// What the user does in the browser, told to whoever decides.
class FontBrowserDelegate : public DisplayControlsDelegate
{
public:
    /// The card that was chosen last; nothing when none is.
    virtual void browserSelectionChanged(const std::optional<QString> &familyName) = 0;
    virtual void browserOpenDetail(const QString &familyName) = 0;
    virtual void browserViewModeChanged(ViewMode mode) = 0;
    virtual void browserSearchTextChanged(const QString &text) = 0;
    /// Nothing: of no category.
    virtual void browserStyleChosen(const QStringList &familyNames,
                                    const std::optional<QString> &categoryID) = 0;
    /// Into the collection, or out of it when all of them are its members.
    virtual void browserCollectionToggled(const QStringList &familyNames,
                                          const QString &collectionID) = 0;
    /// An empty id: of no foundry.
    virtual void browserFoundryChosen(const QStringList &familyNames, const QString &foundryID) = 0;
    virtual void browserActivationWanted(const QStringList &familyNames) = 0;
    /// What is missing of families that are active in part.
    virtual void browserRemainingActivationWanted(const QStringList &familyNames) = 0;
    virtual void browserDeactivationWanted(const QStringList &familyNames) = 0;
    virtual void browserWatchFolderWanted() = 0;
};

} // namespace lorva
