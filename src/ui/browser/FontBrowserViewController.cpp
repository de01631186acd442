// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/FontBrowserViewController.h"

#include "catalog/WeightChoice.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/BrowserEmptyStateView.h"
#include "ui/browser/BrowserLoadingView.h"
#include "ui/browser/BrowserTopBar.h"
#include "ui/browser/CardMenu.h"
#include "ui/browser/FamilyDrag.h"
#include "ui/browser/FontCardContentView.h"
#include "ui/browser/FontCollectionItem.h"
#include "ui/browser/InlineEditHandler.h"
#include "ui/browser/LetterJump.h"
#include "ui/browser/LetterOverlayView.h"
#include "ui/preview/SpecimenImage.h"
#include "ui/style/PaneColors.h"

#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include <algorithm>

namespace lorva {

FontBrowserViewController::FontBrowserViewController(std::shared_ptr<FontResolver> resolver,
                                                     QWidget *parent)
    : QWidget(parent)
    , m_resolver(std::move(resolver))
    , m_prewarmTimer(new QTimer(this))
    , m_collection(new BrowserCollectionView(this))
    , m_topBar(new BrowserTopBar(this))
    , m_empty(new BrowserEmptyStateView(this))
    , m_loading(new BrowserLoadingView(this))
    , m_inlineEdit(new InlineEditHandler(this))
{
    setObjectName(QStringLiteral("FontBrowserViewController"));
    // Its own, whatever the window's is.
    setBackgroundRole(QPalette::Window);
    m_empty->hide();
    m_loading->hide();
    runDrag = [](QDrag *drag) { drag->exec(Qt::CopyAction); };
    m_empty->onWatchFolder = [this] {
        if (m_delegate)
            m_delegate->browserWatchFolderWanted();
    };
    m_topBar->onSearchLeft = [this] { focusCards(); };
    connectCollection();
    connectInlineEdit();
    m_prewarmTimer->setObjectName(QStringLiteral("prewarmTimer"));
    m_prewarmTimer->setSingleShot(true);
    m_prewarmTimer->setInterval(kPrewarmDelayMilliseconds);
    connect(m_prewarmTimer, &QTimer::timeout, this, &FontBrowserViewController::prewarm);
    setFocusProxy(m_collection);
    applyColors();
}

/// The focus leaves what dies, and what it leaves asks this view, which must be whole then. Nobody
/// is told any more: whoever decides may be gone already.
FontBrowserViewController::~FontBrowserViewController()
{
    setDelegate(nullptr);
    delete m_inlineEdit;
    delete m_collection;
}

void FontBrowserViewController::connectCollection()
{
    m_collection->makeItem = [this](QWidget *parentWidget) {
        return new FontCollectionItem(m_resolver, parentWidget);
    };
    m_collection->configureItem = [this](FontCollectionItem &item, int index) {
        if (hasFamilyAt(index))
            item.configure(cardConfiguration(index));
    };
    m_collection->describeItem = [this](int index) {
        return hasFamilyAt(index) ? cardDescription(index) : QString();
    };
    m_collection->onItemsPlaced = [this] {
        m_prewarmTimer->start();
        placeInlineEdit();
    };
    m_collection->onSelectionChanged = [this](const QString &id) {
        if (m_delegate)
            m_delegate->browserSelectionChanged(id.isEmpty() ? std::nullopt : std::optional(id));
    };
    m_collection->onActivateSelection = [this] { openSelection(); };
    m_collection->onDoubleClick = [this] { openSelection(); };
    m_collection->onLetterKey = [this](const QString &letter) { jumpTo(letter); };
    m_collection->onDragWanted = [this] { dragSelection(); };
    m_collection->onCopyWanted = [this] { copySelection(); };
    m_collection->onEditWanted = [this] { editSampleText(); };
    m_collection->onMenuWanted = [this](QPoint position) { openMenu(position); };
}

void FontBrowserViewController::connectInlineEdit()
{
    m_inlineEdit->onLiveChange = [this](const QString &text) {
        m_liveSampleText = text;
        m_collection->reconfigureVisibleItems();
    };
    m_inlineEdit->onEnd = [this](bool hadFocus) {
        m_inlineEditID.clear();
        m_liveSampleText.reset();
        m_collection->reconfigureVisibleItems();
        if (hadFocus)
            m_collection->setFocus();
    };
    m_inlineEdit->onCommit = [this](const QString &text) {
        m_liveSampleText = text;
        m_collection->reconfigureVisibleItems();
        if (m_delegate)
            m_delegate->displaySampleTextChanged(text);
    };
}

void FontBrowserViewController::setDelegate(FontBrowserDelegate *delegate)
{
    m_delegate = delegate;
    m_topBar->setDelegate(delegate);
}

void FontBrowserViewController::apply(const FontBrowserState &state)
{
    if (m_lastRenderedSource && *m_lastRenderedSource != state.source)
        m_inlineEdit->cancel();
    if (!m_inlineEdit->isActive())
        m_liveSampleText.reset();
    const FontBrowserState previous = std::exchange(m_state, state);
    const bool spins = m_state.families.empty() && m_state.isLoading;
    const bool isEmpty = m_state.emptyState && !m_state.isLoading;
    m_loading->setText(m_state.loadingText);
    m_loading->setVisible(spins);
    if (isEmpty)
        m_empty->show(*m_state.emptyState);
    else
        showCollection();
    // What has the focus goes when the other is there to take it.
    m_empty->setVisible(isEmpty);
    m_topBar->apply(m_state);
    applyColors();
    applyItems(previous);
    // Only now: the focus that leaves its cards asks for each of them.
    if (isEmpty)
        hideCollection();
}

void FontBrowserViewController::hideCollection()
{
    if (m_collection->isHidden())
        return;
    m_collectionHadFocus = window()->focusWidget() == m_collection;
    // Not to whatever comes next: a ring would show there that nobody asked for.
    if (m_collectionHadFocus)
        m_empty->setFocus(Qt::OtherFocusReason);
    m_collection->hide();
    m_focusInstead = window()->focusWidget();
}

/// With its cards the view gets the focus back, unless the user has gone elsewhere.
void FontBrowserViewController::showCollection()
{
    if (!m_collection->isHidden())
        return;
    m_collection->show();
    const bool isTyping = qobject_cast<QLineEdit *>(window()->focusWidget());
    const bool getsItBack = m_collectionHadFocus && window()->focusWidget() == m_focusInstead;
    if (getsItBack || (std::exchange(m_cardsAwaitFocus, false) && !isTyping))
        m_collection->setFocus();
}

void FontBrowserViewController::applyColors()
{
    const QColor foreground = paneColorsOf(m_state).foreground;
    const QColor background = paneColorsOf(m_state).background;
    m_topBar->setColors(foreground, background);
    m_collection->setColors(foreground, background);
    m_empty->setColors(foreground, background);
    m_loading->setForeground(foreground);
    fillPane(*this, background);
}

void FontBrowserViewController::applyItems(const FontBrowserState &previous)
{
    const bool sourceChanged = m_lastRenderedSource != m_state.source;
    if (sourceChanged && m_lastRenderedSource)
        m_scrollOriginBySource.insert(*m_lastRenderedSource, m_collection->scrollOffset());
    if (previous.searchQuery.isEmpty() && !m_state.searchQuery.isEmpty())
        m_offsetBeforeSearch = m_collection->scrollOffset();

    if (previous.families != m_state.families
        || previous.catalogGeneration != m_state.catalogGeneration) {
        m_orderedIDs.clear();
        m_orderedIDs.reserve(qsizetype(m_state.families.size()));
        for (const FontFamilyRecord &family : m_state.families)
            m_orderedIDs.append(family.familyName);
        m_prewarmTimer->start();
    }
    m_collection->setContent({m_orderedIDs, m_state.viewMode, m_state.pointSize,
                              m_state.selectedFamilyName.value_or(QString()),
                              animatesItems(previous, sourceChanged)});
    placeInlineEdit();
    if (sourceChanged) {
        m_collection->setScrollOffset(m_scrollOriginBySource.value(m_state.source, 0));
        m_lastRenderedSource = m_state.source;
        m_offsetBeforeSearch = 0;
    } else if (previous.searchQuery != m_state.searchQuery) {
        scrollForSearch();
    }
}

/// What is found is read from the top; afterwards the view is where it was, or at what was chosen.
void FontBrowserViewController::scrollForSearch()
{
    const bool isOver = m_state.searchQuery.isEmpty();
    m_collection->setScrollOffset(isOver ? m_offsetBeforeSearch : 0);
    if (isOver)
        revealSelection();
}

/// Only where the eye can follow: a list that shrinks in place, as it does under a search.
bool FontBrowserViewController::animatesItems(const FontBrowserState &previous,
                                              bool sourceChanged) const
{
    return !sourceChanged && previous.viewMode == m_state.viewMode && !previous.families.empty()
        && m_state.families.size() <= previous.families.size();
}

/// Of an edit that runs, else the state's. A blank text would never be taken over.
QString FontBrowserViewController::sampleText() const
{
    const bool isShown = m_liveSampleText && !m_liveSampleText->trimmed().isEmpty();
    return isShown ? *m_liveSampleText : m_state.sampleText;
}

FontCardConfiguration FontBrowserViewController::cardConfiguration(int index) const
{
    const FontFamilyRecord &family = m_state.families[size_t(index)];
    FontCardConfiguration card;
    card.family = family;
    card.style = styleForWeight(family, m_state.fontWeight);
    if (m_state.fontWeight != kUnweighted)
        card.weight = m_state.fontWeight;
    card.previewText = sampleText();
    card.pointSize = m_state.pointSize;
    card.viewMode = m_state.viewMode;
    // The view's own selection is ahead of the state by one turn of the event loop.
    card.isSelected = m_collection->isSelected(index);
    card.showsFocus = m_collection->showsFocusAt(index);
    card.isEdited = m_inlineEditID == family.familyName;
    card.catalogGeneration = m_state.catalogGeneration;
    card.isFirstColumn = m_collection->isFirstColumn(index);
    card.isFirstRow = index < m_collection->arrangement().columns();
    card.foregroundColor = paneColorsOf(m_state).foreground;
    card.backgroundColor = paneColorsOf(m_state).background;
    card.logoImage = m_state.logoImage;
    card.logoSizeRatio = m_state.logoSizeRatio;
    card.logoSpacing = m_state.logoSpacing;
    card.activation = m_state.activationProvider(family);
    card.isSystem = card.activation && card.activation->isActive() && !card.activation->method();
    return card;
}

/// The cards still are those of the former state while a new one is taken up, and may be asked for
/// then: a view that goes loses the focus.
bool FontBrowserViewController::hasFamilyAt(int index) const
{
    return size_t(index) < m_state.families.size();
}

QString FontBrowserViewController::cardDescription(int index) const
{
    const FontCardConfiguration card = cardConfiguration(index);
    QStringList parts{FontCardContentView::subtitleText(card.family)};
    if (card.isSystem)
        parts.append(FontCardContentView::systemTagText());
    if (const FontCollectionItem *item = m_collection->visibleItem(index)) {
        const QString note = item->contentView().previewView().accessibleDescription();
        if (!note.isEmpty())
            parts.append(note);
    }
    //: Between what is said of a family's card; spoken.
    return parts.join(tr(", "));
}

QStringList FontBrowserViewController::selectedNames() const
{
    return m_collection->selection().selectedIDs();
}

std::vector<int> FontBrowserViewController::selectedIndices() const
{
    std::vector<int> indices;
    for (const QString &name : selectedNames())
        indices.push_back(m_collection->selection().indexOf(name));
    return indices;
}

void FontBrowserViewController::selectAll()
{
    BrowserSelection selection = m_collection->selection();
    selection.selectAll();
    m_collection->setSelection(selection);
}

void FontBrowserViewController::focusCards()
{
    m_collection->setFocus(Qt::ShortcutFocusReason);
    m_cardsAwaitFocus = m_collection->isHidden();
}

void FontBrowserViewController::revealSelection()
{
    if (const int chosen = m_collection->selection().current(); chosen >= 0)
        m_collection->scrollToItem(chosen);
}

void FontBrowserViewController::openSelection()
{
    const QStringList names = selectedNames();
    if (m_delegate && !names.isEmpty())
        m_delegate->browserOpenDetail(names.front());
}

void FontBrowserViewController::copySelection()
{
    const std::vector<int> indices = selectedIndices();
    if (indices.empty())
        return;
    auto families = familyMimeData(m_state.families, indices);
    families->setText(selectedNames().join(u'\n'));
    QGuiApplication::clipboard()->setMimeData(families.release());
}

void FontBrowserViewController::dragSelection()
{
    const std::vector<int> indices = selectedIndices();
    if (indices.empty())
        return;
    auto *drag = new QDrag(m_collection->viewport());
    drag->setMimeData(familyMimeData(m_state.families, indices).release());
    if (const auto *item = m_collection->visibleItem(m_collection->selection().current())) {
        const PaneColors pane = paneColorsOf(m_state);
        const DragColors colors{pane.foreground, pane.background};
        drag->setPixmap(familyDragPixmap(*item, int(indices.size()), colors));
        drag->setHotSpot(kFamilyDragHotSpot);
    }
    runDrag(drag);
}

void FontBrowserViewController::openMenu(QPoint globalPosition)
{
    if (m_menu || !m_delegate)
        return;
    m_menu = makeCardMenu(m_state, selectedNames(), *m_delegate, this);
    // A menu that is closed is done for; its actions run after that.
    connect(m_menu, &QMenu::aboutToHide, m_menu, [menu = m_menu.data(), this] {
        m_menu.clear();
        menu->deleteLater();
    });
    m_menu->popup(globalPosition);
}

void FontBrowserViewController::jumpTo(const QString &letter)
{
    const int index = firstWithLetter(m_orderedIDs, letter);
    if (index >= 0) {
        BrowserSelection selection = m_collection->selection();
        selection.choose(index);
        m_collection->setScrollOffset(m_collection->arrangement().cardRect(index).top());
        m_collection->setSelection(selection);
    }
    delete m_letterOverlay;
    m_letterOverlay = new LetterOverlayView(letter, paneColorsOf(m_state).foreground, this);
}

void FontBrowserViewController::editSampleText()
{
    const int index = m_collection->focusIndex();
    if (index < 0 || m_collection->isHidden())
        return;
    m_collection->scrollToItem(index);
    m_inlineEdit->commit();
    m_inlineEditID = m_orderedIDs.at(index);
    m_inlineEdit->begin(m_collection->viewport(), m_state.sampleText, {});
    placeInlineEdit();
    m_collection->reconfigureVisibleItems();
}

/// The field goes where its card goes, and with it.
void FontBrowserViewController::placeInlineEdit()
{
    if (!m_inlineEdit->isActive())
        return;
    const int index = m_collection->selection().indexOf(m_inlineEditID);
    if (index < 0) {
        m_inlineEdit->cancel();
        return;
    }
    const QRect card = m_collection->viewportRect(m_collection->arrangement().cardRect(index));
    const QRect specimen = FontCardContentView::previewRect(card.size()).translated(card.topLeft());
    const bool isList = m_state.viewMode == ViewMode::list;
    m_inlineEdit->setPlace({specimen, isList ? Qt::AlignLeft | Qt::AlignAbsolute : Qt::AlignHCenter,
                            paneColorsOf(m_state).foreground, paneColorsOf(m_state).background});
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

/// A letter that no control of the pane has a use for.
void FontBrowserViewController::keyPressEvent(QKeyEvent *event)
{
    const QString letter = jumpLetter(*event);
    if (letter.isEmpty() || m_collection->isHidden())
        QWidget::keyPressEvent(event);
    else
        jumpTo(letter);
}

void FontBrowserViewController::resizeEvent(QResizeEvent *)
{
    const int barHeight = BrowserTopBar::kHeight;
    m_topBar->setGeometry(0, 0, width(), barHeight);
    const QRect content(0, barHeight, width(), std::max(height() - barHeight, 0));
    m_collection->setGeometry(content);
    m_empty->setGeometry(content);
    m_loading->setGeometry(content);
    if (m_letterOverlay)
        m_letterOverlay->center();
}

} // namespace lorva
