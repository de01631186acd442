// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/LorvaAppModel.h"
#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"
#include "model/records/FontFamilySubset.h"

#include <QImage>

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
    QString imageForegroundColorHex = QStringLiteral("#FFFFFF");
    QString sampleText = QStringLiteral("Aa");
    std::optional<QImage> logoImage;
    double logoSizeRatio = 1.0;
    double logoSpacing = 0.15;
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
class FontBrowserDelegate
{
public:
    virtual ~FontBrowserDelegate() = default;
    virtual void browserSelectionChanged(const std::optional<QString> &familyName) = 0;
    virtual void browserOpenDetail(const QString &familyName) = 0;
    virtual void browserPointSizeChanged(double pointSize) = 0;
    virtual void browserViewModeChanged(ViewMode mode) = 0;
};

} // namespace lorva
