// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/ComparisonView.h"

#include "PreviewFonts.h"
#include "support/Waiting.h"
#include "ui/detail/FamilyPicker.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QListView>
#include <QSignalSpy>
#include <QTest>

#include <deque>
#include <map>

namespace lorva {
namespace {

/// Answers when the case says so.
class ScriptedResolver final : public FontResolver
{
public:
    std::map<QString, Font> cached;
    std::deque<PendingResolve> pending;

    std::optional<Font> cachedFont(const QString &family, const std::optional<FontStyleRecord> &,
                                   double) const override
    {
        const auto found = cached.find(family);
        return found == cached.end() ? std::nullopt : std::optional(found->second);
    }
    Font resolve(const QString &, const std::optional<FontStyleRecord> &, double) const override
    {
        ADD_FAILURE() << "asked for a font at once";
        return {};
    }
    void resolveAsync(PendingResolve request) override { pending.push_back(std::move(request)); }
    void prewarm(std::vector<PrewarmFace>, double) override { }
};

FontStyleRecord styleOf(const QString &label, qint64 weight, bool isItalic = false)
{
    return {label, label, label, weight, isItalic, {}};
}

FontFamilyRecord familyOf(const QString &name)
{
    FontFamilyRecord family;
    family.familyName = name;
    family.styles = {styleOf("Light", 300), styleOf("Regular", 400), styleOf("Bold", 700),
                     styleOf("Bold Italic", 700, true), styleOf("Italic", 400, true)};
    return family;
}

Font boxes(int xHeight, int capHeight = 700)
{
    test::FontBuilder builder;
    return test::fontOf(builder.codePoints(U"AaXx \u05d0").xHeight(xHeight).capHeight(capHeight),
                        40);
}

TEST(ComparisonTest, theNearestStyleIsOfTheSameSlantFirst)
{
    const FontFamilyRecord all = familyOf("All");
    FontFamilyRecord upright = all;
    std::erase_if(upright.styles, [](const FontStyleRecord &style) { return style.isItalic; });
    FontFamilyRecord extremes = all;
    extremes.styles = {styleOf("Thin", 100), styleOf("Medium", 500), styleOf("Black", 900)};
    const std::tuple<FontFamilyRecord, qint64, bool, const char *> rows[]{
        {all, 400, false, "Regular"},     {all, 400, true, "Italic"},
        {all, 650, false, "Bold"},        {all, 900, true, "Bold Italic"},
        {all, 100, false, "Light"},       {upright, 700, true, "Bold"},
        {upright, 400, true, "Regular"},  {extremes, 400, false, "Medium"},
        {extremes, 100, false, "Thin"},   {extremes, -50, true, "Thin"},
        {extremes, 99999, true, "Black"},
    };
    for (const auto &[family, weight, isItalic, label] : rows) {
        const auto found = nearestStyle(family, styleOf("like", weight, isItalic));
        ASSERT_TRUE(found);
        EXPECT_EQ(found->label, QLatin1String(label)) << weight;
    }
    EXPECT_FALSE(nearestStyle({}, styleOf("like", 400)));
}

TEST(ComparisonTest, columnsAreAsManyAsHoldAFewWords)
{
    const std::tuple<int, double, double, int> rows[]{
        {1, 970, 72, 1}, {2, 970, 72, 2}, {3, 970, 72, 2}, {3, 1200, 72, 3}, {4, 970, 72, 2},
        {4, 970, 24, 4}, {4, 300, 72, 1}, {2, 1, 48, 1},   {3, 970, 60, 3}};
    for (const auto &[faces, width, size, columns] : rows)
        EXPECT_EQ(comparisonColumns(faces, width, size), columns) << faces << ' ' << size;
}

TEST(ComparisonTest, xHeightsAreMatchedWhereFontsHaveThem)
{
    test::FontBuilder bare;
    const Font without = test::fontOf(bare.codePoints(U"A").withoutOs2());
    const Font font = boxes(500);
    EXPECT_DOUBLE_EQ(comparedFont(boxes(250), font, true).pointSize(), 80);
    EXPECT_DOUBLE_EQ(comparedFont(boxes(250), font, false).pointSize(), 40);
    EXPECT_DOUBLE_EQ(comparedFont(boxes(10), font, true).pointSize(), 160) << "within reason";
    EXPECT_DOUBLE_EQ(comparedFont(boxes(250).withPointSize(9), font, false).pointSize(), 40);
    EXPECT_GT(comparedFont(without, font, true).pointSize(), 9);
    EXPECT_GT(comparedFont(font, without, true).pointSize(), 9);
    EXPECT_TRUE(comparedFont({}, font, true).isNull());
}

TEST(ComparisonTest, tintsAreSeenOnAnyGround)
{
    const std::pair<QColor, QColor> rows[]{{Qt::black, Qt::white},
                                           {Qt::white, Qt::black},
                                           {Qt::white, QColor(0, 0, 200)},
                                           {Qt::black, QColor(250, 220, 0)},
                                           {QColor(200, 0, 0), QColor(128, 128, 128)},
                                           {Qt::white, Qt::transparent},
                                           {QColor(0, 90, 200), QColor(255, 250, 240)},
                                           {Qt::gray, QColor(20, 80, 20)}};
    for (const auto &[foreground, background] : rows) {
        const QColor ground =
            background.alpha() == 255 ? background : contrastingNeutral(foreground);
        std::vector<QColor> seen;
        for (int i = 0; i < ComparisonView::kMostOthers; ++i) {
            const QColor color = blended(comparisonTint(i, foreground, background), ground);
            EXPECT_GE(contrastRatio(color, ground), 2.95) << ground.name().toStdString() << i;
            for (const QColor &other : seen) {
                EXPECT_GT(std::abs(color.red() - other.red())
                              + std::abs(color.green() - other.green())
                              + std::abs(color.blue() - other.blue()),
                          70)
                    << ground.name().toStdString();
            }
            seen.push_back(color);
        }
    }
}

Comparison comparisonOf(const QString &text, const std::vector<Font> &others)
{
    Comparison comparison;
    comparison.specimen = {QStringLiteral("Own"), QStringLiteral("Regular"), text, boxes(500)};
    for (const Font &font : others)
        comparison.others.push_back({QStringLiteral("Other"), QStringLiteral("Bold"), font});
    return comparison;
}

std::vector<double> baselines(const SpecimenPage &page)
{
    std::vector<double> all;
    for (const SpecimenPage::Text &text : page.texts)
        all.push_back(text.origin.y() + text.layout.lines().front().origin.y());
    return all;
}

TEST(ComparisonTest, facesBesideEachOtherShareTheirBaselines)
{
    const ComparisonPage page =
        layOutComparison(comparisonOf("AAAA AAAA", {boxes(500, 1400)}), 440, false);
    const std::vector<double> lines = baselines(page.page);
    ASSERT_EQ(lines.size(), 4u) << "two lines in each of two columns";
    EXPECT_EQ(lines[0], lines[2]);
    EXPECT_EQ(lines[1], lines[3]);
    EXPECT_GE(lines[1], lines[0] + 40);
    EXPECT_EQ(page.page.texts[2].origin.x(), 440 / 2.0 + 16);
    ASSERT_EQ(page.buttons.size(), 1u);
    EXPECT_GT(page.buttons[0].left(), 226);
    const ComparisonPage mirrored =
        layOutComparison(comparisonOf("AAAA AAAA", {boxes(500)}), 440, true);
    EXPECT_EQ(mirrored.page.texts[2].origin.x(), 0);
    EXPECT_EQ(mirrored.page.captions[0].rect.right(), 440);
}

TEST(ComparisonTest, overlaidFacesShareOriginsAndTheSpecimensBreaks)
{
    Comparison comparison = comparisonOf("AAAA AAAA\n\u05d0\u05d0", {boxes(500), boxes(500, 350)});
    comparison.mode = ComparisonMode::overlaid;
    comparison.specimen.letterSpacing = 0.1;
    const ComparisonPage page = layOutComparison(comparison, 150, false);
    ASSERT_EQ(page.page.texts.size(), 9u) << "three lines of three faces";
    std::set<QRgb> colors;
    for (size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(page.page.texts[i].origin.x(), page.page.texts[i % 3].origin.x());
        EXPECT_EQ(baselines(page.page)[i], baselines(page.page)[i % 3]);
        EXPECT_EQ(page.page.texts[i].layout.size().width(),
                  page.page.texts[i % 3].layout.size().width());
        colors.insert(page.page.texts[i].color.rgba());
    }
    EXPECT_EQ(colors.size(), 3u);
    EXPECT_EQ(page.page.dots.size(), 3u);
    EXPECT_EQ(page.page.texts[0].color, QColor(Qt::black));
    EXPECT_GT(page.page.texts[2].origin.x(), 80) << "a right-to-left line stands at the right";
}

TEST(ComparisonTest, standInsAreSaidAndNotDrawn)
{
    Comparison comparison = comparisonOf("AA", {boxes(500).asStandIn(), Font()});
    for (const auto mode : {ComparisonMode::beside, ComparisonMode::overlaid}) {
        comparison.mode = mode;
        const SpecimenPage page = layOutComparison(comparison, 900, false).page;
        EXPECT_EQ(page.texts.size(), 1u);
        EXPECT_EQ(page.captions[1].text, QStringLiteral("Other Bold — not available"));
        EXPECT_EQ(page.captions[2].text, QStringLiteral("Other Bold"));
    }
    comparison.specimen.font = {};
    EXPECT_EQ(layOutComparison(comparison, 900, false).page.texts.size(), 0u);
}

class ComparisonViewTest : public ::testing::Test
{
protected:
    ComparisonViewTest()
    {
        setReducedMotionOverride(true);
        std::vector<FontFamilyRecord> families;
        for (const char *name : {"Alpha", "Beta", "Beta Two", "Gamma", "Own"})
            families.push_back(familyOf(QLatin1String(name)));
        list = makeFamilyList(std::move(families));
        view.setFamilies(list);
        view.setStyle(styleOf("Bold", 700));
        view.apply({"Own", "Bold", "Ax", boxes(500)});
        window.resize(900, 800);
        view.setGeometry(20, 20, 860, 700);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(test::waitUntil([this] { return window.isActiveWindow(); }));
    }
    ~ComparisonViewTest() override { setReducedMotionOverride(std::nullopt); }

    QAbstractButton &button(const char *name)
    {
        return *view.findChild<QAbstractButton *>(QLatin1String(name));
    }
    void key(Qt::Key key) { QTest::keyClick(window.focusWidget(), key); }
    QString caption(size_t index) { return view.page().captions.at(index).text; }

    FontFamilyList list;
    std::shared_ptr<ScriptedResolver> resolver = std::make_shared<ScriptedResolver>();
    QWidget window;
    ComparisonView view{resolver, &window};
};

TEST_F(ComparisonViewTest, aFamilyIsAddedByTypingAndTakenOutAgain)
{
    QSignalSpy changed(&view, &ComparisonView::otherFamiliesChanged);
    button("addFamily").setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    auto *names = window.findChild<QListView *>("familyList");
    ASSERT_TRUE(names);
    EXPECT_EQ(names->model()->rowCount(), 4) << "all but the one that is shown";
    QTest::keyClicks(window.focusWidget(), "BET");
    EXPECT_EQ(names->model()->rowCount(), 2);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(view.otherFamilies(), QStringList{"Beta Two"});
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(window.focusWidget(), &button("addFamily"));
    EXPECT_EQ(caption(1), "Beta Two Bold");
    EXPECT_FALSE(view.isSettled());
    ASSERT_EQ(resolver->pending.size(), 1u);
    resolver->pending[0].completion({boxes(300), {}});
    EXPECT_TRUE(view.isSettled());
    EXPECT_EQ(view.page().texts.size(), 2u);

    key(Qt::Key_Space);
    key(Qt::Key_Escape);
    EXPECT_EQ(view.otherFamilies().size(), 1) << "Escape takes nothing";

    QAbstractButton &remove = button("removeFamily0");
    EXPECT_EQ(remove.accessibleName(), "Remove Beta Two");
    remove.setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(view.otherFamilies(), QStringList());
    EXPECT_FALSE(remove.isVisible());
    EXPECT_EQ(window.focusWidget(), &button("addFamily"));
}

TEST_F(ComparisonViewTest, modesAndMatchingAreSwitchedByClicks)
{
    resolver->cached["Alpha"] = boxes(250);
    view.setOtherFamilies({"Alpha", "Alpha", "Nobody"});
    EXPECT_TRUE(view.isSettled());
    QSignalSpy heights(&view, &DetailSection::heightChanged);
    const auto segment = [&](const char *control, int index) -> QAbstractButton & {
        return *view.findChild<QWidget *>(QLatin1String(control))
                    ->findChildren<QAbstractButton *>()
                    .at(index);
    };
    QTest::mouseClick(&segment("comparisonMatch", 1), Qt::LeftButton);
    ASSERT_EQ(view.page().texts.size(), 2u);
    EXPECT_EQ(view.page().texts[1].layout.lines()[0].runs[0].font.pointSize(), 80);
    EXPECT_GE(heights.size(), 1);
    QTest::mouseClick(&segment("comparisonMode", 1), Qt::LeftButton);
    EXPECT_EQ(view.page().dots.size(), 2u);
    EXPECT_EQ(view.page().texts[0].origin.x(), view.page().texts[1].origin.x());
    const QImage picture = view.grab().toImage();
    int tinted = 0;
    for (int x = 0; x < 200; ++x) {
        for (int y = 80; y < picture.height(); ++y)
            tinted += picture.pixelColor(x, y).hslSaturation() > 100 ? 1 : 0;
    }
    EXPECT_GT(tinted, 500) << "the other face shows in its own colour";
}

TEST_F(ComparisonViewTest, lateAndUnwantedFontsAreDropped)
{
    view.setOtherFamilies({"Alpha", "Beta"});
    ASSERT_EQ(resolver->pending.size(), 2u);
    EXPECT_EQ(resolver->pending[0].style->label, "Bold");
    view.setStyle(styleOf("Light Italic", 300, true));
    ASSERT_EQ(resolver->pending.size(), 4u);
    EXPECT_FALSE(resolver->pending[0].isWanted());
    resolver->pending[0].completion({boxes(300), {}});
    EXPECT_EQ(view.page().texts.size(), 1u);
    resolver->pending[2].completion({boxes(300), {}});
    EXPECT_EQ(view.page().texts.size(), 2u);
    EXPECT_EQ(caption(1), "Alpha Italic");
    view.setOtherFamilies({"Alpha"});
    EXPECT_FALSE(resolver->pending[3].isWanted());
    EXPECT_TRUE(view.isSettled());
    {
        ComparisonFaces gone(resolver, 3);
        gone.setFamilies(list);
        gone.setNames({"Gamma"});
    }
    EXPECT_FALSE(resolver->pending.back().isWanted());
    resolver->pending.back().completion({boxes(300), {}});
}

TEST_F(ComparisonViewTest, familiesThatGoAreNoLongerCompared)
{
    for (const char *name : {"Alpha", "Beta", "Gamma", "Own"})
        resolver->cached[QLatin1String(name)] = boxes(500);
    view.setOtherFamilies({"Alpha", "Own", "Beta", "Gamma"});
    EXPECT_EQ(view.otherFamilies(), QStringList({"Alpha", "Own", "Beta"})) << "at most three";
    EXPECT_EQ(view.page().texts.size(), 3u) << "not with itself";
    EXPECT_FALSE(button("addFamily").isVisible());
    view.apply({"Beta", "Bold", "Ax", boxes(500)});
    EXPECT_EQ(caption(2), "Own Bold") << "but with what was shown before";
    view.setFamilies({});
    EXPECT_EQ(view.otherFamilies().size(), 3) << "no families at all is no answer";
    view.setFamilies(makeFamilyList({familyOf("Beta"), familyOf("Gamma")}));
    EXPECT_EQ(view.otherFamilies(), QStringList{"Beta"});
    EXPECT_EQ(view.page().texts.size(), 1u);
    EXPECT_TRUE(button("addFamily").isVisible());
}

TEST(FamilyPickerTest, tensOfThousandsOfNamesAreFilteredAndStayInTheList)
{
    QStringList names;
    for (int i = 0; i < 20'000; ++i)
        names << QStringLiteral("Family %1").arg(i);
    EXPECT_EQ(matchingNames(names, " fAMILY 1999 ").size(), 11u);
    EXPECT_EQ(matchingNames(names, {}).size(), 20'000u);
    EXPECT_TRUE(matchingNames(names, "Ä").empty());
    FamilyPicker picker(names);
    picker.resize(picker.sizeHint());
    picker.show();
    auto *field = picker.findChild<QWidget *>("familySearchField");
    auto *list = picker.findChild<QListView *>("familyList");
    QSignalSpy chosen(&picker, &FamilyPicker::chosen);
    QTest::keyClick(field, Qt::Key_PageDown);
    EXPECT_GT(list->currentIndex().row(), 5);
    QTest::keyClicks(field, "zzz");
    EXPECT_EQ(list->model()->rowCount(), 0);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(chosen.isEmpty()) << "nothing matches";
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, "y 19");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(2, 0)).center());
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0][0].toString(), "Family 191");
}

} // namespace
} // namespace lorva
