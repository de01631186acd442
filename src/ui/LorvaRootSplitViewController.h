// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/ActivationCommands.h"
#include "commands/FolderCommands.h"
#include "ui/BrowserActions.h"
#include "ui/sheets/WindowPresenter.h"
#include "ui/SidebarActions.h"

#include <QWidget>

#include <memory>

class QMenu;

namespace lorva {

class FontBrowserViewController;
class LogoImage;
class LorvaWindowBackgroundView;
class ProjectSidebarViewController;
class SidebarFooter;

/// The content of the main window: builds the panes' states from the model and hands the panes'
/// actions to it. Several changes of the model within one turn of the event loop are rendered once.
///
/// Does not own the model, which must outlive it. Thread: main.
class LorvaRootSplitViewController final : public QWidget
{
    Q_OBJECT
public:
    /// `images` may be null: the user has no background images.
    explicit LorvaRootSplitViewController(
        LorvaAppModel &model, const std::shared_ptr<const BackgroundImageStore> &images = nullptr,
        QWidget *parent = nullptr);
    ~LorvaRootSplitViewController() override;

    /// The browser's whole state, computed from the model as it is now.
    FontBrowserState browserState() const;
    /// Renders the model's present state at once.
    void render();
    FontBrowserViewController &browser() { return *m_browser; }
    ProjectSidebarViewController &sidebar() { return *m_sidebar; }
    /// What the panes report to; also for whoever acts in the user's place.
    BrowserActions &browserActions() { return m_browserActions; }
    SidebarActions &sidebarActions() { return m_sidebarActions; }
    LorvaWindowBackgroundView &backgroundView() { return *m_background; }
    /// Everything that is shown is there: specimens, logo, background.
    bool isSettled() const;

    /// The menu behind the button at the foot of the sidebar. Does not own it.
    void setMainMenu(QMenu *menu);
    /// Switching fonts on and off, from wherever the user asks for it.
    ActivationCommands &activation() { return m_activation; }
    FolderCommands &folders() { return m_folders; }

Q_SIGNALS:
    /// The panes show the model's newest state.
    void rendered();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void connectActions();
    void scheduleRender();
    void layOut();
    void applyGround(const FontBrowserState &state);
    void ask(const Alert &question, std::function<void()> accepted);
    void tellRefused(const QString &reason);

    LorvaAppModel &m_model;
    WindowPresenter m_presenter;
    ActivationCommands m_activation;
    FolderCommands m_folders;
    BrowserActions m_browserActions;
    SidebarActions m_sidebarActions;
    LogoImage *m_logo;
    LorvaWindowBackgroundView *m_background;
    ProjectSidebarViewController *m_sidebar;
    SidebarFooter *m_footer;
    FontBrowserViewController *m_browser;
    bool m_renderIsScheduled = false;
};

} // namespace lorva
