// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/FileOpening.h"
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

/// Builds the program's objects in their order, and opens the one main window, or, where only files
/// are to be opened, just theirs: the main one follows when it is asked for. The program ends with
/// its last window.
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

    /// byBus: a call is on its way that says what is wanted.
    enum class Launch { byUser, byBus };
    /// Builds and shows what the start is for. The main window starts the catalog load.
    void applicationDidFinishLaunching(Launch launch = Launch::byUser);
    /// Another start was handed over: shows what it asks for, as far as it can be understood, and
    /// brings that to the front; without anything to open the main window.
    void takeOver(const ProgramStart &start);

    LorvaAppModel &model() { return *m_model; }
    /// Null until the library is wanted; as the root controller.
    QMainWindow *window() { return m_window.get(); }
    FontFilesWindow *filesWindow() { return m_files.window(); }
    LorvaRootSplitViewController *rootController() { return m_root; }

Q_SIGNALS:
    /// Every card on screen shows its specimen, for the first time: those of the last start's
    /// catalog, or of the scan's.
    void firstScreenPainted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    FontFilesServices filesServices();
    void connectFiles();
    void openPlaces(const LaunchOptions &options, const QByteArray &activationToken);
    void takeFilesPicture();
    void openLibrary();
    void presentLibrary();
    void quit();
    void showInLibrary(const QString &familyName);
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
    bool isSwitching() const;
    void watchRuns(const ActivationCommands &commands) const;
    bool closesNow();
    void closeWhenDone();
    void stopClosing();
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
    FileOpening m_files;
    /// Runs while the bus owes a call.
    QTimer m_callPatience;
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
    QTimer m_closePatience;
    QElapsedTimer m_sinceCatalog;
    /// They may still fade in.
    bool m_specimensAreDrawn = false;
    bool m_firstScreenIsPainted = false;
};

} // namespace lorva
