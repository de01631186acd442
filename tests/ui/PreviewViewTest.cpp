// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/FontPreviewNSView.h"

#include "PreviewFonts.h"
#include "ui/style/ReducedMotion.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QPainter>

#include <deque>
#include <map>

namespace lorva {
namespace {

/// Answers when the case says so, in the order that the case says.
class ScriptedResolver final : public FontResolver
{
public:
    std::map<QString, Font> cached;
    std::map<QString, Font> fonts;
    std::deque<PendingResolve> pending;
    mutable int resolved = 0;
    bool answersWithinTheCall = false;

    std::optional<Font> cachedFont(const QString &family, const std::optional<FontStyleRecord> &,
                                   double) const override
    {
        const auto found = cached.find(family);
        return found == cached.end() ? std::nullopt : std::optional(found->second);
    }
    Font resolve(const QString &family, const std::optional<FontStyleRecord> &,
                 double) const override
    {
        ++resolved;
        return fonts.at(family);
    }
    void resolveAsync(PendingResolve request) override
    {
        pending.push_back(std::move(request));
        if (answersWithinTheCall)
            deliver(pending.size() - 1);
    }
    void prewarm(std::vector<PrewarmFace>, double) override { ADD_FAILURE() << "a view asked"; }
    /// As a worker and then the main thread would; false when the request was no longer wanted.
    bool deliver(size_t index, bool asksFirst = true)
    {
        const PendingResolve request = pending.at(index);
        if (asksFirst && !request.isWanted())
            return false;
        const Font font = fonts.at(request.familyName);
        request.completion({font, request.prepare(font)});
        return true;
    }
};

FontPreviewConfiguration configurationOf(const QString &family, bool isAsync)
{
    FontPreviewConfiguration configuration;
    configuration.text = QStringLiteral("A");
    configuration.familyName = family;
    configuration.alignment = TextAlignment::center;
    configuration.singleLine = true;
    configuration.prefersAsyncResolution = isAsync;
    return configuration;
}

const QString kWide = QStringLiteral("Wide");
const QString kTall = QStringLiteral("Tall");

class PreviewView : public ::testing::Test
{
protected:
    void SetUp() override
    {
        setReducedMotionOverride(false);
        test::FontBuilder wide;
        test::FontBuilder tall;
        resolver->fonts[kWide] = test::fontOf(wide.codePoints(U"A").capHeight(300));
        resolver->fonts[kTall] = test::fontOf(tall.codePoints(U"A").capHeight(1200));
        view = std::make_unique<FontPreviewNSView>(resolver);
        view->resize(200, 100);
    }
    void TearDown() override { setReducedMotionOverride(std::nullopt); }

    QImage picture(double ratio = 1.0, QPoint at = {}) const
    {
        QImage image((QSizeF(view->size()) * ratio).toSize() + QSize(4, 4),
                     QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        view->render(&image, at, {}, QWidget::DrawChildren);
        return image;
    }
    int inkRows() const
    {
        const QImage image = picture();
        int rows = 0;
        for (int y = 0; y < image.height(); ++y) {
            bool hasInk = false;
            for (int x = 0; x < image.width(); ++x)
                hasInk = hasInk || qGray(image.pixel(x, y)) < 100;
            rows += hasInk ? 1 : 0;
        }
        return rows;
    }
    QVariantAnimation &fade() const { return *view->findChild<QVariantAnimation *>(); }

    std::shared_ptr<ScriptedResolver> resolver = std::make_shared<ScriptedResolver>();
    std::unique_ptr<FontPreviewNSView> view;
};

TEST_F(PreviewView, cachedFontShowsAtOnceWithoutFade)
{
    resolver->cached[kWide] = resolver->fonts[kWide];
    view->apply(configurationOf(kWide, true));
    EXPECT_EQ(view->currentFont(), resolver->fonts[kWide]);
    EXPECT_EQ(view->textOpacity(), 1.0);
    EXPECT_TRUE(resolver->pending.empty());
    EXPECT_NEAR(inkRows(), 12, 1);
}

TEST_F(PreviewView, missingFontIsResolvedAtOnceUnlessAsyncIsPreferred)
{
    view->apply(configurationOf(kWide, false));
    EXPECT_EQ(resolver->resolved, 1);
    EXPECT_EQ(view->currentFont(), resolver->fonts[kWide]);
    EXPECT_EQ(view->textOpacity(), 1.0);

    view->apply(configurationOf(kTall, true));
    EXPECT_EQ(resolver->resolved, 1);
    EXPECT_EQ(resolver->pending.size(), 1u);
}

TEST_F(PreviewView, reusedViewIsEmptyWhileItsFontIsPending)
{
    view->apply(configurationOf(kWide, false));
    ASSERT_GT(inkRows(), 0);
    view->apply(configurationOf(kTall, true));
    EXPECT_FALSE(view->currentFont().has_value());
    EXPECT_EQ(view->shownText(), QString());
    EXPECT_EQ(view->accessibleName(), QString());
    EXPECT_EQ(inkRows(), 0);
}

TEST_F(PreviewView, lateFontFadesIn)
{
    view->apply(configurationOf(kWide, true));
    ASSERT_TRUE(resolver->deliver(0));
    EXPECT_EQ(view->currentFont(), resolver->fonts[kWide]);
    EXPECT_EQ(view->textOpacity(), 0.0);
    EXPECT_EQ(inkRows(), 0);
    ASSERT_EQ(fade().state(), QAbstractAnimation::Running);
    EXPECT_EQ(fade().duration(), 180);
    fade().setCurrentTime(180);
    EXPECT_EQ(view->textOpacity(), 1.0);
    EXPECT_NEAR(inkRows(), 12, 1);
}

TEST_F(PreviewView, fontThatArrivesWithinTheCallIsNotLate)
{
    resolver->answersWithinTheCall = true;
    view->apply(configurationOf(kWide, true));
    EXPECT_EQ(view->currentFont(), resolver->fonts[kWide]);
    EXPECT_EQ(view->textOpacity(), 1.0);
}

TEST_F(PreviewView, nothingMovesUnderReducedMotion)
{
    setReducedMotionOverride(true);
    view->apply(configurationOf(kWide, true));
    ASSERT_TRUE(resolver->deliver(0));
    EXPECT_EQ(view->textOpacity(), 1.0);
    EXPECT_NE(fade().state(), QAbstractAnimation::Running);
}

TEST_F(PreviewView, onlyTheNewestConfigurationIsShown)
{
    view->apply(configurationOf(kWide, true));
    view->apply(configurationOf(kTall, true));
    EXPECT_EQ(view->applyGeneration(), 2u);
    EXPECT_FALSE(resolver->deliver(0)) << "a worker must not start on a superseded request";
    resolver->deliver(0, false);
    EXPECT_FALSE(view->currentFont().has_value());
    ASSERT_TRUE(resolver->deliver(1));
    EXPECT_EQ(view->currentFont(), resolver->fonts[kTall]);
    resolver->deliver(0, false);
    EXPECT_EQ(view->currentFont(), resolver->fonts[kTall]);
    fade().setCurrentTime(180);
    EXPECT_NEAR(inkRows(), 48, 1);
}

TEST_F(PreviewView, synchronousConfigurationSupersedesAPendingOne)
{
    view->apply(configurationOf(kTall, true));
    view->apply(configurationOf(kWide, false));
    EXPECT_FALSE(resolver->deliver(0));
    resolver->deliver(0, false);
    EXPECT_EQ(view->currentFont(), resolver->fonts[kWide]);
}

TEST_F(PreviewView, newConfigurationEndsARunningFade)
{
    view->apply(configurationOf(kWide, true));
    ASSERT_TRUE(resolver->deliver(0));
    view->apply(configurationOf(kTall, false));
    EXPECT_EQ(view->textOpacity(), 1.0);
    EXPECT_NE(fade().state(), QAbstractAnimation::Running);
}

TEST_F(PreviewView, mayDieWhileItsFontIsPending)
{
    view->apply(configurationOf(kWide, true));
    view.reset();
    EXPECT_FALSE(resolver->deliver(0));
    resolver->deliver(0, false);
}

TEST_F(PreviewView, pixelsOfAnotherSizeAreMadeAnew)
{
    view->apply(configurationOf(kWide, true));
    const PendingResolve request = resolver->pending.front();
    const Font font = resolver->fonts[kWide];
    const QImage prepared = request.prepare(font);
    view->resize(300, 60);
    request.completion({font, prepared});
    fade().setCurrentTime(180);
    const QImage image = picture();
    EXPECT_LT(qGray(image.pixel(150, 30)), 100);
    EXPECT_EQ(qGray(image.pixel(100, 30)), 255);
}

TEST_F(PreviewView, changeOfColourSizeOrTextShowsAtOnce)
{
    FontPreviewConfiguration configuration = configurationOf(kWide, false);
    view->apply(configuration);
    EXPECT_EQ(picture().pixelColor(100, 50), QColor(Qt::black));
    configuration.textColor = Qt::red;
    view->apply(configuration);
    EXPECT_EQ(picture().pixelColor(100, 50), QColor(Qt::red));
    view->resize(300, 100);
    EXPECT_EQ(picture().pixelColor(150, 50), QColor(Qt::red));
    configuration.text = QStringLiteral("AA");
    view->apply(configuration);
    EXPECT_EQ(view->shownText(), QStringLiteral("AA"));
    EXPECT_EQ(picture().pixelColor(150, 50), QColor(Qt::white)) << "between the two letters";
}

TEST_F(PreviewView, pixelsAreNotFilteredWhereverTheViewLies)
{
    const FontPreviewConfiguration configuration = configurationOf(kTall, false);
    view->apply(configuration);
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const SpecimenCanvas canvas{view->size(), ratio};
        const SpecimenImage made = paintSpecimen(
            layOutSpecimen(configuration, *view->currentFont(), canvas), configuration, canvas);
        QImage expected(made.image.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::white);
        QPainter(&expected).drawImage(QRect(QPoint(), made.image.size()), made.image);
        const QPoint at(1, 1);
        const QPoint corner = (QPointF(at) * ratio).toPoint() + made.devicePosition;
        const QImage seen = picture(ratio, at).copy(QRect(corner, made.image.size()));
        EXPECT_EQ(seen.convertToFormat(QImage::Format_RGB32),
                  expected.convertToFormat(QImage::Format_RGB32))
            << ratio;
    }
}

TEST_F(PreviewView, standInIsConfessed)
{
    resolver->fonts[kWide] = resolver->fonts[kTall].asStandIn();
    view->apply(configurationOf(kWide, false));
    EXPECT_EQ(view->accessibleName(), QStringLiteral("A"));
    EXPECT_TRUE(view->toolTip().contains(kWide));
    EXPECT_EQ(view->accessibleDescription(), view->toolTip());
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view.get());
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::StaticText);

    view->apply(configurationOf(kTall, false));
    EXPECT_EQ(view->toolTip(), QString());
    EXPECT_EQ(view->accessibleDescription(), QString());
}

/// A service without any font and with no system font to fall back on.
class NoSystemFont final : public SystemFontLocator
{
public:
    Location systemFont() const override { return {}; }
};

TEST(PreviewViewOverTheService, survivesTheServiceAndAnEmptySystem)
{
    auto service = std::make_unique<FontLibraryService>(FontLibraryService::Dependencies{
        std::make_shared<NoAvailableFonts>(), std::make_shared<NoSystemFont>()});
    FontPreviewNSView view(makeFontResolver(*service));
    view.apply(configurationOf(kWide, true));
    view.apply(configurationOf(kWide, false));
    EXPECT_FALSE(view.currentFont().has_value());
    view.apply(configurationOf(kTall, true));
    service.reset();
    view.apply(configurationOf(kWide, true));
    view.apply(configurationOf(kWide, false));
    QCoreApplication::processEvents();
    EXPECT_FALSE(view.currentFont().has_value());
    EXPECT_EQ(view.shownText(), QString());
}

} // namespace
} // namespace lorva
