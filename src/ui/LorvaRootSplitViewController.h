// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/ActivationCommands.h"
#include "commands/FolderCommands.h"
#include "commands/StyleActivations.h"
#include "platform/DesktopOpener.h"
#include "platform/OrthographyBook.h"
#include "ui/BrowserActions.h"
#include "ui/DetailActions.h"
#include "ui/inspector/FontInspectorViewController.h"
#include "ui/PageExport.h"
#include "ui/sheets/WindowPresenter.h"
#include "ui/SidebarActions.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class QMenu;

namespace lorva {

class DiscoverViewController;
class FontBrowserViewController;
class FontDetailViewController;
class FontQuizViewController;
class LogoImage;
class LorvaWindowBackgroundView;
class ProjectSidebarViewController;
class SidebarFooter;

/// What the panes need besides the model. Any of it may be null: what it is for cannot be had then.
struct PaneServices
{
    /// The user's background images.
    std::shared_ptr<const BackgroundImageStore> images = nullptr;
    std::shared_ptr<const OrthographyBook> orthographies = nullptr;
    std::shared_ptr<DesktopOpener> desktop = nullptr;
};

/// The content of the main window: builds the panes' states from the model and hands the panes'
/// actions to it. Several changes of the model within one turn of the event loop are rendered once.
///
/// Does not own the model, which must outlive it. Thread: main.
class LorvaRootSplitViewController final : public QWidget, private FontInspectorDelegate
{
    Q_OBJECT
public:
    /// Narrower windows have the inspector over the detail pane, not beside it.
    static constexpr int kInspectorWidth = 1100;

    /// Posted without an object: the font quiz is wanted.
    static QByteArray openFontQuizNotification();

    explicit LorvaRootSplitViewController(LorvaAppModel &model, const PaneServices &services = {},
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
    DetailActions &detailActions() { return m_detailActions; }
    /// Null until the page is opened for the first time.
    DiscoverViewController *discover() { return m_discover; }
    /// Null while no quiz is played. It covers everything else, which rests meanwhile.
    FontQuizViewController *quiz() { return m_quiz; }
    /// Null until a family is opened for the first time.
    FontDetailViewController *detail() { return m_detail; }
    FontInspectorViewController *inspector() { return m_inspector; }
    void showInspectorTab(FontInspectorViewController::Tab tab);
    /// The inspector is open beside the family, or over it.
    bool showsInspector() const;
    /// Of what is shown: the source, the family or the quiz.
    QString title() const;
    /// The cards are shown; also beneath the quiz.
    bool isBrowserOpen() const { return m_pane == Pane::browser; }
    /// A family is open in the detail view.
    bool isDetailOpen() const { return m_pane == Pane::detail; }
    bool isQuizOpen() const { return m_quiz != nullptr; }
    /// Does nothing while one is played, and while a sheet asks something.
    void openQuiz();
    void closeQuiz();
    /// The family that is open, else those whose cards are chosen; none where neither is shown.
    QStringList selectedNames() const;
    /// Gives the keyboard to the search field of the pane that is shown.
    void focusSearch();
    /// Asks for a file and writes what the detail view shows there. Nothing while it is closed, as
    /// for the next.
    void exportDetail();
    void copyDetailAsCss();
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
    /// What stands beside the sidebar.
    enum class Pane { browser, detail, discover };

    void connectActions();
    void connectDetail();
    void ensureDetail();
    void renderDetail(const FontBrowserState &state, const FontFamilyRecord &family);
    void renderPanes();
    void ensureDiscover();
    void showPane(Pane pane);
    /// Null for a pane that was never opened.
    QWidget *widgetOf(Pane pane) const;
    bool hasKeyboard(Pane pane) const;
    void focusPane();
    bool isPaneSettled() const;
    void updateVisibility();
    void handleOpenFontQuizNotification();
    const FontFamilyRecord *openFamily();
    void showFaceInInspector(const DisplayedFace &face);
    QMenu *makeDetailMenu(QWidget *parent);
    void layOutPanes(const QRect &pane);
    void inspectorFeaturesChanged(const std::optional<std::vector<FeaturePair>> &enabled) override;
    void inspectorAxesChanged(const std::vector<VariationSetting> &values) override;
    void inspectorFileWanted(const FilePath &file) override;
    void inspectorLinkWanted(const QUrl &link) override;
    void scheduleRender();
    void layOut();
    void applyGround(const FontBrowserState &state);
    void ask(const Alert &question, std::function<void()> accepted);
    void tellRefused(const QString &reason);

    LorvaAppModel &m_model;
    const PaneServices m_services;
    WindowPresenter m_presenter;
    ActivationCommands m_activation;
    FolderCommands m_folders;
    BrowserActions m_browserActions;
    SidebarActions m_sidebarActions;
    DetailActions m_detailActions;
    StyleActivationLook m_styles;
    PageExport m_export;
    LogoImage *m_logo;
    LorvaWindowBackgroundView *m_background;
    ProjectSidebarViewController *m_sidebar;
    SidebarFooter *m_footer;
    FontBrowserViewController *m_browser;
    FontDetailViewController *m_detail = nullptr;
    FontInspectorViewController *m_inspector = nullptr;
    DiscoverViewController *m_discover = nullptr;
    FontQuizViewController *m_quiz = nullptr;
    /// Had the keyboard when the quiz was opened.
    QPointer<QWidget> m_focusBeforeQuiz;
    Pane m_pane = Pane::browser;
    bool m_renderIsScheduled = false;
};

} // namespace lorva
