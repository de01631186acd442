// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/XdgFolders.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"

#include <fontconfig/fontconfig.h>
#include <gmock/gmock.h>

#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::TestHome;
using test::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;

class FontconfigAvailableFontsTest : public testing::Test
{
protected:
    std::vector<FilePath> scan(std::stop_token stop = {}) const
    {
        return m_fonts.fontFiles([this](int count) { m_counts.push_back(count); }, stop);
    }

    static FilePath addFont(const FilePath &folder, const QByteArray &name)
    {
        return writeFile(folder, name, FontBuilder(QString::fromLatin1(name)).build());
    }

    FilePath addLink(const QByteArray &name, const QByteArray &target) const
    {
        const FilePath link = m_links.child(name);
        EXPECT_EQ(::symlink(target.constData(), link.c_str()), 0);
        return link;
    }

    const FilePath m_user = TestHome::instance().userFonts();
    const FilePath m_system = TestHome::instance().systemFonts();
    const FilePath m_links =
        TestHome::instance().makeFolder("home/.local/share/fonts/lorva-registered");
    const FontconfigAvailableFonts m_fonts{xdgFolders().registeredLinks()};
    mutable std::vector<int> m_counts;
};

TEST_F(FontconfigAvailableFontsTest, systemWithoutFontsGivesNone)
{
    EXPECT_THAT(scan(), IsEmpty());
    EXPECT_THAT(m_counts, IsEmpty());
}

TEST_F(FontconfigAvailableFontsTest, givesEachFileOnceInByteOrderAndCounts)
{
    const FilePath lower = addFont(m_user, "a.ttf");
    const FilePath upper = addFont(m_user, "B.ttf");
    const FilePath odd = addFont(m_user, "c\xff.ttf");
    const FilePath collection = writeFile(
        m_system, "z.ttc",
        FontBuilder::collection({FontBuilder("One").build(), FontBuilder("Two").build()}));
    EXPECT_THAT(scan(), ElementsAre(upper, lower, odd, collection));
    EXPECT_EQ(m_counts.back(), 4);
    EXPECT_TRUE(std::ranges::is_sorted(m_counts));
}

TEST_F(FontconfigAvailableFontsTest, everyScanSeesWhatTheLastDidNot)
{
    const FilePath first = addFont(m_user, "a.ttf");
    EXPECT_THAT(scan(), ElementsAre(first));
    const FilePath second = addFont(m_system.child("new"), "b.ttf");
    EXPECT_THAT(scan(), ElementsAre(first, second));
    ::unlink(first.c_str());
    EXPECT_THAT(scan(), ElementsAre(second));
}

TEST_F(FontconfigAvailableFontsTest, ownLinksShowAsTheirTargets)
{
    const FilePath elsewhere = addFont(TestHome::instance().makeFolder("watched"), "w.ttf");
    const FilePath listed = addFont(m_user, "u.ttf");
    addLink("1.ttf", elsewhere.bytes());
    addLink("2.ttf", "../u.ttf");
    addLink("3.ttf", listed.bytes());
    // The relative form is not one that registration writes; it still leads to the file.
    const FilePath relative = m_links.child("../u.ttf");
    std::vector<FilePath> expected{elsewhere, listed, relative};
    std::ranges::sort(expected);
    EXPECT_EQ(scan(), expected);
}

TEST_F(FontconfigAvailableFontsTest, ownLinkWithoutTargetIsLeftOut)
{
    const FilePath gone = addFont(TestHome::instance().makeFolder("watched"), "w.ttf");
    addLink("1.ttf", gone.bytes());
    EXPECT_THAT(scan(), ElementsAre(gone));
    // fontconfig's cache still lists the link: the folder that holds it has not changed.
    ::unlink(gone.c_str());
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(FontconfigAvailableFontsTest, foreignLinksStayAsTheyAre)
{
    const FilePath target = addFont(TestHome::instance().makeFolder("elsewhere"), "t.ttf");
    const FilePath link = m_user.child("l.ttf");
    ASSERT_EQ(::symlink(target.c_str(), link.c_str()), 0);
    EXPECT_THAT(scan(), ElementsAre(link));
}

TEST_F(FontconfigAvailableFontsTest, stopsEarlyAndLeavesTheCurrentConfigurationAlone)
{
    addFont(m_user, "a.ttf");
    FcConfig *const current = FcConfigGetCurrent();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(scan(stop.get_token()), IsEmpty());
    EXPECT_EQ(scan().size(), 1u);
    EXPECT_EQ(FcConfigGetCurrent(), current);
}

} // namespace
} // namespace lorva
