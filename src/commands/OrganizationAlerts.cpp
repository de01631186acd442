// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/OrganizationAlerts.h"

#include <QCoreApplication>

namespace lorva {

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("OrganizationAlerts", source);
}

/// Something goes; the user may think better of it.
Alert warning(const QString &title, const QString &body, const QString &verb)
{
    return {Alert::Style::warning,
            title,
            body,
            {{verb, Alert::Role::destructive}, {text("Cancel"), Alert::Role::cancel}}};
}

} // namespace

Alert deleteCollectionAlert()
{
    return warning(text("Delete Collection?"),
                   text("This removes the collection but keeps the fonts on your Mac."),
                   text("Delete"));
}

Alert hideFoundryAlert(const QString &foundryName)
{
    // Hidden foundries can be brought back, so nothing is lost.
    return {Alert::Style::informational,
            text("Hide “%1”?").arg(foundryName),
            text("This hides the foundry from the sidebar."),
            {{text("Hide"), Alert::Role::accept}, {text("Cancel"), Alert::Role::cancel}}};
}

Alert refusedChangeAlert(const QString &reason)
{
    return {Alert::Style::warning,
            text("This Change Is Not Possible"),
            reason,
            {{text("OK"), Alert::Role::accept}}};
}

} // namespace lorva
