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
    m_isCancelled = false;
    const auto cancel = [this] {
        m_isCancelled = true;
        // It is its own button that was pressed.
        QMetaObject::invokeMethod(
            this, [this] { m_progress.reset(); }, Qt::QueuedConnection);
    };
    m_progress =
        m_presenter.showProgress({tr("Looking for a newer release…"), std::nullopt}, cancel);
}

void UpdateCommands::tell(const UpdateOutcome &outcome)
{
    m_progress.reset();
    Q_EMIT changed();
    if (m_isCancelled)
        return;
    m_presenter.showAlert(
        updateAlert(outcome, m_runningVersion), [desktop = m_desktop, outcome](int button) {
            const bool isWanted = outcome.kind == UpdateOutcome::Kind::newer && button == 0;
            if (isWanted && outcome.release && desktop)
                desktop->openLink(outcome.release->page);
        });
}

} // namespace lorva
