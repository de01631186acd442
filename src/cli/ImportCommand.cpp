// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"
#include "base/WholeFile.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/EditText.h"
#include "cli/Input.h"
#include "cli/UserOrganization.h"
#include "model/stores/OrganizationFile.h"
#include "platform/linux/XdgFolders.h"

#include <QDateTime>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl import FILE [--replace] [--dry-run]\n"
    "\n"
    "Takes in what lorvactl export wrote; a lone - reads standard input. Collections and style\n"
    "categories of the same id or name take the file's families in, others come anew, and what "
    "the\n"
    "file says about foundries and display settings wins; nothing is taken away. Families that "
    "this\n"
    "machine lacks stay members, for when their fonts come. Tells what changed, one line each. "
    "Done\n"
    "whole or not at all.\n"
    "\n"
    "  --replace      make collections, styles and foundries what the file says and nothing else;\n"
    "                 what was there is first written to a file beside the preferences\n"
    "  --dry-run      only tell what would change\n"
    "  --help         show this help\n";

enum class Mode { merge, replace };

struct Plan
{
    OrganizationFile file;
    Mode mode = Mode::merge;
};

/// What an import did, or would do.
struct Report
{
    Result<void> result;
    QStringList lines;
    /// What was there before; only where something was replaced.
    std::optional<FilePath> backup;
};

Result<OrganizationFile> readFile(const QByteArray &word)
{
    const bool isInput = word == "-";
    const FilePath path = FilePath::absolute(word);
    const Result<QByteArray> bytes = isInput ? readStandardInput(OrganizationFile::kMostBytes)
                                             : readWholeFile(path, OrganizationFile::kMostBytes);
    if (!bytes)
        return tl::unexpected(bytes.error());
    Result<OrganizationFile> file = decodeOrganizationFile(*bytes);
    if (!file)
        return failure(file.error().kind,
                       QStringLiteral("%1: %2").arg(isInput ? QStringLiteral("standard input")
                                                            : path.displayText(),
                                                    file.error().detail));
    return file;
}

Organization organizationAfter(const Plan &plan, const Organization &before)
{
    if (plan.mode == Mode::replace)
        return plan.file.organization;
    Organization after = before;
    merge(plan.file.organization, after);
    return after;
}

using SettingsBySource = std::map<QString, SourceDisplaySettings>;

/// Those that differ from what is stored.
SettingsBySource newSettings(const Plan &plan, const Organization &after,
                             const SettingsBySource &stored)
{
    SettingsBySource settings = plan.mode == Mode::replace
        ? plan.file.displaySettings
        : mergedDisplaySettings(plan.file, after);
    std::erase_if(settings, [&](const auto &entry) {
        const auto found = stored.find(entry.first);
        return found != stored.end() && found->second == entry.second;
    });
    return settings;
}

QStringList reportLines(const OrganizationEdit &edit, const Organization &after,
                        const SettingsBySource &settings)
{
    QStringList lines = editLines(edit, after);
    for (const auto &entry : settings)
        lines.push_back(QStringLiteral("display settings of \"%1\": taken in").arg(entry.first));
    return lines;
}

FilePath freeBackupName()
{
    const FilePath folder = xdgFolders().applicationSupport;
    const QByteArray date = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss").toLatin1();
    const QByteArray base = "organization-before-import-" + date;
    FilePath file = folder.child(QByteArray(base + ".json"));
    struct stat info;
    for (int count = 2; ::lstat(file.c_str(), &info) == 0; ++count)
        file = folder.child(QByteArray(base + '-' + QByteArray::number(count) + ".json"));
    return file;
}

Result<void> writeBackup(UserOrganization &user, const Organization &before, Report &report)
{
    const FilePath file = freeBackupName();
    const QByteArray json = encodeOrganizationFile({before, user.displaySettings().all()});
    const Result<void> written = writeFileAtomically(file, json);
    if (written)
        report.backup = file;
    return written;
}

/// Within a transaction: what is told is what is done.
void importNow(UserOrganization &user, const Plan &plan, Report &report)
{
    const Organization before = user.organization().load();
    const Organization after = organizationAfter(plan, before);
    const OrganizationEdit edit = difference(before, after);
    const SettingsBySource settings = newSettings(plan, after, user.displaySettings().all());
    report.lines = reportLines(edit, after, settings);
    // It runs once more, in memory, when it could not be written.
    if (plan.mode == Mode::replace && !report.lines.isEmpty() && !report.backup)
        report.result = writeBackup(user, before, report);
    if (!report.result)
        return;
    const auto outcome = user.organization().change([after](Organization &organization) {
        organization = after;
        return Result<void>();
    });
    if (!outcome) {
        report.result = tl::unexpected(outcome.error());
        return;
    }
    for (const auto &[key, value] : settings)
        user.displaySettings().set(value, key);
}

Report importFile(const Plan &plan)
{
    UserOrganization user;
    const auto report = std::make_shared<Report>();
    user.preferences().inTransaction([&user, plan, report] { importNow(user, plan, *report); });
    if (report->result)
        report->result = user.checkWritten();
    if (!report->result && report->backup)
        ::unlink(report->backup->c_str());
    return *report;
}

Report tryImport(const Plan &plan)
{
    UserOrganization user;
    const Result<Organization> before = user.load();
    if (!before)
        return {tl::unexpected(before.error()), {}, {}};
    const Organization after = organizationAfter(plan, *before);
    return {{},
            reportLines(difference(*before, after), after,
                        newSettings(plan, after, user.displaySettings().all())),
            {}};
}

Result<void> run(const Arguments &arguments)
{
    Result<OrganizationFile> file = readFile(arguments.positional().front());
    if (!file)
        return tl::unexpected(file.error());
    const Plan plan{*std::move(file), arguments.has("--replace") ? Mode::replace : Mode::merge};
    const Report report = arguments.has("--dry-run") ? tryImport(plan) : importFile(plan);
    if (!report.result)
        return report.result;
    for (const QString &line : report.lines)
        printText(QString(singleLine(line) + u'\n'));
    if (report.lines.isEmpty())
        print("nothing to change\n");
    if (report.backup)
        printText(QStringLiteral("what was there: %1\n").arg(singleLine(*report.backup)));
    return {};
}

} // namespace

int runImportCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--replace", Value::none},
                                                          {"--dry-run", Value::none}});
    if (!arguments)
        return failUsage("import", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    if (arguments->positional().size() != 1 || arguments->positional().front().isEmpty())
        return failUsage("import", QStringLiteral("import takes one file"));
    if (const Result<void> done = run(*arguments); !done)
        return fail("import", done.error());
    return finish();
}

} // namespace lorva::cli
