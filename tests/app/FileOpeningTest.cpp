// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/FileOpening.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <atomic>

namespace lorva {
namespace {

using test::FontBuilder;
using test::waitUntil;
using test::writeFile;
using testing::ElementsAre;

class FileOpeningTest : public testing::Test
{
protected:
    FileOpeningTest()
    {
        static int cases = 0;
        folder = test::TestHome::instance().makeFolder("opened" + QByteArray::number(++cases));
        writeFile(folder, "one.ttf", FontBuilder("One").build());
        writeFile(folder.child("hangs"), "two.ttf", FontBuilder("Two").build());
        opening.onFolders = [this](const std::vector<FilePath> &found, bool hasFiles) {
            folders = found;
            comeWithFiles = hasFiles;
            token = qgetenv("XDG_ACTIVATION_TOKEN");
        };
    }
    ~FileOpeningTest() override
    {
        isHeld = false;
        qunsetenv("XDG_ACTIVATION_TOKEN");
    }

    /// A disk that does not answer about one folder until it is let go.
    bool isFolder(const FilePath &place) const
    {
        if (place.fileName() == "hangs")
            isHeld.wait(true);
        return place.fileName().endsWith("s");
    }
    void letGo()
    {
        isHeld = false;
        isHeld.notify_all();
    }
    bool shows(const char *title) const
    {
        return waitUntil([&] {
            FontFilesWindow *window = opening.window();
            return window && window->isVisible() && window->isSettled()
                && window->windowTitle() == QString::fromLatin1(title);
        });
    }

    test::LibraryFixture library;
    FilePath folder;
    std::atomic<bool> isHeld = false;
    mutable FileOpening opening{*library.model,
                                [this] {
                                    return FontFilesServices{library.fonts, library.systemFont};
                                },
                                [this](const FilePath &place) { return isFolder(place); }};
    std::vector<FilePath> folders;
    bool comeWithFiles = false;
    QByteArray token;
};

TEST_F(FileOpeningTest, FoldersComeForwardWithTheirPermission)
{
    opening.open({{folder.child("fonts")}, {}, "first"});
    EXPECT_TRUE(waitUntil([this] { return !folders.empty(); }));
    EXPECT_EQ(token, "first");
    EXPECT_FALSE(comeWithFiles);
    EXPECT_EQ(opening.window(), nullptr);

    // The files have the front.
    opening.open({{folder.child("fonts"), folder.child("one.ttf")}, {}, "second"});
    EXPECT_TRUE(shows("One"));
    EXPECT_TRUE(comeWithFiles);
    EXPECT_EQ(token, "first");
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "second");
}

TEST_F(FileOpeningTest, APlaceThatHangsKeepsNothingElseFromBeingOpened)
{
    isHeld = true;
    opening.open({{folder.child("hangs")}, {}, {}});
    opening.open({{folder.child("one.ttf")}, {}, {}});
    EXPECT_TRUE(shows("One"));
    letGo();
    EXPECT_TRUE(waitUntil([this] { return !folders.empty(); }));
    EXPECT_TRUE(comeWithFiles);
    EXPECT_TRUE(shows("One")) << "what was opened later stays";

    // What is not known in a moment is shown.
    isHeld = true;
    folders.clear();
    opening.open({{folder.child("hangs"), folder.child("one.ttf")}, {}, {}});
    EXPECT_TRUE(waitUntil([this] { return opening.window()->state().problems.size() == 1; }));
    EXPECT_EQ(opening.window()->windowTitle(), QStringLiteral("One"));
    letGo();
    EXPECT_TRUE(waitUntil([this] { return opening.window()->state().problems.empty(); }));
    EXPECT_THAT(folders, ElementsAre(folder.child("hangs")));
    EXPECT_TRUE(shows("One"));
}

} // namespace
} // namespace lorva
