// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/UserLanguages.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <map>

namespace lorva {
namespace {

struct EnvironmentRow
{
    const char *name;
    std::map<QByteArray, QByteArray> variables;
    QStringList languages;
};

class UserLanguages : public testing::TestWithParam<EnvironmentRow>
{
protected:
    void SetUp() override
    {
        for (const char *variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
            qunsetenv(variable);
        for (const auto &[name, value] : GetParam().variables)
            qputenv(name.constData(), value);
    }
};

TEST_P(UserLanguages, AreWhatTheEnvironmentSays)
{
    EXPECT_EQ(userLanguages(), GetParam().languages);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UserLanguages,
    testing::Values(
        EnvironmentRow{"Nothing", {}, {}},
        EnvironmentRow{"TheLanguage", {{"LANG", "de_DE.UTF-8"}}, {"de_DE.UTF-8"}},
        EnvironmentRow{"MessagesBeforeTheRest",
                       {{"LANG", "de_DE.UTF-8"}, {"LC_MESSAGES", "ja_JP.UTF-8"}},
                       {"ja_JP.UTF-8"}},
        EnvironmentRow{"EmptyIsNotSet", {{"LC_ALL", ""}, {"LANG", "ko_KR.UTF-8"}}, {"ko_KR.UTF-8"}},
        EnvironmentRow{"AListComesFirst",
                       {{"LANGUAGE", "zh_TW::zh_CN"}, {"LANG", "de_DE.UTF-8"}},
                       {"zh_TW", "zh_CN", "de_DE.UTF-8"}},
        EnvironmentRow{
            "CEndsTheList", {{"LANGUAGE", "fr:C:de"}, {"LANG", "de_DE.UTF-8"}}, {"fr", "en"}},
        EnvironmentRow{
            "PosixEndsTheList", {{"LANGUAGE", "POSIX"}, {"LANG", "de_DE.UTF-8"}}, {"en"}},
        EnvironmentRow{"CAsksForNone", {{"LANGUAGE", "de"}, {"LC_ALL", "C"}}, {}},
        EnvironmentRow{"PosixAsksForNone", {{"LANGUAGE", "de"}, {"LANG", "POSIX"}}, {}}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
} // namespace lorva
