// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/RunHistory.h"

#include <QLoggingCategory>
#include <QSet>

Q_LOGGING_CATEGORY(activationHistoryLog, "lorva.install.history", QtCriticalMsg)

namespace lorva {

namespace {

using File = ActivationHistoryEntry::File;

/// What became of each file, by its path.
QHash<FilePath, File::Fate> fatesOf(const InstallationOutcome &outcome)
{
    QHash<FilePath, File::Fate> fates;
    for (const FilePath &file : outcome.filesDone)
        fates.insert(file, File::Fate::done);
    for (const FilePath &file : outcome.filesSkipped)
        fates.insert(file, File::Fate::skipped);
    for (const FilePath &file : outcome.filesLeft)
        fates.insert(file, File::Fate::left);
    return fates;
}

std::vector<File> historyFiles(const std::vector<FilePath> &files,
                               const InstallationOutcome &outcome)
{
    const QHash<FilePath, File::Fate> fates = fatesOf(outcome);
    std::vector<File> found;
    for (const FilePath &file : files) {
        const auto failed = outcome.failures.find(file);
        const auto fate = fates.constFind(file);
        if (failed != outcome.failures.end())
            found.push_back({file, File::Fate::failed, failed->second.description});
        else if (fate != fates.cend())
            found.push_back({file, *fate, {}});
    }
    return found;
}

} // namespace

void addToHistory(ActivationHistoryEntry entry, const std::vector<FilePath> &files,
                  const InstallationOutcome &outcome, const FilePath &historyFile)
{
    entry.files = historyFiles(files, outcome);
    if (entry.files.empty())
        return;
    entry.when = QDateTime::currentDateTimeUtc();
    if (const auto written = ActivationHistory(historyFile).append(entry); !written)
        qCWarning(activationHistoryLog).noquote() << written.error().detail;
}

} // namespace lorva
