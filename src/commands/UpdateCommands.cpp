// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/UpdateCommands.h"

#include "commands/UpdateAlerts.h"

#include <utility>

namespace lorva {

UpdateCommands::UpdateCommands(UpdaterController &updater, CommandPresenter &presenter,
                               std::shared_ptr<DesktopOpener> desktop, QString runningVersion,
                               QObject *parent)
    : QObject(parent)
    , m_updater(updater)
    , m_presenter(presenter)
    , m_desktop(std::move(desktop))
    , m_runningVersion(std::move(runningVersion))
{
    m_updater.onOutcome = [this](const UpdateOutcome &outcome) { tell(outcome); };
}

UpdateCommands::~UpdateCommands()
{
    m_updater.onOutcome = nullptr;
}

void UpdateCommands::start()
{
    m_isStarted = true;
    if (const Result<void> started = m_updater.start(); !started) {
        m_failure = started.error();
        // Without a category: the line is the same on every system.
        qWarning("Sparkle updater failed to start: %s", qUtf8Printable(m_failure->detail));
    }
    Q_EMIT changed();
}

bool UpdateCommands::canCheckForUpdates() const
{
    return m_isStarted && (m_failure || m_updater.canCheckForUpdates());
}

void UpdateCommands::checkForUpdates()
{
    if (!canCheckForUpdates())
        return;
    if (m_failure) {
        m_presenter.showAlert(noUpdatesAlert(m_failure), {});
        return;
    }
    showProgress();
    m_updater.checkForUpdates();
    Q_EMIT changed();
}

void UpdateCommands::showProgress()
{
    // It is the progress's own button that was pressed.
    const auto cancel = [this] {
        QMetaObject::invokeMethod(
            this, [this] { cancelCheck(); }, Qt::QueuedConnection);
    };
    m_progress =
        m_presenter.showProgress({tr("Looking for a newer release…"), std::nullopt}, cancel);
}

/// Does nothing when the outcome came first.
void UpdateCommands::cancelCheck()
{
    if (!m_progress)
        return;
    m_updater.cancelCheck();
    m_progress.reset();
    Q_EMIT changed();
}

void UpdateCommands::tell(const UpdateOutcome &outcome)
{
    m_progress.reset();
    Q_EMIT changed();
    m_presenter.showAlert(
        updateAlert(outcome, m_runningVersion), [desktop = m_desktop, outcome](int button) {
            const bool isWanted = outcome.kind == UpdateOutcome::Kind::newer && button == 0;
            if (isWanted && outcome.release && desktop)
                desktop->openLink(outcome.release->page);
        });
}

} // namespace lorva
