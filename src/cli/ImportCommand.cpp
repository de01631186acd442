// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"
#include "base/WholeFile.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/EditText.h"
#include "cli/Help.h"
#include "cli/Input.h"
#include "cli/Texts.h"
#include "cli/UserOrganization.h"
#include "cli/Words.h"
#include "model/stores/OrganizationFile.h"
#include "platform/linux/XdgFolders.h"

#include <QDateTime>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl import FILE [--replace] [--dry-run]"})
        .paragraph(Texts::tr(
            "Takes in what lorvactl export wrote; a lone - reads standard input. Collections and "
            "styles of the same id or name take the file's families in, others come anew, and what "
            "the file says about foundries and display settings wins; nothing is taken away. "
            "Families that this machine lacks stay members, for when their fonts come. Tells what "
            "changed, one line each. Done whole or not at all."))
        .entries(
            {{"--replace",
              Texts::tr("make collections, styles and foundries what the file says and nothing "
                        "else; what was there is first written to a file beside the preferences; "
                        "the window no longer sorts families into styles by itself")},
             {"--dry-run", Texts::tr("only tell what would change")},
             helpEntry()});
}

enum class Mode { merge, replace };

struct Plan
{
    OrganizationFile file;
    Mode mode = Mode::merge;
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
        return failure(
            file.error().kind,
            Texts::tr("%1: %2").arg(isInput ? Texts::tr("standard input") : path.displayText(),
                                    file.error().detail));
    return file;
}

using SettingsBySource = std::map<QString, SourceDisplaySettings>;

/// What an import comes to, in what is stored at that moment.
struct Steps
{
    Organization before;
    Organization after;
    SettingsBySource settingsBefore;
    /// Those that differ from what is stored.
    SettingsBySource newSettings;
    std::vector<UnreadablePart> unreadable;
    /// Those of them that the import replaces.
    std::vector<UnreadablePart> replaced;
    QStringList lines;
};

Organization organizationAfter(const Plan &plan, const Organization &before)
{
    if (plan.mode == Mode::replace)
        return plan.file.organization;
    Organization after = before;
    merge(plan.file.organization, after);
    return after;
}

SettingsBySource newSettings(const Plan &plan, const Steps &steps)
{
    SettingsBySource settings = plan.mode == Mode::replace
        ? plan.file.displaySettings
        : mergedDisplaySettings(plan.file, steps.after);
    std::erase_if(settings, [&](const auto &entry) {
        const auto found = steps.settingsBefore.find(entry.first);
        return found != steps.settingsBefore.end() && found->second == entry.second;
    });
    return settings;
}

/// What the file says takes the place of what cannot be read, also where it says nothing.
QStringList mendedLines(const std::vector<UnreadablePart> &parts)
{
    QStringList lines;
    for (const UnreadablePart &each : parts)
        lines.push_back(Texts::tr("preference %1: made anew").arg(each.key));
    return lines;
}

Steps stepsOf(Plan plan, UserOrganization &user)
{
    Steps steps;
    steps.unreadable = unreadableParts(user.preferences());
    steps.before = user.organization().load();
    adoptIDs(plan.file, steps.before);
    steps.after = organizationAfter(plan, steps.before);
    steps.settingsBefore = user.displaySettings().all();
    steps.newSettings = newSettings(plan, steps);
    const OrganizationEdit edit = difference(steps.before, steps.after);
    steps.lines = editLines(edit, steps.after);
    for (const auto &entry : steps.newSettings)
        steps.lines.push_back(displaySettingsLine(entry.first, steps.after));
    if (plan.mode == Mode::replace) {
        steps.replaced = steps.unreadable;
        steps.lines += mendedLines(steps.replaced);
    } else {
        steps.replaced = replacedParts(steps.unreadable, edit, !steps.newSettings.empty());
    }
    return steps;
}

/// What an import did, or would do.
struct Report
{
    Result<void> result;
    Steps steps;
    /// What was there before; only where something was replaced.
    std::optional<FilePath> backup;
};

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

Result<void> writeBackup(const Steps &steps, Report &report)
{
    const FilePath file = freeBackupName();
    const Result<QByteArray> json =
        encodeOrganizationFile({steps.before, steps.settingsBefore, {}});
    if (!json)
        return tl::unexpected(json.error());
    const Result<void> written = writeFileAtomically(file, *json);
    if (written)
        report.backup = file;
    return written;
}

/// Makes the steps, in the transaction in which they were found.
Result<void> take(const Steps &steps, UserOrganization &user)
{
    const auto outcome = user.organization().change([&](Organization &organization) {
        organization = steps.after;
        return Result<void>();
    });
    if (!outcome)
        return tl::unexpected(outcome.error());
    for (const auto &[key, value] : steps.newSettings)
        user.displaySettings().set(value, key);
    return {};
}

/// What a file that says everything does beyond its entries.
void finishReplacing(UserOrganization &user)
{
    for (const UnreadablePart &each : unreadableParts(user.preferences())) {
        // What the file says was shown there already, for want of anything that can be read.
        user.preferences().keepUnreadable(each.key);
        user.preferences().remove(each.key);
    }
    // Else the window, at its first start, would add to the styles what it makes of the names.
    user.styles().setClassified();
}

/// Within a transaction: what is told is what is done.
void importNow(UserOrganization &user, const Plan &plan, Report &report)
{
    report.steps = stepsOf(plan, user);
    // It runs once more, in memory, when it could not be written.
    const bool wantsBackup = plan.mode == Mode::replace && !report.steps.lines.isEmpty();
    if (wantsBackup && !report.backup)
        report.result = writeBackup(report.steps, report);
    if (report.result)
        report.result = take(report.steps, user);
    if (report.result && plan.mode == Mode::replace)
        finishReplacing(user);
}

void warnOfReplaced(const Report &report, const PreferenceStore &preferences)
{
    for (const UnreadablePart &each : report.steps.replaced)
        warn(textOfKept(each, preferences));
    if (!report.backup || report.steps.unreadable.empty())
        return;
    QStringList keys;
    for (const UnreadablePart &each : report.steps.unreadable)
        keys.push_back(each.key);
    warn(Texts::tr("%1 lacks what could not be read: %2")
             .arg(report.backup->displayText(), listed(keys)));
}

Report importFile(const Plan &plan)
{
    UserOrganization user;
    Report report;
    report.result = user.checkRead();
    if (!report.result)
        return report;
    // Runs again, if at all, before this returns: nothing here asks for what waits to be written.
    user.preferences().inTransaction([&] { importNow(user, plan, report); });
    if (report.result)
        report.result = user.checkRead();
    if (report.result)
        report.result = user.checkWritten();
    if (report.result)
        warnOfReplaced(report, user.preferences());
    else if (report.backup)
        ::unlink(report.backup->c_str());
    return report;
}

Report tryImport(const Plan &plan)
{
    UserOrganization user;
    Report report;
    report.result = user.checkRead();
    if (!report.result)
        return report;
    report.steps = stepsOf(plan, user);
    report.result = user.checkRead();
    for (const UnreadablePart &each : report.steps.replaced) {
        if (report.result)
            warn(Texts::tr("%1; what stands there would be kept").arg(textOf(each)));
    }
    return report;
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
    for (const QString &line : report.steps.lines)
        printText(QString(singleLine(line) + u'\n'));
    if (report.steps.lines.isEmpty())
        printText(QString(Texts::tr("nothing to change") % u'\n'));
    if (report.backup)
        printText(QString(Texts::tr("what was there: %1").arg(singleLine(*report.backup)) % u'\n'));
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
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (arguments->positional().size() != 1 || arguments->positional().front().isEmpty())
        return failUsage("import", Texts::tr("import takes one file"));
    if (const Result<void> done = run(*arguments); !done)
        return fail("import", done.error());
    return finish();
}

} // namespace lorva::cli
