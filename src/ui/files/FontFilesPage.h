// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/StyleActivations.h"
#include "text/FontFeatures.h"
#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/FontDetailState.h"
#include "ui/preview/FontResolver.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace lorva {

class CharacterGridView;
class DetailPageView;
class DetailPreviewView;
class StyleRowsView;
class WaterfallView;

/// One face of the files that were opened, in depth: a specimen in which one types, or the same in
/// falling sizes, the styles of its family, and every character.
///
/// In the desktop's neutral colours. What is typed, the size and the stage stay from face to face.
/// Thread: main. Units: points.
class FontFilesPage final : public QWidget
{
    Q_OBJECT
public:
    static constexpr double kStandardPointSize = 72;

    explicit FontFilesPage(std::shared_ptr<FontResolver> resolver, QWidget *parent = nullptr);
    ~FontFilesPage() override;

    /// `edition`: another one for files that were read anew.
    void showFace(const FontFamilyRecord &family, const FontStyleRecord &style, int edition);
    /// Lets go of the face; what is typed stays.
    void clear();
    void showActivations(const StyleActivations &activations);
    double pointSize() const { return m_pointSize; }
    void setPointSize(double pointSize);
    DetailStage stage() const { return m_stage; }
    /// text or waterfall.
    void setStage(DetailStage stage);

    // From the inspector, until another face is shown; as in the detail view.

    void setFeatureSettings(const std::optional<std::vector<FeaturePair>> &enabled);
    void setVariationAxes(const std::vector<VariationSetting> &values);

    const DisplayedFace &face() const { return m_face; }
    void focusPage();
    /// What is in sight shows its faces.
    bool isSettled() const;

Q_SIGNALS:
    void styleChosen(const FontStyleRecord &style);
    void activationWanted(const FontStyleRecord &style);
    void deactivationWanted(const FontStyleRecord &style);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectParts();
    void applyColors();
    void applyRows();
    void applySpecimen();
    void applyGrid();
    QString shownText() const;

    const std::shared_ptr<FontResolver> m_resolver;
    FontFamilyRecord m_family;
    DisplayedFace m_face;
    int m_edition = 0;
    StyleActivations m_activations;
    double m_pointSize = kStandardPointSize;
    DetailStage m_stage = DetailStage::text;
    /// By the user; blank: what suits the face.
    QString m_text;
    std::optional<std::vector<FeatureSetting>> m_features;
    std::vector<VariationSetting> m_axes;
    DetailSpecimen m_specimen;

    DetailPageView *m_page;
    DetailPreviewView *m_preview;
    WaterfallView *m_waterfall;
    StyleRowsView *m_rows;
    CharacterGridView *m_grid;
};

} // namespace lorva
