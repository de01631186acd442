// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ActivationTexts.h"

#include "base/Sentence.h"

#include <QCoreApplication>
#include <QLocale>

namespace lorva {

namespace {

using Role = Alert::Role;
using Style = Alert::Style;

/// So many names are listed; the rest is counted.
constexpr qsizetype kListedNames = 5;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ActivationTexts)
};

std::optional<QString> note(const QString &sentence, const QStringList &others)
{
    if (others.isEmpty())
        return std::nullopt;
    return sentence.arg(listOfNames(others));
}

Alert told(const QString &title, const QString &body)
{
    return {Style::informational, title, body, {{Texts::tr("Done"), Role::accept}}};
}

Alert nothing(const QString &title, const QString &body)
{
    return {Style::informational, title, body, {{Texts::tr("OK"), Role::accept}}};
}

Alert failed(const QString &title, const QString &body)
{
    return {Style::warning, title, body, {{Texts::tr("OK"), Role::accept}}};
}

int filesOf(const InstallationOutcome &outcome)
{
    const size_t files = outcome.filesDone.size() + outcome.filesSkipped.size()
        + outcome.filesLeft.size() + outcome.failures.size();
    return int(files);
}

/// "12 of 340 files are …", and what failed of them; the sentence has places for both numbers.
QString stoppedBody(const QString &sentence, const InstallationOutcome &outcome,
                    const QString &failures)
{
    const size_t done = outcome.filesDone.size() + outcome.filesSkipped.size();
    const QLocale locale;
    const QString body =
        sentence.arg(locale.toString(qulonglong(done)), locale.toString(filesOf(outcome)));
    //: Two sentences, one after the other.
    return outcome.failures.empty() ? body : Texts::tr("%1 %2").arg(body, failures);
}

Alert question(const QString &label, const QString &body, const std::optional<QString> &note,
               Alert::Button accept)
{
    return {Style::informational,
            Texts::tr("De-activate %1?").arg(label),
            body,
            {std::move(accept), {Texts::tr("Cancel"), Role::cancel}},
            note.value_or(QString())};
}

Alert knownOriginQuestion(const QString &label, const QString &body,
                          const std::optional<QString> &note)
{
    return question(label, body, note, {Texts::tr("De-activate"), Role::accept});
}

Alert folderWantedQuestion(const QString &label, const QString &body,
                           const std::optional<QString> &note)
{
    return question(label, body, note, {Texts::tr("Choose Folder…"), Role::accept});
}

/// `onTheWay` has places for the subject and both numbers.
ProgressState progress(const QString &onTheWay, const QString &label, int done, int total)
{
    const QLocale locale;
    return {onTheWay.arg(label, locale.toString(done), locale.toString(total)),
            double(done) / total};
}

/// The reasons are written to follow a colon.
QString asSentence(QString reason)
{
    if (reason.isEmpty())
        return Texts::tr("The reason is not known.");
    reason[0] = reason[0].toUpper();
    //: A reason becomes a sentence of its own.
    return endsSentence(reason) ? reason : Texts::tr("%1.").arg(reason);
}

} // namespace

QString activationLabel(const QStringList &names)
{
    return names.size() == 1 ? names.front() : Texts::tr("%n Fonts", nullptr, int(names.size()));
}

QString deactivationLabel(const QStringList &names)
{
    return names.size() == 1 ? names.front() : Texts::tr("%n fonts", nullptr, int(names.size()));
}

QString listOfNames(const QStringList &names)
{
    if (names.size() <= 1)
        return names.join(QString());
    if (names.size() == 2)
        //: Two names.
        return Texts::tr("%1 and %2").arg(names.front(), names.back());
    //: Between the names of a list.
    const QString comma = Texts::tr(", ");
    //: The names of a list, and the last of them.
    const QString list = Texts::tr("%1, and %2");
    if (names.size() <= kListedNames)
        return list.arg(names.mid(0, names.size() - 1).join(comma), names.back());
    //: Families that a list of names does not name.
    const QString rest = Texts::tr("%n more families", nullptr, int(names.size() - kListedNames));
    return list.arg(names.mid(0, kListedNames).join(comma), rest);
}

std::optional<QString> activationNote(qsizetype familyCount, const QStringList &others)
{
    const int count = int(others.size());
    //: %1 is a list of so many names.
    return note(familyCount == 1 ? Texts::tr("This font's file also contains %1. Activating makes "
                                             "them available too.",
                                             nullptr, count)
                                 : Texts::tr("These fonts' files also contain %1. Activating makes "
                                             "them available too.",
                                             nullptr, count),
                others);
}

std::optional<QString> deactivationNote(qsizetype familyCount, const QStringList &others)
{
    const int count = int(others.size());
    //: %1 is a list of so many names.
    return note(familyCount == 1 ? Texts::tr("This font's file also contains %1. De-activating "
                                             "removes all of them.",
                                             nullptr, count)
                                 : Texts::tr("These fonts' files also contain %1. De-activating "
                                             "removes all of them.",
                                             nullptr, count),
                others);
}

Alert nothingToActivateAlert(const QStringList &asked)
{
    return nothing(
        Texts::tr("Nothing to activate"),
        asked.size() == 1
            ? Texts::tr("Every user-controllable font in %1 is already active.").arg(asked.front())
            : Texts::tr("Every selected font is already active."));
}

Alert nothingToDeactivateAlert(const QStringList &asked)
{
    return nothing(Texts::tr("Nothing to de-activate"),
                   asked.size() == 1
                       ? Texts::tr("No user-controllable active fonts in %1.").arg(asked.front())
                       : Texts::tr("No user-controllable active fonts in the selection."));
}

Alert activationAlert(const QString &label, const InstallationOutcome &outcome)
{
    const QString failures =
        Texts::tr("%n files failed to activate.", nullptr, int(outcome.failures.size()));
    if (!outcome.filesLeft.empty())
        return told(Texts::tr("Activation of %1 stopped").arg(label),
                    stoppedBody(Texts::tr("%1 of %2 files are available in every app on your Mac.",
                                          nullptr, filesOf(outcome)),
                                outcome, failures));
    if (!outcome.failures.empty())
        return failed(Texts::tr("Couldn't fully activate %1").arg(label), failures);
    return told(Texts::tr("%1 installed").arg(label),
                Texts::tr("Now available in every app on your Mac."));
}

Alert deactivationAlert(const QString &label, const InstallationOutcome &outcome)
{
    const QString failures =
        Texts::tr("%n files failed to de-activate.", nullptr, int(outcome.failures.size()));
    if (!outcome.filesLeft.empty())
        return told(Texts::tr("De-activation of %1 stopped").arg(label),
                    stoppedBody(Texts::tr("%1 of %2 files are no longer available system-wide.",
                                          nullptr, filesOf(outcome)),
                                outcome, failures));
    if (!outcome.failures.empty())
        return failed(Texts::tr("Couldn't fully de-activate %1").arg(label), failures);
    return told(Texts::tr("%1 removed").arg(label), Texts::tr("No longer available system-wide."));
}

std::optional<Alert> restorationAlert(const QString &label, const InstallationOutcome &outcome)
{
    const QString failures =
        Texts::tr("%n files could not be brought back.", nullptr, int(outcome.failures.size()));
    if (!outcome.filesLeft.empty())
        return told(Texts::tr("Activation of %1 stopped").arg(label),
                    stoppedBody(Texts::tr("%1 of %2 files are back.", nullptr, filesOf(outcome)),
                                outcome, failures));
    if (!outcome.failures.empty())
        return failed(Texts::tr("Couldn't fully bring back %1").arg(label), failures);
    return std::nullopt;
}

Alert deactivationQuestion(const QStringList &names, const std::optional<QString> &note)
{
    return knownOriginQuestion(
        deactivationLabel(names),
        names.size() == 1
            ? Texts::tr("The font will no longer be available system-wide. Your original "
                        "font files are not touched.")
            : Texts::tr("The fonts will no longer be available system-wide. Your original "
                        "font files are not touched."),
        note);
}

Alert unknownOriginQuestion(const QStringList &names, const std::optional<QString> &note)
{
    return folderWantedQuestion(
        deactivationLabel(names),
        names.size() == 1
            ? Texts::tr(
                  "Lorva didn't install %1, so we don't know where the original font files are. "
                  "Choose a folder to move them to, otherwise you'd lose your only copy.")
                  .arg(names.front())
            : Texts::tr(
                "Lorva didn't install some of these fonts, so we don't know where the originals "
                "are. Choose a folder to move them to, otherwise you'd lose your only copy."),
        note);
}

Alert styleDeactivationQuestion(const QString &styleName, const std::optional<QString> &note)
{
    return knownOriginQuestion(
        styleName, Texts::tr("The style will no longer be available system-wide."), note);
}

Alert unknownStyleOriginQuestion(const QString &styleName, const std::optional<QString> &note)
{
    return folderWantedQuestion(
        styleName,
        Texts::tr(
            "Lorva didn't install %1, so we don't know where the original font file is. Choose a "
            "folder to move it to, otherwise you'd lose your only copy.")
            .arg(styleName),
        note);
}

FolderQuestion destinationQuestion()
{
    return {Texts::tr("Choose a folder for the font files that are de-activated."),
            Texts::tr("Move Here"), false};
}

ProgressState activationProgress(const QString &label, int done, int total)
{
    if (total <= 0)
        return {Texts::tr("Activating %1…").arg(label), std::nullopt};
    return progress(Texts::tr("Activating %1… %2 of %3 files", nullptr, total), label, done, total);
}

ProgressState deactivationProgress(const QString &label, int done, int total)
{
    if (total <= 0)
        return {Texts::tr("De-activating %1…").arg(label), std::nullopt};
    return progress(Texts::tr("De-activating %1… %2 of %3 files", nullptr, total), label, done,
                    total);
}

ProgressState restorationProgress(const QString &label, int done, int total)
{
    if (total <= 0)
        return {Texts::tr("Bringing back %1…").arg(label), std::nullopt};
    return progress(Texts::tr("Bringing back %1… %2 of %3 files", nullptr, total), label, done,
                    total);
}

Alert historyUnreadableAlert(const QString &reason)
{
    return failed(Texts::tr("Couldn't read the activation history"), asSentence(reason));
}

Alert listNotSavedAlert(const QString &reason)
{
    return failed(Texts::tr("Couldn't save the list"), asSentence(reason));
}

Report failuresReport(const InstallationFailures &failures)
{
    Report report;
    report.title = Texts::tr("Files That Failed");
    report.body =
        Texts::tr("%n files could not be switched on or off.", nullptr, int(failures.size()));
    report.emptyText = Texts::tr("No file has failed.");
    for (const auto &[file, error] : failures) {
        const QString path = file.displayText();
        const QString reason = asSentence(error.description);
        report.rows.push_back({path, reason});
        report.copyText += path + u'\t' + reason + u'\n';
    }
    return report;
}

} // namespace lorva
