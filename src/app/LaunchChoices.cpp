// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LaunchChoices.h"

#include "base/WholeFile.h"
#include "model/LorvaAppModel.h"
#include "ui/display/BackgroundImages.h"

#include <algorithm>

namespace lorva {

namespace {

constexpr qint64 kMostLogoBytes = qint64(64) * 1024 * 1024;

/// Nothing while no such source is known.
std::optional<BrowserSource> sourceOf(const LaunchSource &wanted, const LorvaAppModel &model)
{
    const auto hasID = [&](const auto &record) { return record.id == wanted.text; };
    switch (wanted.kind) {
    case BrowserSource::Kind::collection:
        for (const FontCollectionRecord &collection : model.collections())
            if (collection.name == wanted.text)
                return BrowserSource::collection(collection.id);
        return std::nullopt;
    case BrowserSource::Kind::style:
        if (std::ranges::none_of(model.styleCategories(), hasID))
            return std::nullopt;
        break;
    case BrowserSource::Kind::foundry:
        if (std::ranges::none_of(model.foundryCollections(), hasID))
            return std::nullopt;
        break;
    default:
        break;
    }
    return BrowserSource::make(wanted.kind, wanted.text);
}

/// The ground that the options ask for, in all its parts.
void addGround(SourceDisplaySettings &display, const LaunchOptions &options)
{
    display.colorMode = options.colorMode;
    display.backgroundImageID = options.backgroundImageID;
    if (options.backgroundImageID && !options.colorMode)
        display.colorMode = ColorMode::image;
    if (display.colorMode == ColorMode::image && !display.backgroundImageID)
        display.backgroundImageID = QString::fromUtf8(builtInBackgroundImages().front().id);
}

Result<void> addLogo(SourceDisplaySettings &display, const LaunchOptions &options)
{
    if (!options.logo)
        return {};
    const Result<QByteArray> bytes = readWholeFile(*options.logo, kMostLogoBytes);
    if (!bytes)
        return tl::unexpected(bytes.error());
    display.logoImageData = *bytes;
    display.logoVisible = true;
    return {};
}

} // namespace

Result<void> LaunchChoices::apply(const LaunchOptions &options)
{
    m_model.setViewMode(options.viewMode.value_or(m_model.viewMode()));
    m_model.setSearchQuery(options.searchText.value_or(m_model.searchQuery()));
    SourceDisplaySettings display;
    addGround(display, options);
    display.browserPointSize = options.pointSize;
    display.browserFontWeight = options.weight;
    display.sampleText = options.sampleText;
    const Result<void> logo = addLogo(display, options);
    if (display != SourceDisplaySettings())
        m_model.setDisplayForThisRun(display);
    m_wantedSource = options.source;
    m_sourceBefore = m_model.selectedSource();
    m_wantedFamily = options.selectedFamily;
    m_wantedDetail = options.detailFamily;
    catchUp();
    return logo;
}

void LaunchChoices::catchUp()
{
    if (!selectSource())
        return;
    selectFamily();
    openDetail();
}

/// True once the source is the wanted one, or is not wanted any more.
bool LaunchChoices::selectSource()
{
    if (!m_wantedSource)
        return true;
    if (m_model.selectedSource() != m_sourceBefore) {
        m_wantedSource.reset();
        return true;
    }
    const std::optional<BrowserSource> source = sourceOf(*m_wantedSource, m_model);
    if (!source)
        return false;
    m_wantedSource.reset();
    m_model.select(*source);
    return true;
}

void LaunchChoices::selectFamily()
{
    if (!m_wantedFamily || !m_model.family(*m_wantedFamily))
        return;
    m_model.selectFamily(std::exchange(m_wantedFamily, std::nullopt));
}

void LaunchChoices::openDetail()
{
    if (!m_wantedDetail || !m_model.family(*m_wantedDetail))
        return;
    m_model.selectFamily(m_wantedDetail);
    m_model.openDetail(std::exchange(m_wantedDetail, std::nullopt));
}

} // namespace lorva
