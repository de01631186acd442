// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ActivationCommands.h"

#include "base/AtomicFile.h"
#include "base/RunThen.h"
#include "commands/ActivationRequest.h"
#include "commands/ActivationTexts.h"
#include "commands/GivenFonts.h"
#include "commands/HistoryReport.h"
#include "commands/UndoableDeactivation.h"
#include "install/ActivationHistory.h"
#include "model/LorvaAppModel.h"

#include <QPointer>

#include <algorithm>

namespace lorva {

ActivationCommands::ActivationCommands(LorvaAppModel &model, CommandPresenter &presenter,
                                       QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_presenter(presenter)
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.commands"));
    m_pool.setMaxThreadCount(1);
    connect(&m_model.undoStack(), &QUndoStack::indexChanged, this,
            &ActivationCommands::dropStaleUndo, Qt::QueuedConnection);
}

/// What works at a plan uses the model's services, which outlive this.
ActivationCommands::~ActivationCommands()
{
    m_pool.waitForDone();
}

void ActivationCommands::activate(const QStringList &familyNames)
{
    start({Request::Kind::activate, familyNames, std::nullopt});
}

void ActivationCommands::activateRemaining(const QStringList &familyNames)
{
    start({Request::Kind::complete, familyNames, std::nullopt});
}

void ActivationCommands::deactivate(const QStringList &familyNames)
{
    start({Request::Kind::deactivate, familyNames, std::nullopt});
}

void ActivationCommands::activateStyle(const QString &familyName, const FontStyleRecord &style)
{
    start({Request::Kind::activate, {familyName}, style});
}

void ActivationCommands::deactivateStyle(const QString &familyName, const FontStyleRecord &style)
{
    start({Request::Kind::deactivate, {familyName}, style});
}

// --- What a request comes to ---

void ActivationCommands::start(Request request)
{
    request.given = m_given;
    if (!m_model.installationService() || request.names.isEmpty() || !m_presenter.isAvailable())
        return;
    makePlan(request, [this, request](const Plan &plan) {
        if (request.kind == Request::Kind::deactivate)
            askDeactivation(request.about(plan.names()), plan);
        else
            chooseMethod(request.about(plan.names()), plan);
    });
}

/// `then` is called if there is something to be done; if not, the user is told, unless nobody asks
/// any more, and `otherwise` is called, which may be empty.
void ActivationCommands::makePlan(const Request &request, std::function<void(const Plan &)> then,
                                  std::function<void()> otherwise)
{
    const auto work = [request, catalog = m_model.allFamilies(),
                       books = m_model.installationService()->books(),
                       library = &m_model.fontLibraryService()](const std::stop_token &) {
        return request.given ? planForGiven(request, *request.given, *books)
                             : planFor(request, *catalog, *books, *library);
    };
    runThen(m_pool, this, work,
            [this, request, then = std::move(then), otherwise = std::move(otherwise),
             edition = m_edition](Plan found) {
                if (m_isFinishing || edition != m_edition) {
                    if (otherwise)
                        otherwise();
                    return;
                }
                const bool isNothing = found.families.empty();
                // What is being switched already is not switched twice, and there is nothing to say
                // about.
                const Plan free = withoutThoseInFlight(std::move(found));
                if (!free.families.empty()) {
                    then(free);
                    return;
                }
                if (!free.failures.empty())
                    tellFailures(request, free);
                else if (isNothing)
                    tellNothing(request);
                if (otherwise)
                    otherwise();
            });
}

void ActivationCommands::tellNothing(const Request &request)
{
    const bool isDeactivation = request.kind == Request::Kind::deactivate;
    m_presenter.showAlert(isDeactivation ? nothingToDeactivateAlert(request.subjects())
                                         : nothingToActivateAlert(request.subjects()),
                          {});
}

/// All that is left of what was asked cannot be done.
void ActivationCommands::tellFailures(const Request &request, const Plan &plan)
{
    m_failures = plan.failures;
    InstallationOutcome outcome;
    outcome.failures = plan.failures;
    m_presenter.showAlert(activationAlert(activationLabel(request.subjects()), outcome), {});
    Q_EMIT changed();
}

ActivationCommands::Plan ActivationCommands::withoutThoseInFlight(Plan plan) const
{
    const FontInstallationService &service = *m_model.installationService();
    std::erase_if(plan.families, [&](const FontFamilyRecord &family) {
        return service.isInFlight(family.familyName);
    });
    return plan;
}

// --- Activation ---

void ActivationCommands::chooseMethod(const Request &request, const Plan &plan)
{
    const QString label = activationLabel(request.subjects());
    if (const auto method = m_model.installationService()->defaultMethod()) {
        runActivation(plan, label, *method);
        return;
    }
    const InstallMethodQuestion question{label, activationNote(request.names.size(), plan.others)};
    m_presenter.askInstallMethod(
        question,
        [self = QPointer(this), request](std::optional<InstallMethod> method, bool remember) {
            if (!self || !method)
                return;
            if (remember)
                self->m_model.installationService()->setDefaultMethod(method);
            // The library may have become another one while the sheet was open.
            self->makePlan(request, [self, request, method](const Plan &now) {
                const Request about = request.about(now.names());
                self->runActivation(now, activationLabel(about.subjects()), *method);
            });
        });
}

void ActivationCommands::runActivation(const Plan &plan, const QString &label, InstallMethod method)
{
    const auto begin = [&plan, method](FontInstallationService &service, auto done, auto progress) {
        return method == InstallMethod::copy
            ? service.activateByCopying(plan.families, std::move(done), std::move(progress))
            : service.activateInPlace(plan.families, std::move(done), std::move(progress));
    };
    const auto words = [label](int done, int total) {
        return activationProgress(label, done, total);
    };
    run(begin, words, [this, label, failures = plan.failures](InstallationOutcome outcome) {
        if (!failures.empty()) {
            outcome.failures.insert(failures.begin(), failures.end());
            m_failures = outcome.failures;
        }
        return activationAlert(label, outcome);
    });
}

// --- De-activation ---

void ActivationCommands::askDeactivation(const Request &request, const Plan &plan)
{
    if (plan.areOriginsKnown)
        confirmDeactivation(request, plan);
    else
        askDestination(request, plan);
}

void ActivationCommands::confirmDeactivation(const Request &request, const Plan &plan)
{
    const std::optional<QString> note = deactivationNote(request.names.size(), plan.others);
    const Alert question = request.style
        ? styleDeactivationQuestion(request.subjects().front(), note)
        : deactivationQuestion(request.names, note);
    m_presenter.showAlert(question, [self = QPointer(this), request](int button) {
        if (self && button == 0)
            self->deactivateAgain(request, std::nullopt);
    });
}

void ActivationCommands::askDestination(const Request &request, const Plan &plan)
{
    const std::optional<QString> note = deactivationNote(request.names.size(), plan.others);
    const Alert question = request.style
        ? unknownStyleOriginQuestion(request.subjects().front(), note)
        : unknownOriginQuestion(request.names, note);
    m_presenter.showAlert(question, [self = QPointer(this), request](int button) {
        if (!self || button != 0)
            return;
        self->m_presenter.askFolders(destinationQuestion(),
                                     [self, request](const std::vector<FilePath> &folders) {
                                         if (self && !folders.empty())
                                             self->deactivateAgain(request, folders.front());
                                     });
    });
}

/// The answer is here; what it was about may have changed since the question.
void ActivationCommands::deactivateAgain(const Request &request,
                                         const std::optional<FilePath> &destination)
{
    makePlan(request, [this, request, destination](const Plan &plan) {
        if (!destination && !plan.areOriginsKnown) {
            askDestination(request.about(plan.names()), plan);
            return;
        }
        const Request done = request.about(plan.names());
        const QString label = deactivationLabel(done.subjects());
        runDeactivation(plan, label, destination,
                        [this, label, done](const InstallationOutcome &outcome) {
                            if (!outcome.withdrawn.isEmpty())
                                pushUndo(label, done, outcome.withdrawn);
                            return deactivationAlert(label, outcome);
                        });
    });
}

void ActivationCommands::runDeactivation(const Plan &plan, const QString &label,
                                         const std::optional<FilePath> &destination, Outcome then)
{
    const auto begin = [&plan, &destination](FontInstallationService &service, auto done,
                                             auto progress) {
        return service.deactivate(plan.families, destination, std::move(done), std::move(progress));
    };
    const auto words = [label](int done, int total) {
        return deactivationProgress(label, done, total);
    };
    run(begin, words, std::move(then));
}

// --- Undo ---

void ActivationCommands::pushUndo(const QString &label, const Request &done,
                                  const WithdrawnFonts &withdrawn)
{
    const auto record = std::make_shared<DeactivationRecord>(
        DeactivationRecord{label, done.names, withdrawn, false, false});
    const QPointer<ActivationCommands> self(this);
    m_model.undoStack().push(new UndoableDeactivation(
        record,
        [self, record] {
            if (self)
                self->restore(record);
        },
        [self, record, done] {
            if (self)
                self->repeat(record, done);
        }));
}

void ActivationCommands::restore(const std::shared_ptr<DeactivationRecord> &record)
{
    record->isPending = true;
    const auto begin = [record](FontInstallationService &service, auto done, auto progress) {
        return service.restore(record->withdrawn, record->names, std::move(done),
                               std::move(progress));
    };
    const auto words = [label = record->label](int done, int total) {
        return restorationProgress(label, done, total);
    };
    run(begin, words, [record](const InstallationOutcome &outcome) {
        record->isPending = false;
        record->withdrawn = stillWithdrawn(std::move(record->withdrawn), outcome);
        return restorationAlert(record->label, outcome);
    });
}

/// Without asking again, unless something would be lost.
void ActivationCommands::repeat(const std::shared_ptr<DeactivationRecord> &record,
                                const Request &request)
{
    record->isPending = true;
    const auto end = [this, record] {
        record->isPending = false;
        dropStaleUndo();
    };
    const auto then = [this, record, request, end](const Plan &plan) {
        if (!plan.areOriginsKnown) {
            end();
            askDestination(request.about(plan.names()), plan);
            return;
        }
        runDeactivation(plan, record->label, std::nullopt,
                        [record, end](const InstallationOutcome &outcome) {
                            addWithdrawn(outcome.withdrawn, record->withdrawn);
                            end();
                            return outcome.failures.empty() && outcome.filesLeft.empty()
                                ? std::nullopt
                                : std::optional(deactivationAlert(record->label, outcome));
                        });
    };
    makePlan(request, then, end);
}

void ActivationCommands::refreshUndo()
{
    std::vector<std::shared_ptr<DeactivationRecord>> records;
    std::vector<WithdrawnFonts> withdrawn;
    const QUndoStack &stack = m_model.undoStack();
    for (int i = 0; i < stack.index(); ++i) {
        const auto record = UndoableDeactivation::recordOf(stack.command(i));
        if (record && !record->isPending) {
            records.push_back(record);
            withdrawn.push_back(record->withdrawn);
        }
    }
    if (records.empty())
        return;
    const auto look = [withdrawn](const std::stop_token &) {
        std::vector<bool> gone;
        gone.reserve(withdrawn.size());
        for (const WithdrawnFonts &each : withdrawn)
            gone.push_back(hasLeftTrash(each));
        return gone;
    };
    runThen(m_pool, this, look, [this, records](const std::vector<bool> &gone) {
        for (size_t i = 0; i < records.size(); ++i)
            records[i]->isGone = gone[i] && !records[i]->isPending;
        dropStaleUndo();
    });
}

void ActivationCommands::dropStaleUndo()
{
    QUndoStack &stack = m_model.undoStack();
    while (stack.canUndo()) {
        const auto record = UndoableDeactivation::recordOf(stack.command(stack.index() - 1));
        if (!record || record->isPending || !(record->isGone || record->withdrawn.isEmpty()))
            return;
        // It knows that there is nothing to undo, and leaves the stack.
        record->isGone = true;
        stack.undo();
    }
}

// --- Runs ---

void ActivationCommands::run(const Begin &begin, const Words &words, Outcome then)
{
    struct Live
    {
        std::unique_ptr<ProgressDisplay> display;
        FontInstallationService::Run run;
    };
    const auto live = std::make_shared<Live>();
    ++m_runs;
    live->display = m_presenter.showProgress(words(0, 0), [weak = std::weak_ptr(live)] {
        if (const auto running = weak.lock())
            running->run.cancel();
    });
    const auto done = [self = QPointer(this), live, then = std::move(then),
                       edition = m_edition](const InstallationOutcome &outcome) {
        live->display.reset();
        if (self)
            self->ended(outcome, then, edition);
    };
    const auto progress = [live, words](int filesDone, int total) {
        if (live->display)
            live->display->update(words(filesDone, total));
    };
    live->run = begin(*m_model.installationService(), done, progress);
    Q_EMIT changed();
}

void ActivationCommands::ended(const InstallationOutcome &outcome, const Outcome &then, int edition)
{
    --m_runs;
    if (!outcome.failures.empty())
        m_failures = outcome.failures;
    // Another command was quicker: there is nothing to tell about none.
    const bool hasTakenPart = !outcome.families.isEmpty() || !outcome.failures.empty();
    const std::optional<Alert> alert = hasTakenPart ? then(outcome) : std::nullopt;
    if (alert && !m_isFinishing && edition == m_edition)
        m_presenter.showAlert(*alert, {});
    Q_EMIT changed();
    if (m_runs == 0 && m_finished)
        std::exchange(m_finished, nullptr)();
}

void ActivationCommands::finish(std::function<void()> done)
{
    m_isFinishing = true;
    if (FontInstallationService *service = m_model.installationService())
        service->cancelRuns();
    if (m_runs == 0)
        done();
    else
        m_finished = std::move(done);
}

void ActivationCommands::resume()
{
    m_isFinishing = false;
    m_finished = nullptr;
}

// --- What was done ---

void ActivationCommands::showFailures()
{
    m_presenter.showReport(failuresReport(m_failures), {});
}

void ActivationCommands::showHistory()
{
    FontInstallationService *service = m_model.installationService();
    if (!service)
        return;
    const auto read =
        [file = service->books()->contents().folders.activationHistory()](const std::stop_token &) {
            return ActivationHistory(file).read().map(historyReport);
        };
    runThen(m_pool, this, read, [this](const Result<Report> &report) {
        if (report)
            m_presenter.showReport(*report, [self = QPointer(this)](const FilePath &target) {
                if (self)
                    self->saveHistory(target);
            });
        else
            m_presenter.showAlert(historyUnreadableAlert(report.error().detail), {});
    });
}

void ActivationCommands::saveHistory(const FilePath &target)
{
    const FilePath file =
        m_model.installationService()->books()->contents().folders.activationHistory();
    const auto write = [file, target](const std::stop_token &) -> Result<void> {
        const auto entries = ActivationHistory(file).read();
        if (!entries)
            return tl::unexpected(entries.error());
        return writeFileAtomically(target, historyAsCsv(*entries));
    };
    runThen(m_pool, this, write, [this](const Result<void> &written) {
        if (!written)
            m_presenter.showAlert(listNotSavedAlert(written.error().detail), {});
    });
}

} // namespace lorva
