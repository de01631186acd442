// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/RunThen.h"
#include "model/records/Activation.h"
#include "platform/OrthographyBook.h"
#include "text/FontFeatures.h"
#include "ui/detail/FontDetailState.h"
#include "ui/inspector/InspectorFacts.h"

#include <QUrl>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace lorva {

class InspectorFeaturesView;
class InspectorInfoView;
class PanelScrollArea;
class SegmentedControl;

/// What the user does in the inspector, told to whoever decides.
class FontInspectorDelegate
{
public:
    virtual ~FontInspectorDelegate() = default;
    /// Exactly these are on. Nothing: what the font does by itself.
    virtual void inspectorFeaturesChanged(
        const std::optional<std::vector<FeaturePair>> &enabled) = 0;
    /// The values of all axes that are elsewhere than in the face as it was shown; empty: none.
    virtual void inspectorAxesChanged(const std::vector<VariationSetting> &values) = 0;
    virtual void inspectorFileWanted(const FilePath &file) = 0;
    virtual void inspectorLinkWanted(const QUrl &link) = 0;
};

/// The side panel of the detail view: the features and axes of a face, and what the face says of
/// itself.
///
/// Renders what it is shown and reports what the user changes. A face is read on a thread of its
/// own; until that is done the former one stays, but what the user does to it is not told any more.
/// Thread: main. Units: points.
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
    void setDelegate(FontInspectorDelegate *delegate) { m_delegate = delegate; }
    /// An unchanged face keeps what the user has set here, but an axis whose base value has changed
    /// goes there; another face starts afresh. Neither with a word to the delegate.
    void showFace(const DisplayedFace &face, const std::optional<FontFamilyActivation> &activation);
    Tab selectedTab() const { return m_selectedTab; }
    void setSelectedTab(Tab tab);
    /// What it shows is read and there.
    bool isSettled() const { return m_isSettled; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void read();
    void install(InspectorFacts facts);
    void clear();
    void showInfo();
    void tellFeatures(const std::optional<std::vector<FeaturePair>> &enabled);
    void tellAxes();
    void reset();
    void applyTab();
    void takeColors();

    const std::shared_ptr<const OrthographyBook> m_orthographies;
    FontInspectorDelegate *m_delegate = nullptr;
    /// Waits for its work when it dies.
    QThreadPool m_pool;
    RunHandle m_reading;
    bool m_isSettled = true;

    /// Which face is shown, or will be when it is read.
    DisplayedFace m_displayedContext;
    InspectorFeaturesState m_featuresState;
    InspectorInfoState m_infoState;
    std::vector<InfoSection> m_furtherSections;
    Tab m_selectedTab = Tab::features;

    SegmentedControl *m_tabs;
    InspectorFeaturesView *m_featuresView;
    InspectorInfoView *m_infoView;
    PanelScrollArea *m_featuresScroll;
    PanelScrollArea *m_infoScroll;
};

} // namespace lorva
