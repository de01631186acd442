// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/XdgFolders.h"

#include <QHash>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using Variables = QHash<QByteArray, QByteArray>;

PlatformFolders foldersFor(const Variables &variables)
{
    return xdgFolders([&variables](const char *name) { return variables.value(name); });
}

struct Row
{
    const char *what;
    Variables variables;
    const char *userFonts;
    const char *applicationSupport;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.what;
}

class XdgDataHome : public testing::TestWithParam<Row>
{
};

TEST_P(XdgDataHome, decidesWhereTheUsersThingsLie)
{
    const PlatformFolders folders = foldersFor(GetParam().variables);
    EXPECT_EQ(folders.userFonts.bytes(), GetParam().userFonts);
    EXPECT_EQ(folders.applicationSupport.bytes(), GetParam().applicationSupport);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, XdgDataHome,
    testing::Values(
        Row{"standard", {{"HOME", "/h"}}, "/h/.local/share/fonts", "/h/.local/share/Lorva"},
        Row{"set", {{"HOME", "/h"}, {"XDG_DATA_HOME", "/d"}}, "/d/fonts", "/d/Lorva"},
        Row{"relativeIsIgnored",
            {{"HOME", "/h"}, {"XDG_DATA_HOME", "d"}},
            "/h/.local/share/fonts",
            "/h/.local/share/Lorva"},
        Row{"slashesAreTidied",
            {{"HOME", "/h/"}, {"XDG_DATA_HOME", "/d//e/"}},
            "/d/e/fonts",
            "/d/e/Lorva"},
        Row{"noText",
            {{"HOME", "/h\xff"}},
            "/h\xff/.local/share/fonts",
            "/h\xff/.local/share/Lorva"}),
    [](const auto &row) { return row.param.what; });

std::vector<QByteArray> systemFontsFor(const Variables &variables)
{
    std::vector<QByteArray> paths;
    for (const FilePath &folder : foldersFor(variables).systemFonts)
        paths.push_back(folder.bytes());
    return paths;
}

TEST(XdgFolders, systemFoldersAreTheSharedOnesButNotTheTwoThatHaveARoleOfTheirOwn)
{
    using testing::ElementsAre;
    EXPECT_THAT(systemFontsFor({{"HOME", "/h"}}), ElementsAre("/usr/share/fonts", "/h/.fonts"));
    EXPECT_THAT(systemFontsFor({{"HOME", "/h"},
                                {"XDG_DATA_DIRS",
                                 "/usr/local/share/:/opt/share::rel:"
                                 "/h/.local/share:/opt//share/:/usr/share"}}),
                ElementsAre("/usr/share/fonts", "/h/.fonts", "/opt/share/fonts"));
}

TEST(XdgFolders, withoutUsableHomeTheAccountDecides)
{
    const FilePath home = foldersFor({}).home;
    EXPECT_TRUE(home.bytes().startsWith('/'));
    EXPECT_EQ(foldersFor({{"HOME", "relative"}}).home, home);
}

} // namespace
} // namespace lorva
