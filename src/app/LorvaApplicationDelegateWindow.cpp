// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Where the library's window stands, and when it and the program end.

#include "app/LorvaApplicationDelegate.h"
#include "app/WindowPlacement.h"
#include "install/FontInstallationService.h"
#include "model/stores/WindowGeometry.h"
#include "ui/LorvaRootSplitViewController.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

#include <chrono>
#include <utility>

namespace lorva {

namespace {

/// After the last of the moves of a window that is dragged.
constexpr std::chrono::milliseconds kFrameRest{500};
constexpr std::chrono::milliseconds kClosePatience{5000};

std::vector<QRect> visibleFrames()
{
    std::vector<QRect> frames;
    for (const QScreen *screen : QGuiApplication::screens())
        frames.push_back(screen->availableGeometry());
    return frames;
}

} // namespace

void LorvaApplicationDelegate::placeWindow()
{
    if (m_options.screenshot) {
        m_window->setFixedSize(m_options.windowSize.value_or(LaunchOptions::kWindowSize));
        return;
    }
    m_window->setMinimumSize(kMinimumContentSize);
    const QScreen *screen = QGuiApplication::primaryScreen();
    const std::optional<QRect> saved = plausibleFrame(m_windowFrameStore.load());
    const QRect frame = mainWindowFrame(saved, screen ? screen->availableGeometry() : QRect(),
                                        kMinimumContentSize, kWantedContentSize);
    m_window->setGeometry(saved ? keptReachable(frame, visibleFrames()) : frame);
    // Not only when it is closed: a session that ends, or a crash, does not ask.
    m_frameRest.setSingleShot(true);
    m_frameRest.setInterval(kFrameRest);
    connect(&m_frameRest, &QTimer::timeout, this, &LorvaApplicationDelegate::saveFrame);
    m_window->installEventFilter(this);
}

void LorvaApplicationDelegate::saveFrame()
{
    m_frameRest.stop();
    const QRect normal = m_window->normalGeometry();
    m_windowFrameStore.save(normal.isValid() ? normal : m_window->geometry());
}

bool LorvaApplicationDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window.get())
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Close) {
        saveFrame();
        if (!closesNow()) {
            event->ignore();
            return true;
        }
        m_closePatience.stop();
        if (m_files.isWindowOpen())
            stopClosing();
    } else if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        m_frameRest.start();
    return QObject::eventFilter(watched, event);
}

/// A window that is still switching fonts stays until they are done, and the program with it.
void LorvaApplicationDelegate::quit()
{
    if (m_files.isWindowOpen())
        m_files.window()->close();
    if (m_window)
        m_window->close();
}

/// The file that is being copied is finished and written down first. A disk that hangs is not
/// waited for: the next start brings the books into line.
bool LorvaApplicationDelegate::closesNow()
{
    // The program goes on while files are open.
    if (m_isClosing || m_files.isWindowOpen() || !isSwitching())
        return true;
    m_isClosing = true;
    m_window->setEnabled(false);
    m_root->activation().finish([this] {
        QMetaObject::invokeMethod(this, &LorvaApplicationDelegate::closeWhenDone,
                                  Qt::QueuedConnection);
    });
    m_closePatience.start(kClosePatience);
    return false;
}

/// Fonts, whichever window began it.
bool LorvaApplicationDelegate::isSwitching() const
{
    const FontInstallationService *service = m_model->installationService();
    return service && service->hasRuns();
}

/// Either window may wait for the runs of both.
void LorvaApplicationDelegate::watchRuns(const ActivationCommands &commands) const
{
    connect(&commands, &ActivationCommands::changed, this, &LorvaApplicationDelegate::closeWhenDone,
            Qt::QueuedConnection);
}

void LorvaApplicationDelegate::closeWhenDone()
{
    if (m_isClosing && !isSwitching())
        m_window->close();
    if (m_files.window())
        m_files.window()->closeWhenDone();
}

/// The window is wanted again, or has closed while the program goes on.
void LorvaApplicationDelegate::stopClosing()
{
    m_closePatience.stop();
    if (!std::exchange(m_isClosing, false))
        return;
    m_window->setEnabled(true);
    m_root->activation().resume();
}

} // namespace lorva
