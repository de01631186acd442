// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Whatever goes wrong with any single call to the system, and wherever a process dies, no font is
// lost, and the next reconcile finds books and disk in one state.
#include "FaultyCalls.h"
#include "InstallationSupport.h"
#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

#include <QDirIterator>

#include <algorithm>
#include <array>
#include <cerrno>
#include <random>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::FaultyCalls;
using test::InstallingProcess;
using test::readFile;

constexpr int kFiles = 3;

/// A machine with three watched files, and a font of the user's own in the Fonts folder.
class Machine
{
public:
    explicit Machine(FilePath folder)
        : root(std::move(folder))
        , folders(test::foldersBelow(root))
    {
        ::setenv("XDG_DATA_HOME", folders.applicationSupport.parent().c_str(), 1);
        for (const FilePath &each : {root, folders.home, folders.home.child(".local"),
                                     folders.home.child(".local").child("share"), folders.userFonts,
                                     root.child("watched")})
            ::mkdir(each.c_str(), 0700);
        for (int i = 0; i < kFiles; ++i)
            files.push_back(test::writeFile(root.child("watched"),
                                            "F" + QByteArray::number(i) + ".ttf",
                                            "font " + QByteArray::number(i)));
        test::writeFile(folders.userFonts, "Own.ttf", "the user's own");
        family = test::familyOf("Family", files);
    }

    std::unique_ptr<InstallingProcess> process() const
    {
        auto started = std::make_unique<InstallingProcess>(folders);
        started->watch(QSet<FilePath>(files.begin(), files.end()));
        return started;
    }

    /// What must hold at any moment.
    void expectNothingLost() const
    {
        for (int i = 0; i < kFiles; ++i)
            EXPECT_EQ(readFile(files[size_t(i)]), "font " + QByteArray::number(i));
        EXPECT_EQ(readFile(folders.userFonts.child("Own.ttf")), "the user's own");
        for (int i = 0; i < kFiles; ++i) {
            const QByteArray copy = readFile(folders.userFonts.child(files[size_t(i)].fileName()));
            EXPECT_TRUE(copy.isEmpty() || copy == "font " + QByteArray::number(i));
        }
    }

    /// What must hold after a reconcile by a process of its own.
    void expectConsistent() const
    {
        const auto looking = process();
        ASSERT_TRUE(looking->reconcile({family}));
        expectNothingLost();
        const auto books = looking->service.books();
        const auto store = looking->store();
        for (const FilePath &file : files) {
            const FilePath copy = folders.userFonts.child(file.fileName());
            EXPECT_EQ(store.origins().contains(copy), !readFile(copy).isEmpty()) << copy.c_str();
        }
        EXPECT_TRUE(books->areAllOriginsKnown(family.styles));
        const auto registered = store.registeredURLs();
        const std::vector<FilePath> linked = looking->registrar->registeredFonts();
        EXPECT_EQ(QSet<FilePath>(linked.begin(), linked.end()), registered);
        const auto state = books->activationState(family);
        const std::optional<InstallMethod> method = state ? state->method : std::nullopt;
        const auto stored = store.methods().find("Family");
        EXPECT_EQ(stored == store.methods().end() ? std::nullopt : std::optional(stored->second),
                  method);
        EXPECT_EQ(leftovers(), QStringList());
        ASSERT_TRUE(looking->reconcile({family}));
        EXPECT_EQ(looking->service.books(), books) << "once is enough";
    }

    /// Moves on: nothing is active, and nothing remembers that it was.
    void switchOff() const
    {
        // Names that are taken there cost further calls.
        for (const FilePath &full :
             {folders.home.child("moved"), folders.applicationSupport.parent().child("Trash")})
            QDir(full.displayText()).removeRecursively();
        const auto switching = process();
        EXPECT_TRUE(switching->deactivate({family}).failures.empty());
        EXPECT_EQ(switching->state(family), std::nullopt);
    }

    const FilePath root;
    const PlatformFolders folders;
    std::vector<FilePath> files;
    FontFamilyRecord family;

private:
    QStringList leftovers() const
    {
        QStringList found;
        QDirIterator each(folders.home.displayText(),
                          QDir::AllEntries | QDir::Hidden | QDir::System,
                          QDirIterator::Subdirectories);
        while (each.hasNext()) {
            const QString path = each.next();
            if (path.contains(QStringLiteral(".lorva-"))
                || path.contains(QStringLiteral("journal.json")))
                found.append(path);
        }
        return found;
    }
};

struct Operation
{
    const char *name;
    std::optional<InstallMethod> before;
    std::function<InstallationOutcome(InstallingProcess &, const Machine &)> run;
    /// Begins by switching off, which nothing goes wrong with, and brings that back.
    bool isRestoration = false;

    bool switchesOff() const { return before && !isRestoration; }
};

const std::vector<Operation> kOperations{
    {"copy", {}, [](auto &process, auto &m) { return process.copy({m.family}); }},
    {"register", {}, [](auto &process, auto &m) { return process.registerInPlace({m.family}); }},
    {"deactivate", InstallMethod::copy,
     [](auto &process, auto &m) { return process.deactivate({m.family}); }},
    {"deactivate", InstallMethod::registerInPlace,
     [](auto &process, auto &m) { return process.deactivate({m.family}); }},
    {"move", InstallMethod::copy,
     [](auto &process, auto &m) {
         return process.deactivate({m.family}, m.root.child("home").child("moved"));
     }},
    {"restore", InstallMethod::copy, {}, true},
    {"restore", InstallMethod::registerInPlace, {}, true},
};

void prepare(const Machine &machine, const Operation &operation)
{
    const auto process = machine.process();
    if (operation.before == InstallMethod::copy)
        process->copy({machine.family});
    else if (operation.before)
        process->registerInPlace({machine.family});
}

class AnyFault : public testing::TestWithParam<int>
{
};

TEST_P(AnyFault, LosesNothingAndIsTold)
{
    const Operation &operation = kOperations[size_t(GetParam())];
    const Machine machine(test::makeCaseFolder());
    prepare(machine, operation);
    int faulty = 0;
    int calls = 0;
    do {
        ++faulty;
        SCOPED_TRACE(testing::Message() << operation.name << ", call " << faulty);
        const int code = faulty % 3 == 0 ? ENOSPC : faulty % 3 == 1 ? EIO : EACCES;
        std::set<FilePath> told;
        {
            const auto process = machine.process();
            const WithdrawnFonts withdrawn = operation.isRestoration
                ? process->deactivate({machine.family}).withdrawn
                : WithdrawnFonts();
            const FaultyCalls fault(machine.root.child("home"), faulty, code);
            const InstallationOutcome outcome = operation.isRestoration
                ? process->restore(withdrawn, {machine.family.familyName})
                : operation.run(*process, machine);
            calls = FaultyCalls::count();
            for (const auto &[file, error] : outcome.failures)
                told.insert(file);
            // Whoever is told that it worked finds it so.
            for (const FilePath &file : outcome.filesDone) {
                const bool isOn = process->service.books()->classify(file)
                    != FileActivationClass::watchedInactive;
                EXPECT_EQ(isOn, !operation.switchesOff()) << file.c_str();
            }
            EXPECT_EQ(told.size() + outcome.filesDone.size() + outcome.filesSkipped.size(),
                      size_t(kFiles));
        }
        machine.expectNothingLost();
        machine.expectConsistent();
        if (testing::Test::HasFailure())
            return;
        machine.switchOff();
        prepare(machine, operation);
    } while (calls >= faulty);
    EXPECT_GT(faulty, 10) << "faults have to be met";
}

INSTANTIATE_TEST_SUITE_P(Operations, AnyFault, testing::Range(0, int(kOperations.size())));

/// The exit code of a process that makes the run and dies at that call; 0 when it came to its end.
/// Not by Qt, whose way to start processes makes the thread checker lose count of this thread.
int runProbe(const Machine &machine, const char *operation, int call)
{
    std::array<QByteArray, 4> words{LORVA_INSTALLATION_PROBE, machine.root.bytes(), operation,
                                    QByteArray::number(call)};
    std::array<char *, 5> arguments{};
    std::transform(words.begin(), words.end(), arguments.begin(),
                   [](QByteArray &word) { return word.data(); });
    pid_t probe = 0;
    int status = -1;
    EXPECT_EQ(::posix_spawn(&probe, LORVA_INSTALLATION_PROBE, nullptr, nullptr, arguments.data(),
                            environ),
              0);
    EXPECT_EQ(::waitpid(probe, &status, 0), probe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(InstallationDeath, AtRandomCallsLosesNothing)
{
    const Machine machine(test::makeCaseFolder());
    std::mt19937 dice(20260131);
    int deaths = 0;
    for (int round = 0; round < 200; ++round) {
        const Operation &operation = kOperations[size_t(round) % kOperations.size()];
        const int call = 1 + int(dice() % 60);
        SCOPED_TRACE(testing::Message() << operation.name << " dies at call " << call);
        prepare(machine, operation);
        deaths += runProbe(machine, operation.name, call) == 137 ? 1 : 0;
        machine.expectNothingLost();
        machine.expectConsistent();
        if (testing::Test::HasFailure())
            return;
        machine.switchOff();
    }
    EXPECT_GT(deaths, 100);
}

} // namespace
} // namespace lorva
