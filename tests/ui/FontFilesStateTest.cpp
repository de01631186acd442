// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesState.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"
#include "ui/files/FontFileDrop.h"
#include "ui/files/FontFilesFooter.h"
#include "ui/FontFamilyPasteboard.h"

#include <QMimeData>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;

FilePath folder()
{
    static int cases = 0;
    return test::TestHome::instance().makeFolder("opened" + QByteArray::number(++cases));
}

std::vector<ReadFontFile> read(const std::vector<FilePath> &files)
{
    std::vector<ReadFontFile> found;
    for (const FilePath &file : files)
        found.push_back(readFontFile(file));
    return found;
}

/// "# heading", "face", "face (detail)", "! problem".
std::vector<std::string> lines(const FontFilesState &state)
{
    std::vector<std::string> told;
    for (const FontFilesRow &row : fontFilesRows(state)) {
        const char *mark = row.kind == FontFilesRow::Kind::heading ? "# "
            : row.kind == FontFilesRow::Kind::problem              ? "! "
                                                                   : "";
        const QString detail =
            row.detail.isEmpty() ? QString() : QString(u" (" % row.detail % u')');
        told.push_back(mark + row.text.toStdString() + detail.toStdString());
    }
    return told;
}

std::vector<std::string> linesOf(const std::vector<FilePath> &files)
{
    const std::vector<ReadFontFile> found = read(files);
    return lines(fontFilesState(found));
}

TEST(FontFiles, EveryFileHasAnOutcomeOfItsOwn)
{
    const FilePath here = folder();
    const QByteArray sound = FontBuilder("Sound").build();
    const FilePath locked = writeFile(here, "locked.ttf", sound);
    ::chmod(locked.c_str(), 0);
    ::mkfifo(here.child("pipe.ttf").c_str(), 0600);
    using Problem = FontFileProblem;
    const struct
    {
        FilePath file;
        std::optional<Problem> problem;
        int faces;
    } rows[]{
        {writeFile(here, "sound.ttf", sound), std::nullopt, 1},
        {writeFile(here, "no-utf8-\xff.ttf", sound), std::nullopt, 1},
        {writeFile(here, "suitcase.dfont",
                   FontBuilder::dfont({sound, FontBuilder("Sound", "Bold").build()})),
         std::nullopt, 2},
        {writeFile(here, "collection.ttc",
                   FontBuilder::collection({sound, FontBuilder("Other").build()})),
         std::nullopt, 2},
        {writeFile(here, "variable.ttf",
                   FontBuilder("Var")
                       .axis("wght", 100, 400, 900)
                       .instance(QStringLiteral("Thin"), {100})
                       .instance(QStringLiteral("Black"), {900})
                       .build()),
         std::nullopt, 3},
        {writeFile(here, "text.ttf", "this is no font"), Problem::noFont, 0},
        {writeFile(here, "empty.ttf", {}), Problem::damaged, 0},
        {writeFile(here, "cut.ttf", sound.left(sound.size() / 3)), Problem::damaged, 0},
        {writeFile(here, "nameless.ttf", FontBuilder().withoutNames().build()), Problem::nameless,
         0},
        {here.child("nowhere.ttf"), Problem::gone, 0},
        {here, Problem::noFile, 0},
        {here.child("pipe.ttf"), Problem::noFile, 0},
    };
    for (const auto &[file, problem, faces] : rows) {
        const ReadFontFile found = readFontFile(file);
        EXPECT_EQ(found.problem, problem) << file.bytes().constData();
        EXPECT_EQ(int(found.faces.size()), faces) << file.bytes().constData();
        EXPECT_TRUE(!problem || !fontFileProblemText(*problem).isEmpty());
    }
    // The superuser may read everything.
    EXPECT_EQ(readFontFile(locked).problem,
              ::geteuid() == 0 ? std::nullopt : std::optional(Problem::notAllowed));
    // The toolkit could not take it away.
    ::unlink(here.child("no-utf8-\xff.ttf").c_str());
}

TEST(FontFiles, FacesStandBelowTheirFamiliesInTheOrderForPeople)
{
    const FilePath here = folder();
    EXPECT_THAT(
        linesOf(
            {writeFile(here, "b-bold.ttf", FontBuilder("beta", "Bold").weightClass(700).build()),
             writeFile(here, "junk.ttf", "junk"),
             writeFile(here, "b-italic.ttf", FontBuilder("beta", "Italic").italic().build()),
             writeFile(here, "a.ttf", FontBuilder("Alpha").build()),
             writeFile(here, "b.ttf", FontBuilder("beta").build())}),
        ElementsAre("# Alpha", "Regular", "# beta", "Regular", "Italic", "Bold", "# Not Shown",
                    "! junk.ttf"));
}

TEST(FontFiles, AFileCountsOnceAndEqualFacesOfTwoFilesAreBothThere)
{
    const FilePath here = folder();
    const QByteArray bytes = FontBuilder("Same").postScriptName("Same").build();
    const FilePath first = writeFile(here, "first.ttf", bytes);
    const FilePath second = writeFile(here, "second.ttf", bytes);
    const FilePath link = here.child("link.ttf");
    ::link(first.c_str(), link.c_str());
    const FilePath elsewhere = FilePath(here.bytes() + "-elsewhere");
    ::symlink(here.c_str(), elsewhere.c_str());
    const std::vector<ReadFontFile> found =
        read({first, first, link, elsewhere.child("first.ttf"), second});
    const FontFilesState state = fontFilesState(found);
    EXPECT_THAT(lines(state), ElementsAre("# Same", "Regular (first.ttf)", "Regular (second.ttf)"));
    const std::vector<FontStyleRecord> &styles = state.families.front().styles;
    EXPECT_NE(styles[0].id, styles[1].id);
    EXPECT_EQ(styles[0].fileURL, first);
}

TEST(FontFiles, TheFaceOfTheCardComesFirst)
{
    const FilePath here = folder();
    const std::vector<FilePath> files{
        writeFile(here, "thin.ttf", FontBuilder("One", "Thin").weightClass(100).build()),
        writeFile(here, "regular.ttf", FontBuilder("One").build())};
    const auto rowsAnd = [](const FontFilesState &state) {
        return firstRow(state, fontFilesRows(state));
    };
    EXPECT_EQ(rowsAnd(fontFilesState(read(files))), 2U);
    EXPECT_EQ(rowsAnd(fontFilesState(read({here.child("gone.ttf")}))), 1U) << "the first problem";
    EXPECT_EQ(rowsAnd({}), std::nullopt);
}

TEST(FontFiles, TakesDropsOfFilesThatMayBeFonts)
{
    const auto drop = [](const QByteArray &list) {
        QMimeData data;
        data.setData(QStringLiteral("text/uri-list"), list);
        return droppedFontFiles(data);
    };
    EXPECT_THAT(drop("file:///a/b.ttf\r\nfile:///a/readme.txt\r\n"),
                ElementsAre(FilePath("/a/b.ttf"), FilePath("/a/readme.txt")))
        << "what comes along is told about";
    EXPECT_THAT(drop("file:///a/%FF.OTF"), ElementsAre(FilePath("/a/\xff.OTF")));
    EXPECT_THAT(drop("file:///a/Old%20Suitcase"), ElementsAre(FilePath("/a/Old Suitcase")));
    EXPECT_THAT(drop("file:///a/photo.jpeg\r\nhttp://x.example/b.ttf\r\n"), IsEmpty());
    const auto families =
        makeFontFamilyMimeData({QStringLiteral("One")}, {QUrl(QStringLiteral("file:///a/b.ttf"))});
    EXPECT_THAT(droppedFontFiles(*families), IsEmpty()) << "our own families are no files";
}

TEST(FontFiles, OffersWhatCanBeDone)
{
    using Main = FontFilesOffer::Main;
    const FilePath file("/a/b.ttf");
    FontStyleRecord style;
    style.fileURL = file;
    const FontFamilyRecord one{QStringLiteral("One"), {style}, {}, {}, {}};
    FontFamilyRecord two = one;
    two.familyName = QStringLiteral("Two");
    const auto active = [](auto method, bool isMixed) {
        return FontFamilyActivation::active(method, isMixed);
    };
    const struct
    {
        FontFamilyActivation activation;
        bool hasPlace;
        Main main;
    } rows[]{
        {FontFamilyActivation::inactive(), true, Main::activate},
        {FontFamilyActivation::inactive(), false, Main::none},
        {active(InstallMethod::copy, false), true, Main::deactivate},
        {active(InstallMethod::registerInPlace, false), true, Main::deactivate},
        {active(InstallMethod::copy, true), true, Main::activateRemaining},
        {active(std::optional<InstallMethod>(), false), true, Main::none},
        {active(std::optional<InstallMethod>(), true), true, Main::activate},
    };
    std::set<std::pair<QString, Main>> texts;
    for (const auto &row : rows) {
        GivenActivations known;
        known.activationByFamily.insert(one.familyName, row.activation);
        if (!row.hasPlace)
            known.filesWithoutPlace.insert(file);
        const FontFilesOffer offer = fontFilesOffer({one}, &one, known);
        EXPECT_EQ(offer.main, row.main);
        EXPECT_FALSE(offer.offersAll);
        texts.emplace(offer.status, offer.main);
        known.activationByFamily.insert(two.familyName, row.activation);
        EXPECT_EQ(fontFilesOffer({one, two}, nullptr, known).offersAll, row.main == Main::activate);
    }
    EXPECT_EQ(texts.size(), std::size(rows)) << "each state says something of its own";
    EXPECT_EQ(fontFilesOffer({one}, &one, {}).main, Main::none) << "nothing is known yet";
}

} // namespace
} // namespace lorva
