// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ActivationCommands.h"

#include "base/AtomicFile.h"
#include "base/RunThen.h"
#include "commands/ActivationTexts.h"
#include "commands/HistoryReport.h"
#include "commands/UndoableDeactivation.h"
#include "install/ActivationHistory.h"
#include "model/LorvaAppModel.h"

#include <QPointer>

#include <algorithm>

namespace lorva {

struct ActivationCommands::Request
{
    enum class Kind { activate, complete, deactivate };

    Kind kind = Kind::activate;
    QStringList names;
    /// Only this one's file.
    std::optional<FontStyleRecord> style;

    Request about(const QStringList &kept) const { return {kind, kept, style}; }
};

struct ActivationCommands::Plan
{
    std::vector<FontFamilyRecord> families;
    /// Families that share their files.
    QStringList others;
    /// Nothing that a de-activation throws away is the only copy.
    bool areOriginsKnown = true;

    QStringList names() const
    {
        QStringList names;
        for (const FontFamilyRecord &family : families)
            names.append(family.familyName);
        return names;
    }
};

namespace {

std::vector<FontFamilyRecord> familiesNamed(const QStringList &names,
                                            const std::vector<FontFamilyRecord> &catalog)
{
    const QSet<QString> wanted(names.begin(), names.end());
    std::vector<FontFamilyRecord> found;
    std::ranges::copy_if(catalog, std::back_inserter(found), [&](const FontFamilyRecord &family) {
        return wanted.contains(family.familyName);
    });
    return found;
}

bool holdsFile(const FontFamilyRecord &family, const std::optional<FilePath> &file)
{
    return std::ranges::find(family.styles, file, &FontStyleRecord::fileURL) != family.styles.end();
}

QStringList familiesHolding(const std::optional<FilePath> &file, const QStringList &but,
                            const std::vector<FontFamilyRecord> &catalog)
{
    QStringList names;
    for (const FontFamilyRecord &family : catalog)
        if (!but.contains(family.familyName) && holdsFile(family, file))
            names.append(family.familyName);
    return names;
}

void leaveOnly(const std::optional<FilePath> &file, std::vector<FontFamilyRecord> &families)
{
    for (FontFamilyRecord &family : families)
        std::erase_if(family.styles,
                      [&](const FontStyleRecord &style) { return style.fileURL != file; });
    std::erase_if(families, [](const FontFamilyRecord &family) { return family.styles.empty(); });
}

std::vector<FontStyleRecord> stylesOf(const std::vector<FontFamilyRecord> &families)
{
    std::vector<FontStyleRecord> styles;
    for (const FontFamilyRecord &family : families)
        styles.insert(styles.end(), family.styles.begin(), family.styles.end());
    return styles;
}

/// "Inter Bold": a style's own name says little.
QString styleName(const QString &familyName, const FontStyleRecord &style)
{
    return style.label.isEmpty() ? familyName : QString(familyName % u' ' % style.label);
}

} // namespace

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

void ActivationCommands::deactivateStyle(const QString &familyName, const FontStyleRecord &style)
{
    start({Request::Kind::deactivate, {familyName}, style});
}

ActivationOffer ActivationCommands::offer(const QStringList &familyNames) const
{
    ActivationOffer offer;
    for (const QString &name : familyNames)
        if (const FontFamilyRecord *family = m_model.family(name))
            offer.add(m_model.activation(*family));
    return offer;
}

// --- What a request comes to ---

void ActivationCommands::start(const Request &request)
{
    if (!m_model.installationService() || request.names.isEmpty() || !m_presenter.isAvailable())
        return;
    makePlan(request, [this, request](const Plan &plan) {
        if (request.kind == Request::Kind::deactivate)
            askDeactivation(request.about(plan.names()), plan);
        else
            chooseMethod(request.about(plan.names()), plan);
    });
}

/// `then` is called if there is something to be done; if not, the user is told.
void ActivationCommands::makePlan(const Request &request, std::function<void(const Plan &)> then)
{
    const auto work = [request, catalog = m_model.allFamilies(),
                       books = m_model.installationService()->books(),
                       library = &m_model.fontLibraryService()](const std::stop_token &) {
        Plan plan;
        std::vector<FontFamilyRecord> asked = familiesNamed(request.names, *catalog);
        if (request.style)
            leaveOnly(request.style->fileURL, asked);
        switch (request.kind) {
        case Request::Kind::activate:
            plan.families = familiesToActivate(asked, *books);
            break;
        case Request::Kind::complete:
            plan.families = familiesToComplete(asked, *books);
            break;
        case Request::Kind::deactivate:
            plan.families = familiesToDeactivate(asked, *books);
            plan.areOriginsKnown = books->areAllOriginsKnown(stylesOf(plan.families));
            break;
        }
        if (request.style)
            plan.others = familiesHolding(request.style->fileURL, request.names, *catalog);
        else if (!plan.families.empty())
            plan.others = library->familiesSharingFiles(plan.names());
        return plan;
    };
    runThen(m_pool, this, work, [this, request, then = std::move(then)](Plan found) {
        if (m_isFinishing)
            return;
        if (found.families.empty()) {
            m_presenter.showAlert(request.kind == Request::Kind::deactivate
                                      ? nothingToDeactivateAlert(request.names)
                                      : nothingToActivateAlert(request.names),
                                  {});
            return;
        }
        // What is being switched already is not switched twice, and there is nothing to say about.
        const Plan free = withoutThoseInFlight(std::move(found));
        if (!free.families.empty())
            then(free);
    });
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
    if (const auto method = m_model.installationService()->defaultMethod()) {
        runActivation(plan, *method);
        return;
    }
    const InstallMethodQuestion question{activationLabel(request.names),
                                         activationNote(request.names.size(), plan.others)};
    m_presenter.askInstallMethod(
        question,
        [self = QPointer(this), request](std::optional<InstallMethod> method, bool remember) {
            if (!self || !method)
                return;
            if (remember)
                self->m_model.installationService()->setDefaultMethod(method);
            // The library may have become another one while the sheet was open.
            self->makePlan(request,
                           [self, method](const Plan &now) { self->runActivation(now, *method); });
        });
}

void ActivationCommands::runActivation(const Plan &plan, InstallMethod method)
{
    const QString label = activationLabel(plan.names());
    const auto begin = [families = plan.families, method](FontInstallationService &service,
                                                          auto done, auto progress) {
        return method == InstallMethod::copy
            ? service.activateByCopying(families, std::move(done), std::move(progress))
            : service.activateInPlace(families, std::move(done), std::move(progress));
    };
    const auto words = [label](int done, int total) {
        return activationProgress(label, done, total);
    };
    run(begin, words, [this, label](const InstallationOutcome &outcome) {
        m_presenter.showAlert(activationAlert(label, outcome), {});
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
        ? styleDeactivationQuestion(styleName(request.names.front(), *request.style), note)
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
        ? unknownStyleOriginQuestion(styleName(request.names.front(), *request.style), note)
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
        const QString label = request.style ? styleName(request.names.front(), *request.style)
                                            : deactivationLabel(plan.names());
        runDeactivation(plan, label, destination,
                        [this, label, names = plan.names()](const InstallationOutcome &outcome) {
                            if (!outcome.withdrawn.isEmpty())
                                pushUndo(label, names, outcome.withdrawn);
                            m_presenter.showAlert(deactivationAlert(label, outcome), {});
                        });
    });
}

void ActivationCommands::runDeactivation(const Plan &plan, const QString &label,
                                         const std::optional<FilePath> &destination, Outcome then)
{
    const auto begin = [families = plan.families, destination](FontInstallationService &service,
                                                               auto done, auto progress) {
        return service.deactivate(families, destination, std::move(done), std::move(progress));
    };
    const auto words = [label](int done, int total) {
        return deactivationProgress(label, done, total);
    };
    run(begin, words, std::move(then));
}

// --- Undo ---

void ActivationCommands::pushUndo(const QString &label, const QStringList &names,
                                  const WithdrawnFonts &withdrawn)
{
    const auto record = std::make_shared<DeactivationRecord>(
        DeactivationRecord{label, names, withdrawn, false, false});
    const QPointer<ActivationCommands> self(this);
    m_model.undoStack().push(new UndoableDeactivation(
        record,
        [self, record] {
            if (self)
                self->restore(record);
        },
        [self, record] {
            if (self)
                self->repeat(record);
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
    run(begin, words, [this, record](const InstallationOutcome &outcome) {
        record->isPending = false;
        if (const std::optional<Alert> alert = restorationAlert(record->label, outcome))
            m_presenter.showAlert(*alert, {});
    });
}

/// Without asking again, unless something would be lost.
void ActivationCommands::repeat(const std::shared_ptr<DeactivationRecord> &record)
{
    record->withdrawn = {};
    record->isPending = true;
    const Request request{Request::Kind::deactivate, record->names, std::nullopt};
    makePlan(request, [this, record, request](const Plan &plan) {
        if (!plan.areOriginsKnown) {
            record->isPending = false;
            dropStaleUndo();
            askDestination(request.about(plan.names()), plan);
            return;
        }
        runDeactivation(
            plan, record->label, std::nullopt, [this, record](const InstallationOutcome &outcome) {
                record->withdrawn = outcome.withdrawn;
                record->isPending = false;
                if (!outcome.failures.empty() || !outcome.filesLeft.empty())
                    m_presenter.showAlert(deactivationAlert(record->label, outcome), {});
                dropStaleUndo();
            });
    });
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
    const auto done = [self = QPointer(this), live,
                       then = std::move(then)](const InstallationOutcome &outcome) {
        live->display.reset();
        if (self)
            self->ended(outcome, then);
    };
    const auto progress = [live, words](int filesDone, int total) {
        if (live->display)
            live->display->update(words(filesDone, total));
    };
    live->run = begin(*m_model.installationService(), done, progress);
    Q_EMIT changed();
}

void ActivationCommands::ended(const InstallationOutcome &outcome, const Outcome &then)
{
    --m_runs;
    if (!outcome.failures.empty())
        m_failures = outcome.failures;
    // Another command was quicker: there is nothing to tell about none.
    const bool hasTakenPart = !outcome.families.isEmpty();
    if (hasTakenPart && !m_isFinishing)
        then(outcome);
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
