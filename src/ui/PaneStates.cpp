// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/PaneStates.h"

#include "catalog/FontVariants.h"
#include "model/records/DisplayedNames.h"
#include "ui/browser/MembershipOptions.h"
#include "ui/DetailNeighbours.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

struct PaneTexts
{
    Q_DECLARE_TR_FUNCTIONS(PaneTexts)
};

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

template <class Record>
const Record *recordOf(const std::vector<Record> &records, const QString &id)
{
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&](const Record &record) { return record.id == id; });
    return found == records.end() ? nullptr : &*found;
}

template <class Record>
std::optional<QString> nameOf(const std::vector<Record> &records, const QString &id)
{
    const Record *record = recordOf(records, id);
    return record ? std::optional(displayedName(*record)) : std::nullopt;
}

QString titleOf(const BrowserSource &source, const LorvaAppModel &model)
{
    using Kind = BrowserSource::Kind;
    std::optional<QString> title;
    if (source.kind() == Kind::active)
        //: A heading: fonts that are switched on for every program.
        title = PaneTexts::tr("Active");
    else if (source.kind() == Kind::inactive)
        //: A heading: fonts that are not switched on.
        title = PaneTexts::tr("Inactive");
    else if (source.kind() == Kind::discover)
        //: A heading: a page that introduces type foundries.
        title = PaneTexts::tr("Discover");
    else if (source.kind() == Kind::style)
        title = nameOf(model.styleCategories(), source.id());
    else if (source.kind() == Kind::collection)
        title = nameOf(model.collections(), source.id());
    else if (source.kind() == Kind::foundry)
        title = nameOf(model.foundryCollections(), source.id());
    return title.value_or(PaneTexts::tr("All Fonts"));
}

using Empty = BrowserEmptyState::SourceEmpty;

Empty emptyInactive(const LorvaAppModel &model)
{
    const bool watchesFolders = !model.watchedFolders().empty();
    return {PaneTexts::tr("No Inactive Fonts"),
            watchesFolders
                ? PaneTexts::tr("Every font in your folders is switched on.")
                : PaneTexts::tr("Watch a folder to see the fonts in it without switching them on."),
            !watchesFolders};
}

Empty emptyCollection(const LorvaAppModel &model, const QString &id)
{
    const FontCollectionRecord *collection = recordOf(model.collections(), id);
    if (collection && !collection->familyNames.isEmpty())
        return {PaneTexts::tr("No Fonts Here"),
                PaneTexts::tr("None of the families that belong here are on this computer."),
                false};
    return {PaneTexts::tr("An Empty Collection"),
            PaneTexts::tr("Drag fonts onto it in the sidebar, or choose it in a font’s menu."),
            false};
}

Empty emptySource(const BrowserSource &source, const LorvaAppModel &model)
{
    switch (source.kind()) {
    case BrowserSource::Kind::active:
        return {PaneTexts::tr("No Active Fonts"),
                PaneTexts::tr("Fonts that every program can use appear here."), false};
    case BrowserSource::Kind::inactive:
        return emptyInactive(model);
    case BrowserSource::Kind::style:
        return {PaneTexts::tr("No Fonts of This Style"),
                PaneTexts::tr("Choose the style in a font’s menu, or drag fonts onto it in the "
                              "sidebar."),
                false};
    case BrowserSource::Kind::collection:
        return emptyCollection(model, source.id());
    case BrowserSource::Kind::foundry:
        return {PaneTexts::tr("No Fonts Here"),
                PaneTexts::tr("None of this foundry’s families are on this computer."), false};
    default:
        return {PaneTexts::tr("No Fonts"),
                PaneTexts::tr("Neither this system nor your folders hold a font that can be read."),
                true};
    }
}

BrowserEmptyState emptyStateOf(const LorvaAppModel &model)
{
    if (model.isFirstLoadCancelled())
        return {Empty{PaneTexts::tr("Scan Cancelled"),
                      PaneTexts::tr("Press F5 to look for the fonts of this system and of your "
                                    "folders again."),
                      false}};
    const QString query = model.searchQuery().trimmed();
    if (!query.isEmpty())
        return {BrowserEmptyState::NoSearchResults{query}};
    return {emptySource(model.selectedSource(), model)};
}

void takeOrganization(FontBrowserState &state, const LorvaAppModel &model)
{
    state.styleCategories = model.styleCategories();
    state.collections = model.collections();
    for (const FontCollectionRecord &collection : state.collections)
        state.collectionMembersByID.insert(collection.id, model.collectionMemberSet(collection.id));
    state.foundryCollections = model.foundryCollections();
    state.styleIDByFamily = model.styleIDByFamily();
    state.foundryIDByFamily = model.foundryIDByFamily();
}

void takeDisplay(FontBrowserState &state, const LorvaAppModel &model, const PanePictures &pictures)
{
    const DisplayValues &values = model.display();
    const ColorPair colors = colorsOf(model);
    state.viewMode = model.viewMode();
    state.pointSize = values.browserPointSize;
    state.fontWeight = int(values.browserFontWeight);
    state.colorMode = values.colorMode;
    state.foregroundColorHex = colors.foreground;
    state.backgroundColorHex = colors.background;
    state.customForegroundColorHex = values.customForegroundColorHex;
    state.customBackgroundColorHex = values.customBackgroundColorHex;
    state.imageForegroundColorHex = values.imageForegroundColorHex;
    state.backgroundImageID = values.backgroundImageID;
    state.backgroundImageUserFilename = values.backgroundImageUserFilename;
    state.sampleText = values.sampleText;
    if (values.logoVisible)
        state.logoImage = pictures.logo;
    state.logoSizeRatio = values.logoSizeRatio;
    state.logoSpacing = values.logoSpacing;
    state.display = {values, pictures.logo, pictures.userImages, pictures.imageStore,
                     pictures.userThumbnail};
}

void takeDisplay(FontDetailState &state, const FontBrowserState &browser)
{
    state.fontWeight = browser.fontWeight;
    state.foregroundColorHex = browser.foregroundColorHex;
    state.backgroundColorHex = browser.backgroundColorHex;
    state.colorMode = browser.colorMode;
    state.customForegroundColorHex = browser.customForegroundColorHex;
    state.customBackgroundColorHex = browser.customBackgroundColorHex;
    state.imageForegroundColorHex = browser.imageForegroundColorHex;
    state.backgroundImageID = browser.backgroundImageID;
    state.backgroundImageUserFilename = browser.backgroundImageUserFilename;
    state.sampleText = browser.sampleText;
    state.logoImage = browser.logoImage;
    state.logoSizeRatio = browser.logoSizeRatio;
    state.logoSpacing = browser.logoSpacing;
    state.display = browser.display;
}

void takeSession(FontDetailState &state, const DetailSession &session)
{
    if (session.selectedVariantFamily == state.family.familyName)
        state.selectedVariantLabel = session.selectedVariantLabel;
    state.pointSize = session.pointSize;
    state.letterSpacing = session.letterSpacing;
    state.stage = session.stage;
    state.showsInspector =
        session.isNarrow ? session.showsInspectorOverPage : session.showsInspector;
}

} // namespace

SidebarState sidebarStateOf(LorvaAppModel &model)
{
    SidebarState state;
    SidebarContent &content = state.content;
    content.collections = model.collections();
    content.styleCategories = model.styleCategories();
    content.foundryCollections = model.foundryCollections();
    content.counts = model.counts();
    content.hideOrganizePromo = model.hidesQuizPromoInSidebar();
    int sorted = 0;
    for (const int count : content.counts.styles)
        sorted += count;
    if (!content.counts.styles.isEmpty())
        content.unsortedFontCount = content.counts.all.value_or(0) - sorted;
    state.dismissedFoundries = model.dismissedFoundries();
    state.collapsedGroups = model.collapsedGroups();
    state.selectedSource = model.selectedSource();
    return state;
}

FontBrowserState browserStateOf(LorvaAppModel &model, const PanePictures &pictures)
{
    FontBrowserState state;
    state.source = model.selectedSource();
    state.title = titleOf(state.source, model);
    state.families = model.visibleFamilies();
    state.selectedFamilyName = model.selectedFamilyName();
    state.searchQuery = model.searchQuery();
    takeDisplay(state, model, pictures);
    takeOrganization(state, model);
    state.activationProvider = [&model](const FontFamilyRecord &family) {
        return model.activation(family);
    };
    state.catalogGeneration = model.catalogGeneration();
    state.activationGeneration = model.activationGeneration();
    state.isLoading = model.isLoading();
    state.loadingText = model.loadingText();
    if (state.families.empty() && !state.isLoading)
        state.emptyState = emptyStateOf(model);
    return state;
}

FontDetailState detailStateOf(LorvaAppModel &model, const FontFamilyRecord &family,
                              const FontBrowserState &browser, const DetailSession &session,
                              const StyleActivations &styles)
{
    FontDetailState state;
    state.family = family;
    state.variants = variantsOf(family);
    takeDisplay(state, browser);
    takeSession(state, session);
    const QStringList names(family.familyName);
    state.styleOptions = styleOptions(browser, names);
    state.collectionOptions = collectionOptions(browser, names);
    state.foundryOptions = foundryOptions(browser, names);
    state.familyActivation = model.activation(family);
    state.activationByStyleID = styles.activationByStyleID;
    state.labelsInSameFile = styles.labelsInSameFile;
    state.hasPrevious = detailNeighbour(browser.families, family.familyName, -1).has_value();
    state.hasNext = detailNeighbour(browser.families, family.familyName, 1).has_value();
    return state;
}

} // namespace lorva
