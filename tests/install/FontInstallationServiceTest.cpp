// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontInstallationService.h"

#include "base/NotificationCentre.h"
#include "FaultyCalls.h"
#include "install/WatchedFolderStore.h"
#include "InstallationSupport.h"
#include "platform/linux/XdgFolders.h"
#include "platform/RunLock.h"
#include "support/AdverseSystem.h"
#include "support/FontBuilder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::familyOf;
using test::InstallingProcess;
using test::readFile;
using test::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

QByteArray font(const QString &family, const QString &style = QStringLiteral("Regular"))
{
    return test::FontBuilder(family, style)
        .postScriptName(QString(family).remove(u' ') + u'-' + style)
        .build();
}

/// What a program that starts now is offered. Not by Qt, whose way to start processes makes the
/// thread checker take this one for a child.
std::vector<std::string> listedByFontconfig()
{
    std::vector<std::string> names;
    FILE *const list = ::popen("fc-list --format='%{postscriptname}\\n'", "r");
    if (!list) {
        ADD_FAILURE() << "fc-list cannot be run";
        return names;
    }
    std::array<char, 256> line;
    while (std::fgets(line.data(), line.size(), list))
        names.push_back(QByteArray(line.data()).trimmed().toStdString());
    EXPECT_EQ(::pclose(list), 0);
    std::sort(names.begin(), names.end());
    return names;
}

bool exists(const FilePath &path)
{
    struct stat info;
    return ::lstat(path.c_str(), &info) == 0;
}

class Installation : public testing::Test
{
protected:
    const FilePath root = test::TestHome::instance().root();
    const FilePath watched = root.child("watched");
    const PlatformFolders folders = xdgFolders();
    const FilePath trashed = folders.applicationSupport.parent().child("Trash").child("files");
    const FilePath a = writeFile(watched, "A.ttf", font("Alpha"));
    const FilePath b = writeFile(watched, "B.ttf", font("Alpha", "Bold"));
    const FontFamilyRecord alpha = familyOf("Alpha", {a, b});
    InstallingProcess process{folders};

    Installation() { process.watch({a, b}); }

    FilePath inFonts(const QByteArray &name) const { return folders.userFonts.child(name); }
    std::vector<FilePath> failedFiles(const InstallationOutcome &outcome) const
    {
        std::vector<FilePath> files;
        for (const auto &[file, error] : outcome.failures) {
            EXPECT_FALSE(error.description.isEmpty());
            files.push_back(file);
        }
        return files;
    }
};

TEST_F(Installation, CopiesAreSeenByEveryProgramAndGoToTheTrash)
{
    EXPECT_EQ(process.state(alpha), std::nullopt);
    const InstallationOutcome copied = process.copy({alpha});
    EXPECT_THAT(copied.failures, IsEmpty());
    EXPECT_EQ(copied.families, QStringList("Alpha"));
    EXPECT_THAT(copied.filesDone, ElementsAre(a, b));
    EXPECT_THAT(listedByFontconfig(), ElementsAre("Alpha-Bold", "Alpha-Regular"));
    EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::copy, false}));
    EXPECT_TRUE(process.service.books()->areAllOriginsKnown(alpha.styles));
    EXPECT_EQ(process.store().origins().value(inFonts("A.ttf")), a);
    EXPECT_EQ(process.store().methods().at("Alpha"), InstallMethod::copy);

    EXPECT_THAT(process.deactivate({alpha}).filesDone, ElementsAre(a, b));
    EXPECT_THAT(listedByFontconfig(), IsEmpty());
    EXPECT_EQ(process.state(alpha), std::nullopt);
    EXPECT_EQ(readFile(trashed.child("A.ttf")), readFile(a));
    EXPECT_TRUE(exists(a) && exists(b)) << "the sources stay";
    EXPECT_TRUE(process.store().origins().isEmpty());
    EXPECT_TRUE(process.store().methods().empty());
    EXPECT_FALSE(exists(folders.activationJournal()));
}

TEST_F(Installation, RegistersFilesWhereTheyLie)
{
    EXPECT_THAT(process.registerInPlace({alpha}).failures, IsEmpty());
    EXPECT_THAT(process.registerInPlace({alpha}).failures, IsEmpty()) << "registered already";
    EXPECT_THAT(listedByFontconfig(), ElementsAre("Alpha-Bold", "Alpha-Regular"));
    EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::registerInPlace, false}));
    EXPECT_EQ(process.store().registeredURLs(), (QSet<FilePath>{a, b}));
    EXPECT_FALSE(exists(inFonts("A.ttf")));

    const FontFamilyRecord regular = familyOf("Alpha", {a});
    EXPECT_THAT(process.deactivate({regular}).filesDone, ElementsAre(a));
    EXPECT_THAT(listedByFontconfig(), ElementsAre("Alpha-Bold"));
    EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::registerInPlace, true}));
    EXPECT_THAT(process.deactivate({alpha}).filesDone, ElementsAre(b));
    EXPECT_THAT(listedByFontconfig(), IsEmpty());
    EXPECT_EQ(process.state(alpha), std::nullopt);
    EXPECT_TRUE(exists(a) && exists(b));
}

TEST_F(Installation, WhatIsCopiedAndRegisteredIsSwitchedOffWhole)
{
    process.registerInPlace({alpha});
    ASSERT_EQ(::mkdir(watched.child("x").c_str(), 0700), 0);
    writeFile(folders.userFonts, "A.ttf", readFile(a));
    ASSERT_TRUE(process.reconcile({alpha}));
    EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::registerInPlace, false}))
        << "a mix reads as its books say";
    EXPECT_THAT(process.deactivate({alpha}, root.child("moved")).failures, IsEmpty());
    EXPECT_EQ(process.state(alpha), std::nullopt);
    EXPECT_THAT(listedByFontconfig(), IsEmpty());
}

TEST_F(Installation, NamesThatAreTakenAreLeftAlone)
{
    const QByteArray others = font("Other");
    writeFile(folders.userFonts, "A.ttf", others);
    const FilePath second = writeFile(watched.child("more"), "B.ttf", font("Beta"));
    const FontFamilyRecord beta = familyOf("Beta", {second});
    const InstallationOutcome outcome = process.copy({alpha, beta});
    EXPECT_THAT(outcome.failures, IsEmpty());
    EXPECT_THAT(outcome.filesDone, ElementsAre(b));
    EXPECT_THAT(outcome.filesSkipped, ElementsAre(a, second)) << "one name twice in one run";
    EXPECT_EQ(readFile(inFonts("A.ttf")), others);
    EXPECT_EQ(readFile(inFonts("B.ttf")), readFile(b));
    EXPECT_FALSE(process.store().origins().contains(inFonts("A.ttf")));
    EXPECT_EQ(process.store().origins().value(inFonts("B.ttf")), b);

    // Neither of the other fonts may be taken for a copy of these.
    EXPECT_THAT(failedFiles(process.deactivate({familyOf("Alpha", {a}), beta})),
                UnorderedElementsAre(a, second));
    EXPECT_EQ(readFile(inFonts("A.ttf")), others);
    EXPECT_EQ(readFile(inFonts("B.ttf")), readFile(b));
}

TEST_F(Installation, EachFileFailsForItself)
{
    const FilePath gone = watched.child("gone.ttf");
    const FilePath pipe = watched.child("pipe.ttf");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const FilePath noText(watched.bytes() + "/\xff.ttf");
    writeFile(watched, "\xff.ttf", font("Bytes"));
    const FontFamilyRecord family = familyOf("Alpha", {gone, a, pipe, noText, b});

    const InstallationOutcome registered =
        process.registerInPlace({familyOf("X", {gone, noText, pipe, watched})});
    EXPECT_THAT(failedFiles(registered), UnorderedElementsAre(gone, noText, pipe, watched));
    const InstallationOutcome copied = process.copy({family});
    EXPECT_THAT(failedFiles(copied), UnorderedElementsAre(gone, pipe, noText));
    EXPECT_THAT(copied.filesDone, ElementsAre(a, b));
    EXPECT_EQ(copied.failures.at(gone),
              (InstallationError{"FontInstallation", 2, "File not found"}));
    EXPECT_THAT(listedByFontconfig(), ElementsAre("Alpha-Bold", "Alpha-Regular"));
}

TEST_F(Installation, AnOriginIsKnownWhileItsBytesAreThere)
{
    process.copy({alpha});
    const QByteArray others = font("Other");
    writeFile(folders.userFonts, "A.ttf", others);
    EXPECT_FALSE(process.service.books()->areAllOriginsKnown(alpha.styles)) << "somebody else's";
    writeFile(folders.userFonts, "A.ttf", readFile(a));
    EXPECT_TRUE(process.service.books()->areAllOriginsKnown(alpha.styles));
    ASSERT_EQ(::unlink(b.c_str()), 0);
    EXPECT_FALSE(process.service.books()->areAllOriginsKnown(alpha.styles)) << "the last copy";
}

TEST_F(Installation, WhatADeadRunLeftIsNotLostInTheNextOne)
{
    process.registerInPlace({familyOf("Alpha", {b})});
    InstallationJournal journal;
    journal.copies.emplace(inFonts("A.ttf"), a);
    journal.withdrawn.insert(b);
    ASSERT_TRUE(journal.add(folders.activationJournal()));
    writeFile(folders.userFonts, "A.ttf", readFile(a));
    process.registrar->unregisterFont(b, RegistrationScope::user);

    process.copy({familyOf("Gamma", {writeFile(watched, "C.ttf", font("Gamma"))})});
    EXPECT_EQ(process.store().origins().value(inFonts("A.ttf")), a);
    EXPECT_TRUE(process.store().registeredURLs().isEmpty());
    ASSERT_TRUE(process.reconcile({alpha}));
    EXPECT_THAT(process.registrar->registeredFonts(), IsEmpty());
}

TEST_F(Installation, FontsFoldersThatAreAwayKeepTheirOrigins)
{
    process.copy({alpha});
    const FilePath away = root.child("away");
    ASSERT_EQ(std::rename(folders.userFonts.c_str(), away.c_str()), 0);
    ASSERT_EQ(::mkdir(folders.userFonts.c_str(), 0700), 0);
    ASSERT_TRUE(process.reconcile({alpha}));
    EXPECT_EQ(process.store().origins().size(), 2) << "an empty mount point";
    ASSERT_EQ(::rmdir(folders.userFonts.c_str()), 0);
    ASSERT_EQ(std::rename(away.c_str(), folders.userFonts.c_str()), 0);
    ASSERT_TRUE(process.reconcile({alpha}));
    EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::copy, false}));
    EXPECT_TRUE(process.service.books()->areAllOriginsKnown(alpha.styles));
}

TEST_F(Installation, AVolumeThatHangsStopsNothing)
{
    const FilePath c = writeFile(watched, "C.ttf", font("Gamma"));
    process.watch({a, b, c});
    process.registerInPlace({alpha});
    ASSERT_EQ(::unlink(a.c_str()), 0);
    {
        const test::HungFile hung(b);
        ASSERT_TRUE(process.reconcile({alpha}));
        EXPECT_EQ(process.store().registeredURLs(), (QSet<FilePath>{b})) << "it has not gone";
        EXPECT_THAT(process.copy({familyOf("Gamma", {c})}).failures, IsEmpty());
    }
    ASSERT_TRUE(process.reconcile({alpha}));
    EXPECT_EQ(process.store().registeredURLs(), (QSet<FilePath>{b}));
}

TEST_F(Installation, WhoeverIsToldMayDestroyTheServiceOrWaitInADialog)
{
    auto other = std::make_unique<InstallingProcess>(folders);
    other->watch({a, b});
    bool isNextDone = false;
    std::optional<bool> wasNextDone;
    other->service.activateByCopying({familyOf("Alpha", {a})}, [&](const InstallationOutcome &) {
        wasNextDone = test::waitUntil([&] { return isNextDone; });
    });
    other->service.activateInPlace({familyOf("Bold", {b})},
                                   [&](const InstallationOutcome &) { isNextDone = true; });
    ASSERT_TRUE(test::waitUntil([&] { return wasNextDone.has_value(); }));
    EXPECT_TRUE(*wasNextDone) << "the queue stood still";

    bool isGone = false;
    other->service.deactivate({alpha}, {}, [&](const InstallationOutcome &) {
        other.reset();
        isGone = true;
    });
    ASSERT_TRUE(test::waitUntil([&] { return isGone; }));
    EXPECT_THAT(process.copy({alpha}).failures, IsEmpty()) << "its lock has gone, too";
}

struct Obstacle
{
    const char *what;
    std::function<void(const PlatformFolders &)> put;
};

TEST_F(Installation, AFontsFolderThatIsNoneFailsEveryFile)
{
    ASSERT_EQ(::rmdir(folders.userFonts.c_str()), 0);
    for (const Obstacle &obstacle : {
             Obstacle{"a file", [](auto &f) { writeFile(f.userFonts.parent(), "fonts", "x"); }},
             Obstacle{"a link to nothing",
                      [](auto &f) { EXPECT_EQ(::symlink("/none/such", f.userFonts.c_str()), 0); }},
         }) {
        SCOPED_TRACE(obstacle.what);
        obstacle.put(folders);
        EXPECT_THAT(failedFiles(process.copy({alpha})), ElementsAre(a, b));
        EXPECT_THAT(failedFiles(process.registerInPlace({alpha})), ElementsAre(a, b));
        EXPECT_EQ(process.state(alpha), std::nullopt);
        ASSERT_EQ(::unlink(folders.userFonts.c_str()), 0);
    }
    EXPECT_THAT(process.copy({alpha}).failures, IsEmpty()) << "one that is missing is made";
    EXPECT_THAT(listedByFontconfig(), ElementsAre("Alpha-Bold", "Alpha-Regular"));
}

TEST_F(Installation, AFullDiskLeavesNothingHalf)
{
    {
        const test::FullDisk full(300);
        EXPECT_THAT(failedFiles(process.copy({alpha})), ElementsAre(a, b));
    }
    EXPECT_THAT(listedByFontconfig(), IsEmpty());
    ASSERT_TRUE(process.reconcile({alpha}));
    EXPECT_EQ(process.state(alpha), std::nullopt);
    EXPECT_THAT(process.copy({alpha}).failures, IsEmpty());
}

TEST_F(Installation, MovesToAFolderUnderFreeNames)
{
    const FilePath to = root.child("moved");
    writeFile(to, "A.ttf", "somebody's");
    writeFile(to, "A 2.ttf", "somebody's");
    process.copy({alpha});
    EXPECT_THAT(process.deactivate({alpha}, to).filesDone, ElementsAre(a, b));
    EXPECT_EQ(readFile(to.child("A.ttf")), "somebody's");
    EXPECT_EQ(readFile(to.child("A 3.ttf")), readFile(a));
    EXPECT_EQ(readFile(to.child("B.ttf")), readFile(b));
    EXPECT_FALSE(exists(trashed));

    for (const FilePath &inside :
         {folders.userFonts, folders.userFonts.child("sub"), folders.registeredLinks().child("x"),
          folders.home.child(".fonts"), writeFile(root, "file", "")}) {
        process.copy({alpha});
        EXPECT_THAT(failedFiles(process.deactivate({alpha}, inside)), ElementsAre(a, b))
            << inside.c_str();
        EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::copy, false}));
    }
    EXPECT_FALSE(exists(folders.registeredLinks()) || exists(folders.home.child(".fonts")))
        << "a refused one is not made";

    const QByteArray longName(251, 'n');
    for (const auto &[name, number, expected] :
         std::vector<std::tuple<QByteArray, int, QByteArray>>{
             {"font.otf", 1, "font.otf"},
             {"font.otf", 2, "font 2.otf"},
             {"font", 3, "font 3"},
             {".otf", 2, ".otf 2"},
             {"a.b.otf", 10, "a.b 10.otf"},
             {longName + ".otf", 2, longName.chopped(2) + " 2.otf"},
             {longName.chopped(1) + "\xc3\xa9.otf", 2, longName.chopped(2) + " 2.otf"}})
        EXPECT_EQ(freeNameCandidate(name, number), expected);
}

TEST_F(Installation, ALinkInTheFontsFolderIsRemovedAndNotWhatItLinksTo)
{
    const FilePath target = writeFile(root.child("elsewhere"), "Z.ttf", font("Zeta"));
    ASSERT_EQ(::symlink(target.c_str(), inFonts("Linked.ttf").c_str()), 0);
    ASSERT_TRUE(process.reconcile({}));
    for (const FilePath &asSeen : {inFonts("Linked.ttf"), target}) {
        const FontFamilyRecord zeta = familyOf("Zeta", {asSeen});
        EXPECT_EQ(process.state(zeta), (FamilyActivationState{InstallMethod::copy, false}));
        EXPECT_FALSE(process.service.books()->areAllOriginsKnown(zeta.styles));
        EXPECT_THAT(process.deactivate({zeta}, root.child("moved")).failures, IsEmpty());
        EXPECT_FALSE(exists(inFonts("Linked.ttf")));
        EXPECT_EQ(readFile(target), font("Zeta"));
        ASSERT_EQ(::symlink(target.c_str(), inFonts("Linked.ttf").c_str()), 0);
        ASSERT_TRUE(process.reconcile({}));
    }
}

TEST_F(Installation, FamiliesInFlightAreLeftOutAndEveryoneIsTold)
{
    int notices = 0;
    QObject guard;
    NotificationCentre::shared().observe(ActivationProvider::changeNotification(), &guard,
                                         [&](const void *) {
                                             EXPECT_FALSE(process.service.isInFlight("Alpha"));
                                             ++notices;
                                         });
    const FontFamilyRecord beta = familyOf("Beta", {writeFile(watched, "C.ttf", font("Beta"))});
    std::vector<InstallationOutcome> outcomes;
    const auto done = [&](InstallationOutcome outcome) { outcomes.push_back(std::move(outcome)); };
    process.service.activateByCopying({alpha}, done);
    EXPECT_TRUE(process.service.isInFlight("Alpha"));
    process.service.deactivate({alpha, beta}, {}, done);
    process.service.activateInPlace({alpha}, done);
    ASSERT_TRUE(test::waitUntil([&] { return outcomes.size() == 3; }));
    EXPECT_EQ(outcomes[0].families, QStringList("Alpha"));
    EXPECT_EQ(outcomes[1].families, QStringList("Beta"));
    EXPECT_EQ(outcomes[2].families, QStringList());
    EXPECT_EQ(notices, 3);
    EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::copy, false}));
}

TEST_F(Installation, AnotherProcessAtWorkIsWaitedForAndItsBooksAreRead)
{
    InstallingProcess other(folders);
    other.watch({a, b});
    const FontFamilyRecord regular = familyOf("Alpha", {a});
    const FontFamilyRecord bold = familyOf("Alpha", {b});
    std::optional<InstallationOutcome> first;
    std::optional<InstallationOutcome> second;
    process.service.activateInPlace({regular}, [&](InstallationOutcome o) { first = o; });
    other.service.activateInPlace({bold}, [&](InstallationOutcome o) { second = o; });
    ASSERT_TRUE(test::waitUntil([&] { return first && second; }));
    EXPECT_EQ(process.store().registeredURLs(), (QSet<FilePath>{a, b}));

    EXPECT_EQ(process.deactivate({alpha}).filesDone.size(), 2u);
    int notices = 0;
    QObject guard;
    NotificationCentre::shared().observe(ActivationProvider::changeNotification(), &guard,
                                         [&](const void *) { ++notices; });
    EXPECT_NE(other.state(bold), std::nullopt);
    other.service.takeChangesElsewhere();
    ASSERT_TRUE(test::waitUntil([&] { return notices > 0; }));
    EXPECT_EQ(other.state(bold), std::nullopt);
    EXPECT_THAT(listedByFontconfig(), IsEmpty());
}

TEST_F(Installation, BatchesNameTheFilesThatFailed)
{
    std::vector<FilePath> files;
    for (int i = 0; i < 40; ++i) {
        const QByteArray name = QByteArray::number(i);
        files.push_back(writeFile(watched, name + ".ttf", font(QString::fromLatin1(name))));
    }
    const auto batch = [&] {
        return process.run<BatchRegistration>(
            [&](auto done) { process.service.batchRegister(files, done); });
    };
    EXPECT_THAT(batch().failures, IsEmpty());
    EXPECT_EQ(listedByFontconfig().size(), 40u);
    EXPECT_TRUE(process.store().registeredURLs().isEmpty()) << "the books are the caller's";
    ASSERT_TRUE(process.reconcile({}));
    EXPECT_EQ(process.store().registeredURLs().size(), 40);

    const FilePath link = folders.registeredLinks().child(LinkFolderRegistrar::linkName(files[7]));
    ASSERT_EQ(::unlink(link.c_str()), 0);
    writeFile(folders.registeredLinks(), link.fileName(), "no link");
    const BatchRegistration second = batch();
    ASSERT_EQ(second.failures.size(), 1u);
    EXPECT_EQ(second.failures.begin()->first, files[7]);
    EXPECT_EQ(second.failures.begin()->second.domain, "FontManager");
    EXPECT_EQ(second.unattributed, std::nullopt);
}

TEST_F(Installation, ReconcileMendsWhatOthersDid)
{
    const FilePath c = writeFile(watched, "C.ttf", font("Gamma"));
    const FontFamilyRecord gamma = familyOf("Gamma", {c});
    const std::vector<FontFamilyRecord> all{alpha, gamma};
    process.watch({a, b, c});
    process.copy({gamma});
    process.registerInPlace({alpha});
    const auto link = [&](const FilePath &file) {
        return folders.registeredLinks().child(LinkFolderRegistrar::linkName(file));
    };
    ASSERT_EQ(::unlink(a.c_str()), 0); // its file has gone
    ASSERT_EQ(::unlink(link(b).c_str()), 0); // its link has gone
    process.registrar->registerFont(c, RegistrationScope::user); // the books do not know it
    ASSERT_EQ(::unlink(inFonts("C.ttf").c_str()), 0); // the copy has gone
    writeFile(folders.registeredLinks(), "stranger.txt", "not ours");
    writeFile(folders.userFonts, "Own.txt", "the Fonts folder is there");

    ASSERT_TRUE(process.reconcile(all));
    EXPECT_EQ(process.store().registeredURLs(), (QSet<FilePath>{b, c}));
    EXPECT_THAT(process.registrar->registeredFonts(), ElementsAre(b, c));
    EXPECT_TRUE(process.store().origins().isEmpty());
    EXPECT_EQ(process.store().methods(),
              (std::map<QString, InstallMethod>{{"Alpha", InstallMethod::registerInPlace},
                                                {"Gamma", InstallMethod::registerInPlace}}));
    EXPECT_THAT(listedByFontconfig(), ElementsAre("Alpha-Bold", "Gamma-Regular"));
    EXPECT_TRUE(exists(folders.registeredLinks().child("stranger.txt")));

    // A second look finds nothing to write, and says so by keeping the same books.
    SqlitePreferenceStore watching(folders.applicationSupport);
    watching.takeChangesElsewhere();
    struct stat before;
    struct stat after;
    ASSERT_EQ(::stat(folders.registeredLinks().c_str(), &before), 0);
    const auto books = process.service.books();
    ASSERT_TRUE(process.reconcile(all));
    ASSERT_EQ(::stat(folders.registeredLinks().c_str(), &after), 0);
    EXPECT_EQ(process.service.books(), books);
    EXPECT_FALSE(watching.takeChangesElsewhere());
    EXPECT_EQ(before.st_mtim.tv_nsec, after.st_mtim.tv_nsec);
}

TEST_F(Installation, ReconcileLeavesFamiliesOfVolumesThatAreAway)
{
    process.copy({alpha});
    ASSERT_TRUE(process.reconcile({}));
    EXPECT_EQ(process.store().methods().size(), 1u) << "not in the catalog now";
    EXPECT_EQ(process.store().origins().size(), 2);
    {
        // A run elsewhere is not to be disturbed.
        const auto lock = RunLock::take(folders.activationLock(), std::chrono::milliseconds(0));
        ASSERT_TRUE(lock);
        ASSERT_EQ(::unlink(inFonts("A.ttf").c_str()), 0);
        ASSERT_TRUE(process.reconcile({alpha}));
        EXPECT_EQ(process.store().origins().size(), 2);
        EXPECT_EQ(process.state(alpha), (FamilyActivationState{InstallMethod::copy, true}));
    }
    ASSERT_TRUE(process.reconcile({alpha}));
    EXPECT_EQ(process.store().origins().size(), 1);
}

} // namespace
} // namespace lorva
