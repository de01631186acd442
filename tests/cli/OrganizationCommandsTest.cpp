// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/RecordsJson.h"
#include "OrganizationHome.h"

#include <memory>

namespace lorva {
namespace {

using test::expect;
using test::Expected;
using test::lorvactl;
using test::Outcome;
using test::path;
using test::shell;
using testing::HasSubstr;

using OrganizationCommands = test::OrganizationHome;

TEST_F(OrganizationCommands, SortFamiliesIntoCollections)
{
    expect({
        {{"collections"}, ""},
        {{"collections", "create", "Posters", "Zeta", "alpha"}, ""},
        {{"collections", "create", "Äther"}, ""},
        {{"collections"}, "Äther\t0\nPosters\t2\n"},
        {{"collections", "list", "posters"}, "Zeta\nAlpha\n"},
        {{"collections", "add", "POSTERS", "Delta", "Zeta", "--missing", "Not\there"}, ""},
        {{"collections", "list", "Posters"}, "Zeta\nAlpha\nDelta\nNot\\there\n"},
        {{"collections", "add", "Äther", "Not\\there"}, ""},
        {{"collections", "list", "äther"}, "Not\\there\n"},
        {{"collections", "remove", "Posters", "ZETA", "not\there"}, ""},
        {{"collections", "set", "Äther", "Gamma", "Beta", "Gamma"}, ""},
        {{"collections", "list", "Äther"}, "Gamma\nBeta\n"},
        {{"collections", "rename", "Äther", "ÄTHER\nx"}, ""},
        {{"collections", "delete", "posters"}, ""},
        {{"collections", "list"}, "ÄTHER x\t2\n"},
    });
    const QString feed = QStringLiteral("printf 'Alpha\r\n\nBeta' | lorvactl collections %1 -");
    EXPECT_EQ(shell(feed.arg(u"set 'Äther X'")).exitCode, 0);
    expect({{{"collections", "list", "äther x"}, "Alpha\nBeta\n"}});

    const auto records =
        decodeJson<std::vector<FontCollectionRecord>>(lorvactl({"collections", "--json"}).out);
    ASSERT_TRUE(records && records->size() == 1);
    EXPECT_EQ(records->front().familyNames, (QStringList{"Alpha", "Beta"}));
    const Outcome one = lorvactl({"collections", "list", records->front().id, "--json"});
    EXPECT_EQ(one.out, encodeJson(records->front()) + '\n');
}

TEST_F(OrganizationCommands, ChangeNothingWhenAnythingIsWrong)
{
    expect({{{"collections", "create", "One", "Alpha"}, ""}});
    const auto before = files();
    expect({
        {{"collections", "add", "One", "Beta", "Nobody"}, "no family \"Nobody\"", 1},
        {{"collections", "create", "Two", "Nobody"}, "no family \"Nobody\"", 1},
        {{"collections", "create", "ONE"}, "there is a collection \"One\" already", 1},
        {{"collections", "create", " \u202e\n"}, "name", 1},
        {{"collections", "add", "One", "dELTA"}, "Delta, delta", 1},
        {{"collections", "add", "One", ""}, "empty", 2},
        {{"collections", "remove", "One", "Alpha", "Beta"},
         "\"Beta\" is not in collection \"One\"",
         1},
        {{"collections", "delete", "Three"}, "no collection \"Three\"", 1},
        {{"collections", "list", "Three"}, "no collection \"Three\"", 1},
        {{"collections", "add", "One", "Beta", "--folder", "/nowhere"}, "/nowhere", 1},
        {{"collections", "add", "One"}, "more words", 2},
        {{"collections", "rename", "One"}, "more words", 2},
        {{"collections", "delete", "One", "Two"}, "fewer words", 2},
        {{"collections", "drop", "One"}, "unknown verb drop", 2},
        {{"collections", "delete", "One", "--json"}, "takes no --json", 2},
        {{"collections", "delete", ""}, "empty name", 2},
        {{"styles", "rename", "serif", "X"}, "style \"Serif\", which cannot", 1},
        {{"styles", "delete", "Sans-Serif"}, "style \"Sans-Serif\", which cannot", 1},
        {{"styles", "create", "mono"}, "there is a style \"Mono\" already", 1},
        {{"styles", "remove", "serif", "Alpha"}, "\"Alpha\" is not in style \"Serif\"", 1},
        {{"foundries", "create", "New"}, "comes from the fonts", 1},
        {{"foundries", "rename", "Klim"}, "--original", 2},
        {{"foundries", "add", "Nobody", "Alpha"}, "no foundry \"Nobody\"", 1},
        {{"foundries", "remove", "klim", "Zeta"}, "\"Zeta\" is not in foundry \"Klim\"", 1},
        {{"search"}, "one text", 2},
    });
    test::expectFailure(shell("lorvactl collections delete \"$(printf 'a\\377')\""), 2, "UTF-8");
    test::expectFailure(shell("printf 'a\\377' | lorvactl collections add One -"), 2, "UTF-8");
    test::expectFailure(shell("true | lorvactl collections set One -"), 2, "names none");
    EXPECT_EQ(files(), before);
}

TEST_F(OrganizationCommands, AskForTheIdWhereNamesAreTheSame)
{
    store("vantrel.merid.collections",
          PreferenceRow{"data", R"([{"id":"a","name":"X","familyNames":["Alpha"]},
                       {"id":"b","name":"X","familyNames":[]},
                       {"id":"c","name":"x","familyNames":["Beta"]},
                       {"id":"d","name":"a","familyNames":[]},
                       {"id":"e","name":"Back\\slash","familyNames":["Zeta"]}])"});
    expect({
        {{"collections", "delete", "X"}, "a, b", 1},
        {{"collections", "list", "x"}, "Beta\n"},
        {{"collections", "delete", "a"}, ""},
        {{"collections", "list", "back\\\\SLASH"}, "Zeta\n"},
        {{"collections", "list", " Back\\slash\n"}, "Zeta\n"},
        {{"collections", "list"}, "a\t0\nBack\\\\slash\t1\nX\t0\nx\t1\n"},
    });
}

TEST_F(OrganizationCommands, SortFamiliesIntoStyles)
{
    expect({
        {{"styles", "create", "Woodtype", "Alpha", "Beta"}, ""},
        {{"styles", "add", "serif", "Beta", "Zeta", "Gamma"}, ""},
        {{"styles", "list", "Serif"}, "Beta\nGamma\nZeta\n"},
        {{"styles", "set", "Serif", "Alpha", "Gamma"}, ""},
        {{"styles"},
         "Serif\t2\nSans-Serif\t0\nDisplay\t0\nMono\t0\nScript\t0\nDecorative\t0\n"
         "Woodtype\t0\n"},
        {{"styles", "remove", "Serif", "gamma"}, ""},
        {{"styles", "list", "serif"}, "Alpha\n"},
        {{"styles", "rename", "woodtype", "Wood"}, ""},
        {{"styles", "list", "Wood"}, ""},
        {{"styles", "delete", "Wood"}, ""},
        {{"styles", "list", "Wood"}, "no style", 1},
    });
}

TEST_F(OrganizationCommands, CorrectFoundries)
{
    expect({
        {{"foundries"}, "Acme\t3\nKlim\t3\n"},
        {{"foundries", "add", "klim", "Zeta"}, ""},
        {{"foundries", "remove", "Klim", "Alpha"}, ""},
        {{"foundries", "list", "Klim"}, "Beta\nGamma\nZeta\n"},
        {{"foundries", "add", "Klim", "Alpha"}, ""},
        {{"foundries", "rename", "Klim", "Klim & Co."}, ""},
        {{"foundries"}, "Acme\t2\nKlim & Co.\t4\n"},
        {{"foundries", "set", "klim & co.", "Gamma", "Delta"}, ""},
        {{"foundries", "list", "klim"}, "Delta\nGamma\n"},
        {{"foundries", "list", "Acme"}, "delta\nZeta\n"},
        {{"foundries", "reset", "alpha", "Beta", "Delta"}, ""},
        {{"foundries", "rename", "klim", "--original"}, ""},
        {{"foundries"}, "Acme\t3\nKlim\t3\n"},
        {{"foundries", "delete", "ACME"}, ""},
        {{"foundries"}, "Klim\t3\n"},
        {{"foundries", "list", "--hidden"}, "Acme\t3\n"},
        {{"foundries", "show", "Acme"}, ""},
        {{"foundries", "hide", "Klim"}, ""},
        {{"foundries", "list", "Klim"}, "no foundry", 1},
        {{"foundries", "list", "Klim", "--hidden"}, "Alpha\nBeta\nGamma\n"},
        {{"foundries", "show", "klim"}, ""},
        {{"foundries"}, "Acme\t3\nKlim\t3\n"},
    });
    EXPECT_THAT(lorvactl({"export"}).out.toStdString(),
                HasSubstr("\"overrides\": {},\n    \"names\": {},\n    \"dismissed\": []"))
        << "what the fonts say again is no correction";
}

TEST_F(OrganizationCommands, SearchAsTheWindowDoes)
{
    const FilePath more = test::makeCaseFolder().child("more");
    test::writeFile(
        more, "h.ttf",
        test::FontBuilder("Kaku").name(1, "ヒラギノ", 0x411).postScriptName("K").build());
    const auto found = [&](const QString &typed) {
        return lorvactl({"search", typed, "--folder", path(more)}).out;
    };
    EXPECT_EQ(found("ひら"), "Kaku\tRegular\n");
    EXPECT_EQ(found("ＡＣＭＥ"), "Delta\tRegular\ndelta\tRegular\nZeta\tRegular\n");
    EXPECT_EQ(found("nothing like it"), "");
    const auto records = decodeFamilies(lorvactl({"search", "alph", "--json"}).out);
    ASSERT_TRUE(records && records->size() == 1);
    EXPECT_EQ(records->front().familyName, "Alpha");
}

TEST_F(OrganizationCommands, LoseNothingWhenManyRunAtOnce)
{
    expect({{{"collections", "create", "Shared"}, ""}});
    std::vector<std::unique_ptr<QProcess>> processes;
    const auto start = [&](const QStringList &arguments) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(QStringLiteral(LORVACTL_PATH), arguments);
    };
    for (const char *family : {"Alpha", "Beta", "Gamma", "Delta", "delta", "Zeta"}) {
        start({"collections", "create", QString::number(processes.size())});
        start({"collections", "add", "Shared", QLatin1String(family)});
        start({"styles", "add", "serif", QLatin1String(family)});
    }
    for (const auto &process : processes) {
        const Outcome outcome = test::finished(*process);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
    }
    const QByteArray list = lorvactl({"collections"}).out;
    EXPECT_EQ(list.count('\n'), 7);
    EXPECT_THAT(list.toStdString(), HasSubstr("Shared\t6\n"));
    EXPECT_TRUE(lorvactl({"styles"}).out.startsWith("Serif\t6\n"));
}

TEST_F(OrganizationCommands, FailWhereTheyCannotWrite)
{
    expect({{{"collections", "create", "Kept"}, ""}});
    const FilePath file = folder.child("preferences.sqlite");
    const Expected kept{{"collections"}, "Kept\t0\n"};
    const Expected unreadable{{"collections"}, "preferences.sqlite", 1};
    const auto expectFor = [&](mode_t folderMode, mode_t fileMode, const Expected &listed) {
        ::chmod(file.c_str(), fileMode);
        ::chmod(folder.c_str(), folderMode);
        {
            const test::AsOrdinaryUser user;
            expect({{{"collections", "create", "Lost"}, "preferences.sqlite", 1}, listed});
        }
        ::chmod(folder.c_str(), 0755);
        ::chmod(file.c_str(), 0644);
        expect({kept});
    };
    expectFor(0555, 0444, kept);
    expectFor(0555, 0000, unreadable);
    expectFor(0000, 0000, unreadable);

    auto other = SqliteConnection::open(file, SqliteConnection::Access::readWrite);
    ASSERT_TRUE(other && other->run("BEGIN IMMEDIATE"));
    expect({{{"collections", "create", "Late"}, "preferences.sqlite", 1}, kept});
    ASSERT_TRUE(other->run("ROLLBACK"));
    expect(
        {{{"collections", "create", "In time"}, ""}, {{"collections"}, "In time\t0\nKept\t0\n"}});
}

TEST_F(OrganizationCommands, TakeNoTroubleForAnEmptyOrganisation)
{
    const QByteArray preferences = folder.child("preferences.sqlite").bytes();
    const auto expectTrouble = [&](const char *trouble) {
        SCOPED_TRACE(trouble);
        for (const QStringList &command :
             {QStringList{"collections"}, {"collections", "delete", "One"}, {"export"}})
            test::expectFailure(lorvactl(command), 1, "preferences.sqlite");
    };
    test::writeFile(data, "Lorva", "");
    expectTrouble("a file in the place of the folder");
    ::unlink(folder.c_str());
    ASSERT_EQ(::mkdir(folder.c_str(), 0700), 0);
    ASSERT_EQ(::symlink("preferences.sqlite", preferences.constData()), 0);
    expectTrouble("a link to itself");
    ::unlink(preferences.constData());
    ASSERT_EQ(::mkdir(preferences.constData(), 0700), 0);
    expectTrouble("a folder");
    ::rmdir(preferences.constData());

    for (const QStringList &command : {QStringList{"collections", "create", "One"}, {"export"}}) {
        test::writeFile(folder, "preferences.sqlite", "damaged, and long enough to be looked at");
        test::expectFailure(lorvactl(command), 1, "could not be read and was moved to");
        expect({{{"collections"}, ""}});
    }
}

TEST_F(OrganizationCommands, SayWhatCannotBeReadAndKeepIt)
{
    for (const PreferenceRow &row :
         {PreferenceRow{"data", "{\"damaged"}, PreferenceRow{"boolean", "1"}}) {
        store("vantrel.merid.collections", row);
        expect({{{"collections"}, "vantrel.merid.collections", 1},
                {{"export"}, "vantrel.merid.collections", 1},
                {{"styles", "list", "serif"}, ""},
                {{"styles", "add", "serif", "Alpha"}, ""},
                {{"styles", "remove", "serif", "Alpha"}, ""}});
    }
    const Outcome created = lorvactl({"collections", "create", "Fresh"});
    EXPECT_EQ(created.exitCode, 0);
    EXPECT_EQ(created.error,
              "lorvactl: the preference vantrel.merid.collections cannot be read (not a whole "
              "value of kind data); what stood there is kept as "
              "vantrel.merid.collections.unreadable\n");
    expect({{{"collections"}, "Fresh\t0\n"}});
    EXPECT_THAT(lorvactl({"doctor"}).out.toStdString(),
                HasSubstr("note\tvantrel.merid.collections.unreadable\tboolean, 1 byte"));
}

} // namespace
} // namespace lorva
