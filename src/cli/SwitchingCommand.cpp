// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/SwitchingCommand.h"

#include "cli/Console.h"
#include "cli/EnglishTexts.h"
#include "cli/Texts.h"

namespace lorva::cli {

SwitchingCommand::SwitchingCommand(std::string_view name, HelpText (*help)(), QByteArray option)
    : m_name(name)
    , m_help(help)
    , m_option(std::move(option))
{
}

SwitchingCommand::~SwitchingCommand() = default;

int SwitchingCommand::run(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--dry-run", Value::none},
                                                          {m_option},
                                                          {"--collection"},
                                                          {"--folder"}});
    if (!arguments)
        return failUsage(m_name, arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(m_help());
    const Result<int> code = perform(*arguments);
    return code ? *code : fail(m_name, code.error());
}

Result<int> SwitchingCommand::perform(const Arguments &arguments)
{
    using Part = OrganizationPart;
    const Result<ActivationRequest> request = activationRequest(arguments);
    if (!request)
        return tl::unexpected(request.error());
    if (request->isEmpty())
        return failure(ErrorKind::usage,
                       Texts::tr("%1 needs a family, a file or --collection")
                           .arg(QLatin1String(m_name.data(), qsizetype(m_name.size()))));
    UserActivation activation(purposeOf(*request));
    if (const auto checked = activation.checkChanged({Part::activation, Part::watchedFolders});
        !checked)
        return tl::unexpected(checked.error());
    if (const Result<void> read = readOption(arguments, activation); !read)
        return tl::unexpected(read.error());
    // A reason is told twice: in JSON, and on standard error.
    const auto english = englishFor(request->isJson);
    activation.reconcile();
    const Result<ActivationSubjects> found = findSubjects(*request, activation);
    if (!found)
        return tl::unexpected(found.error());
    const ActivationReport report = switchAll(*found, request->isDryRun, activation);
    // The books come first: writing to a pipe that is closed ends the process.
    const Result<void> written = activation.finishWriting();
    const int code = printReport(report, request->isJson, nothingToDo(found->names()));
    if (!written)
        return tl::unexpected(written.error());
    return code;
}

ActivationReport SwitchingCommand::switchAll(const ActivationSubjects &found, bool isDryRun,
                                             UserActivation &activation) const
{
    const std::shared_ptr<const ActivationBooks> books = activation.service().books();
    ActivationReport report;
    report.isDryRun = isDryRun;
    report.failures = found.unusableFiles;
    Families families = choose(found, *books, report.failures);
    const std::vector<FilePath> files = ActivationBooks::filesOf(families);
    report.families = namesOf(families);
    report.alsoFamilies = familiesSharing(files, report.families, found.catalog);
    if (isDryRun)
        plan(files, *books, report);
    else if (!files.empty())
        act(std::move(families), activation, report);
    return report;
}

std::vector<FontFamilyRecord> chosenFamilies(
    const ActivationSubjects &found, const ActivationBooks &books,
    const std::function<bool(const std::optional<FamilyActivationState> &)> &takesPart,
    const std::function<bool(const FilePath &)> &isChosen)
{
    std::vector<FontFamilyRecord> chosen;
    for (const ActivationSubject &each : found.subjects) {
        if (!takesPart(books.activationState(each.family)))
            continue;
        FontFamilyRecord family = each.family;
        std::erase_if(family.styles, [&](const FontStyleRecord &style) {
            return !style.fileURL || !isChosen(*style.fileURL);
        });
        if (!family.styles.empty())
            chosen.push_back(std::move(family));
    }
    return chosen;
}

} // namespace lorva::cli
