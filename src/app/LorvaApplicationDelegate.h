// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/LaunchChoices.h"
#include "app/LaunchOptions.h"
#include "app/MainMenu.h"
#include "app/ProgramServices.h"
#include "app/WindowPicture.h"
#include "commands/UpdateCommands.h"
#include "model/stores/WindowFrameStore.h"
#include "platform/SingleInstance.h"
#include "ui/sheets/WindowPresenter.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace lorva {

class LorvaRootSplitViewController;
class LorvaSettingsViewModel;
class LorvaWindowBackgroundView;
class SettingsWindow;

/// Builds the program's objects in their order, opens the one main window, and ends with it.
///
/// Owns: the preference store, the model, the updater, the window, and the welcome while it is
/// shown. Thread: main.
class LorvaApplicationDelegate final : public QObject
{
    Q_OBJECT
public:
    static constexpr QSize kWantedContentSize{1720, 920};
    static constexpr QSize kMinimumContentSize{960, 800};
    /// True once the user has gone through the welcome.
    static QString onboardingFlag()
    {
        return QStringLiteral("vantrel.merid.hasCompletedOnboarding");
    }

    /// The catalog of the last start, being read already: to be called first of all, before the
    /// toolkit is started. Null for a picture, which shows nothing but what is there now.
    static std::unique_ptr<CatalogCache> beginReadingCatalog(const LaunchOptions &options);

    explicit LorvaApplicationDelegate(LaunchOptions options,
                                      std::unique_ptr<CatalogCache> catalogCache = nullptr,
                                      ProgramParts parts = {});
    ~LorvaApplicationDelegate() override;

    /// Builds and shows the window and starts the catalog load.
    void applicationDidFinishLaunching();
    /// Another start was handed over: brings the window to the front and shows what that start
    /// asks for, as far as it can be understood.
    void takeOver(const ProgramStart &start);

    LorvaAppModel &model() { return *m_model; }
    QMainWindow *window() { return m_window.get(); }
    LorvaRootSplitViewController *rootController() { return m_root; }

Q_SIGNALS:
    /// Every card on screen shows its specimen, for the first time: those of the last start's
    /// catalog, or of the scan's.
    void firstScreenPainted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void applyChoices(const LaunchOptions &options);
    void applyDetailChoices(const LaunchOptions &options);
    void openWantedQuiz();
    void showFirstLoad();
    WindowPicture::Scene pictureScene();
    bool showsWelcome() const;
    void buildWindow();
    void buildMenu();
    DetailCommands detailCommands();
    void showSettings();
    bool closesNow();
    void placeWindow();
    void saveFrame();
    void windowRendered();
    void passOnboardingGate();
    static WelcomeText welcomeText();
    void endOnboarding(OnboardingOverlayController::End end);
    void startUpdater();
    void watchFirstScreen();
    void reportFirstScreen();

    const LaunchOptions m_options;
    const decltype(ProgramParts::makeOnboarding) m_makeOnboarding;
    std::unique_ptr<PreferenceStore> m_preferences;
    std::unique_ptr<LorvaAppModel> m_model;
    std::unique_ptr<UpdaterController> m_updaterController;
    std::unique_ptr<QMainWindow> m_window;
    /// The root controller's.
    LorvaWindowBackgroundView *m_backgroundHostingView = nullptr;
    std::unique_ptr<OnboardingOverlayController> m_onboardingController;

    WindowFrameStore m_windowFrameStore;
    QTimer m_frameRest;
    LaunchChoices m_choices;
    /// What the command line asks for, until the library is there.
    std::optional<LaunchQuiz> m_wantedQuiz;
    LorvaRootSplitViewController *m_root = nullptr;
    std::unique_ptr<WindowPresenter> m_presenter;
    std::unique_ptr<UpdateCommands> m_updates;
    /// Null but for --screenshot.
    std::unique_ptr<WindowPicture> m_picture;
    std::unique_ptr<MainMenu> m_menu;
    /// Made when they are first opened.
    std::unique_ptr<LorvaSettingsViewModel> m_settingsViewModel;
    std::unique_ptr<SettingsWindow> m_settings;
    /// The window waits for the end of what is being switched.
    bool m_isClosing = false;
    QElapsedTimer m_sinceCatalog;
    /// They may still fade in.
    bool m_specimensAreDrawn = false;
    bool m_firstScreenIsPainted = false;
};

} // namespace lorva
