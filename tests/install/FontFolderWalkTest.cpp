// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontFolderWalk.h"
#include "install/FolderWalker.h"
#include "install/WatchedFontRegistrar.h"
#include "support/TestHome.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::TestHome;
using testing::ElementsAre;
using testing::IsEmpty;

class FontFolderWalkTest : public testing::Test
{
protected:
    FilePath addFolder(const QByteArray &path) const
    {
        FilePath folder = m_root;
        for (const QByteArray &name : path.split('/')) {
            folder = folder.child(name);
            ::mkdir(folder.c_str(), 0755);
        }
        return folder;
    }

    FilePath addFile(const QByteArray &path) const
    {
        const qsizetype slash = path.lastIndexOf('/');
        const FilePath folder = slash < 0 ? m_root : addFolder(path.first(slash));
        return test::writeFile(folder, path.sliced(slash + 1), "x");
    }

    void addLink(const QByteArray &path, const QByteArray &target) const
    {
        ASSERT_EQ(::symlink(target.constData(), m_root.child(path).c_str()), 0);
    }

    /// Paths below the root.
    std::vector<QByteArray> walk(std::stop_token stop = {}) const
    {
        return below(fontFilesInFolder(m_root, stop));
    }

    std::vector<QByteArray> collect(const std::vector<FilePath> &folders) const
    {
        return below(WatchedFontRegistrar().fontFiles(folders));
    }

    const FilePath m_root = TestHome::instance().makeFolder("watched");

private:
    std::vector<QByteArray> below(const std::vector<FilePath> &files) const
    {
        std::vector<QByteArray> paths;
        for (const FilePath &file : files)
            paths.push_back(file.bytes().sliced(m_root.bytes().size() + 1));
        return paths;
    }
};

TEST_F(FontFolderWalkTest, takesTheFiveExtensionsInAnyCase)
{
    for (const char *const name : {"Font.OTF", "a.ttf", "b.TtC", "c.otc", "d.dfont", ".hidden.ttf",
                                   "notes.txt", "e.woff2", "ttf", "f.ttf.bak", "g.pfb"})
        addFile(name);
    EXPECT_THAT(walk(), ElementsAre("Font.OTF", "a.ttf", "b.TtC", "c.otc", "d.dfont"));
}

TEST_F(FontFolderWalkTest, mergesFilesAndFoldersInByteOrder)
{
    for (const char *const path :
         {"b.ttf", "a/z.ttf", "a/B/x.ttf", "a.ttf", "B.ttf", "c/a.ttf", "é.ttf"})
        addFile(path);
    EXPECT_THAT(walk(),
                ElementsAre("B.ttf", "a/B/x.ttf", "a/z.ttf", "a.ttf", "b.ttf", "c/a.ttf", "é.ttf"));
}

TEST_F(FontFolderWalkTest, skipsHiddenFoldersPackagesAndRegistrationsLinks)
{
    for (const char *const path : {".git/a.ttf", "My.app/a.ttf", "B.BUNDLE/deep/a.ttf",
                                   "c.framework/a.ttf", "d.plugin/a.ttf", "e.pkg/a.ttf",
                                   "lorva-registered/a.ttf", "f.apps/a.ttf", "family.ttf/a.ttf"})
        addFile(path);
    EXPECT_THAT(walk(), ElementsAre("f.apps/a.ttf", "family.ttf/a.ttf"));
}

TEST_F(FontFolderWalkTest, namesAreBytes)
{
    addFile("\xff\xfe.ttf");
    addFile("two\nlines/\x01 font.otf");
    EXPECT_THAT(walk(), ElementsAre("two\nlines/\x01 font.otf", "\xff\xfe.ttf"));
}

TEST_F(FontFolderWalkTest, onlyRegularFilesCount)
{
    addFile("real.ttf");
    ASSERT_EQ(::mkfifo(m_root.child("fifo.ttf").c_str(), 0600), 0);
    addLink("to-fifo.ttf", m_root.child("fifo.ttf").bytes());
    addLink("to-device.ttf", "/dev/zero");
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    qstrncpy(address.sun_path, m_root.child("s.ttf").c_str(), sizeof address.sun_path);
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    EXPECT_THAT(walk(), ElementsAre("real.ttf"));
    ::close(socket);
}

TEST_F(FontFolderWalkTest, followsLinksAndEndsCycles)
{
    addFile("folder/a.ttf");
    addLink("folder/up", m_root.bytes());
    addLink("again", "folder");
    addLink("broken.ttf", "nowhere");
    addLink("loop.ttf", "loop.ttf");
    addLink("z.ttf", "folder/a.ttf");
    const FilePath outside = TestHome::instance().makeFolder("outside");
    test::writeFile(outside, "o.ttf", "x");
    addLink("out", outside.bytes());
    // The folder is met first through its link, and not a second time.
    EXPECT_THAT(walk(), ElementsAre("again/a.ttf", "out/o.ttf", "z.ttf"));
}

TEST_F(FontFolderWalkTest, whatCannotBeOpenedYieldsNothing)
{
    EXPECT_THAT(fontFilesInFolder(m_root.child("missing")), IsEmpty());
    EXPECT_THAT(fontFilesInFolder(FilePath()), IsEmpty());
    EXPECT_THAT(fontFilesInFolder(addFile("a.ttf")), IsEmpty());
    ::chmod(addFile("locked/b.ttf").parent().c_str(), 0);
    ::chmod(TestHome::instance().root().c_str(), 0755);
    ::chmod(m_root.c_str(), 0755);
    ASSERT_EQ(::seteuid(::geteuid() == 0 ? 65534 : ::geteuid()), 0);
    EXPECT_THAT(walk(), ElementsAre("a.ttf"));
    ASSERT_EQ(::seteuid(::getuid()), 0);
}

TEST_F(FontFolderWalkTest, nestingBeyondMeasureIsCutNotFollowed)
{
    QByteArray path = "d";
    for (int depth = 1; depth < FolderWalker::kMaxDepth + 20; ++depth)
        path.append("/d");
    addFile(path + "/deep.ttf");
    addFile("d/d/near.ttf");
    EXPECT_THAT(walk(), ElementsAre("d/d/near.ttf"));
}

TEST_F(FontFolderWalkTest, stopsWhenAsked)
{
    addFile("a.ttf");
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(walk(stop.get_token()), IsEmpty());
}

TEST_F(FontFolderWalkTest, overlappingFoldersGiveEachFileOnce)
{
    addFile("a/one.ttf");
    addFile("b/two.ttf");
    addLink("c", "b");
    const FilePath a = m_root.child("a");
    EXPECT_THAT(collect({a, m_root, a}), ElementsAre("a/one.ttf", "b/two.ttf"));
    EXPECT_THAT(collect({m_root, a}), ElementsAre("a/one.ttf", "b/two.ttf"));
    EXPECT_THAT(collect({m_root.child("c"), m_root.child("b")}), ElementsAre("c/two.ttf"));
}

TEST_F(FontFolderWalkTest, aLinkGivesWayToItsFile)
{
    addFile("b.ttf");
    addLink("a.ttf", "b.ttf");
    test::writeFile(TestHome::instance().makeFolder("outside"), "o.ttf", "x");
    addLink("c.ttf", "../outside/o.ttf");
    addLink("d.ttf", "../outside/o.ttf");
    EXPECT_THAT(collect({m_root}), ElementsAre("b.ttf", "c.ttf"));
}

} // namespace
} // namespace lorva
