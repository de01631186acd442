// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"
#include "install/InstallationOutcome.h"

#include <QStringList>

namespace lorva {

// The words of switching fonts on and off. `names` are those of the families that the command acts
// on; at least one. Thread: any.

/// One family's name, or "3 Fonts".
QString activationLabel(const QStringList &names);
/// One family's name, or "3 fonts".
QString deactivationLabel(const QStringList &names);
/// "A", "A and B", "A, B, and C"; of more than five the first five, and how many more.
QString listOfNames(const QStringList &names);

/// What else a file holds that is switched with it; nothing when `others` is empty.
std::optional<QString> activationNote(qsizetype familyCount, const QStringList &others);
std::optional<QString> deactivationNote(qsizetype familyCount, const QStringList &others);

/// Nothing was left to do for the families that were asked for.
Alert nothingToActivateAlert(const QStringList &asked);
Alert nothingToDeactivateAlert(const QStringList &asked);

/// How a run ended. A run that was cancelled says what it had done by then.
Alert activationAlert(const QString &label, const InstallationOutcome &outcome);
Alert deactivationAlert(const QString &label, const InstallationOutcome &outcome);
/// Nothing when everything is back.
std::optional<Alert> restorationAlert(const QString &label, const InstallationOutcome &outcome);

/// Asks before fonts are switched off whose originals are known; "De-activate", "Cancel".
Alert deactivationQuestion(const QStringList &names, const std::optional<QString> &note);
/// Asks for a folder, because copies would be the only ones; "Choose Folder…", "Cancel".
Alert unknownOriginQuestion(const QStringList &names, const std::optional<QString> &note);
/// The same for one style; `note` names what shares its file.
Alert styleDeactivationQuestion(const QString &styleName, const std::optional<QString> &note);
Alert unknownStyleOriginQuestion(const QString &styleName, const std::optional<QString> &note);
FolderQuestion destinationQuestion();

/// Before the number of files is known, `total` is 0.
ProgressState activationProgress(const QString &label, int done, int total);
ProgressState deactivationProgress(const QString &label, int done, int total);
ProgressState restorationProgress(const QString &label, int done, int total);

/// The history file cannot be read; the list of it cannot be saved. `reason` is fit to be shown.
Alert historyUnreadableAlert(const QString &reason);
Alert listNotSavedAlert(const QString &reason);

/// Which files failed, and why.
Report failuresReport(const InstallationFailures &failures);

} // namespace lorva
