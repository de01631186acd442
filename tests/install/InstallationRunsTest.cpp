// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// How runs tell how far they are, and how they end before their end.
#include "base/MainThread.h"
#include "GatedDependencies.h"
#include "InstallationSupport.h"
#include "platform/linux/XdgFolders.h"
#include "platform/RunLock.h"
#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace lorva {
namespace {

using test::familyOf;
using test::InstallingProcess;
using testing::ElementsAre;
using testing::IsEmpty;
using Fate = ActivationHistoryEntry::File::Fate;
using Service = FontInstallationService;

constexpr int kFiles = 5;
/// The file that is under way when a run is cancelled.
constexpr int kHeld = 2;

/// One family for each file, and a worker that can be held.
class InstallationRuns : public testing::Test
{
protected:
    InstallationRuns()
        : process(xdgFolders(), [this](InstallingProcess::Dependencies &real) {
            real.trash = std::make_shared<test::GatedTrash>(real.trash, gate);
            real.registrar = std::make_shared<test::GatedRegistrar>(real.registrar, gate);
        })
    {
        for (int i = 0; i < kFiles; ++i) {
            const QByteArray name = QByteArray::number(i);
            files.push_back(test::writeFile(sources, "F" + name + ".ttf", "font " + name));
            families.push_back(familyOf(QStringLiteral("Family %1").arg(i), {files.back()}));
            names.push_back(families.back().familyName);
        }
        process.watch(QSet<FilePath>(files.begin(), files.end()));
    }

    QStringList storedNames()
    {
        QStringList found;
        const std::map<QString, InstallMethod> methods = process.store().methods();
        for (const auto &[name, method] : methods)
            found.append(name);
        return found;
    }
    bool isActive(int i) const { return process.state(families[size_t(i)]).has_value(); }
    FilePath inFonts(int i) const
    {
        return process.folders.userFonts.child(files[size_t(i)].fileName());
    }

    const FilePath sources = test::makeCaseFolder();
    const std::shared_ptr<test::Gate> gate = std::make_shared<test::Gate>();
    InstallingProcess process;
    std::vector<FilePath> files;
    std::vector<FontFamilyRecord> families;
    QStringList names;
};

/// A run, what comes before it, and what it does.
struct Kind
{
    const char *name;
    std::optional<InstallMethod> before;
    bool isRestoration;
    std::optional<InstallMethod> method;
    ActivationHistoryEntry::Action action;

    bool switchesOn() const { return isRestoration || method; }
};

const Kind kKinds[]{
    {"copy", {}, false, InstallMethod::copy, ActivationHistoryEntry::Action::copied},
    {"register",
     {},
     false,
     InstallMethod::registerInPlace,
     ActivationHistoryEntry::Action::registered},
    {"remove copies", InstallMethod::copy, false, {}, ActivationHistoryEntry::Action::deactivated},
    {"withdraw",
     InstallMethod::registerInPlace,
     false,
     {},
     ActivationHistoryEntry::Action::deactivated},
    {"restore copies", InstallMethod::copy, true, {}, ActivationHistoryEntry::Action::restored},
    {"restore registrations",
     InstallMethod::registerInPlace,
     true,
     {},
     ActivationHistoryEntry::Action::restored},
};

class EveryRun : public InstallationRuns, public testing::WithParamInterface<int>
{
protected:
    EveryRun()
    {
        if (kind.before == InstallMethod::copy)
            process.copy(families);
        else if (kind.before)
            process.registerInPlace(families);
        if (kind.isRestoration)
            withdrawn = process.deactivate(families).withdrawn;
    }

    Service::Run start(Service::Done done, Service::Progress progress)
    {
        if (kind.isRestoration)
            return process.service.restore(withdrawn, names, std::move(done), std::move(progress));
        if (kind.method == InstallMethod::copy)
            return process.service.activateByCopying(families, std::move(done),
                                                     std::move(progress));
        if (kind.method)
            return process.service.activateInPlace(families, std::move(done), std::move(progress));
        return process.service.deactivate(families, {}, std::move(done), std::move(progress));
    }
    /// Under which the outcome tells of the file.
    FilePath told(int i) const
    {
        return kind.isRestoration && kind.before == InstallMethod::copy ? inFonts(i)
                                                                        : files[size_t(i)];
    }

    const Kind &kind = kKinds[GetParam()];
    WithdrawnFonts withdrawn;
};

TEST_P(EveryRun, TellsHowFarItIsAndNothingAfterItsEnd)
{
    std::vector<std::pair<int, int>> steps;
    std::optional<InstallationOutcome> ended;
    size_t stepsAtEnd = 0;
    start(
        [&](InstallationOutcome outcome) {
            stepsAtEnd = steps.size();
            EXPECT_FALSE(process.service.hasRuns());
            ended = std::move(outcome);
        },
        [&](int done, int total) {
            EXPECT_TRUE(isMainThread());
            steps.emplace_back(done, total);
        });
    EXPECT_TRUE(steps.empty()) << "not before the run is known";
    EXPECT_TRUE(process.service.hasRuns());
    ASSERT_TRUE(test::waitUntil([&] { return ended.has_value(); }));
    ASSERT_TRUE(process.reconcile(families));
    EXPECT_EQ(steps.size(), stepsAtEnd);
    ASSERT_GE(steps.size(), 2u);
    EXPECT_EQ(steps.front(), std::pair(0, kFiles));
    EXPECT_EQ(steps.back(), std::pair(kFiles, kFiles));
    EXPECT_TRUE(std::ranges::is_sorted(steps));
    EXPECT_EQ(ended->filesDone.size(), size_t(kFiles));
    EXPECT_THAT(ended->filesLeft, IsEmpty());
}

TEST_P(EveryRun, CancelledInTheMiddleFinishesItsFileAndItsBooks)
{
    std::optional<test::HungFile> hung;
    if (kind.method == InstallMethod::copy)
        hung.emplace(files[kHeld]);
    else
        gate->hold(kHeld);
    std::optional<InstallationOutcome> ended;
    Service::Run run;
    run = start([&](InstallationOutcome outcome) { ended = std::move(outcome); },
                [&](int done, int) {
                    if (done != kHeld)
                        return;
                    run.cancel();
                    hung.reset();
                    gate->open();
                });
    ASSERT_TRUE(test::waitUntil([&] { return ended.has_value(); }));
    EXPECT_THAT(ended->failures, IsEmpty());
    EXPECT_THAT(ended->filesDone, ElementsAre(told(0), told(1), told(kHeld)));
    EXPECT_THAT(ended->filesLeft, ElementsAre(told(3), told(4)));
    EXPECT_TRUE(ended->areBooksWritten);
    EXPECT_EQ(::access(process.folders.activationJournal().c_str(), F_OK), -1);

    for (int i = 0; i < kFiles; ++i)
        EXPECT_EQ(isActive(i), (i <= kHeld) == kind.switchesOn()) << i;
    if (!kind.isRestoration) {
        EXPECT_EQ(storedNames(), kind.method ? names.first(kHeld + 1) : names.sliced(kHeld + 1));
    }
    if (kind.before && !kind.isRestoration) {
        EXPECT_EQ(ended->withdrawn.copies.size() + ended->withdrawn.registrations.size(),
                  size_t(kHeld + 1));
        EXPECT_EQ(ended->withdrawn.methods.size(), size_t(kHeld + 1));
    }
    const ActivationHistoryEntry entry = process.history().front();
    EXPECT_EQ(entry.action, kind.action);
    EXPECT_EQ(entry.families, names);
    ASSERT_EQ(entry.files.size(), size_t(kFiles));
    for (int i = 0; i < kFiles; ++i)
        EXPECT_EQ(entry.files[size_t(i)].fate, i <= kHeld ? Fate::done : Fate::left) << i;

    const auto books = process.service.books();
    ASSERT_TRUE(process.reconcile(families));
    if (!kind.isRestoration) {
        EXPECT_EQ(process.service.books(), books) << "nothing was left to mend";
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryRun, testing::Range(0, int(std::size(kKinds))));

TEST_F(InstallationRuns, CountFilesThatFailTogether)
{
    ASSERT_EQ(::rmdir(process.folders.userFonts.c_str()), 0);
    test::writeFile(process.folders.userFonts.parent(), "fonts", "a file");
    std::vector<int> steps;
    const auto outcome = process.run([&](Service::Done done) {
        process.service.activateByCopying(families, std::move(done),
                                          [&](int step, int) { steps.push_back(step); });
    });
    EXPECT_EQ(outcome.failures.size(), size_t(kFiles));
    EXPECT_THAT(steps, ElementsAre(0, kFiles));
}

TEST_F(InstallationRuns, ThatWaitAreCancelledAtOnceAndDoNothing)
{
    gate->hold(kHeld);
    std::vector<std::pair<int, InstallationOutcome>> ended;
    int steps = 0;
    const auto start = [&](int i, const std::vector<FontFamilyRecord> &some) {
        return process.service.activateInPlace(
            some,
            [&, i](InstallationOutcome outcome) { ended.emplace_back(i, std::move(outcome)); },
            [&, i](int, int) { steps += i == 0 ? 0 : 1; });
    };
    start(0, {families.begin(), families.begin() + 3});
    Service::Run second = start(1, {families[3]});
    Service::Run copy = second;
    start(2, {families[4]});
    second.cancel();
    EXPECT_THAT(ended, IsEmpty()) << "never from within the call";
    ASSERT_TRUE(test::waitUntil([&] { return !ended.empty(); }));
    ASSERT_EQ(ended[0].first, 1) << "before the one that is held";
    EXPECT_THAT(ended[0].second.filesLeft, ElementsAre(files[3]));
    EXPECT_FALSE(process.service.isInFlight(names[3]));
    copy.cancel();

    process.service.cancelRuns();
    ASSERT_TRUE(test::waitUntil([&] { return ended.size() == 2; }));
    EXPECT_EQ(ended[1].first, 2);
    EXPECT_TRUE(process.service.hasRuns());
    gate->open();
    ASSERT_TRUE(test::waitUntil([&] { return ended.size() == 3; }));
    EXPECT_FALSE(process.service.hasRuns());
    EXPECT_EQ(steps, 0) << "who has not begun tells nothing";
    EXPECT_FALSE(isActive(3) || isActive(4));
    EXPECT_EQ(process.history().size(), 1u);
}

TEST_F(InstallationRuns, ThatWaitForAnotherProcessAreCancelledToo)
{
    process.registerInPlace({families[0]});
    {
        const auto lock =
            RunLock::take(process.folders.activationLock(), std::chrono::milliseconds(0));
        ASSERT_TRUE(lock);
        std::optional<InstallationOutcome> ended;
        Service::Run run = process.service.deactivate(
            {families[0]}, {}, [&](InstallationOutcome outcome) { ended = std::move(outcome); });
        run.cancel();
        ASSERT_TRUE(test::waitUntil([&] { return ended.has_value(); }));
        EXPECT_THAT(ended->failures, IsEmpty());
        EXPECT_THAT(ended->filesLeft, ElementsAre(files[0]));
    }
    EXPECT_EQ(storedNames(), QStringList(names[0]));
    EXPECT_TRUE(isActive(0));
    EXPECT_EQ(process.history().size(), 1u) << "nothing was done";
}

TEST_F(InstallationRuns, WhoeverIsToldHowFarItIsMayDestroyTheService)
{
    auto other = std::make_unique<InstallingProcess>(process.folders);
    bool isGone = false;
    other->service.activateInPlace(
        families, [](const InstallationOutcome &) { ADD_FAILURE() << "nobody is left"; },
        [&](int, int) {
            other.reset();
            isGone = true;
        });
    ASSERT_TRUE(test::waitUntil([&] { return isGone; }));
    EXPECT_THAT(process.registerInPlace(families).failures, IsEmpty()) << "its lock has gone";
}

TEST_F(InstallationRuns, AreTakenIntoTheHistoryWithWhatBecameOfEachFile)
{
    const FilePath gone = files[0].parent().child("gone.ttf");
    test::writeFile(process.folders.userFonts, "F1.ttf", "somebody's");
    process.copy({familyOf("A", {files[0], gone}), familyOf("B", {files[1]})});
    const FilePath to = process.folders.home.child("to");
    process.deactivate({familyOf("A", {files[0], files[4]})}, to);
    process.deactivate({familyOf("Nothing", {files[4]})});

    const std::vector<ActivationHistoryEntry> entries = process.history();
    ASSERT_EQ(entries.size(), 2u) << "a run without any file is none";
    using File = ActivationHistoryEntry::File;
    EXPECT_EQ(entries[0].action, ActivationHistoryEntry::Action::moved);
    EXPECT_EQ(entries[0].destination, to);
    EXPECT_THAT(entries[0].files, ElementsAre(File{files[0], Fate::done, {}}));
    EXPECT_EQ(entries[1].families, QStringList({"A", "B"}));
    EXPECT_THAT(entries[1].files,
                ElementsAre(File{files[0], Fate::done, {}},
                            File{gone, Fate::failed, "File not found"},
                            File{files[1], Fate::skipped, {}}));
    EXPECT_LE(entries[1].when, entries[0].when);

    ASSERT_EQ(::unlink(process.folders.activationHistory().c_str()), 0);
    ASSERT_EQ(::mkdir(process.folders.activationHistory().c_str(), 0700), 0);
    EXPECT_THAT(process.registerInPlace({families[2]}).failures, IsEmpty())
        << "a history that cannot be written stops nothing";
    ASSERT_EQ(::rmdir(process.folders.activationHistory().c_str()), 0);
}

} // namespace
} // namespace lorva
