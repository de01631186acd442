// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CatalogCache.h"
#include "OrganizationHome.h"
#include "platform/SqlitePreferenceStore.h"

namespace lorva {
namespace {

using test::lorvactl;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

class DoctorCommand : public test::OrganizationHome
{
protected:
    std::string told(int exitCode) const
    {
        return test::toldByDoctor(exitCode, [this] { return files(); });
    }
    FilePath preferences() const { return folder.child("preferences.sqlite"); }
};

TEST_F(DoctorCommand, CreatesNothing)
{
    EXPECT_THAT(told(0), Not(HasSubstr("wrong")));
    EXPECT_NE(::access(folder.c_str(), F_OK), 0);
}

TEST_F(DoctorCommand, TellsWhatIsStored)
{
    // Left open, so that the values are still in the log.
    SqlitePreferenceStore open(folder);
    open.setData("vantrel.merid.collections",
                 R"([{"id":"a","name":"A","familyNames":["Alpha","Gone"]}])");
    open.setData("vantrel.merid.styles",
                 R"([{"id":"serif","name":"Serif","familyNames":["Gone"]}])");
    open.setStringDictionary("vantrel.merid.foundryOverrides", {{"Away", "klim"}});
    open.setString("vantrel.merid.windowFrame.LorvaMainWindow", "1 2 3\n4");
    open.setBoolean("some.other", true);
    const CatalogSnapshot snapshot{makeFamilyList({{"Alpha", {}, {}, {}, {}}}), {}};
    test::writeFile(folder, "catalog.json", encodeSnapshot(snapshot));
    const std::string text = told(0);
    for (const char *line :
         {"ok\t[^\t]*/Lorva/preferences.sqlite\t[0-9]+ bytes, preferences: 5\n",
          "ok\t[^\t]*/preferences.sqlite\tchanges can be written\n",
          "ok\tvantrel.merid.collections\tdata, 54 bytes: 1 entry\n",
          "ok\tvantrel.merid.foundryOverrides\tstringDictionary, 15 bytes: 1 entry\n",
          "ok\tvantrel.merid.windowFrame.LorvaMainWindow\tstring, 7 bytes: 1 2 3\\\\n4\n",
          "note\tsome.other\tboolean, 1 byte, unknown",
          "ok\t[^\t]*/parse-cache.json\tnot there yet\n",
          "ok\t[^\t]*/catalog.json\t[0-9]+ bytes, 1 family\n",
          "note\torganisation\t2 of the 3 families"})
        EXPECT_THAT(text, ContainsRegex(line));
    const QJsonObject json = test::json({"doctor"}).object();
    EXPECT_EQ(json["isWell"], true);
    EXPECT_EQ(json["findings"].toArray().size(), std::count(text.begin(), text.end(), '\n'));
    const QJsonObject first = json["findings"].toArray()[0].toObject();
    EXPECT_EQ(first["state"], QStringLiteral("ok"));
    EXPECT_EQ(first["check"], QStringLiteral("preferenceFile"));
}

TEST_F(DoctorCommand, TellsWhatCannotBeRead)
{
    struct Case
    {
        const char *key;
        PreferenceRow row;
        const char *words;
    };
    const Case cases[]{
        {"vantrel.merid.collections", {"data", "{}"}, "data, 2 bytes, cannot be read: expected"},
        {"vantrel.merid.styles", {"boolean", "1"}, "boolean, 1 byte, cannot be read: not a whole"},
        {"vantrel.merid.displaySettings", {"data", R"({"allFonts":{"logoVisible":1}})"}, "logoVis"},
        {"vantrel.merid.dismissedFoundries", {"stringArray", "[1]"}, "cannot be read"},
        {"vantrel.merid.foundryOverrides", {"stringDictionary", "["}, "cannot be read"},
        {"vantrel.merid.logo", {"data", "{}"}, "cannot be read"},
        {"vantrel.merid.hasSeenQuizIntro", {"boolean", "yes"}, "cannot be read"},
        {"vantrel.merid.windowFrame.LorvaMainWindow", {"string", "\xff"}, "cannot be read"},
    };
    for (const Case &each : cases) {
        store(each.key, each.row);
        EXPECT_THAT(told(1),
                    testing::AllOf(HasSubstr(std::string("wrong\t") + each.key + '\t'),
                                   HasSubstr(each.words)));
        store(each.key, std::nullopt);
    }
    store("vantrel.merid.styles.unreadable.2", PreferenceRow{"later kind", "?"});
    EXPECT_THAT(told(0), HasSubstr("note\tvantrel.merid.styles.unreadable.2\tlater kind, 1 byte"));
}

TEST_F(DoctorCommand, LeavesADamagedFileWhereItIs)
{
    store("vantrel.merid.collections", PreferenceRow{"data", QByteArray(20000, ' ')});
    const QByteArray sound = test::readFile(preferences());
    const QByteArray damages[]{"no database at all, but long enough to be looked at",
                               sound.first(4096),
                               sound.first(100) + QByteArray(sound.size() - 100, '\xff')};
    for (const QByteArray &damage : damages) {
        test::writeFile(folder, "preferences.sqlite", damage);
        EXPECT_THAT(told(1), ContainsRegex("wrong\t[^\t]*preferences.sqlite\tcannot be read: "));
    }
    // The program itself moves it aside.
    EXPECT_EQ(lorvactl({"collections"}).exitCode, 1);
    EXPECT_THAT(told(0), ContainsRegex("note\t[^\t]*sqlite.damaged-[0-9-]+\tdamaged preferences"));
}

TEST_F(DoctorCommand, TellsOfCachesOfNoUse)
{
    test::writeFile(folder, "parse-cache.json", R"({"version":9})");
    test::writeFile(folder, "catalog.json", R"({"families":[{}],"manufacturers":{}})");
    const std::string text = told(0);
    EXPECT_THAT(text,
                ContainsRegex("note\t[^\t]*parse-cache.json\tof no use, [^\n]*by the next scan: "));
    EXPECT_THAT(
        text,
        ContainsRegex("note\t[^\t]*catalog.json\tof no use, [^\n]*window[^\n]*families\\[0\\]"));
    const FilePath catalog = folder.child("catalog.json");
    ::unlink(catalog.c_str());
    ASSERT_EQ(::mkdir(catalog.c_str(), 0700), 0);
    EXPECT_THAT(told(1), ContainsRegex("wrong\t[^\t]*catalog.json\tcannot be read: "));
}

TEST_F(DoctorCommand, TellsWhyNothingCanBeWritten)
{
    store("vantrel.merid.hasSeenQuizIntro", PreferenceRow{"boolean", "1"});
    auto other = SqliteConnection::open(preferences(), SqliteConnection::Access::readWrite);
    ASSERT_TRUE(other && other->run("BEGIN IMMEDIATE"));
    EXPECT_THAT(told(1),
                HasSubstr("cannot be written: process " + std::to_string(::getpid()) + " keeps"));
    ASSERT_TRUE(other->run("ROLLBACK"));
    EXPECT_THAT(told(0), HasSubstr("hasSeenQuizIntro\tboolean, 1 byte: true"));

    ::chmod(folder.c_str(), 0555);
    {
        const test::AsOrdinaryUser user;
        EXPECT_THAT(told(1), HasSubstr("changes cannot be written: cannot write"));
    }
    ::chmod(folder.c_str(), 0755);

    ::rename(folder.c_str(), data.child("Sound").c_str());
    ASSERT_EQ(::mkdir(folder.c_str(), 0700), 0);
    ASSERT_EQ(::symlink("preferences.sqlite", preferences().c_str()), 0);
    EXPECT_THAT(told(1), HasSubstr("changes cannot be written: cannot look at"));
    ::unlink(preferences().c_str());
    ASSERT_EQ(::mkdir(preferences().c_str(), 0700), 0);
    EXPECT_THAT(told(1), HasSubstr("is no regular file"));
}

} // namespace
} // namespace lorva
