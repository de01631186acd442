// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Every text of switching fonts on and off, as the user reads it.

#include "commands/ActivationTexts.h"
#include "commands/HistoryReport.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

QStringList names(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QString(QChar(u'A' + i)));
    return names;
}

InstallationOutcome outcomeOf(int done, int failed, int left = 0)
{
    InstallationOutcome outcome;
    outcome.families = {QStringLiteral("A")};
    for (int i = 0; i < done; ++i)
        outcome.filesDone.push_back(FilePath(QByteArray("/done/") + QByteArray::number(i)));
    for (int i = 0; i < failed; ++i)
        outcome.failures.emplace(FilePath(QByteArray("/failed/") + QByteArray::number(i)),
                                 InstallationError{});
    for (int i = 0; i < left; ++i)
        outcome.filesLeft.push_back(FilePath(QByteArray("/left/") + QByteArray::number(i)));
    return outcome;
}

QStringList textsOf(const Alert &alert)
{
    const bool isWarning = alert.style == Alert::Style::warning;
    QStringList texts{QString::fromLatin1(isWarning ? "warning" : "informational"), alert.title,
                      alert.body};
    for (const Alert::Button &button : alert.buttons)
        texts << (button.role == Alert::Role::cancel ? u'(' + button.text + u')' : button.text);
    if (!alert.note.isEmpty())
        texts << u'+' + alert.note;
    return texts;
}

TEST(ActivationTexts, LabelsAndLists)
{
    const struct
    {
        int count;
        const char *activation;
        const char *deactivation;
        const char *list;
    } rows[]{
        {1, "A", "A", "A"},
        {2, "2 Fonts", "2 fonts", "A and B"},
        {3, "3 Fonts", "3 fonts", "A, B, and C"},
        {5, "5 Fonts", "5 fonts", "A, B, C, D, and E"},
        {6, "6 Fonts", "6 fonts", "A, B, C, D, E, and 1 more family"},
        {7, "7 Fonts", "7 fonts", "A, B, C, D, E, and 2 more families"},
        {1340, "1340 Fonts", "1340 fonts", nullptr},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(activationLabel(names(row.count)), QString::fromLatin1(row.activation));
        EXPECT_EQ(deactivationLabel(names(row.count)), QString::fromLatin1(row.deactivation));
        if (row.list) {
            EXPECT_EQ(listOfNames(names(row.count)), QString::fromLatin1(row.list));
        }
    }
    // A name stands for itself.
    EXPECT_EQ(listOfNames({"%2", "%1"}), "%2 and %1");
    EXPECT_EQ(listOfNames({"%2", "%1 %n", "&"}), "%2, %1 %n, and &");
}

TEST(ActivationTexts, Notes)
{
    EXPECT_EQ(activationNote(1, {}), std::nullopt);
    EXPECT_EQ(deactivationNote(3, {}), std::nullopt);
    const struct
    {
        qsizetype families;
        int others;
        const char *activation;
        const char *deactivation;
    } rows[]{
        {1, 1, "This font's file also contains A. Activating makes it available too.",
         "This font's file also contains A. De-activating removes it too."},
        {1, 2, "This font's file also contains A and B. Activating makes them available too.",
         "This font's file also contains A and B. De-activating removes all of them."},
        {2, 1, "These fonts' files also contain A. Activating makes it available too.",
         "These fonts' files also contain A. De-activating removes it too."},
        {9, 7,
         "These fonts' files also contain A, B, C, D, E, and 2 more families. Activating makes "
         "them available too.",
         "These fonts' files also contain A, B, C, D, E, and 2 more families. De-activating "
         "removes all of them."},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(activationNote(row.families, names(row.others)),
                  QString::fromLatin1(row.activation));
        EXPECT_EQ(deactivationNote(row.families, names(row.others)),
                  QString::fromLatin1(row.deactivation));
    }
}

TEST(ActivationTexts, HowRunsEnd)
{
    const QString mac = "Now available in every app on your Mac.";
    const struct
    {
        const char *what;
        Alert alert;
        QStringList texts;
    } rows[]{
        {"on",
         activationAlert("A", outcomeOf(3, 0)),
         {"informational", "A installed", mac, "Done"}},
        {"a name like a place",
         activationAlert("%1 %2", outcomeOf(3, 0)),
         {"informational", "%1 %2 installed", mac, "Done"}},
        {"one failure of many",
         activationAlert("2 Fonts", outcomeOf(30, 1)),
         {"warning", "Couldn't fully activate 2 Fonts", "1 file failed to activate.", "OK"}},
        {"two failures",
         activationAlert("A", outcomeOf(0, 2)),
         {"warning", "Couldn't fully activate A", "2 files failed to activate.", "OK"}},
        {"stopped",
         activationAlert("A", outcomeOf(3, 0, 4)),
         {"informational", "Activation of A stopped",
          "3 of 7 files are available in every app on your Mac.", "Done"}},
        {"stopped with a failure",
         activationAlert("A", outcomeOf(3, 1, 4)),
         {"informational", "Activation of A stopped",
          "3 of 8 files are available in every app on your Mac. 1 file failed to activate.",
          "Done"}},
        {"stopped among many",
         activationAlert("2000 Fonts", outcomeOf(1234, 0, 8766)),
         {"informational", "Activation of 2000 Fonts stopped",
          "1,234 of 10,000 files are available in every app on your Mac.", "Done"}},
        {"off",
         deactivationAlert("3 fonts", outcomeOf(3, 0)),
         {"informational", "3 fonts removed", "No longer available system-wide.", "Done"}},
        {"one not off",
         deactivationAlert("A", outcomeOf(3, 1)),
         {"warning", "Couldn't fully de-activate A", "1 file failed to de-activate.", "OK"}},
        {"many not off",
         deactivationAlert("A", outcomeOf(3, 12)),
         {"warning", "Couldn't fully de-activate A", "12 files failed to de-activate.", "OK"}},
        {"off stopped",
         deactivationAlert("A", outcomeOf(1, 0, 1)),
         {"informational", "De-activation of A stopped",
          "1 of 2 files are no longer available system-wide.", "Done"}},
        {"not back",
         *restorationAlert("A", outcomeOf(1, 1)),
         {"warning", "Couldn't fully bring back A", "1 file could not be brought back.", "OK"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textsOf(row.alert), row.texts) << row.what;
    EXPECT_EQ(restorationAlert("A", outcomeOf(1, 0)), std::nullopt);
}

TEST(ActivationTexts, WhatIsAskedAndRefused)
{
    const QString note = "This font's file also contains B. De-activating removes it too.";
    const struct
    {
        const char *what;
        Alert alert;
        QStringList texts;
    } rows[]{
        {"nothing on",
         nothingToActivateAlert({"A"}),
         {"informational", "Nothing to activate",
          "Every user-controllable font in A is already active.", "OK"}},
        {"nothing on of three",
         nothingToActivateAlert(names(3)),
         {"informational", "Nothing to activate", "Every selected font is already active.", "OK"}},
        {"nothing off",
         nothingToDeactivateAlert({"A"}),
         {"informational", "Nothing to de-activate", "No user-controllable active fonts in A.",
          "OK"}},
        {"nothing off of two",
         nothingToDeactivateAlert(names(2)),
         {"informational", "Nothing to de-activate",
          "No user-controllable active fonts in the selection.", "OK"}},
        {"off",
         deactivationQuestion({"A"}, note),
         {"informational", "De-activate A?",
          QString(
              "The font will no longer be available system-wide. Your original font files are not "
              "touched."),
          "De-activate", "(Cancel)", u'+' + note}},
        {"two off",
         deactivationQuestion(names(2), {}),
         {"informational", "De-activate 2 fonts?",
          QString(
              "The fonts will no longer be available system-wide. Your original font files are not "
              "touched."),
          "De-activate", "(Cancel)"}},
        {"only copy",
         unknownOriginQuestion({"A"}, {}),
         {"informational", "De-activate A?",
          QString("Lorva didn't install A, so we don't know where the original font files are. "
                  "Choose a "
                  "folder to move them to, otherwise you'd lose your only copy."),
          "Choose Folder…", "(Cancel)"}},
        {"some only copies",
         unknownOriginQuestion(names(7), {}),
         {"informational", "De-activate 7 fonts?",
          QString(
              "Lorva didn't install some of these fonts, so we don't know where the originals are. "
              "Choose a folder to move them to, otherwise you'd lose your only copy."),
          "Choose Folder…", "(Cancel)"}},
        {"a style",
         styleDeactivationQuestion("A Bold", {}),
         {"informational", "De-activate A Bold?",
          "The style will no longer be available system-wide.", "De-activate", "(Cancel)"}},
        {"a style's only copy",
         unknownStyleOriginQuestion("A Bold", {}),
         {"informational", "De-activate A Bold?",
          QString("Lorva didn't install A Bold, so we don't know where the original font file is. "
                  "Choose a "
                  "folder to move it to, otherwise you'd lose your only copy."),
          "Choose Folder…", "(Cancel)"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textsOf(row.alert), row.texts) << row.what;
}

TEST(ActivationTexts, ProgressAndFailures)
{
    EXPECT_EQ(activationProgress("A", 0, 0), (ProgressState{"Activating A…", std::nullopt}));
    EXPECT_EQ(deactivationProgress("%2", 1, 4),
              (ProgressState{"De-activating %2… 1 of 4 files", 0.25}));
    EXPECT_EQ(restorationProgress("A", 1000, 2000).message,
              "Bringing back A… 1,000 of 2,000 files");

    const Report report = failuresReport({
        {FilePath("/fonts/a.ttf"), {InstallationError::ownDomain(), 2, "File not found"}},
        {FilePath("/fonts/b.ttf"), {InstallationError::ownDomain(), 1, "the disk is full"}},
        {FilePath("/fonts/c.ttf"), {}},
        {FilePath("/fonts/d.ttf"), {InstallationError::ownDomain(), 1, "ファイルがありません。"}},
    });
    EXPECT_EQ(report.body, "4 files could not be switched on or off.");
    EXPECT_EQ(report.rows,
              (std::vector<Report::Row>{{"/fonts/a.ttf", "File not found."},
                                        {"/fonts/b.ttf", "The disk is full."},
                                        {"/fonts/c.ttf", "The reason is not known."},
                                        {"/fonts/d.ttf", "ファイルがありません。"}}));
    EXPECT_EQ(report.copyText,
              "/fonts/a.ttf\tFile not found.\n/fonts/b.ttf\tThe disk is full.\n"
              "/fonts/c.ttf\tThe reason is not known.\n/fonts/d.ttf\tファイルがありません。\n");
}

TEST(ActivationTexts, TheHistoryInWords)
{
    using Entry = ActivationHistoryEntry;
    using Fate = Entry::File::Fate;
    const QDateTime when(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    const FilePath file("/f.ttf");
    const Report report = historyReport({
        {when, Entry::Action::registered, {"A", "B"}, {}, {{file, Fate::done, {}}}},
        {when,
         Entry::Action::copied,
         {"A"},
         {},
         {{file, Fate::done, {}},
          {file, Fate::done, {}},
          {file, Fate::skipped, {}},
          {file, Fate::failed, "no"},
          {file, Fate::left, {}}}},
        {when, Entry::Action::moved, names(7), FilePath("/kept"), {{file, Fate::done, {}}}},
        {when, Entry::Action::restored, {"A"}, {}, {}},
    });
    QStringList lines;
    for (const Report::Row &row : report.rows)
        lines << row.title << row.detail;
    EXPECT_EQ(lines,
              (QStringList{
                  "Activated A and B", "Registered in place: 1 file", "Activated A",
                  QString("Copied to the Fonts folder: 2 files, 1 was there already, 1 failed, 1 "
                          "left when it was stopped"),
                  "De-activated A, B, C, D, E, and 2 more families", "Moved to /kept: 1 file",
                  "Tried to bring back A", "De-activation undone: 0 files"}));
    EXPECT_FALSE(report.exportLabel.isEmpty());
    EXPECT_TRUE(historyReport({}).exportLabel.isEmpty());
}

} // namespace
} // namespace lorva
