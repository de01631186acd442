// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/BrowserTopBar.h"

#include "ui/browser/BarParts.h"
#include "ui/browser/ColorModeChips.h"
#include "ui/browser/TopBarLayout.h"
#include "ui/style/IconButton.h"
#include "ui/style/LineField.h"
#include "ui/style/SegmentedControl.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>

namespace lorva {

static_assert(BrowserTopBar::kHeight == kTopBarHeight);

namespace {

using Kind = SpecimenSlider::Kind;

} // namespace

BrowserTopBar::BrowserTopBar(QWidget *parent)
    : QWidget(parent)
    , m_controls(std::make_unique<BarDisplayControls>(std::vector{Kind::size, Kind::weight},
                                                      tr("Size and Weight"), this))
    , m_sampleText(
          new IconButton(QStringLiteral("character.cursor.ibeam"), tr("Sample Text"), this))
    , m_mode(new SegmentedControl(this))
    , m_search(new BarSearch(QStringLiteral("searchField"), tr("Search"), this))
{
    setObjectName(QStringLiteral("BrowserTopBar"));
    m_sampleText->setObjectName(QStringLiteral("sampleTextButton"));
    m_controls->setSampleTextButton(m_sampleText);
    m_mode->setObjectName(QStringLiteral("viewModeControl"));
    //: How the fonts are shown, as a noun; spoken.
    m_mode->setAccessibleName(tr("View"));
    //: Shows the fonts as cards side by side.
    m_mode->addSegment(QStringLiteral("square.grid.2x2"), tr("Grid"));
    //: Shows the fonts as rows.
    m_mode->addSegment(QStringLiteral("list.bullet"), tr("List"));
    // The segments come after the field only in the order of making.
    setTabOrder(m_mode->findChildren<QAbstractButton *>().constLast(), m_search->field());
    connectParts();
    setColors(m_foreground, m_background);
}

BrowserTopBar::~BrowserTopBar() = default;

void BrowserTopBar::setDelegate(FontBrowserDelegate *delegate)
{
    m_delegate = delegate;
    m_controls->setDelegate(delegate);
}

void BrowserTopBar::connectParts()
{
    m_controls->onValueChosen = [this](Kind kind, double value) {
        if (!m_delegate)
            return;
        if (kind == Kind::size)
            m_delegate->displayPointSizeChanged(value);
        else
            m_delegate->displayFontWeightChanged(int(value));
    };
    connect(m_sampleText, &QAbstractButton::clicked, this,
            [this] { openPanel(Panel::sampleText); });
    connect(m_mode, &SegmentedControl::activated, this, [this](int index) {
        if (m_delegate)
            m_delegate->browserViewModeChanged(kAllViewModes[index]);
    });
    connect(m_search, &BarSearch::changed, this, [this](const QString &text) {
        if (m_delegate)
            m_delegate->browserSearchTextChanged(text);
    });
    connect(m_search, &BarSearch::left, this, [this] {
        if (onSearchLeft)
            onSearchLeft();
    });
}

void BrowserTopBar::apply(const FontBrowserState &state)
{
    m_controls->apply(state.display,
                      {{Kind::size, state.pointSize}, {Kind::weight, double(state.fontWeight)}});
    m_mode->setCurrentIndex(int(state.viewMode));
    m_search->showQuery(state.searchQuery);
    if (state.title == m_title)
        return;
    m_title = state.title;
    update();
}

void BrowserTopBar::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    const QColor under = groundUnder(foreground, background);
    m_controls->setColors(foreground, under);
    m_sampleText->setColors(foreground, under);
    m_mode->setColors(foreground, under);
    m_search->field()->setColors(foreground, under);
    update();
}

void BrowserTopBar::focusSearch()
{
    m_search->focus();
}

void BrowserTopBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void BrowserTopBar::resizeEvent(QResizeEvent *)
{
    layOut();
}

void BrowserTopBar::layOut()
{
    TopBarParts parts;
    parts.slider = m_controls->slider(Kind::size)->sizeHint();
    parts.chips = m_controls->chips()->sizeHint();
    parts.button = m_sampleText->sizeHint();
    parts.mode = m_mode->sizeHint();
    parts.search = m_search->field()->sizeHint();
    const TopBarLayout layout = layOutTopBar(width(), parts, layoutDirection());
    placePart(m_controls->slider(Kind::size), layout.size);
    placePart(m_controls->slider(Kind::weight), layout.weight);
    placePart(m_controls->moreButton(), layout.more);
    placePart(m_controls->chips(), layout.chips);
    placePart(m_controls->logoButton(), layout.logo);
    placePart(m_sampleText, layout.sampleText);
    placePart(m_mode, layout.mode);
    placePart(m_search->field(), layout.search);
    m_titleRect = layout.title;
    update();
}

void BrowserTopBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintTopBar(painter, *this, m_titleRect, m_title, {m_foreground, m_background});
}

} // namespace lorva
