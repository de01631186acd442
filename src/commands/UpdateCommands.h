// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"
#include "platform/DesktopOpener.h"
#include "platform/UpdaterController.h"

#include <QObject>

#include <memory>
#include <optional>

namespace lorva {

/// The user asks whether there is a newer release, and is told.
///
/// Holds updater and presenter, which outlive it. Thread: main.
class UpdateCommands final : public QObject
{
    Q_OBJECT
public:
    /// `desktop` opens the release's page; null: nothing is opened.
    UpdateCommands(UpdaterController &updater, CommandPresenter &presenter,
                   std::shared_ptr<DesktopOpener> desktop, QString runningVersion,
                   QObject *parent = nullptr);
    ~UpdateCommands() override;

    /// Once, when the program may begin to look. What it fails with goes to the system log, and to
    /// users who ask.
    void start();
    /// False before start(), and while a look runs.
    bool canCheckForUpdates() const;
    /// Looks, shows that it does where it takes long, and tells what came of it.
    void checkForUpdates();

Q_SIGNALS:
    /// Whether the user can ask now.
    void changed();

private:
    void showProgress();
    void cancelCheck();
    void tell(const UpdateOutcome &outcome);

    UpdaterController &m_updater;
    CommandPresenter &m_presenter;
    const std::shared_ptr<DesktopOpener> m_desktop;
    const QString m_runningVersion;
    bool m_isStarted = false;
    /// What starting failed with.
    std::optional<Error> m_failure;
    std::unique_ptr<ProgressDisplay> m_progress;
};

} // namespace lorva
