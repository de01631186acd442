// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/HistoryReport.h"

#include "commands/ActivationTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace lorva {

namespace {

using Action = ActivationHistoryEntry::Action;
using Fate = ActivationHistoryEntry::File::Fate;

QString text(const char *source)
{
    return QCoreApplication::translate("HistoryReport", source);
}

QString counted(const char *one, const char *many, qsizetype number)
{
    const QString chosen = QCoreApplication::translate("HistoryReport", number == 1 ? one : many,
                                                       nullptr, int(number));
    return chosen.arg(QLocale().toString(number));
}

bool cameToAnything(const ActivationHistoryEntry &entry)
{
    return std::ranges::any_of(entry.files, [](const ActivationHistoryEntry::File &file) {
        return file.fate == Fate::done || file.fate == Fate::skipped;
    });
}

QString titleOf(const ActivationHistoryEntry &entry)
{
    const QString names = listOfNames(entry.families);
    const bool isDone = cameToAnything(entry);
    switch (entry.action) {
    case Action::copied:
    case Action::registered:
        return (isDone ? text("Activated %1") : text("Tried to activate %1")).arg(names);
    case Action::deactivated:
    case Action::moved:
        return (isDone ? text("De-activated %1") : text("Tried to de-activate %1")).arg(names);
    case Action::restored:
        return (isDone ? text("Brought back %1") : text("Tried to bring back %1")).arg(names);
    }
    return names;
}

QString methodOf(const ActivationHistoryEntry &entry)
{
    switch (entry.action) {
    case Action::copied:
        return text("Copied to the Fonts folder");
    case Action::registered:
        return text("Registered in place");
    case Action::deactivated:
        return text("Copies to the Trash, registrations withdrawn");
    case Action::moved:
        return entry.destination ? text("Moved to %1").arg(entry.destination->displayText())
                                 : text("Moved");
    case Action::restored:
        return text("De-activation undone");
    }
    return {};
}

/// "Registered in place: 12 files, 1 failed".
QString detailOf(const ActivationHistoryEntry &entry)
{
    const auto count = [&](Fate fate) {
        return std::ranges::count(entry.files, fate, &ActivationHistoryEntry::File::fate);
    };
    QStringList parts{counted("%1 file", "%1 files", count(Fate::done))};
    if (const auto skipped = count(Fate::skipped))
        parts << counted("%1 was there already", "%1 were there already", skipped);
    if (const auto failed = count(Fate::failed))
        parts << counted("%1 failed", "%1 failed", failed);
    if (const auto left = count(Fate::left))
        parts << counted("%1 left when it was stopped", "%1 left when it was stopped", left);
    return text("%1: %2").arg(methodOf(entry), parts.join(text(", ")));
}

QString timeOf(const ActivationHistoryEntry &entry)
{
    return QLocale().toString(entry.when.toLocalTime(), QLocale::ShortFormat);
}

} // namespace

Report historyReport(const std::vector<ActivationHistoryEntry> &entries)
{
    Report report;
    report.title = text("Activation History");
    report.emptyText = text("No font was switched on or off yet.");
    for (const ActivationHistoryEntry &entry : entries) {
        report.rows.push_back({titleOf(entry), detailOf(entry), timeOf(entry)});
        const Report::Row &row = report.rows.back();
        report.copyText += QStringList{row.trailing, row.title, row.detail}.join(u'\t') + u'\n';
    }
    if (!entries.empty())
        report.exportLabel = text("Export…");
    return report;
}

} // namespace lorva
