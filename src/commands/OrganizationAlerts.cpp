// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/OrganizationAlerts.h"

#include <QCoreApplication>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OrganizationAlerts)
};

/// Something goes; the user may think better of it.
Alert warning(const QString &title, const QString &body, const QString &verb)
{
    return {Alert::Style::warning,
            title,
            body,
            {{verb, Alert::Role::destructive}, {Texts::tr("Cancel"), Alert::Role::cancel}}};
}

} // namespace

Alert deleteCollectionAlert()
{
    return warning(Texts::tr("Delete Collection?"),
                   Texts::tr("This removes the collection but keeps the fonts on your Mac."),
                   Texts::tr("Delete"));
}

Alert hideFoundryAlert(const QString &foundryName)
{
    // Hidden foundries can be brought back, so nothing is lost.
    return {Alert::Style::informational,
            Texts::tr("Hide “%1”?").arg(foundryName),
            Texts::tr("This hides the foundry from the sidebar."),
            {{Texts::tr("Hide"), Alert::Role::accept}, {Texts::tr("Cancel"), Alert::Role::cancel}}};
}

Alert refusedChangeAlert(const QString &reason)
{
    return {Alert::Style::warning,
            Texts::tr("This Change Is Not Possible"),
            reason,
            {{Texts::tr("OK"), Alert::Role::accept}}};
}

} // namespace lorva
