// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverViewController.h"

#include "ui/browser/BarParts.h"
#include "ui/discover/DiscoverFoundryItem.h"
#include "ui/discover/DiscoverLayout.h"
#include "ui/discover/DiscoverScrollView.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kBarHeight = 52;
/// Above and below what is in sight, for what comes next.
constexpr int kAhead = 600;
/// All of the artwork at two pixels a point takes 80 MB.
constexpr int kFar = 3000;

PaneColors pageColors()
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    return {neutral.text, neutral.ground};
}

class DiscoverTopBar final : public QWidget
{
public:
    explicit DiscoverTopBar(QWidget *parent)
        : QWidget(parent)
    {
        setObjectName(QStringLiteral("DiscoverTopBar"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintTopBar(painter, *this, rect().adjusted(spacing::k24, 0, -spacing::k24, 0),
                    DiscoverViewController::tr("Discover"), pageColors());
    }
};

} // namespace

DiscoverViewController::DiscoverViewController(std::shared_ptr<DesktopOpener> desktop,
                                               QWidget *parent,
                                               std::vector<DiscoverFoundry> foundries)
    : QWidget(parent)
    , m_desktop(std::move(desktop))
    , m_foundries(std::move(foundries))
    , m_topBar(new DiscoverTopBar(this))
    , m_scrollView(new DiscoverScrollView(this))
    , m_collectionView(new QWidget)
{
    setObjectName(QStringLiteral("DiscoverViewController"));
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.discover"));
    m_pool.setMaxThreadCount(1);
    m_collectionView->setObjectName(QStringLiteral("collectionView"));
    m_collectionView->setAccessibleName(tr("Type Foundries"));
    makeItems();
    m_scrollView->setWidget(m_collectionView);
    // The page's own ground shows through.
    m_collectionView->setAutoFillBackground(false);
    m_scrollView->onScrolled = [this] { loadArtworkInSight(); };
    setFocusProxy(m_scrollView);
    m_scrollView->setForeground(pageColors().foreground);
}

DiscoverViewController::~DiscoverViewController()
{
    for (DiscoverFoundryItem *item : m_items)
        item->releaseArtwork();
    m_pool.waitForDone();
}

void DiscoverViewController::makeItems()
{
    for (const DiscoverFoundry &foundry : m_foundries) {
        auto *item = new DiscoverFoundryItem(m_collectionView);
        item->setObjectName(foundry.id);
        item->setFoundry(foundry);
        item->onOpen = [this](const QUrl &url) {
            if (m_desktop)
                m_desktop->openLink(url);
        };
        m_items.push_back(item);
    }
}

void DiscoverViewController::layOut()
{
    m_topBar->setGeometry(0, 0, width(), kBarHeight);
    m_scrollView->setGeometry(0, kBarHeight, width(), std::max(height() - kBarHeight, 0));
    if (const int gridWidth = m_scrollView->viewport()->width(); gridWidth != m_lastLayoutWidth) {
        m_lastLayoutWidth = gridWidth;
        placeItems();
    }
    // The scroll view takes its own height for a page at each resize.
    m_scrollView->verticalScrollBar()->setPageStep(
        std::max(m_scrollView->viewport()->height() - spacing::k48, spacing::k48));
    m_scrollView->adaptScrollBar();
    loadArtworkInSight();
}

/// Whoever looks at a card still sees it when the columns change.
void DiscoverViewController::placeItems()
{
    QScrollBar *bar = m_scrollView->verticalScrollBar();
    const double share = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
    const DiscoverLayout layout = DiscoverLayout::forWidth(m_lastLayoutWidth);
    m_collectionView->resize(m_lastLayoutWidth, layout.contentHeight(int(m_items.size())));
    for (size_t i = 0; i < m_items.size(); ++i)
        m_items[i]->setGeometry(QStyle::visualRect(layoutDirection(), m_collectionView->rect(),
                                                   layout.itemRect(int(i))));
    bar->setValue(qRound(share * bar->maximum()));
}

/// In points; nothing for a card that is in sight.
int DiscoverViewController::distanceOf(const DiscoverFoundryItem &item) const
{
    const int top = item.y() + m_collectionView->y();
    return std::max({top - m_scrollView->viewport()->height(), -(top + item.height()), 0});
}

void DiscoverViewController::loadArtworkInSight()
{
    if (!isVisible())
        return;
    for (DiscoverFoundryItem *item : m_items) {
        const int distance = distanceOf(*item);
        if (distance <= kAhead)
            item->loadArtwork(m_pool);
        else if (distance > kFar)
            item->releaseArtwork();
    }
}

void DiscoverViewController::focusPage()
{
    m_scrollView->setFocus(Qt::OtherFocusReason);
}

bool DiscoverViewController::isSettled() const
{
    return std::ranges::all_of(m_items,
                               [](const DiscoverFoundryItem *item) { return item->isSettled(); });
}

void DiscoverViewController::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), pageColors().background);
}

bool DiscoverViewController::event(QEvent *event)
{
    const bool isHandled = QWidget::event(event);
    // On another screen pixels may be smaller.
    if (event->type() == QEvent::ScreenChangeInternal)
        loadArtworkInSight();
    return isHandled;
}

void DiscoverViewController::resizeEvent(QResizeEvent *)
{
    layOut();
}

void DiscoverViewController::showEvent(QShowEvent *)
{
    layOut();
}

void DiscoverViewController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        m_lastLayoutWidth = -1;
        layOut();
    } else if (event->type() == QEvent::PaletteChange)
        m_scrollView->setForeground(pageColors().foreground);
    QWidget::changeEvent(event);
}

} // namespace lorva
