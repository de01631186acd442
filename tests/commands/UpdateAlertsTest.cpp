// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Every text about newer releases, as the user reads it.

#include "commands/UpdateAlerts.h"
#include "support/QtPrinters.h"

#include <QLocale>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::HasSubstr;
using Kind = UpdateOutcome::Kind;

const Release kRelease{"1.3", QDate(2026, 11, 2), QUrl("https://lorva.example/"),
                       QStringLiteral("%1 fewer <b>bugs</b>.")};

class UpdateAlerts : public testing::Test
{
protected:
    UpdateAlerts() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria)); }
    ~UpdateAlerts() override { QLocale::setDefault(QLocale::system()); }
};

TEST_F(UpdateAlerts, OfferTheNewerRelease)
{
    const Alert alert = updateAlert({Kind::newer, kRelease}, "1.2");
    EXPECT_EQ(alert.title, "Lorva 1.3 Is Available");
    EXPECT_THAT(alert.body.toStdString(),
                testing::MatchesRegex("Version 1\\.3 was released on .*2\\. November 2026\\. You "
                                      "have version 1\\.2\\.\n\n%1 fewer <b>bugs</b>\\."));
    const std::vector<Alert::Button> buttons{{"Open Release Page", Alert::Role::accept},
                                             {"Not Now", Alert::Role::cancel}};
    EXPECT_EQ(alert.buttons, buttons);

    Release silent = kRelease;
    silent.summary.clear();
    EXPECT_FALSE(updateAlert({Kind::newer, silent}, "1.2").body.contains(u'\n'));
}

TEST_F(UpdateAlerts, SayThatNothingIsToBeDone)
{
    for (const char *announced : {"1.2", "1.1"}) {
        Release release = kRelease;
        release.version = QString::fromLatin1(announced);
        const Alert alert = updateAlert({Kind::upToDate, release}, "1.2");
        EXPECT_EQ(alert.title, "You’re Up to Date");
        EXPECT_EQ(alert.body, "There is no newer version than yours, Lorva 1.2.");
        EXPECT_EQ(alert.style, Alert::Style::informational);
    }
}

TEST_F(UpdateAlerts, SayWhatFailedAndWhatHelps)
{
    const struct
    {
        ErrorKind kind;
        const char *what;
        const char *help;
    } rows[]{
        {ErrorKind::ioFailure, "can’t be reached", "Check your internet connection"},
        {ErrorKind::cancelled, "took too long", "Try again"},
        {ErrorKind::notFound, "none to announce", "Try again"},
        {ErrorKind::permissionDenied, "not secure", "on another one"},
        {ErrorKind::invalidValue, "not come from the makers", "another network"},
        {ErrorKind::unsupported, "too old", "where you got Lorva"},
        {ErrorKind::typeMismatch, "another program", "where you got Lorva"},
        {ErrorKind::malformed, "can’t be understood", "sign in"},
        {ErrorKind::tooLarge, "can’t be understood", "sign in"},
    };
    for (const auto &row : rows) {
        const Alert alert =
            updateAlert({Kind::failed, std::nullopt, Error{row.kind, "the %1 reason"}}, "1.2");
        EXPECT_EQ(alert.title, "Lorva Couldn’t Check for Updates");
        EXPECT_THAT(alert.body.toStdString(),
                    testing::AllOf(HasSubstr(row.what), HasSubstr(row.help)));
        EXPECT_EQ(alert.note, "Details: the %1 reason.");
        EXPECT_EQ(alert.style, Alert::Style::warning);
        EXPECT_EQ(alert.buttons.size(), 1U);
        EXPECT_FALSE(QString(alert.title + alert.body + alert.note).contains(u'!'));
    }
}

TEST_F(UpdateAlerts, SayWhoBringsUpdatesWhereLorvaDoesNotLook)
{
    const Alert absent = noUpdatesAlert(std::nullopt);
    EXPECT_THAT(absent.body.toStdString(),
                HasSubstr("your system’s software updates bring new versions."));
    EXPECT_EQ(absent.style, Alert::Style::informational);
    EXPECT_EQ(noUpdatesAlert(Error{ErrorKind::unsupported, "no address"}), absent);

    const Alert broken = noUpdatesAlert(Error{ErrorKind::invalidValue, "the key is none"});
    EXPECT_THAT(broken.body.toStdString(), HasSubstr("software updates"));
    EXPECT_EQ(broken.note, "Details: the key is none.");
    EXPECT_EQ(broken.style, Alert::Style::warning);
}

} // namespace
} // namespace lorva
