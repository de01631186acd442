// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/FontDetailViewController.h"

#include "catalog/WeightChoice.h"
#include "ui/detail/CharacterGridView.h"
#include "ui/detail/ComparisonView.h"
#include "ui/detail/CssText.h"
#include "ui/detail/DetailPageView.h"
#include "ui/detail/DetailPreviewView.h"
#include "ui/detail/DetailTopBar.h"
#include "ui/detail/PreviewPage.h"
#include "ui/detail/StyleRowsView.h"
#include "ui/detail/VariantBar.h"
#include "ui/detail/WaterfallView.h"
#include "ui/preview/PreviewText.h"
#include "ui/style/Style.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace lorva {

namespace {

/// At which the characters of a face are listed.
constexpr double kGridFacePoints = 24;

} // namespace

FontDetailViewController::FontDetailViewController(std::shared_ptr<FontResolver> resolver,
                                                   QWidget *parent)
    : QWidget(parent)
    , m_resolver(std::move(resolver))
    , m_page(new DetailPageView(this))
    , m_preview(new DetailPreviewView(m_page))
    , m_waterfall(new WaterfallView(m_page))
    , m_comparison(new ComparisonView(m_resolver, m_page))
    , m_rows(new StyleRowsView(m_resolver, m_page))
    , m_grid(new CharacterGridView(m_page))
    , m_variants(new VariantBar(this))
    , m_topBar(new DetailTopBar(this))
{
    setObjectName(QStringLiteral("FontDetailViewController"));
    m_page->addSection(m_preview, spacing::k32);
    m_page->addSection(m_waterfall, spacing::k32);
    m_page->addSection(m_comparison, spacing::k32);
    m_page->addSection(m_rows, spacing::k40);
    m_page->addSection(m_grid, spacing::k40);
    m_waterfall->hide();
    m_comparison->hide();
    connectParts();
    connectRows();
}

FontDetailViewController::~FontDetailViewController()
{
    // The parts report to members that go before the children do.
    setDelegate(nullptr);
    delete m_page;
}

void FontDetailViewController::connectParts()
{
    connect(m_preview, &DetailPreviewView::textEdited, this, &FontDetailViewController::textEdited);
    connect(m_preview, &DetailPreviewView::editingChanged, this,
            &FontDetailViewController::editingChanged);
    connect(m_topBar, &DetailTopBar::searchChanged, this, &FontDetailViewController::search);
    connect(m_topBar, &DetailTopBar::searchLeft, m_grid, &CharacterGridView::focusCells);
    connect(m_topBar, &DetailTopBar::weightChosen, this, &FontDetailViewController::weightChosen);
    connect(m_variants, &VariantBar::variantSelected, this, [this](const QString &label) {
        if (m_delegate)
            m_delegate->detailVariantSelected(label);
    });
}

void FontDetailViewController::connectRows()
{
    connect(m_rows, &StyleRowsView::styleChosen, this, [this](const FontStyleRecord &style) {
        m_chosenStyleID = style.id;
        showFace();
        applyBars();
    });
    connect(m_rows, &StyleRowsView::activationWanted, this, [this](const FontStyleRecord &style) {
        if (m_delegate)
            m_delegate->detailStyleActivationWanted(style);
    });
    connect(m_rows, &StyleRowsView::deactivationWanted, this, [this](const FontStyleRecord &style) {
        if (m_delegate)
            m_delegate->detailStyleDeactivationWanted(style);
    });
}

void FontDetailViewController::setDelegate(FontDetailDelegate *delegate)
{
    m_delegate = delegate;
    m_topBar->setDelegate(delegate);
}

void FontDetailViewController::setMenuMaker(std::function<QMenu *(QWidget *parent)> makeMenu)
{
    m_topBar->makeMenu = std::move(makeMenu);
}

void FontDetailViewController::setFamilies(const FontFamilySubset &families)
{
    m_comparison->setFamilies(families);
}

void FontDetailViewController::apply(const FontDetailState &state)
{
    const FontDetailState previous = std::exchange(m_state, state);
    const bool isOtherFamily =
        !std::exchange(m_hasState, true) || previous.family.familyName != state.family.familyName;
    if (isOtherFamily)
        startAfresh();
    if (previous.fontWeight != state.fontWeight
        || previous.selectedVariantLabel != state.selectedVariantLabel)
        m_chosenStyleID.clear();
    // Of faces whose files have changed since.
    if (isOtherFamily || previous.family != state.family)
        m_variableWeightsByVariant.clear();
    applyColors();
    showFace();
    applyBars();
    m_preview->setVisible(state.stage == DetailStage::text);
    m_waterfall->setVisible(state.stage == DetailStage::waterfall);
    m_comparison->setVisible(state.stage == DetailStage::comparison);
    layOut();
    if (isOtherFamily)
        m_page->setScrollOffset(0);
}

/// Nothing of what was done to one family is carried over to the next.
void FontDetailViewController::startAfresh()
{
    m_chosenStyleID.clear();
    clearSettings();
    m_topBar->clearSearch();
    m_grid->setSearch({});
}

ActiveVariant FontDetailViewController::activeVariant()
{
    const FontVariant *variant = variantOf(m_state, m_state.selectedVariantLabel);
    if (!variant)
        return {m_state.family.familyName, m_state.family.familyName, {}, std::nullopt};
    m_variantKey = variant->familyName + QLatin1Char('\n') + variant->label;
    return {m_variantKey, variant->familyName, variant->styles,
            m_variableWeightsByVariant.value(m_variantKey)};
}

/// The weight control moves a variable face along its axis, and others from style to style.
Font FontDetailViewController::baseFace(const FontStyleRecord *style) const
{
    const Font font =
        m_resolver->resolve(m_activeVariant.familyName,
                            style ? std::optional(*style) : std::nullopt, m_state.pointSize);
    const bool isWeighted = m_state.fontWeight != kUnweighted && m_chosenStyleID.isEmpty();
    if (!isWeighted || font.isNull() || font.isStandIn())
        return font;
    return m_weightAxis ? withWeight(font, weightWithin(*m_weightAxis, m_state.fontWeight)) : font;
}

void FontDetailViewController::showFace()
{
    m_activeVariant = activeVariant();
    const FontVariant variant{{}, m_activeVariant.familyName, m_activeVariant.styles};
    const FontStyleRecord *style =
        shownStyle(m_state.family, variant, m_chosenStyleID, m_state.fontWeight);
    if (style && !m_variableWeightsByVariant.contains(m_variantKey)) {
        const Font font =
            m_resolver->resolve(m_activeVariant.familyName, *style, m_state.pointSize);
        if (!font.isNull() && !font.isStandIn())
            m_activeVariant.variableWeight = weightOf(*font.face(), *style);
        m_variableWeightsByVariant.insert(m_variantKey, m_activeVariant.variableWeight);
    }
    m_weightAxis.reset();
    if (m_activeVariant.variableWeight)
        m_weightAxis = m_activeVariant.variableWeight->axis;
    const DisplayedFace face{m_activeVariant.familyName, style ? *style : FontStyleRecord(),
                             baseFace(style)};
    if (isSameFace(m_displayedFace, face)) {
        dropOverruled(m_activeVariationAxes, m_displayedFace.font, face.font);
    } else {
        ++m_faceEdition;
        clearSettings();
    }
    const bool hasChanged = face != m_displayedFace;
    m_displayedFace = face;
    showSettings();
    m_rows->apply(m_state, m_activeVariant.styles, face.style.id);
    m_comparison->setStyle(face.style);
    if (hasChanged && m_delegate)
        m_delegate->detailFaceShown(face);
}

void FontDetailViewController::showSettings()
{
    m_previewFace =
        withSettings(m_displayedFace.font, m_activeFeatureSettings, m_activeVariationAxes);
    m_specimen.familyName = m_displayedFace.familyName;
    m_specimen.styleName = m_displayedFace.style.label;
    m_specimen.font = m_previewFace;
    m_specimen.text = shownText();
    m_specimen.letterSpacing = m_state.letterSpacing;
    const PaneColors colors = paneColorsOf(m_state);
    m_specimen.foreground = colors.foreground;
    m_specimen.background = groundUnder(colors.foreground, colors.background);
    m_specimen.logoImage = m_state.logoImage;
    m_specimen.logoSizeRatio = m_state.logoSizeRatio;
    m_specimen.logoSpacing = m_state.logoSpacing;
    m_preview->apply(m_specimen);
    m_waterfall->apply(m_specimen);
    m_comparison->apply(m_specimen);

    const FontStyleRecord &style = m_displayedFace.style;
    // First, so that cells of another face are not painted in this one before they go.
    m_grid->requestCharacterGrid(
        style.id.isEmpty() ? QString() : gridKey(),
        m_resolver->resolve(m_displayedFace.familyName, style, kGridFacePoints));
    m_grid->setPreviewFace(m_previewFace);
}

/// Another one for a file that has been replaced.
QString FontDetailViewController::gridKey() const
{
    return QStringList{m_variantKey, m_displayedFace.style.id, QString::number(m_faceEdition)}.join(
        QLatin1Char('\n'));
}

/// What is being typed stays as it is, whatever the face makes of it.
QString FontDetailViewController::shownText() const
{
    if (m_preview->isEditing())
        return m_preview->text();
    return m_displayedFace.font.isNull()
        ? m_state.sampleText
        : specimenText(m_state.sampleText, m_displayedFace.font,
                       m_state.family.primaryScript.value_or(WritingScript::latin));
}

void FontDetailViewController::textEdited(const QString &text)
{
    m_specimen.text = text;
    m_waterfall->apply(m_specimen);
    m_comparison->apply(m_specimen);
    if (text.trimmed().isEmpty())
        return;
    // The model's answer comes later; whoever stops typing before it keeps text and history.
    m_state.sampleText = text;
    if (m_delegate)
        m_delegate->display().displaySampleTextChanged(text);
}

/// Every key would be written down otherwise.
void FontDetailViewController::editingChanged()
{
    if (m_delegate)
        m_delegate->display().displayHoldChanged(m_preview->isEditing());
    if (m_preview->isEditing() || !m_hasState)
        return;
    showSettings();
    // Who has only stopped typing is still on this page.
    if (!window()->focusWidget())
        focusPage();
}

void FontDetailViewController::clearSettings()
{
    m_activeFeatureSettings.reset();
    m_activeVariationAxes.clear();
}

void FontDetailViewController::setFeatureSettings(
    const std::optional<std::vector<FeaturePair>> &enabled)
{
    const Font &font = m_displayedFace.font;
    m_activeFeatureSettings.reset();
    if (enabled && !font.isNull())
        m_activeFeatureSettings = featureSettings(fontFeatures(*font.face()), *enabled);
    showSettings();
}

void FontDetailViewController::setVariationAxes(const std::vector<VariationSetting> &values)
{
    m_activeVariationAxes = values;
    showSettings();
}

void FontDetailViewController::applyColors()
{
    const PaneColors colors = paneColorsOf(m_state);
    // Anew they would be painted anew, and what hangs from a cell would close.
    if (std::exchange(m_shownColors, colors) == colors)
        return;
    m_topBar->setColors(colors.foreground, colors.background);
    m_variants->setColors(colors.foreground, colors.background);
    m_rows->setColors(colors.foreground, colors.background);
    m_grid->setColors(colors.foreground, colors.background);
    m_page->setForeground(colors.foreground);
    fillPane(*this, colors.background);
}

void FontDetailViewController::applyBars()
{
    FontDetailState shown = m_state;
    if (!m_chosenStyleID.isEmpty())
        shown.fontWeight = int(m_displayedFace.style.weight);
    m_topBar->apply(shown);
    QStringList labels;
    for (const FontVariant &variant : m_state.variants)
        labels << variant.label;
    const FontVariant *selected = variantOf(m_state, m_state.selectedVariantLabel);
    m_variants->apply(labels, selected ? selected->label : QString());
}

/// The weight that the model has already: it would tell nothing, and the chosen style stay.
void FontDetailViewController::weightChosen(int weight)
{
    if (weight != m_state.fontWeight || m_chosenStyleID.isEmpty())
        return;
    m_chosenStyleID.clear();
    showFace();
    applyBars();
}

void FontDetailViewController::search(const QString &query)
{
    m_grid->setSearch(query);
    if (!query.trimmed().isEmpty())
        m_page->setScrollOffset(m_page->topOf(*m_grid));
}

void FontDetailViewController::focusPage()
{
    m_page->setFocus(Qt::OtherFocusReason);
}

void FontDetailViewController::focusSearch()
{
    m_topBar->focusSearch();
}

SpecimenPage FontDetailViewController::page() const
{
    switch (m_state.stage) {
    case DetailStage::waterfall:
        return m_waterfall->page();
    case DetailStage::comparison:
        return m_comparison->page();
    case DetailStage::text:
        break;
    }
    return previewPage(m_specimen, m_preview->width());
}

QColor FontDetailViewController::pageBackground() const
{
    return paneColorsOf(m_state).background;
}

QString FontDetailViewController::exportName() const
{
    return specimenFileName(m_displayedFace.familyName, m_displayedFace.style.label);
}

QString FontDetailViewController::css() const
{
    return cssText(m_specimen, m_displayedFace.familyName, m_displayedFace.style);
}

bool FontDetailViewController::isSettled() const
{
    return m_rows->isSettled() && m_grid->isSettled()
        && (m_comparison->isHidden() || m_comparison->isSettled());
}

/// What no part of the page has a use for.
void FontDetailViewController::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_delegate)
        m_delegate->detailClosed();
    else
        QWidget::keyPressEvent(event);
}

void FontDetailViewController::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::BackButton && m_delegate)
        m_delegate->detailClosed();
    else
        QWidget::mousePressEvent(event);
}

void FontDetailViewController::layOut()
{
    const int barHeight = DetailTopBar::kHeight;
    const int footHeight = m_state.variants.size() < 2 ? 0 : VariantBar::kHeight;
    m_topBar->setGeometry(0, 0, width(), barHeight);
    m_page->setGeometry(0, barHeight, width(), std::max(height() - barHeight - footHeight, 0));
    m_variants->setGeometry(0, height() - footHeight, width(), footHeight);
    m_variants->setVisible(footHeight > 0);
    m_page->layOut();
}

void FontDetailViewController::resizeEvent(QResizeEvent *)
{
    layOut();
}

} // namespace lorva
