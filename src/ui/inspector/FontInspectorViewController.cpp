// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/FontInspectorViewController.h"

#include "catalog/FontInspectorService.h"
#include "ui/detail/DetailFaces.h"
#include "ui/display/PanelParts.h"
#include "ui/inspector/InspectorFeaturesView.h"
#include "ui/inspector/InspectorInfoView.h"
#include "ui/inspector/InspectorLook.h"
#include "ui/style/Hairline.h"
#include "ui/style/SegmentedControl.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

namespace lorva {

namespace {

/// As high as the bar over the specimens beside it.
constexpr int kTabBar = 52;

QScrollBar *scrollBarOf(PanelScrollArea *area)
{
    return area->verticalScrollBar();
}

} // namespace

FontInspectorViewController::FontInspectorViewController(
    std::shared_ptr<const OrthographyBook> orthographies, QWidget *parent)
    : QWidget(parent)
    , m_orthographies(std::move(orthographies))
    , m_tabs(new SegmentedControl(this))
    , m_featuresView(new InspectorFeaturesView(m_featuresState, m_pool, this))
    , m_infoView(new InspectorInfoView(this))
    , m_featuresScroll(new PanelScrollArea(m_featuresView, this))
    , m_infoScroll(new PanelScrollArea(m_infoView, this))
{
    setObjectName(QStringLiteral("FontInspector"));
    setAccessibleName(tr("Inspector"));
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.inspector"));
    m_pool.setMaxThreadCount(1);
    m_tabs->setObjectName(QStringLiteral("InspectorTabs"));
    //: The OpenType features of a font.
    m_tabs->addTextSegment(tr("Features"));
    //: Facts about a font.
    m_tabs->addTextSegment(tr("Info"));
    connect(m_tabs, &SegmentedControl::activated, this,
            [this](int index) { setSelectedTab(index == 0 ? Tab::features : Tab::info); });

    m_featuresState.onChange = [this](const std::vector<OpenTypeFeatureRecord> &features) {
        m_featuresView->refresh();
        tellFeatures(enabledPairs(features));
    };
    m_featuresState.onAxesChange = [this](const std::vector<FontVariationAxisRecord> &) {
        m_featuresView->refresh();
        tellAxes();
    };
    m_featuresView->onReset = [this] { reset(); };
    m_infoView->onLink = [this](const QUrl &link) {
        if (m_delegate)
            m_delegate->inspectorLinkWanted(link);
    };
    m_infoView->onFile = [this] {
        if (m_delegate && m_isSettled && !m_displayedContext.font.isNull())
            m_delegate->inspectorFileWanted(m_displayedContext.font.face()->path());
    };
    applyTab();
    takeColors();
}

FontInspectorViewController::~FontInspectorViewController()
{
    m_reading.cancel();
}

void FontInspectorViewController::showFace(const DisplayedFace &face,
                                           const std::optional<FontFamilyActivation> &activation)
{
    const bool isKnown = isSameFace(m_displayedContext, face);
    m_displayedContext = face;
    const bool isOtherActivation = m_infoState.activation != activation;
    m_infoState.activation = activation;
    if (!isKnown) {
        m_reading.cancel();
        if (face.font.isNull())
            clear();
        else
            read();
        return;
    }
    if (!m_isSettled || face.font.isNull())
        return;
    m_featuresState.rebase(FontInspectorService::axes(face.font));
    m_featuresView->refresh();
    if (isOtherActivation)
        showInfo();
}

void FontInspectorViewController::read()
{
    m_isSettled = false;
    m_reading = runThen(
        m_pool, this,
        [face = m_displayedContext.font.face(), book = m_orthographies](
            const std::stop_token &stop) { return readInspectorFacts(*face, book.get(), stop); },
        [this](InspectorFacts facts) { install(std::move(facts)); });
}

void FontInspectorViewController::install(InspectorFacts facts)
{
    const Font &font = m_displayedContext.font;
    m_isSettled = true;
    m_featuresState.offered = std::move(facts.offered);
    m_featuresState.features = std::move(facts.features);
    m_featuresState.instances = std::move(facts.instances);
    // The weight control may have moved while the face was read.
    m_featuresState.axes = FontInspectorService::axes(font);
    m_featuresState.axisBaselines.clear();
    for (const FontVariationAxisRecord &axis : m_featuresState.axes)
        m_featuresState.axisBaselines.push_back(axis.currentValue);
    m_infoState.metadata = std::move(facts.metadata);
    m_furtherSections = std::move(facts.furtherSections);
    m_featuresView->rebuild(facts.notes, font);
    showInfo();
    scrollBarOf(m_featuresScroll)->setValue(0);
    scrollBarOf(m_infoScroll)->setValue(0);
}

void FontInspectorViewController::clear()
{
    m_isSettled = true;
    m_featuresState.offered.clear();
    m_featuresState.features.clear();
    m_featuresState.instances.clear();
    m_featuresState.axes.clear();
    m_featuresState.axisBaselines.clear();
    m_infoState.metadata = {};
    m_furtherSections.clear();
    m_featuresView->rebuild({}, {});
    m_infoView->setSections({});
}

/// Only what is seen is made: the first tab comes first.
void FontInspectorViewController::showInfo()
{
    if (m_selectedTab != Tab::info || !m_isSettled || m_displayedContext.font.isNull())
        return;
    std::vector<InfoSection> sections = infoSections(m_infoState);
    sections.insert(sections.end(), m_furtherSections.begin(), m_furtherSections.end());
    m_infoView->setSections(sections);
}

void FontInspectorViewController::tellFeatures(
    const std::optional<std::vector<FeaturePair>> &enabled)
{
    if (m_delegate && m_isSettled)
        m_delegate->inspectorFeaturesChanged(enabled);
}

void FontInspectorViewController::tellAxes()
{
    if (m_delegate && m_isSettled)
        m_delegate->inspectorAxesChanged(m_featuresState.changedAxes());
}

void FontInspectorViewController::reset()
{
    const bool hadFeatures = m_featuresState.areFeaturesChanged();
    const bool hadAxes = !m_featuresState.changedAxes().empty();
    m_featuresState.reset();
    m_featuresView->refresh();
    if (hadFeatures)
        tellFeatures(std::nullopt);
    if (hadAxes)
        tellAxes();
}

void FontInspectorViewController::setSelectedTab(Tab tab)
{
    if (tab == m_selectedTab)
        return;
    m_selectedTab = tab;
    applyTab();
    showInfo();
}

void FontInspectorViewController::applyTab()
{
    const bool isInfo = m_selectedTab == Tab::info;
    m_tabs->setCurrentIndex(isInfo ? 1 : 0);
    m_featuresScroll->setVisible(!isInfo);
    m_infoScroll->setVisible(isInfo);
}

void FontInspectorViewController::takeColors()
{
    m_tabs->setColors(inspectorInk(), inspectorGround());
    update();
}

void FontInspectorViewController::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

void FontInspectorViewController::resizeEvent(QResizeEvent *)
{
    const int tabsHeight = m_tabs->sizeHint().height();
    m_tabs->setGeometry(kInspectorPadding, (kTabBar - tabsHeight) / 2,
                        std::max(0, width() - 2 * kInspectorPadding), tabsHeight);
    const QRect below(0, kTabBar, width(), std::max(0, height() - kTabBar));
    m_featuresScroll->setGeometry(below);
    m_infoScroll->setGeometry(below);
}

void FontInspectorViewController::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), inspectorGround());
    drawHairline(painter, rect(), isRightToLeft() ? Qt::RightEdge : Qt::LeftEdge,
                 hairlineColor(inspectorInk(), inspectorGround()));
}

} // namespace lorva
