// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/BrowserLayout.h"

#include <QAbstractScrollArea>
#include <QColor>
#include <QHash>
#include <QStringList>

#include <functional>
#include <map>
#include <vector>

class QHelpEvent;

namespace lorva {

class FontCollectionItem;
class OverlayScrollBar;

/// The scrolling grid (or list) of cards.
///
/// Owns: one FontCollectionItem per card on screen and a few spare ones; a card that scrolls away
/// serves the next one that comes, so memory does not grow with the number of families. Thread:
/// main. Units: points.
class BrowserCollectionView final : public QAbstractScrollArea
{
    Q_OBJECT
public:
    explicit BrowserCollectionView(QWidget *parent = nullptr);
    ~BrowserCollectionView() override;

    /// Makes an empty card; called only when no spare one is left.
    std::function<FontCollectionItem *(QWidget *parent)> makeItem;
    /// Return, keypad Enter.
    std::function<void()> onActivateSelection;
    std::function<void()> onDoubleClick;
    /// The user chose a card (or, with an empty id, none).
    std::function<void(const QString &id)> onSelectionChanged;
    /// Fills a card for the item at `index`. Called when a card is shown and when it must change.
    std::function<void(FontCollectionItem &item, int index)> configureItem;

    /// Cards were placed: a scroll, another size, other content.
    std::function<void()> onItemsPlaced;

    struct Content
    {
        QStringList ids;
        ViewMode mode = ViewMode::grid;
        double pointSize = 36;
        QString selectedID;
    };
    /// Shows this instead of what was shown, all of it at once: cards are only ever filled from
    /// indices of the present items. The card at the top of the window keeps its place when it is
    /// still there.
    void setContent(const Content &content);
    const QStringList &items() const { return m_ids; }
    void setColors(const QColor &foreground, const QColor &background);
    QString selectedID() const { return m_selectedID; }

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
    void scrollToItem(int index);

protected:
    bool viewportEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Anchor
    {
        QString id;
        /// From the top of the window to the top of the card, as a share of the card's height.
        double offset = 0;
    };
    std::vector<Anchor> currentAnchors() const;
    void setIds(const QStringList &ids);
    void replaceItems(const QStringList &ids);
    void relayout(const std::vector<Anchor> &anchors);
    void placeVisibleItems();
    FontCollectionItem *takeSpareItem();
    void paintViewport(const QRect &exposed);
    void paintEndOfGrid(QPainter &painter) const;
    void select(int index);
    bool showToolTip(const QHelpEvent &event);

    QStringList m_ids;
    QHash<QString, int> m_indexByID;
    ViewMode m_mode = ViewMode::grid;
    double m_pointSize = 36;
    BrowserLayout m_layout;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    QString m_selectedID;
    std::map<int, FontCollectionItem *> m_visible;
    std::vector<FontCollectionItem *> m_spare;
    OverlayScrollBar *m_overlay;
};

} // namespace lorva
