// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/FontBrowserViewController.h"

#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/BrowserEmptyStateView.h"
#include "ui/browser/BrowserLoadingView.h"
#include "ui/browser/BrowserTopBar.h"
#include "ui/browser/FontCardContentView.h"
#include "ui/browser/FontCollectionItem.h"
#include "ui/preview/SpecimenImage.h"

#include <QTimer>

#include <algorithm>

namespace lorva {

namespace {

QColor foregroundOf(const FontBrowserState &state)
{
    return QColor(state.colorMode == ColorMode::image ? state.imageForegroundColorHex
                                                      : state.foregroundColorHex);
}

QColor backgroundOf(const FontBrowserState &state)
{
    return state.colorMode == ColorMode::image ? QColor(Qt::transparent)
                                               : QColor(state.backgroundColorHex);
}

} // namespace

FontBrowserViewController::FontBrowserViewController(std::shared_ptr<FontResolver> resolver,
                                                     QWidget *parent)
    : QWidget(parent)
    , m_resolver(std::move(resolver))
    , m_prewarmTimer(new QTimer(this))
    , m_topBar(new BrowserTopBar(this))
    , m_collection(new BrowserCollectionView(this))
    , m_empty(new BrowserEmptyStateView(this))
    , m_loading(new BrowserLoadingView(this))
{
    setObjectName(QStringLiteral("FontBrowserViewController"));
    m_empty->hide();
    m_loading->hide();
    m_collection->makeItem = [this](QWidget *parentWidget) {
        return new FontCollectionItem(m_resolver, parentWidget);
    };
    m_collection->configureItem = [this](FontCollectionItem &item, int index) {
        item.configure(cardConfiguration(index));
    };
    m_collection->onSelectionChanged = [this](const QString &id) {
        if (m_delegate)
            m_delegate->browserSelectionChanged(id.isEmpty() ? std::nullopt : std::optional(id));
    };
    m_prewarmTimer->setObjectName(QStringLiteral("prewarmTimer"));
    m_prewarmTimer->setSingleShot(true);
    m_prewarmTimer->setInterval(kPrewarmDelayMilliseconds);
    connect(m_prewarmTimer, &QTimer::timeout, this, &FontBrowserViewController::prewarm);
    m_collection->onItemsPlaced = [this] { m_prewarmTimer->start(); };
    m_collection->onActivateSelection = [this] { openSelection(); };
    m_collection->onDoubleClick = [this] { openSelection(); };
    m_topBar->onPointSizeChanged = [this](double pointSize) {
        if (m_delegate)
            m_delegate->browserPointSizeChanged(pointSize);
    };
    m_topBar->onViewModeChanged = [this](ViewMode mode) {
        if (m_delegate)
            m_delegate->browserViewModeChanged(mode);
    };
    setFocusProxy(m_collection);
    setTabOrder(m_collection, m_topBar);
    applyColors();
}

FontBrowserViewController::~FontBrowserViewController() = default;

void FontBrowserViewController::apply(const FontBrowserState &state)
{
    const FontBrowserState previous = std::exchange(m_state, state);
    const bool spins = m_state.families.empty() && m_state.isLoading;
    const bool isEmpty = m_state.emptyState && !m_state.isLoading;
    m_loading->setText(m_state.loadingText);
    m_loading->setVisible(spins);
    if (isEmpty)
        m_empty->show(*m_state.emptyState);
    m_empty->setVisible(isEmpty);
    showCollection(!isEmpty);
    m_topBar->apply(m_state.title, m_state.pointSize, m_state.viewMode);
    applyColors();
    applyItems(previous);
}

/// A hidden view loses the focus to whatever comes next; with its cards it gets it back.
void FontBrowserViewController::showCollection(bool isShown)
{
    if (isShown != m_collection->isHidden())
        return;
    if (!isShown)
        m_collectionHadFocus = m_collection->hasFocus();
    m_collection->setVisible(isShown);
    if (isShown && m_collectionHadFocus)
        m_collection->setFocus();
}

void FontBrowserViewController::applyColors()
{
    const QColor foreground = foregroundOf(m_state);
    const QColor background = backgroundOf(m_state);
    m_topBar->setColors(foreground, background);
    m_collection->setColors(foreground, background);
    m_empty->setForeground(foreground);
    m_loading->setForeground(foreground);
    setAutoFillBackground(background.alpha() == 255);
    if (palette().color(QPalette::Window) == background)
        return;
    QPalette colors = palette();
    colors.setColor(QPalette::Window, background);
    setPalette(colors);
}

void FontBrowserViewController::applyItems(const FontBrowserState &previous)
{
    const bool sourceChanged = m_lastRenderedSource != m_state.source;
    if (sourceChanged && m_lastRenderedSource)
        m_scrollOriginBySource.insert(*m_lastRenderedSource, m_collection->scrollOffset());

    if (previous.families != m_state.families
        || previous.catalogGeneration != m_state.catalogGeneration) {
        m_orderedIDs.clear();
        m_orderedIDs.reserve(qsizetype(m_state.families.size()));
        for (const FontFamilyRecord &family : m_state.families)
            m_orderedIDs.append(family.familyName);
        m_prewarmTimer->start();
    }
    m_collection->setContent({m_orderedIDs, m_state.viewMode, m_state.pointSize,
                              m_state.selectedFamilyName.value_or(QString())});
    if (sourceChanged) {
        m_collection->setScrollOffset(m_scrollOriginBySource.value(m_state.source, 0));
        m_lastRenderedSource = m_state.source;
    }
}

FontCardConfiguration FontBrowserViewController::cardConfiguration(int index) const
{
    const FontFamilyRecord &family = m_state.families[size_t(index)];
    FontCardConfiguration card;
    card.family = family;
    card.previewText = m_state.sampleText;
    card.pointSize = m_state.pointSize;
    card.viewMode = m_state.viewMode;
    // The view's own selection is ahead of the state by one turn of the event loop.
    card.isSelected = m_collection->selectedID() == family.familyName;
    card.catalogGeneration = m_state.catalogGeneration;
    card.isFirstColumn = m_collection->isFirstColumn(index);
    card.isFirstRow = index < m_collection->arrangement().columns();
    card.foregroundColor = foregroundOf(m_state);
    card.backgroundColor = backgroundOf(m_state);
    card.logoImage = m_state.logoImage;
    card.logoSizeRatio = m_state.logoSizeRatio;
    card.logoSpacing = m_state.logoSpacing;
    card.activation = m_state.activationProvider(family);
    card.isSystem = card.activation && card.activation->isActive() && !card.activation->method();
    return card;
}

void FontBrowserViewController::openSelection()
{
    const QString id = m_collection->selectedID();
    if (m_delegate && !id.isEmpty())
        m_delegate->browserOpenDetail(id);
}

/// The next screen first: libraries are read downwards.
void FontBrowserViewController::prewarm()
{
    if (!showsItsSpecimens()) {
        m_prewarmTimer->start();
        return;
    }
    const BrowserLayout &layout = m_collection->arrangement();
    Prewarmed wanted{
        layout.nearbyItems(m_collection->scrollOffset(), m_collection->viewport()->height()),
        m_state.families, m_state.catalogGeneration, m_state.viewMode, m_state.pointSize};
    if (wanted == m_prewarmed)
        return;
    m_prewarmed = std::move(wanted);
    if (m_prewarmed->items.empty())
        return;
    std::vector<PrewarmFace> faces;
    for (const int index : m_prewarmed->items)
        faces.push_back(prewarmFace(index));
    const double pointSize =
        previewConfiguration(cardConfiguration(m_prewarmed->items.front())).pointSize;
    m_resolver->prewarm(std::move(faces), pointSize);
}

/// Sets the specimen once and throws it away: what the type engine had to read for it stays.
PrewarmFace FontBrowserViewController::prewarmFace(int index) const
{
    const FontPreviewConfiguration preview = previewConfiguration(cardConfiguration(index));
    const QSize card = m_collection->arrangement().cardRect(index).size();
    const SpecimenCanvas canvas{FontCardContentView::previewRect(card).size(), devicePixelRatioF()};
    return {preview.familyName, preview.style,
            [preview, canvas](const Font &font) { layOutSpecimen(preview, font, canvas); }};
}

bool FontBrowserViewController::isSettled() const
{
    return isDrawn() && showsItsSpecimens();
}

bool FontBrowserViewController::isDrawn() const
{
    const auto &items = m_collection->visibleItems();
    return !(m_state.isLoading && m_state.families.empty())
        && std::none_of(items.begin(), items.end(), [](const auto &entry) {
               return entry.second->contentView().previewView().isWaiting();
           });
}

bool FontBrowserViewController::showsItsSpecimens() const
{
    const auto &items = m_collection->visibleItems();
    return std::all_of(items.begin(), items.end(), [](const auto &entry) {
        const FontPreviewNSView &preview = entry.second->contentView().previewView();
        return !preview.isWaiting() && preview.textOpacity() >= 1.0;
    });
}

void FontBrowserViewController::resizeEvent(QResizeEvent *)
{
    const int barHeight = BrowserTopBar::kHeight;
    m_topBar->setGeometry(0, 0, width(), barHeight);
    const QRect content(0, barHeight, width(), std::max(height() - barHeight, 0));
    m_collection->setGeometry(content);
    m_empty->setGeometry(content);
    m_loading->setGeometry(content);
}

} // namespace lorva
