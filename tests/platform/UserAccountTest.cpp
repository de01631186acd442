// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/UserAccount.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

namespace lorva {
namespace {

TEST(UserAccountTest, theNameIsTheFirstFieldOfTheComment)
{
    const struct
    {
        QByteArray comment;
        QByteArray login;
        QString name;
    } rows[]{
        {"Ada Lovelace,Room 1,555-1,", "ada", QStringLiteral("Ada Lovelace")},
        {"Ada Lovelace", "ada", QStringLiteral("Ada Lovelace")},
        {"  Ada \t Lovelace \n,", "ada", QStringLiteral("Ada Lovelace")},
        {"& Lovelace", "ada", QStringLiteral("Ada Lovelace")},
        {"Ada & Ada", "élan", QStringLiteral("Ada Élan Ada")},
        {",,,", "ada", QStringLiteral("ada")},
        {"", "ada", QStringLiteral("ada")},
        {"   ,Room 1", "ada", QStringLiteral("ada")},
        {"A\x1b[31mda\x7f", "ada", QStringLiteral("A[31mda")},
        {"\x01", "ada", QStringLiteral("ada")},
        {"Zoë 王", "zoe", QStringLiteral("Zoë 王")},
        {"Zo\xeb", "zoe", QStringLiteral("Zoë")},
        {"&", "", QString()},
        {QByteArray(), QByteArray(), QString()},
    };
    for (const auto &row : rows)
        EXPECT_EQ(accountFullName(row.comment, row.login), row.name) << row.comment.constData();
}

TEST(UserAccountTest, thisAccountHasItsOwn)
{
    const passwd *entry = ::getpwuid(::getuid());
    EXPECT_EQ(userFullName(), entry ? accountFullName(entry->pw_gecos, entry->pw_name) : QString());
}

} // namespace
} // namespace lorva
