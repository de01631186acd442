// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/SwitchingCommand.h"
#include "cli/Texts.h"
#include "commands/ActivationPlans.h"
#include "commands/ActivationTexts.h"
#include "install/InstallationRuns.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl deactivate [OPTION]... FAMILY|FILE...",
                     "lorvactl deactivate [OPTION]... -",
                     "lorvactl deactivate [OPTION]... --collection NAME"},
                    21)
        .paragraph(Texts::tr(
            "Withdraws fonts from all programs. Registrations end, and copies in the Fonts folder "
            "go to the Trash; your original files are not touched. Where Lorva does not know the "
            "original, the file stays unless --to says where it is to go. One line for each file: "
            "\"withdrawn\", \"trashed\" or \"moved\"; a tab; the file. \"also\", a tab, a family: "
            "it has faces in these files, too."))
        .paragraph(Texts::tr("A word with a slash is a file, every other one a family; a lone - "
                             "reads families from standard input, one per line."))
        .entries(
            {{"--to DIR",
              Texts::tr("move the copies there instead, under a free name; made if it is missing")},
             {"--collection NAME",
              Texts::tr("the families of this collection; may be given more than once")},
             {"--folder DIR",
              Texts::tr("take in the fonts below DIR too; may be given more than once")},
             {"--dry-run", Texts::tr("only tell what would be done")},
             {"--json", Texts::tr("one JSON object instead of lines")},
             helpEntry()});
}

using Class = FileActivationClass;

Result<std::optional<FilePath>> givenDestination(const Arguments &arguments,
                                                 const PlatformFolders &folders)
{
    const std::optional<QByteArray> word = arguments.value("--to");
    if (!word)
        return std::nullopt;
    if (word->isEmpty())
        return failure(ErrorKind::usage, Texts::tr("--to needs the name of a folder"));
    const FilePath destination = FilePath::absolute(*word);
    if (const Result<void> checked = checkDestination(destination, folders); !checked)
        return tl::unexpected(checked.error());
    return destination;
}

/// The entry that would be removed, if it may be the only copy there is. One that must not be
/// removed fails in the run, with its own reason.
std::optional<FilePath> onlyCopy(const FilePath &file, const ActivationBooks &books)
{
    if (books.classify(file) != Class::copied)
        return std::nullopt;
    const Result<FilePath> entry = books.fontsFolderEntry(file);
    const bool mayBeOnlyOne = entry && !books.isOriginKnown(*entry);
    return mayBeOnlyOne ? std::optional(*entry) : std::nullopt;
}

class DeactivateCommand final : public SwitchingCommand
{
public:
    DeactivateCommand()
        : SwitchingCommand("deactivate", help, "--to")
    {
    }

protected:
    Result<void> readOption(const Arguments &arguments, UserActivation &activation) override
    {
        Result<std::optional<FilePath>> given = givenDestination(arguments, activation.folders());
        if (!given)
            return tl::unexpected(given.error());
        m_destination = *std::move(given);
        return {};
    }

    Families choose(const ActivationSubjects &found, const ActivationBooks &books,
                    FileReasons &failures) const override
    {
        const QString reason =
            Texts::tr("Lorva didn't install it, so the original is not known; --to DIR moves it");
        return chosenFamilies(found, books, takesPartInDeactivation, [&](const FilePath &file) {
            const Class meaning = books.classify(file);
            if (meaning != Class::copied && meaning != Class::registered)
                return false;
            const std::optional<FilePath> only =
                m_destination ? std::nullopt : onlyCopy(file, books);
            if (only)
                failures.emplace(*only, reason);
            return !only;
        });
    }

    void plan(const std::vector<FilePath> &files, const ActivationBooks &books,
              ActivationReport &report) const override
    {
        addFates(files, fatesOf(files, books, report.failures), report);
    }

    void act(Families families, UserActivation &activation, ActivationReport &report) const override
    {
        FileReasons toldByTheRun;
        const Fates fates = fatesOf(ActivationBooks::filesOf(families),
                                    *activation.service().books(), toldByTheRun);
        const auto outcome = activation.run([&](FontInstallationService::Done done) {
            activation.service().deactivate(std::move(families), m_destination, std::move(done));
        });
        addFates(outcome.filesDone, fates, report);
        addFailures(outcome.failures, report);
    }

    QString nothingToDo(const QStringList &asked) const override
    {
        return nothingToDeactivateAlert(asked).body;
    }

private:
    /// What goes for the sake of each file, and where: of an original its copy.
    using Fates = std::map<FilePath, ActivationReport::File>;

    Fates fatesOf(const std::vector<FilePath> &files, const ActivationBooks &books,
                  FileReasons &failures) const
    {
        const QString removed = m_destination ? QStringLiteral("moved") : QStringLiteral("trashed");
        Fates fates;
        for (const FilePath &file : files) {
            const bool isCopy = books.classify(file) == Class::copied;
            const Result<FilePath> entry = isCopy ? books.fontsFolderEntry(file) : file;
            if (entry)
                fates.emplace(
                    file,
                    ActivationReport::File{*entry, isCopy ? removed : QStringLiteral("withdrawn")});
            else
                failures.emplace(file, entry.error().detail);
        }
        return fates;
    }

    /// A copy once, also when it was given together with its original.
    static void addFates(const std::vector<FilePath> &files, const Fates &fates,
                         ActivationReport &report)
    {
        QSet<FilePath> told;
        for (const FilePath &file : files) {
            const auto fate = fates.find(file);
            if (fate == fates.end() || told.contains(fate->second.fileURL))
                continue;
            told.insert(fate->second.fileURL);
            report.files.push_back(fate->second);
        }
    }

    std::optional<FilePath> m_destination;
};

} // namespace

int runDeactivateCommand(std::span<const QByteArray> words)
{
    return DeactivateCommand().run(words);
}

} // namespace lorva::cli
