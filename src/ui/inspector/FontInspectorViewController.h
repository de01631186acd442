// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "model/records/Activation.h"
#include "platform/OrthographyBook.h"
#include "text/FontFeatures.h"
#include "ui/detail/FontDetailState.h"

#include <QUrl>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace lorva {

/// What the user does in the inspector, told to whoever decides.
class FontInspectorDelegate
{
public:
    virtual ~FontInspectorDelegate() = default;
    /// Exactly these are on. Nothing: what the font does by itself.
    virtual void inspectorFeaturesChanged(
        const std::optional<std::vector<FeaturePair>> &enabled) = 0;
    /// The values of the axes that the user moved; empty: none.
    virtual void inspectorAxesChanged(const std::vector<VariationSetting> &values) = 0;
    virtual void inspectorFileWanted(const FilePath &file) = 0;
    virtual void inspectorLinkWanted(const QUrl &link) = 0;
};

/// The side panel of the detail view: the features and axes of a face, and what the face says of
/// itself.
///
/// Renders what it is shown and reports what the user changes. Thread: main. Units: points.
class FontInspectorViewController final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kWidth = 288;
    enum class Tab { features, info };

    /// `orthographies` may be null: nothing is said of languages.
    explicit FontInspectorViewController(std::shared_ptr<const OrthographyBook> orthographies,
                                         QWidget *parent = nullptr);
    ~FontInspectorViewController() override;

    /// Does not own it; it must outlive this view.
    void setDelegate(FontInspectorDelegate *delegate);
    /// An unchanged face keeps what the user has set here; another one starts afresh, without a
    /// word to the delegate.
    void showFace(const DisplayedFace &face, const std::optional<FontFamilyActivation> &activation);
    Tab selectedTab() const;
    void setSelectedTab(Tab tab);
    /// What it shows is read and there.
    bool isSettled() const;
};

} // namespace lorva
