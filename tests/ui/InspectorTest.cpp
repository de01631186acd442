// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/FontInspectorViewController.h"

#include "platform/linux/FontconfigOrthographies.h"
#include "support/Waiting.h"
#include "ui/inspector/AxisScale.h"
#include "ui/inspector/FeatureTip.h"
#include "ui/inspector/InfoValueText.h"
#include "ui/PreviewFonts.h"
#include "ui/style/PointSlider.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr FontTag kWeight = fontTag('w', 'g', 'h', 't');

/// Writes down what it is told: "features 1:2 14:4", "features default", "axes wght=700".
class RecordingDelegate final : public FontInspectorDelegate
{
public:
    void inspectorFeaturesChanged(const std::optional<std::vector<FeaturePair>> &enabled) override
    {
        std::string line = enabled ? "features" : "features default";
        for (const FeaturePair &pair : enabled.value_or(std::vector<FeaturePair>()))
            line += ' ' + std::to_string(pair.type) + ':' + std::to_string(pair.selector);
        lines.push_back(line);
    }
    void inspectorAxesChanged(const std::vector<VariationSetting> &values) override
    {
        QString line = QStringLiteral("axes");
        for (const VariationSetting &value : values)
            line += QStringLiteral(" %1=%2").arg(tagText(value.tag)).arg(value.value);
        lines.push_back(line.toStdString());
    }
    void inspectorFileWanted(const FilePath &file) override
    {
        lines.push_back("file " + file.fileName().toStdString());
    }
    void inspectorLinkWanted(const QUrl &link) override
    {
        lines.push_back("link " + link.toString().toStdString());
    }

    std::vector<std::string> take() { return std::exchange(lines, {}); }
    std::vector<std::string> lines;
};

DisplayedFace faceOf(const Font &font, const QString &family = QStringLiteral("Shown"))
{
    DisplayedFace face;
    face.familyName = family;
    face.font = font;
    return face;
}

test::FontBuilder axesFont()
{
    test::FontBuilder builder(QStringLiteral("Axes"));
    builder.axis("wght", 100, 400, 900).axis("wdth", 75, 100, 125);
    builder.instance(QStringLiteral("Black & Wide"), {900, 125});
    builder.instance(QStringLiteral("Regular"), {400, 100});
    return builder;
}

class InspectorTest : public testing::Test
{
protected:
    void SetUp() override
    {
        inspector.setDelegate(&delegate);
        inspector.resize(FontInspectorViewController::kWidth, 900);
        inspector.show();
        QApplication::setActiveWindow(&inspector);
    }
    void show(const DisplayedFace &face,
              const std::optional<FontFamilyActivation> &activation = std::nullopt)
    {
        inspector.showFace(face, activation);
        ASSERT_TRUE(test::waitUntil([this] { return inspector.isSettled(); }));
        QCoreApplication::processEvents();
    }
    void showFile(const char *path) { show(faceOf(test::fontFromFile(test::realFont(path)))); }
    template <class Widget>
    Widget *find(const char *name)
    {
        auto *found = inspector.findChild<Widget *>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void flip(const char *feature)
    {
        const QByteArray name = QByteArray("Feature.") + feature + ".switch";
        QTest::mouseClick(find<QAbstractButton>(name.constData()), Qt::LeftButton);
    }
    bool isOn(const char *feature)
    {
        const QByteArray name = QByteArray("Feature.") + feature + ".switch";
        return find<QAbstractButton>(name.constData())->isChecked();
    }
    QLineEdit *valueOf(const char *axis)
    {
        return find<QLineEdit>(QByteArray(QByteArray("Axis.") + axis + ".value").constData());
    }
    void type(QLineEdit *field, const char *text, Qt::Key end)
    {
        field->setFocus(Qt::TabFocusReason);
        field->selectAll();
        QTest::keyClicks(field, QString::fromUtf8(text));
        QTest::keyClick(field, end);
    }

    RecordingDelegate delegate;
    FontInspectorViewController inspector{std::make_shared<FontconfigOrthographies>()};
};

TEST(InspectorStates, GroupFeaturesByTheirTypes)
{
    const auto record = [](const char *name, const char *group) {
        OpenTypeFeatureRecord made;
        made.name = QString::fromLatin1(name);
        made.group = QString::fromLatin1(group);
        return made;
    };
    const auto groups =
        featureGroups({record("a", "Ligatures"), record("b", ""), record("c", "Case"),
                       record("d", "Ligatures"), record("e", "")});
    EXPECT_THAT(groups,
                ElementsAre(FeatureGroup{QStringLiteral("Ligatures"), {0, 3}},
                            FeatureGroup{QStringLiteral("Other"), {1, 4}},
                            FeatureGroup{QStringLiteral("Case"), {2}}));
    EXPECT_THAT(featureGroups({}), IsEmpty());
}

/// "Details: Status=Active, Format=TrueType"
std::vector<std::string> lines(const std::vector<InfoSection> &sections)
{
    std::vector<std::string> all;
    for (const InfoSection &section : sections) {
        QStringList rows;
        for (const InfoRow &row : section.rows)
            rows << QString(row.label % u'=' % row.value);
        all.push_back(QString(section.title % u": " % rows.join(u", ")).toStdString());
    }
    return all;
}

TEST(InspectorStates, TellTheFactsThatAreKnown)
{
    InspectorInfoState state;
    state.metadata.familyName = QStringLiteral("F");
    state.metadata.styleName = QStringLiteral("S");
    state.metadata.format = QStringLiteral("TrueType");
    state.metadata.glyphCount = 7;
    const std::string identifiers =
        "Identifiers: Family Name=F, Style Name=S, Full Name=, PostScript Name=";
    EXPECT_THAT(lines(infoSections(state)),
                ElementsAre(identifiers, "Details: Format=TrueType, Glyph Count=7"));

    state.metadata.designer = QStringLiteral("D");
    state.metadata.manufacturer = QStringLiteral("M");
    state.metadata.version = QStringLiteral("1");
    state.metadata.fileLocation = QStringLiteral("/f.ttf");
    state.metadata.copyright = QStringLiteral("C");
    const std::pair<FontFamilyActivation, const char *> rows[] = {
        {FontFamilyActivation::inactive(), "Inactive"},
        {FontFamilyActivation::active(InstallMethod::copy, false), "Active"},
        {FontFamilyActivation::active(InstallMethod::registerInPlace, true), "Active"},
        {FontFamilyActivation::active({}, false), "Active (System)"}};
    for (const auto &[activation, status] : rows) {
        state.activation = activation;
        EXPECT_THAT(lines(infoSections(state)),
                    ElementsAre(identifiers, "Description: Designer=D, Manufacturer=M",
                                std::string("Details: Version=1, Status=") + status
                                    + ", Location=/f.ttf, Format=TrueType, Glyph Count=7",
                                "Copyright: =C"));
    }
}

TEST(InspectorStates, OnlyTheWebIsALink)
{
    const std::pair<const char *, bool> rows[] = {{"https://example.org/a?b", true},
                                                  {" http://example.org ", true},
                                                  {"HTTPS://example.org", true},
                                                  {"www.example.org", false},
                                                  {"file:///etc/passwd", false},
                                                  {"javascript:alert(1)", false},
                                                  {"https://", false},
                                                  {"http://exa mple.org", false},
                                                  {"", false}};
    for (const auto &[text, isLink] : rows)
        EXPECT_EQ(webLink(QString::fromLatin1(text)).isValid(), isLink) << text;
    EXPECT_FALSE(
        webLink(QString(QStringLiteral("https://a.org/") + QString(60000, u'a'))).isValid());
}

TEST(InspectorStates, NameLanguagesAndWhatTheyLack)
{
    const std::vector<LanguageCoverage> coverage{
        {"de", 59, {}}, {"zh-CN", 9, {}}, {"vi", 194, {U'\u01A1', U'\u0301'}}};
    EXPECT_THAT(lines(languageSections(coverage, QLocale(QLocale::English, QLocale::UnitedStates))),
                ElementsAre("Languages: Supported=2, =Chinese (China) and German",
                            "Languages with Missing Characters: =Vietnamese: ơ ◌\u0301"));
    EXPECT_THAT(lines(languageSections({{"de", 59, {}}}, QLocale(QLocale::German))),
                ElementsAre("Languages: Supported=1, =Deutsch"));
    EXPECT_THAT(languageSections({}, QLocale::c()), IsEmpty());
}

TEST(AxisScaleTest, IsFineEnoughForEveryAxis)
{
    struct Row
    {
        double minimum;
        double maximum;
        double step;
        double value;
        const char *text;
    };
    const Row rows[] = {{100, 900, 1, 432.5, "432.5"},
                        {0, 1, 0.01, 0.333, "0.333"},
                        {-10, 0, 0.1, -9.7, "-9.7"},
                        {0, 65535, 1, 65535, "65535"},
                        {8, 72, 1, 14, "14"},
                        {0, 0.001, 0.0001, 0.0005, "0.0005"},
                        {-32768, 32767, 1, -32768, "-32768"},
                        {75.5, 125, 1, 75.5, "75.5"}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.text);
        const AxisScale scale(row.minimum, row.maximum);
        EXPECT_DOUBLE_EQ(scale.step(), row.step);
        EXPECT_EQ(scale.text(row.value, QLocale::c()).toStdString(), row.text);
        EXPECT_DOUBLE_EQ(scale.valueAt(scale.firstPosition()), row.minimum);
        EXPECT_DOUBLE_EQ(scale.valueAt(scale.lastPosition()), row.maximum);
        EXPECT_NEAR(scale.valueAt(scale.positionOf(row.value)), row.value, row.step / 2);
        EXPECT_EQ(scale.stepped(row.maximum, 1), row.maximum);
    }
    const AxisScale scale(100, 900);
    const QLocale german(QLocale::German, QLocale::Germany);
    EXPECT_EQ(scale.text(432.5, german), QStringLiteral("432,5"));
    EXPECT_EQ(scale.parsed(QStringLiteral("432,5"), german), 432.5);
    EXPECT_EQ(scale.parsed(QStringLiteral("5000"), german), 900);
    EXPECT_EQ(scale.parsed(QStringLiteral("\u22125"), german), 100);
    for (const char16_t *nonsense : {u"", u"abc", u"nan", u"inf", u"4 00"})
        EXPECT_EQ(scale.parsed(QString::fromUtf16(nonsense), QLocale::c()), std::nullopt);
}

TEST_F(InspectorTest, TellsTheFeaturesThatAreOn)
{
    showFile("truetype/inter-vf/Inter.var.ttf");
    EXPECT_FALSE(find<QWidget>("ResetButton")->isVisible());
    flip("14:4");
    ASSERT_EQ(delegate.lines.size(), 1u);
    EXPECT_THAT(delegate.take().front(), testing::ContainsRegex("features.* 14:4"));
    EXPECT_TRUE(find<QWidget>("ResetButton")->isVisible());
    QTest::mouseClick(find<QWidget>("ResetButton"), Qt::LeftButton);
    EXPECT_THAT(delegate.take(), ElementsAre("features default"));
    EXPECT_FALSE(isOn("14:4"));
    EXPECT_FALSE(find<QWidget>("ResetButton")->isVisible());
}

TEST_F(InspectorTest, SelectorsOfAnExclusiveTypeSwitchEachOtherOff)
{
    showFile("opentype/ebgaramond/EBGaramond12-Regular.otf");
    flip("21:0");
    EXPECT_TRUE(isOn("21:0"));
    QTest::mouseClick(find<QWidget>("Feature.21:1"), Qt::LeftButton, {}, QPoint(30, 15));
    EXPECT_TRUE(isOn("21:1")) << "a press on the name switches, too";
    EXPECT_FALSE(isOn("21:0"));
    ASSERT_EQ(delegate.lines.size(), 2u);
    EXPECT_THAT(delegate.lines.back(), testing::HasSubstr(" 21:1"));
    EXPECT_THAT(delegate.lines.back(), testing::Not(testing::HasSubstr(" 21:0")));
}

TEST_F(InspectorTest, SaysThatThereAreNoFeatures)
{
    test::FontBuilder plain(QStringLiteral("Plain"));
    show(faceOf(test::fontOf(plain)));
    EXPECT_EQ(find<QLabel>("NoFeaturesTitle")->text(), QStringLiteral("No OpenType Features"));
    EXPECT_EQ(find<QLabel>("NoFeaturesText")->text(),
              QStringLiteral("This font doesn't expose any OpenType features."));
    show({});
    EXPECT_FALSE(inspector.findChild<QLabel *>(QStringLiteral("NoFeaturesTitle")))
        << "nothing is said of no face";
}

TEST_F(InspectorTest, TakesValuesThatAreTyped)
{
    test::FontBuilder builder = axesFont();
    show(faceOf(test::fontOf(builder)));
    QLineEdit *weight = valueOf("wght");
    EXPECT_EQ(weight->text(), QStringLiteral("400"));
    type(weight, "650.5", Qt::Key_Return);
    type(weight, "5000", Qt::Key_Tab);
    type(valueOf("wdth"), "abc", Qt::Key_Return);
    type(weight, "123", Qt::Key_Escape);
    EXPECT_EQ(weight->text(), QStringLiteral("900"));
    QTest::keyClick(weight, Qt::Key_Down);
    QTest::keyClick(weight, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(valueOf("wdth"), Qt::Key_Up);
    EXPECT_THAT(delegate.take(),
                ElementsAre("axes wght=650.5", "axes wght=900", "axes wght=899", "axes wght=900",
                            "axes wght=900 wdth=101"));
}

TEST_F(InspectorTest, SlidersMoveAxesAndDoubleClicksBringThemBack)
{
    test::FontBuilder builder = axesFont();
    show(faceOf(test::fontOf(builder)));
    auto *slider = find<PointSlider>("Axis.wght.slider");
    slider->setFocus(Qt::TabFocusReason);
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(valueOf("wght")->text(), QStringLiteral("900"));
    QTest::mouseDClick(slider, Qt::LeftButton, {}, slider->knobRect().center().toPoint());
    EXPECT_EQ(delegate.take().back(), "axes") << "at its base again";
}

TEST_F(InspectorTest, InstancesSetAllAxes)
{
    test::FontBuilder builder = axesFont();
    show(faceOf(test::fontOf(builder)));
    auto *button = find<QAbstractButton>("InstanceButton");
    EXPECT_EQ(button->text(), QStringLiteral("Regular"));
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_Space);
    auto *menu = find<QMenu>("InstanceButton.Menu");
    ASSERT_EQ(menu->actions().size(), 2);
    menu->actions().front()->trigger();
    menu->close();
    EXPECT_EQ(button->text(), QStringLiteral("Black & Wide"));
    EXPECT_THAT(delegate.take(), ElementsAre("axes wght=900 wdth=125"));
    type(valueOf("wght"), "700", Qt::Key_Return);
    EXPECT_EQ(button->text(), QStringLiteral("Custom"));

    test::FontBuilder without(QStringLiteral("One"));
    show(faceOf(test::fontOf(without.axis("wght", 100, 400, 900))));
    EXPECT_FALSE(inspector.findChild<QWidget *>(QStringLiteral("InstanceButton")));
}

TEST_F(InspectorTest, KeepsWhatTheUserSetOfAFaceThatIsShownAgain)
{
    test::FontBuilder builder = axesFont();
    const Font font = test::fontOf(builder);
    const DisplayedFace face = faceOf(font);
    show(face);
    type(valueOf("wdth"), "80", Qt::Key_Return);
    type(valueOf("wght"), "500", Qt::Key_Return);
    delegate.take();
    show(face);
    EXPECT_EQ(valueOf("wght")->text(), QStringLiteral("500"));
    show(faceOf(font.withVariations({{kWeight, 700}})));
    EXPECT_EQ(valueOf("wght")->text(), QStringLiteral("700")) << "the weight control moved";
    EXPECT_EQ(valueOf("wdth")->text(), QStringLiteral("80"));
    EXPECT_THAT(delegate.take(), IsEmpty());
    QTest::mouseClick(find<QWidget>("ResetButton"), Qt::LeftButton);
    EXPECT_THAT(delegate.take(), ElementsAre("axes"));
    EXPECT_EQ(valueOf("wght")->text(), QStringLiteral("700")) << "its base now";
    EXPECT_EQ(valueOf("wdth")->text(), QStringLiteral("100"));
    type(valueOf("wdth"), "80", Qt::Key_Return);
    show(faceOf(font, QStringLiteral("Another")));
    EXPECT_EQ(valueOf("wdth")->text(), QStringLiteral("100")) << "another face starts afresh";
}

TEST_F(InspectorTest, TellsNothingOfAFaceThatIsGoingAway)
{
    test::FontBuilder first = axesFont();
    show(faceOf(test::fontOf(first), QStringLiteral("First")));
    test::FontBuilder second(QStringLiteral("Second"));
    test::FontBuilder third(QStringLiteral("Third"));
    inspector.showFace(faceOf(test::fontOf(second), QStringLiteral("Second")), {});
    EXPECT_FALSE(inspector.isSettled());
    type(valueOf("wght"), "700", Qt::Key_Return);
    EXPECT_THAT(delegate.take(), IsEmpty());
    show(faceOf(test::fontOf(third.axis("wdth", 50, 60, 70)), QStringLiteral("Third")));
    EXPECT_EQ(valueOf("wdth")->text(), QStringLiteral("60"));
    EXPECT_FALSE(inspector.findChild<QWidget *>(QStringLiteral("Axis.wght")));
}

TEST_F(InspectorTest, ShowsAFeatureBesideWhatItChanges)
{
    showFile("truetype/inter-vf/Inter.var.ttf");
    auto *row = find<QWidget>("Feature.14:4");
    QHelpEvent rest(QEvent::ToolTip, QPoint(5, 5), row->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(row, &rest);
    auto *tip = find<FeatureTip>("FeatureTip");
    ASSERT_TRUE(test::waitUntil([&] { return tip->isSettled(); }));
    EXPECT_FALSE(tip->sample().text.isEmpty());
    EXPECT_FALSE(tip->sample().before.isNull());
    EXPECT_NE(tip->sample().before, tip->sample().after);
    EXPECT_TRUE(inspector.rect().contains(tip->geometry().center()));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(row, &leave);
    EXPECT_FALSE(tip->isVisible());
}

TEST_F(InspectorTest, FactsAreCopiedOpenedAndExpanded)
{
    const QString notice(3000, u'x');
    test::FontBuilder builder(QStringLiteral("明朝"));
    builder.name(0, notice).name(11, QStringLiteral("https://example.org"));
    builder.name(12, QStringLiteral("ftp://example.org")).name(13, QStringLiteral("Free"));
    const Font font = test::fontOf(builder);
    show(faceOf(font), FontFamilyActivation::inactive());
    const auto rowOf = [this](const QString &value) -> QWidget * {
        for (auto *text : inspector.findChildren<InfoValueText *>()) {
            if (text->toPlainText() == value)
                return text->parentWidget();
        }
        ADD_FAILURE() << value.toStdString();
        return nullptr;
    };
    const auto part = [](QWidget *row, const char *name) {
        return row->findChild<QAbstractButton *>(
            QString(row->objectName() + QString::fromLatin1(name)));
    };
    EXPECT_TRUE(inspector.findChildren<InfoValueText *>().isEmpty()) << "not before it is seen";
    inspector.setSelectedTab(FontInspectorViewController::Tab::info);

    QWidget *family = rowOf(QStringLiteral("明朝"));
    part(family, ".copy")->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("明朝"));
    auto *license = rowOf(QStringLiteral("Free"))->findChild<InfoValueText *>();
    license->setFocus(Qt::TabFocusReason);
    QTest::keyClick(license, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Free"));

    QWidget *copyright = rowOf(QString(notice.left(240) + u'…'));
    part(copyright, ".copy")->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), notice);
    const int shortHeight = copyright->height();
    part(copyright, ".more")->click();
    EXPECT_EQ(rowOf(notice), copyright);
    EXPECT_GT(copyright->height(), 4 * shortHeight);

    part(rowOf(QStringLiteral("https://example.org")), ".open")->click();
    EXPECT_FALSE(part(rowOf(QStringLiteral("ftp://example.org")), ".open"));
    part(rowOf(font.face()->path().displayText()), ".open")->click();
    EXPECT_THAT(delegate.take(),
                ElementsAre("link https://example.org",
                            "file " + font.face()->path().fileName().toStdString()));

    show(faceOf(font), FontFamilyActivation::active({}, false));
    rowOf(QStringLiteral("Active (System)"));
    EXPECT_EQ(inspector.selectedTab(), FontInspectorViewController::Tab::info);
}

TEST_F(InspectorTest, ManyFeaturesAndAxesHaveTheirRows)
{
    test::FontBuilder builder(QStringLiteral("Many"));
    for (int i = 0; i < 200; ++i)
        builder.substitution(QByteArray("x" + QByteArray::number(100 + i)).constData(), U'a', U'b');
    for (int i = 0; i < 60; ++i)
        builder.axis(QByteArray("AX" + QByteArray::number(10 + i)).constData(), 0, 5, 10);
    show(faceOf(test::fontOf(builder)));
    EXPECT_EQ(inspector.findChildren<PointSlider *>().size(), 60);
    EXPECT_EQ(find<QWidget>("Axis.AX69.slider")->accessibleName(), QStringLiteral("AX69"));
    EXPECT_GT(find<QWidget>("InspectorFeaturesView")->height(), 200 * 30 + 60 * 50);
}

} // namespace
} // namespace lorva
