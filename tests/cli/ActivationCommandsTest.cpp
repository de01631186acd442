// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ActivationHome.h"
#include "platform/PreferenceDatabase.h"

namespace lorva {
namespace {

using test::expect;
using test::expectFailure;
using test::lorvactl;
using test::Outcome;
using test::path;
using test::TestHome;
using testing::HasSubstr;

class ActivationCommands : public test::ActivationHome
{
protected:
    ActivationCommands() { done({"folders", "add", path(library)}); }

    void store(const char *key, const PreferenceRow &row) const
    {
        auto database =
            PreferenceDatabase::open(data.child("Lorva"), QDeadlineTimer(QDeadlineTimer::Forever));
        ASSERT_TRUE(database && database->write(QString::fromLatin1(key), row));
    }
    static std::string state(const QString &family)
    {
        const std::string told = done({"status", family});
        return told.substr(0, told.find('\n'));
    }
};

TEST_F(ActivationCommands, SwitchFontsOnAndOffForEveryProgram)
{
    struct Method
    {
        const char *name;
        const char *on;
        const char *state;
        const char *off;
    };
    const FilePath alpha = addFont(library, "Alpha");
    for (const Method &each :
         {Method{"copy", "copied", "Alpha\tactive (copied)", "trashed"},
          Method{"register", "registered", "Alpha\tactive (registered)", "withdrawn"}}) {
        SCOPED_TRACE(each.name);
        const QString method = QString::fromLatin1(each.name);
        EXPECT_FALSE(isListed("Alpha"));
        EXPECT_EQ(state("Alpha"), "Alpha\tinactive");
        EXPECT_EQ(done({"activate", "alpha", "--method", method}), line(each.on, alpha));
        EXPECT_TRUE(isListed("Alpha"));
        EXPECT_EQ(state("Alpha"), each.state);
        EXPECT_EQ(done({"activate", "Alpha", "--method", method}),
                  "Every user-controllable font in Alpha is already active.\n");

        const FilePath active =
            each.on == std::string("copied") ? fonts.child("Alpha-Regular.ttf") : alpha;
        EXPECT_EQ(done({"deactivate", "Alpha"}), line(each.off, active));
        EXPECT_FALSE(isListed("Alpha"));
        EXPECT_TRUE(exists(alpha));
        EXPECT_EQ(exists(trash("Alpha-Regular.ttf")), true);
        EXPECT_EQ(done({"deactivate", "Alpha"}), "No user-controllable active fonts in Alpha.\n");
    }
}

TEST_F(ActivationCommands, TakePartByFamilyFileCollectionAndLines)
{
    const FilePath alpha = addFont(library, "Alpha");
    const FilePath bold = addFont(library, "Alpha", "Bold");
    const FilePath beta = addFont(library, "Beta");
    const FilePath given = addFont(makeFolder("elsewhere"), "Given");
    done({"collections", "create", "Mine", "Beta", "Away", "--missing", "--folder", path(library)});

    expectFailure(lorvactl({"activate", "Alpha"}), 2, "needs --method copy or --method register");
    store("vantrel.merid.defaultInstallMethod", {"string", "register"});
    EXPECT_EQ(done({"activate", path(bold)}), line("registered", bold));
    EXPECT_EQ(state("Alpha"), "Alpha\tpartly active");
    EXPECT_EQ(done({"activate", "Alpha"}), line("registered", alpha));
    // The folder is no watched one; a relative path is the same file.
    EXPECT_EQ(done({"activate", QString(path(root) + "/library/../elsewhere/Given-Regular.ttf")}),
              line("registered", given));
    EXPECT_TRUE(isListed("Given"));
    EXPECT_EQ(done({"deactivate", "Given"}), line("withdrawn", given));

    const Outcome collection = lorvactl({"activate", "--collection", "mine"});
    EXPECT_EQ(collection.exitCode, 0);
    EXPECT_EQ(collection.out.toStdString(), line("registered", beta));
    EXPECT_EQ(collection.error, "lorvactl: this machine has no family \"Away\"\n");
    EXPECT_EQ(test::shell("printf 'Beta\nAlpha\n' | lorvactl deactivate -").out.toStdString(),
              line("withdrawn", beta) + line("withdrawn", bold) + line("withdrawn", alpha));
    // Active through the system, and not the user's to switch.
    EXPECT_EQ(done({"activate", "Sys", path(root.child("system").child("Sys-Regular.ttf"))}),
              "Every user-controllable font in Sys is already active.\n");
    EXPECT_EQ(done({"deactivate", "Sys"}), "No user-controllable active fonts in Sys.\n");
}

TEST_F(ActivationCommands, TellOfFamiliesThatShareAFile)
{
    using test::FontBuilder;
    const FilePath both = test::writeFile(
        library, "Both.ttc",
        FontBuilder::collection({FontBuilder("One").postScriptName("One-Regular").build(),
                                 FontBuilder("Two").postScriptName("Two-Regular").build()}));
    EXPECT_EQ(done({"activate", "One", "--method", "copy"}), line("copied", both) + "also\tTwo\n");
    EXPECT_TRUE(isListed("Two"));
    const QJsonObject json = test::json({"deactivate", "Two"}).object();
    EXPECT_EQ(json["families"].toArray(), QJsonArray{"Two"});
    EXPECT_EQ(json["alsoFamilies"].toArray(), QJsonArray{"One"});
    EXPECT_EQ(json["files"].toArray()[0].toObject()["outcome"], "trashed");
    EXPECT_FALSE(isListed("One"));
}

TEST_F(ActivationCommands, KeepOnlyCopies)
{
    const FilePath own = addFont(fonts, "Own");
    const FilePath known = addFont(library, "Known");
    done({"activate", "Known", "--method", "copy"});

    const Outcome refused = lorvactl({"deactivate", "Own", "Known"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.out.toStdString(), line("trashed", fonts.child("Known-Regular.ttf")));
    EXPECT_EQ(refused.error.count('\n'), 1);
    EXPECT_THAT(refused.error.toStdString(),
                HasSubstr(own.bytes().toStdString() + ": Lorva didn't"));
    EXPECT_TRUE(isListed("Own"));

    const FilePath to = makeFolder("to");
    test::writeFile(to, "Own-Regular.ttf", "another");
    const QByteArray bytes = test::readFile(own);
    EXPECT_EQ(done({"deactivate", "Own", "--to", path(to)}), line("moved", own));
    EXPECT_FALSE(isListed("Own"));
    EXPECT_EQ(test::readFile(to.child("Own-Regular.ttf")), "another");
    EXPECT_EQ(test::readFile(to.child("Own-Regular 2.ttf")), bytes);
}

TEST_F(ActivationCommands, RefuseDestinationsBeforeAnythingIsSwitched)
{
    const FilePath alpha = addFont(library, "Alpha");
    done({"activate", "Alpha", "--method", "register"});
    const FilePath link = root.child("link");
    ASSERT_EQ(::symlink(fonts.c_str(), link.c_str()), 0);
    const auto before = everything();
    const std::pair<FilePath, const char *> refused[]{
        {fonts, "lies in a Fonts folder"},
        {link.child("new").child("er"), "link/new/er lies in a Fonts folder"},
        {TestHome::instance().home().child(".fonts"), "lies in a Fonts folder"},
        {alpha.child("new"), "Alpha-Regular.ttf is no folder"},
    };
    for (const auto &[folder, words] : refused) {
        for (const QStringList &more : {QStringList(), {"--dry-run"}}) {
            expectFailure(lorvactl(QStringList{"deactivate", "Alpha", "--to", path(folder)} + more),
                          1, words);
        }
    }
    EXPECT_EQ(everything(), before);
}

TEST_F(ActivationCommands, TakeNoFileOfTheirOwnForAClosedOutput)
{
    addFont(library, "Alpha");
    expectFailure(test::shell("lorvactl activate Alpha --method register >&-"), 1,
                  "cannot write the output: Bad file");
    EXPECT_TRUE(isListed("Alpha"));
}

TEST_F(ActivationCommands, SayWhatTheUserMayNotDo)
{
    const FilePath alpha = addFont(library, "Alpha");
    ::chmod(alpha.c_str(), 0);
    for (const FilePath &folder : {TestHome::instance().home(), root, library})
        ::chmod(folder.c_str(), 0755);
    const FilePath empty = makeFolder("empty");
    ::chmod(empty.c_str(), 0777);
    qputenv("XDG_DATA_HOME", empty.bytes());
    const test::AsOrdinaryUser user;
    expect({
        {{"status", path(alpha)}, "Alpha-Regular.ttf: cannot read", 1},
        {{"deactivate", "Sys", "--to", path(library.child("new"))}, "cannot write into", 1},
    });
}

TEST_F(ActivationCommands, TellOfTheCopyWhenItsOriginalIsGiven)
{
    const FilePath alpha = addFont(library, "Alpha");
    const FilePath copy = fonts.child("Alpha-Regular.ttf");
    done({"activate", path(alpha), "--method", "copy"});
    EXPECT_THAT(done({"status", path(alpha)}), HasSubstr("\tas " + path(copy).toStdString()));
    EXPECT_EQ(done({"deactivate", path(alpha), "--dry-run"}), line("would be trashed", copy));
    EXPECT_EQ(done({"deactivate", path(alpha), path(copy)}), line("trashed", copy));
    EXPECT_TRUE(exists(alpha));
}

TEST_F(ActivationCommands, NeverTakeANamesakeForTheFont)
{
    const FilePath stranger =
        test::writeFile(fonts, "Alpha-Regular.ttf", test::FontBuilder("Stranger").build());
    const FilePath alpha = addFont(library, "Alpha");
    for (const QStringList &arguments :
         {QStringList{"activate", path(alpha), "--method", "copy"},
          QStringList{"deactivate", path(alpha)},
          QStringList{"deactivate", path(alpha), "--to", path(root.child("to"))},
          QStringList{"deactivate", path(alpha), "--dry-run"}})
        expectFailure(lorvactl(arguments), 1, "is another font than");
    EXPECT_TRUE(exists(stranger));
    EXPECT_TRUE(exists(alpha));
}

TEST_F(ActivationCommands, DoWhatTheyCan)
{
    const FilePath alpha = addFont(library, "Alpha");
    const FilePath noFont = test::writeFile(library, "Broken.ttf", "no font");
    const FilePath gone = library.child("Gone.ttf");
    const FilePath same = addFont(makeFolder("elsewhere"), "Alpha");
    const Outcome outcome = lorvactl({"activate", path(alpha), path(noFont), path(gone), path(same),
                                      path(library) + "/", "--method", "copy"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out.toStdString(), line("copied", alpha) + line("skipped", same));
    EXPECT_EQ(outcome.error.count('\n'), 3);
    for (const std::string &words :
         {gone.bytes().toStdString() + ": File not found\n",
          noFont.bytes().toStdString() + ": it holds no font", std::string("this is a folder")})
        EXPECT_THAT(outcome.error.toStdString(), HasSubstr(words));

    ::rename(fonts.c_str(), root.child("away").c_str());
    test::writeFile(data, "fonts", "a file");
    const FilePath beta = addFont(library, "Beta");
    for (const char *method : {"copy", "register"}) {
        const auto failed =
            lorvactl({"activate", "Beta", "--json", "--method", QString::fromLatin1(method)});
        EXPECT_EQ(failed.exitCode, 1) << method;
        const QJsonObject json = QJsonDocument::fromJson(failed.out).object();
        EXPECT_EQ(json["files"].toArray(), QJsonArray()) << method;
        const QJsonObject failure = json["failures"].toArray()[0].toObject();
        EXPECT_EQ(failure["fileURL"], QString::fromUtf8(beta.toUrl())) << method;
        EXPECT_NE(failure["reason"].toString(), "") << method;
    }
}

TEST_F(ActivationCommands, DryRunsChangeNothing)
{
    addFont(library, "Copied");
    const FilePath registered = addFont(library, "Registered");
    const FilePath inactive = addFont(library, "Inactive");
    done({"activate", "Copied", "--method", "copy"});
    done({"activate", "Registered", "--method", "register"});
    const FilePath copy = fonts.child("Copied-Regular.ttf");
    const QStringList on{"activate", "Copied", "Inactive", "--method", "copy", "--dry-run"};
    const QStringList off{"deactivate", "Copied", "Registered", "Inactive", "--dry-run"};
    const auto before = everything();
    EXPECT_EQ(done(on), line("would be copied", inactive));
    EXPECT_EQ(done(off), line("would be trashed", copy) + line("would be withdrawn", registered));
    EXPECT_EQ(done(QStringList(off) << "--to" << path(root.child("to"))),
              line("would be moved", copy) + line("would be withdrawn", registered));
    EXPECT_EQ(everything(), before);
}

TEST_F(ActivationCommands, StatusTellsFamiliesAndFiles)
{
    const FilePath copied = addFont(library, "Copied");
    const FilePath mixed = addFont(library, "Mixed");
    addFont(library, "Mixed", "Bold");
    addFont(library, "Off");
    const FilePath own = addFont(fonts, "Own");
    done({"activate", "Copied", "--method", "copy"});
    done({"activate", path(mixed), "--method", "register"});

    EXPECT_EQ(done({"status"}),
              "Copied\tactive (copied)\nMixed\tpartly active\nOff\tinactive\nOwn\tactive (copied)\n"
              "Sys\tactive (system)\n");
    const FilePath copy = fonts.child("Copied-Regular.ttf");
    const std::string copyLine = line("\tcopied", copy);
    EXPECT_EQ(done({"status", "Copied", path(own)}),
              "Copied\tactive (copied)\n" + copyLine.substr(0, copyLine.size() - 1) + "\tfrom "
                  + copied.bytes().toStdString() + "\nOwn\tactive (copied)\n\tcopied\t"
                  + own.bytes().toStdString() + "\torigin unknown\n");
    expectFailure(lorvactl({"status", path(library.child("gone.ttf"))}), 1, "File not found");

    const QJsonArray json = test::json({"status"}).array();
    QStringList told;
    for (const QJsonValue &each : json)
        told.push_back(QStringLiteral("%1 %2 %3")
                           .arg(each["method"].toString("-"))
                           .arg(each["isActive"].toBool())
                           .arg(each["isPartlyInactive"].toBool()));
    EXPECT_EQ(told, (QStringList{"copy 1 0", "register 1 1", "- 0 0", "copy 1 0", "system 1 0"}));
    EXPECT_EQ(json[1]["files"].toArray().size(), 2);
    const QJsonValue file = json[0]["files"][0];
    EXPECT_EQ(file["class"], "copied");
    EXPECT_EQ(file["originURL"], QString::fromUtf8(copied.toUrl()));
}

TEST_F(ActivationCommands, MendWhatAKilledRunHasLeft)
{
    const FilePath alpha = addFont(library, "Alpha");
    const FilePath copy = addFont(fonts, "Alpha");
    const QByteArray journal = R"({"copies":[{"from":")" + alpha.toUrl() + R"(","to":")"
        + copy.toUrl() + R"("}],"withdrawn":[]})";
    const FilePath left = test::writeFile(data.child("Lorva"), "activation-journal.json", journal);
    EXPECT_EQ(done({"deactivate", "Alpha"}), line("trashed", copy));
    EXPECT_FALSE(exists(left));
}

TEST_F(ActivationCommands, RefuseWhatTheyDoNotUnderstand)
{
    const FilePath here = addFont(TestHome::instance().home(), "Here");
    expect({
        {{"activate"}, "needs a family, a file or --collection", 2},
        {{"deactivate"}, "needs a family, a file or --collection", 2},
        {{"activate", "Sys", "--method", "link"}, "--method takes copy or register", 2},
        {{"activate", ""}, "cannot be empty", 2},
        {{"deactivate", "Sys", "--to", ""}, "--to needs the name of a folder", 2},
        {{"activate", "Sys", "--collection=", "--method=copy"}, "no empty name", 2},
        {{"activate", "Nope", "--method=copy"}, "there is no family \"Nope\"\n", 1},
        {{"deactivate", "Here-Regular.ttf"}, "; the file of that name is ./Here-Regular.ttf", 1},
        {{"deactivate", "--collection", "Nope"}, "there is no collection \"Nope\"", 1},
        {{"status", "Nope"}, "there is no family \"Nope\"", 1},
        {{"status", "--folder", "/nowhere"}, "there is no folder /nowhere", 1},
    });
    ::unlink(here.c_str());
    EXPECT_EQ(test::shell("lorvactl activate - --method=copy </dev/null").exitCode, 2);

    store("vantrel.merid.fontOrigins", {"stringDictionary", "["});
    // Importing what somebody sorted is no reason to give the books up.
    const QString exported = path(root.child("library.json"));
    done({"export", "-o", exported});
    done({"import", "--replace", exported});
    expectFailure(lorvactl({"status"}), 1, "fontOrigins cannot be read");
    addFont(library, "Alpha");
    const Outcome goesOn = lorvactl({"activate", "Alpha", "--method=copy"});
    EXPECT_EQ(goesOn.exitCode, 0);
    EXPECT_THAT(goesOn.error.toStdString(), HasSubstr("fontOrigins cannot be read"));
    EXPECT_THAT(done({"doctor"}), HasSubstr("vantrel.merid.fontOrigins.unreadable\t"));
    test::writeFile(data.child("Lorva"), "preferences.sqlite", QByteArray(9000, 'x'));
    for (const char *suffix : {"-wal", "-shm"})
        ::unlink(data.child("Lorva")
                     .child(QByteArray(QByteArray("preferences.sqlite") + suffix))
                     .c_str());
    expectFailure(lorvactl({"deactivate", "Alpha"}), 1, "could not be read and was moved to");
    EXPECT_TRUE(isListed("Alpha"));
}

} // namespace
} // namespace lorva
