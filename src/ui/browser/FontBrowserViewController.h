// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontBrowserState.h"
#include "ui/browser/FontCardConfiguration.h"
#include "ui/preview/FontResolver.h"

#include <QHash>
#include <QWidget>

#include <optional>
#include <vector>

class QTimer;

namespace lorva {

class BrowserCollectionView;
class BrowserEmptyStateView;
class BrowserLoadingView;
class BrowserTopBar;

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
    void setDelegate(FontBrowserDelegate *delegate) { m_delegate = delegate; }
    /// Renders a new state whole. Cards are touched only as far as they changed.
    void apply(const FontBrowserState &state);
    const FontBrowserState &state() const { return m_state; }

    BrowserCollectionView &collectionView() { return *m_collection; }
    /// True once every card on screen shows its specimen (or there are none to show).
    bool isSettled() const;
    /// The same, but specimens may still fade in.
    bool isDrawn() const;
    /// How long nothing must move before the faces around the screen are made ready.
    static constexpr int kPrewarmDelayMilliseconds = 100;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void applyItems(const FontBrowserState &previous);
    void applyColors();
    void showCollection(bool isShown);
    FontCardConfiguration cardConfiguration(int index) const;
    bool showsItsSpecimens() const;
    void prewarm();
    PrewarmFace prewarmFace(int index) const;
    void openSelection();

    const std::shared_ptr<FontResolver> m_resolver;
    FontBrowserDelegate *m_delegate = nullptr;
    FontBrowserState m_state;
    QStringList m_orderedIDs;
    QHash<BrowserSource, int> m_scrollOriginBySource;
    std::optional<BrowserSource> m_lastRenderedSource;

    bool m_collectionHadFocus = false;

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

    BrowserTopBar *m_topBar;
    BrowserCollectionView *m_collection;
    BrowserEmptyStateView *m_empty;
    BrowserLoadingView *m_loading;
};

} // namespace lorva
