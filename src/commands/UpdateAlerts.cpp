// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/UpdateAlerts.h"

#include <QCoreApplication>
#include <QLocale>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UpdateAlerts)
};

Alert told(const QString &title, const QString &body)
{
    return {Alert::Style::informational, title, body, {{Texts::tr("OK"), Alert::Role::accept}}};
}

/// What those need to know who are asked for help; the words for everybody come before.
QString detailsOf(const Error &error)
{
    return error.detail.isEmpty() ? QString() : Texts::tr("Details: %1.").arg(error.detail);
}

Alert failed(const QString &body, const Error &error)
{
    return {Alert::Style::warning,
            Texts::tr("Lorva Couldn’t Check for Updates"),
            body,
            {{Texts::tr("OK"), Alert::Role::accept}},
            detailsOf(error)};
}

/// What happened, and what the user can do about it.
QString failureText(ErrorKind kind)
{
    switch (kind) {
    case ErrorKind::ioFailure:
        return Texts::tr(
            "The server that announces new versions can’t be reached. Check your internet "
            "connection, then try again.");
    case ErrorKind::cancelled:
        return Texts::tr(
            "The server that announces new versions took too long to answer. Try again in "
            "a while.");
    case ErrorKind::notFound:
        return Texts::tr(
            "The server that announces new versions has none to announce right now. Try "
            "again in a while.");
    case ErrorKind::permissionDenied:
        return Texts::tr(
            "The connection to the server that announces new versions is not secure, so "
            "nothing was read from it. If you are on a public network, try again on "
            "another one.");
    case ErrorKind::invalidValue:
        return Texts::tr(
            "The answer does not come from the makers of Lorva, so it was not believed. "
            "Try again on another network.");
    case ErrorKind::unsupported:
        return Texts::tr("New versions are announced in a way that this version is too old to "
                         "understand. Look for a newer one where you got Lorva.");
    case ErrorKind::typeMismatch:
        return Texts::tr(
            "The server announces another program. Look for a newer version where you got "
            "Lorva.");
    default:
        return Texts::tr(
            "The answer can’t be understood. Some networks answer in the server’s place "
            "until you sign in: open a web page, then try again.");
    }
}

Alert newerAlert(const Release &release, const QString &runningVersion)
{
    const QString facts =
        Texts::tr("Version %1 was released on %2. You have version %3.")
            .arg(release.version, QLocale().toString(release.date, QLocale::LongFormat),
                 runningVersion);
    return {Alert::Style::informational,
            Texts::tr("Lorva %1 Is Available").arg(release.version),
            release.summary.isEmpty() ? facts
                                      : QString(facts + QStringLiteral("\n\n") + release.summary),
            {{Texts::tr("Open Release Page"), Alert::Role::accept},
             {Texts::tr("Not Now"), Alert::Role::cancel}}};
}

} // namespace

Alert updateAlert(const UpdateOutcome &outcome, const QString &runningVersion)
{
    if (outcome.kind == UpdateOutcome::Kind::newer && outcome.release)
        return newerAlert(*outcome.release, runningVersion);
    if (outcome.kind == UpdateOutcome::Kind::upToDate)
        return told(
            Texts::tr("You’re Up to Date"),
            Texts::tr("There is no newer version than yours, Lorva %1.").arg(runningVersion));
    const Error error = outcome.error.value_or(Error{});
    return failed(failureText(error.kind), error);
}

Alert noUpdatesAlert(const std::optional<Error> &reason)
{
    if (!reason || reason->kind == ErrorKind::unsupported)
        return told(Texts::tr("Updates Come with Your System"),
                    Texts::tr("This copy of Lorva does not look for new versions by itself: your "
                              "system’s software updates bring new versions."));
    return failed(
        Texts::tr("This copy of Lorva was not told properly where new versions are announced. "
                  "Your system’s software updates, or the place where you got Lorva, bring "
                  "new versions."),
        *reason);
}

} // namespace lorva
