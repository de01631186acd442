// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopOpener.h"
#include "ui/discover/DiscoverFoundry.h"

#include <QThreadPool>
#include <QWidget>

#include <memory>

namespace lorva {

class DiscoverFoundryItem;
class DiscoverScrollView;

/// The Discover page: the catalogue of foundries as a grid of cards. It knows nothing of the
/// library. Pictures are drawn for what is in sight, on a worker. Thread: main.
class DiscoverViewController final : public QWidget
{
    Q_OBJECT
public:
    /// `desktop` opens the foundries' sites; null: links do nothing. `foundries`: the catalogue,
    /// but in tests.
    explicit DiscoverViewController(std::shared_ptr<DesktopOpener> desktop,
                                    QWidget *parent = nullptr,
                                    std::vector<DiscoverFoundry> foundries = discoverFoundries());
    ~DiscoverViewController() override;

    /// Gives the keyboard to the page, which it scrolls; Tab leads to the links.
    void focusPage();
    /// All artwork in sight is drawn.
    bool isSettled() const;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makeItems();
    void layOut();
    void placeItems();
    void loadArtworkInSight();
    int distanceOf(const DiscoverFoundryItem &item) const;

    const std::shared_ptr<DesktopOpener> m_desktop;
    const std::vector<DiscoverFoundry> m_foundries;
    QThreadPool m_pool;
    QWidget *m_topBar;
    DiscoverScrollView *m_scrollView;
    /// Holds the items.
    QWidget *m_collectionView;
    std::vector<DiscoverFoundryItem *> m_items;
    /// The grid was laid out for it.
    int m_lastLayoutWidth = -1;
};

} // namespace lorva
