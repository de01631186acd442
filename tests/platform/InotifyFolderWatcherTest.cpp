// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/InotifyFolderWatcher.h"

#include "platform/linux/MountTable.h"
#include "support/AdverseSystem.h"
#include "support/Waiting.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <functional>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::waitUntil;
using test::writeFile;

void makeFolder(const FilePath &folder)
{
    EXPECT_EQ(::mkdir(folder.c_str(), 0700), 0) << folder.c_str();
}

void rename(const FilePath &from, const FilePath &to)
{
    EXPECT_EQ(std::rename(from.c_str(), to.c_str()), 0) << from.c_str();
}

class InotifyFolderWatcherTest : public testing::Test
{
protected:
    void SetUp() override { listenTo(watcher); }

    void listenTo(InotifyFolderWatcher &source)
    {
        QObject::connect(&source, &FolderWatcher::foldersChanged, &m_context,
                         [this](const std::vector<FilePath> &folders) {
                             ++notices;
                             isAll |= folders.empty();
                             changed.insert(folders.begin(), folders.end());
                         });
    }

    /// The folders are watched, and nothing of what was before is still to come: a mark that the
    /// watcher was told of last has been noticed.
    void watch(std::vector<FilePath> folders)
    {
        folders.push_back(marks);
        watcher.setFolders(std::move(folders));
        EXPECT_TRUE(waitUntil([this] { return watcher.isComplete(); }));
        settle();
    }

    void settle()
    {
        for (int i = 0; i < 2; ++i) {
            changed.erase(marks);
            writeFile(marks, "mark", "");
            EXPECT_TRUE(waitUntil([this] { return changed.contains(marks); }));
        }
        changed.clear();
        notices = 0;
    }

    bool isNoticed(const FilePath &folder, const std::function<void()> &change)
    {
        changed.clear();
        change();
        return waitUntil([&] { return changed.contains(folder); });
    }

    /// What is noticed up to a mark that is made after the change.
    std::set<FilePath> noticesOf(const std::function<void()> &change)
    {
        changed.clear();
        change();
        writeFile(marks, "mark", "");
        EXPECT_TRUE(waitUntil([this] { return changed.contains(marks); }));
        std::set<FilePath> others = std::exchange(changed, {});
        others.erase(marks);
        return others;
    }

    const FilePath root = test::makeCaseFolder();
    const FilePath marks = test::TestHome::instance().makeFolder("marks");
    QObject m_context;
    InotifyFolderWatcher watcher;
    int notices = 0;
    bool isAll = false;
    std::set<FilePath> changed;
};

TEST_F(InotifyFolderWatcherTest, NoticesWhatHappensToAFile)
{
    const FilePath a = root.child("a");
    const FilePath b = root.child("b");
    makeFolder(a);
    makeFolder(b);
    makeFolder(a.child("below"));
    watch({a, b});

    const std::pair<const char *, std::function<void()>> cases[] = {
        {"made", [&] { writeFile(a, "font.ttf", "1"); }},
        {"rewritten", [&] { writeFile(a, "font.ttf", "2"); }},
        {"renamed", [&] { rename(a.child("font.ttf"), a.child("other.ttf")); }},
        {"closed to others", [&] { ::chmod(a.child("other.ttf").c_str(), 0); }},
        {"removed", [&] { ::unlink(a.child("other.ttf").c_str()); }},
        {"linked", [&] { std::ignore = ::symlink("/nowhere", a.child("link").c_str()); }},
    };
    for (const auto &[what, change] : cases)
        EXPECT_THAT(noticesOf(change), testing::ElementsAre(a)) << what;

    EXPECT_THAT(noticesOf([&] {
                    writeFile(a, ".hidden.ttf", "");
                    writeFile(a.child("below"), "font.ttf", "");
                }),
                testing::IsEmpty());
}

TEST_F(InotifyFolderWatcherTest, TellsManyChangesAtOnce)
{
    watch({root});
    EXPECT_TRUE(isNoticed(root, [&] {
        for (int i = 0; i < 500; ++i)
            writeFile(root, QByteArray::number(i), "");
    }));
    settle();
    EXPECT_TRUE(isNoticed(root, [&] { writeFile(root, "last", ""); }));
    EXPECT_EQ(notices, 1);
}

TEST_F(InotifyFolderWatcherTest, NoticesWhatHappensBeforeItsThreadGetsThere)
{
    watcher.setFolders({root});
    EXPECT_TRUE(isNoticed(root, [&] { writeFile(root, "font.ttf", ""); }));
}

TEST_F(InotifyFolderWatcherTest, FindsFoldersThatComeGoAndComeBack)
{
    const FilePath deep = root.child(".hidden").child("deep");
    const FilePath folder = deep.child("fonts");
    watch({folder});
    EXPECT_THAT(noticesOf([&] { writeFile(root, "something", ""); }), testing::IsEmpty());
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(
            isNoticed(folder, [&] { std::filesystem::create_directories(folder.c_str()); }));
        settle();
        EXPECT_TRUE(isNoticed(folder, [&] { writeFile(folder, "font.ttf", ""); }));
        EXPECT_TRUE(
            isNoticed(folder, [&] { std::filesystem::remove_all(root.child(".hidden").c_str()); }));
        settle();
    }
}

TEST_F(InotifyFolderWatcherTest, FollowsNamesAndNotTheFoldersThatBearThem)
{
    const FilePath a = root.child("a");
    const FilePath b = root.child("b");
    const FilePath below = a.child("unwatched").child("below");
    for (const FilePath &folder :
         {a, b, below.parent(), below, b.child("unwatched"), b.child("unwatched").child("below")})
        makeFolder(folder);
    watch({a, b, below});
    EXPECT_THAT(noticesOf([&] {
                    rename(a, root.child("c"));
                    rename(b, a);
                    rename(root.child("c"), b);
                }),
                testing::IsSupersetOf({a, b, below}));
    settle();
    EXPECT_TRUE(isNoticed(below, [&] { writeFile(below, "new", ""); }));
    EXPECT_THAT(noticesOf([&] { writeFile(a, "new", ""); }), testing::ElementsAre(a));

    // Also when only a folder in between is moved away.
    EXPECT_TRUE(isNoticed(below, [&] { rename(below.parent(), a.child("moved")); }));
    settle();
    EXPECT_THAT(noticesOf([&] { writeFile(a.child("moved").child("below"), "new", ""); }),
                testing::IsEmpty());
    EXPECT_TRUE(isNoticed(below, [&] { rename(a.child("moved"), below.parent()); }));
}

TEST_F(InotifyFolderWatcherTest, KeepsWhatIsWatchedWhenTheFoldersChange)
{
    const FilePath a = root.child("a");
    const FilePath b = root.child("b");
    makeFolder(a);
    makeFolder(b);
    watch({a});
    // A file made under a watch that were made anew could go unnoticed.
    EXPECT_TRUE(isNoticed(a, [&] {
        writeFile(a, "1", "");
        watcher.setFolders({a, b, marks});
    }));
    EXPECT_TRUE(waitUntil([this] { return watcher.isComplete(); }));
    settle();
    EXPECT_TRUE(isNoticed(b, [&] { writeFile(b, "2", ""); }));
    watch({b});
    EXPECT_THAT(noticesOf([&] { writeFile(a, "3", ""); }), testing::IsEmpty());
}

TEST_F(InotifyFolderWatcherTest, SaysWhenThereAreMoreFoldersThanWatches)
{
    InotifyFolderWatcher small(2);
    listenTo(small);
    const std::vector<FilePath> folders{root.child("a"), root.child("b"), root.child("c")};
    for (const FilePath &folder : folders)
        makeFolder(folder);
    // The same folder by another path costs no watch.
    ASSERT_EQ(::symlink("a", root.child("link").c_str()), 0);
    small.setFolders({folders[0], folders[1], root.child("link")});
    EXPECT_TRUE(waitUntil([&] { return small.isComplete(); }));
    EXPECT_TRUE(isNoticed(root.child("link"), [&] { writeFile(folders[0], "1", ""); }));

    small.setFolders(folders);
    EXPECT_FALSE(small.isComplete());
    EXPECT_TRUE(isNoticed(folders[1], [&] { writeFile(folders[1], "2", ""); }));
    EXPECT_FALSE(small.isComplete());
    small.setFolders({folders[1], folders[2]});
    EXPECT_TRUE(waitUntil([&] { return small.isComplete(); }));
    EXPECT_TRUE(isNoticed(folders[2], [&] { writeFile(folders[2], "3", ""); }));
}

TEST_F(InotifyFolderWatcherTest, MayGoWhileItIsBusy)
{
    std::vector<FilePath> folders;
    for (int i = 0; i < 200; ++i) {
        folders.push_back(root.child(QByteArray::number(i)));
        makeFolder(folders.back());
    }
    for (int i = 0; i < 20; ++i) {
        InotifyFolderWatcher brief;
        listenTo(brief);
        brief.setFolders(folders);
        writeFile(folders[size_t(i)], "new", "");
        EXPECT_TRUE(i % 2 == 0 || waitUntil([&] { return brief.isComplete(); }));
    }
}

TEST(MountTable, KnowsWhatChangesWithoutThisMachine)
{
    const MountTable table =
        MountTable::parse("22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
                          "30 22 0:44 / /media/net rw shared:9 master:2 - nfs4 server:/x rw\n"
                          "31 30 8:9 / /media/net/stick rw - vfat /dev/sdb1 rw\n"
                          "32 22 0:45 / /home/u/with\\040space rw - fuse.sshfs u@h: rw\n"
                          "33 22 8:3 / /ntfs rw shared:3 - fuseblk /dev/sdc1 rw\n"
                          "34 22 0:50 / /auto rw - autofs systemd-1 rw\n"
                          "35 34 8:4 / /auto rw - ext4 /dev/sdd rw\n"
                          "36 22 0:51 / /broken\n"
                          "damaged - \n");
    const std::pair<const char *, bool> cases[] = {
        {"/", false},           {"/media", false},
        {"/media/net", true},   {"/media/net/fonts", true},
        {"/media/nets", false}, {"/media/net/stick/a", false},
        {"/ntfs/a", false},     {"/home/u/with space/a", true},
        {"/auto/a", false},     {"/broken", false},
    };
    for (const auto &[path, isRemote] : cases)
        EXPECT_EQ(table.isRemote(FilePath(path)), isRemote) << path;
    EXPECT_FALSE(MountTable().isRemote(FilePath("/")));
}

} // namespace
} // namespace lorva
