// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/DisplayControls.h"

#include "support/AdverseSystem.h"
#include "support/Waiting.h"
#include "ui/display/BackgroundImages.h"
#include "ui/display/BackgroundImageStore.h"
#include "ui/display/ColorChooser.h"
#include "ui/display/ImageIntake.h"
#include "ui/display/ImageThumbnail.h"
#include "ui/display/SampleTexts.h"
#include "ui/FontFamilyPasteboard.h"
#include "ui/style/LineField.h"
#include "ui/style/Palette.h"
#include "ui/style/PointSlider.h"

#include <QAccessible>
#include <QBuffer>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QScrollArea>
#include <QTest>
#include <QUrl>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace lorva {
namespace {

using test::waitUntil;

/// Does what the window does: notes the wish, changes the state, hands it back.
class Wishes : public DisplayControlsDelegate
{
public:
    QStringList told;
    DisplayControlsState state;
    DisplayPanel *panel = nullptr;
    QString problem;

    QString note(const QString &what)
    {
        told.append(what);
        if (panel)
            panel->apply(state);
        return problem;
    }
    void displayPointSizeChanged(double) override { }
    void displayFontWeightChanged(int) override { }
    void displayColorModeChanged(ColorMode) override { }
    void displayCustomForegroundChanged(const QString &hex) override
    {
        state.values.customForegroundColorHex = hex;
        note(QLatin1String("text ") + hex);
    }
    void displayCustomBackgroundChanged(const QString &hex) override
    {
        state.values.customBackgroundColorHex = hex;
        note(QLatin1String("ground ") + hex);
    }
    void displayBackgroundImageChosen(const QString &id) override
    {
        state.values.colorMode = ColorMode::image;
        state.values.backgroundImageID = id;
        state.values.backgroundImageUserFilename.reset();
        note(QLatin1String("image ") + id);
    }
    void displayUserImageChosen(const QString &filename) override
    {
        state.values.colorMode = ColorMode::image;
        state.values.backgroundImageUserFilename = filename;
        note(QLatin1String("user ") + filename);
    }
    void displayUserImageAdded(const QByteArray &bytes, Answer answer) override
    {
        answer(note(QStringLiteral("added %1").arg(bytes.size())));
    }
    void displayUserImageRemoved(const QString &filename) override
    {
        state.userImages.removeAll(filename);
        note(QLatin1String("removed ") + filename);
    }
    void displayImageForegroundChanged(const QString &hex) override
    {
        state.values.imageForegroundColorHex = hex;
        note(QLatin1String("over ") + hex);
    }
    void displayLogoChosen(const QByteArray &bytes, Answer answer) override
    {
        answer(note(QStringLiteral("logo %1").arg(bytes.size())));
    }
    void displayLogoSizeRatioChanged(double ratio) override
    {
        note(QStringLiteral("size %1").arg(ratio));
    }
    void displayLogoSpacingChanged(double spacing) override
    {
        note(QStringLiteral("spacing %1").arg(spacing));
    }
    void displayLogoVisibilityChanged(bool isVisible) override
    {
        note(QStringLiteral("visible %1").arg(isVisible));
    }
    void displaySampleTextChanged(const QString &text) override
    {
        state.values.sampleText = text;
        note(QLatin1String("sample ") + text);
    }
    void displayReset() override { note(QStringLiteral("reset")); }
    void displayHoldChanged(bool isHeld) override
    {
        note(isHeld ? QStringLiteral("held") : QStringLiteral("let go"));
    }
};

struct DisplayPanels : ::testing::Test
{
    Wishes wishes;
    std::unique_ptr<DisplayPanel> panel;

    void open(DisplayPanel *made)
    {
        panel.reset(made);
        wishes.panel = made;
        made->setDelegate(&wishes);
        made->apply(wishes.state);
        made->show();
        made->activateWindow();
        ASSERT_TRUE(waitUntil([made] { return made->isActiveWindow(); }));
        // Places what is laid out.
        made->grab();
    }
    ~DisplayPanels() override { wishes.panel = nullptr; }

    template <class Part = QWidget>
    Part *find(const char *name)
    {
        Part *part = panel->findChild<Part *>(QString::fromUtf8(name));
        EXPECT_TRUE(part) << name;
        return part;
    }
    QStringList taken() { return std::exchange(wishes.told, {}); }
    void drop(const QMimeData &data)
    {
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.setAccepted(false);
        QCoreApplication::sendEvent(panel.get(), &enter);
        QDropEvent event(QPointF(20, 20), Qt::CopyAction, &data, Qt::LeftButton, {});
        if (enter.isAccepted())
            QCoreApplication::sendEvent(panel.get(), &event);
    }
    bool says(const char *label, const QString &words)
    {
        auto *place = find<QLabel>(label);
        return waitUntil([&] { return place->isVisible() && place->text().contains(words); });
    }
};

TEST_F(DisplayPanels, TypedColoursAreUnderstood)
{
    const std::pair<const char *, const char *> cases[]{
        {"#abc", "#AABBCC"},   {"abcdef", "#ABCDEF"}, {" # 12 34 5f\t", "#12345F"},
        {"#12345", nullptr},   {"", nullptr},         {"red", nullptr},
        {"#1234567", nullptr}, {"##123", nullptr},    {"rgb(1,2,3)", nullptr},
    };
    for (const auto &[typed, hex] : cases)
        EXPECT_EQ(typedColorHex(QString::fromUtf8(typed)).value_or(QString()),
                  QString::fromUtf8(hex))
            << typed;
}

TEST_F(DisplayPanels, ColoursAreChosenByDigitsPointerAndKeys)
{
    open(makeColorPanel(nullptr));
    auto *digits = find<LineField>("colorDigits");
    digits->setFocus();
    digits->selectAll();
    QTest::keyClicks(digits, QStringLiteral("#0a0b0c"));
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("ground #0A0B0C")));
    digits->selectAll();
    QTest::keyClicks(digits, QStringLiteral("no colour"));
    QTest::keyClick(digits, Qt::Key_Return);
    EXPECT_TRUE(taken().isEmpty());
    EXPECT_EQ(digits->text(), QStringLiteral("#0A0B0C"));

    auto *field = find<ColorSurface>("saturationField");
    QTest::mousePress(field, Qt::LeftButton, {}, QPoint(field->width() - 1, 0));
    QTest::mouseMove(field, QPoint(field->width() + 50, -50));
    QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(field->width() - 1, 0));
    const QStringList dragged = taken();
    EXPECT_EQ(dragged.first(), QStringLiteral("held"));
    EXPECT_EQ(dragged.last(), QStringLiteral("let go"));
    EXPECT_EQ(field->hsv().saturation, 1);
    EXPECT_EQ(field->hsv().value, 1);

    auto *hue = find<ColorSurface>("hueBar");
    const int before = hue->accessibleValue();
    QTest::keyClick(hue, Qt::Key_Right);
    EXPECT_EQ(hue->accessibleValue(), before + 1);
    EXPECT_EQ(taken().size(), 1);
    // Through white and back, the hue is not lost.
    QTest::keyClick(field, Qt::Key_Left);
    digits->selectAll();
    QTest::keyClicks(digits, QStringLiteral("ffffff"));
    EXPECT_EQ(hue->accessibleValue(), before + 1);
}

TEST_F(DisplayPanels, ColoursAreSlidersToAssistiveTechnology)
{
    open(makeColorPanel(nullptr));
    for (const char *name : {"saturationField", "hueBar"}) {
        QAccessibleInterface *slider = QAccessible::queryAccessibleInterface(find(name));
        ASSERT_TRUE(slider && slider->valueInterface());
        EXPECT_EQ(slider->role(), QAccessible::Slider);
        slider->valueInterface()->setCurrentValue(50);
        EXPECT_EQ(slider->valueInterface()->currentValue().toInt(), 50);
        EXPECT_TRUE(slider->text(QAccessible::Value).contains(QLatin1String("50")));
        EXPECT_FALSE(slider->text(QAccessible::Name).isEmpty());
    }
}

TEST_F(DisplayPanels, PairsAndSwapSetBothColours)
{
    wishes.state.values.customForegroundColorHex = QStringLiteral("#FFFFFF");
    wishes.state.values.customBackgroundColorHex = QStringLiteral("#FEFEFE");
    open(makeColorPanel(nullptr));
    EXPECT_EQ(find<QLabel>("contrastLabel")->text(), QStringLiteral("Low contrast 1.0:1"));
    QTest::mouseClick(find("pairForest"), Qt::LeftButton);
    EXPECT_THAT(
        taken(),
        ::testing::ElementsAre(QStringLiteral("text #F1E9D2"), QStringLiteral("ground #1E3B2C")));
    EXPECT_TRUE(find<QAbstractButton>("pairForest")->isChecked());
    QTest::mouseClick(find("swapColors"), Qt::LeftButton);
    EXPECT_THAT(
        taken(),
        ::testing::ElementsAre(QStringLiteral("text #1E3B2C"), QStringLiteral("ground #F1E9D2")));
    EXPECT_FALSE(find<QAbstractButton>("pairForest")->isChecked());
    EXPECT_TRUE(find<QLabel>("contrastLabel")->text().startsWith(QLatin1String("Contrast 10.0:1")));
    // The other part's colour is what is changed now.
    QWidget *parts = find("colorParts");
    QTest::mouseClick(parts->findChildren<QAbstractButton *>().first(), Qt::LeftButton);
    QTest::keyClick(find("hueBar"), Qt::Key_Right);
    EXPECT_TRUE(taken().value(0).startsWith(QLatin1String("text ")));
}

TEST_F(DisplayPanels, EveryReadyPairCanBeRead)
{
    open(makeColorPanel(nullptr));
    int pairs = 0;
    for (auto *chip :
         panel->findChildren<QAbstractButton *>(QRegularExpression(QStringLiteral("^pair")))) {
        QTest::mouseClick(chip, Qt::LeftButton);
        EXPECT_GE(contrastRatio(QColor(wishes.state.values.customForegroundColorHex),
                                QColor(wishes.state.values.customBackgroundColorHex)),
                  4.5)
            << chip->objectName().toStdString();
        ++pairs;
    }
    EXPECT_GE(pairs, 6);
}

TEST_F(DisplayPanels, BackgroundsAreChosenByClickAndKeys)
{
    open(makeBackgroundImagePanel(nullptr));
    QTest::mouseClick(find("background:dusk"), Qt::LeftButton);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("image dusk")));
    auto *dusk = find<QAbstractButton>("background:dusk");
    EXPECT_TRUE(dusk->isChecked());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(dusk)->role(), QAccessible::RadioButton);
    dusk->setFocus(Qt::TabFocusReason);
    QTest::keyClick(dusk, Qt::Key_Right);
    QTest::keyClick(panel->focusWidget(), Qt::Key_Down);
    QTest::keyClick(panel->focusWidget(), Qt::Key_Space);
    EXPECT_THAT(taken(),
                ::testing::ElementsAre(QLatin1String("image ")
                                       + QLatin1String(builtInBackgroundImages()[4].id)));
    QTest::mouseClick(find("imageTextBlack"), Qt::LeftButton);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("over #000000")));
    QTest::mouseClick(find("imageTextCustom"), Qt::LeftButton);
    find<LineField>("colorDigits")->setFocus();
    find<LineField>("colorDigits")->selectAll();
    QTest::keyClicks(find("colorDigits"), QStringLiteral("#1234ab"));
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("over #1234AB")));
}

TEST_F(DisplayPanels, BlackOrWhiteCanBeReadOnEveryBackground)
{
    for (const BackgroundImage &image : builtInBackgroundImages()) {
        const QColor ground = averageBackgroundColor(QLatin1String(image.id));
        EXPECT_GE(contrastRatio(contrastingNeutral(ground), ground), 4.5) << image.id;
    }
}

TEST_F(DisplayPanels, OwnBackgroundsAreAddedShownAndRemoved)
{
    const FilePath folder = test::makeCaseFolder();
    auto store = std::make_shared<BackgroundImageStore>(folder.child("store"));
    QImage red(60, 60, QImage::Format_RGB32);
    red.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    red.save(&buffer, "png");
    const QString name = store->add(bytes).value();
    wishes.state.userImages = {name};
    open(makeBackgroundImagePanel(nullptr, store));
    const QByteArray tileName = "background:" + name.toUtf8();
    auto *tile = find<ImageThumbnail>(tileName.constData());
    EXPECT_TRUE(
        waitUntil([&] { return tile->grab().toImage().pixelColor(40, 28) == QColor(Qt::red); }));
    QTest::mouseClick(tile, Qt::LeftButton);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QLatin1String("user ") + name));
    tile->setFocus(Qt::TabFocusReason);
    QTest::keyClick(tile, Qt::Key_Delete);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QLatin1String("removed ") + name));
    EXPECT_EQ(panel->focusWidget()->objectName(), QStringLiteral("background:add"));

    ImageIntake::setNextChosenFile(test::writeFile(folder, "new.png", bytes));
    QTest::mouseClick(find("background:add"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return !wishes.told.isEmpty(); }));
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("added %1").arg(bytes.size())));
}

TEST_F(DisplayPanels, FilesThatCannotBeImagesAreExplained)
{
    const FilePath folder = test::makeCaseFolder();
    const FilePath pipe = folder.child("pipe.png");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const FilePath huge = test::writeFile(folder, "huge.png", "x");
    ASSERT_EQ(::truncate(huge.c_str(), 20'000'000), 0);
    const FilePath odd = test::writeFile(folder, "b\xff.png", "x");
    const std::pair<FilePath, const char *> cases[]{
        {folder, "is no file"},  {pipe, "is no file"},
        {huge, "is too large"},  {folder.child("gone.png"), "is not there"},
        {odd, "Not a picture."},
    };
    wishes.problem = QStringLiteral("Not a picture");
    open(makeLogoPanel(nullptr));
    for (const auto &[file, words] : cases) {
        QMimeData data;
        data.setUrls({QUrl::fromEncoded(file.toUrl())});
        drop(data);
        EXPECT_TRUE(says("logoProblem", QString::fromUtf8(words))) << file.bytes().toStdString();
    }
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("logo 1")));
    // The temporary folder's own removal does not know such names.
    EXPECT_EQ(::unlink(odd.c_str()), 0);
}

TEST_F(DisplayPanels, LogosAreDroppedMeasuredAndRemoved)
{
    QImage red(10, 10, QImage::Format_ARGB32);
    red.fill(Qt::red);
    wishes.state.logoImage = red;
    wishes.state.values.logoImageData = "x";
    open(makeLogoPanel(nullptr));
    QMimeData picture;
    picture.setImageData(red);
    drop(picture);
    EXPECT_TRUE(waitUntil([&] { return taken().value(0).startsWith(QLatin1String("logo ")); }));
    // Families are never taken for files.
    QMimeData families;
    families.setUrls({QUrl(QStringLiteral("file:///usr/a.ttf"))});
    families.setData(QLatin1String(kFontFamilyNamesMimeType), "Amiri");
    drop(families);
    EXPECT_TRUE(taken().isEmpty());

    auto *size = find<PointSlider>("logoSize");
    QTest::keyClick(size, Qt::Key_Right);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("size 1.05")));
    QTest::mousePress(find("logoSpacing"), Qt::LeftButton, {}, QPoint(118, 10));
    QTest::mouseRelease(find("logoSpacing"), Qt::LeftButton, {}, QPoint(118, 10));
    EXPECT_THAT(taken(),
                ::testing::ElementsAre(QStringLiteral("held"), QStringLiteral("spacing 1.5"),
                                       QStringLiteral("let go")));
    QTest::mouseClick(find("showLogo"), Qt::LeftButton);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("visible 0")));
    QTest::mouseClick(find("removeLogo"), Qt::LeftButton);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("logo 0")));
    wishes.state = {};
    panel->apply(wishes.state);
    EXPECT_FALSE(find("removeLogo")->isEnabled());
    wishes.state.values.logoImageData = "what is no image";
    panel->apply(wishes.state);
    EXPECT_TRUE(says("logoProblem", QStringLiteral("cannot be read")));
    EXPECT_TRUE(find("removeLogo")->isEnabled());
}

TEST_F(DisplayPanels, SampleTextsAreTypedAndChosen)
{
    open(makeSampleTextPanel(nullptr));
    EXPECT_STREQ(reinterpret_cast<const char *>(sampleTextGroups()[0].texts[0]),
                 reinterpret_cast<const char *>(u"Aa 123"));
    auto *first = find<QAbstractButton>("sample:Aa 123");
    EXPECT_TRUE(first->isChecked());
    auto *field = find<LineField>("sampleTextField");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("Hi"));
    EXPECT_THAT(taken(),
                ::testing::ElementsAre(QStringLiteral("sample H"), QStringLiteral("sample Hi")));
    EXPECT_FALSE(first->isChecked());
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("sample ")));
    QTest::mouseClick(find("sample:永あア 123"), Qt::LeftButton);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("sample 永あア 123")));
    EXPECT_EQ(field->text(), QStringLiteral("永あア 123"));
    QTest::mouseClick(find("resetLook"), Qt::LeftButton);
    EXPECT_THAT(taken(), ::testing::ElementsAre(QStringLiteral("reset")));
    // A stored text of any length is shown in part, and not changed by that.
    wishes.state.values.sampleText = QString(100'000, u'x');
    panel->apply(wishes.state);
    EXPECT_TRUE(taken().isEmpty());
}

TEST_F(DisplayPanels, FollowTheDesktopsDarkness)
{
    for (DisplayPanel *(*make)(QWidget *) : {makeColorPanel, makeLogoPanel, makeSampleTextPanel}) {
        setDarkDesktopOverride(false);
        open(make(nullptr));
        const QLabel *label = panel->findChild<QLabel *>();
        setDarkDesktopOverride(true);
        EXPECT_GE(
            contrastRatio(label->palette().color(QPalette::WindowText), neutralColors(true).ground),
            4.5);
        setDarkDesktopOverride({});
    }
}

} // namespace
} // namespace lorva
