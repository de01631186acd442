// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/ActivationBooks.h"

#include "support/AdverseSystem.h"

#include <gmock/gmock.h>

#include <future>

namespace lorva {

void PrintTo(FileActivationClass value, std::ostream *out)
{
    *out << std::array{"copied", "registered", "watchedInactive", "system"}.at(size_t(value));
}

namespace {

using ::testing::ElementsAre;
using enum FileActivationClass;

/// How the case's user Fonts folder is named: as it is, or by a link to it.
enum class Named { directly, byLink };

/// A disk with one font for each way of being active, named by paths below its root.
class ActivationBooksTest : public ::testing::TestWithParam<Named>
{
protected:
    ActivationBooksTest()
    {
        for (const char *file :
             {"user/direct.otf", "user/sub/deep.otf", "all/all.otf", "system/sys.otf",
              "system/direct.otf", "data/direct.otf", "data/linked.otf", "data/reg.otf",
              "data/free.otf", "data/\xff.otf", "data/away/f.otf", "w/in.otf", "w/direct.otf"})
            write(file, file);
        link("user/link.otf", "data/linked.otf");
        link("user/away", "data/away");
        link("user/lorva-registered/1-reg.otf", "data/reg.otf");
        link("user/lorva-registered/2-gone.otf", "data/gone.otf");
        link("data/to-watched.otf", "w/in.otf");
        link("data/to-deep.otf", "user/sub/deep.otf");
        link("named", "user");
        contents.folders.userFonts = path(GetParam() == Named::byLink ? "named" : "user");
        contents.folders.allUsersFonts = path("all/");
        contents.folders.systemFonts = {path("system")};
        contents.watchedFontURLs = QSet{path("w/in.otf"), path("w/direct.otf")};
        contents.registeredURLs = {path("data/reg.otf")};
        list();
    }

    FilePath path(const QByteArray &below) const { return root.child(below); }
    void write(const QByteArray &below, const QByteArray &bytes) const
    {
        test::writeFile(path(below).parent(), path(below).fileName(), bytes);
    }
    void link(const QByteArray &below, const QByteArray &target) const
    {
        test::writeFile(path(below).parent(), "made", {});
        ASSERT_EQ(::unlink(path(below).parent().child("made").c_str()), 0);
        ASSERT_EQ(::symlink(path(target).c_str(), path(below).c_str()), 0);
    }
    void list() { contents.fontsFolder = listFontsFolder(contents.folders.userFonts); }

    const FilePath root = test::makeCaseFolder();
    ActivationBooks::Contents contents;
};

INSTANTIATE_TEST_SUITE_P(, ActivationBooksTest, ::testing::Values(Named::directly, Named::byLink),
                         [](const auto &each) {
                             return each.param == Named::directly ? "directly" : "byLink";
                         });

const struct
{
    const char *file;
    FileActivationClass asFound;
    /// When the file itself was found in a watched folder.
    FileActivationClass asWatched;
} kClasses[]{
    {"user/direct.otf", copied, copied},
    {"named/direct.otf", copied, copied},
    {"user/sub/deep.otf", copied, copied},
    {"user/link.otf", copied, copied},
    {"user/away/f.otf", system, system},
    {"user/lorva-registered/1-reg.otf", registered, registered},
    {"user/lorva-registered/2-gone.otf", system, system},
    {"all/all.otf", copied, copied},
    {"system/sys.otf", system, system},
    {"system/direct.otf", copied, system},
    {"data/direct.otf", copied, copied},
    {"data/linked.otf", copied, watchedInactive},
    {"data/to-deep.otf", copied, watchedInactive},
    {"data/reg.otf", registered, registered},
    {"data/free.otf", system, watchedInactive},
    {"data/\xff.otf", system, watchedInactive},
    {"data/gone/none.otf", system, watchedInactive},
    {"data/to-watched.otf", watchedInactive, watchedInactive},
    {"w/in.otf", watchedInactive, watchedInactive},
    {"w/direct.otf", copied, copied},
};

TEST_P(ActivationBooksTest, ClassifiesFiles)
{
    EXPECT_THAT(contents.fontsFolder.basenames,
                ::testing::UnorderedElementsAre("direct.otf", "sub", "link.otf", "away"));
    const ActivationBooks books(contents);
    for (const auto &row : kClasses)
        contents.watchedFontURLs->insert(path(row.file));
    const ActivationBooks watching(contents);
    for (const auto &row : kClasses) {
        EXPECT_EQ(books.classify(path(row.file)), row.asFound) << row.file;
        EXPECT_EQ(watching.classify(path(row.file)), row.asWatched) << row.file;
    }
}

TEST_P(ActivationBooksTest, TakesWatchedFoldersForWatchedUntilAScanHasSaid)
{
    contents.watchedFontURLs.reset();
    contents.watchedFolders = {path("w"), path("user/sub"), path("system"), FilePath()};
    const ActivationBooks books(contents);
    const std::pair<const char *, FileActivationClass> rows[]{
        {"w/in.otf", watchedInactive}, {"w/unseen.otf", watchedInactive},
        {"w/direct.otf", copied},      {"data/to-watched.otf", watchedInactive},
        {"data/free.otf", system},     {"user/sub/deep.otf", copied},
        {"system/sys.otf", system},
    };
    for (const auto &[file, expected] : rows)
        EXPECT_EQ(books.classify(path(file)), expected) << file;
}

TEST_P(ActivationBooksTest, ClassifiesOnSeveralThreadsAtOnce)
{
    const ActivationBooks books(contents);
    std::vector<std::future<void>> threads;
    for (int i = 0; i < 4; ++i)
        threads.push_back(std::async(std::launch::async, [&] {
            for (const auto &row : kClasses)
                EXPECT_EQ(books.classify(path(row.file)), row.asFound) << row.file;
        }));
}

TEST_P(ActivationBooksTest, DerivesTheStateOfAFamilyFromItsFiles)
{
    const char *const kC = "user/direct.otf";
    const char *const kR = "data/reg.otf";
    const char *const kW = "w/in.otf";
    const char *const kS = "system/sys.otf";
    contents.methods = {{"R", InstallMethod::registerInPlace}, {"C", InstallMethod::copy}};
    const ActivationBooks books(contents);
    const auto inactive = FontFamilyActivation::inactive();
    const auto by = [](std::optional<InstallMethod> method, bool isMixed = false) {
        return FontFamilyActivation::active(method, isMixed);
    };
    const struct
    {
        const char *name;
        std::vector<const char *> files;
        std::optional<FontFamilyActivation> expected;
    } rows[]{
        {"R", {}, std::nullopt},
        {"R", {nullptr, nullptr}, std::nullopt},
        {"R", {kW, kW, nullptr}, inactive},
        {"R", {kC, nullptr}, by(InstallMethod::copy)},
        {"C", {kR, kW}, by(InstallMethod::registerInPlace, true)},
        {"C", {kS}, by(std::nullopt)},
        {"C", {kS, kW}, by(std::nullopt, true)},
        {"None", {kC, kC, kS}, by(InstallMethod::copy)},
        {"R", {kC, kC, kS}, by(InstallMethod::registerInPlace)},
        {"R", {kC, kR, kW}, by(InstallMethod::registerInPlace, true)},
        {"C", {kR, kS}, by(InstallMethod::copy)},
    };
    for (const auto &row : rows) {
        FontFamilyRecord family{QString::fromUtf8(row.name), {}, {}, {}, {}};
        for (const char *file : row.files)
            family.styles.emplace_back().fileURL = file ? std::optional(path(file)) : std::nullopt;
        EXPECT_EQ(books.activation(family), row.expected) << &row - rows;
    }
}

TEST_P(ActivationBooksTest, RemovesOnlyWhatIsKnownToBeTheFont)
{
    write("user/same.otf", "same");
    write("w/same.otf", "same");
    write("user/known.otf", "old version");
    write("w/known.otf", "new version");
    write("user/strange.otf", "one font");
    write("w/strange.otf", "another");
    write("user/folder.otf/inner.otf", "");
    write("w/folder.otf", "");
    link("w/link.otf", "data/free.otf");
    const FilePath user = contents.folders.userFonts;
    contents.origins = {{user.child("known.otf"), path("w/known.otf")},
                        {user.child("strange.otf"), path("data/strange.otf")},
                        {user.child("same.otf"), path("w/same.otf")}};
    list();
    const ActivationBooks books(contents);
    const struct
    {
        const char *file;
        /// Below the user's Fonts folder; nothing when there is none.
        const char *entry;
        bool isOriginKnown;
    } rows[]{
        {"user/direct.otf", "direct.otf", false},
        {"named/direct.otf", "direct.otf", false},
        {"user/link.otf", "link.otf", false},
        {"data/linked.otf", "link.otf", false},
        {"user/sub/deep.otf", "sub/deep.otf", false},
        {"data/to-deep.otf", "sub/deep.otf", false},
        {"w/same.otf", "same.otf", true},
        {"user/same.otf", "same.otf", true},
        {"w/known.otf", "known.otf", false},
        {"w/strange.otf", nullptr, true},
        {"w/folder.otf", nullptr, true},
        {"w/link.otf", nullptr, true},
        {"w/direct.otf", nullptr, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.file);
        const Result<FilePath> entry = books.fontsFolderEntry(path(row.file));
        EXPECT_EQ(entry.has_value(), row.entry != nullptr);
        if (entry)
            EXPECT_EQ(*entry, user.child(row.entry));
        else
            EXPECT_EQ(entry.error().kind, ErrorKind::invalidValue);
        FontStyleRecord style;
        style.fileURL = path(row.file);
        EXPECT_EQ(books.areAllOriginsKnown({FontStyleRecord(), style}), row.isOriginKnown);
    }
    EXPECT_EQ(books.fontsFolderEntry(path("all/all.otf")), path("all/all.otf"));
}

TEST(ActivationBooks, TakesEachFileOfAFamilyOnce)
{
    std::vector<FontStyleRecord> styles(4);
    styles[0].fileURL = styles[3].fileURL = FilePath("/b");
    styles[2].fileURL = FilePath("/a");
    EXPECT_THAT(ActivationBooks::filesOf(styles), ElementsAre(FilePath("/b"), FilePath("/a")));
}

TEST(ActivationBooks, TakesAMissingFontsFolderForEmpty)
{
    EXPECT_EQ(listFontsFolder(FilePath("/nowhere/fonts")), FontsFolderListing());
}

} // namespace
} // namespace lorva
