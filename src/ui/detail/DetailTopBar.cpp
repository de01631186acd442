// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailTopBar.h"

#include "ui/browser/BarParts.h"
#include "ui/browser/ColorModeChips.h"
#include "ui/browser/TopBarLayout.h"
#include "ui/detail/DetailBarLayout.h"
#include "ui/style/IconButton.h"
#include "ui/style/LineField.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/Style.h"

#include <QAbstractButton>
#include <QEvent>
#include <QMenu>
#include <QPainter>

namespace lorva {

static_assert(DetailTopBar::kHeight == kTopBarHeight);

namespace {

using Kind = BarDisplayControls::Kind;

/// With its segments, so that the tab key reaches them in their place.
SegmentedControl *makeStages(QWidget *bar)
{
    auto *stages = new SegmentedControl(bar);
    //: Shows the family as one text that can be edited.
    stages->addSegment(QStringLiteral("textformat"), DetailTopBar::tr("Text"));
    //: Shows the same text in ever smaller sizes.
    stages->addSegment(QStringLiteral("text.line.falling"), DetailTopBar::tr("Waterfall"));
    //: Shows several families together.
    stages->addSegment(QStringLiteral("square.on.square"), DetailTopBar::tr("Compare"));
    return stages;
}

} // namespace

DetailTopBar::DetailTopBar(QWidget *parent)
    : QWidget(parent)
    , m_back(new IconButton({}, tr("Back"), this))
    , m_previous(new IconButton(QStringLiteral("chevron.up"), tr("Previous Family"), this))
    , m_next(new IconButton(QStringLiteral("chevron.down"), tr("Next Family"), this))
    , m_controls(std::make_unique<BarDisplayControls>(
          std::vector{Kind::detailSize, Kind::weight, Kind::letterSpacing},
          tr("Size, Weight, Letter Spacing"), this))
    , m_stages(makeStages(this))
    , m_inspector(new IconButton({}, tr("Inspector"), this))
    , m_menuButton(new IconButton(QStringLiteral("ellipsis.circle"), tr("More"), this))
    , m_search(new BarSearch(QStringLiteral("characterSearchField"), tr("Search Characters"), this))
{
    m_inspector->setCheckable(true);
    setUpNames();
    takeDirection();
    connectWays();
    connectParts();
    setColors(m_foreground, m_background);
}

DetailTopBar::~DetailTopBar() = default;

void DetailTopBar::setUpNames()
{
    setObjectName(QStringLiteral("DetailTopBar"));
    m_back->setObjectName(QStringLiteral("backButton"));
    m_previous->setObjectName(QStringLiteral("previousFamilyButton"));
    m_next->setObjectName(QStringLiteral("nextFamilyButton"));
    m_stages->setObjectName(QStringLiteral("stageControl"));
    m_stages->setAccessibleName(tr("Preview"));
    m_inspector->setObjectName(QStringLiteral("inspectorButton"));
    m_menuButton->setObjectName(QStringLiteral("detailMenuButton"));
}

void DetailTopBar::setDelegate(FontDetailDelegate *delegate)
{
    m_delegate = delegate;
    m_controls->setDelegate(delegate ? &delegate->display() : nullptr);
}

/// What leads elsewhere.
void DetailTopBar::connectWays()
{
    connect(m_back, &QAbstractButton::clicked, this, [this] {
        if (m_delegate)
            m_delegate->detailClosed();
    });
    for (IconButton *button : {m_previous, m_next}) {
        connect(button, &QAbstractButton::clicked, this, [this, step = button == m_next ? 1 : -1] {
            if (m_delegate)
                m_delegate->detailNeighbourWanted(step);
        });
    }
    connect(m_stages, &SegmentedControl::activated, this, [this](int index) {
        if (m_delegate)
            m_delegate->detailStageChanged(DetailStage(index));
    });
    connect(m_inspector, &QAbstractButton::clicked, this, [this] {
        if (m_delegate)
            m_delegate->detailInspectorToggled();
    });
    connect(m_menuButton, &QAbstractButton::clicked, this, &DetailTopBar::openMenu);
}

void DetailTopBar::connectParts()
{
    m_controls->onValueChosen = [this](Kind kind, double value) { valueChosen(kind, value); };
    connect(m_search, &BarSearch::changed, this, &DetailTopBar::searchChanged);
    connect(m_search, &BarSearch::left, this, &DetailTopBar::searchLeft);
}

void DetailTopBar::valueChosen(Kind kind, double value)
{
    if (kind == Kind::weight)
        Q_EMIT weightChosen(int(value));
    if (!m_delegate)
        return;
    if (kind == Kind::detailSize)
        m_delegate->detailPointSizeChanged(value);
    else if (kind == Kind::weight)
        m_delegate->display().displayFontWeightChanged(int(value));
    else
        m_delegate->detailLetterSpacingChanged(value);
}

void DetailTopBar::apply(const FontDetailState &state)
{
    m_previous->setEnabled(state.hasPrevious);
    m_next->setEnabled(state.hasNext);
    m_controls->apply(state.display,
                      {{Kind::detailSize, state.pointSize},
                       {Kind::weight, double(state.fontWeight)},
                       {Kind::letterSpacing, state.letterSpacing}});
    m_stages->setCurrentIndex(int(state.stage));
    m_inspector->setChecked(state.showsInspector);
    if (state.family.familyName == m_title)
        return;
    m_title = state.family.familyName;
    layOut();
    update();
}

void DetailTopBar::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    const QColor under = groundUnder(foreground, background);
    for (IconButton *button : {m_back, m_previous, m_next, m_inspector, m_menuButton})
        button->setColors(foreground, under);
    m_controls->setColors(foreground, under);
    m_stages->setColors(foreground, under);
    m_search->field()->setColors(foreground, under);
    update();
}

void DetailTopBar::clearSearch()
{
    m_search->showQuery({});
}

void DetailTopBar::focusSearch()
{
    m_search->focus();
}

void DetailTopBar::openMenu()
{
    if (m_menu || !makeMenu)
        return;
    m_menu = makeMenu(m_menuButton);
    if (!m_menu)
        return;
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    const int left = isRightToLeft() ? 0 : m_menuButton->width() - m_menu->sizeHint().width();
    m_menu->popup(m_menuButton->mapToGlobal(QPoint(left, m_menuButton->height() + spacing::k4)));
}

/// The symbols that point somewhere.
void DetailTopBar::takeDirection()
{
    m_back->setSymbol(isRightToLeft() ? QStringLiteral("chevron.forward")
                                      : QStringLiteral("chevron.backward"));
    m_inspector->setSymbol(isRightToLeft() ? QStringLiteral("sidebar.left")
                                           : QStringLiteral("sidebar.right"));
}

void DetailTopBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    takeDirection();
    layOut();
}

void DetailTopBar::resizeEvent(QResizeEvent *)
{
    layOut();
}

void DetailTopBar::layOut()
{
    DetailBarParts parts;
    parts.slider = m_controls->slider(Kind::weight)->sizeHint();
    parts.chips = m_controls->chips()->sizeHint();
    parts.button = m_back->sizeHint();
    parts.stages = m_stages->sizeHint();
    parts.search = m_search->field()->sizeHint();
    parts.title = barTitleWidth(m_title);
    const DetailBarLayout layout = layOutDetailBar(width(), parts, layoutDirection());
    placePart(m_back, layout.back);
    placePart(m_previous, layout.previous);
    placePart(m_next, layout.next);
    placePart(m_controls->slider(Kind::detailSize), layout.size);
    placePart(m_controls->slider(Kind::weight), layout.weight);
    placePart(m_controls->slider(Kind::letterSpacing), layout.letterSpacing);
    placePart(m_controls->moreButton(), layout.more);
    placePart(m_controls->chips(), layout.chips);
    placePart(m_controls->logoButton(), layout.logo);
    placePart(m_stages, layout.stages);
    placePart(m_inspector, layout.inspector);
    placePart(m_menuButton, layout.menu);
    placePart(m_search->field(), layout.search);
    m_titleRect = layout.title;
    update();
}

void DetailTopBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintTopBar(painter, *this, m_titleRect, m_title, {m_foreground, m_background});
}

} // namespace lorva
