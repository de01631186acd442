// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/ActivationReport.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/UserActivation.h"

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl deactivate [OPTION]... FAMILY|FILE...\n"
    "       lorvactl deactivate [OPTION]... -\n"
    "       lorvactl deactivate [OPTION]... --collection NAME\n"
    "\n"
    "Withdraws fonts from all programs. Registrations end, and copies in the Fonts folder go to "
    "the\n"
    "Trash; your original files are not touched. Where Lorva does not know the original, the file\n"
    "stays unless --to says where it is to go. One line for each file: \"withdrawn\", \"trashed\" "
    "or\n"
    "\"moved\"; a tab; the file. \"also\", a tab, a family: it has faces in these files, too.\n"
    "\n"
    "A word with a slash is a file, every other one a family; a lone - reads families from "
    "standard\n"
    "input, one per line.\n"
    "\n"
    "  --to DIR           move the copies there instead, under a free name; made if it is missing\n"
    "  --collection NAME  the families of this collection; may be given more than once\n"
    "  --folder DIR       take in the fonts below DIR too; may be given more than once\n"
    "  --dry-run          only tell what would be done\n"
    "  --json             one JSON object instead of lines\n"
    "  --help             show this help\n";

using Class = FileActivationClass;

Result<std::optional<FilePath>> givenDestination(const Arguments &arguments)
{
    const std::optional<QByteArray> word = arguments.value("--to");
    if (!word)
        return std::nullopt;
    if (word->isEmpty())
        return failure(ErrorKind::usage, QStringLiteral("--to needs the name of a folder"));
    return FilePath::absolute(*word);
}

bool isSwitchable(Class meaning)
{
    return meaning == Class::copied || meaning == Class::registered;
}

/// The entry that would be removed may be the only copy there is. One that must not be removed
/// fails in the run, with its own reason.
bool mayBeOnlyCopy(const FilePath &file, const ActivationBooks &books)
{
    if (books.classify(file) != Class::copied)
        return false;
    const Result<FilePath> entry = books.fontsFolderEntry(file);
    return entry && !books.contents().origins.contains(*entry);
}

/// The families that take part, each with its styles whose files are to be switched off.
std::vector<FontFamilyRecord> chosenFamilies(const ActivationSubjects &found,
                                             const ActivationBooks &books, bool hasDestination,
                                             FileReasons &failures)
{
    const QString reason =
        QStringLiteral("Lorva didn't install it, so the original is not known; --to DIR moves it");
    const auto isLeftAlone = [&](const FontStyleRecord &style) {
        if (!style.fileURL || !isSwitchable(books.classify(*style.fileURL)))
            return true;
        if (hasDestination || !mayBeOnlyCopy(*style.fileURL, books))
            return false;
        failures.emplace(*style.fileURL, reason);
        return true;
    };
    std::vector<FontFamilyRecord> chosen;
    for (const ActivationSubject &each : found.subjects) {
        const auto state = books.activationState(each.family);
        if (!state || !state->method)
            continue;
        FontFamilyRecord family = each.family;
        std::erase_if(family.styles, isLeftAlone);
        if (!family.styles.empty())
            chosen.push_back(std::move(family));
    }
    return chosen;
}

/// What becomes of each file, said before the books change.
ActivationReport planned(const std::vector<FilePath> &files, const ActivationBooks &books,
                         bool hasDestination)
{
    const QString removed = hasDestination ? QStringLiteral("moved") : QStringLiteral("trashed");
    ActivationReport plan;
    for (const FilePath &file : files) {
        const bool isCopy = books.classify(file) == Class::copied;
        const Result<FilePath> entry = isCopy ? books.fontsFolderEntry(file) : file;
        if (entry)
            plan.files.push_back({file, isCopy ? removed : QStringLiteral("withdrawn")});
        else
            plan.failures.emplace(file, entry.error().detail);
    }
    return plan;
}

void keepOnly(const std::vector<FilePath> &done, ActivationReport &plan)
{
    const QSet<FilePath> kept(done.begin(), done.end());
    std::erase_if(plan.files,
                  [&](const ActivationReport::File &each) { return !kept.contains(each.fileURL); });
}

QString nothingToDo(const QStringList &asked)
{
    return asked.size() == 1
        ? QStringLiteral("No user-controllable active fonts in %1.").arg(asked.front())
        : QStringLiteral("No user-controllable active fonts in the selection.");
}

/// Chooses, acts and prints.
int deactivate(const ActivationSubjects &found, const ActivationRequest &request,
               const std::optional<FilePath> &destination, UserActivation &activation)
{
    const std::shared_ptr<const ActivationBooks> books = activation.service().books();
    FileReasons failures = found.unusableFiles;
    std::vector<FontFamilyRecord> families =
        chosenFamilies(found, *books, destination.has_value(), failures);
    const std::vector<FilePath> files = filesOf(families);
    ActivationReport report = planned(files, *books, destination.has_value());
    report.isDryRun = request.isDryRun;
    report.families = namesOf(families);
    report.alsoFamilies = familiesSharing(files, report.families, found.catalog);
    if (!request.isDryRun && !files.empty()) {
        const auto outcome = activation.run([&](FontInstallationService::Done done) {
            activation.service().deactivate(std::move(families), destination, std::move(done));
        });
        keepOnly(outcome.filesDone, report);
        report.failures.clear();
        addFailures(outcome.failures, report);
    }
    report.failures.merge(failures);
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
                       QStringLiteral("deactivate needs a family, a file or --collection"));
    const auto destination = givenDestination(arguments);
    if (!destination)
        return tl::unexpected(destination.error());
    UserActivation activation(purposeOf(*request));
    if (const auto checked = activation.checkChanged({Part::activation, Part::watchedFolders});
        !checked)
        return tl::unexpected(checked.error());
    activation.reconcile();
    const Result<ActivationSubjects> found = findSubjects(*request, activation);
    if (!found)
        return tl::unexpected(found.error());
    const int code = deactivate(*found, *request, *destination, activation);
    if (const Result<void> written = activation.finishWriting(); !written)
        return tl::unexpected(written.error());
    return code;
}

} // namespace

int runDeactivateCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--dry-run", Value::none},
                                                          {"--to"},
                                                          {"--collection"},
                                                          {"--folder"}});
    if (!arguments)
        return failUsage("deactivate", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    const Result<int> code = run(*arguments);
    return code ? *code : fail("deactivate", code.error());
}

} // namespace lorva::cli
