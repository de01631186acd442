// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What other starts, file managers and the bus hand over, and what is opened besides the library.

#include "app/LorvaApplicationDelegate.h"
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/FontconfigOrthographies.h"
#include "platform/linux/FontconfigSystemFont.h"
#include "platform/linux/XdgDesktopOpener.h"
#include "platform/linux/XdgFolders.h"
#include "ui/sheets/AlertSheet.h"

#include <QTimer>

#include <chrono>

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kSettleLook{4};

} // namespace

FontFilesServices LorvaApplicationDelegate::filesServices()
{
    return {std::make_shared<FontconfigAvailableFonts>(xdgFolders().registeredLinks()),
            std::make_shared<FontconfigSystemFont>(), std::make_shared<FontconfigOrthographies>(),
            std::make_shared<XdgDesktopOpener>()};
}

void LorvaApplicationDelegate::connectFiles()
{
    m_callPatience.setSingleShot(true);
    connect(&m_callPatience, &QTimer::timeout, this, &LorvaApplicationDelegate::openLibrary);
    m_files.onFolders = [this](const std::vector<FilePath> &folders, bool hasFiles) {
        openLibrary();
        m_model->addFoldersForThisRun(folders);
        if (!hasFiles)
            presentLibrary();
    };
    m_files.onQuitWanted = [this] { quit(); };
    m_files.onWindowMade = [this](FontFilesWindow &window) {
        watchRuns(window.activation());
        window.mustWait = [this] { return !(m_window && m_window->isVisible()) && isSwitching(); };
    };
    m_files.onLibraryWanted = [this](const QString &family) { showInLibrary(family); };
}

void LorvaApplicationDelegate::openPlaces(const LaunchOptions &options,
                                          const QByteArray &activationToken)
{
    if (opensPlaces(options))
        m_files.open({options.places, options.foreignPlaces, activationToken});
}

void LorvaApplicationDelegate::takeFilesPicture()
{
    m_files.setFixedWindowSize(m_options.windowSize.value_or(FontFilesWindow::kStandardSize));
    auto *look = new QTimer(this);
    connect(look, &QTimer::timeout, this, [this, look] {
        FontFilesWindow *shown = m_files.window();
        if (!shown || !shown->isSettled())
            return;
        look->stop();
        writePictureAndEnd(*shown, *m_options.screenshot);
    });
    look->start(kSettleLook);
}

void LorvaApplicationDelegate::takeOver(const ProgramStart &start)
{
    m_callPatience.stop();
    std::vector<const char *> arguments;
    for (const QByteArray &argument : start.arguments)
        arguments.push_back(argument.constData());
    const auto options = parseLaunchOptions(arguments, start.workingFolder);
    if (options && opensPlacesAlone(*options)) {
        openPlaces(*options, start.activationToken);
        return;
    }
    openLibrary();
    // A question that is open comes first: it is about what is shown now.
    if (options && !hasAlertSheet(*m_window)) {
        applyChoices(*options);
        applyDetailChoices(*options);
        openWantedQuiz();
    }
    if (options)
        m_model->addFoldersForThisRun(options->folders);
    // Of what is to be opened besides, that comes to the front.
    if (!options || !opensPlaces(*options))
        useActivationToken(start.activationToken);
    presentLibrary();
    if (options)
        openPlaces(*options, start.activationToken);
}

void LorvaApplicationDelegate::presentLibrary()
{
    stopClosing();
    // While the welcome is shown, the window cannot be seen.
    QWidget *overlay = m_onboardingController ? m_onboardingController->overlay() : nullptr;
    QWidget *front = overlay ? overlay->window() : m_window.get();
    front->setWindowState(front->windowState() & ~Qt::WindowMinimized);
    // It may have been closed while files were open.
    front->show();
    front->raise();
    front->activateWindow();
}

void LorvaApplicationDelegate::showInLibrary(const QString &familyName)
{
    openLibrary();
    presentLibrary();
    if (familyName.isEmpty() || hasAlertSheet(*m_window))
        return;
    LaunchOptions wanted;
    wanted.source = LaunchSource{BrowserSource::Kind::allFonts, {}};
    wanted.searchText = QString();
    wanted.selectedFamily = familyName;
    m_model->openDetail(std::nullopt);
    applyChoices(wanted);
}

} // namespace lorva
