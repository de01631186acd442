// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FaceResolver.h"

#include "catalog/FontCatalogLoader.h"
#include "CatalogSupport.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace lorva {
namespace {

using namespace std::chrono_literals;

/// A catalog of fixture files, scanned, and a resolver over it with a clock of the case's own.
class ResolverTest : public testing::Test
{
protected:
    FilePath add(const QByteArray &name, const QByteArray &bytes)
    {
        const FilePath file = test::writeFile(m_folder, name, bytes);
        m_fonts->files.push_back(file);
        return file;
    }

    void build()
    {
        FontCatalogLoader loader({m_fonts});
        families = makeFamilyList(loader.scan({}, nullptr)->families);
        const FilePath system = test::writeFile(m_folder, "system-ui",
                                                test::face("System", "Regular", "System").build());
        const auto systemFont =
            std::make_shared<SystemFont>(std::make_shared<test::ListedSystemFont>(system));
        resolver.emplace(families, systemFont, [this] { return now; });
    }

    const FontStyleRecord &style(const QString &family, const QString &label) const
    {
        for (const FontFamilyRecord &record : *families) {
            for (const FontStyleRecord &each : record.styles) {
                if (record.familyName == family && each.label == label)
                    return each;
            }
        }
        throw std::runtime_error("no such style in the fixture");
    }

    const FilePath m_folder = test::TestHome::instance().makeFolder("resolver");
    const std::shared_ptr<test::ListedFonts> m_fonts = std::make_shared<test::ListedFonts>();
    FontFamilyList families;
    SteadyTime now{1000s};
    std::optional<FaceResolver> resolver;
};

TEST_F(ResolverTest, GivesTheStyleAtTheSizeAndRemembersIt)
{
    const FilePath file = add("bold.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    build();
    const FontStyleRecord bold = style("Foo", "Bold");
    EXPECT_FALSE(resolver->cachedFont("Foo", bold, 24));
    const Font font = resolver->resolve("Foo", bold, 24);
    ASSERT_FALSE(font.isNull());
    EXPECT_FALSE(font.isStandIn());
    EXPECT_EQ(font.pointSize(), 24);
    EXPECT_EQ(font.face()->path(), file);
    EXPECT_EQ(resolver->cachedFont("Foo", bold, 24), font);
    EXPECT_FALSE(resolver->cachedFont("Foo", bold, 25));
    EXPECT_EQ(resolver->resolve("Foo", bold, 25).face(), font.face()) << "one face for all sizes";
}

TEST_F(ResolverTest, ShowsAFamilyByItsRepresentativeStyle)
{
    add("bold.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    const FilePath regular = add("regular.ttf", test::face("Foo", "Regular", "Foo-R").build());
    build();
    EXPECT_EQ(resolver->resolve("Foo", std::nullopt, 24).face()->path(), regular);
    EXPECT_TRUE(resolver->resolve("Unknown", std::nullopt, 24).isStandIn());
}

TEST_F(ResolverTest, PrefersTheStylesOwnFileWhenANameIsShared)
{
    const FilePath first = add("1.ttf", test::face("First", "Regular", "Shared").build());
    const FilePath second = add("2.ttf", test::face("Second", "Regular", "Shared").build());
    build();
    EXPECT_EQ(resolver->resolve("Second", style("Second", "Regular"), 12).face()->path(), second);
    EXPECT_EQ(resolver->resolve("First", style("First", "Regular"), 12).face()->path(), first);
}

TEST_F(ResolverTest, TellsFacesOfOneFileApart)
{
    const QList<QByteArray> faces{
        test::face("Foo", "Regular", "").build(), test::face("Foo", "Bold", "").build(),
        test::face("Bar", "Thin", "Same").build(), test::face("Bar", "Black", "Same").build()};
    add("all.ttc", test::FontBuilder::collection(faces));
    build();
    EXPECT_EQ(resolver->resolve("Foo", style("Foo", "Bold"), 12).face()->key().faceIndex, 1);
    EXPECT_EQ(resolver->resolve("Foo", style("Foo", "Regular"), 12).face()->key().faceIndex, 0);
    FontStyleRecord black = style("Bar", "Thin");
    black.label = "Black";
    black.id = "other";
    EXPECT_EQ(resolver->resolve("Bar", black, 12).face()->key().faceIndex, 3);
}

TEST_F(ResolverTest, FindsAMovedFaceByItsPostScriptName)
{
    const FilePath elsewhere = add("new.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    build();
    FontStyleRecord lost = style("Foo", "Bold");
    lost.fileURL = m_folder.child("old.ttf");
    EXPECT_EQ(resolver->resolve("Foo", lost, 12).face()->path(), elsewhere);
    lost.fileURL.reset();
    const Font known = resolver->resolve("Foo", lost, 13);
    EXPECT_EQ(known.face()->path(), elsewhere);
    EXPECT_FALSE(known.isStandIn());
}

TEST_F(ResolverTest, FallsBackToTheFamilysStyleOfTheSameSlantAndWeight)
{
    add("roman.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    const FilePath italic =
        add("italic.ttf", test::face("Foo", "Bold Italic", "Foo-BI").italic().build());
    build();
    FontStyleRecord wanted;
    wanted.id = wanted.postScriptName = "Foo-Gone";
    wanted.weight = 720;
    wanted.isItalic = true;
    EXPECT_EQ(resolver->resolve("Foo", wanted, 12).face()->path(), italic);
    wanted.weight = 400;
    EXPECT_TRUE(resolver->resolve("Foo", wanted, 13).face()->path() == italic)
        << "how a face was found is remembered under its id";
    wanted.id = "Foo-Gone-Too";
    EXPECT_TRUE(resolver->resolve("Foo", wanted, 12).isStandIn())
        << "another weight is another face";
}

TEST_F(ResolverTest, LooksForALostFaceAgainOnlyAfterTenSeconds)
{
    add("a.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    build();
    const FontStyleRecord bold = style("Foo", "Bold");
    const QByteArray bytes = test::readFile(*bold.fileURL);
    ::unlink(bold.fileURL->c_str());

    const Font standIn = resolver->resolve("Foo", bold, 18);
    EXPECT_TRUE(standIn.isStandIn());
    EXPECT_EQ(standIn.pointSize(), 18);
    EXPECT_EQ(standIn.face()->names().family, "System");

    test::writeFile(m_folder, "a.ttf", bytes);
    now += 9999ms;
    EXPECT_TRUE(resolver->resolve("Foo", bold, 18).isStandIn()) << "not searched again yet";
    EXPECT_TRUE(resolver->resolve("Foo", bold, 40).isStandIn()) << "at no size";
    now += 1ms;
    EXPECT_FALSE(resolver->resolve("Foo", bold, 18).isStandIn());
}

TEST_F(ResolverTest, ReadsAReplacedFileAnew)
{
    const FilePath file =
        add("a.ttc",
            test::FontBuilder::collection({test::face("Foo", "Bold", "Foo-Bold").build(),
                                           test::face("Foo", "Thin", "Foo-Thin").build()}));
    build();
    resolver->resolve("Foo", style("Foo", "Bold"), 12);
    test::writeFile(m_folder, "a.ttc",
                    test::FontBuilder::collection({test::face("Foo", "Thin", "Foo-Thin").build()}));
    const Font thin = resolver->resolve("Foo", style("Foo", "Thin"), 12);
    ASSERT_FALSE(thin.isStandIn());
    EXPECT_EQ(thin.face()->key().faceIndex, 0);
    EXPECT_EQ(thin.face()->names().style, "Thin");
}

TEST_F(ResolverTest, GivesTheFamiliesThatShareFiles)
{
    const auto all = [](const char *style, std::initializer_list<const char *> names) {
        QList<QByteArray> faces;
        for (const char *name : names)
            faces.append(test::face(name, style, "").build());
        return test::FontBuilder::collection(faces);
    };
    add("1.ttc", all("Regular", {"Gothic", "P Gothic", "UI Gothic"}));
    add("2.ttf", test::face("Gothic", "Bold", "Gothic-Bold").build());
    add("3.ttc", all("Black", {"UI Gothic", "Mincho"}));
    add("4.ttf", test::face("Alone", "Regular", "Alone").build());
    build();
    const struct
    {
        QStringList given;
        QStringList sharing;
    } rows[]{
        {{"Gothic"}, {"P Gothic", "UI Gothic"}},
        {{"UI Gothic"}, {"Gothic", "P Gothic", "Mincho"}},
        // Files of the given families only: not those of the families that share them.
        {{"Mincho"}, {"UI Gothic"}},
        {{"P Gothic", "Gothic"}, {"UI Gothic"}},
        {{"Mincho", "Gothic", "Mincho"}, {"P Gothic", "UI Gothic"}},
        {{"Gothic", "P Gothic", "UI Gothic", "Mincho"}, {}},
        {{"Alone"}, {}},
        {{"Unknown", "P Gothic"}, {"Gothic", "UI Gothic"}},
        {{}, {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(resolver->familiesSharingFiles(row.given), row.sharing)
            << row.given.join(u',').toStdString();
}

TEST_F(ResolverTest, GivesANullFontOnASystemWithoutFonts)
{
    const FaceResolver bare(makeFamilyList(), std::make_shared<SystemFont>(nullptr),
                            [this] { return now; });
    EXPECT_TRUE(bare.resolve("Foo", std::nullopt, 12).isNull());
}

} // namespace
} // namespace lorva
