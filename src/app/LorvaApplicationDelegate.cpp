// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LorvaApplicationDelegate.h"

#include "base/AtomicFile.h"
#include "base/Trace.h"
#include "catalog/CatalogCache.h"
#include "install/FontInstallationService.h"
#include "model/stores/WindowGeometry.h"
#include "platform/linux/DesktopTrash.h"
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/FontconfigSystemFont.h"
#include "platform/linux/InotifyFolderWatcher.h"
#include "platform/linux/LinkFolderRegistrar.h"
#include "platform/linux/XdgFolders.h"
#include "platform/MemoryPreferenceStore.h"
#include "platform/SqlitePreferenceStore.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/style/ReducedMotion.h"

#include <QApplication>
#include <QBuffer>
#include <QLoggingCategory>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

#include <chrono>
#include <cstdio>

Q_LOGGING_CATEGORY(lcStartup, "lorva.app.startup", QtWarningMsg)

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kSettleLook{4};

/// A picture must not touch what the user's own window remembers.
std::unique_ptr<PreferenceStore> makePreferences(const LaunchOptions &options,
                                                 const PlatformFolders &folders)
{
    if (options.screenshot)
        return std::make_unique<MemoryPreferenceStore>();
    return std::make_unique<SqlitePreferenceStore>(folders.applicationSupport);
}

/// Nobody waits for news in a picture.
std::unique_ptr<FolderWatcher> makeFolderWatcher(const LaunchOptions &options)
{
    return options.screenshot ? nullptr : std::make_unique<InotifyFolderWatcher>();
}

std::unique_ptr<LorvaAppModel> makeModel(const LaunchOptions &options,
                                         const PlatformFolders &folders,
                                         PreferenceStore &preferences,
                                         std::unique_ptr<CatalogCache> catalogCache)
{
    FontLibraryService::Dependencies dependencies{
        std::make_shared<FontconfigAvailableFonts>(folders.registeredLinks()),
        std::make_shared<FontconfigSystemFont>()};
    dependencies.cacheFileURL = folders.parseCache();
    // A picture leaves the user's files as they are.
    dependencies.savesCache = !options.screenshot;
    const auto registrar = std::make_shared<LinkFolderRegistrar>(folders.registeredLinks());
    FontInstallationService::Dependencies installation{folders, registrar,
                                                       std::make_shared<DesktopTrash>()};
    installation.reconcilesBooks = !options.screenshot;
    auto model = std::make_unique<LorvaAppModel>(LorvaAppModel::Dependencies{
        std::make_unique<FontLibraryService>(std::move(dependencies)),
        std::make_unique<FontInstallationService>(
            std::make_unique<FontInstallationStore>(preferences), std::move(installation)),
        preferences, std::make_unique<GivenFolders>(options.folders), std::move(catalogCache),
        folders, makeFolderWatcher(options), registrar});
    model->setViewMode(options.viewMode.value_or(model->viewMode()));
    SourceDisplaySettings display;
    display.colorMode = options.colorMode;
    display.browserPointSize = options.pointSize;
    display.sampleText = options.sampleText;
    model->setDisplayForThisRun(display);
    return model;
}

} // namespace

std::unique_ptr<CatalogCache> LorvaApplicationDelegate::beginReadingCatalog(
    const LaunchOptions &options)
{
    if (options.screenshot)
        return nullptr;
    auto cache = std::make_unique<CatalogCache>(xdgFolders().catalogSnapshot());
    cache->prefetch();
    return cache;
}

LorvaApplicationDelegate::LorvaApplicationDelegate(LaunchOptions options,
                                                   std::unique_ptr<CatalogCache> catalogCache)
    : m_options(std::move(options))
    , m_preferences(makePreferences(m_options, xdgFolders()))
    , m_model(makeModel(m_options, xdgFolders(), *m_preferences, std::move(catalogCache)))
    , m_windowFrameStore(*m_preferences)
{
    traceMoment("model made");
}

LorvaApplicationDelegate::~LorvaApplicationDelegate()
{
    // The window holds the model without owning it.
    m_window.reset();
}

void LorvaApplicationDelegate::applicationDidFinishLaunching()
{
    const TraceStage stage("start: window");
    if (m_options.screenshot)
        setReducedMotionOverride(true);
    buildWindow();
    placeWindow();
    watchFirstScreen();
    m_root->browser().setFocus();
    m_window->show();
    m_model->loadCatalog();
    connect(qApp, &QGuiApplication::applicationStateChanged, m_model.get(),
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    m_model->becomeActive();
            });
}

void LorvaApplicationDelegate::buildWindow()
{
    m_window = std::make_unique<QMainWindow>();
    m_window->setObjectName(QStringLiteral("LorvaMainWindow"));
    m_window->setWindowTitle(tr("All Fonts"));
    m_root = new LorvaRootSplitViewController(*m_model, m_window.get());
    m_window->setCentralWidget(m_root);
    m_window->installEventFilter(this);
    auto *quit = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), m_window.get());
    connect(quit, &QShortcut::activated, m_window.get(), &QWidget::close);
}

void LorvaApplicationDelegate::placeWindow()
{
    if (m_options.screenshot) {
        m_window->setFixedSize(m_options.windowSize);
        return;
    }
    m_window->setMinimumSize(kMinimumContentSize);
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QRect frame =
        mainWindowFrame(m_windowFrameStore.load(), screen ? screen->availableGeometry() : QRect(),
                        kMinimumContentSize, kWantedContentSize);
    m_window->setGeometry(frame);
}

bool LorvaApplicationDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == m_window.get() && !m_options.screenshot)
        m_windowFrameStore.save(m_window->normalGeometry().isValid() ? m_window->normalGeometry()
                                                                     : m_window->geometry());
    return QObject::eventFilter(watched, event);
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
        if (m_root->browser().isDrawn() && !std::exchange(m_specimensAreDrawn, true)) {
            m_window->repaint();
            traceMoment("specimens drawn");
        }
        if (!m_root->browser().isSettled())
            return;
        reportFirstScreen();
        if (m_options.screenshot && !isReadyForScreenshot())
            return;
        look->stop();
        look->deleteLater();
        if (m_options.screenshot)
            takeScreenshot();
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

bool LorvaApplicationDelegate::isReadyForScreenshot()
{
    if (m_model->isLoading())
        return false;
    // The result may not have been drawn yet.
    m_root->render();
    return m_root->browser().isSettled();
}

void LorvaApplicationDelegate::takeScreenshot()
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    const bool isEncoded = m_window->grab().toImage().save(&buffer, "PNG");
    const Result<void> written = isEncoded
        ? writeFileAtomically(*m_options.screenshot, png)
        : failure(ErrorKind::ioFailure, QStringLiteral("the picture could not be encoded"));
    if (!written)
        std::fprintf(stderr, "lorva: %s\n", qPrintable(written.error().detail));
    QCoreApplication::exit(written ? 0 : 1);
}

} // namespace lorva
