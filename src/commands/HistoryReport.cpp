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

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HistoryReport)
};

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
        return (isDone ? Texts::tr("Activated %1") : Texts::tr("Tried to activate %1")).arg(names);
    case Action::deactivated:
    case Action::moved:
        return (isDone ? Texts::tr("De-activated %1") : Texts::tr("Tried to de-activate %1"))
            .arg(names);
    case Action::restored:
        return (isDone ? Texts::tr("Brought back %1") : Texts::tr("Tried to bring back %1"))
            .arg(names);
    }
    return names;
}

QString methodOf(const ActivationHistoryEntry &entry)
{
    switch (entry.action) {
    case Action::copied:
        return Texts::tr("Copied to the Fonts folder");
    case Action::registered:
        return Texts::tr("Registered in place");
    case Action::deactivated:
        return Texts::tr("Copies to the Trash, registrations withdrawn");
    case Action::moved:
        return entry.destination ? Texts::tr("Moved to %1").arg(entry.destination->displayText())
                                 : Texts::tr("Moved");
    case Action::restored:
        return Texts::tr("De-activation undone");
    }
    return {};
}

/// "Registered in place: 12 files, 1 failed".
QString detailOf(const ActivationHistoryEntry &entry)
{
    const auto count = [&](Fate fate) {
        return int(std::ranges::count(entry.files, fate, &ActivationHistoryEntry::File::fate));
    };
    QStringList parts{Texts::tr("%Ln files", nullptr, count(Fate::done))};
    if (const auto skipped = count(Fate::skipped))
        parts << Texts::tr("%Ln were there already", nullptr, skipped);
    //: Files.
    if (const auto failed = count(Fate::failed))
        parts << Texts::tr("%Ln failed", nullptr, failed);
    if (const auto left = count(Fate::left))
        parts << Texts::tr("%Ln left when it was stopped", nullptr, left);
    //: How fonts were switched on or off, and the numbers of their files.
    return Texts::tr("%1: %2").arg(methodOf(entry), parts.join(Texts::tr(", ")));
}

QString timeOf(const ActivationHistoryEntry &entry)
{
    return QLocale().toString(entry.when.toLocalTime(), QLocale::ShortFormat);
}

} // namespace

Report historyReport(const std::vector<ActivationHistoryEntry> &entries)
{
    Report report;
    report.title = Texts::tr("Activation History");
    report.emptyText = Texts::tr("No font was switched on or off yet.");
    for (const ActivationHistoryEntry &entry : entries) {
        report.rows.push_back({titleOf(entry), detailOf(entry), timeOf(entry)});
        const Report::Row &row = report.rows.back();
        report.copyText += QStringList{row.trailing, row.title, row.detail}.join(u'\t') + u'\n';
    }
    if (!entries.empty())
        report.exportLabel = Texts::tr("Export…");
    return report;
}

} // namespace lorva
