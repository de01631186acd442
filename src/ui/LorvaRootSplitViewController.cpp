// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/LorvaRootSplitViewController.h"

#include "base/Trace.h"
#include "commands/OrganizationAlerts.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/display/LogoImage.h"
#include "ui/display/LorvaWindowBackgroundView.h"
#include "ui/PaneStates.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarFooter.h"

#include <QEvent>
#include <QFileDialog>
#include <QPointer>
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
    , m_browserActions(model, images)
    , m_sidebarActions(model)
    , m_logo(new LogoImage(this))
    , m_background(new LorvaWindowBackgroundView(images, this))
    , m_sidebar(new ProjectSidebarViewController(this))
    , m_footer(new SidebarFooter(this))
    , m_browser(new FontBrowserViewController(makeFontResolver(model.fontLibraryService()), this))
{
    setObjectName(QStringLiteral("LorvaRootSplitViewController"));
    m_browser->setDelegate(&m_browserActions);
    m_sidebar->setDelegate(&m_sidebarActions);
    m_browserActions.onRefused = [this](const QString &reason) { tellRefused(reason); };
    m_browserActions.onWatchFolderWanted = [this] { addFolder(); };
    m_sidebarActions.onRefused = [this](const QString &reason) { tellRefused(reason); };
    m_sidebarActions.onQuestion = [this](const Alert &question, std::function<void()> accepted) {
        ask(question, std::move(accepted));
    };
    m_footer->onAddFolder = [this] { addFolder(); };
    m_logo->onChange = [this] { scheduleRender(); };
    m_background->onImageChanged = [this] { scheduleRender(); };
    m_model.onChange = [this] { scheduleRender(); };
    m_browserActions.readUserImages();
    render();
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

void LorvaRootSplitViewController::addFolder()
{
    auto *dialog = new QFileDialog(this, tr("Add Folder"));
    dialog->setObjectName(QStringLiteral("addFolderDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, tr("Add"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString &folder) { watch(FilePath::fromText(folder)); });
    dialog->open();
}

void LorvaRootSplitViewController::watch(const FilePath &folder)
{
    m_model.addWatchedFolders({folder}, [view = QPointer(this)](const AddedFolders &added) {
        if (view && !added.failures.empty())
            view->tellRefused(added.failures.begin()->second.detail);
    });
}

void LorvaRootSplitViewController::ask(const Alert &question, std::function<void()> accepted)
{
    presentAlert(*window(), question, [accepted = std::move(accepted)](int button) {
        if (button == 0)
            accepted();
    });
}

void LorvaRootSplitViewController::tellRefused(const QString &reason)
{
    presentAlert(*window(), refusedChangeAlert(reason), [](int) {});
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
