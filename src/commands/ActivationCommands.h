// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/ActivationPlans.h"
#include "commands/CommandPresenter.h"
#include "install/FontInstallationService.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

namespace lorva {

class LorvaAppModel;
struct ActivationPlan;
struct ActivationRequest;
struct DeactivationRecord;
struct GivenFonts;

/// What the user does to switch fonts on and off: decides which families take part, asks what has
/// to be asked, has the service do it and tells what became of it. A de-activation to the Trash can
/// be undone on the model's undo stack.
///
/// Looks at the disk on a worker. A command that is given while another waits for an answer or runs
/// is done as well: families that are being switched are left out of it. Holds the model and the
/// presenter, which outlive it; does nothing without an installation service. Thread: main.
class ActivationCommands final : public QObject
{
    Q_OBJECT
public:
    ActivationCommands(LorvaAppModel &model, CommandPresenter &presenter,
                       QObject *parent = nullptr);
    ~ActivationCommands() override;

    /// From now on names stand for the families of these files and not for the library's; null: the
    /// library's again. What was asked before stays as it was asked.
    void setGivenFonts(std::shared_ptr<const GivenFonts> given) { m_given = std::move(given); }

    /// Unknown names are left out, here and below.
    void activate(const QStringList &familyNames);
    void activateRemaining(const QStringList &familyNames);
    void deactivate(const QStringList &familyNames);
    /// The style's file; other styles in that file go with it.
    void activateStyle(const QString &familyName, const FontStyleRecord &style);
    /// The style's file; other styles in that file go with it.
    void deactivateStyle(const QString &familyName, const FontStyleRecord &style);

    bool hasFailures() const { return !m_failures.empty(); }
    /// Which files failed when some did last, and why.
    void showFailures();
    /// What was switched when, with an export.
    void showHistory();

    /// True while a run is under way or waits.
    bool isRunning() const { return m_runs > 0; }
    /// Ends every run after the file that it is at, and calls `done` when the books say what was
    /// done; at once when nothing runs.
    /// Nothing that was asked for before begins any more.
    void finish(std::function<void()> done);
    /// Takes commands again after finish(), whose `done` is not called any more.
    void resume();
    /// Nobody looks at the fonts any more that commands were given for: what has not begun is not
    /// done, and of what runs only failures are kept. Questions that are open are the presenter's.
    void forgetRequests() { ++m_edition; }
    /// Takes de-activations off the undo stack whose files have left the Trash. Looks on a worker.
    void refreshUndo();

Q_SIGNALS:
    /// hasFailures() or isRunning() may have changed.
    void changed();

private:
    using Request = ActivationRequest;
    using Plan = ActivationPlan;
    /// Does what follows, and gives what is to be told.
    using Outcome = std::function<std::optional<Alert>(const InstallationOutcome &)>;

    void start(Request request);
    void makePlan(const Request &request, std::function<void(const Plan &)> then,
                  std::function<void()> otherwise = {});
    void tellNothing(const Request &request);
    void tellFailures(const Request &request, const Plan &plan);
    Plan withoutThoseInFlight(Plan plan) const;
    void chooseMethod(const Request &request, const Plan &plan);
    void runActivation(const Plan &plan, const QString &label, InstallMethod method);
    void askDeactivation(const Request &request, const Plan &plan);
    void confirmDeactivation(const Request &request, const Plan &plan);
    void askDestination(const Request &request, const Plan &plan);
    void deactivateAgain(const Request &request, const std::optional<FilePath> &destination);
    void runDeactivation(const Plan &plan, const QString &label,
                         const std::optional<FilePath> &destination, Outcome then);
    void pushUndo(const QString &label, const Request &done, const WithdrawnFonts &withdrawn);
    void restore(const std::shared_ptr<DeactivationRecord> &record);
    void repeat(const std::shared_ptr<DeactivationRecord> &record, const Request &request);
    void dropStaleUndo();

    /// Called before run() returns.
    using Begin = std::function<FontInstallationService::Run(
        FontInstallationService &service, FontInstallationService::Done done,
        FontInstallationService::Progress progress)>;
    using Words = std::function<ProgressState(int done, int total)>;
    void run(const Begin &begin, const Words &words, Outcome then);
    void ended(const InstallationOutcome &outcome, const Outcome &then, int edition);
    void saveHistory(const FilePath &target);

    LorvaAppModel &m_model;
    CommandPresenter &m_presenter;
    std::shared_ptr<const GivenFonts> m_given;
    /// Of the last run in which a file failed.
    InstallationFailures m_failures;
    int m_runs = 0;
    /// Grows with forgetRequests().
    int m_edition = 0;
    bool m_isFinishing = false;
    /// Waits for the runs to end.
    std::function<void()> m_finished;
    QThreadPool m_pool;
};

} // namespace lorva
