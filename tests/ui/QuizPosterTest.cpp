// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/AdverseSystem.h"
#include "support/OtherLanguage.h"
#include "support/QtPrinters.h"
#include "support/TestHome.h"
#include "support/Waiting.h"
#include "ui/quiz/FontQuizCompletionPosterView.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QLabel>
#include <QLocale>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::waitUntil;

constexpr FontQuizCounts kSorted{318, 121, 96, 48, 11, 27, 15};
const QString kName = QStringLiteral("Ada Lovelace");

TEST(QuizPosterTest, theSentenceNamesDayAndPlayerInEnglish)
{
    QLocale::setDefault(QLocale(QLocale::German));
    const QString nbsp(QChar::Nbsp);
    const QString whole =
        "Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles by "
        "Ada Lovelace on November"
        % nbsp % "14th," % nbsp
        % "2026.\n\nReady and waiting for use in whatever project may come. Remember to make it "
          "nice.";
    EXPECT_EQ(posterText(kName, QDate(2026, 11, 14)), whole);
    const char *ends[] = {"",   "st", "nd", "rd", "th", "th", "th", "th", "th", "th", "th",
                          "th", "th", "th", "th", "th", "th", "th", "th", "th", "th", "st",
                          "nd", "rd", "th", "th", "th", "th", "th", "th", "th", "st"};
    for (int day = 1; day <= 31; ++day) {
        const QString expected = QStringLiteral("May") + nbsp + QString::number(day)
            + QLatin1String(ends[day]) + u',' + nbsp + QStringLiteral("0800.");
        EXPECT_TRUE(posterText(kName, QDate(800, 5, day)).contains(expected)) << day;
    }
    QLocale::setDefault(QLocale::c());
}

TEST(QuizPosterTest, theSentenceNamesTheDayAsItsLanguageDoes)
{
    const test::OtherLanguage german({{"en", "de"}, {"MMMM d, yyyy", "d. MMMM yyyy"}});
    const QString nbsp(QChar::Nbsp);
    const QString day = "14." % nbsp % "Oktober" % nbsp % "2026";
    EXPECT_TRUE(posterText(kName, QDate(2026, 10, 14)).contains(day));
}

TEST(QuizPosterTest, anyNameLeavesTheSentenceInOrder)
{
    const struct
    {
        QString name;
        QString shown;
    } rows[]{
        {QString(), QStringLiteral("Decorative styles on November")},
        {QStringLiteral(" \u202e\n"), QStringLiteral("Decorative styles on November")},
        {QStringLiteral("%2 %1"), QStringLiteral("by %2 %1 on November")},
        {QStringLiteral("Ada\u202e\nLovelace"), QStringLiteral("by Ada Lovelace on")},
        {QStringLiteral("\u05d9\u05e2\u05dc 2"),
         QStringLiteral("by \u2068\u05d9\u05e2\u05dc 2\u2069 on")},
        {QStringLiteral("Ada \u200e Lovelace"), QStringLiteral("by Ada Lovelace on")},
        {QString(99, u'm') + QStringLiteral("\U0001F600"),
         QString(QStringLiteral("by ") + QString(99, u'm') + u'…')},
        {QString(300, u'm'), QString(QStringLiteral("by ") + QString(100, u'm') + u'…')},
    };
    for (const auto &row : rows) {
        const QString text = posterText(row.name, QDate(2026, 11, 14));
        EXPECT_TRUE(text.contains(row.shown)) << text.toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral("  "))) << text.toStdString();
    }
}

/// What a line covers, bearings aside.
QRectF boxOf(const FontQuizPosterPage::Text &line)
{
    const QFontMetricsF metrics(line.font);
    return {line.origin.x(), line.origin.y() - metrics.capHeight(),
            metrics.horizontalAdvance(line.text), metrics.capHeight()};
}

/// Within the page, beside the buttons, and apart from each other.
void expectRoomForEach(const FontQuizPosterPage &page, const QRectF &buttons)
{
    const QRectF paper = QRectF({}, page.size).adjusted(20, 40, -20, -20);
    for (size_t i = 0; i < page.texts.size(); ++i) {
        SCOPED_TRACE(page.texts[i].text.toStdString());
        const QRectF box = boxOf(page.texts[i]);
        EXPECT_TRUE(paper.contains(box)) << box.left() << ' ' << box.top() << ' ' << box.right();
        EXPECT_FALSE(box.intersects(buttons));
        for (size_t other = 0; other < i; ++other)
            EXPECT_FALSE(box.intersects(boxOf(page.texts[other])));
    }
}

/// Laid out as the screen shows it, beside the buttons where they really stand.
void expectRoomOn(const QSize &size, const FontQuizCounts &counts, const QString &name)
{
    const QDate date(2026, 9, 23);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        FontQuizCompletionPosterView view;
        view.setLayoutDirection(direction);
        view.resize(size);
        view.setContent(counts, date, name);
        view.show();
        SCOPED_TRACE(testing::Message() << size.width() << ' ' << counts.total << ' ' << direction);
        QRect buttons;
        for (const auto *button : view.findChildren<QAbstractButton *>())
            buttons |= button->geometry();
        EXPECT_TRUE(view.rect().contains(buttons));
        expectRoomForEach(fontQuizPosterPage(counts, posterText(name, date),
                                             {size, false, direction, buttons.size(), 1}),
                          buttons);
    }
}

TEST(QuizPosterTest, everythingFitsAndNothingOverlaps)
{
    setReducedMotionOverride(true);
    const FontQuizCounts many{20'000, 12'000, 5'000, 1'000, 500, 1'000, 500};
    for (const QSize size : {QSize(640, 480), QSize(960, 800), QSize(1720, 920), QSize(2560, 1440),
                             QSize(1080, 1440)}) {
        for (const FontQuizCounts &counts : {FontQuizCounts(), kSorted, many}) {
            expectRoomOn(size, counts, kName);
            expectRoomOn(size, counts, QString(300, u'm'));
        }
    }
}

TEST(QuizPosterTest, numbersComeOneAfterTheOther)
{
    const auto shown = [](double progress) {
        std::vector<int> numbers;
        for (const FontQuizNumberLayer &layer : fontQuizNumberLayers(kSorted, progress))
            numbers.push_back(layer.shown);
        return numbers;
    };
    EXPECT_EQ(shown(0), std::vector<int>(7, 0));
    EXPECT_EQ(shown(1), (std::vector{318, 121, 96, 48, 11, 27, 15}));
    const auto layers = fontQuizNumberLayers({600, 100, 100, 100, 100, 100, 100}, 0.55);
    for (size_t i = 2; i < layers.size(); ++i)
        EXPECT_GT(layers[i - 1].shown, layers[i].shown) << i;
}

class QuizPoster : public testing::Test
{
protected:
    ~QuizPoster() override
    {
        setDarkDesktopOverride(false);
        setReducedMotionOverride(true);
    }

    void show(bool isReduced)
    {
        setReducedMotionOverride(isReduced);
        view.resize(960, 800);
        view.setContent(kSorted, QDate(2026, 11, 14), kName);
        view.show();
    }
    QAbstractButton *button(const char *name)
    {
        return view.findChild<QAbstractButton *>(QLatin1String(name));
    }
    /// Presses the button that saves, and answers with that file.
    void saveAs(const FilePath &file)
    {
        button("QuizPoster.Save")->setFocus();
        QTest::keyClick(view.focusWidget(), Qt::Key_Return);
        auto *dialog = view.findChild<QFileDialog *>(QStringLiteral("SaveDialog"));
        ASSERT_NE(dialog, nullptr);
        dialog->selectFile(file.displayText());
        QMetaObject::invokeMethod(dialog, "accept");
        ASSERT_TRUE(waitUntil([&] { return !view.findChild<QFileDialog *>(); }));
        ASSERT_TRUE(waitUntil([this] { return view.isSettled(); }));
    }

    FontQuizCompletionPosterView view;
};

TEST_F(QuizPoster, BloomsOnceAndAtOnceWhereNothingIsToMove)
{
    show(true);
    EXPECT_TRUE(view.isSettled());
    const QImage whole = view.grab().toImage();
    view.hide();
    show(false);
    EXPECT_FALSE(view.isSettled());
    auto *bloom = view.findChild<QVariantAnimation *>(QStringLiteral("quizPosterBloom"));
    bloom->pause();
    bloom->setCurrentTime(bloom->duration() / 3);
    const QImage half = view.grab().toImage();
    EXPECT_NE(half, whole);
    bloom->resume();
    bloom->setCurrentTime(bloom->duration());
    EXPECT_TRUE(view.isSettled());
    EXPECT_EQ(view.grab().toImage(), whole);
    view.hide();
    view.show();
    EXPECT_TRUE(view.isSettled()) << "it has been seen";
    setDarkDesktopOverride(true);
    EXPECT_LT(view.grab().toImage().pixelColor(2, 2).lightness(), 60);
}

TEST_F(QuizPoster, IsKeptAsAPictureByKeyboard)
{
    show(true);
    const FilePath folder = test::makeCaseFolder();
    saveAs(folder.child("a.png"));
    EXPECT_EQ(QImage(folder.child("a.png").displayText()).size(), QSize(2160, 2880));
    saveAs(folder.child("a.svg"));
    const QByteArray svg = test::readFile(folder.child("a.svg"));
    EXPECT_FALSE(svg.contains("<text") || svg.contains("font-family"));
    QSvgRenderer renderer(svg);
    QImage drawn(1080, 1440, QImage::Format_RGB32);
    QPainter painter(&drawn);
    renderer.render(&painter);
    painter.end();
    int orange = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x)
            orange += drawn.pixelColor(x, y) == QColor(0xf2, 0x6b, 0x3a) ? 1 : 0;
    }
    EXPECT_GT(orange, 500) << "the total's first band";
    saveAs(folder.child("a.pdf"));
    const QByteArray pdf = test::readFile(folder.child("a.pdf"));
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 1080"));
    EXPECT_FALSE(pdf.contains("/FontFile") || pdf.contains("/BaseFont"));

    auto *problem = view.findChild<QLabel *>(QStringLiteral("QuizPoster.Problem"));
    EXPECT_TRUE(problem->isHidden());
    saveAs(folder.child("a.gif"));
    EXPECT_THAT(problem->text().toStdString(), testing::HasSubstr("ends in .png"));
    EXPECT_FALSE(problem->isHidden());
    saveAs(folder.child("b.png"));
    EXPECT_TRUE(problem->isHidden());
}

TEST_F(QuizPoster, EndsByItsButton)
{
    show(true);
    QSignalSpy done(&view, &FontQuizCompletionPosterView::doneWanted);
    view.focusPage();
    EXPECT_EQ(view.focusWidget(), button("QuizPoster.Done"));
    QTest::keyClick(view.focusWidget(), Qt::Key_Return);
    QTest::mouseClick(button("QuizPoster.Done"), Qt::LeftButton);
    EXPECT_EQ(done.count(), 2);
    for (const char *said : {"318", "Script: 27", "Decorative: 15"})
        EXPECT_THAT(view.accessibleName().toStdString(), testing::HasSubstr(said));
    EXPECT_EQ(view.accessibleDescription(), posterText(kName, QDate(2026, 11, 14)));
}

} // namespace
} // namespace lorva
