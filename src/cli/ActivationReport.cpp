// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/ActivationReport.h"

#include "base/JsonWriter.h"
#include "cli/Console.h"
#include "cli/Words.h"

#include <algorithm>

namespace lorva::cli {

namespace {

void writeStrings(JsonWriter &out, std::string_view key, const QStringList &texts)
{
    out.key(key);
    out.beginArray();
    for (const QString &each : texts)
        out.string(each);
    out.endArray();
}

void writeFile(JsonWriter &out, const FilePath &file, std::string_view key, const QString &text)
{
    out.beginObject();
    out.key("fileURL");
    out.utf8(file.toUrl());
    out.key(key);
    out.string(text);
    out.endObject();
}

void printJson(const ActivationReport &report)
{
    JsonWriter out;
    out.beginObject();
    out.key("isDryRun");
    out.boolean(report.isDryRun);
    writeStrings(out, "families", report.families);
    writeStrings(out, "alsoFamilies", report.alsoFamilies);
    out.key("files");
    out.beginArray();
    for (const ActivationReport::File &each : report.files)
        writeFile(out, each.fileURL, "outcome", each.outcome);
    out.endArray();
    out.key("failures");
    out.beginArray();
    for (const auto &[file, reason] : report.failures)
        writeFile(out, file, "reason", reason);
    out.endArray();
    out.endObject();
    print(QByteArray(out.take() + '\n'));
}

void printLines(const ActivationReport &report, const QString &nothingToDo)
{
    const QString when = report.isDryRun ? QStringLiteral("would be ") : QString();
    for (const ActivationReport::File &each : report.files)
        printText(QString(when % each.outcome % u'\t' % singleLine(each.fileURL) % u'\n'));
    for (const QString &family : report.alsoFamilies)
        printText(QString(QStringLiteral("also\t") % singleLine(family) % u'\n'));
    if (report.files.empty() && report.failures.empty())
        printText(QString(singleLine(nothingToDo) % u'\n'));
}

} // namespace

QStringList familiesSharing(const std::vector<FilePath> &files, const QStringList &families,
                            const std::vector<FontFamilyRecord> &catalog)
{
    const QSet<FilePath> wanted(files.begin(), files.end());
    const auto isShared = [&](const FontStyleRecord &style) {
        return style.fileURL && wanted.contains(*style.fileURL);
    };
    QStringList sharing;
    for (const FontFamilyRecord &family : catalog) {
        if (!families.contains(family.familyName) && std::ranges::any_of(family.styles, isShared))
            sharing.push_back(family.familyName);
    }
    return sharing;
}

void addFiles(const std::vector<FilePath> &files, const QString &outcome, ActivationReport &report)
{
    for (const FilePath &file : files)
        report.files.push_back({file, outcome});
}

void addFailures(const InstallationFailures &failures, ActivationReport &report)
{
    for (const auto &[file, error] : failures)
        report.failures.emplace(file, error.description);
}

int printReport(const ActivationReport &report, bool isJson, const QString &nothingToDo)
{
    if (isJson)
        printJson(report);
    else
        printLines(report, nothingToDo);
    for (const auto &[file, reason] : report.failures)
        warn(aboutFile(file, reason));
    const int code = finish();
    return report.failures.empty() ? code : exitFailed;
}

} // namespace lorva::cli
