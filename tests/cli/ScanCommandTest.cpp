// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "LorvactlSupport.h"
#include "support/FontBuilder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::lorvactl;
using test::path;
using test::TestHome;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

class ScanCommand : public testing::Test
{
protected:
    ScanCommand()
    {
        folder = TestHome::instance().makeFolder("scanned");
        add("1.ttf", FontBuilder("Foo", "Regular").postScriptName("Foo-R").codePoints(U"Aaz"));
        add("2.ttf", FontBuilder("Foo", "Bold").postScriptName("Foo-B").codePoints(U"Aaz"));
        add("3.ttf", FontBuilder("Bar", "Regular").codePoints(U"Aazあのア").name(1, "バー", 0x411));
        ::unlink(cacheFile().c_str());
    }

    void add(const QByteArray &name, const FontBuilder &builder)
    {
        test::writeFile(folder, name, builder.build());
    }
    static FilePath cacheFile()
    {
        return TestHome::instance().home().child(".local/share/Lorva/parse-cache.json");
    }
    QJsonObject scan() const { return test::json({"scan", "--folder", path(folder)}).object(); }

    FilePath folder;
};

TEST_F(ScanCommand, RemembersWhatItRead)
{
    QJsonObject told = scan();
    const int found = told["filesFound"].toInt();
    EXPECT_GE(found, 3);
    EXPECT_EQ(told["filesRead"].toInt(), found);
    EXPECT_EQ(told["familiesIdentified"].toInt(), told["families"].toInt());
    EXPECT_EQ(told["styles"].toInt(), told["families"].toInt() + 1);

    add("2.ttf", FontBuilder("Foo", "Black").postScriptName("Foo-K"));
    told = scan();
    EXPECT_EQ(told["filesRead"].toInt(), 1);
    EXPECT_EQ(told["filesReused"].toInt(), found - 1);
    EXPECT_EQ(told["familiesIdentified"].toInt(), 1) << "a file of it has changed";
    double steps = 0;
    for (const char *step : {"cache", "enumerating", "scanning", "identifying", "preparing"}) {
        const QJsonValue time = told["milliseconds"].toObject()[QLatin1String(step)];
        EXPECT_TRUE(time.isDouble()) << step;
        steps += time.toDouble();
    }
    EXPECT_GT(steps, 0);
    EXPECT_LE(steps, told["milliseconds"].toObject()["total"].toDouble());
}

TEST_F(ScanCommand, TellsPeopleWhatItDid)
{
    const test::Outcome outcome = lorvactl({"scan", "--folder", path(folder)});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.error, "") << "no progress without a terminal";
    EXPECT_THAT(outcome.out.toStdString(),
                ContainsRegex("^Fonts: [0-9]+ found, [0-9]+ read, 0 unchanged\n"
                              "Families: [0-9]+ with [0-9]+ styles, [0-9]+ newly identified\n"));
    EXPECT_THAT(outcome.out.toStdString(), ContainsRegex("  Read faces +[0-9]+\\.[0-9] ms\n"));
}

/// What the command writes to a terminal of its own.
TEST_F(ScanCommand, ShowsItsPhasesOnATerminal)
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(::grantpt(terminal), 0);
    ASSERT_EQ(::unlockpt(terminal), 0);
    QProcess process;
    process.setStandardErrorFile(QString::fromLocal8Bit(::ptsname(terminal)));
    process.start(QStringLiteral(LORVACTL_PATH), {"scan", "--folder", path(folder)});
    const test::Outcome outcome = test::finished(process);
    EXPECT_EQ(outcome.exitCode, 0);
    char shown[65536];
    ::fcntl(terminal, F_SETFL, O_NONBLOCK);
    const ssize_t length = ::read(terminal, shown, sizeof shown);
    ::close(terminal);
    ASSERT_GT(length, 0);
    const QString text = QString::fromUtf8(shown, length);
    qsizetype from = 0;
    for (const char16_t *phase :
         {u"Finding fonts…", u"Scanning ", u"Identifying fonts… ", u"Preparing…"}) {
        from = text.indexOf(QStringView(phase), from);
        EXPECT_GE(from, 0) << QString::fromUtf16(phase).toStdString();
    }
    EXPECT_TRUE(text.endsWith(QStringLiteral("\x1b[K"))) << "the line is cleared at the end";
}

TEST_F(ScanCommand, FailsWhenItCannotWriteDownWhatItLearned)
{
    ::mkdir(cacheFile().parent().c_str(), 0700);
    ASSERT_EQ(::mkdir(cacheFile().c_str(), 0700), 0);
    const test::Outcome outcome = lorvactl({"scan", "--folder", path(folder)});
    ::rmdir(cacheFile().c_str());
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.error.toStdString(), HasSubstr("parse-cache.json"));
    EXPECT_EQ(outcome.error.count('\n'), 1);
    EXPECT_THAT(outcome.out.toStdString(), HasSubstr("Fonts: ")) << "what was done is told";
}

TEST_F(ScanCommand, ListTakesScriptsAndLeavesTheCacheAlone)
{
    const auto listed = [&](const char *script) {
        const test::Outcome outcome =
            lorvactl({"list", "--script", QString::fromLatin1(script), "--folder", path(folder)});
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
        return outcome.out.toStdString();
    };
    EXPECT_THAT(listed("latin"), testing::AllOf(HasSubstr("Foo\t"), HasSubstr("Bar\t")));
    EXPECT_THAT(listed("Japanese"), testing::AllOf(Not(HasSubstr("Foo\t")), HasSubstr("Bar\t")));
    EXPECT_EQ(listed("simplifiedchinese"), "");
    EXPECT_NE(::access(cacheFile().c_str(), F_OK), 0);
}

TEST_F(ScanCommand, InfoTellsWhatAFamilyServes)
{
    const QString file = path(folder.child("3.ttf"));
    const std::string text = lorvactl({"info", file}).out.toStdString();
    EXPECT_THAT(text,
                ContainsRegex("\nFamily Bar\n +Scripts: +latin, japanese\n"
                              " +Primary script: +japanese\n +Other name: +バー\n"));
    const QJsonObject family =
        test::json({"info", file}).object()["families"].toArray()[0].toObject();
    EXPECT_EQ(family["familyName"], QStringLiteral("Bar"));
    EXPECT_EQ(family["primaryScript"], QStringLiteral("japanese"));
    EXPECT_EQ(family["scripts"].toArray(), (QJsonArray{"latin", "japanese"}));
    EXPECT_EQ(family["alternateNames"].toArray(), QJsonArray{QStringLiteral("バー")});
}

} // namespace
} // namespace lorva
