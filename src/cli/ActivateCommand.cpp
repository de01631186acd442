// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/SwitchingCommand.h"
#include "cli/Texts.h"
#include "commands/ActivationPlans.h"
#include "commands/ActivationTexts.h"
#include "model/records/RecordsJson.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl activate [OPTION]... FAMILY|FILE...",
                     "lorvactl activate [OPTION]... -",
                     "lorvactl activate [OPTION]... --collection NAME"},
                    21)
        .paragraph(
            Texts::tr("Makes fonts of watched folders, and font files, available to every program. "
                      "One line for each file: \"copied\", \"registered\" or, when a file of its "
                      "name is there already, \"skipped\"; a tab; the file. \"also\", a tab, a "
                      "family: it has faces in these files, too. Nothing is replaced."))
        .paragraph(Texts::tr("A word with a slash is a file, every other one a family; a lone - "
                             "reads families from standard input, one per line."))
        .entries({{"--method copy",
                   Texts::tr("copy the files into your Fonts folder: works even if the originals "
                             "move or go offline")},
                  {"--method register",
                   Texts::tr("activate them where they are, for as long as they stay there")},
                  {"", Texts::tr("(without --method, the one chosen as the default)")},
                  {"--collection NAME",
                   Texts::tr("the families of this collection; may be given more than once")},
                  {"--folder DIR",
                   Texts::tr("take in the fonts below DIR too; may be given more than once")},
                  {"--dry-run", Texts::tr("only tell what would be done")},
                  {"--json", Texts::tr("one JSON object instead of lines")},
                  helpEntry()});
}

/// The method given, else the one stored.
Result<InstallMethod> wantedMethod(const Arguments &arguments,
                                   const FontInstallationService &service)
{
    if (const std::optional<QByteArray> name = arguments.value("--method")) {
        if (const auto method = installMethodFromName(QString::fromUtf8(*name)))
            return *method;
        return failure(ErrorKind::usage, Texts::tr("--method takes copy or register"));
    }
    if (const auto stored = service.defaultMethod())
        return *stored;
    return failure(ErrorKind::usage,
                   Texts::tr("activate needs --method copy or --method register, as no "
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
        : SwitchingCommand("activate", help, "--method")
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
