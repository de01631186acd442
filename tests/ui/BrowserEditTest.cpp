// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "BrowserHarness.h"
#include "ui/browser/InlineEditHandler.h"
#include "ui/preview/PreviewText.h"
#include "ui/style/LineField.h"

#include <QApplication>
#include <QInputMethodEvent>

namespace lorva {
namespace {

using test::waitUntil;

class BrowserEdit : public test::BrowserHarness
{
protected:
    BrowserEdit()
    {
        state.sampleText = QStringLiteral("Some text");
        apply();
    }
    LineField *field() { return browser.findChild<LineField *>(QStringLiteral("inlineEditField")); }
    void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    QString shown(int index) { return card(index).previewView().shownText(); }
    void type(const QString &text) { QTest::keyClicks(field(), text); }
};

TEST_F(BrowserEdit, EveryCardShowsTheTextWhileItIsTypedAndTheLastWordCounts)
{
    const struct
    {
        const char *what;
        std::function<void()> end;
        QString shownAfterwards;
        QStringList told;
    } rows[]{
        {"Return commits",
         [this] { QTest::keyClick(field(), Qt::Key_Return); },
         "other",
         {"sample other"}},
        {"Escape restores", [this] { QTest::keyClick(field(), Qt::Key_Escape); }, "Some text", {}},
        {"the focus elsewhere commits", [this] { view().setFocus(); }, "other", {"sample other"}},
        {"closing the window commits",
         [this] {
             browser.close();
             browser.show();
         },
         "other",
         {"sample other"}},
        {"blank is no text",
         [this] {
             field()->clear();
             type(QStringLiteral("  "));
             EXPECT_EQ(shown(1), QStringLiteral("Some text"));
             QTest::keyClick(field(), Qt::Key_Return);
         },
         "Some text",
         {}},
        {"another source is not meant",
         [this] {
             state.source = BrowserSource::active();
             apply();
         },
         "Some text",
         {}},
        {"the card is gone",
         [this] {
             setFamilies({"B", "C"});
             apply();
         },
         "Some text",
         {}},
    };
    for (const auto &row : rows) {
        setFamilies(letters(6));
        apply();
        key(Qt::Key_Home);
        delegate.log.clear();
        key(Qt::Key_F2);
        ASSERT_NE(field(), nullptr) << row.what;
        EXPECT_EQ(field()->selectedText(), QStringLiteral("Some text"));
        EXPECT_FALSE(card(0).previewView().isVisible()) << "the field stands in its place";
        type(QStringLiteral("other"));
        EXPECT_EQ(shown(1), QStringLiteral("other"));
        EXPECT_EQ(delegate.log, QStringList());
        row.end();
        settle();
        EXPECT_EQ(field(), nullptr) << row.what;
        EXPECT_TRUE(card(0).previewView().isVisible());
        EXPECT_EQ(shown(0), row.shownAfterwards) << row.what;
        EXPECT_EQ(delegate.log, row.told) << row.what;
    }
}

TEST_F(BrowserEdit, TheFieldStandsOnItsCardAndScrollsWithIt)
{
    click(1);
    key(Qt::Key_F2);
    const auto specimen = [this](int index) {
        const QRect place = view().viewportRect(view().arrangement().cardRect(index));
        return FontCardContentView::previewRect(place.size()).translated(place.topLeft());
    };
    EXPECT_TRUE(specimen(1).contains(field()->geometry()));
    type(QStringLiteral("x"));
    EXPECT_TRUE(field()->alignment() & Qt::AlignHCenter) << "as the specimen stands";
    view().setScrollOffset(100);
    EXPECT_TRUE(specimen(1).contains(field()->geometry()));
    setFamilies({"A", "Aa", "Ab", "B"});
    apply();
    EXPECT_TRUE(specimen(3).contains(field()->geometry())) << "in whatever order";
    EXPECT_TRUE(field()->hasFocus());
}

TEST(BrowserEnd, ABrowserMayEndWhileItsTextIsEditedOrItsFocusSeen)
{
    for (const bool edits : {true, false}) {
        FontBrowserViewController browser{std::make_shared<test::OneFaceResolver>()};
        FontBrowserState state;
        std::vector<FontFamilyRecord> families(3);
        families[0].familyName = QStringLiteral("A");
        state.families = makeFamilyList(std::move(families));
        browser.apply(state);
        browser.resize(800, 600);
        browser.show();
        browser.activateWindow();
        ASSERT_TRUE(waitUntil([&] { return browser.isActiveWindow(); }));
        browser.collectionView().clearFocus();
        browser.focusCards();
        EXPECT_TRUE(browser.collectionView().showsFocusAt(0));
        if (edits)
            browser.editSampleText();
        EXPECT_EQ(browser.collectionView().hasFocus(), !edits);
    }
}

TEST_F(BrowserEdit, WhatAnInputMethodComposesIsNotShownYet)
{
    click(0);
    key(Qt::Key_F2);
    QInputMethodEvent composing(QString::fromUtf8("に"), {});
    QCoreApplication::sendEvent(field(), &composing);
    EXPECT_EQ(shown(1), QStringLiteral("Some text"));
    QInputMethodEvent done;
    done.setCommitString(QStringLiteral("other"));
    QCoreApplication::sendEvent(field(), &done);
    EXPECT_EQ(shown(1), QStringLiteral("other"));
}

TEST_F(BrowserEdit, ASecondClickOnTheSpecimenEditsUnlessItIsADoubleClick)
{
    QApplication::setDoubleClickInterval(1);
    ASSERT_TRUE(waitUntil([this] { return view().hasFocus(); }));
    browser.grab();
    const auto onText = [this](int index) {
        return card(index).specimenRect().center() + view().visibleItem(index)->pos();
    };
    const auto clickAt = [this](QPoint place) {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place);
    };
    const auto rest = [] {
        bool isOver = false;
        QTimer::singleShot(30, [&] { isOver = true; });
        return waitUntil([&] { return isOver; });
    };
    view().clearFocus();
    view().setFocus(Qt::MouseFocusReason);
    clickAt(onText(0));
    clickAt(at(0) + QPoint(0, 90));
    ASSERT_TRUE(rest());
    EXPECT_EQ(field(), nullptr) << "beside the text";
    clickAt(onText(0));
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, onText(0));
    ASSERT_TRUE(rest());
    EXPECT_EQ(field(), nullptr) << "a double click opens";
    click(1, Qt::ControlModifier);
    clickAt(onText(0));
    ASSERT_TRUE(rest());
    EXPECT_EQ(field(), nullptr) << "one of several";
    clickAt(onText(0));
    EXPECT_TRUE(waitUntil([this] { return field(); }));
    QApplication::setDoubleClickInterval(400);
}

TEST_F(BrowserEdit, AbsurdTextsAreCutToWhatALineCanShow)
{
    const auto many = [](const char *unit) { return QString::fromUtf8(unit).repeated(100000); };
    const struct
    {
        const char *what;
        QString text;
    } rows[]{
        {"letters", many("a")},
        {"combining marks", many("\u0301")},
        {"bidi controls", QString(100000, QChar(0x202E))},
        {"emoji sequences", many("\U0001F469\u200D\U0001F692")},
        {"line ends", many("\n")},
    };
    for (const auto &row : rows) {
        const QString cut = lineExcerpt(row.text, 400, 36);
        EXPECT_LE(cut.size(), 128 + 223) << row.what;
        EXPECT_TRUE(row.text.startsWith(cut));
        EXPECT_FALSE(cut.back().isHighSurrogate()) << row.what;
        state.sampleText = row.text;
        apply();
        EXPECT_FALSE(browser.grab().isNull()) << row.what;
        EXPECT_TRUE(browser.isSettled());
    }
    const QString poem =
        QString::fromUtf8("Zwölf Boxkämpfer jagen Viktor quer über den Sylter Deich");
    EXPECT_EQ(lineExcerpt(poem, 400, 160), poem) << "what people type stays whole";

    click(0);
    key(Qt::Key_F2);
    EXPECT_LE(field()->text().size(), InlineEditHandler::kMostCharacters);
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_FALSE(delegate.log.contains(QStringLiteral("sample"))) << "nothing was changed";
}

} // namespace
} // namespace lorva
