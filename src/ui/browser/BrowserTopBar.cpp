// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/BrowserTopBar.h"

#include "ui/browser/ColorModeChips.h"
#include "ui/browser/MoreSlidersPanel.h"
#include "ui/browser/SpecimenSlider.h"
#include "ui/browser/TopBarLayout.h"
#include "ui/style/Hairline.h"
#include "ui/style/IconButton.h"
#include "ui/style/LineField.h"
#include "ui/style/Palette.h"
#include "ui/style/Popover.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/Style.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace lorva {

static_assert(BrowserTopBar::kHeight == kTopBarHeight);

namespace {

constexpr double kTitleAlpha = 0.5;
/// A foundry's name may be a whole page of its font.
constexpr qsizetype kLongestTitle = 300;
/// Over an image, whose own brightness is anyone's.
constexpr double kVeilAlpha = 0.32;

} // namespace

BrowserTopBar::BrowserTopBar(QWidget *parent)
    : QWidget(parent)
    , m_size(new SpecimenSlider(SpecimenSlider::Kind::size, this))
    , m_weight(new SpecimenSlider(SpecimenSlider::Kind::weight, this))
    , m_more(new IconButton(QStringLiteral("slider.horizontal.3"), tr("Size and Weight"), this))
    , m_chips(new ColorModeChips(this))
    , m_logo(new IconButton(QStringLiteral("photo"), tr("Logo"), this))
    , m_sampleText(
          new IconButton(QStringLiteral("character.cursor.ibeam"), tr("Sample Text"), this))
    , m_mode(new SegmentedControl(this))
    , m_search(new LineField(this))
{
    setUpNames();
    m_mode->addSegment(QStringLiteral("square.grid.2x2"), tr("Grid"));
    m_mode->addSegment(QStringLiteral("list.bullet"), tr("List"));
    // The segments come after the field only in the order of making.
    setTabOrder(m_mode->findChildren<QAbstractButton *>().constLast(), m_search);
    m_search->setSymbol(QStringLiteral("magnifyingglass"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setClearable(true);
    m_search->installEventFilter(this);
    connectParts();
    setColors(m_foreground, m_background);
}

/// The open panel hangs from a control that goes after this bar's own members. It goes first, and
/// tells nobody: whoever was told may be gone.
BrowserTopBar::~BrowserTopBar()
{
    if (m_panel)
        m_panel->setDelegate(nullptr);
    setDelegate(nullptr);
    delete m_popover;
}

void BrowserTopBar::setUpNames()
{
    setObjectName(QStringLiteral("BrowserTopBar"));
    m_more->setObjectName(QStringLiteral("moreButton"));
    m_chips->setObjectName(QStringLiteral("colorModeChips"));
    m_chips->setAccessibleName(tr("Colors"));
    m_logo->setObjectName(QStringLiteral("logoButton"));
    m_sampleText->setObjectName(QStringLiteral("sampleTextButton"));
    m_mode->setObjectName(QStringLiteral("viewModeControl"));
    m_mode->setAccessibleName(tr("View"));
    m_search->setObjectName(QStringLiteral("searchField"));
    m_search->setAccessibleName(tr("Search"));
}

void BrowserTopBar::connectSlider(SpecimenSlider *slider)
{
    connect(slider, &SpecimenSlider::valueChosen, this, [this, kind = slider->kind()](int value) {
        if (!m_delegate)
            return;
        if (kind == SpecimenSlider::Kind::size)
            m_delegate->displayPointSizeChanged(value);
        else
            m_delegate->displayFontWeightChanged(value);
    });
    connect(slider, &SpecimenSlider::holdChanged, this, [this](bool isHeld) {
        if (m_delegate)
            m_delegate->displayHoldChanged(isHeld);
    });
}

void BrowserTopBar::connectParts()
{
    connectSlider(m_size);
    connectSlider(m_weight);
    connect(m_more, &QAbstractButton::clicked, this, &BrowserTopBar::openMore);
    connect(m_chips, &ColorModeChips::modeChosen, this, [this](ColorMode mode) {
        if (m_delegate)
            m_delegate->displayColorModeChanged(mode);
    });
    connect(m_chips, &ColorModeChips::panelWanted, this, [this](ColorMode mode) {
        openPanel(mode == ColorMode::custom ? Panel::colors : Panel::backgroundImage);
    });
    connect(m_logo, &QAbstractButton::clicked, this, [this] { openPanel(Panel::logo); });
    connect(m_sampleText, &QAbstractButton::clicked, this,
            [this] { openPanel(Panel::sampleText); });
    connect(m_mode, &SegmentedControl::activated, this, [this](int index) {
        if (m_delegate)
            m_delegate->browserViewModeChanged(kAllViewModes[index]);
    });
    connect(m_search, &LineField::textSettled, this, [this](const QString &text) {
        if (!m_suppressSearchUpdates && m_delegate)
            m_delegate->browserSearchTextChanged(text);
    });
}

void BrowserTopBar::apply(const FontBrowserState &state)
{
    m_display = state.display;
    m_pointSize = state.pointSize;
    m_fontWeight = state.fontWeight;
    m_size->setValue(m_pointSize);
    m_weight->setValue(m_fontWeight);
    if (m_morePanel) {
        for (SpecimenSlider *slider : m_morePanel->sliders()) {
            const bool isSize = slider->kind() == SpecimenSlider::Kind::size;
            slider->setValue(isSize ? m_pointSize : m_fontWeight);
        }
    }
    m_chips->setValues(m_display.values, m_display.userThumbnail);
    const bool showsLogo = m_display.logoImage && m_display.values.logoVisible;
    m_logo->setMarked(showsLogo);
    m_logo->setAccessibleDescription(showsLogo ? tr("A logo is shown.") : QString());
    m_mode->setCurrentIndex(int(state.viewMode));
    showSearchQuery(state.searchQuery);
    if (m_panel)
        m_panel->apply(m_display);
    const QString title = state.title.left(kLongestTitle);
    if (title == m_title)
        return;
    m_title = title;
    update();
}

void BrowserTopBar::showSearchQuery(const QString &query)
{
    // What an input method is composing would be lost.
    if (m_search->isComposing() || m_search->text() == query)
        return;
    m_suppressSearchUpdates = true;
    m_search->setText(query);
    m_suppressSearchUpdates = false;
}

QColor BrowserTopBar::ground() const
{
    const bool isOverImage = m_background.alpha() < 255;
    return isOverImage ? contrastingNeutral(m_foreground) : m_background;
}

void BrowserTopBar::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    const QColor under = ground();
    m_size->setColors(foreground, under);
    m_weight->setColors(foreground, under);
    m_more->setColors(foreground, under);
    m_chips->setColors(foreground, under);
    m_logo->setColors(foreground, under);
    m_sampleText->setColors(foreground, under);
    m_mode->setColors(foreground, under);
    m_search->setColors(foreground, under);
    update();
}

void BrowserTopBar::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

QWidget *BrowserTopBar::anchorOf(Panel panel) const
{
    switch (panel) {
    case Panel::colors:
        return m_chips->chip(ColorMode::custom);
    case Panel::backgroundImage:
        return m_chips->chip(ColorMode::image);
    case Panel::logo:
        return m_logo;
    case Panel::sampleText:
        break;
    }
    return m_sampleText;
}

DisplayPanel *BrowserTopBar::makePanel(Panel panel)
{
    switch (panel) {
    case Panel::colors:
        return makeColorPanel(this);
    case Panel::backgroundImage:
        return makeBackgroundImagePanel(this, m_display.imageStore);
    case Panel::logo:
        return makeLogoPanel(this);
    case Panel::sampleText:
        break;
    }
    return makeSampleTextPanel(this);
}

void BrowserTopBar::openPanel(Panel panel)
{
    if (m_panel && m_openPanel == panel)
        return;
    m_openPanel = panel;
    QWidget *anchor = anchorOf(panel);
    DisplayPanel *content = makePanel(panel);
    content->setDelegate(m_delegate);
    content->apply(m_display);
    const QString name =
        panel == Panel::colors ? tr("Custom Colors") : qobject_cast<QWidget *>(anchor)->toolTip();
    openAt(content, anchor, name);
    m_panel = content;
}

void BrowserTopBar::openMore()
{
    auto *content = new MoreSlidersPanel(!m_size->isVisibleTo(this), this);
    for (SpecimenSlider *slider : content->sliders()) {
        slider->setValue(slider->kind() == SpecimenSlider::Kind::size ? m_pointSize : m_fontWeight);
        connectSlider(slider);
    }
    openAt(content, m_more, m_more->toolTip());
    m_morePanel = content;
}

void BrowserTopBar::openAt(QWidget *content, QWidget *anchor, const QString &name)
{
    if (m_popover)
        m_popover->close();
    m_popover = Popover::open(content, anchor, name);
    connect(m_popover, &Popover::closed, content, [this, content] {
        // It lives until the event loop runs again.
        if (m_panel == content)
            m_panel = nullptr;
        if (m_morePanel == content)
            m_morePanel = nullptr;
    });
}

void BrowserTopBar::leaveSearch() const
{
    if (onSearchLeft)
        onSearchLeft();
}

/// True when the key had a meaning beyond the text.
bool BrowserTopBar::searchKeyPressed(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        if (m_search->text().isEmpty())
            leaveSearch();
        else
            m_search->clearByUser();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        leaveSearch();
        return true;
    default:
        return false;
    }
}

bool BrowserTopBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_search || m_search->isComposing())
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return event->type() == QEvent::KeyPress
        && searchKeyPressed(static_cast<QKeyEvent *>(event)->key());
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
    parts.slider = m_size->sizeHint();
    parts.chips = m_chips->sizeHint();
    parts.button = m_logo->sizeHint();
    parts.mode = m_mode->sizeHint();
    parts.search = m_search->sizeHint();
    const TopBarLayout layout = layOutTopBar(width(), parts, layoutDirection());
    const auto place = [](QWidget *part, const std::optional<QRect> &rect) {
        if (rect)
            part->setGeometry(*rect);
        part->setVisible(rect.has_value());
    };
    place(m_size, layout.size);
    place(m_weight, layout.weight);
    place(m_more, layout.more);
    place(m_chips, layout.chips);
    place(m_logo, layout.logo);
    place(m_sampleText, layout.sampleText);
    place(m_mode, layout.mode);
    place(m_search, layout.search);
    m_titleRect = layout.title;
    update();
}

void BrowserTopBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_background.alpha() < 255)
        painter.fillRect(rect(), withAlpha(ground(), kVeilAlpha));
    const QFont titleFont = interfaceFont(InterfaceSize::title, InterfaceWeight::semibold);
    painter.setFont(titleFont);
    painter.setPen(withAlpha(m_foreground, kTitleAlpha));
    const Qt::Alignment leading =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)
        | Qt::AlignAbsolute;
    painter.drawText(
        m_titleRect, int(leading) | Qt::TextSingleLine,
        QFontMetrics(titleFont).elidedText(m_title, Qt::ElideRight, m_titleRect.width()));
    drawHairline(painter, rect(), Qt::BottomEdge, hairlineColor(m_foreground, ground()));
}

} // namespace lorva
