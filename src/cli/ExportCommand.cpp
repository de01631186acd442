// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/OutputFile.h"
#include "cli/Texts.h"
#include "cli/UserOrganization.h"
#include "model/stores/OrganizationFile.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl export [-o FILE]"})
        .paragraph(Texts::tr("Writes collections, styles, what you said about foundries, and "
                             "display settings as one JSON document, for another machine or for "
                             "version control. Equal organisations give equal bytes."))
        .entries(
            {{"-o FILE",
              Texts::tr("the file to write, whole or not at all; standard output if not given")},
             helpEntry()});
}

Result<void> run(const Arguments &arguments)
{
    UserOrganization user;
    using Part = OrganizationPart;
    Result<Organization> organization =
        user.load({Part::collections, Part::styles, Part::foundries, Part::displaySettings});
    if (!organization)
        return tl::unexpected(organization.error());
    const OrganizationFile contents{*std::move(organization), user.displaySettings().all(), {}};
    if (const Result<void> checked = user.checkRead(); !checked)
        return checked;
    const Result<QByteArray> json = encodeOrganizationFile(contents);
    if (!json)
        return tl::unexpected(json.error());
    const std::optional<QByteArray> target = arguments.value("-o");
    if (!target) {
        print(*json);
        return {};
    }
    const FilePath file = FilePath::absolute(*target);
    const Result<void> checked = refuseFontFile(file);
    return checked ? writeFileAtomically(file, *json) : checked;
}

} // namespace

int runExportCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments =
        Arguments::parse(words, {{"--help", Value::none}, {"-h", Value::none}, {"-o"}});
    if (!arguments)
        return failUsage("export", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (!arguments->positional().empty() || arguments->value("-o") == QByteArray(""))
        return failUsage("export", Texts::tr("export takes a file as -o FILE"));
    if (const Result<void> done = run(*arguments); !done)
        return fail("export", done.error());
    return finish();
}

} // namespace lorva::cli
