// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilySubset.h"
#include "ui/detail/DetailFaces.h"
#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/FontDetailState.h"
#include "ui/detail/SpecimenPage.h"
#include "ui/preview/FontResolver.h"
#include "ui/style/PaneColors.h"

#include <QHash>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QMenu;

namespace lorva {

class CharacterGridView;
class ComparisonView;
class DetailPageView;
class DetailPreviewView;
class DetailTopBar;
class StyleRowsView;
class VariantBar;
class WaterfallView;

/// One family in depth: the preview in which one types, its styles, its variants and every
/// character.
///
/// Renders the state it is given and reports what the user does to its delegate. Which style is
/// shown, and with which features and axis values, is its own business: another family starts
/// afresh. Thread: main.
class FontDetailViewController final : public QWidget
{
    Q_OBJECT
public:
    explicit FontDetailViewController(std::shared_ptr<FontResolver> resolver,
                                      QWidget *parent = nullptr);
    ~FontDetailViewController() override;

    /// Does not own it; it must outlive this view.
    void setDelegate(FontDetailDelegate *delegate);
    void apply(const FontDetailState &state);
    const FontDetailState &state() const { return m_state; }
    /// The families that can be compared with.
    void setFamilies(const FontFamilySubset &families);

    // From the inspector. They hold for the face that is shown, until another one is.

    /// Exactly these are on; nothing: what the font does by itself.
    void setFeatureSettings(const std::optional<std::vector<FeaturePair>> &enabled);
    void setVariationAxes(const std::vector<VariationSetting> &values);

    /// What the inspector is to show.
    const DisplayedFace &displayedFace() const { return m_displayedFace; }
    /// What hangs from the bar's "more" button; made anew when it is opened.
    void setMenuMaker(std::function<QMenu *(QWidget *parent)> makeMenu);

    // What the window's menus do here.

    /// Gives the page the keyboard.
    void focusPage();
    void focusSearch();
    /// What the stage shows, for a file,
    SpecimenPage page() const;
    /// what it stands on,
    QColor pageBackground() const;
    /// and what the file may be called, without an ending.
    QString exportName() const;
    /// The present face, features and axes.
    QString css() const;
    /// What is in sight shows its faces.
    bool isSettled() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectParts();
    void connectRows();
    void startAfresh();
    ActiveVariant activeVariant();
    void showFace();
    Font baseFace(const FontStyleRecord *style) const;
    void showSettings();
    void clearSettings();
    QString gridKey() const;
    void applyColors();
    void applyBars();
    QString shownText() const;
    void textEdited(const QString &text);
    void editingChanged();
    void weightChosen(int weight);
    void search(const QString &query);
    void layOut();

    const std::shared_ptr<FontResolver> m_resolver;
    FontDetailDelegate *m_delegate = nullptr;
    FontDetailState m_state;
    bool m_hasState = false;

    QString m_variantKey;
    QHash<QString, std::optional<VariableWeight>> m_variableWeightsByVariant;
    ActiveVariant m_activeVariant;
    /// By the user, in the rows; empty: the one that the weight control stands for.
    QString m_chosenStyleID;
    DisplayedFace m_displayedFace;
    /// Grows with every other face, and with every other version of its file.
    int m_faceEdition = 0;
    /// From the inspector; nothing: what the font does by itself.
    std::optional<std::vector<FeatureSetting>> m_activeFeatureSettings;
    std::vector<VariationSetting> m_activeVariationAxes;
    /// On which the weight control moves the face.
    std::optional<ClosedRange> m_weightAxis;
    Font m_previewFace;
    DetailSpecimen m_specimen;
    std::optional<PaneColors> m_shownColors;

    DetailPageView *m_page;
    DetailPreviewView *m_preview;
    WaterfallView *m_waterfall;
    ComparisonView *m_comparison;
    StyleRowsView *m_rows;
    CharacterGridView *m_grid;
    VariantBar *m_variants;
    DetailTopBar *m_topBar;
};

} // namespace lorva
