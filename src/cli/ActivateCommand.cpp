// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/ActivationReport.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/UserActivation.h"
#include "model/records/RecordsJson.h"

#include <algorithm>

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl activate [OPTION]... FAMILY|FILE...\n"
    "       lorvactl activate [OPTION]... -\n"
    "       lorvactl activate [OPTION]... --collection NAME\n"
    "\n"
    "Makes fonts of watched folders, and font files, available to every program. One line for "
    "each\n"
    "file: \"copied\", \"registered\" or, when a file of its name is there already, \"skipped\"; a "
    "tab;\n"
    "the file. \"also\", a tab, a family: it has faces in these files, too. Nothing is replaced.\n"
    "\n"
    "A word with a slash is a file, every other one a family; a lone - reads families from "
    "standard\n"
    "input, one per line.\n"
    "\n"
    "  --method copy      copy the files into your Fonts folder: works even if the originals move\n"
    "                     or go offline\n"
    "  --method register  activate them where they are, for as long as they stay there\n"
    "                     (without --method, what you have chosen for all times)\n"
    "  --collection NAME  the families of this collection; may be given more than once\n"
    "  --folder DIR       take in the fonts below DIR too; may be given more than once\n"
    "  --dry-run          only tell what would be done\n"
    "  --json             one JSON object instead of lines\n"
    "  --help             show this help\n";

/// The method given, else the one stored.
Result<InstallMethod> wantedMethod(const Arguments &arguments,
                                   const FontInstallationService &service)
{
    if (const std::optional<QByteArray> name = arguments.value("--method")) {
        if (const auto method = installMethodFromName(QString::fromUtf8(*name)))
            return *method;
        return failure(ErrorKind::usage, QStringLiteral("--method takes copy or register"));
    }
    if (const auto stored = service.defaultMethod())
        return *stored;
    return failure(ErrorKind::usage,
                   QStringLiteral("activate needs --method copy or --method register, as none is "
                                  "chosen for all times"));
}

/// Families that are active through the system are left alone, and those that are so as a whole.
bool takesPart(const std::optional<FamilyActivationState> &state)
{
    return !state || (state->method && state->isPartlyInactive);
}

/// Somebody who gave a file must not be told that it is active when only its name is.
bool hasStrangeNamesake(const FilePath &file, const ActivationBooks &books)
{
    return books.classify(file) == FileActivationClass::copied && !books.fontsFolderEntry(file);
}

/// The families that take part, each with its styles whose files are to be switched on.
std::vector<FontFamilyRecord> chosenFamilies(const ActivationSubjects &found,
                                             const ActivationBooks &books, FileReasons &failures)
{
    std::vector<FontFamilyRecord> chosen;
    for (const ActivationSubject &each : found.subjects) {
        if (each.givenFile && hasStrangeNamesake(*each.givenFile, books))
            failures.emplace(*each.givenFile,
                             books.fontsFolderEntry(*each.givenFile).error().detail);
        if (!takesPart(books.activationState(each.family)))
            continue;
        FontFamilyRecord family = each.family;
        std::erase_if(family.styles, [&](const FontStyleRecord &style) {
            return !style.fileURL
                || books.classify(*style.fileURL) != FileActivationClass::watchedInactive;
        });
        if (!family.styles.empty())
            chosen.push_back(std::move(family));
    }
    return chosen;
}

QString pastWord(InstallMethod method)
{
    return method == InstallMethod::copy ? QStringLiteral("copied") : QStringLiteral("registered");
}

QString nothingToDo(const QStringList &asked)
{
    return asked.size() == 1
        ? QStringLiteral("Every user-controllable font in %1 is already active.").arg(asked.front())
        : QStringLiteral("Every selected font is already active.");
}

void activateAll(std::vector<FontFamilyRecord> families, InstallMethod method,
                 UserActivation &activation, ActivationReport &report)
{
    const InstallationOutcome outcome = activation.run([&](FontInstallationService::Done done) {
        if (method == InstallMethod::copy)
            activation.service().activateByCopying(std::move(families), std::move(done));
        else
            activation.service().activateInPlace(std::move(families), std::move(done));
    });
    addFiles(outcome.filesDone, pastWord(method), report);
    addFiles(outcome.filesSkipped, QStringLiteral("skipped"), report);
    addFailures(outcome.failures, report);
}

/// Chooses, acts and prints.
int activate(ActivationSubjects found, const ActivationRequest &request, InstallMethod method,
             UserActivation &activation)
{
    ActivationReport report;
    report.isDryRun = request.isDryRun;
    report.failures = std::move(found.unusableFiles);
    std::vector<FontFamilyRecord> families =
        chosenFamilies(found, *activation.service().books(), report.failures);
    const std::vector<FilePath> files = filesOf(families);
    report.families = namesOf(families);
    report.alsoFamilies = familiesSharing(files, report.families, found.catalog);
    if (request.isDryRun)
        addFiles(files, pastWord(method), report);
    else if (!files.empty())
        activateAll(std::move(families), method, activation, report);
    return printReport(report, request.isJson, nothingToDo(found.names()));
}

Result<int> run(const Arguments &arguments)
{
    using Part = OrganizationPart;
    const Result<ActivationRequest> request = activationRequest(arguments);
    if (!request)
        return tl::unexpected(request.error());
    if (request->isEmpty())
        return failure(ErrorKind::usage,
                       QStringLiteral("activate needs a family, a file or --collection"));
    UserActivation activation(purposeOf(*request));
    if (const auto checked = activation.checkChanged({Part::activation, Part::watchedFolders});
        !checked)
        return tl::unexpected(checked.error());
    const Result<InstallMethod> method = wantedMethod(arguments, activation.service());
    if (!method)
        return tl::unexpected(method.error());
    activation.reconcile();
    Result<ActivationSubjects> found = findSubjects(*request, activation);
    if (!found)
        return tl::unexpected(found.error());
    const int code = activate(*std::move(found), *request, *method, activation);
    if (const Result<void> written = activation.finishWriting(); !written)
        return tl::unexpected(written.error());
    return code;
}

} // namespace

int runActivateCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--dry-run", Value::none},
                                                          {"--method"},
                                                          {"--collection"},
                                                          {"--folder"}});
    if (!arguments)
        return failUsage("activate", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    const Result<int> code = run(*arguments);
    return code ? *code : fail("activate", code.error());
}

} // namespace lorva::cli
