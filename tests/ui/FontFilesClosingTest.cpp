// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The window is closed at a bad moment: while it reads, asks or switches fonts; and files are
// opened in it again.

#include "FontFilesFixture.h"
#include "platform/RunLock.h"
#include "ui/detail/CharacterGridView.h"
#include "ui/sheets/SheetQueue.h"

#include <algorithm>
#include <filesystem>

namespace lorva {
namespace {

using test::FontBuilder;
using test::waitUntil;
using test::writeFile;

class FontFilesClosing : public test::FontFilesFixture
{
protected:
    void keepQuiet() { library.installation->setDefaultMethod(InstallMethod::copy); }
    /// As another process that switches fonts: nothing begins before it is let go.
    std::optional<Result<RunLock>> holdRuns() const
    {
        return RunLock::take(library.folders.activationLock(), std::chrono::seconds(10), {});
    }
    void activateShown()
    {
        const bool wasRunning = window->activation().isRunning();
        click("fontFilesActivate");
        EXPECT_TRUE(wasRunning || waitUntil([this] { return window->activation().isRunning(); }));
    }
    bool hasSheet() const { return SheetQueue::of(*window).isShowing(); }
    bool runsEnd()
    {
        return waitUntil([this] { return !window->activation().isRunning(); });
    }
    bool isActive(const char *name) const
    {
        return std::filesystem::exists(library.folders.userFonts.child(name).c_str());
    }
    std::vector<FilePath> makeMany(int count)
    {
        std::vector<FilePath> files;
        for (int i = 0; i < count; ++i) {
            const QByteArray name = "many" + QByteArray::number(i).rightJustified(3, '0');
            files.push_back(
                writeFile(folder, name + ".ttf",
                          FontBuilder(QString::fromLatin1(name)).codePoints(U"Aa").build()));
        }
        return files;
    }
};

TEST_F(FontFilesClosing, WaitsForEveryRun)
{
    keepQuiet();
    open({"one.ttf", "two.ttf"});
    std::optional<Result<RunLock>> held = holdRuns();
    ASSERT_TRUE(*held);
    activateShown();
    QTest::keyClick(&list(), Qt::Key_Down);
    activateShown();
    const FontInstallationService &service = *library.installation;
    ASSERT_TRUE(waitUntil([&] { return service.isInFlight("One") && service.isInFlight("Two"); }));
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isEnabled());
    bool wasRunning = false;
    QObject::connect(&window->activation(), &ActivationCommands::changed, window.get(), [&] {
        // After what the window itself does about it.
        QMetaObject::invokeMethod(
            window.get(),
            [&] { wasRunning |= !window->isVisible() && window->activation().isRunning(); },
            Qt::QueuedConnection);
    });
    held.reset();
    EXPECT_TRUE(waitUntil([this] { return !window->isVisible(); }));
    EXPECT_FALSE(wasRunning);
    EXPECT_TRUE(isActive("one.ttf") && isActive("two.ttf"));
}

TEST_F(FontFilesClosing, WhatIsOpenedWhileItWaitsStays)
{
    keepQuiet();
    open({"one.ttf"});
    std::optional<Result<RunLock>> held = holdRuns();
    ASSERT_TRUE(*held);
    activateShown();
    window->close();
    ASSERT_FALSE(window->isEnabled());
    open({"two.ttf"});
    EXPECT_TRUE(window->isEnabled());
    held.reset();
    ASSERT_TRUE(runsEnd());
    settle();
    EXPECT_TRUE(isActive("one.ttf")) << "what has begun is done";
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(shown(), "Two Regular");
    EXPECT_FALSE(hasSheet()) << "of fonts that are not shown any more";
    window->close();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(FontFilesClosing, TheLastWindowWaitsForWhatElseRuns)
{
    bool isBusy = true;
    window->mustWait = [&isBusy] { return isBusy; };
    open({"one.ttf"});
    window->close();
    EXPECT_TRUE(window->isVisible());
    window->closeWhenDone();
    EXPECT_TRUE(window->isVisible());
    isBusy = false;
    window->closeWhenDone();
    EXPECT_FALSE(window->isVisible());
    window->closeWhenDone();
    open({"two.ttf"});
    window->closeWhenDone();
    EXPECT_TRUE(window->isVisible() && window->isEnabled()) << "nobody closes it";
}

TEST_F(FontFilesClosing, QuestionsGoWithTheirFonts)
{
    const QString copy = QStringLiteral("Copy to Fonts Folder");
    open({"one.ttf"});
    click("fontFilesActivate");
    ASSERT_TRUE(waitUntil([&] { return sheetButton(copy) != nullptr; }));
    window->close();
    EXPECT_FALSE(window->isVisible());
    open({"two.ttf"});
    EXPECT_FALSE(hasSheet());
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(window->activation().isRunning());

    // The question is still being made.
    click("fontFilesActivate");
    window->close();
    open({"one.ttf"});
    click("fontFilesActivate");
    ASSERT_TRUE(waitUntil([&] { return sheetButton(copy) != nullptr; }));
    EXPECT_EQ(part<QWidget>("InstallSheet.Panel").accessibleName(), QStringLiteral("One"));
    answer(QStringLiteral("Cancel"));
    EXPECT_FALSE(hasSheet()) << "one question, and none about Two";

    // Several wait behind each other.
    click("fontFilesActivate");
    click("fontFilesActivate");
    ASSERT_TRUE(waitUntil([&] { return sheetButton(copy) != nullptr; }));
    open({"two.ttf"});
    EXPECT_FALSE(hasSheet()) << "nor does it stay over other files";
    copyShownFamily();
    EXPECT_FALSE(isActive("one.ttf"));
}

TEST_F(FontFilesClosing, NothingIsReadOrKeptForAClosedWindow)
{
    const std::vector<FilePath> files = makeMany(300);
    window->open(files);
    window->present();
    ASSERT_TRUE(waitUntil([this] { return !window->state().isEmpty(); }));
    window->close();
    EXPECT_TRUE(window->isSettled()) << "it reads no more";
    EXPECT_TRUE(window->state().isEmpty());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Font Files"));
}

TEST_F(FontFilesClosing, LetsTheFontsGo)
{
    open({"one.ttf", "one-bold.ttf"});
    const auto *grid = window->findChild<CharacterGridView *>();
    ASSERT_TRUE(waitUntil([&] { return !grid->model().characterSections().empty(); }));
    const std::weak_ptr<const FontFace> face = page().face().font.face();
    ASSERT_FALSE(face.expired());
    window->close();
    EXPECT_TRUE(waitUntil([&] { return face.expired(); })) << "no part keeps it";
}

TEST_F(FontFilesClosing, AProblemThatIsLookedAtStaysAndOneThatIsNotGivesWay)
{
    std::vector<FilePath> files = makeMany(300);
    files.insert(files.begin(), folder.child("gone.ttf"));
    window->open(files);
    window->present();
    ASSERT_TRUE(waitUntil([this] { return !window->state().isEmpty(); }));
    QTest::keyClick(&list(), Qt::Key_End);
    EXPECT_EQ(shown(), "gone.ttf");
    settle();
    EXPECT_EQ(window->state().families.size(), 300U);
    EXPECT_EQ(shown(), "gone.ttf");

    files.resize(17);
    std::ranges::fill(files, FilePath());
    for (int i = 0; i < 16; ++i)
        files[size_t(i)] = folder.child(QByteArray("gone" + QByteArray::number(i)));
    files.back() = folder.child("two.ttf");
    window->open(files);
    settle();
    EXPECT_EQ(shown(), "Two Regular");
}

} // namespace
} // namespace lorva
