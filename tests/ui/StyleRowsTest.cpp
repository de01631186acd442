// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/StyleRowsView.h"

#include "PreviewFonts.h"
#include "support/OtherLanguage.h"
#include "support/QtPrinters.h"
#include "support/Waiting.h"
#include "ui/detail/StyleRowPill.h"
#include "ui/detail/StyleRowView.h"

#include <QTest>

#include <gtest/gtest.h>

namespace lorva {
namespace {

constexpr char32_t kLetters[] = U" ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

/// Answers later, when the case says so; "Cached" is at hand.
class LateResolver final : public FontResolver
{
public:
    Font font = test::fontWith(kLetters);
    std::vector<PendingResolve> pending;

    std::optional<Font> cachedFont(const QString &, const std::optional<FontStyleRecord> &style,
                                   double pointSize) const override
    {
        const bool isAtHand = style->label == QStringLiteral("Cached");
        return isAtHand ? std::optional(font.withPointSize(pointSize)) : std::nullopt;
    }
    Font resolve(const QString &, const std::optional<FontStyleRecord> &,
                 double pointSize) const override
    {
        return font.withPointSize(pointSize);
    }
    void resolveAsync(PendingResolve request) override { pending.push_back(std::move(request)); }
    void prewarm(std::vector<PrewarmFace>, double) override { }
    /// As a worker and then the main thread would; gives how many were still wanted.
    int deliver(const Font &answer)
    {
        int wanted = 0;
        for (const PendingResolve &request : std::exchange(pending, {})) {
            if (!request.isWanted())
                continue;
            ++wanted;
            const Font face = answer.withPointSize(request.pointSize);
            request.completion({face, request.prepare(face)});
        }
        return wanted;
    }
};

FontStyleRecord style(const QString &label, qint64 weight = 400)
{
    FontStyleRecord record;
    record.id = QStringLiteral("id-") + label;
    record.label = label;
    record.weight = weight;
    return record;
}

class StyleRowsTest : public testing::Test
{
protected:
    StyleRowsTest()
    {
        QObject::connect(&rows, &StyleRowsView::styleChosen, &rows,
                         [this](const auto &chosen) { tell("chosen", chosen); });
        QObject::connect(&rows, &StyleRowsView::activationWanted, &rows,
                         [this](const auto &chosen) { tell("on", chosen); });
        QObject::connect(&rows, &StyleRowsView::deactivationWanted, &rows,
                         [this](const auto &chosen) { tell("off", chosen); });
        QObject::connect(&rows, &StyleRowsView::revealWanted, &rows,
                         [this](const QRect &rect) { revealed = rect; });
        before.setFocusPolicy(Qt::TabFocus);
        after.setFocusPolicy(Qt::TabFocus);
        rows.setGeometry(0, 10, 800, 400);
        window.resize(800, 600);
        state.family.familyName = QStringLiteral("Test");
        window.show();
        window.activateWindow();
        EXPECT_TRUE(test::waitUntil([this] { return window.isActiveWindow(); }));
    }

    void tell(const char *what, const FontStyleRecord &about)
    {
        told.append(QLatin1String(what) + u' ' + about.label);
    }
    void show(const std::vector<FontStyleRecord> &styles, const QString &selected = {})
    {
        rows.apply(state, styles, selected);
        rows.resize(800, rows.heightFor(800));
        rows.setVisibleBand(0, 400);
    }
    void showSwitches()
    {
        const auto copied = FontFamilyActivation::active(InstallMethod::copy, false);
        const auto ofSystem = FontFamilyActivation::active(std::nullopt, false);
        state.activationByStyleID = {{"id-Off", FontFamilyActivation::inactive()},
                                     {"id-On", copied},
                                     {"id-System", ofSystem}};
        show({style("Off", 300), style("On"), style("System", 700), style("Fixed", 900)}, "id-On");
    }
    StyleRowView *row(const QString &label) const
    {
        return rows.findChild<StyleRowView *>(QStringLiteral("styleRow ") + label);
    }
    QStringList existing() const
    {
        QStringList labels;
        for (const StyleRowView *each : rows.findChildren<StyleRowView *>())
            if (!each->isHidden())
                labels.append(each->state().style.label);
        labels.sort();
        return labels;
    }
    QStringList take() { return std::exchange(told, {}); }
    void press(Qt::Key key) { QTest::keyClick(window.focusWidget(), key); }

    std::shared_ptr<LateResolver> resolver = std::make_shared<LateResolver>();
    FontDetailState state;
    QStringList told;
    QRect revealed;
    QWidget window;
    QWidget before{&window};
    StyleRowsView rows{resolver, &window};
    QWidget after{&window};
};

TEST_F(StyleRowsTest, PillsHaveRoomForLongerWords)
{
    const test::OtherLanguage other({{"Activate…", "Einschalten…"}});
    showSwitches();
    const StyleRowPill *pill = row("Off")->pill();
    EXPECT_EQ(pill->shownText(), "Einschalten…");
    EXPECT_GT(pill->width(), pill->fontMetrics().horizontalAdvance(pill->shownText()));
    EXPECT_EQ(pill->geometry().right(), row("Off")->width() - 1);
    EXPECT_EQ(row("On")->pill()->geometry().left(), pill->geometry().left()) << "one column";
}

TEST_F(StyleRowsTest, SwitchesWhatCanBeSwitched)
{
    showSwitches();
    const struct
    {
        QString label;
        bool hasPill;
        QString text;
        QString name;
        QString told;
    } cases[]{{"Off", true, QStringLiteral("Activate…"), "Activate Off", "on Off"},
              {"On", true, "Active", "De-activate On", "off On"},
              {"System", false, "", "", ""},
              {"Fixed", false, "", "", ""}};
    for (const auto &each : cases) {
        SCOPED_TRACE(each.label.toStdString());
        StyleRowPill *pill = row(each.label)->pill();
        ASSERT_EQ(pill->isVisible(), each.hasPill);
        if (!each.hasPill)
            continue;
        EXPECT_EQ(pill->shownText(), each.text);
        EXPECT_EQ(pill->accessibleName(), each.name);
        QTest::mouseClick(pill, Qt::LeftButton);
        EXPECT_EQ(take(), QStringList(each.told));
    }
    QTest::mouseClick(row("System"), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(take(), QStringList("chosen System"));
    EXPECT_TRUE(row("On")->state().isSelected) << "nobody has granted it";
    state.activationByStyleID.insert("id-Off", state.activationByStyleID.value("id-On"));
    show({style("Off", 300), style("On")}, "id-Off");
    EXPECT_EQ(row("Off")->pill()->shownText(), "Active");
    EXPECT_TRUE(row("Off")->state().isSelected);
}

TEST_F(StyleRowsTest, TheKeyboardReachesEveryRowAndItsPill)
{
    showSwitches();
    before.setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(row("On")->hasFocus()) << "the one that is shown";
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(take(), QStringList({"chosen On", "chosen System"}));
    EXPECT_EQ(revealed, row("System")->geometry());
    press(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus()) << "it has no pill";
    QTest::keyClick(&after, Qt::Key_Tab, Qt::ShiftModifier);
    press(Qt::Key_Up);
    press(Qt::Key_Tab);
    EXPECT_TRUE(row("On")->pill()->hasFocus());
    EXPECT_EQ(row("On")->pill()->shownText(), "De-activate") << "what a press does";
    press(Qt::Key_Return);
    press(Qt::Key_Up);
    EXPECT_TRUE(row("Off")->pill()->hasFocus()) << "from pill to pill";
    press(Qt::Key_Space);
    press(Qt::Key_Up);
    EXPECT_EQ(take(), QStringList({"off On", "on Off"}));
    press(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
}

TEST_F(StyleRowsTest, OnlyRowsInSightExist)
{
    std::vector<FontStyleRecord> styles;
    for (int i = 0; i < 400; ++i)
        styles.push_back(style(QStringLiteral("S%1").arg(i, 3, 10, QChar(u'0'))));
    show(styles, "id-S399");
    EXPECT_EQ(rows.heightFor(800), 28 + 400 * 46);
    EXPECT_LT(existing().size(), 14);
    EXPECT_EQ(existing().back(), "S399") << "the tab key leads to it";
    rows.setVisibleBand(28 + 200 * 46, 28 + 204 * 46);
    EXPECT_EQ(existing().front(), "S198");
    EXPECT_TRUE(existing().contains("S205"));
    EXPECT_LT(existing().size(), 10);
    row("S399")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Up);
    EXPECT_TRUE(row("S398")->hasFocus());
    EXPECT_EQ(revealed, QRect(0, 28 + 398 * 46, 800, 46));
    show({style("Only")});
    EXPECT_EQ(existing(), QStringList("Only"));
    show({});
    EXPECT_EQ(rows.heightFor(800), 0);
    EXPECT_EQ(existing(), QStringList());
}

TEST_F(StyleRowsTest, FacesComeLateAndOnlyTheNewest)
{
    show({style("Cached"), style("Bold")});
    EXPECT_FALSE(rows.isSettled());
    EXPECT_EQ(resolver->pending.size(), 1U) << "what is at hand is not asked for";
    show({style("Cached"), style("Thin")});
    EXPECT_EQ(resolver->deliver(resolver->font), 1) << "Bold is not wanted any more";
    EXPECT_TRUE(rows.isSettled());
    show({style("Light")});
    ASSERT_EQ(resolver->deliver(resolver->font.asStandIn()), 1);
    EXPECT_TRUE(row("Light")->toolTip().contains("could not be loaded"));
    show({style("Book")});
    show({});
    EXPECT_EQ(resolver->deliver(resolver->font), 0);
    state.familyActivation = FontFamilyActivation::active(InstallMethod::copy, false);
    show({style("Black")});
    EXPECT_TRUE(rows.isSettled() && resolver->pending.empty()) << "active faces are ready at once";
}

TEST_F(StyleRowsTest, SaysWhatSharesTheFile)
{
    state.labelsInSameFile.insert("id-Cached", {"Bold", "Italic"});
    show({style("Cached"), style("Alone")});
    EXPECT_TRUE(
        row("Cached")->toolTip().contains(QLocale().createSeparatedList({"Bold", "Italic"})));
    EXPECT_EQ(row("Alone")->toolTip(), QString());
    const QImage with = row("Cached")->grab().toImage();
    state.labelsInSameFile.clear();
    show({style("Cached"), style("Alone")});
    EXPECT_NE(row("Cached")->grab().toImage(), with);
}

TEST(StyleName, IsWrittenInItsFaceWhereThatCanWriteIt)
{
    const Font font = test::fontWith(kLetters, kStyleNamePointSize);
    const StyleNameLook look{QStringLiteral("Bold"), 300, 1.5, Qt::red};
    const StyleNamePicture drawn = drawStyleName(font, look);
    ASSERT_TRUE(drawn.isOwnFace);
    EXPECT_GT(drawn.image.width(), 0);
    EXPECT_EQ(drawn.image.devicePixelRatio(), 1.5);
    const struct
    {
        Font font;
        StyleNameLook look;
    } cases[]{{test::fontWith(U"Bo", kStyleNamePointSize), look},
              {font.asStandIn(), look},
              {{}, look},
              {font, {QStringLiteral("Bold"), 0, 1, Qt::red}}};
    for (const auto &each : cases)
        EXPECT_FALSE(drawStyleName(each.font, each.look).isOwnFace);
    const StyleNameLook narrow{QString(60000, u'B'), 100, 2, Qt::red};
    const StyleNamePicture cut = drawStyleName(font, narrow);
    EXPECT_LE(cut.width, 100);
    EXPECT_LE(cut.image.width(), 2 * 130);
}

TEST_F(StyleRowsTest, TheTabKeyLeadsToOneRowWhateverIsChosenElsewhere)
{
    const std::vector<FontStyleRecord> styles{style("Light", 300), style("Regular"),
                                              style("Bold", 700)};
    for (const FontStyleRecord &shown : styles) {
        show(styles, shown.id);
        QStringList stops;
        for (const FontStyleRecord &each : styles) {
            if (row(each.label)->focusPolicy() != Qt::NoFocus)
                stops << each.label;
        }
        EXPECT_EQ(stops, QStringList(shown.label));
    }
}

} // namespace
} // namespace lorva
