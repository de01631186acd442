// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/detail/DetailPreviewView.h"

#include "PreviewFonts.h"
#include "support/QtPrinters.h"
#include "support/QtTestMacros.h"
#include "support/Waiting.h"
#include "ui/browser/InlineEditHandler.h"
#include "ui/FontFamilyPasteboard.h"
#include "ui/style/Palette.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTextCharFormat>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::ElementsAre;

// Letters of the built font are 24 points wide at size 40.
constexpr int kAdvance = 24;
// Before their ink, which begins at the view's edge.
constexpr int kBearing = 2;
constexpr int kWidth = 480;

QString fromUtf8(const char *text)
{
    return QString::fromUtf8(text);
}

class DetailPreview : public testing::Test
{
protected:
    DetailPreview()
    {
        specimen.text = QStringLiteral("Some text");
        specimen.font = test::fontWith(U"Sometxabcdefgh \u05D0\u05D1\u05D2\u3042");
        QObject::connect(&view, &DetailPreviewView::textEdited, [this](const QString &text) {
            told << text;
            // As the model does: what was typed comes back.
            specimen.text = text;
            view.apply(specimen);
        });
        QObject::connect(&view, &DetailPreviewView::heightChanged, [this] { ++heightChanges; });
        QObject::connect(&view, &DetailPreviewView::revealWanted,
                         [this](const QRect &rect) { revealed = rect; });
        view.setParent(&window);
        view.apply(specimen);
        window.resize(kWidth, 600);
        view.resize(kWidth, view.heightFor(kWidth));
        window.show();
        window.activateWindow();
        view.setFocus();
        test::waitUntil([this] { return view.hasFocus(); });
    }
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view, which, modifiers);
    }
    void type(const QString &text) { QTest::keyClicks(&view, text); }
    void show(const QString &text)
    {
        specimen.text = text;
        view.apply(specimen);
    }
    void compose(const QString &preedit, const QString &commit = {},
                 const QList<QInputMethodEvent::Attribute> &attributes = {})
    {
        QInputMethodEvent event(preedit, attributes);
        event.setCommitString(commit);
        QApplication::sendEvent(&view, &event);
    }
    QPoint cell(int column, int line = 0) const
    {
        const QRect first = view.caretRectAt({0, false});
        return {column * kAdvance + kAdvance / 3, first.top() + first.height() * line + 10};
    }
    QString selected() const { return view.editor().selectedText(); }
    int caret() const { return view.editor().caret().index; }
    QImage picture() { return view.grab().toImage(); }

    QWidget window;
    DetailPreviewView view;
    DetailSpecimen specimen;
    QStringList told;
    int heightChanges = 0;
    QRect revealed;
};

TEST_F(DetailPreview, KeysDoWhatTheyDoInAnyTextField)
{
    constexpr auto ctrl = Qt::ControlModifier;
    constexpr auto shift = Qt::ShiftModifier;
    struct Press
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    const struct
    {
        const char *what;
        QString text;
        std::vector<Press> keys;
        QString after;
        QString selected;
        int caret;
    } rows[]{
        {"erase a cluster", fromUtf8("ab\u0301"), {{Qt::Key_Backspace, {}}}, "a", "", 1},
        {"erase on", "abc", {{Qt::Key_Home, {}}, {Qt::Key_Delete, {}}}, "bc", "", 0},
        {"erase a word", "abc def", {{Qt::Key_Backspace, ctrl}}, "abc ", "", 4},
        {"erase the next word",
         "abc def",
         {{Qt::Key_Home, ctrl}, {Qt::Key_Delete, ctrl}},
         "def",
         "",
         0},
        {"erase what is selected",
         "abc",
         {{Qt::Key_Left, shift}, {Qt::Key_Left, shift}, {Qt::Key_Backspace, {}}},
         "a",
         "",
         1},
        {"select a word", "abc def", {{Qt::Key_Left, ctrl | shift}}, "abc def", "def", 4},
        {"arrows end a selection", "abc", {{Qt::Key_A, ctrl}, {Qt::Key_Left, {}}}, "abc", "", 0},
        {"at its other side", "abc", {{Qt::Key_A, ctrl}, {Qt::Key_Right, {}}}, "abc", "", 3},
        {"to the line's end", "abc\nd", {{Qt::Key_Home, ctrl}, {Qt::Key_End, {}}}, "abc\nd", "", 3},
        {"select a line", "abc\ndef", {{Qt::Key_Home, shift}}, "abc\ndef", "def", 4},
        {"up", "abc\nde", {{Qt::Key_Up, {}}}, "abc\nde", "", 2},
        {"Return", "ab", {{Qt::Key_Left, {}}, {Qt::Key_Return, {}}}, "a\nb", "", 2},
        {"cut and paste",
         "abc",
         {{Qt::Key_Left, shift}, {Qt::Key_X, ctrl}, {Qt::Key_Home, {}}, {Qt::Key_V, ctrl}},
         "cab",
         "",
         1},
        {"undo and redo",
         "abc",
         {{Qt::Key_D, {}}, {Qt::Key_E, {}}, {Qt::Key_Z, ctrl}, {Qt::Key_Z, ctrl | shift}},
         "abcde",
         "",
         5},
        {"redo by its other name",
         "abc",
         {{Qt::Key_D, {}}, {Qt::Key_Z, ctrl}, {Qt::Key_Y, ctrl}},
         "abcd",
         "",
         4},
        {"through two directions",
         fromUtf8("ab אב"),
         {{Qt::Key_Home, {}}, {Qt::Key_End, {}}},
         fromUtf8("ab אב"),
         "",
         5},
    };
    for (const auto &row : rows) {
        show(row.text);
        for (const Press &press : row.keys)
            QTest::keyClick(&view, press.key, press.modifiers);
        EXPECT_EQ(view.text(), row.after) << row.what;
        EXPECT_EQ(selected(), row.selected) << row.what;
        EXPECT_EQ(caret(), row.caret) << row.what;
    }
}

TEST_F(DetailPreview, TakesItsKeysFromTheWindowAndLeavesTheOthers)
{
    const struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        QString text;
        bool isTaken;
    } rows[]{
        {Qt::Key_Z, Qt::ControlModifier, "\x1A", true},
        {Qt::Key_C, Qt::ControlModifier, "\x03", true},
        {Qt::Key_A, Qt::NoModifier, "a", true},
        {Qt::Key_Space, Qt::NoModifier, " ", true},
        {Qt::Key_Escape, Qt::NoModifier, "\x1B", true},
        {Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@", true},
        {Qt::Key_F, Qt::ControlModifier, "\x06", false},
        {Qt::Key_PageDown, Qt::NoModifier, "", false},
        {Qt::Key_Left, Qt::AltModifier, "", false},
        {Qt::Key_Tab, Qt::NoModifier, "\t", false},
    };
    for (const auto &row : rows) {
        QKeyEvent event(QEvent::ShortcutOverride, row.key, row.modifiers, row.text);
        event.ignore();
        QApplication::sendEvent(&view, &event);
        EXPECT_EQ(event.isAccepted(), row.isTaken)
            << QKeySequence(row.key).toString().toStdString();
    }
}

TEST_F(DetailPreview, TellsWhatWasTypedAndKeepsCaretAndHistoryWhenItComesBack)
{
    key(Qt::Key_Home);
    type("ab");
    EXPECT_THAT(told, ElementsAre(QStringLiteral("aSome text"), QStringLiteral("abSome text")));
    EXPECT_EQ(caret(), 2);
    specimen.font = specimen.font.withPointSize(60);
    specimen.foreground = Qt::red;
    view.apply(specimen);
    EXPECT_EQ(caret(), 2);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(view.text(), QStringLiteral("Some text")) << "one run of typing";
    told.clear();
    show("other");
    EXPECT_EQ(view.text(), QStringLiteral("other"));
    EXPECT_FALSE(view.canUndo());
    EXPECT_EQ(told, QStringList()) << "nobody typed that";
}

TEST_F(DetailPreview, GrowsWithItsLinesAndAsksForItsCaretToBeSeen)
{
    const int before = view.heightFor(kWidth);
    key(Qt::Key_Return);
    EXPECT_EQ(heightChanges, 1);
    EXPECT_GT(view.heightFor(kWidth), before);
    EXPECT_GE(revealed.top(), before / 2);
    type("a");
    EXPECT_EQ(heightChanges, 1);
    show(QString(40, QLatin1Char('a')));
    EXPECT_GT(view.heightFor(kWidth / 4), view.heightFor(kWidth)) << "wrapped";
}

TEST_F(DetailPreview, ThePointerSelects)
{
    show("abc def\nabc");
    QTest::mouseClick(&view, Qt::LeftButton, {}, cell(1));
    EXPECT_EQ(caret(), 1);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ShiftModifier, cell(4));
    EXPECT_EQ(selected(), QStringLiteral("bc "));

    QTest::mousePress(&view, Qt::LeftButton, {}, cell(5));
    QTest::mouseMove(&view, cell(1, 1));
    QMouseEvent move(QEvent::MouseMove, cell(1, 1), view.mapToGlobal(cell(1, 1)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, cell(1, 1));
    EXPECT_EQ(selected(), QStringLiteral("ef\na"));

    const auto doubleClick = [this](QPoint at) {
        QMouseEvent event(QEvent::MouseButtonDblClick, at, view.mapToGlobal(at), Qt::LeftButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(&view, &event);
    };
    doubleClick(cell(5));
    EXPECT_EQ(selected(), QStringLiteral("def"));
    QMouseEvent back(QEvent::MouseMove, cell(1), view.mapToGlobal(cell(1)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&view, &back);
    EXPECT_EQ(selected(), QStringLiteral("abc def")) << "word by word, the first one kept";
    QTest::mouseRelease(&view, Qt::LeftButton, {}, cell(1));

    QApplication::setDoubleClickInterval(60'000);
    doubleClick(cell(1));
    QTest::mousePress(&view, Qt::LeftButton, {}, cell(1));
    EXPECT_EQ(selected(), QStringLiteral("abc def")) << "the third click takes the paragraph";
}

TEST_F(DetailPreview, AnInputMethodComposesInPlace)
{
    show("ab");
    key(Qt::Key_Left);
    const QRect before = view.caretRectAt({2, true});
    QTextCharFormat marked;
    marked.setBackground(Qt::blue);
    compose(fromUtf8("ああ"), {},
            {{QInputMethodEvent::TextFormat, 0, 1, marked},
             {QInputMethodEvent::Cursor, 1, 1, QVariant()}});
    EXPECT_EQ(view.text(), QStringLiteral("ab"));
    EXPECT_EQ(told, QStringList()) << "nothing of that is final";
    EXPECT_EQ(view.caretRectAt({2, true}).x(), before.x() + 2 * kAdvance)
        << "what follows moves on";
    EXPECT_EQ(view.inputMethodQuery(Qt::ImCursorRectangle).toRectF().center().x(),
              2 * kAdvance - kBearing);
    EXPECT_EQ(view.inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("ab"));
    view.apply(specimen);
    compose({}, fromUtf8("あ"));
    EXPECT_THAT(told, ElementsAre(fromUtf8("aあb")));
    EXPECT_EQ(caret(), 2);

    key(Qt::Key_A, Qt::ControlModifier);
    compose("x");
    EXPECT_EQ(view.text(), QString()) << "what was selected makes place";
    compose({});
    EXPECT_EQ(told.back(), QString());
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(view.text(), fromUtf8("aあb"));

    QInputMethodEvent replacing;
    replacing.setCommitString("e", -1, 1);
    key(Qt::Key_End);
    QApplication::sendEvent(&view, &replacing);
    EXPECT_EQ(view.text(), fromUtf8("aあe"));
    compose("zz");
    view.clearFocus();
    EXPECT_EQ(view.text(), fromUtf8("aあe")) << "given up";
    EXPECT_EQ(view.caretRectAt({3, true}).x(), 3 * kAdvance - kBearing - 1);
}

TEST_F(DetailPreview, TheClipboardBringsPlainTextWithinBounds)
{
    show("a");
    QApplication::clipboard()->setText(QString("b\r\nc\x01") + QChar(0xD800) + "\td");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(view.text(), QStringLiteral("ab\nc d"));
    QApplication::clipboard()->setText(QString(9000, QLatin1Char('m')));
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(view.text().size(), InlineEditHandler::kMostCharacters);
    EXPECT_EQ(caret(), InlineEditHandler::kMostCharacters);
    EXPECT_FALSE(picture().isNull());
}

TEST_F(DetailPreview, TakesTextThatIsDroppedButNoFamilies)
{
    const auto drop = [this](QMimeData &data) {
        QDragEnterEvent enter(cell(2), Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(&view, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent dropped(cell(2), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&view, &dropped);
        return true;
    };
    show("abcd");
    QMimeData text;
    text.setText("ef");
    EXPECT_TRUE(drop(text));
    EXPECT_EQ(view.text(), QStringLiteral("abefcd"));
    const auto families = makeFontFamilyMimeData({"Foo"}, {});
    families->setText("Foo");
    EXPECT_FALSE(drop(*families));
}

TEST_F(DetailPreview, TheMenuOffersWhatCanBeDone)
{
    const auto open = [this] {
        const QPoint at = cell(1);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view.mapToGlobal(at));
        QApplication::sendEvent(&view, &event);
        return view.findChild<QMenu *>(QStringLiteral("previewMenu"));
    };
    const auto enabled = [](const QMenu *menu) {
        QStringList names;
        for (const QAction *action : menu->actions())
            if (action->isEnabled() && !action->isSeparator())
                names << action->objectName();
        return names;
    };
    QApplication::clipboard()->clear();
    QMenu *menu = open();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(enabled(menu), QStringList{"previewSelectAll"});
    EXPECT_TRUE(view.isEditing()) << "the keyboard comes back";
    menu->findChild<QAction *>(QStringLiteral("previewSelectAll"))->trigger();
    delete menu;
    EXPECT_EQ(selected(), QStringLiteral("Some text"));
    menu = open();
    EXPECT_EQ(enabled(menu),
              (QStringList{"previewCut", "previewCopy", "previewDelete", "previewSelectAll"}));
    menu->findChild<QAction *>(QStringLiteral("previewDelete"))->trigger();
    EXPECT_EQ(view.text(), QString());
    EXPECT_TRUE(view.canUndo());
}

TEST_F(DetailPreview, EscapeGivesUpTheKeyboardAndTellsIt)
{
    int changes = 0;
    QObject::connect(&view, &DetailPreviewView::editingChanged, [&] { ++changes; });
    EXPECT_TRUE(view.isEditing());
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
    QApplication::sendEvent(&view, &escape);
    EXPECT_TRUE(escape.isAccepted()) << "the page does not close at once";
    EXPECT_FALSE(view.isEditing());
    EXPECT_EQ(changes, 1);
    QLineEdit other(&window);
    other.show();
    view.setFocus();
    EXPECT_TRUE(view.isEditing());
    other.setFocus();
    EXPECT_FALSE(view.isEditing());
    EXPECT_EQ(changes, 3);
}

TEST_F(DetailPreview, DrawsCaretAndSelectionOnlyWhereTheyBelong)
{
    specimen.background = Qt::white;
    show("abc");
    const auto has = [](const QImage &image, const QColor &color) {
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).rgb() == color.rgb())
                    return true;
        return false;
    };
    const auto drawn = [this] {
        QImage image(view.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        view.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    };
    const QColor caretInk =
        contrastRatio(accentColor(), Qt::white) >= 3 ? accentColor() : Qt::black;
    EXPECT_TRUE(has(drawn(), caretInk));
    const QRect caretAt = view.caretRectAt({3, true});
    EXPECT_EQ(drawn().pixelColor(caretAt.center()).rgb(), caretInk.rgb());
    key(Qt::Key_A, Qt::ControlModifier);
    const QRgb ground = drawn().pixel(4, caretAt.top() + 1);
    EXPECT_NE(ground, QColor(Qt::white).rgb()) << "selected";
    view.clearFocus();
    const QRgb quiet = drawn().pixel(4, caretAt.top() + 1);
    EXPECT_NE(quiet, ground);
    EXPECT_NE(quiet, QColor(Qt::white).rgb());
    EXPECT_FALSE(has(drawn(), accentColor())) << "no caret without the keyboard";
    specimen.foreground = QColor(200, 0, 0);
    view.apply(specimen);
    EXPECT_TRUE(has(drawn(), QColor(200, 0, 0)));
}

TEST_F(DetailPreview, WithoutAFontItStillTakesWhatIsTyped)
{
    specimen.font = Font();
    show("a");
    type("bc");
    key(Qt::Key_Left);
    key(Qt::Key_Backspace);
    key(Qt::Key_Home);
    EXPECT_GT(view.heightFor(kWidth), 0);
    EXPECT_FALSE(picture().isNull());
    EXPECT_EQ(view.text().size(), 2);
    // A file that is removed while it is shown.
    const FilePath file = test::writeFile(test::TestHome::instance().makeFolder("gone"), "gone.ttf",
                                          test::FontBuilder().build());
    specimen.font = test::fontFromFile(file);
    std::remove(file.bytes().constData());
    show("abc");
    type("d");
    EXPECT_EQ(view.text(), QStringLiteral("abcd"));
    EXPECT_FALSE(picture().isNull());
}

TEST_F(DetailPreview, IsATextToAssistiveTechnology)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->role(), QAccessible::EditableText);
    EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("Preview"));
    EXPECT_EQ(interface->text(QAccessible::Value), QStringLiteral("Some text"));
    EXPECT_TRUE(interface->state().editable && interface->state().multiLine);
    QAccessibleTextInterface *text = interface->textInterface();
    QAccessibleEditableTextInterface *editing = interface->editableTextInterface();
    ASSERT_TRUE(text && editing);
    EXPECT_EQ(text->text(0, 4), QStringLiteral("Some"));
    text->setSelection(0, 0, 4);
    EXPECT_EQ(selected(), QStringLiteral("Some"));
    EXPECT_EQ(text->cursorPosition(), 4);
    const QRect letter = text->characterRect(2);
    EXPECT_NEAR(letter.width(), kAdvance, 4);
    EXPECT_EQ(text->offsetAtPoint(letter.center() - QPoint(4, 0)), 2);
    editing->replaceText(0, 4, "ab");
    EXPECT_THAT(told, ElementsAre(QStringLiteral("ab text")));
    EXPECT_TRUE(view.canUndo());
}

TEST_F(DetailPreview, AnotherWidthIsPaintedAnew)
{
    window.setFocus();
    view.clearFocus();
    show(fromUtf8("\u05D0\u05D1\u05D2"));
    picture();
    view.resize(kWidth / 2, view.height());
    const QImage narrower = picture();
    view.apply(specimen);
    EXPECT_TRUE(narrower == picture()) << "it stands at the other edge now";
}

} // namespace
} // namespace lorva
