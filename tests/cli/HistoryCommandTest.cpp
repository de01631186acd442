// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ActivationHome.h"

#include <QRegularExpression>

#include <sys/stat.h>

namespace lorva {
namespace {

using test::expect;
using test::expectFailure;
using test::lorvactl;
using test::path;

/// With times, which the cases cannot know, as "TIME".
class HistoryCommand : public test::ActivationHome
{
protected:
    HistoryCommand() { done({"folders", "add", path(library)}); }

    static std::string told(const QStringList &options = {})
    {
        static const QRegularExpression times(
            QStringLiteral("2\\d{3}-\\d\\d-\\d\\d[ T]\\d\\d:\\d\\d:\\d\\d(\\.\\d{3}Z)?"));
        const std::string out = done(QStringList{"history"} + options);
        return QString::fromStdString(out).replace(times, QStringLiteral("TIME")).toStdString();
    }

    const FilePath history = data.child("Lorva").child("activation-history.jsonl");
};

TEST_F(HistoryCommand, TellsTheNewestFirst)
{
    EXPECT_EQ(told(), "");
    EXPECT_EQ(test::json({"history"}).array(), QJsonArray());
    const FilePath alpha = addFont(library, "Alpha");
    const FilePath bold = addFont(library, "Alpha", "Bold");
    const FilePath beta = addFont(library, "=Beta");
    done({"activate", "Alpha", "--method", "copy"});
    done({"activate", "=Beta", "--method", "register"});
    done({"activate", "=Beta", "--method", "register"});
    done({"deactivate", "=Beta", "--dry-run"});
    const FilePath to = makeFolder("to");
    done({"deactivate", "Alpha", "--to", path(to)});
    lorvactl({"deactivate", "Nothing"});

    const FilePath copy = fonts.child(alpha.fileName());
    const FilePath boldCopy = fonts.child(bold.fileName());
    const std::string moved = "TIME\tmoved\tAlpha\t" + to.bytes().toStdString() + "\n";
    const std::string newest = told({"--limit", "1"});
    EXPECT_TRUE(newest.starts_with(moved)) << newest;
    EXPECT_EQ(told(),
              newest + "TIME\tregistered\t=Beta\n" + line("\tdone", beta) + "TIME\tcopied\tAlpha\n"
                  + line("\tdone", bold) + line("\tdone", alpha));

    const QJsonArray json = test::json({"history"}).array();
    ASSERT_EQ(json.size(), 3);
    EXPECT_EQ(json[0]["action"], "moved");
    EXPECT_EQ(json[0]["destinationURL"], QString::fromUtf8(to.toUrl()));
    EXPECT_EQ(json[1]["families"].toArray(), QJsonArray{"=Beta"});
    EXPECT_EQ(json[1]["files"][0]["fileURL"], QString::fromUtf8(beta.toUrl()));
    EXPECT_EQ(json[1]["files"][0]["outcome"], "done");
    EXPECT_TRUE(json[0]["when"].toString() > json[2]["when"].toString());

    EXPECT_EQ(told({"--csv", "--limit", "2"}).substr(0, 57),
              "when,action,destination,families,file,result,reason\r\nTIME");
    EXPECT_NE(told({"--csv"}).find("TIME,registered,,'=Beta," + beta.bytes().toStdString()
                                   + ",done,\r\n"),
              std::string::npos);
}

TEST_F(HistoryCommand, TellsWhyAFileFailedAndNeedsNoLineToBeWhole)
{
    addFont(library, "Alpha");
    const FilePath file = test::writeFile(
        history.parent(), history.fileName(),
        R"({"when":"2030-01-02T03:04:05.678Z","action":"restored","families":["A\n"],"files":[)"
        R"({"path":"file:///x%FF","fate":"failed","reason":"It is not\tin the Trash"},)"
        R"({"path":"file:///y","fate":"left"}]})"
        "\n{\"when\":\"2030");
    EXPECT_EQ(told(),
              "TIME\trestored\tA\\n\n\tfailed\t/x\\xff\tIt is not\\tin the Trash\n\tleft\t/y\n");
    done({"activate", "Alpha", "--method", "copy"});
    EXPECT_EQ(test::json({"history"}).array().size(), 2) << "half a line spoils no other";
}

TEST_F(HistoryCommand, RefusesWhatItDoesNotUnderstand)
{
    expect({
        {{"history", "Alpha"}, "history takes no further words", 2},
        {{"history", "--limit", "0"}, "--limit", 2},
        {{"history", "--limit", "x"}, "--limit", 2},
        {{"history", "--json", "--csv"}, "not both", 2},
        {{"history", "--xml"}, "--xml", 2},
    });
    EXPECT_NE(done({"history", "--help"}).find("Usage: lorvactl history"), std::string::npos);
    ASSERT_EQ(::mkdir(history.c_str(), 0700), 0);
    expectFailure(lorvactl({"history"}), 1, "activation-history.jsonl");
}

} // namespace
} // namespace lorva
