// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/LorvaRootSplitViewController.h"

#include "ui/browser/FontBrowserViewController.h"

#include <algorithm>

namespace lorva {

namespace {

struct ColorPair
{
    QString foreground;
    QString background;
};

ColorPair colorsOf(const LorvaAppModel &model)
{
    switch (model.colorMode()) {
    case ColorMode::white:
    case ColorMode::image:
        break;
    case ColorMode::black:
        return {QStringLiteral("#FFFFFF"), QStringLiteral("#000000")};
    case ColorMode::custom:
        return {model.customForegroundColorHex(), model.customBackgroundColorHex()};
    }
    return {QStringLiteral("#000000"), QStringLiteral("#FFFFFF")};
}

template <class Records>
std::optional<QString> nameOf(const Records &records, const QString &id)
{
    const auto found = std::ranges::find(records, id, [](const auto &record) { return record.id; });
    return found == records.end() ? std::nullopt : std::optional(found->name);
}

QString titleOf(const BrowserSource &source, const LorvaAppModel &model)
{
    using Kind = BrowserSource::Kind;
    std::optional<QString> title;
    if (source.kind() == Kind::active)
        title = LorvaRootSplitViewController::tr("Active");
    else if (source.kind() == Kind::inactive)
        title = LorvaRootSplitViewController::tr("Inactive");
    else if (source.kind() == Kind::style)
        title = nameOf(model.styleCategories(), source.id());
    else if (source.kind() == Kind::collection)
        title = nameOf(model.collections(), source.id());
    else if (source.kind() == Kind::foundry)
        title = nameOf(model.foundryCollections(), source.id());
    return title.value_or(LorvaRootSplitViewController::tr("All Fonts"));
}

BrowserEmptyState emptyStateOf(const BrowserSource &source, const QString &query)
{
    using Empty = BrowserEmptyState::SourceEmpty;
    if (!query.isEmpty())
        return {BrowserEmptyState::NoSearchResults{query}};
    switch (source.kind()) {
    case BrowserSource::Kind::active:
        return {
            Empty{LorvaRootSplitViewController::tr("No Active Fonts"),
                  LorvaRootSplitViewController::tr("Fonts that every program can use appear here."),
                  false}};
    case BrowserSource::Kind::inactive:
        return {Empty{LorvaRootSplitViewController::tr("No Inactive Fonts"),
                      LorvaRootSplitViewController::tr(
                          "Fonts of your folders that are not switched on appear here."),
                      false}};
    case BrowserSource::Kind::style:
    case BrowserSource::Kind::collection:
    case BrowserSource::Kind::foundry:
        return {Empty{LorvaRootSplitViewController::tr("No Fonts Here"),
                      LorvaRootSplitViewController::tr(
                          "None of the families that belong here are on this computer."),
                      false}};
    default:
        return {Empty{LorvaRootSplitViewController::tr("No Fonts"),
                      LorvaRootSplitViewController::tr(
                          "Neither this system nor your folders hold a font that can be read."),
                      false}};
    }
}

} // namespace

LorvaRootSplitViewController::LorvaRootSplitViewController(LorvaAppModel &model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_browser(new FontBrowserViewController(makeFontResolver(model.fontLibraryService()), this))
{
    setObjectName(QStringLiteral("LorvaRootSplitViewController"));
    m_browser->setDelegate(this);
    m_model.onChange = [this] { scheduleRender(); };
    render();
}

LorvaRootSplitViewController::~LorvaRootSplitViewController()
{
    m_model.onChange = nullptr;
}

FontBrowserState LorvaRootSplitViewController::browserState() const
{
    FontBrowserState state;
    state.source = m_model.selectedSource();
    state.title = titleOf(state.source, m_model);
    state.families = m_model.visibleFamilies();
    state.selectedFamilyName = m_model.selectedFamilyName();
    state.searchQuery = m_model.searchQuery();
    state.viewMode = m_model.viewMode();
    state.fontWeight = int(m_model.browserFontWeight());
    state.pointSize = m_model.browserPointSize();
    state.colorMode = m_model.colorMode();
    const ColorPair colors = colorsOf(m_model);
    state.foregroundColorHex = colors.foreground;
    state.backgroundColorHex = colors.background;
    state.imageForegroundColorHex = m_model.imageForegroundColorHex();
    state.sampleText = m_model.sampleText();
    state.activationProvider = [this](const FontFamilyRecord &family) {
        return m_model.activation(family);
    };
    state.catalogGeneration = m_model.catalogGeneration();
    state.activationGeneration = m_model.activationGeneration();
    state.isLoading = m_model.isLoading();
    state.loadingText = m_model.loadingText();
    if (state.families.empty() && !state.isLoading)
        state.emptyState = emptyStateOf(state.source, m_model.searchQuery().trimmed());
    return state;
}

void LorvaRootSplitViewController::render()
{
    m_renderIsScheduled = false;
    m_browser->apply(browserState());
    Q_EMIT rendered();
}

void LorvaRootSplitViewController::scheduleRender()
{
    if (m_renderIsScheduled)
        return;
    m_renderIsScheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_renderIsScheduled)
                render();
        },
        Qt::QueuedConnection);
}

void LorvaRootSplitViewController::resizeEvent(QResizeEvent *)
{
    m_browser->setGeometry(rect());
}

void LorvaRootSplitViewController::browserSelectionChanged(const std::optional<QString> &familyName)
{
    m_model.selectFamily(familyName);
}

void LorvaRootSplitViewController::browserOpenDetail(const QString &familyName)
{
    m_model.openDetail(familyName);
}

void LorvaRootSplitViewController::browserPointSizeChanged(double pointSize)
{
    m_model.setPointSize(pointSize);
}

void LorvaRootSplitViewController::browserViewModeChanged(ViewMode mode)
{
    m_model.setViewMode(mode);
}

} // namespace lorva
