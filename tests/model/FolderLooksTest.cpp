// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/FolderLooks.h"
#include "support/TestHome.h"
#include "support/Waiting.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <latch>

namespace lorva {
namespace {

using namespace std::chrono_literals;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

QSet<FilePath> there(FolderLooks &looks, const std::vector<FilePath> &folders)
{
    std::optional<QSet<FilePath>> answer;
    looks.look(folders, [&](const QSet<FilePath> &each) { answer = each; });
    EXPECT_FALSE(answer) << "never within the question";
    EXPECT_TRUE(test::waitUntil([&] { return answer.has_value(); }));
    return answer.value_or(QSet<FilePath>());
}

TEST(FolderLooks, KnowFoldersFromWhatCannotBeOpened)
{
    const FilePath home = test::TestHome::instance().makeFolder("looks");
    const FilePath pipe = home.child("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const FilePath link = home.child("link");
    ASSERT_EQ(::symlink(home.c_str(), link.c_str()), 0);
    const FilePath file = test::writeFile(home, "file", "x");

    FolderLooks looks(1h);
    EXPECT_THAT(there(looks, {home, link, file, pipe, home.child("none"), FilePath(), home}),
                UnorderedElementsAre(home, link));
    EXPECT_THAT(there(looks, {}), IsEmpty());
}

TEST(FolderLooks, WhoAsksDuringALookHearsWhatIsSoNow)
{
    const auto asked = std::make_shared<std::latch>(1);
    const auto letGo = std::make_shared<std::latch>(1);
    const auto calls = std::make_shared<std::atomic<int>>(0);
    // It goes while the first look is on its way.
    FolderLooks looks(1h, [=](const FilePath &) {
        const bool isFirst = ++*calls == 1;
        if (isFirst) {
            asked->count_down();
            letGo->wait();
        }
        return isFirst;
    });
    const FilePath folder("/going");
    std::vector<QSet<FilePath>> answers;
    const auto take = [&](const QSet<FilePath> &found) { answers.push_back(found); };
    looks.look({folder}, take);
    asked->wait();
    looks.look({folder}, take);
    looks.look({folder}, take);
    letGo->count_down();
    ASSERT_TRUE(test::waitUntil([&] { return answers.size() == 3; }));
    EXPECT_THAT(answers, ::testing::ElementsAre(QSet<FilePath>{folder}, IsEmpty(), IsEmpty()));
    EXPECT_EQ(*calls, 2) << "one look for both";
}

TEST(FolderLooks, DoNotWaitForWhatDoesNotAnswer)
{
    const auto letGo = std::make_shared<std::latch>(1);
    const auto opened = std::make_shared<std::atomic<int>>(0);
    const auto ended = std::make_shared<std::atomic<int>>(0);
    const FilePath stuck("/stuck");
    const auto open = [=](const FilePath &) {
        ++*opened;
        letGo->wait();
        ++*ended;
        return true;
    };
    auto looks = std::make_unique<FolderLooks>(1ms, open);
    EXPECT_THAT(there(*looks, {stuck}), IsEmpty());
    EXPECT_THAT(there(*looks, {stuck}), IsEmpty());
    auto other = std::make_unique<FolderLooks>(1ms, open);
    EXPECT_THAT(there(*other, {stuck}), IsEmpty());
    other.reset();
    EXPECT_EQ(*ended, 0) << "its end waits for nobody";

    // The answer of the first look is the second's, too.
    QSet<FilePath> late;
    letGo->count_down();
    EXPECT_TRUE(test::waitUntil([&] { return *ended == *opened; }));
    EXPECT_TRUE(test::waitUntil([&] {
        looks->look({stuck}, [&](const QSet<FilePath> &found) { late.unite(found); });
        return !late.isEmpty();
    }));
}

} // namespace
} // namespace lorva
