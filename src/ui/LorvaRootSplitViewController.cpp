// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/LorvaRootSplitViewController.h"

#include "base/NotificationCentre.h"
#include "base/Trace.h"
#include "commands/OrganizationAlerts.h"
#include "ui/browser/BrowserTopBar.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/detail/DetailMenu.h"
#include "ui/detail/FontDetailViewController.h"
#include "ui/discover/DiscoverViewController.h"
#include "ui/display/LogoImage.h"
#include "ui/display/LorvaWindowBackgroundView.h"
#include "ui/PaneStates.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarFooter.h"

#include <QApplication>
#include <QClipboard>

namespace lorva {

LorvaRootSplitViewController::LorvaRootSplitViewController(LorvaAppModel &model,
                                                           const PaneServices &services,
                                                           QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_services(services)
    , m_presenter(*this)
    , m_activation(model, m_presenter)
    , m_folders(model, m_presenter)
    , m_browserActions(model, services.images)
    , m_sidebarActions(model)
    , m_detailActions(model, m_browserActions)
    , m_styles(model)
    , m_export(*this)
    , m_logo(new LogoImage(this))
    , m_background(new LorvaWindowBackgroundView(services.images, this))
    , m_sidebar(new ProjectSidebarViewController(this))
    , m_footer(new SidebarFooter(this))
    , m_browser(new FontBrowserViewController(makeFontResolver(model.fontLibraryService()), this))
{
    setObjectName(QStringLiteral("LorvaRootSplitViewController"));
    connectActions();
    m_footer->onAddFolder = [this] { m_folders.addFolders(); };
    m_logo->onChange = [this] { scheduleRender(); };
    m_background->onImageChanged = [this] { scheduleRender(); };
    m_model.onChange = [this] { scheduleRender(); };
    NotificationCentre::shared().observe(openFontQuizNotification(), this, [this](const void *) {
        handleOpenFontQuizNotification();
    });
    m_browserActions.readUserImages();
    render();
}

QByteArray LorvaRootSplitViewController::openFontQuizNotification()
{
    return QByteArrayLiteral("vantrel.merid.lorvaOpenFontQuiz");
}

void LorvaRootSplitViewController::connectActions()
{
    m_browser->setDelegate(&m_browserActions);
    m_sidebar->setDelegate(&m_sidebarActions);
    const auto activate = [this](const QStringList &names) { m_activation.activate(names); };
    const auto deactivate = [this](const QStringList &names) { m_activation.deactivate(names); };
    m_browserActions.onRefused = [this](const QString &reason) { tellRefused(reason); };
    m_browserActions.onWatchFolderWanted = [this] { m_folders.addFolders(); };
    m_browserActions.onActivationWanted = activate;
    m_browserActions.onRemainingActivationWanted = [this](const QStringList &names) {
        m_activation.activateRemaining(names);
    };
    m_browserActions.onDeactivationWanted = deactivate;
    m_sidebarActions.onRefused = [this](const QString &reason) { tellRefused(reason); };
    m_sidebarActions.onQuestion = [this](const Alert &question, std::function<void()> accepted) {
        ask(question, std::move(accepted));
    };
    m_sidebarActions.onActivationWanted = activate;
    m_sidebarActions.onDeactivationWanted = deactivate;
    m_sidebarActions.onOrganizeWanted = [this] { openQuiz(); };
    connectDetail();
}

void LorvaRootSplitViewController::connectDetail()
{
    m_detailActions.onChange = [this] { scheduleRender(); };
    m_styles.onChange = [this] { scheduleRender(); };
    m_detailActions.onStyleActivationWanted = [this](const QString &family,
                                                     const FontStyleRecord &style) {
        m_activation.activateStyle(family, style);
    };
    m_detailActions.onStyleDeactivationWanted = [this](const QString &family,
                                                       const FontStyleRecord &style) {
        m_activation.deactivateStyle(family, style);
    };
    m_detailActions.onFaceShown = [this](const DisplayedFace &face) { showFaceInInspector(face); };
    m_export.onFailed = [this](const QString &reason) { tellRefused(reason); };
}

LorvaRootSplitViewController::~LorvaRootSplitViewController()
{
    m_model.onChange = nullptr;
    // They report to members that go before the children do.
    delete m_quiz;
    delete m_detail;
    delete m_inspector;
    delete m_browser;
    delete m_sidebar;
}

FontBrowserState LorvaRootSplitViewController::browserState() const
{
    return browserStateOf(m_model,
                          {m_logo->image(m_model.display().logoImageData),
                           m_browserActions.userImages(), m_browserActions.images(),
                           m_background->userThumbnail()});
}

/// Nothing is rendered beneath the quiz: whoever plays waits for the next card.
void LorvaRootSplitViewController::render()
{
    const TraceStage stage("render");
    m_renderIsScheduled = false;
    if (!m_quiz)
        renderPanes();
    Q_EMIT rendered();
}

void LorvaRootSplitViewController::renderPanes()
{
    const FontBrowserState state = browserState();
    applyGround(state);
    m_sidebar->apply(sidebarStateOf(m_model));
    if (const FontFamilyRecord *family = openFamily()) {
        renderDetail(state, *family);
        return;
    }
    m_browser->apply(state);
    const bool isDiscover = state.source == BrowserSource::discover();
    if (isDiscover)
        ensureDiscover();
    showPane(isDiscover ? Pane::discover : Pane::browser);
}

/// A family that the last scan did not find any more is closed.
const FontFamilyRecord *LorvaRootSplitViewController::openFamily()
{
    const std::optional<QString> name = m_model.detailFamilyName();
    if (!name)
        return nullptr;
    const FontFamilyRecord *family = m_model.family(*name);
    if (!family && !m_model.isLoading())
        m_model.openDetail(std::nullopt);
    return family;
}

/// Made when a family is opened for the first time: starting goes without.
void LorvaRootSplitViewController::ensureDetail()
{
    if (m_detail)
        return;
    m_detail = new FontDetailViewController(makeFontResolver(m_model.fontLibraryService()), this);
    m_detail->setDelegate(&m_detailActions);
    m_detail->setMenuMaker([this](QWidget *parent) { return makeDetailMenu(parent); });
    m_detail->hide();
    m_inspector = new FontInspectorViewController(m_services.orthographies, this);
    m_inspector->setDelegate(this);
    m_inspector->hide();
}

void LorvaRootSplitViewController::showInspectorTab(FontInspectorViewController::Tab tab)
{
    ensureDetail();
    m_inspector->setSelectedTab(tab);
}

bool LorvaRootSplitViewController::showsInspector() const
{
    return isDetailOpen() && !m_inspector->isHidden();
}

QString LorvaRootSplitViewController::title() const
{
    if (m_quiz)
        return tr("Organize Fonts");
    return isDetailOpen() ? m_detail->state().family.familyName : m_browser->state().title;
}

void LorvaRootSplitViewController::renderDetail(const FontBrowserState &state,
                                                const FontFamilyRecord &family)
{
    ensureDetail();
    m_detailActions.setNarrow(width() < kInspectorWidth);
    const FontDetailState detail =
        detailStateOf(m_model, family, state, m_detailActions.session(), m_styles.of(family));
    m_inspector->setVisible(detail.showsInspector);
    layOut();
    m_detail->setFamilies(FontFamilySubset(m_model.allFamilies()));
    m_detail->apply(detail);
    showFaceInInspector(m_detail->displayedFace());
    showPane(Pane::detail);
}

/// Made when the page is opened for the first time: starting goes without.
void LorvaRootSplitViewController::ensureDiscover()
{
    if (m_discover)
        return;
    m_discover = new DiscoverViewController(m_services.desktop, this);
    m_discover->hide();
    layOut();
}

void LorvaRootSplitViewController::showFaceInInspector(const DisplayedFace &face)
{
    const FontFamilyRecord *family = m_model.family(face.familyName);
    m_inspector->showFace(face, family ? m_model.activation(*family) : std::nullopt);
}

QMenu *LorvaRootSplitViewController::makeDetailMenu(QWidget *parent)
{
    return makeDetailMenuFor({m_detail->state(), m_detailActions, [this] { exportDetail(); },
                              [this] { copyDetailAsCss(); }},
                             parent);
}

void LorvaRootSplitViewController::exportDetail()
{
    if (!isDetailOpen())
        return;
    m_export.ask(pictureOf(m_detail->page(), m_detail->pageBackground()), tr("Export Specimen"),
                 m_detail->exportName());
}

void LorvaRootSplitViewController::copyDetailAsCss()
{
    if (isDetailOpen())
        QApplication::clipboard()->setText(m_detail->css());
}

QStringList LorvaRootSplitViewController::selectedNames() const
{
    if (m_quiz || m_pane == Pane::discover)
        return {};
    return isDetailOpen() ? QStringList(m_detail->state().family.familyName)
                          : m_browser->selectedNames();
}

void LorvaRootSplitViewController::focusSearch()
{
    if (isDetailOpen())
        m_detail->focusSearch();
    else if (isBrowserOpen())
        m_browser->topBar().focusSearch();
}

void LorvaRootSplitViewController::inspectorFeaturesChanged(
    const std::optional<std::vector<FeaturePair>> &enabled)
{
    m_detail->setFeatureSettings(enabled);
}

void LorvaRootSplitViewController::inspectorAxesChanged(const std::vector<VariationSetting> &values)
{
    m_detail->setVariationAxes(values);
}

void LorvaRootSplitViewController::inspectorFileWanted(const FilePath &file)
{
    if (m_services.desktop)
        m_services.desktop->showFile(file);
}

void LorvaRootSplitViewController::inspectorLinkWanted(const QUrl &link)
{
    if (m_services.desktop)
        m_services.desktop->openLink(link);
}

void LorvaRootSplitViewController::applyGround(const FontBrowserState &state)
{
    m_background->apply({state.colorMode, QColor(state.backgroundColorHex), state.backgroundImageID,
                         state.backgroundImageUserFilename});
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

void LorvaRootSplitViewController::setMainMenu(QMenu *menu)
{
    m_footer->setMainMenu(menu);
}

void LorvaRootSplitViewController::ask(const Alert &question, std::function<void()> accepted)
{
    m_presenter.showAlert(question, [accepted = std::move(accepted)](int button) {
        if (button == 0)
            accepted();
    });
}

void LorvaRootSplitViewController::tellRefused(const QString &reason)
{
    m_presenter.showAlert(refusedChangeAlert(reason), {});
}

} // namespace lorva
