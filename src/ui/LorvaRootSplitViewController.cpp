// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/LorvaRootSplitViewController.h"

#include "base/Trace.h"
#include "commands/OrganizationAlerts.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/display/LogoImage.h"
#include "ui/display/LorvaWindowBackgroundView.h"
#include "ui/PaneStates.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarFooter.h"

#include <QEvent>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kSidebarWidth = ProjectSidebarViewController::kWidth;

} // namespace

LorvaRootSplitViewController::LorvaRootSplitViewController(
    LorvaAppModel &model, const std::shared_ptr<const BackgroundImageStore> &images,
    QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_presenter(*this)
    , m_activation(model, m_presenter)
    , m_folders(model, m_presenter)
    , m_browserActions(model, images)
    , m_sidebarActions(model)
    , m_logo(new LogoImage(this))
    , m_background(new LorvaWindowBackgroundView(images, this))
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
    m_browserActions.readUserImages();
    render();
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
}

LorvaRootSplitViewController::~LorvaRootSplitViewController()
{
    m_model.onChange = nullptr;
    // They report to members that go before the children do.
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

void LorvaRootSplitViewController::render()
{
    const TraceStage stage("render");
    m_renderIsScheduled = false;
    const FontBrowserState state = browserState();
    applyGround(state);
    m_sidebar->apply(sidebarStateOf(m_model));
    m_browser->apply(state);
    Q_EMIT rendered();
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

bool LorvaRootSplitViewController::isSettled() const
{
    return m_browser->isSettled() && !m_logo->isWaiting() && !m_background->isWaiting();
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

void LorvaRootSplitViewController::layOut()
{
    const auto place = [this](QWidget *widget, const QRect &logical) {
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
    };
    const int footerHeight = SidebarFooter::kHeight;
    const QRect pane(kSidebarWidth, 0, std::max(width() - kSidebarWidth, 0), height());
    place(m_sidebar, {0, 0, kSidebarWidth, std::max(height() - footerHeight, 0)});
    place(m_footer, {0, height() - footerHeight, kSidebarWidth, footerHeight});
    place(m_background, pane);
    place(m_browser, pane);
}

void LorvaRootSplitViewController::resizeEvent(QResizeEvent *)
{
    layOut();
}

void LorvaRootSplitViewController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
    QWidget::changeEvent(event);
}

} // namespace lorva
