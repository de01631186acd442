// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LorvaApplicationDelegate.h"

#include "app/FrameTrace.h"
#include "app/MainMenu.h"
#include "base/Trace.h"
#include "catalog/CatalogCache.h"
#include "commands/LorvaSettingsViewModel.h"
#include "platform/linux/FontconfigOrthographies.h"
#include "platform/linux/XdgDesktopOpener.h"
#include "platform/linux/XdgFolders.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/display/BackgroundImageStore.h"
#include "ui/files/FontFileDrop.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/onboarding/WindowReveal.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <cstdio>

Q_LOGGING_CATEGORY(lcStartup, "lorva.app.startup", QtWarningMsg)

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kSettleLook{4};
constexpr qsizetype kLongestTitle = 300;
/// The call for which the bus has started a process waits for it already; whoever only inherits the
/// bus's word for it must not wait long.
constexpr std::chrono::milliseconds kCallPatience{500};

} // namespace

std::unique_ptr<CatalogCache> LorvaApplicationDelegate::beginReadingCatalog(
    const LaunchOptions &options)
{
    if (options.screenshot)
        return nullptr;
    auto cache = std::make_unique<CatalogCache>(xdgFolders().catalogSnapshot());
    if (!opensPlacesAlone(options))
        cache->prefetch();
    return cache;
}

LorvaApplicationDelegate::LorvaApplicationDelegate(LaunchOptions options,
                                                   std::unique_ptr<CatalogCache> catalogCache,
                                                   ProgramParts parts)
    : m_options(std::move(options))
    , m_makeOnboarding(std::move(parts.makeOnboarding))
    , m_preferences(makePreferences(m_options, xdgFolders()))
    , m_model(makeModel(m_options, xdgFolders(), *m_preferences, std::move(catalogCache)))
    , m_updaterController(std::move(parts.updaterController))
    , m_files(*m_model, [this] { return filesServices(); })
    , m_windowFrameStore(*m_preferences)
    , m_choices(*m_model)
{
    m_closePatience.setSingleShot(true);
    connect(&m_closePatience, &QTimer::timeout, this, [this] { m_window->close(); });
    traceMoment("model made");
}

LorvaApplicationDelegate::~LorvaApplicationDelegate()
{
    // They hold the model, the window or the updater without owning them.
    m_menu.reset();
    m_onboardingController.reset();
    m_updates.reset();
    m_settings.reset();
    m_settingsViewModel.reset();
    m_window.reset();
}

void LorvaApplicationDelegate::applicationDidFinishLaunching(Launch launch)
{
    if (m_options.screenshot)
        setReducedMotionOverride(m_options.welcome != LaunchWelcome::scene);
    if (m_options.isDark)
        setDarkDesktopOverride(*m_options.isDark);
    connectFiles();
    openPlaces(m_options, {});
    if (opensPlacesAlone(m_options)) {
        if (m_options.screenshot)
            takeFilesPicture();
    } else if (launch == Launch::byBus) {
        m_callPatience.start(kCallPatience);
    } else {
        openLibrary();
    }
}

/// Does nothing once it is there, open or not.
void LorvaApplicationDelegate::openLibrary()
{
    m_callPatience.stop();
    if (m_window)
        return;
    const TraceStage stage("start: window");
    applyChoices(m_options);
    buildWindow();
    applyDetailChoices(m_options);
    placeWindow();
    watchFirstScreen();
    m_root->browser().focusCards();
    passOnboardingGate();
    m_model->loadCatalog();
    if (!m_onboardingController)
        showFirstLoad();
    connect(qApp, &QGuiApplication::applicationStateChanged, m_model.get(),
            [this](Qt::ApplicationState state) {
                if (state != Qt::ApplicationActive)
                    return;
                m_model->becomeActive();
                m_root->activation().refreshUndo();
            });
    watchRuns(m_root->activation());
    connect(new FontFileDrop(*m_window), &FontFileDrop::dropped, &m_files,
            [this](const std::vector<FilePath> &files) { m_files.openDropped(files); });
}

/// Not over the welcome, which has the user's eye.
void LorvaApplicationDelegate::showFirstLoad()
{
    if (!m_options.screenshot)
        m_root->folders().showFirstLoad();
}

void LorvaApplicationDelegate::applyChoices(const LaunchOptions &options)
{
    if (options.isDark)
        setDarkDesktopOverride(*options.isDark);
    if (const Result<void> applied = m_choices.apply(options); !applied)
        std::fprintf(stderr, "lorva: %s\n", qPrintable(applied.error().detail));
}

void LorvaApplicationDelegate::applyDetailChoices(const LaunchOptions &options)
{
    if (options.detailStage)
        m_root->detailActions().detailStageChanged(*options.detailStage);
    if (options.inspectorTab)
        m_root->showInspectorTab(*options.inspectorTab);
    if (options.quiz)
        m_wantedQuiz = options.quiz;
}

/// The deck is dealt from the library, which has to be there.
void LorvaApplicationDelegate::openWantedQuiz()
{
    if (!m_wantedQuiz || m_model->isLoading())
        return;
    const LaunchQuiz phase = *std::exchange(m_wantedQuiz, std::nullopt);
    // A game that is played goes on.
    if (m_root->isQuizOpen())
        return;
    m_root->openQuiz();
    FontQuizViewController *quiz = m_root->quiz();
    if (!quiz || phase == LaunchQuiz::intro)
        return;
    // A picture plays up to there itself.
    if (phase == LaunchQuiz::poster && !m_picture)
        quiz->showPoster();
    else
        quiz->start();
}

void LorvaApplicationDelegate::buildWindow()
{
    m_window = std::make_unique<QMainWindow>();
    m_window->setObjectName(QStringLiteral("LorvaMainWindow"));
    m_window->setWindowTitle(tr("All Fonts"));
    m_window->setBackgroundRole(QPalette::Base);
    m_window->setContextMenuPolicy(Qt::NoContextMenu);
    const auto images = std::make_shared<BackgroundImageStore>(
        xdgFolders().applicationSupport.child("background-images"));
    const auto desktop = std::make_shared<XdgDesktopOpener>();
    m_root = new LorvaRootSplitViewController(
        *m_model, {images, std::make_shared<FontconfigOrthographies>(), desktop}, m_window.get());
    m_presenter = std::make_unique<WindowPresenter>(*m_window);
    m_updates = std::make_unique<UpdateCommands>(*m_updaterController, *m_presenter, desktop,
                                                 QStringLiteral(LORVA_VERSION));
    m_backgroundHostingView = &m_root->backgroundView();
    m_window->setCentralWidget(m_root);
    buildMenu();
    connect(m_root, &LorvaRootSplitViewController::rendered, this,
            &LorvaApplicationDelegate::windowRendered);
    if (m_options.screenshot)
        m_picture = std::make_unique<WindowPicture>(m_options, pictureScene());
    traceFrames(*m_window);
}

WindowPicture::Scene LorvaApplicationDelegate::pictureScene()
{
    const auto extras = [this] {
        return WindowPicture::Extras{m_settings.get(), m_settingsViewModel.get(),
                                     m_onboardingController.get()};
    };
    return {*m_model, *m_root, [this] { showSettings(); }, extras};
}

DetailCommands LorvaApplicationDelegate::detailCommands()
{
    DetailActions &actions = m_root->detailActions();
    return {[this] { return m_root->isDetailOpen(); },
            [&actions] { actions.detailClosed(); },
            [&actions](int step) { actions.detailNeighbourWanted(step); },
            [&actions] { actions.detailInspectorToggled(); },
            [this] { return m_root->showsInspector(); },
            [&actions](DetailStage stage) { actions.detailStageChanged(stage); },
            [&actions] { return actions.session().pointSize; },
            [&actions](double size) { actions.setPointSize(size); },
            [this] { m_root->exportDetail(); },
            [this] { m_root->copyDetailAsCss(); }};
}

void LorvaApplicationDelegate::buildMenu()
{
    const TraceStage stage("start: menu");
    m_menu = std::make_unique<MainMenu>(MainMenu::Targets{
        *m_model, *m_updates, *m_window, [this] { m_root->sidebar().beginCreatingCollection(); },
        [this] { m_root->folders().addFolders(); }, [this] { m_root->focusSearch(); },
        [this] { m_root->browser().copySelection(); }, [this] { m_root->browser().selectAll(); },
        [this] { showSettings(); }, m_root->activation(),
        [this] { return m_root->selectedNames(); }, detailCommands(),
        [this] { return m_root->isQuizOpen(); }, [this] { quit(); }});
    m_root->setMainMenu(m_menu->buttonMenu());
    // It asks the desktop whether it shows menus itself, for which the first picture need not wait.
    connect(this, &LorvaApplicationDelegate::firstScreenPainted, m_menu.get(),
            &MainMenu::makeMenuBar, Qt::QueuedConnection);
}

/// Made when it is first opened: most starts never do.
void LorvaApplicationDelegate::showSettings()
{
    if (!m_settings) {
        m_settingsViewModel = std::make_unique<LorvaSettingsViewModel>(*m_model);
        m_settings = std::make_unique<SettingsWindow>(*m_settingsViewModel, m_window.get());
    }
    m_settings->present();
}

void LorvaApplicationDelegate::windowRendered()
{
    // Names come from fonts, and a display closes the connection on a title of megabytes.
    m_window->setWindowTitle(m_root->title().left(kLongestTitle));
    m_menu->update();
    m_choices.catchUp();
    openWantedQuiz();
}

bool LorvaApplicationDelegate::showsWelcome() const
{
    if (m_options.welcome)
        return true;
    return !m_options.screenshot && !m_options.skipsWelcome
        && !m_preferences->boolean(onboardingFlag()).value_or(false);
}

void LorvaApplicationDelegate::passOnboardingGate()
{
    if (!showsWelcome()) {
        m_window->show();
        startUpdater();
        return;
    }
    concealWindow(*m_window);
    m_window->show();
    m_onboardingController = m_makeOnboarding(*m_model);
    m_onboardingController->show(
        *m_window, welcomeText(),
        [this](OnboardingOverlayController::End end) { endOnboarding(end); });
}

WelcomeText LorvaApplicationDelegate::welcomeText()
{
    return {tr("Lorva is a better way to browse, test, and manage your fonts. Organize them into "
               "collections, test logo images next to text, and turn fonts on or off as needed.")
                + QStringLiteral("\n\n") + tr("Made for people who can never have enough fonts."),
            tr("Continue")};
}

void LorvaApplicationDelegate::endOnboarding(OnboardingOverlayController::End end)
{
    if (end == OnboardingOverlayController::End::continued) {
        m_preferences->setBoolean(onboardingFlag(), true);
        startUpdater();
        revealWindow(*m_window, *m_root);
    } else {
        startUpdater();
        showConcealedWindow(*m_window);
    }
    // It is its own call that ends here.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_onboardingController.reset();
            showFirstLoad();
        },
        Qt::QueuedConnection);
}

void LorvaApplicationDelegate::startUpdater()
{
    if (!m_options.screenshot)
        m_updates->start();
}

void LorvaApplicationDelegate::watchFirstScreen()
{
    auto *look = new QTimer(this);
    look->setInterval(kSettleLook);
    connect(m_root, &LorvaRootSplitViewController::rendered, this, [this, look] {
        const bool hasContent = !m_model->isLoading() || !m_model->allFamilies()->empty();
        if (!hasContent || m_sinceCatalog.isValid())
            return;
        m_sinceCatalog.start();
        look->start();
    });
    connect(look, &QTimer::timeout, this, [this, look] {
        if (m_root->isBrowserOpen() && m_root->browser().isDrawn()
            && !std::exchange(m_specimensAreDrawn, true)) {
            m_window->repaint();
            traceMoment("specimens drawn");
        }
        if (m_root->isBrowserOpen() && !m_root->isQuizOpen() && !m_root->browser().isSettled())
            return;
        reportFirstScreen();
        if (m_picture && !m_picture->isReady())
            return;
        look->stop();
        look->deleteLater();
        if (m_picture)
            m_picture->take();
    });
}

void LorvaApplicationDelegate::reportFirstScreen()
{
    if (std::exchange(m_firstScreenIsPainted, true))
        return;
    // What is settled may still wait for its first paint event; the report is of pixels.
    m_window->repaint();
    traceMoment("first screen painted");
    qCInfo(lcStartup) << "first screen painted" << m_sinceCatalog.elapsed()
                      << "ms after its catalog was known," << m_model->allFamilies()->size()
                      << "families";
    Q_EMIT firstScreenPainted();
}

} // namespace lorva
