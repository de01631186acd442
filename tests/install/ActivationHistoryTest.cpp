// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/ActivationHistory.h"

#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

#include <random>

namespace lorva {
namespace {

using test::readFile;
using testing::ElementsAre;
using testing::IsEmpty;
using Action = ActivationHistoryEntry::Action;
using Fate = ActivationHistoryEntry::File::Fate;

ActivationHistoryEntry entry(int number, int files = 1)
{
    ActivationHistoryEntry made;
    made.when = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123 + number, Qt::UTC);
    made.families = {QStringLiteral("Family %1").arg(number)};
    for (int i = 0; i < files; ++i)
        made.files.push_back(
            {FilePath("/fonts/" + QByteArray::number(i) + ".ttf"), Fate::done, {}});
    return made;
}

class ActivationHistoryTest : public testing::Test
{
protected:
    std::vector<ActivationHistoryEntry> read(size_t limit = 100'000) const
    {
        const auto entries = history.read(limit);
        EXPECT_TRUE(entries);
        return entries.value_or(std::vector<ActivationHistoryEntry>());
    }
    void write(const QByteArray &bytes) const
    {
        test::writeFile(file.parent(), file.fileName(), bytes);
    }

    const FilePath file = test::makeCaseFolder().child("below").child("history.jsonl");
    const ActivationHistory history{file};
};

TEST_F(ActivationHistoryTest, GivesBackWhatWasAppendedTheNewestFirst)
{
    EXPECT_THAT(read(), IsEmpty()) << "no file is no failure";
    ActivationHistoryEntry strange = entry(1, 0);
    strange.action = Action::moved;
    strange.destination = FilePath("/to\xff/\n\"x\"");
    strange.families = {"A, B\n", QString(QChar(0x202e)), ""};
    strange.files = {{FilePath("/no text \xff\xfe\n"), Fate::failed, "because\n\tof that"},
                     {FilePath("/b"), Fate::skipped, {}},
                     {FilePath("/c"), Fate::left, {}}};
    ASSERT_TRUE(history.append(strange));
    ActivationHistoryEntry second = entry(2);
    for (const Action action : {Action::registered, Action::deactivated, Action::restored}) {
        second.action = action;
        ASSERT_TRUE(history.append(second));
        EXPECT_EQ(read(1).front(), second);
    }
    EXPECT_EQ(read().size(), 4u);
    EXPECT_EQ(read().back(), strange);
    EXPECT_EQ(readFile(file).count('\n'), 4);
    struct stat info;
    ASSERT_EQ(::stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0600u) << "for the user alone";
}

TEST_F(ActivationHistoryTest, LeavesOutWhatDoesNotDecodeAndKeepsItInTheFile)
{
    ASSERT_TRUE(history.append(entry(1)));
    const QByteArray good = readFile(file).trimmed();
    const QByteArray megabytes(3 * 1024 * 1024, '[');
    const std::vector<QByteArray> damaged{
        "",
        "{}",
        "null",
        "[]",
        "no JSON",
        QByteArray(100, '\0'),
        "\xff\xfe",
        megabytes,
        good.chopped(1),
        good + "}",
        QByteArray(good).replace("copied", "burned"),
        QByteArray(good).replace("done", "undone"),
        QByteArray(good).replace("2023-", "2023-99-"),
        QByteArray(good).replace("file:///fonts/0.ttf", "fonts/0.ttf"),
        QByteArray(good).replace("file:///fonts/0.ttf", "file:///fonts/%00.ttf"),
        QByteArray(good).replace("\"files\":[", "\"files\":[7,"),
        QByteArray(good).replace("\"families\":[", "\"families\":[7,"),
    };
    for (const QByteArray &line : damaged) {
        SCOPED_TRACE(line.left(80).constData());
        const QByteArray bytes = good + '\n' + line + '\n';
        write(bytes);
        EXPECT_EQ(read().size(), 1u);
        ASSERT_TRUE(history.append(entry(2)));
        EXPECT_THAT(read(), ElementsAre(entry(2), entry(1)));
        EXPECT_TRUE(readFile(file).startsWith(bytes));
    }
    write(QByteArray(good).replace("\"action\"", "\"later\":{\"x\":[1]},\"action\"") + '\n');
    EXPECT_THAT(read(), ElementsAre(entry(1))) << "what a later version adds";
}

TEST_F(ActivationHistoryTest, AnyDamageToAnyByteLosesNoOtherLine)
{
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(history.append(entry(i)));
    const QByteArray whole = readFile(file);
    const qsizetype start = whole.indexOf('\n') + 1;
    const qsizetype length = whole.indexOf('\n', start) - start;
    std::mt19937 dice(20260214);
    for (qsizetype at = 0; at < length; ++at) {
        QByteArray bytes = whole;
        bytes[start + at] = char(dice() % 2 == 0 ? bytes[start + at] ^ 1 << dice() % 8 : dice());
        write(bytes);
        const auto entries = read();
        ASSERT_GE(entries.size(), 2u) << at;
        EXPECT_EQ(entries.front(), entry(2)) << at;
        EXPECT_EQ(entries.back(), entry(0)) << at;
    }
}

TEST_F(ActivationHistoryTest, BeginsANewLineAfterHalfOfOne)
{
    ASSERT_TRUE(history.append(entry(1)));
    const QByteArray whole = readFile(file);
    for (const qsizetype length : {qsizetype(1), whole.size() / 2, whole.size() - 1}) {
        write(whole + whole.first(length));
        ASSERT_TRUE(history.append(entry(2)));
        const auto entries = read();
        // Only the end of the line was missing from the longest.
        EXPECT_EQ(entries.size(), length == whole.size() - 1 ? 3u : 2u);
        EXPECT_EQ(entries.front(), entry(2));
    }
    {
        const test::FullDisk full(rlim_t(readFile(file).size()) + 10);
        EXPECT_EQ(history.append(entry(3)).error().kind, ErrorKind::tooLarge);
    }
    EXPECT_TRUE(readFile(file).endsWith('\n')) << "nothing half stays";
    ASSERT_TRUE(history.append(entry(4)));
    EXPECT_EQ(read().front(), entry(4));
}

TEST_F(ActivationHistoryTest, KeepsItsNewerHalfAtTheLimit)
{
    constexpr int kFilesOfARun = 2000;
    int number = 0;
    qsizetype size = 0;
    do {
        size = readFile(file).size();
        ASSERT_TRUE(history.append(entry(number++, kFilesOfARun)));
    } while (readFile(file).size() > size);
    EXPECT_GT(size, ActivationHistory::kLargestSize * 9 / 10);
    EXPECT_LE(readFile(file).size(), ActivationHistory::kLargestSize / 2);
    const auto entries = read();
    EXPECT_GT(entries.size(), 5u);
    for (size_t i = 0; i < entries.size(); ++i)
        EXPECT_EQ(entries[i].when, entry(number - 1 - int(i)).when);

    ASSERT_TRUE(history.append(entry(number, 100'000))) << "a run that is too large alone";
    EXPECT_THAT(read(), ElementsAre(entry(number, 100'000)));
    ASSERT_TRUE(history.append(entry(number + 1)));
    EXPECT_THAT(read(), ElementsAre(entry(number + 1)));
}

TEST_F(ActivationHistoryTest, FailsClearly)
{
    ASSERT_TRUE(history.append(entry(1)));
    for (FilePath above = file.parent(); above.isInside(test::TestHome::instance().root());
         above = above.parent())
        ::chmod(above.c_str(), 0755);
    {
        const test::AsOrdinaryUser nobody;
        EXPECT_EQ(history.read(1).error().kind, ErrorKind::permissionDenied);
        EXPECT_EQ(history.append(entry(2)).error().kind, ErrorKind::permissionDenied);
    }
    ASSERT_EQ(::unlink(file.c_str()), 0);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(history.read(1).error().kind, ErrorKind::ioFailure) << "and does not wait";
    EXPECT_FALSE(history.append(entry(2)));
    ASSERT_EQ(::unlink(file.c_str()), 0);
    ASSERT_EQ(::mkdir(file.c_str(), 0700), 0);
    EXPECT_EQ(history.read(1).error().kind, ErrorKind::ioFailure);
    EXPECT_FALSE(history.append(entry(2)));
}

TEST(ActivationHistoryCsv, IsQuotedForSpreadsheets)
{
    ActivationHistoryEntry one = entry(0, 0);
    one.action = Action::moved;
    one.destination = FilePath("/to, there");
    one.families = {"=HYPERLINK(\"x\")", "B"};
    one.files = {{FilePath("/\xff\"q\".ttf"), Fate::failed, "two\nlines"},
                 {FilePath("/b.ttf"), Fate::done, {}}};
    ActivationHistoryEntry many = entry(1);
    many.families = {"+1", "B", "C", "D", "E", "F", "G"};
    EXPECT_EQ(historyAsCsv({one, many}),
              QByteArray("when,action,destination,families,file,result,reason\r\n"
                         "2023-11-14T22:13:20.123Z,moved,\"/to, there\","
                         "\"'=HYPERLINK(\"\"x\"\"), B\",\"/\xef\xbf\xbd\"\"q\"\".ttf\",failed,"
                         "\"two\nlines\"\r\n"
                         "2023-11-14T22:13:20.123Z,moved,\"/to, there\","
                         "\"'=HYPERLINK(\"\"x\"\"), B\",/b.ttf,done,\r\n"
                         "2023-11-14T22:13:20.124Z,copied,,\"'+1, B, C, D, E, and 2 more\","
                         "/fonts/0.ttf,done,\r\n"));
    for (const char *formula : {"=1", "+1", "-1", "@x", "\t=1", "\r=1", "＝1", "－1"}) {
        many.families = {QString::fromUtf8(formula)};
        EXPECT_TRUE(historyAsCsv({many}).contains(QByteArray(QByteArray("'") + formula)))
            << formula;
    }
    EXPECT_EQ(historyAsCsv({}).count('\n'), 1);
}

} // namespace
} // namespace lorva
