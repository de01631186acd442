// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/FontDetailState.h"

#include <functional>

namespace lorva {

class BrowserActions;

/// What the detail view shows besides the model: the user's for as long as the program runs.
struct DetailSession
{
    static constexpr double kMinimumPointSize = 12;
    static constexpr double kMaximumPointSize = 400;
    static constexpr double kStandardPointSize = 96;

    double pointSize = kStandardPointSize;
    /// Ems.
    double letterSpacing = 0;
    DetailStage stage = DetailStage::text;
    bool showsInspector = true;
    /// In a narrow window it lies over the page, and comes only when it is asked for.
    bool isNarrow = false;
    bool showsInspectorOverPage = false;
    QString selectedVariantLabel;
    /// The family that the variant is of: another one starts with its first.
    QString selectedVariantFamily;
};

/// Leads what the user does in the detail view to the model, to the session and to the commands.
///
/// Holds the model and the browser's actions, which must outlive it. Thread: main.
class DetailActions final : public FontDetailDelegate
{
public:
    DetailActions(LorvaAppModel &model, BrowserActions &browser);

    const DetailSession &session() const { return m_session; }
    /// The session has changed.
    std::function<void()> onChange;
    std::function<void(const QString &familyName, const FontStyleRecord &style)>
        onStyleActivationWanted;
    std::function<void(const QString &familyName, const FontStyleRecord &style)>
        onStyleDeactivationWanted;
    std::function<void(const DisplayedFace &face)> onFaceShown;

    /// Clamped; a value that is no number is refused.
    void setPointSize(double pointSize);
    /// Whether the window has room for the inspector beside the page; not told by onChange.
    void setNarrow(bool isNarrow) { m_session.isNarrow = isNarrow; }

    DisplayControlsDelegate &display() override;
    void detailPointSizeChanged(double pointSize) override { setPointSize(pointSize); }
    void detailClosed() override;
    void detailNeighbourWanted(int step) override;
    void detailVariantSelected(const QString &label) override;
    void detailLetterSpacingChanged(double letterSpacing) override;
    void detailStageChanged(DetailStage stage) override;
    void detailInspectorToggled() override;
    void detailActivationWanted() override;
    void detailRemainingActivationWanted() override;
    void detailDeactivationWanted() override;
    void detailStyleActivationWanted(const FontStyleRecord &style) override;
    void detailStyleDeactivationWanted(const FontStyleRecord &style) override;
    void detailCategoryChosen(const std::optional<QString> &categoryID) override;
    void detailCollectionToggled(const QString &collectionID) override;
    void detailFoundryChosen(const QString &foundryID) override;
    void detailFaceShown(const DisplayedFace &face) override;

private:
    /// The open family; none: an empty list.
    QStringList family() const;
    template <class T>
    void change(T DetailSession::*member, const T &value);

    LorvaAppModel &m_model;
    BrowserActions &m_browser;
    DetailSession m_session;
};

} // namespace lorva
