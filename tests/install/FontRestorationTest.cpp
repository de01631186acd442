// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// De-activations are undone as far as the Trash has the files.
#include "InstallationSupport.h"
#include "platform/linux/XdgFolders.h"
#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace lorva {
namespace {

using test::familyOf;
using test::InstallingProcess;
using test::readFile;
using test::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

bool exists(const FilePath &path)
{
    struct stat info;
    return ::lstat(path.c_str(), &info) == 0;
}

/// Two copied files, a registered one, and a font of unknown origin, switched off together.
class Restoration : public testing::Test
{
protected:
    Restoration()
    {
        process.watch({a, b, c});
        process.copy({familyOf("Copied", {a, b})});
        process.registerInPlace({familyOf("Registered", {c})});
        EXPECT_TRUE(process.reconcile({}));
        families = {familyOf("Copied", {a, b}), familyOf("Registered", {c}),
                    familyOf("Own", {own})};
        before = process.service.books()->contents();
        outcome = process.deactivate(families);
    }

    FilePath inFonts(const QByteArray &name) const { return folders.userFonts.child(name); }
    FilePath placeOf(const FilePath &entry) const
    {
        for (const WithdrawnFonts::Copy &copy : outcome.withdrawn.copies) {
            if (copy.entry == entry)
                return copy.place;
        }
        ADD_FAILURE() << entry.c_str();
        return {};
    }
    std::vector<std::string> reasons(const InstallationOutcome &restored) const
    {
        std::vector<std::string> found;
        for (const auto &[file, error] : restored.failures)
            found.push_back(file.fileName().toStdString() + ": " + error.description.toStdString());
        return found;
    }
    InstallationOutcome restore() { return process.restore(outcome.withdrawn, outcome.families); }

    const PlatformFolders folders = xdgFolders();
    const FilePath trash = folders.applicationSupport.parent().child("Trash");
    const FilePath sources = test::makeCaseFolder();
    const FilePath a = writeFile(sources, "A.ttf", "font a");
    const FilePath b = writeFile(sources, "B.ttf", "font b");
    const FilePath c = writeFile(sources, "C.ttf", "font c");
    const FilePath own = writeFile(folders.userFonts, "Own.ttf", "own");
    InstallingProcess process{folders};
    std::vector<FontFamilyRecord> families;
    ActivationBooks::Contents before;
    InstallationOutcome outcome;
};

TEST_F(Restoration, BringsBackFilesAndBooks)
{
    EXPECT_THAT(outcome.failures, IsEmpty());
    ASSERT_EQ(outcome.withdrawn.copies.size(), 3u);
    EXPECT_EQ(outcome.withdrawn.copies[0].entry, inFonts("A.ttf"));
    EXPECT_EQ(outcome.withdrawn.copies[0].origin, a);
    EXPECT_EQ(outcome.withdrawn.copies[2].origin, std::nullopt);
    EXPECT_THAT(outcome.withdrawn.registrations, ElementsAre(c));
    EXPECT_EQ(outcome.withdrawn.methods, before.methods);
    EXPECT_EQ(readFile(placeOf(own)), "own");

    const InstallationOutcome restored = restore();
    EXPECT_THAT(restored.failures, IsEmpty());
    EXPECT_EQ(restored.families, outcome.families);
    EXPECT_THAT(restored.filesDone, ElementsAre(inFonts("A.ttf"), inFonts("B.ttf"), own, c));
    const ActivationBooks::Contents after = process.service.books()->contents();
    EXPECT_EQ(after.fontsFolder, before.fontsFolder);
    EXPECT_EQ(after.methods, before.methods);
    EXPECT_EQ(after.origins, before.origins);
    EXPECT_EQ(after.registeredURLs, before.registeredURLs);
    EXPECT_THAT(process.registrar->registeredFonts(), ElementsAre(c));
    for (const char *folder : {"files", "info"})
        EXPECT_TRUE(std::filesystem::is_empty(trash.child(folder).c_str())) << folder;
    EXPECT_EQ(process.history().front().action, ActivationHistoryEntry::Action::restored);

    EXPECT_THAT(process.deactivate(families).failures, IsEmpty()) << "and off again";
    EXPECT_TRUE(process.deactivate(families, sources.child("to")).withdrawn.isEmpty());
}

TEST_F(Restoration, TellsOfEachFileThatCannotComeBack)
{
    const FilePath placeOfA = placeOf(inFonts("A.ttf"));
    ASSERT_EQ(::unlink(placeOfA.c_str()), 0);
    ASSERT_EQ(::unlink(c.c_str()), 0);
    writeFile(folders.userFonts, "B.ttf", "another font");
    EXPECT_THAT(reasons(restore()),
                UnorderedElementsAre("A.ttf: It is not in the Trash any more",
                                     "B.ttf: Another file has taken its place",
                                     "C.ttf: File not found"));
    EXPECT_EQ(readFile(inFonts("B.ttf")), "another font");
    EXPECT_EQ(readFile(placeOf(inFonts("B.ttf"))), "font b") << "it stays where it is safe";
    EXPECT_EQ(readFile(own), "own") << "the others come back";
    EXPECT_FALSE(exists(inFonts("A.ttf")));
    EXPECT_THAT(process.service.books()->contents().origins, IsEmpty());
}

TEST_F(Restoration, NeverTakesAnotherFileOfThatNameFromTheTrash)
{
    const FilePath place = placeOf(inFonts("A.ttf"));
    ASSERT_EQ(::unlink(place.c_str()), 0);
    // Of the same length, and perhaps in the place on the disk that the first one had.
    writeFile(place.parent(), place.fileName(), "font x");
    EXPECT_THAT(reasons(restore()), ElementsAre("A.ttf: It is not in the Trash any more"));
    EXPECT_EQ(readFile(place), "font x");
    EXPECT_FALSE(exists(inFonts("A.ttf")));
}

TEST_F(Restoration, LeavesWhatIsThereAgain)
{
    process.copy({familyOf("Copied", {a, b})});
    process.registerInPlace({familyOf("Registered", {c})});
    const InstallationOutcome restored = restore();
    EXPECT_THAT(restored.failures, IsEmpty());
    EXPECT_THAT(restored.filesSkipped, ElementsAre(inFonts("A.ttf"), inFonts("B.ttf")));
    EXPECT_THAT(restored.filesDone, ElementsAre(own, c));
    EXPECT_EQ(process.service.books()->contents().origins, before.origins);
}

TEST_F(Restoration, MakesAFontsFolderThatHasGone)
{
    std::filesystem::remove_all(folders.userFonts.c_str());
    EXPECT_THAT(restore().failures, IsEmpty());
    EXPECT_EQ(process.service.books()->contents().origins, before.origins);
    EXPECT_EQ(readFile(inFonts("A.ttf")), "font a");
}

TEST_F(Restoration, LeavesFamiliesInFlightAlone)
{
    const FilePath d = writeFile(sources, "D.ttf", "font d");
    std::optional<InstallationOutcome> busy;
    std::optional<InstallationOutcome> partly;
    process.service.activateInPlace({familyOf("Copied", {d})}, {});
    process.service.restore(outcome.withdrawn, {"Copied"},
                            [&](InstallationOutcome o) { busy = std::move(o); });
    process.service.restore(outcome.withdrawn, {"Copied", "Registered"},
                            [&](InstallationOutcome o) { partly = std::move(o); });
    EXPECT_TRUE(process.service.isInFlight("Registered"));
    ASSERT_TRUE(test::waitUntil([&] { return busy && partly; }));
    EXPECT_THAT(busy->families, IsEmpty());
    ASSERT_EQ(busy->failures.size(), 4u);
    EXPECT_EQ(busy->failures.begin()->second.code, InstallationError::isBusy);
    EXPECT_EQ(partly->families, QStringList("Registered"));
    EXPECT_THAT(partly->failures, IsEmpty());
    const std::map<QString, InstallMethod> methods = process.store().methods();
    EXPECT_EQ(methods.at("Copied"), InstallMethod::registerInPlace) << "as the other run says";
    EXPECT_EQ(process.history().size(), 5u) << "one that is refused is none";
}

TEST_F(Restoration, ThatDiedIsFinishedByItsJournal)
{
    InstallationJournal journal;
    journal.copies.emplace(inFonts("A.ttf"), a);
    ASSERT_TRUE(journal.add(folders.activationJournal()));
    ASSERT_EQ(std::rename(placeOf(inFonts("A.ttf")).c_str(), inFonts("A.ttf").c_str()), 0);
    process.registrar->registerFont(c, RegistrationScope::user);
    ASSERT_TRUE(process.reconcile(families));
    EXPECT_EQ(process.store().origins().value(inFonts("A.ttf")), a);
    EXPECT_TRUE(process.store().registeredURLs().contains(c));
    EXPECT_THAT(reasons(restore()), ElementsAre("A.ttf: It is not in the Trash any more"))
        << "and once more brings the rest";
    EXPECT_EQ(process.service.books()->contents().origins, before.origins);
}

} // namespace
} // namespace lorva
