// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/Prewarming.h"

#include "catalog/FaceResolver.h"
#include "catalog/FontCatalogLoader.h"
#include "CatalogSupport.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace lorva {
namespace {

class PrewarmingTest : public testing::Test
{
protected:
    void add(const QByteArray &family, qint64 fileBytes = 0)
    {
        const FilePath file = test::writeFile(
            m_folder, family + ".ttf", test::face(family.constData(), "Regular", family).build());
        if (fileBytes > 0) {
            ASSERT_EQ(::truncate(file.c_str(), fileBytes), 0);
        }
        m_fonts->files.push_back(file);
    }

    /// Pre-warms the families of the files added, and gives those that were made ready for drawing.
    std::vector<QString> prewarm()
    {
        const auto families =
            makeFamilyList(FontCatalogLoader({m_fonts}).scan({}, nullptr)->families);
        resolver.emplace(families, std::make_shared<SystemFont>(nullptr),
                         [] { return SteadyTime(); });
        std::vector<QString> prepared;
        std::vector<PrewarmFace> faces;
        for (const FontFamilyRecord &family : *families) {
            const QString name = family.familyName;
            faces.push_back({name, std::nullopt, [&, name](const Font &) {
                                 prepared.push_back(name);
                                 if (name == stopsAt)
                                     stop.request_stop();
                             }});
        }
        prewarmFaces(*resolver, faces, 20, stop.get_token());
        return prepared;
    }

    bool isCached(const QString &family) const
    {
        return resolver->cachedFont(family, std::nullopt, 20).has_value();
    }

    const FilePath m_folder = test::TestHome::instance().makeFolder("prewarming");
    const std::shared_ptr<test::ListedFonts> m_fonts = std::make_shared<test::ListedFonts>();
    std::optional<FaceResolver> resolver;
    std::stop_source stop;
    QString stopsAt;
};

TEST_F(PrewarmingTest, StopsAtOnce)
{
    for (const char *family : {"A", "B", "C"})
        add(family);
    stopsAt = "B";
    EXPECT_EQ(prewarm(), (std::vector<QString>{"A", "B"}));
    EXPECT_FALSE(isCached("C"));
}

TEST_F(PrewarmingTest, MakesAFewFamiliesReadyHoweverManyItIsGiven)
{
    for (int i = 0; i < 60; ++i)
        add("Family " + QByteArray::number(i));
    EXPECT_EQ(prewarm().size(), kPrewarmFamilies);
    EXPECT_TRUE(isCached("Family 47"));
    EXPECT_FALSE(isCached("Family 48"));
}

TEST_F(PrewarmingTest, LeavesOutFilesThatWouldPushOutWhatIsOnTheScreen)
{
    constexpr qint64 kMebibyte = 1 << 20;
    add("Small");
    add("Giant", 100 * kMebibyte);
    add("Large", 20 * kMebibyte);
    add("Second", 13 * kMebibyte);
    add("Third", 11 * kMebibyte);
    EXPECT_EQ(prewarm(), (std::vector<QString>{"Small", "Large", "Third"}));
    EXPECT_TRUE(isCached("Giant")) << "where the face lies is known all the same";
}

} // namespace
} // namespace lorva
