// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/BrowserLayout.h"
#include "ui/browser/BrowserSelection.h"

#include <QAbstractScrollArea>
#include <QColor>
#include <QHash>
#include <QStringList>

#include <functional>
#include <map>
#include <vector>

class QHelpEvent;

namespace lorva {

class CardPointer;
class CardSlide;
class FontCollectionItem;
class OverlayScrollBar;
class SmoothScroller;

/// The scrolling grid (or list) of cards, and what pointer and keys do in it.
///
/// Owns: one FontCollectionItem per card on screen and a few spare ones; a card that scrolls away
/// serves the next one that comes, so memory does not grow with the number of families. The
/// selection is its own; who shows the content tells it only which card is current elsewhere.
/// Thread: main. Units: points.
class BrowserCollectionView final : public QAbstractScrollArea
{
    Q_OBJECT
public:
    explicit BrowserCollectionView(QWidget *parent = nullptr);
    ~BrowserCollectionView() override;

    /// Makes an empty card; called only when no spare one is left.
    std::function<FontCollectionItem *(QWidget *parent)> makeItem;
    /// Fills a card for the item at `index`. Called when a card is shown and when it must change.
    std::function<void(FontCollectionItem &item, int index)> configureItem;
    /// What assistive technology is told about a card beyond its name.
    std::function<QString(int index)> describeItem;
    /// Cards were placed: a scroll, another size, other content.
    std::function<void()> onItemsPlaced;

    /// Return, keypad Enter.
    std::function<void()> onActivateSelection;
    std::function<void()> onDoubleClick;
    /// An upper-cased letter, of any script.
    std::function<void(const QString &letter)> onLetterKey;
    /// Another card is the current one (with an empty id, none).
    std::function<void(const QString &id)> onSelectionChanged;
    /// The pointer takes the selected families along.
    std::function<void()> onDragWanted;
    std::function<void()> onCopyWanted;
    /// The text of the current card's specimen is to be edited.
    std::function<void()> onEditWanted;
    /// A menu for the selected families, of which there is at least one.
    std::function<void(QPoint globalPosition)> onMenuWanted;

    struct Content
    {
        QStringList ids;
        ViewMode mode = ViewMode::grid;
        double pointSize = 36;
        /// Current elsewhere; see BrowserSelection::mirror().
        QString selectedID;
        /// Cards that stay slide to their new places.
        bool animates = false;
    };
    /// Shows this instead of what was shown, all of it at once: cards are only ever filled from
    /// indices of the present items. The card at the top of the window keeps its place when it is
    /// still there.
    void setContent(const Content &content);
    const QStringList &items() const { return m_selection.items(); }
    /// A background that is not opaque lets through what lies beneath the view.
    void setColors(const QColor &foreground, const QColor &background);
    const QColor &foreground() const { return m_foreground; }

    const BrowserSelection &selection() const { return m_selection; }
    /// As if the user had made it: of the same items.
    void setSelection(const BrowserSelection &selection);
    /// The current one.
    QString selectedID() const { return m_selection.currentID(); }
    bool isSelected(int index) const { return m_selection.isSelected(index); }
    /// Keys start at that card, and the focus came by keyboard.
    bool showsFocusAt(int index) const { return m_showsFocus && index == focusIndex(); }
    /// The card that keys start at: the current one, else the first in sight; −1 without cards.
    int focusIndex() const;

    /// Fills every card on screen anew, in place.
    void reconfigureVisibleItems();
    const BrowserLayout &arrangement() const { return m_layout; }
    bool isFirstColumn(int index) const { return m_layout.isFirstColumn(index); }
    /// Cards on screen, by item index.
    const std::map<int, FontCollectionItem *> &visibleItems() const { return m_visible; }
    /// Cards in existence, on screen or spare.
    int cardCount() const { return int(m_visible.size() + m_spare.size()); }

    int scrollOffset() const;
    void setScrollOffset(int offset);
    /// By as little as brings the whole card into sight.
    void scrollToItem(int index);

    /// A point of the viewport as one of the content, where lines are read from left to right.
    QPoint contentPoint(QPoint viewportPoint) const;
    /// The way back, for a rectangle.
    QRect viewportRect(const QRect &contentRect) const;
    /// The point of the viewport lies on the text that the card shows.
    bool isOnSpecimen(int index, QPoint viewportPoint) const;
    /// Null for a card that is not on screen.
    FontCollectionItem *visibleItem(int index) const;

protected:
    bool viewportEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Anchor
    {
        QString id;
        /// From the top of the window to the top of the card, as a share of the card's height.
        double offset = 0;
    };
    int scrollOffsetShowing(int index) const;
    std::vector<Anchor> currentAnchors() const;
    QHash<FontCollectionItem *, QPoint> placesOfCards() const;
    void slideFrom(const QHash<FontCollectionItem *, QPoint> &places);
    void setShowsFocus(bool showsFocus);
    bool pressCommand(const QKeyEvent &event);
    bool pressStep(const QKeyEvent &event);
    void openMenuAtCurrent();
    void replaceItems(const QStringList &ids);
    void relayout(const std::vector<Anchor> &anchors);
    void placeVisibleItems();
    FontCollectionItem *takeSpareItem();
    void paintViewport(const QRect &exposed);
    void paintEndOfGrid(QPainter &painter) const;
    bool showToolTip(const QHelpEvent &event);

    BrowserSelection m_selection;
    ViewMode m_mode = ViewMode::grid;
    double m_pointSize = 36;
    BrowserLayout m_layout;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    bool m_showsFocus = false;
    std::map<int, FontCollectionItem *> m_visible;
    std::vector<FontCollectionItem *> m_spare;
    OverlayScrollBar *m_overlay;
    SmoothScroller *m_scroller;
    CardSlide *m_slide;
    CardPointer *m_pointer;
};

} // namespace lorva
