// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "support/OtherLanguage.h"
#include "support/Waiting.h"
#include "ui/discover/DiscoverArtworkView.h"
#include "ui/discover/DiscoverFoundryItem.h"
#include "ui/discover/DiscoverLayout.h"
#include "ui/discover/DiscoverLinkButton.h"
#include "ui/discover/DiscoverViewController.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::waitUntil;
using ::testing::ElementsAre;

TEST(DiscoverLayout, FollowsTheWidth)
{
    const struct
    {
        int width;
        DiscoverLayout layout;
    } rows[]{
        {700, {1, 636, 469}}, {884, {2, 398, 335}}, {883, {1, 819, 572}}, {1488, {2, 700, 505}},
        {384, {1, 320, 292}}, {200, {1, 320, 292}}, {0, {1, 320, 292}},   {885, {2, 398, 335}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(DiscoverLayout::forWidth(row.width), row.layout) << row.width;
    const DiscoverLayout two = DiscoverLayout::forWidth(884);
    EXPECT_EQ(two.itemRect(0), QRect(32, 32, 398, 335));
    EXPECT_EQ(two.itemRect(3), QRect(32 + 398 + 24, 32 + 335 + 40, 398, 335));
    EXPECT_EQ(two.contentHeight(3), 32 + 2 * 335 + 40 + 40);
    EXPECT_EQ(two.contentHeight(0), 32 + 40);
}

TEST(DiscoverFoundries, AreDescribedInTheLanguageOfNow)
{
    EXPECT_FALSE(discoverFoundries().front().subtitle.startsWith(u'「'));
    const test::OtherLanguage other;
    EXPECT_TRUE(discoverFoundries().front().subtitle.startsWith(u'「'));
    EXPECT_EQ(discoverFoundries().front().title, "Grilli Type");
}

TEST(DiscoverFoundries, AreEighteenWithASiteAndASentenceEach)
{
    QStringList ids;
    for (const DiscoverFoundry &foundry : discoverFoundries()) {
        ids << foundry.id;
        EXPECT_EQ(foundry.url.scheme(), QStringLiteral("https")) << foundry.id.toStdString();
        EXPECT_FALSE(foundry.url.host().isEmpty()) << foundry.id.toStdString();
        EXPECT_TRUE(foundry.subtitle.endsWith(u'.')) << foundry.id.toStdString();
        EXPECT_FALSE(renderDiscoverArtwork(foundry.imageName, {64, 36}).isNull())
            << foundry.id.toStdString();
    }
    EXPECT_EQ(ids.join(u' '),
              QStringLiteral("grilli-type klim pangram-pangram dinamo power-type atipo displaay "
                             "ohno letters-from-sweden optimo yep weltkern fort hoodzpah "
                             "plain-form nuform dstype league"));
}

class LinkRecorder final : public DesktopOpener
{
public:
    void openLink(const QUrl &link) override { links << link.toString(); }
    void showFile(const FilePath &) override { }
    QStringList links;
};

struct DiscoverPage : ::testing::Test
{
    DiscoverPage() { setReducedMotionOverride(true); }
    ~DiscoverPage() override
    {
        setReducedMotionOverride(std::nullopt);
        setDarkDesktopOverride(std::nullopt);
    }

    void open(std::vector<DiscoverFoundry> foundries = discoverFoundries(), int width = 884)
    {
        page = std::make_unique<DiscoverViewController>(desktop, nullptr, std::move(foundries));
        page->resize(width, 700);
        page->show();
        page->activateWindow();
        ASSERT_TRUE(waitUntil([this] { return page->isActiveWindow() && page->isSettled(); }));
    }
    DiscoverFoundryItem &item(const char *id)
    {
        return *page->findChild<DiscoverFoundryItem *>(QString::fromLatin1(id));
    }
    QScrollBar &bar() { return *page->findChild<QScrollArea *>()->verticalScrollBar(); }
    template <class Part>
    static Part &part(const DiscoverFoundryItem &item, const char *name)
    {
        return *item.findChild<Part *>(QString::fromLatin1(name));
    }

    std::shared_ptr<LinkRecorder> desktop = std::make_shared<LinkRecorder>();
    std::unique_ptr<DiscoverViewController> page;
};

TEST_F(DiscoverPage, OpensTheSiteByKeyAndByClick)
{
    open();
    page->focusPage();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &item("grilli-type").linkButton());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &item("klim").linkButton())
        << "in the catalogue's order";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::mouseClick(&item("grilli-type").linkButton(), Qt::LeftButton);
    QTest::mouseClick(&part<QWidget>(item("klim"), "imageContainer"), Qt::LeftButton);
    QTest::mouseClick(&item("klim"), Qt::LeftButton, {}, item("klim").rect().bottomLeft());
    QTest::mousePress(&item("klim"), Qt::LeftButton, {}, item("klim").rect().bottomLeft());
    QTest::mouseRelease(&item("klim"), Qt::LeftButton, {}, {50, 50});
    QTest::mouseClick(&item("klim"), Qt::LeftButton, {}, {50, 50});
    QTest::mouseDClick(&item("klim"), Qt::LeftButton, {}, {50, 50});
    QTest::mouseRelease(&item("klim"), Qt::LeftButton, {}, {50, 50});
    const QString klim = QStringLiteral("https://klim.co.nz");
    EXPECT_THAT(desktop->links,
                ElementsAre(klim, QStringLiteral("https://www.grillitype.com"), klim, klim))
        << "a double click opens once, a drag onto it nothing";
    EXPECT_EQ(item("klim").linkButton().accessibleDescription(), QStringLiteral("Open Website"));
}

TEST_F(DiscoverPage, DrawsWhatIsInSightAndWhatTheKeyboardReaches)
{
    open();
    const auto isDrawn = [this](const char *id) {
        const auto &artwork = part<DiscoverArtworkView>(item(id), "artworkView");
        return artwork.isVisible() && artwork.image().size() == artwork.wantedPixels();
    };
    EXPECT_TRUE(isDrawn("grilli-type"));
    EXPECT_FALSE(isDrawn("league"));
    page->focusPage();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_EQ(bar().value(), bar().maximum());
    EXPECT_TRUE(waitUntil([&] { return isDrawn("league"); }));
    page->resize(400, 700);
    EXPECT_TRUE(waitUntil([this] { return page->isSettled(); }));
    EXPECT_TRUE(part<DiscoverArtworkView>(item("grilli-type"), "artworkView").image().isNull())
        << "far away it takes no memory";
    page->resize(884, 700);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(page->rect().contains(
        item("grilli-type")
            .linkButton()
            .mapTo(page.get(), item("grilli-type").linkButton().rect().center())))
        << "the link that has the keyboard is in sight";
    page->resize(700, 900);
    EXPECT_TRUE(waitUntil([&] { return isDrawn("grilli-type"); })) << "sharp in its new size";
    EXPECT_EQ(item("klim").width(), 636);
    EXPECT_EQ(bar().pageStep(), 900 - 52 - 48) << "of a page something stays in sight";
}

TEST_F(DiscoverPage, StandsInForArtworkThatIsMissing)
{
    DiscoverFoundry unknown = discoverFoundries().front();
    unknown.id = QStringLiteral("unknown");
    unknown.imageName = QStringLiteral("DiscoverNobody");
    open({unknown, discoverFoundries().back()});
    EXPECT_FALSE(part<QWidget>(item("unknown"), "artworkView").isVisible());
    const auto &placeholder = part<QLabel>(item("unknown"), "placeholderLabel");
    EXPECT_TRUE(placeholder.isVisible());
    EXPECT_EQ(placeholder.text(), unknown.title);
    EXPECT_FALSE(part<QLabel>(item("league"), "placeholderLabel").isVisible());
}

TEST_F(DiscoverPage, KeepsItsPlaceAndItsColoursWhenTheDesktopChanges)
{
    open(discoverFoundries(), 700);
    bar().setValue(bar().maximum() / 2);
    const auto isSeen = [this](const char *id) {
        const QWidget &card = item(id);
        return page->rect().contains(card.mapTo(page.get(), card.rect().center()));
    };
    ASSERT_TRUE(isSeen("optimo"));
    page->resize(1000, 700);
    EXPECT_TRUE(isSeen("optimo")) << "in two columns, too";
    page->setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(item("grilli-type").x(), item("klim").x());
    EXPECT_TRUE(waitUntil([this] { return page->isSettled(); }));
    setDarkDesktopOverride(true);
    const QImage dark = page->grab().toImage();
    EXPECT_EQ(dark.pixelColor(4, 690), neutralColors(true).ground);
    setDarkDesktopOverride(false);
    EXPECT_EQ(page->grab().toImage().pixelColor(4, 690), neutralColors(false).ground);
    desktop.reset();
    open();
    QTest::mouseClick(&item("klim").linkButton(), Qt::LeftButton);
    page.reset();
}

} // namespace
} // namespace lorva
