// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What is switched on, worked out anew for every family of the generated library that
// LORVA_BENCH_LIBRARY names; the walk over a folder of 20,000 files beside find(1); and a thousand
// files of that library registered, or copied by cp(1), until a new fc-list sees them.
#include "catalog/FontCatalogLoader.h"
#include "install/ActivationBooks.h"
#include "install/FontFolderWalk.h"
#include "platform/linux/LinkFolderRegistrar.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace lorva;

struct Library
{
    std::vector<FontFamilyRecord> families;
    QSet<FilePath> files;
};

Library readLibrary(const FilePath &folder)
{
    const std::vector<FilePath> files = fontFilesInFolder(folder);
    FontCatalogLoader loader(
        {.availableFonts = std::make_shared<NoAvailableFonts>(), .cacheFileURL = {}});
    Library library;
    if (auto result = loader.scan(files, nullptr))
        library.families = std::move(result->families);
    library.files = QSet<FilePath>(files.begin(), files.end());
    return library;
}

const Library &library()
{
    static const Library one = readLibrary(FilePath(qgetenv("LORVA_BENCH_LIBRARY")));
    return one;
}

enum class Watched { yes, no };

/// A user who has copied some and registered some fonts, none of them of the library.
ActivationBooks::Contents booksContents(Watched watched)
{
    ActivationBooks::Contents contents;
    contents.folders.userFonts = FilePath("/nowhere/fonts");
    contents.folders.allUsersFonts = FilePath("/usr/local/share/fonts");
    contents.folders.systemFonts = {FilePath("/usr/share/fonts")};
    contents.watchedFontURLs = watched == Watched::yes ? library().files : QSet<FilePath>();
    for (int i = 0; i < 1000; ++i) {
        const QByteArray name = "Copied-" + QByteArray::number(i) + ".otf";
        contents.fontsFolder.files.insert(contents.folders.userFonts.child(name));
        contents.fontsFolder.basenames.insert(name);
        contents.registeredURLs.insert(FilePath("/nowhere/else").child(name));
    }
    return contents;
}

void classifyLibrary(benchmark::State &state, Watched watched)
{
    if (library().families.empty()) {
        state.SkipWithError("LORVA_BENCH_LIBRARY names no generated library");
        return;
    }
    const ActivationBooks::Contents contents = booksContents(watched);
    size_t active = 0;
    size_t styles = 0;
    for ([[maybe_unused]] auto _ : state) {
        const ActivationBooks books(contents);
        active = 0;
        for (const FontFamilyRecord &family : library().families)
            active += books.activationState(family) ? 1 : 0;
    }
    for (const FontFamilyRecord &family : library().families)
        styles += family.styles.size();
    state.counters["families"] = double(library().families.size());
    state.counters["active"] = double(active);
    state.counters["styles"] = double(styles);
}

/// Two hundred folders of a hundred empty files each.
void fillFolder(const FilePath &folder)
{
    for (int i = 0; i < 20'000; ++i) {
        const FilePath inner = folder.child(QByteArray("Foundry " + QByteArray::number(i / 100)));
        if (i % 100 == 0)
            ::mkdir(inner.c_str(), 0700);
        const QByteArray name = "Font-" + QByteArray::number(i) + ".otf";
        const FilePath file = inner.child(name);
        ::close(::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    }
}

const FilePath &manyFiles()
{
    static const QTemporaryDir made;
    static const FilePath folder = [] {
        FilePath path = FilePath::fromText(made.path());
        fillFolder(path);
        return path;
    }();
    return folder;
}

void walkFolder(benchmark::State &state)
{
    const FilePath &folder = manyFiles();
    size_t files = 0;
    for ([[maybe_unused]] auto _ : state)
        files = fontFilesInFolder(folder).size();
    state.counters["files"] = double(files);
}

/// False when it could not be run to its end.
bool run(const QString &program, const QStringList &arguments, QByteArray *output = nullptr)
{
    QProcess process;
    process.start(program, arguments);
    const bool hasRun = process.waitForFinished(60'000) && process.exitCode() == 0;
    if (output)
        *output = process.readAllStandardOutput();
    return hasRun;
}

void findFiles(benchmark::State &state)
{
    const FilePath &folder = manyFiles();
    for ([[maybe_unused]] auto _ : state) {
        if (!run(QStringLiteral("find"), {folder.displayText(), "-type", "f"}))
            state.SkipWithError("find does not run");
    }
}

/// A user without any fonts, as fontconfig sees it: made anew for each round.
class NewUser
{
public:
    NewUser()
    {
        QFile conf(m_home.filePath(QStringLiteral("fonts.conf")));
        if (conf.open(QIODevice::WriteOnly)) {
            conf.write("<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">"
                       "<fontconfig><dir>"
                       + fonts().bytes() + "</dir><cachedir>" + m_home.path().toUtf8()
                       + "/cache</cachedir></fontconfig>");
        }
        qputenv("FONTCONFIG_FILE", conf.fileName().toUtf8());
        ::mkdir(fonts().c_str(), 0700);
    }
    ~NewUser() { qunsetenv("FONTCONFIG_FILE"); }
    NewUser(const NewUser &) = delete;
    NewUser &operator=(const NewUser &) = delete;

    FilePath fonts() const { return FilePath::fromText(m_home.filePath(QStringLiteral("fonts"))); }
    /// Files that a program which starts now is offered.
    static qsizetype listed()
    {
        QByteArray list;
        run(QStringLiteral("fc-list"), {QStringLiteral("--format=%{file}\\n")}, &list);
        const QList<QByteArray> lines = list.split('\n');
        const QSet<QByteArray> files(lines.begin(), lines.end());
        return files.size() - (files.contains(QByteArray()) ? 1 : 0);
    }

private:
    QTemporaryDir m_home;
};

std::vector<FilePath> thousandFiles()
{
    std::vector<FilePath> files(library().files.begin(), library().files.end());
    std::sort(files.begin(), files.end());
    files.resize(std::min<size_t>(files.size(), 1000));
    return files;
}

/// Times `activate` and then fc-list.
void untilListed(
    benchmark::State &state,
    const std::function<void(const NewUser &, const std::vector<FilePath> &)> &activate)
{
    const std::vector<FilePath> files = thousandFiles();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        auto user = std::make_unique<NewUser>();
        state.ResumeTiming();
        activate(*user, files);
        const bool areThere = user->listed() == qsizetype(files.size());
        state.PauseTiming();
        user.reset();
        if (files.size() != 1000 || !areThere)
            state.SkipWithError("fc-list does not see the thousand files");
        state.ResumeTiming();
    }
}

void registerThousand(benchmark::State &state)
{
    untilListed(state, [](const NewUser &user, const std::vector<FilePath> &files) {
        LinkFolderRegistrar registrar(user.fonts().child(kRegisteredLinksFolderName));
        registrar.registerFonts(files, [](const auto &, bool) { return true; });
    });
}

void copyThousand(benchmark::State &state)
{
    untilListed(state, [](const NewUser &user, const std::vector<FilePath> &files) {
        QStringList arguments;
        for (const FilePath &file : files)
            arguments.append(file.displayText());
        run(QStringLiteral("cp"), arguments << user.fonts().displayText());
    });
}

BENCHMARK_CAPTURE(classifyLibrary, watched, Watched::yes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(classifyLibrary, others, Watched::no)->Unit(benchmark::kMillisecond);
BENCHMARK(walkFolder)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(findFiles)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(registerThousand)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
BENCHMARK(copyThousand)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace

BENCHMARK_MAIN();
