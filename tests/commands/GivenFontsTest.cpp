// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Switching fonts of opened files, which the library need not have, with the real service in a
// private home.

#include "commands/GivenFonts.h"
#include "catalog/FaceReading.h"
#include "catalog/FamilyAccumulator.h"
#include "commands/ActivationCommands.h"
#include "Existing.h"
#include "ScriptedPresenter.h"
#include "support/LibraryFixture.h"
#include "support/ListedFonts.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace lorva {
namespace {

using test::exists;
using test::FontBuilder;
using test::readFile;
using test::ScriptedPresenter;
using test::waitUntil;
using test::writeFile;

class GivenFontsTest : public testing::Test
{
protected:
    GivenFontsTest()
    {
        static int cases = 0;
        const QByteArray number = QByteArray::number(++cases);
        std::filesystem::remove_all(fonts.c_str());
        downloads = test::TestHome::instance().makeFolder("downloads" + number);
        library.restart(test::TestHome::instance().makeFolder("given-support" + number));
        commands = std::make_unique<ActivationCommands>(*library.model, presenter);
    }

    FilePath add(const QByteArray &name, const QByteArray &bytes)
    {
        return writeFile(downloads, name, bytes);
    }
    void give(const std::vector<FilePath> &files)
    {
        GivenFonts opened;
        opened.availableFonts = library.fonts;
        FamilyGrouping grouping;
        for (const FilePath &file : files)
            grouping.add(readFaces(file, [](const QString &) { return false; }).entries);
        opened.families = grouping.take({});
        given = std::make_shared<const GivenFonts>(std::move(opened));
        commands->setGivenFonts(given);
    }
    bool told(const QString &title)
    {
        return waitUntil([&] {
            return !presenter.alerts.empty() && presenter.lastAlert().title == title
                && !commands->isRunning();
        });
    }
    GivenActivations known() const
    {
        return givenActivations(*given, *library.installation->books());
    }
    std::optional<FontFamilyActivation> activation(const char *family) const
    {
        const GivenActivations now = known();
        const auto found = now.activationByFamily.constFind(QString::fromLatin1(family));
        return found == now.activationByFamily.cend() ? std::nullopt : std::optional(*found);
    }
    static FontFamilyActivation active(std::optional<InstallMethod> method, bool isMixed = false)
    {
        return FontFamilyActivation::active(method, isMixed);
    }

    const FilePath fonts = test::TestHome::instance().userFonts();
    FilePath downloads;
    test::LibraryFixture library;
    ScriptedPresenter presenter;
    std::unique_ptr<ActivationCommands> commands;
    std::shared_ptr<const GivenFonts> given;
};

TEST_F(GivenFontsTest, AreSwitchedOnAndOffWithoutTheLibrary)
{
    for (const InstallMethod method : {InstallMethod::copy, InstallMethod::registerInPlace}) {
        const FilePath one = add("one.ttf", FontBuilder("One").build());
        const FilePath bold = add("bold.ttf", FontBuilder("One", "Bold").weightClass(700).build());
        give({one, bold, add("two.ttf", FontBuilder("Two").build())});
        EXPECT_EQ(activation("One"), FontFamilyActivation::inactive());
        presenter.methods.push_back({method, false});
        presenter.buttons = {0, 0, 0};
        commands->activate({"One"});
        ASSERT_TRUE(told("One installed"));
        EXPECT_EQ(activation("One"), active(method));
        EXPECT_EQ(activation("Two"), FontFamilyActivation::inactive());
        EXPECT_EQ(exists(fonts.child("one.ttf")), method == InstallMethod::copy);

        commands->deactivate({"One"});
        ASSERT_TRUE(told("One removed"));
        EXPECT_EQ(activation("One"), FontFamilyActivation::inactive());
        EXPECT_TRUE(exists(one));
        presenter.alerts.clear();
    }
    // In the library's window: what was asked for stands for these files still.
    commands->setGivenFonts(nullptr);
    library.model->undoStack().undo();
    EXPECT_TRUE(
        waitUntil([&] { return activation("One") == active(InstallMethod::registerInPlace); }));
}

TEST_F(GivenFontsTest, OneStyleIsSwitchedByItself)
{
    give({add("one.ttf", FontBuilder("One").build()),
          add("bold.ttf", FontBuilder("One", "Bold").weightClass(700).build())});
    library.installation->setDefaultMethod(InstallMethod::copy);
    commands->activateStyle("One", given->families.front().styles.back());
    ASSERT_TRUE(told("One Bold installed"));
    EXPECT_EQ(activation("One"), active(InstallMethod::copy, true));
    EXPECT_EQ(known().styles.activationByStyleID.size(), 2);
    commands->activateRemaining({"One"});
    ASSERT_TRUE(told("One installed"));
    EXPECT_EQ(activation("One"), active(InstallMethod::copy));
    commands->activate({"One"});
    EXPECT_TRUE(told("Nothing to activate"));
}

TEST_F(GivenFontsTest, WhatSharesTheFileIsNamed)
{
    give(
        {add("pair.ttc",
             FontBuilder::collection({FontBuilder("Four").build(), FontBuilder("Five").build()}))});
    commands->activate({"Four"});
    ASSERT_TRUE(waitUntil([&] { return presenter.methodQuestions.size() == 1; }));
    EXPECT_EQ(presenter.methodQuestions.front().coResidentNote,
              QStringLiteral("This font's file also contains Five. Activating makes it available "
                             "too."));
    EXPECT_TRUE(known().styles.labelsInSameFile.isEmpty()) << "of this family there is one face";
}

TEST_F(GivenFontsTest, FilesThatAreActiveAnywayAreTheSystems)
{
    const FilePath listed = library.addFamily("Listed");
    const FilePath elsewhere = add("elsewhere.ttf", FontBuilder("Elsewhere").build());
    library.fonts->files.push_back(elsewhere);
    std::ranges::sort(library.fonts->files);
    library.fonts->publish();
    give({listed, elsewhere, writeFile(fonts, "own.ttf", FontBuilder("Own").build())});
    EXPECT_EQ(activation("Listed"), active(std::nullopt));
    EXPECT_EQ(activation("Elsewhere"), active(std::nullopt)) << "the system lists it";
    EXPECT_EQ(activation("Own"), active(InstallMethod::copy));
}

TEST_F(GivenFontsTest, AStrangeNamesakeIsToldAndStopsNoOther)
{
    const QByteArray stranger = FontBuilder("Stranger").build();
    writeFile(fonts, "one.ttf", stranger);
    library.installation->takeChangesElsewhere();
    ASSERT_TRUE(waitUntil([&] {
        return library.installation->books()->contents().fontsFolder.basenames.contains("one.ttf");
    }));
    const FilePath one = add("one.ttf", FontBuilder("One").build());
    const FilePath bold = add("bold.ttf", FontBuilder("One", "Bold").weightClass(700).build());
    library.installation->setDefaultMethod(InstallMethod::copy);

    give({one});
    EXPECT_EQ(activation("One"), FontFamilyActivation::inactive());
    EXPECT_TRUE(known().filesWithoutPlace.contains(one));
    commands->activate({"One"});
    ASSERT_TRUE(told("Couldn't fully activate One"));
    EXPECT_EQ(presenter.lastAlert().body, "1 file failed to activate.");
    presenter.alerts.clear();

    give({one, bold});
    commands->activate({"One"});
    ASSERT_TRUE(told("Couldn't fully activate One"));
    EXPECT_TRUE(exists(fonts.child("bold.ttf")));
    EXPECT_EQ(readFile(fonts.child("one.ttf")), stranger);
    commands->showFailures();
    ASSERT_EQ(presenter.reports.size(), 1U);
    ASSERT_EQ(presenter.reports.front().report.rows.size(), 1U);
    EXPECT_TRUE(presenter.reports.front().report.rows.front().detail.contains(
        QStringLiteral("is another font than")));
}

TEST_F(GivenFontsTest, OfTwoFilesOfOneNameTheOneThatWasCopiedIsActive)
{
    const FilePath one = add("one.ttf", FontBuilder("One").build());
    std::filesystem::create_directory(downloads.child("sub").c_str());
    const FilePath other =
        writeFile(downloads.child("sub"), "one.ttf", FontBuilder("Other").build());
    library.installation->setDefaultMethod(InstallMethod::copy);
    give({one});
    commands->activate({"One"});
    ASSERT_TRUE(told("One installed"));

    give({one, other});
    EXPECT_EQ(activation("One"), active(InstallMethod::copy));
    EXPECT_EQ(activation("Other"), FontFamilyActivation::inactive());
    EXPECT_EQ(known().filesWithoutPlace, QSet<FilePath>{other});
    commands->activate({"One"});
    ASSERT_TRUE(told("Nothing to activate"));

    // What was copied is not there any more: the copy is the only one.
    writeFile(downloads, "one.ttf", readFile(one) + "changed");
    commands->deactivate({"One"});
    ASSERT_TRUE(waitUntil([&] { return presenter.alerts.size() > 2; }));
    EXPECT_TRUE(presenter.lastAlert().body.contains(QStringLiteral("your only copy")));
}

TEST_F(GivenFontsTest, WhatTheSystemHasInPartIsCompleted)
{
    const FilePath one = add("one.ttf", FontBuilder("One").build());
    const FilePath bold = add("bold.ttf", FontBuilder("One", "Bold").weightClass(700).build());
    library.fonts->files = {one};
    library.fonts->publish();
    library.installation->setDefaultMethod(InstallMethod::copy);
    give({one, bold});
    EXPECT_EQ(activation("One"), active(std::nullopt, true));
    commands->activate({"One"});
    ASSERT_TRUE(told("One installed"));
    EXPECT_TRUE(exists(fonts.child("bold.ttf")));
    EXPECT_FALSE(exists(fonts.child("one.ttf"))) << "the system has it";
}

TEST_F(GivenFontsTest, WhatNobodyAsksAboutAnyMoreIsNeitherBegunNorTold)
{
    give({add("one.ttf", FontBuilder("One").build())});
    commands->activate({"One"});
    commands->forgetRequests();
    library.installation->setDefaultMethod(InstallMethod::copy);
    give({add("two.ttf", FontBuilder("Two").build())});
    commands->activate({"Two"});
    ASSERT_TRUE(waitUntil([&] { return commands->isRunning(); }));
    EXPECT_TRUE(presenter.methodQuestions.empty()) << "the plan for One came first";
    commands->forgetRequests();
    ASSERT_TRUE(waitUntil([&] { return !commands->isRunning(); }));
    EXPECT_TRUE(presenter.alerts.empty());
    EXPECT_TRUE(exists(fonts.child("two.ttf"))) << "what has begun is done";
    EXPECT_EQ(activation("Two"), active(InstallMethod::copy));
}

TEST_F(GivenFontsTest, CommandsAreTakenAgainAfterAnEndThatDidNotCome)
{
    give({add("one.ttf", FontBuilder("One").build())});
    library.installation->setDefaultMethod(InstallMethod::copy);
    int ends = 0;
    commands->finish([&ends] { ++ends; });
    commands->resume();
    commands->activate({"One"});
    EXPECT_TRUE(told("One installed"));
    EXPECT_EQ(ends, 1) << "nothing ran at first";
}

} // namespace
} // namespace lorva
