// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ActivationTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace lorva {

namespace {

using Role = Alert::Role;
using Style = Alert::Style;

/// So many names are listed; the rest is counted.
constexpr qsizetype kListedNames = 5;

QString text(const char *source)
{
    return QCoreApplication::translate("ActivationTexts", source);
}

/// `one` or `many`, which languages with more forms than two tell apart by the number; %1 in them
/// stands for it.
QString counted(const char *one, const char *many, qsizetype number)
{
    const QString chosen = QCoreApplication::translate("ActivationTexts", number == 1 ? one : many,
                                                       nullptr, int(number));
    return QString(chosen).replace(QStringLiteral("%1"), QString::number(number));
}

/// A name stands for itself even if it looks like a place for one.
QString about(const char *source, const QString &subject)
{
    return text(source).arg(subject);
}

std::optional<QString> note(const QString &sentence, const QStringList &others)
{
    if (others.isEmpty())
        return std::nullopt;
    return sentence.arg(listOfNames(others));
}

Alert told(const QString &title, const QString &body)
{
    return {Style::informational, title, body, {{text("Done"), Role::accept}}};
}

Alert nothing(const QString &title, const QString &body)
{
    return {Style::informational, title, body, {{text("OK"), Role::accept}}};
}

Alert failed(const QString &title, const QString &body)
{
    return {Style::warning, title, body, {{text("OK"), Role::accept}}};
}

qsizetype filesOf(const InstallationOutcome &outcome)
{
    const size_t files = outcome.filesDone.size() + outcome.filesSkipped.size()
        + outcome.filesLeft.size() + outcome.failures.size();
    return qsizetype(files);
}

/// "12 of 340 files are …", and what failed of them.
QString stoppedBody(const char *sentence, const InstallationOutcome &outcome,
                    const QString &failures)
{
    const size_t done = outcome.filesDone.size() + outcome.filesSkipped.size();
    const QLocale locale;
    QString body =
        text(sentence).arg(locale.toString(qulonglong(done)), locale.toString(filesOf(outcome)));
    if (!outcome.failures.empty())
        body += u' ' + failures;
    return body;
}

Alert question(const QString &label, const QString &body, const std::optional<QString> &note,
               Alert::Button accept)
{
    return {Style::informational,
            about("De-activate %1?", label),
            body,
            {std::move(accept), {text("Cancel"), Role::cancel}},
            note.value_or(QString())};
}

Alert knownOriginQuestion(const QString &label, const QString &body,
                          const std::optional<QString> &note)
{
    return question(label, body, note, {text("De-activate"), Role::accept});
}

Alert folderWantedQuestion(const QString &label, const QString &body,
                           const std::optional<QString> &note)
{
    return question(label, body, note, {text("Choose Folder…"), Role::accept});
}

ProgressState progress(const char *beginning, const char *onTheWay, const QString &label, int done,
                       int total)
{
    if (total <= 0)
        return {about(beginning, label), std::nullopt};
    const QLocale locale;
    return {text(onTheWay).arg(label, locale.toString(qulonglong(done)), locale.toString(total)),
            double(done) / total};
}

/// The reasons are written to follow a colon.
QString asSentence(QString reason)
{
    if (reason.isEmpty())
        return text("The reason is not known.");
    reason[0] = reason[0].toUpper();
    return reason.endsWith(u'.') ? reason : reason + u'.';
}

} // namespace

QString activationLabel(const QStringList &names)
{
    return names.size() == 1 ? names.front() : counted("%1 Fonts", "%1 Fonts", names.size());
}

QString deactivationLabel(const QStringList &names)
{
    return names.size() == 1 ? names.front() : counted("%1 fonts", "%1 fonts", names.size());
}

QString listOfNames(const QStringList &names)
{
    if (names.size() <= 1)
        return names.join(QString());
    if (names.size() == 2)
        return text("%1 and %2").arg(names.front(), names.back());
    const QString comma = text(", ");
    if (names.size() <= kListedNames)
        return text("%1, and %2").arg(names.mid(0, names.size() - 1).join(comma), names.back());
    const QString rest = counted("%1 more family", "%1 more families", names.size() - kListedNames);
    return text("%1, and %2").arg(names.mid(0, kListedNames).join(comma), rest);
}

std::optional<QString> activationNote(qsizetype familyCount, const QStringList &others)
{
    const bool isOne = others.size() == 1;
    if (familyCount == 1)
        return note(isOne ? text("This font's file also contains %1. Activating makes it available "
                                 "too.")
                          : text("This font's file also contains %1. Activating makes them "
                                 "available too."),
                    others);
    return note(isOne ? text("These fonts' files also contain %1. Activating makes it available "
                             "too.")
                      : text("These fonts' files also contain %1. Activating makes them available "
                             "too."),
                others);
}

std::optional<QString> deactivationNote(qsizetype familyCount, const QStringList &others)
{
    const bool isOne = others.size() == 1;
    if (familyCount == 1)
        return note(isOne ? text("This font's file also contains %1. De-activating removes it too.")
                          : text("This font's file also contains %1. De-activating removes all of "
                                 "them."),
                    others);
    return note(isOne ? text("These fonts' files also contain %1. De-activating removes it too.")
                      : text("These fonts' files also contain %1. De-activating removes all of "
                             "them."),
                others);
}

Alert nothingToActivateAlert(const QStringList &asked)
{
    return nothing(text("Nothing to activate"),
                   asked.size() == 1 ? about(
                       "Every user-controllable font in %1 is already active.", asked.front())
                                     : text("Every selected font is already active."));
}

Alert nothingToDeactivateAlert(const QStringList &asked)
{
    return nothing(text("Nothing to de-activate"),
                   asked.size() == 1
                       ? about("No user-controllable active fonts in %1.", asked.front())
                       : text("No user-controllable active fonts in the selection."));
}

Alert activationAlert(const QString &label, const InstallationOutcome &outcome)
{
    const QString failures = counted("%1 file failed to activate.", "%1 files failed to activate.",
                                     qsizetype(outcome.failures.size()));
    if (!outcome.filesLeft.empty())
        return told(about("Activation of %1 stopped", label),
                    stoppedBody("%1 of %2 files are available in every app on your Mac.", outcome,
                                failures));
    if (!outcome.failures.empty())
        return failed(about("Couldn't fully activate %1", label), failures);
    return told(about("%1 installed", label), text("Now available in every app on your Mac."));
}

Alert deactivationAlert(const QString &label, const InstallationOutcome &outcome)
{
    const QString failures =
        counted("%1 file failed to de-activate.", "%1 files failed to de-activate.",
                qsizetype(outcome.failures.size()));
    if (!outcome.filesLeft.empty())
        return told(
            about("De-activation of %1 stopped", label),
            stoppedBody("%1 of %2 files are no longer available system-wide.", outcome, failures));
    if (!outcome.failures.empty())
        return failed(about("Couldn't fully de-activate %1", label), failures);
    return told(about("%1 removed", label), text("No longer available system-wide."));
}

std::optional<Alert> restorationAlert(const QString &label, const InstallationOutcome &outcome)
{
    const QString failures =
        counted("%1 file could not be brought back.", "%1 files could not be brought back.",
                qsizetype(outcome.failures.size()));
    if (!outcome.filesLeft.empty())
        return told(about("Activation of %1 stopped", label),
                    stoppedBody("%1 of %2 files are back.", outcome, failures));
    if (!outcome.failures.empty())
        return failed(about("Couldn't fully bring back %1", label), failures);
    return std::nullopt;
}

Alert deactivationQuestion(const QStringList &names, const std::optional<QString> &note)
{
    return knownOriginQuestion(
        deactivationLabel(names),
        names.size() == 1 ? text("The font will no longer be available system-wide. Your original "
                                 "font files are not touched.")
                          : text("The fonts will no longer be available system-wide. Your original "
                                 "font files are not touched."),
        note);
}

Alert unknownOriginQuestion(const QStringList &names, const std::optional<QString> &note)
{
    return folderWantedQuestion(
        deactivationLabel(names),
        names.size() == 1
            ? about("Lorva didn't install %1, so we don't know where the original font files are. "
                    "Choose a folder to move them to, otherwise you'd lose your only copy.",
                    names.front())
            : text("Lorva didn't install some of these fonts, so we don't know where the originals "
                   "are. Choose a folder to move them to, otherwise you'd lose your only copy."),
        note);
}

Alert styleDeactivationQuestion(const QString &styleName, const std::optional<QString> &note)
{
    return knownOriginQuestion(styleName,
                               text("The style will no longer be available system-wide."), note);
}

Alert unknownStyleOriginQuestion(const QString &styleName, const std::optional<QString> &note)
{
    return folderWantedQuestion(
        styleName,
        about("Lorva didn't install %1, so we don't know where the original font file is. Choose a "
              "folder to move it to, otherwise you'd lose your only copy.",
              styleName),
        note);
}

FolderQuestion destinationQuestion()
{
    return {text("Choose a folder for the font files that are de-activated."), text("Move Here"),
            false};
}

ProgressState activationProgress(const QString &label, int done, int total)
{
    return progress("Activating %1…", "Activating %1… %2 of %3 files", label, done, total);
}

ProgressState deactivationProgress(const QString &label, int done, int total)
{
    return progress("De-activating %1…", "De-activating %1… %2 of %3 files", label, done, total);
}

ProgressState restorationProgress(const QString &label, int done, int total)
{
    return progress("Bringing back %1…", "Bringing back %1… %2 of %3 files", label, done, total);
}

Alert historyUnreadableAlert(const QString &reason)
{
    return failed(text("Couldn't read the activation history"), asSentence(reason));
}

Alert listNotSavedAlert(const QString &reason)
{
    return failed(text("Couldn't save the list"), asSentence(reason));
}

Report failuresReport(const InstallationFailures &failures)
{
    Report report;
    report.title = text("Files That Failed");
    report.body = counted("%1 file could not be switched on or off.",
                          "%1 files could not be switched on or off.", qsizetype(failures.size()));
    report.emptyText = text("No file has failed.");
    for (const auto &[file, error] : failures) {
        const QString path = file.displayText();
        const QString reason = asSentence(error.description);
        report.rows.push_back({path, reason});
        report.copyText += path + u'\t' + reason + u'\n';
    }
    return report;
}

} // namespace lorva
