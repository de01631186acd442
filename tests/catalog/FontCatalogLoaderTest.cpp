// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontCatalogLoader.h"

#include "CatalogSupport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A folder of font files and a loader over them; file names are given in scan order.
class Library
{
public:
    explicit Library(int workers = 2)
        : m_loader({m_fonts, {}, true, workers})
    {
    }

    FilePath add(const QByteArray &name, const QByteArray &bytes)
    {
        const FilePath file = test::writeFile(m_folder, name, bytes);
        list(file);
        return file;
    }
    void list(const FilePath &file) { m_fonts->files.push_back(file); }
    void remove(const FilePath &file)
    {
        ::unlink(file.c_str());
        std::erase(m_fonts->files, file);
    }
    const FilePath &folder() const { return m_folder; }

    FontCatalogResult scan(const std::vector<FilePath> &watched = {})
    {
        m_filesRead = 0;
        const auto note = [this](const FontScanPhase &phase) {
            if (phase.kind == FontScanPhase::Kind::scanning)
                m_filesRead = phase.total;
        };
        return m_loader.scan(watched, note).value();
    }
    FontCatalogLoader &loader() { return m_loader; }
    /// By the last scan.
    int filesRead() const { return m_filesRead; }

private:
    static QByteArray uniqueName()
    {
        static int count = 0;
        return "library-" + QByteArray::number(++count);
    }

    const FilePath m_folder = test::TestHome::instance().makeFolder(uniqueName());
    const std::shared_ptr<test::ListedFonts> m_fonts = std::make_shared<test::ListedFonts>();
    FontCatalogLoader m_loader;
    int m_filesRead = 0;
};

/// "Family: Label id weight[ italic], …", one per family.
std::vector<std::string> described(const FontCatalogResult &result)
{
    std::vector<std::string> lines;
    for (const FontFamilyRecord &family : result.families) {
        QStringList styles;
        for (const FontStyleRecord &style : family.styles)
            styles.push_back(QStringLiteral("%1 %2 %3%4")
                                 .arg(style.label, style.id, QString::number(style.weight),
                                      style.isItalic ? QStringLiteral(" italic") : QString()));
        lines.push_back(
            QString(family.familyName + QStringLiteral(": ") + styles.join(QStringLiteral(", ")))
                .toStdString());
    }
    return lines;
}

void setModified(const FilePath &file, const struct timespec &time)
{
    const struct timespec times[]
    {
        time, time
    };
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

struct timespec modifiedOf(const FilePath &file)
{
    struct stat info
    {
    };
    EXPECT_EQ(::stat(file.c_str(), &info), 0);
    return info.st_mtim;
}

TEST(CatalogScan, OfNothingGivesNothing)
{
    Library library;
    EXPECT_THAT(library.scan().families, IsEmpty());
}

TEST(CatalogScan, GroupsFacesInTheOrderMet)
{
    Library library;
    library.add("1.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    library.add("2.ttf", test::face("Bar", "Light Italic", "Bar-LI").build());
    library.add("3.ttf", test::face("Foo", "Regular", "Foo-Regular").build());
    library.add("4.ttf", test::face("foo", "Regular", "foo-Regular").build());
    EXPECT_THAT(described(library.scan()),
                ElementsAre("Foo: Bold Foo-Bold 700, Regular Foo-Regular 400",
                            "Bar: Light Italic Bar-LI 300 italic", "foo: Regular foo-Regular 400"));
}

TEST(CatalogScan, KeepsTheFirstFaceOfAnId)
{
    Library library;
    const FilePath system = library.add("system.ttf", test::face("Foo", "Bold", "Foo-B").build());
    const FilePath watched = test::writeFile(library.folder(), "watched.ttf",
                                             test::face("Foo", "Bold", "Foo-B").build());
    const FontCatalogResult result = library.scan({watched, system, watched});
    ASSERT_THAT(described(result), ElementsAre("Foo: Bold Foo-B 700"));
    EXPECT_EQ(result.families[0].styles[0].fileURL, system);
    EXPECT_EQ(result.watchedFontURLs, QSet<FilePath>({watched, system}));
}

TEST(CatalogScan, NamesFacesWithoutPostScriptNameByFamilyAndLabel)
{
    Library library;
    library.add("bold.ttf", test::face("Foo", "Bold", "").build());
    library.add("again.ttf", test::face("Foo", "Bold", "").build());
    library.add("other.ttf", test::face("Bar", "Bold", "").build());
    EXPECT_THAT(described(library.scan()),
                ElementsAre("Foo: Bold Foo::Bold 700", "Bar: Bold Bar::Bold 700"));
}

TEST(CatalogScan, JudgesOddFacesByLabelThenTables)
{
    Library library;
    library.add("1.ttf", test::face("A", "Poster", "A").weightClass(850).build());
    library.add("2.ttf", test::face("B", "Poster", "B").weightClass(5).build());
    library.add("3.ttf", test::face("C", "Poster", "C").weightClass(28926).build());
    library.add("4.ttf", test::face("D", "Poster", "D").withoutOs2().build());
    library.add("5.ttf", test::face("E", "Regular", "E").macStyle(2).fsSelection(0x40).build());
    library.add("6.ttf", test::face("F", "Oblique", "F").build());
    library.add("7.ttf", test::face("G", "  ", "G").build());
    library.add("8.ttf", test::face("H", "Bold", "H").weightClass(300).build());
    library.add("9.ttf", test::face(" ", "Nameless", "").build());
    EXPECT_THAT(described(library.scan()),
                ElementsAre("A: Poster A 800", "B: Poster B 500", "C: Poster C 900",
                            "D: Poster D 400", "E: Regular E 400 italic", "F: Oblique F 400 italic",
                            "G: Regular G 400", "H: Bold H 700"));
}

TEST(CatalogScan, ReadsEveryFaceOfACollection)
{
    Library library;
    library.add("all.ttc",
                test::FontBuilder::collection({test::face("Foo", "Regular", "Foo-R").build(),
                                               test::face("Bar", "Thin", "Bar-T").build(),
                                               test::face("Foo", "Black", "Foo-K").build()}));
    EXPECT_THAT(described(library.scan()),
                ElementsAre("Foo: Regular Foo-R 400, Black Foo-K 900", "Bar: Thin Bar-T 100"));
}

TEST(CatalogScan, GoesOnPastWhatIsNoFont)
{
    Library library;
    const QByteArray sound = test::face("Sound", "Regular", "Sound").build();
    library.add("empty.ttf", {});
    library.add("text.ttf", "this is no font\n");
    library.add("cut.ttf", sound.first(40));
    const FilePath sparse = library.add("sparse.otf", sound.first(12));
    ASSERT_EQ(::truncate(sparse.c_str(), off_t(5) << 30), 0);
    const FilePath fifo = library.folder().child("fifo.ttf");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    library.list(fifo);
    library.list(library.folder());
    library.list(library.folder().child("gone.ttf"));
    const FilePath circle = library.folder().child("circle.ttf");
    ASSERT_EQ(::symlink(circle.c_str(), circle.c_str()), 0);
    library.list(circle);
    const FilePath noText = library.add("caf\xe9\n.ttf", sound);
    EXPECT_THAT(described(library.scan()), ElementsAre("Sound: Regular Sound 400"));
    // Qt's temporary folder cannot remove what is no text.
    ::unlink(noText.c_str());
}

TEST(CatalogScan, ReadsOnlyWhatChanged)
{
    Library library;
    const FilePath one = library.add("1.ttf", test::face("One", "Regular", "One-A").build());
    const FilePath two = library.add("2.ttf", test::face("Two", "Regular", "Two-A").build());
    library.add("3.ttf", "no font, but read once only");
    library.scan();
    EXPECT_EQ(library.filesRead(), 3);
    EXPECT_THAT(described(library.scan()),
                ElementsAre("One: Regular One-A 400", "Two: Regular Two-A 400"));
    EXPECT_EQ(library.filesRead(), 0);

    const struct timespec before = modifiedOf(one);
    test::writeFile(library.folder(), "1.ttf", test::face("One", "Regular", "One-B").build());
    setModified(one, before);
    struct timespec later = modifiedOf(two);
    later.tv_nsec = (later.tv_nsec + 500'000'000) % 1'000'000'000;
    test::writeFile(library.folder(), "2.ttf", test::face("Two", "Regular", "Two-B").build());
    setModified(two, later);
    EXPECT_THAT(described(library.scan()),
                ElementsAre("One: Regular One-A 400", "Two: Regular Two-B 400"))
        << "same size and time: kept; another fraction of the second: read";
    EXPECT_EQ(library.filesRead(), 1);
}

TEST(CatalogScan, FollowsFilesThatMoveAndVanish)
{
    Library library;
    const FilePath file = library.add("old.ttf", test::face("One", "Regular", "One").build());
    library.scan();
    const FilePath moved = library.folder().child("new.ttf");
    ASSERT_EQ(::rename(file.c_str(), moved.c_str()), 0);
    EXPECT_THAT(library.scan().families, IsEmpty()) << "listed still, but gone";
    library.list(moved);
    const FontCatalogResult result = library.scan();
    ASSERT_EQ(result.families.size(), 1u);
    EXPECT_EQ(result.families[0].styles[0].fileURL, moved);
    library.remove(moved);
    EXPECT_THAT(library.scan().families, IsEmpty());
}

TEST(CatalogScan, LooksAgainAtAFileThatCouldNotBeLookedAt)
{
    Library library;
    const FilePath target = library.folder().child("target.ttf");
    const FilePath link = library.folder().child("link.ttf");
    ASSERT_EQ(::symlink(target.c_str(), link.c_str()), 0);
    library.list(link);
    EXPECT_THAT(library.scan().families, IsEmpty());
    test::writeFile(library.folder(), "target.ttf", test::face("One", "Regular", "One").build());
    EXPECT_THAT(described(library.scan()), ElementsAre("One: Regular One 400"));
}

TEST(CatalogScan, NamesManufacturersByTheFirstFileOfAFamily)
{
    Library library;
    library.add("1.ttf", test::face("Foo", "Regular", "Foo-R").build());
    library.add("2.ttf", test::face("Foo", "Bold", "Foo-B").manufacturer("First").build());
    const FilePath third =
        library.add("3.ttf", test::face("Bar", "Bold", "Bar").manufacturer("Second").build());
    library.add("4.ttf", test::face("Foo", "Thin", "Foo-T").manufacturer("Late").build());
    using Names = QHash<QString, QString>;
    EXPECT_EQ(library.scan().manufacturers, Names({{"Foo", "First"}, {"Bar", "Second"}}));
    library.remove(third);
    EXPECT_EQ(library.scan().manufacturers, Names({{"Foo", "First"}}));
}

TEST(CatalogScan, GivesTheSameWithOneWorkerAndWithTwelve)
{
    Library one(1);
    Library twelve(12);
    for (int i = 0; i < 200; ++i) {
        const QByteArray bytes = test::face("Shared", "Bold", i % 3 ? "Same" : "")
                                     .codePoints(i % 2 ? U"Aaz" : U"あのア")
                                     .name(16, QStringLiteral("Family %1").arg(i % 7))
                                     .family(QStringLiteral("Family %1").arg(i % 7))
                                     .manufacturer(QStringLiteral("Maker %1").arg(i))
                                     .build();
        const FilePath file = one.add(QByteArray::number(i) + ".ttf", bytes);
        twelve.list(file);
    }
    const FontCatalogResult expected = one.scan();
    const FontCatalogResult result = twelve.scan();
    EXPECT_EQ(result.families, expected.families);
    EXPECT_EQ(result.manufacturers, expected.manufacturers);
    EXPECT_EQ(result.families.size(), 7u);
}

TEST(CatalogScan, ReportsItsPhasesInOrder)
{
    Library library(1);
    for (int i = 0; i < 40; ++i)
        library.add(QByteArray::number(i), test::face("Foo", "Regular", "Foo").build());
    std::vector<FontScanPhase> phases;
    library.loader().scan({}, [&](const FontScanPhase &phase) { phases.push_back(phase); });
    EXPECT_THAT(phases,
                ElementsAre(FontScanPhase::enumerating(0), FontScanPhase::enumerating(40),
                            FontScanPhase::scanning(16, 40), FontScanPhase::scanning(32, 40),
                            FontScanPhase::scanning(40, 40), FontScanPhase::identifying(1, 1),
                            FontScanPhase::preparing()));
}

TEST(CatalogScan, EndsEarlyWhenCancelledAndKeepsWhatItRead)
{
    Library library(1);
    for (int i = 0; i < 160; ++i)
        library.add(QByteArray::number(i), test::face("Foo", "Regular", "Foo").build());
    std::stop_source stop;
    int read = 0;
    const auto stopAtFirst = [&](const FontScanPhase &phase) {
        if (phase.kind == FontScanPhase::Kind::scanning) {
            read = phase.done;
            stop.request_stop();
        }
        EXPECT_NE(phase.kind, FontScanPhase::Kind::preparing);
    };
    EXPECT_FALSE(library.loader().scan({}, stopAtFirst, stop.get_token()).has_value());
    EXPECT_GE(read, 16);
    EXPECT_LE(read, 160);
    EXPECT_THAT(described(library.scan()), ElementsAre("Foo: Regular Foo 400"));
    EXPECT_EQ(library.filesRead(), 160 - read);
}

TEST(CatalogScan, IdentifiesEachNewFamilyByItsFirstFile)
{
    Library library;
    library.add("1.ttf", test::face("Foo", "Regular", "Foo-R").codePoints(U"Aaz").build());
    library.add("2.ttf", test::face("Foo", "Bold", "Foo-B").codePoints(U"あのア").build());
    const FilePath bar =
        library.add("3.ttf", test::face("Bar", "Bold", "Bar-B").codePoints(U"가나").build());
    std::vector<FontFamilyRecord> families = library.scan().families;
    ASSERT_EQ(families.size(), 2u);
    EXPECT_EQ(families[0].scripts, std::set{WritingScript::latin});
    EXPECT_EQ(families[1].primaryScript, WritingScript::korean);
    EXPECT_EQ(library.loader().lastScan().familiesIdentified, 2);

    library.remove(bar);
    library.add("4.ttf", test::face("New", "Bold", "New-B").codePoints(U"あのア").build());
    families = library.scan().families;
    ASSERT_EQ(families.size(), 2u);
    EXPECT_EQ(families[1].primaryScript, WritingScript::japanese);
    EXPECT_EQ(library.loader().lastScan().familiesIdentified, 1) << "what is known stays";
}

TEST(CatalogScan, OpensEachFileOnce)
{
    Library library(1);
    const QByteArray font = test::face("Foo", "Regular", "Foo").build();
    library.add("1.ttf", font);
    library.add("2.ttc",
                test::FontBuilder::collection({font, test::face("Bar", "Thin", "Bar").build()}));
    library.add("3.ttf", test::FontBuilder("Var").axis("wght", 100, 400, 900).build());
    const int notices = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    // The closings keep equal openings from being counted as one.
    ASSERT_GE(::inotify_add_watch(notices, library.folder().c_str(), IN_OPEN | IN_CLOSE), 0);
    EXPECT_EQ(library.scan().families.size(), 3u);
    std::map<std::string, int> openings;
    alignas(inotify_event) char buffer[65536];
    const ssize_t length = ::read(notices, buffer, sizeof buffer);
    ::close(notices);
    for (ssize_t at = 0; at < length;) {
        const auto *event = reinterpret_cast<const inotify_event *>(buffer + at);
        if (event->mask & IN_OPEN)
            ++openings[event->name];
        at += ssize_t(sizeof(inotify_event) + event->len);
    }
    EXPECT_THAT(openings,
                ElementsAre(testing::Pair("1.ttf", 1), testing::Pair("2.ttc", 1),
                            testing::Pair("3.ttf", 1)));
}

TEST(CatalogScan, GoesOnWhenAFolderVanishesMeanwhile)
{
    Library library;
    const FilePath folder = test::TestHome::instance().makeFolder("vanishing");
    const FilePath gone =
        test::writeFile(folder, "gone.ttf", test::face("Gone", "Regular", "Gone").build());
    library.add("kept.ttf", test::face("Kept", "Regular", "Kept").build());
    const auto pullTheDisk = [&](const FontScanPhase &phase) {
        if (phase.kind == FontScanPhase::Kind::enumerating)
            ::rename(folder.c_str(), folder.parent().child("elsewhere").c_str());
    };
    const auto scanned = library.loader().scan({gone}, pullTheDisk);
    EXPECT_THAT(described(scanned.value()), ElementsAre("Kept: Regular Kept 400"));
    ::rename(folder.parent().child("elsewhere").c_str(), folder.c_str());
    EXPECT_THAT(described(library.scan({gone})),
                ElementsAre("Kept: Regular Kept 400", "Gone: Regular Gone 400"));
}

TEST(ScanWorkers, StayWithinTheirBounds)
{
    EXPECT_GE(scanWorkerCount(), 2);
    EXPECT_LE(scanWorkerCount(), 12);
}

TEST(FileFingerprint, CountsFromTheYear2001WithFractions)
{
    const FilePath file =
        test::writeFile(test::TestHome::instance().makeFolder("fingerprint"), "f", "abc");
    setModified(file, {978307200 + 5, 250'000'000});
    const std::optional<FileFingerprint> fingerprint = fingerprintOf(file);
    ASSERT_TRUE(fingerprint.has_value());
    EXPECT_EQ(fingerprint->fileSize, 3);
    EXPECT_EQ(fingerprint->modified, 5.25);
    EXPECT_FALSE(fingerprintOf(file.child("none")).has_value());
}

} // namespace
} // namespace lorva
