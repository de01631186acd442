// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesPage.h"

#include "ui/detail/CharacterGridView.h"
#include "ui/detail/DetailFaces.h"
#include "ui/detail/DetailPageView.h"
#include "ui/detail/DetailPreviewView.h"
#include "ui/detail/StyleRowsView.h"
#include "ui/detail/WaterfallView.h"
#include "ui/preview/PreviewText.h"
#include "ui/style/Palette.h"
#include "ui/style/PaneColors.h"
#include "ui/style/Style.h"

#include <QEvent>

namespace lorva {

namespace {

/// At which the characters of a face are listed.
constexpr double kGridFacePoints = 24;
/// Of a pangram; a face that has less of it shows what it has.
constexpr double kEnoughOfPangram = 2.0 / 3;

QString textFor(const Font &font, WritingScript script)
{
    const QString pangram = defaultPangram(script);
    return coverage(font, pangram) < kEnoughOfPangram ? fallbackText(font, script) : pangram;
}

} // namespace

FontFilesPage::FontFilesPage(std::shared_ptr<FontResolver> resolver, QWidget *parent)
    : QWidget(parent)
    , m_resolver(std::move(resolver))
    , m_page(new DetailPageView(this))
    , m_preview(new DetailPreviewView(m_page))
    , m_waterfall(new WaterfallView(m_page))
    , m_rows(new StyleRowsView(m_resolver, m_page))
    , m_grid(new CharacterGridView(m_page))
{
    setObjectName(QStringLiteral("FontFilesPage"));
    m_page->addSection(m_preview, spacing::k32);
    m_page->addSection(m_waterfall, spacing::k32);
    m_page->addSection(m_rows, spacing::k40);
    m_page->addSection(m_grid, spacing::k40);
    m_waterfall->hide();
    connectParts();
    applyColors();
}

FontFilesPage::~FontFilesPage()
{
    // The parts report to members that go before the children do.
    disconnect(m_preview, nullptr, this, nullptr);
    delete m_page;
}

void FontFilesPage::connectParts()
{
    connect(m_preview, &DetailPreviewView::textEdited, this, [this](const QString &text) {
        m_text = text;
        m_specimen.text = text;
        m_waterfall->apply(m_specimen);
    });
    connect(m_preview, &DetailPreviewView::editingChanged, this, [this] {
        if (m_preview->isEditing())
            return;
        applySpecimen();
        // Who has only stopped typing is still on this page.
        if (!window()->focusWidget())
            focusPage();
    });
    connect(m_rows, &StyleRowsView::styleChosen, this, &FontFilesPage::styleChosen);
    connect(m_rows, &StyleRowsView::activationWanted, this, &FontFilesPage::activationWanted);
    connect(m_rows, &StyleRowsView::deactivationWanted, this, &FontFilesPage::deactivationWanted);
}

void FontFilesPage::showFace(const FontFamilyRecord &family, const FontStyleRecord &style,
                             int edition)
{
    const bool isOther =
        m_edition != edition || m_face.style != style || m_face.familyName != family.familyName;
    m_family = family;
    m_edition = edition;
    if (isOther) {
        m_features.reset();
        m_axes.clear();
        m_face = {family.familyName, style,
                  m_resolver->resolve(family.familyName, style, m_pointSize)};
    }
    applyRows();
    applySpecimen();
    applyGrid();
    m_page->layOut();
}

void FontFilesPage::clear()
{
    m_family = {};
    m_face = {};
    m_activations = {};
    m_features.reset();
    m_axes.clear();
    m_specimen.font = {};
    applyRows();
    m_preview->apply(m_specimen);
    m_waterfall->apply(m_specimen);
    m_grid->setPreviewFace({});
    m_grid->requestCharacterGrid({}, {});
}

void FontFilesPage::showActivations(const StyleActivations &activations)
{
    if (std::exchange(m_activations, activations) != activations)
        applyRows();
}

void FontFilesPage::setPointSize(double pointSize)
{
    m_pointSize = pointSize;
    if (!m_face.font.isNull())
        m_face.font = m_face.font.withPointSize(pointSize);
    applySpecimen();
}

void FontFilesPage::setStage(DetailStage stage)
{
    m_stage = stage;
    m_preview->setVisible(stage != DetailStage::waterfall);
    m_waterfall->setVisible(stage == DetailStage::waterfall);
    m_page->layOut();
}

void FontFilesPage::setFeatureSettings(const std::optional<std::vector<FeaturePair>> &enabled)
{
    m_features.reset();
    if (enabled && !m_face.font.isNull())
        m_features = featureSettings(fontFeatures(*m_face.font.face()), *enabled);
    applySpecimen();
}

void FontFilesPage::setVariationAxes(const std::vector<VariationSetting> &values)
{
    m_axes = values;
    applySpecimen();
}

void FontFilesPage::applyRows()
{
    FontDetailState state;
    state.family = m_family;
    state.activationByStyleID = m_activations.activationByStyleID;
    state.labelsInSameFile = m_activations.labelsInSameFile;
    m_rows->apply(state, m_family.styles, m_face.style.id);
}

/// What is being typed stays as it is, whatever the face makes of it.
QString FontFilesPage::shownText() const
{
    if (m_preview->isEditing())
        return m_preview->text();
    const WritingScript script = m_family.primaryScript.value_or(WritingScript::latin);
    return m_text.trimmed().isEmpty() ? textFor(m_face.font, script)
                                      : specimenText(m_text, m_face.font, script);
}

void FontFilesPage::applySpecimen()
{
    if (m_face.font.isNull())
        return;
    m_specimen.familyName = m_face.familyName;
    m_specimen.styleName = m_face.style.label;
    m_specimen.font = withSettings(m_face.font, m_features, m_axes);
    m_specimen.text = shownText();
    m_preview->apply(m_specimen);
    m_waterfall->apply(m_specimen);
    m_grid->setPreviewFace(m_specimen.font);
}

void FontFilesPage::applyGrid()
{
    const QString key =
        QStringList{m_face.familyName, m_face.style.id, QString::number(m_edition)}.join(u'\n');
    m_grid->requestCharacterGrid(
        key, m_resolver->resolve(m_face.familyName, m_face.style, kGridFacePoints));
}

void FontFilesPage::applyColors()
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    m_specimen.foreground = colors.text;
    m_specimen.background = colors.ground;
    m_rows->setColors(colors.text, colors.ground);
    m_grid->setColors(colors.text, colors.ground);
    m_page->setForeground(colors.text);
    fillPane(*this, colors.ground);
    applySpecimen();
}

void FontFilesPage::focusPage()
{
    m_page->setFocus(Qt::OtherFocusReason);
}

bool FontFilesPage::isSettled() const
{
    return m_rows->isSettled() && m_grid->isSettled();
}

void FontFilesPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The palette that fillPane() sets is one, too.
    if (event->type() == QEvent::PaletteChange
        && m_specimen.background != neutralColors(isDarkDesktop()).ground)
        applyColors();
}

void FontFilesPage::resizeEvent(QResizeEvent *)
{
    m_page->setGeometry(rect());
    m_page->layOut();
}

} // namespace lorva
