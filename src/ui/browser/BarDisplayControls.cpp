// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/BarDisplayControls.h"

#include "ui/browser/ColorModeChips.h"
#include "ui/browser/MoreSlidersPanel.h"
#include "ui/style/IconButton.h"
#include "ui/style/Popover.h"

namespace lorva {

namespace {

std::map<SpecimenSlider::Kind, SpecimenSlider *> makeSliders(
    const std::vector<SpecimenSlider::Kind> &kinds, QWidget *bar)
{
    std::map<SpecimenSlider::Kind, SpecimenSlider *> sliders;
    for (const SpecimenSlider::Kind kind : kinds)
        sliders[kind] = new SpecimenSlider(kind, bar);
    return sliders;
}

} // namespace

BarDisplayControls::BarDisplayControls(std::vector<Kind> kinds, const QString &moreLabel,
                                       QWidget *bar)
    : m_bar(bar)
    , m_kinds(std::move(kinds))
    , m_sliders(makeSliders(m_kinds, bar))
    , m_more(new IconButton(QStringLiteral("slider.horizontal.3"), moreLabel, bar))
    , m_chips(new ColorModeChips(bar))
    , m_logo(new IconButton(QStringLiteral("photo"), tr("Logo"), bar))
{
    m_more->setObjectName(QStringLiteral("moreButton"));
    m_chips->setObjectName(QStringLiteral("colorModeChips"));
    m_chips->setAccessibleName(tr("Colors"));
    m_logo->setObjectName(QStringLiteral("logoButton"));
    connectParts();
}

/// Whoever would be told may be gone.
BarDisplayControls::~BarDisplayControls()
{
    setDelegate(nullptr);
    onValueChosen = {};
    delete m_popover;
}

void BarDisplayControls::setDelegate(DisplayControlsDelegate *delegate)
{
    m_delegate = delegate;
    if (m_panel)
        m_panel->setDelegate(delegate);
}

void BarDisplayControls::connectSlider(SpecimenSlider *slider)
{
    connect(slider, &SpecimenSlider::valueChosen, this,
            [this, kind = slider->kind()](double value) {
                if (onValueChosen)
                    onValueChosen(kind, value);
            });
    connect(slider, &SpecimenSlider::holdChanged, this, [this](bool isHeld) {
        if (m_delegate)
            m_delegate->displayHoldChanged(isHeld);
    });
}

void BarDisplayControls::connectParts()
{
    for (const auto &[kind, slider] : m_sliders)
        connectSlider(slider);
    connect(m_more, &QAbstractButton::clicked, this, &BarDisplayControls::openMore);
    connect(m_logo, &QAbstractButton::clicked, this, [this] { openPanel(Panel::logo); });
    connect(m_chips, &ColorModeChips::modeChosen, this, [this](ColorMode mode) {
        if (m_delegate)
            m_delegate->displayColorModeChanged(mode);
    });
    connect(m_chips, &ColorModeChips::panelWanted, this, [this](ColorMode mode) {
        openPanel(mode == ColorMode::custom ? Panel::colors : Panel::backgroundImage);
    });
}

void BarDisplayControls::apply(const DisplayControlsState &state,
                               const std::map<Kind, double> &values)
{
    m_display = state;
    m_values = values;
    for (const auto &[kind, slider] : m_sliders)
        slider->setValue(m_values[kind]);
    if (m_morePanel) {
        for (SpecimenSlider *slider : m_morePanel->sliders())
            slider->setValue(m_values[slider->kind()]);
    }
    m_chips->setValues(m_display.values, m_display.userThumbnail);
    const bool showsLogo = m_display.logoImage && m_display.values.logoVisible;
    m_logo->setMarked(showsLogo);
    m_logo->setAccessibleDescription(showsLogo ? tr("A logo is shown.") : QString());
    if (m_panel)
        m_panel->apply(m_display);
}

void BarDisplayControls::setColors(const QColor &foreground, const QColor &background)
{
    for (const auto &[kind, slider] : m_sliders)
        slider->setColors(foreground, background);
    m_more->setColors(foreground, background);
    m_chips->setColors(foreground, background);
    m_logo->setColors(foreground, background);
}

QWidget *BarDisplayControls::anchorOf(Panel panel) const
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
    return m_sampleTextButton;
}

DisplayPanel *BarDisplayControls::makePanel(Panel panel)
{
    switch (panel) {
    case Panel::colors:
        return makeColorPanel(m_bar);
    case Panel::backgroundImage:
        return makeBackgroundImagePanel(m_bar, m_display.imageStore);
    case Panel::logo:
        return makeLogoPanel(m_bar);
    case Panel::sampleText:
        break;
    }
    return makeSampleTextPanel(m_bar);
}

void BarDisplayControls::openPanel(Panel panel)
{
    QWidget *anchor = anchorOf(panel);
    if (!anchor || (m_panel && m_openPanel == panel))
        return;
    m_openPanel = panel;
    DisplayPanel *content = makePanel(panel);
    content->setDelegate(m_delegate);
    content->apply(m_display);
    openAt(content, anchor, panel == Panel::colors ? tr("Custom Colors") : anchor->toolTip());
    m_panel = content;
}

void BarDisplayControls::openMore()
{
    std::vector<Kind> hidden;
    for (const Kind kind : m_kinds) {
        if (!m_sliders.at(kind)->isVisibleTo(m_bar))
            hidden.push_back(kind);
    }
    auto *content = new MoreSlidersPanel(hidden, m_bar);
    for (SpecimenSlider *slider : content->sliders()) {
        slider->setValue(m_values[slider->kind()]);
        connectSlider(slider);
    }
    openAt(content, m_more, m_more->toolTip());
    m_morePanel = content;
}

void BarDisplayControls::openAt(QWidget *content, QWidget *anchor, const QString &name)
{
    if (m_popover)
        m_popover->close();
    m_popover = Popover::open(content, anchor, name);
    connect(m_popover, &Popover::closed, this, [this, content] {
        // It lives until the event loop runs again.
        if (m_panel == content)
            m_panel = nullptr;
        if (m_morePanel == content)
            m_morePanel = nullptr;
    });
}

} // namespace lorva
