// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/SwitchingCommand.h"
#include "commands/ActivationPlans.h"
#include "commands/ActivationTexts.h"
#include "model/records/RecordsJson.h"

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
    "                     (without --method, the one chosen as the default)\n"
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
                   QStringLiteral("activate needs --method copy or --method register, as no "
                                  "default is chosen"));
}

/// Somebody who gave a file must not be told that it is active when only its name is.
void refuseStrangeNamesakes(const ActivationSubjects &found, const ActivationBooks &books,
                            FileReasons &failures)
{
    for (const ActivationSubject &each : found.subjects) {
        if (!each.givenFile || books.classify(*each.givenFile) != FileActivationClass::copied)
            continue;
        if (const auto entry = books.fontsFolderEntry(*each.givenFile); !entry)
            failures.emplace(*each.givenFile, entry.error().detail);
    }
}

class ActivateCommand final : public SwitchingCommand
{
public:
    ActivateCommand()
        : SwitchingCommand("activate", kHelp, "--method")
    {
    }

protected:
    Result<void> readOption(const Arguments &arguments, UserActivation &activation) override
    {
        const Result<InstallMethod> method = wantedMethod(arguments, activation.service());
        if (!method)
            return tl::unexpected(method.error());
        m_method = *method;
        return {};
    }

    Families choose(const ActivationSubjects &found, const ActivationBooks &books,
                    FileReasons &failures) const override
    {
        refuseStrangeNamesakes(found, books, failures);
        return chosenFamilies(found, books, takesPartInActivation, [&](const FilePath &file) {
            return books.classify(file) == FileActivationClass::watchedInactive;
        });
    }

    void plan(const std::vector<FilePath> &files, const ActivationBooks &,
              ActivationReport &report) const override
    {
        addFiles(files, pastWord(), report);
    }

    void act(Families families, UserActivation &activation, ActivationReport &report) const override
    {
        FontInstallationService &service = activation.service();
        const auto outcome = activation.run([&](FontInstallationService::Done done) {
            if (m_method == InstallMethod::copy)
                service.activateByCopying(std::move(families), std::move(done));
            else
                service.activateInPlace(std::move(families), std::move(done));
        });
        addFiles(outcome.filesDone, pastWord(), report);
        addFiles(outcome.filesSkipped, QStringLiteral("skipped"), report);
        addFailures(outcome.failures, report);
    }

    QString nothingToDo(const QStringList &asked) const override
    {
        return nothingToActivateAlert(asked).body;
    }

private:
    QString pastWord() const
    {
        return m_method == InstallMethod::copy ? QStringLiteral("copied")
                                               : QStringLiteral("registered");
    }

    InstallMethod m_method = InstallMethod::copy;
};

} // namespace

int runActivateCommand(std::span<const QByteArray> words)
{
    return ActivateCommand().run(words);
}

} // namespace lorva::cli
