// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontBrowserState.h"
#include "ui/browser/FontCardConfiguration.h"
#include "ui/preview/FontResolver.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QDrag;
class QMenu;
class QTimer;

namespace lorva {

class BrowserCollectionView;
class BrowserEmptyStateView;
class BrowserLoadingView;
class BrowserTopBar;
class InlineEditHandler;
class LetterOverlayView;

/// The main pane: a top bar over the grid or list of font cards.
///
/// Owns no library data: it renders the state it is given and reports what the user does to its
/// delegate. Thread: main.
class FontBrowserViewController final : public QWidget
{
    Q_OBJECT
public:
    explicit FontBrowserViewController(std::shared_ptr<FontResolver> resolver,
                                       QWidget *parent = nullptr);
    ~FontBrowserViewController() override;

    /// Does not own it; it must outlive this view.
    void setDelegate(FontBrowserDelegate *delegate);
    /// Renders a new state whole. Cards are touched only as far as they changed.
    void apply(const FontBrowserState &state);
    const FontBrowserState &state() const { return m_state; }

    BrowserCollectionView &collectionView() { return *m_collection; }
    BrowserTopBar &topBar() { return *m_topBar; }

    // What the window's menus do here.

    /// In display order.
    QStringList selectedNames() const;
    void selectAll();
    /// Puts names and font files of the selected families on the clipboard; nothing without any.
    void copySelection();
    /// Edits the sample text in the place of the current card's specimen, or of the first one in
    /// sight.
    void editSampleText();
    /// Gives the cards the keyboard, as soon as there are any.
    void focusCards();
    /// Brings the current card into sight.
    void revealSelection();

    /// Runs a drag to its end and takes it over; a test's own.
    std::function<void(QDrag *drag)> runDrag;
    /// True once every card on screen shows its specimen (or there are none to show).
    bool isSettled() const;
    /// The same, but specimens may still fade in.
    bool isDrawn() const;
    /// How long nothing must move before the faces around the screen are made ready.
    static constexpr int kPrewarmDelayMilliseconds = 100;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void applyItems(const FontBrowserState &previous);
    void scrollForSearch();
    void applyColors();
    void hideCollection();
    void showCollection();
    bool hasFamilyAt(int index) const;
    FontCardConfiguration cardConfiguration(int index) const;
    bool showsItsSpecimens() const;
    void prewarm();
    PrewarmFace prewarmFace(int index) const;
    void openSelection();
    void connectCollection();
    std::vector<int> selectedIndices() const;
    void dragSelection();
    void openMenu(QPoint globalPosition);
    void jumpTo(const QString &letter);
    QString cardDescription(int index) const;
    QString sampleText() const;
    bool animatesItems(const FontBrowserState &previous, bool sourceChanged) const;

    void connectInlineEdit();
    void placeInlineEdit();

    const std::shared_ptr<FontResolver> m_resolver;
    FontBrowserDelegate *m_delegate = nullptr;
    FontBrowserState m_state;
    /// The names of the state's families, made anew only when those may have changed. A family is
    /// found by its place in them (the view's index), so that no second map of records is kept.
    QStringList m_orderedIDs;
    QHash<BrowserSource, int> m_scrollOriginBySource;
    int m_offsetBeforeSearch = 0;
    std::optional<BrowserSource> m_lastRenderedSource;

    bool m_collectionHadFocus = false;
    /// They were given the keyboard before there were any.
    bool m_cardsAwaitFocus = false;
    /// Where the focus of the hidden cards went.
    QPointer<QWidget> m_focusInstead;

    /// What a pre-warm was asked for; an equal one would do nothing new.
    struct Prewarmed
    {
        std::vector<int> items;
        FontFamilySubset families;
        qint64 catalogGeneration = 0;
        ViewMode viewMode = ViewMode::grid;
        double pointSize = 0;
        bool operator==(const Prewarmed &) const = default;
    };
    std::optional<Prewarmed> m_prewarmed;
    QTimer *m_prewarmTimer;

    // In the order in which Tab goes through them.
    BrowserCollectionView *m_collection;
    BrowserTopBar *m_topBar;
    BrowserEmptyStateView *m_empty;
    BrowserLoadingView *m_loading;

    InlineEditHandler *m_inlineEdit;
    /// Whose specimen is edited; empty: none. By name, for the cards may get another order.
    QString m_inlineEditID;
    /// What all cards show while an edit runs, and after it until the state has it.
    std::optional<QString> m_liveSampleText;
    QPointer<LetterOverlayView> m_letterOverlay;
    QPointer<QMenu> m_menu;
};

} // namespace lorva
