// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Switching fonts on and off as the user does it, with the real service in a private home; what
// fontconfig lists is the judge.

#include "commands/ActivationCommands.h"
#include "commands/ActivationTexts.h"
#include "Existing.h"
#include "platform/RunLock.h"
#include "ScriptedPresenter.h"
#include "support/LibraryFixture.h"
#include "support/ListedFonts.h"

#include <gmock/gmock.h>

#include <QDir>

#include <algorithm>
#include <filesystem>

namespace lorva {
namespace {

using test::exists;
using test::FontBuilder;
using test::listedFontFiles;
using test::readFile;
using test::ScriptedPresenter;
using test::waitUntil;
using test::writeFile;

/// A watched folder with the families One (two files), Two and Three, and a collection file that
/// holds Four and Five.
class ActivationCommandsTest : public testing::Test
{
protected:
    ActivationCommandsTest()
    {
        static int cases = 0;
        const QByteArray number = QByteArray::number(++cases);
        std::filesystem::remove_all(fonts.c_str());
        std::filesystem::remove_all(fonts.parent().child("Trash").c_str());
        watched = test::TestHome::instance().makeFolder("watched" + number);
        add("one.ttf", FontBuilder("One").build());
        add("one-bold.ttf", FontBuilder("One", "Bold").weightClass(700).build());
        add("two.ttf", FontBuilder("Two").build());
        add("three.ttf", FontBuilder("Three").build());
        add("pair.ttc",
            FontBuilder::collection({FontBuilder("Four").build(), FontBuilder("Five").build()}));
        *library.watchedFolders = {watched};
        // What lies in the Fonts folder is found as in a real start.
        library.otherFonts = std::make_shared<HomeFonts>(fonts);
        library.restart(test::TestHome::instance().makeFolder("support" + number));
        reload();
        commands = std::make_unique<ActivationCommands>(*library.model, presenter);
        alone = listedFontFiles();
    }

    /// The Fonts folder's files, as a scan finds them.
    class HomeFonts final : public AvailableFonts
    {
    public:
        explicit HomeFonts(FilePath folder)
            : m_folder(std::move(folder))
        {
        }
        std::vector<FilePath> fontFiles(const std::function<void(int)> &,
                                        std::stop_token) const override
        {
            std::vector<FilePath> files;
            std::error_code ignored;
            for (const auto &entry : std::filesystem::directory_iterator(m_folder.c_str(), ignored))
                if (entry.is_regular_file())
                    files.emplace_back(QByteArray(entry.path().c_str()));
            return files;
        }

    private:
        const FilePath m_folder;
    };

    FilePath add(const QByteArray &name, const QByteArray &bytes)
    {
        return writeFile(watched, name, bytes);
    }
    void reload() { ASSERT_TRUE(library.load()); }
    /// The commands have nothing left to do that nobody asks for.
    bool settles()
    {
        return waitUntil([&] {
            return !commands->isRunning() && !library.model->isLoading()
                && !library.installation->hasRuns();
        });
    }
    /// As another process that switches fonts: nothing begins before it is let go.
    Result<RunLock> holdRuns()
    {
        return RunLock::take(library.folders.activationLock(), std::chrono::seconds(10), {});
    }
    bool told(const QString &title)
    {
        return waitUntil(
            [&] { return !presenter.alerts.empty() && presenter.lastAlert().title == title; });
    }
    /// What is listed beyond what was at first, by file name.
    QStringList active() const
    {
        QStringList names;
        for (const QString &file : listedFontFiles())
            if (!alone.contains(file))
                names.append(file.section(u'/', -1));
        return names;
    }
    bool areActive(const QStringList &names)
    {
        return waitUntil([&] { return active() == names; });
    }
    FontStyleRecord styleOf(const QString &family, const QString &label) const
    {
        const auto &styles = library.model->family(family)->styles;
        const auto found = std::ranges::find(styles, label, &FontStyleRecord::label);
        EXPECT_NE(found, styles.end()) << label.toStdString();
        return found == styles.end() ? FontStyleRecord() : *found;
    }
    FilePath copyOf(const QByteArray &name) const { return fonts.child(name); }
    void switchOn(const QStringList &names, InstallMethod method = InstallMethod::copy)
    {
        presenter.methods.push_back({method, false});
        presenter.buttons.push_back(0);
        commands->activate(names);
        ASSERT_TRUE(waitUntil([&] { return presenter.buttons.empty(); }));
        ASSERT_TRUE(settles());
        presenter.alerts.clear();
        reload();
    }

    const FilePath fonts = test::TestHome::instance().userFonts();
    FilePath watched;
    QStringList alone;
    test::LibraryFixture library;
    ScriptedPresenter presenter;
    std::unique_ptr<ActivationCommands> commands;
};

TEST_F(ActivationCommandsTest, AsksOnceForTheMethodAndRemembersIt)
{
    presenter.methods.push_back({std::nullopt, true});
    commands->activate({"One"});
    ASSERT_TRUE(waitUntil([&] { return presenter.methodQuestions.size() == 1; }));
    EXPECT_FALSE(library.installation->defaultMethod()) << "a cancelled choice was remembered";

    presenter.methods.push_back({InstallMethod::registerInPlace, true});
    commands->activate({"One", "Two", "Nowhere"});
    ASSERT_TRUE(told("2 Fonts installed"));
    EXPECT_EQ(presenter.methodQuestions.back().familyName, "2 Fonts");
    EXPECT_EQ(active().size(), 3) << "two files of One, and Two";
    EXPECT_EQ(library.installation->defaultMethod(), InstallMethod::registerInPlace);
    EXPECT_FALSE(exists(copyOf("one.ttf")));

    library.installation->setDefaultMethod(InstallMethod::copy);
    commands->activate({"Three"});
    ASSERT_TRUE(told("Three installed"));
    EXPECT_EQ(presenter.methodQuestions.size(), 2U);
    EXPECT_EQ(readFile(copyOf("three.ttf")), readFile(watched.child("three.ttf")));
}

TEST_F(ActivationCommandsTest, TellsWhenNothingIsLeftToDo)
{
    switchOn({"One", "Two"});
    writeFile(fonts, "own.ttf", FontBuilder("Own").build());
    const auto answered = [&](const QString &title, const QString &body) {
        const bool came = waitUntil([&] { return !presenter.openAlerts.empty(); });
        const Alert alert = came ? presenter.lastAlert() : Alert();
        presenter.press(0);
        EXPECT_EQ(alert.title, title);
        EXPECT_EQ(alert.body, body);
    };
    commands->activate({"One"});
    answered("Nothing to activate", "Every user-controllable font in One is already active.");
    commands->activate({"One", "Two"});
    answered("Nothing to activate", "Every selected font is already active.");
    commands->activateRemaining({"Three"});
    answered("Nothing to activate", "Every user-controllable font in Three is already active.");
    commands->deactivate({"Three"});
    answered("Nothing to de-activate", "No user-controllable active fonts in Three.");
    commands->deactivateStyle("Three", library.model->family("Three")->styles.front());
    answered("Nothing to de-activate", "No user-controllable active fonts in Three Regular.");
    commands->deactivate({"Three", "Nowhere"});
    answered("Nothing to de-activate", "No user-controllable active fonts in the selection.");
    EXPECT_TRUE(presenter.methodQuestions.size() == 1 && presenter.progress.size() == 1)
        << "something was begun";
}

TEST_F(ActivationCommandsTest, HandsInWhatIsMissingOfAFamily)
{
    switchOn({"One"});
    add("one-thin.ttf", FontBuilder("One", "Thin").weightClass(100).build());
    reload();
    presenter.methods.push_back({InstallMethod::copy, false});
    commands->activateRemaining({"One", "Two"});
    ASSERT_TRUE(told("One installed"));
    EXPECT_THAT(
        active(),
        testing::UnorderedElementsAreArray(QStringList{"one.ttf", "one-bold.ttf", "one-thin.ttf"}));
}

TEST_F(ActivationCommandsTest, NamesWhatSharesAFile)
{
    commands->activate({"Four"});
    ASSERT_TRUE(waitUntil([&] { return presenter.methodQuestions.size() == 1; }));
    EXPECT_EQ(presenter.methodQuestions.back().coResidentNote,
              QString("This font's file also contains Five. Activating makes it available too."));
    presenter.chooseMethod(InstallMethod::copy);
    ASSERT_TRUE(told("Four installed"));
    presenter.press(0);
    ASSERT_TRUE(settles());
    reload();
    const FontStyleRecord style = library.model->family("Five")->styles.front();
    commands->deactivateStyle("Five", style);
    ASSERT_TRUE(told("De-activate Five Regular?"));
    EXPECT_EQ(presenter.lastAlert().body, "The style will no longer be available system-wide.");
    EXPECT_EQ(presenter.lastAlert().note,
              "This font's file also contains Four. De-activating removes it too.");
    presenter.press(0);
    ASSERT_TRUE(told("Five Regular removed"));
    EXPECT_TRUE(areActive({}));
}

TEST_F(ActivationCommandsTest, SwitchesAStyleOnByItself)
{
    const FontStyleRecord bold = styleOf("One", "Bold");
    commands->activateStyle("One", bold);
    ASSERT_TRUE(waitUntil([&] { return presenter.methodQuestions.size() == 1; }));
    EXPECT_EQ(presenter.methodQuestions.back().familyName, "One Bold");
    EXPECT_FALSE(presenter.methodQuestions.back().coResidentNote) << "nobody shares its file";
    presenter.chooseMethod(InstallMethod::copy);
    ASSERT_TRUE(told("One Bold installed"));
    presenter.press(0);
    ASSERT_TRUE(settles());
    EXPECT_EQ(active(), QStringList("one-bold.ttf"));
    reload();

    commands->activateStyle("One", bold);
    ASSERT_TRUE(told("Nothing to activate"));
    EXPECT_EQ(presenter.lastAlert().body,
              "Every user-controllable font in One Bold is already active.");
    presenter.press(0);
    library.installation->setDefaultMethod(InstallMethod::registerInPlace);
    commands->activateStyle("Four", styleOf("Four", "Regular"));
    ASSERT_TRUE(told("Four Regular installed"));
    EXPECT_EQ(active().size(), 2) << "the collection's file, once";
}

TEST_F(ActivationCommandsTest, DeactivatesAndBringsBack)
{
    switchOn({"One"});
    switchOn({"Two"}, InstallMethod::registerInPlace);
    commands->deactivate({"One", "Two"});
    ASSERT_TRUE(told("De-activate 2 fonts?"));
    presenter.press(1);
    EXPECT_EQ(active().size(), 3) << "Cancel switched something off";

    commands->deactivate({"One", "Two"});
    ASSERT_TRUE(waitUntil([&] { return !presenter.openAlerts.empty(); }));
    presenter.press(0);
    ASSERT_TRUE(told("2 fonts removed"));
    EXPECT_TRUE(areActive({}));
    QUndoStack &stack = library.model->undoStack();
    EXPECT_EQ(stack.undoText(), "De-activate 2 fonts");

    for (int round = 0; round < 2; ++round) {
        stack.undo();
        ASSERT_TRUE(settles());
        EXPECT_EQ(active().size(), 3) << "not brought back";
        EXPECT_TRUE(exists(copyOf("one.ttf")) && exists(copyOf("one-bold.ttf")));
        EXPECT_EQ(library.installation->books()->contents().methods.at("Two"),
                  InstallMethod::registerInPlace);
        reload();
        stack.redo();
        ASSERT_TRUE(areActive({}));
        ASSERT_TRUE(settles());
        reload();
    }
    EXPECT_EQ(presenter.lastAlert().title, "2 fonts removed") << "undoing has nothing to tell";
}

TEST_F(ActivationCommandsTest, CannotBringBackWhatHasLeftTheTrash)
{
    switchOn({"One"});
    presenter.buttons = {0, 0};
    commands->deactivate({"One"});
    ASSERT_TRUE(told("One removed"));
    ASSERT_TRUE(settles());
    commands->refreshUndo();
    const FilePath trash = fonts.parent().child("Trash").child("files");
    ASSERT_TRUE(exists(trash.child("one.ttf")));
    EXPECT_TRUE(library.model->undoStack().canUndo());

    std::filesystem::remove_all(trash.c_str());
    commands->refreshUndo();
    EXPECT_TRUE(waitUntil([&] { return !library.model->undoStack().canUndo(); }));
    EXPECT_TRUE(active().isEmpty());
}

TEST_F(ActivationCommandsTest, TellsWhichFilesCouldNotBeBroughtBack)
{
    switchOn({"One"});
    presenter.buttons = {0, 0};
    commands->deactivate({"One"});
    ASSERT_TRUE(told("One removed"));
    ASSERT_TRUE(settles());
    writeFile(fonts, "one.ttf", "of another program");
    library.model->undoStack().undo();
    ASSERT_TRUE(told("Couldn't fully bring back One"));
    EXPECT_EQ(presenter.lastAlert().body, "1 file could not be brought back.");
    EXPECT_EQ(readFile(copyOf("one.ttf")), "of another program");
    EXPECT_TRUE(exists(copyOf("one-bold.ttf")));
    ASSERT_TRUE(commands->hasFailures());
    commands->showFailures();
    ASSERT_EQ(presenter.reports.size(), 1U);
    EXPECT_THAT(presenter.reports[0].report.copyText.toStdString(),
                testing::HasSubstr("one.ttf\t"));
}

TEST_F(ActivationCommandsTest, DoesAStyleAgainWithoutItsFamily)
{
    switchOn({"One"});
    presenter.buttons = {0, 0};
    commands->deactivateStyle("One", styleOf("One", "Bold"));
    ASSERT_TRUE(told("One Bold removed"));
    ASSERT_TRUE(settles());
    QUndoStack &stack = library.model->undoStack();
    EXPECT_EQ(stack.undoText(), "De-activate One Bold");
    stack.undo();
    ASSERT_TRUE(areActive({"one-bold.ttf", "one.ttf"}));
    ASSERT_TRUE(settles());
    reload();
    stack.redo();
    EXPECT_TRUE(areActive({"one.ttf"}));
    ASSERT_TRUE(settles());
}

TEST_F(ActivationCommandsTest, TriesAgainWhatCouldNotBeUndone)
{
    switchOn({"One"});
    presenter.buttons = {0, 0};
    commands->deactivate({"One"});
    ASSERT_TRUE(told("One removed"));
    ASSERT_TRUE(settles());
    reload();
    // Another program's files take the names for a while.
    for (const char *name : {"one.ttf", "one-bold.ttf"})
        writeFile(fonts, name, "of another program");
    QUndoStack &stack = library.model->undoStack();
    stack.undo();
    ASSERT_TRUE(told("Couldn't fully bring back One"));
    ASSERT_TRUE(settles());
    presenter.press(0);
    for (const char *name : {"one.ttf", "one-bold.ttf"})
        std::filesystem::remove(copyOf(name).c_str());
    reload();

    // Nothing is active that could be switched off again, but the Trash still has it.
    stack.redo();
    ASSERT_TRUE(told("Nothing to de-activate"));
    presenter.press(0);
    ASSERT_TRUE(stack.canUndo());
    stack.undo();
    ASSERT_TRUE(settles());
    EXPECT_TRUE(areActive({"one-bold.ttf", "one.ttf"}));
    reload();

    // What is back for good leaves nothing behind that could be undone.
    presenter.buttons = {0, 0};
    commands->deactivate({"One"});
    ASSERT_TRUE(told("One removed"));
    ASSERT_TRUE(settles());
    reload();
    std::filesystem::remove_all(fonts.parent().child("Trash").c_str());
    stack.undo();
    ASSERT_TRUE(told("Couldn't fully bring back One"));
    ASSERT_TRUE(settles());
    stack.redo();
    ASSERT_TRUE(told("Nothing to de-activate"));
    EXPECT_TRUE(waitUntil([&] {
        return !stack.canUndo() || stack.undoText() != "De-activate One";
    })) << "undoing would do nothing";
}

TEST_F(ActivationCommandsTest, MovesWhatItDidNotInstall)
{
    writeFile(fonts, "own.ttf", FontBuilder("Own").build());
    reload();
    const FilePath kept = test::TestHome::instance().makeFolder("kept");
    commands->deactivate({"Own"});
    ASSERT_TRUE(told("De-activate Own?"));
    EXPECT_EQ(presenter.lastAlert().buttons.front().text, "Choose Folder…");
    presenter.press(0);
    ASSERT_EQ(presenter.folderQuestions.size(), 1U);
    presenter.chooseFolders({});
    EXPECT_TRUE(exists(copyOf("own.ttf"))) << "a cancelled chooser moved it";

    presenter.buttons = {0, 0};
    presenter.folders = {{writeFile(kept, "no-folder", "")}};
    commands->deactivate({"Own"});
    ASSERT_TRUE(told("Couldn't fully de-activate Own"));
    EXPECT_EQ(presenter.lastAlert().body, "1 file failed to de-activate.");
    EXPECT_TRUE(exists(copyOf("own.ttf")));
    ASSERT_TRUE(settles());

    presenter.buttons = {0, 0};
    presenter.folders = {{kept}};
    commands->deactivate({"Own"});
    ASSERT_TRUE(told("Own removed"));
    EXPECT_TRUE(exists(kept.child("own.ttf")));
    EXPECT_FALSE(library.model->undoStack().canUndo()) << "only the Trash can be undone";
}

TEST_F(ActivationCommandsTest, LooksAgainWhenTheAnswerComes)
{
    // The family goes while the sheet asks.
    commands->activate({"Three"});
    ASSERT_TRUE(waitUntil([&] { return presenter.methodQuestions.size() == 1; }));
    std::filesystem::remove(watched.child("three.ttf").c_str());
    reload();
    presenter.chooseMethod(InstallMethod::copy);
    EXPECT_TRUE(told("Nothing to activate"));
    presenter.press(0);

    // The original goes while the question is open: the copy is now the only one.
    switchOn({"Two"});
    commands->deactivate({"Two"});
    ASSERT_TRUE(told("De-activate Two?"));
    std::filesystem::remove(watched.child("two.ttf").c_str());
    presenter.press(0);
    ASSERT_TRUE(waitUntil([&] { return !presenter.openAlerts.empty(); }));
    EXPECT_EQ(presenter.lastAlert().buttons.front().text, "Choose Folder…");
    EXPECT_TRUE(exists(copyOf("two.ttf")));
}

TEST_F(ActivationCommandsTest, LeavesOutWhatIsBeingSwitched)
{
    library.installation->setDefaultMethod(InstallMethod::copy);
    {
        const auto lock = holdRuns();
        commands->activate({"One"});
        ASSERT_TRUE(waitUntil([&] { return library.installation->isInFlight("One"); }));
        commands->activate({"One", "Three"});
        commands->activate({"One"});
        commands->activate({"Two"});
        ASSERT_TRUE(waitUntil([&] { return library.installation->isInFlight("Two"); }));
    }
    ASSERT_TRUE(waitUntil([&] { return presenter.alerts.size() == 3; }));
    ASSERT_TRUE(settles());
    QStringList titles;
    for (const Alert &alert : presenter.alerts)
        titles << alert.title;
    EXPECT_EQ(titles, (QStringList{"One installed", "Three installed", "Two installed"}));
}

TEST_F(ActivationCommandsTest, StopsWhenCancelled)
{
    library.installation->setDefaultMethod(InstallMethod::copy);
    {
        const auto lock = holdRuns();
        commands->activate({"One", "Two"});
        ASSERT_TRUE(waitUntil([&] { return presenter.showsProgress(); }));
        presenter.cancelProgress();
    }
    ASSERT_TRUE(waitUntil([&] { return !presenter.alerts.empty(); }));
    EXPECT_EQ(presenter.lastAlert().title, "Activation of 2 Fonts stopped");
    EXPECT_EQ(presenter.lastAlert().body, "0 of 3 files are available in every app on your Mac.");
    EXPECT_FALSE(presenter.showsProgress());
    EXPECT_TRUE(active().isEmpty());
    EXPECT_FALSE(library.installation->isInFlight("One"));
}

TEST_F(ActivationCommandsTest, EndsQuietlyWhenTheWindowCloses)
{
    library.installation->setDefaultMethod(InstallMethod::registerInPlace);
    commands->activate({"One", "Two"});
    bool isFinished = false;
    ASSERT_TRUE(waitUntil([&] { return commands->isRunning(); }));
    commands->finish([&] { isFinished = true; });
    ASSERT_TRUE(waitUntil([&] { return isFinished; }));
    EXPECT_FALSE(library.installation->hasRuns());
    EXPECT_TRUE(presenter.alerts.empty());
    const auto linked = library.registrar->registeredFonts();
    EXPECT_EQ(qsizetype(linked.size()),
              library.installation->books()->contents().registeredURLs.size());

    isFinished = false;
    commands->activate({"Three"});
    commands->finish([&] { isFinished = true; });
    EXPECT_TRUE(isFinished) << "nothing runs";
    // A plan that was being made begins nothing any more.
    ASSERT_TRUE(settles());
    EXPECT_FALSE(exists(library.folders.registeredLinks().child("three.ttf")));
}

TEST_F(ActivationCommandsTest, SurvivesAnswersThatComeTooLate)
{
    commands->activate({"One"});
    ASSERT_TRUE(waitUntil([&] { return presenter.methodQuestions.size() == 1; }));
    commands.reset();
    presenter.chooseMethod(InstallMethod::copy, true);
    EXPECT_FALSE(library.installation->hasRuns());

    commands = std::make_unique<ActivationCommands>(*library.model, presenter);
    presenter.hasWindow = false;
    commands->activate({"One"});
    commands->deactivate({"One"});
    commands->showHistory();
    ASSERT_TRUE(settles());
    EXPECT_TRUE(presenter.alerts.empty());
}

TEST_F(ActivationCommandsTest, ShowsAndExportsTheHistory)
{
    switchOn({"One"});
    commands->showHistory();
    ASSERT_TRUE(waitUntil([&] { return presenter.reports.size() == 1; }));
    const Report &report = presenter.reports[0].report;
    ASSERT_EQ(report.rows.size(), 1U);
    EXPECT_EQ(report.rows[0].title, "Activated One");
    EXPECT_EQ(report.rows[0].detail, "Copied to the Fonts folder: 2 files");
    const FilePath target = test::TestHome::instance().makeFolder("export").child("list.csv");
    presenter.reports[0].save(target);
    ASSERT_TRUE(waitUntil([&] { return exists(target); }));
    EXPECT_THAT(readFile(target).toStdString(), testing::HasSubstr("one-bold.ttf"));
    presenter.reports[0].save(target.child("below-a-file.csv"));
    EXPECT_TRUE(told("Couldn't save the list"));
}

} // namespace
} // namespace lorva
