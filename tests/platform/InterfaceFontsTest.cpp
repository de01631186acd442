// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/FontconfigSystemFont.h"
#include "platform/linux/InterfaceFamilies.h"
#include "platform/linux/SmallFontconfig.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"

#include <QFileInfo>
#include <QProcess>

#include <fontconfig/fontconfig.h>
#include <gmock/gmock.h>

#include <unistd.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::TestHome;
using test::writeFile;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

/// The file names that the process's current configuration lists.
std::vector<QByteArray> currentFonts()
{
    std::vector<QByteArray> names;
    const FcFontSet *const fonts = FcConfigGetFonts(FcConfigGetCurrent(), FcSetSystem);
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        FcChar8 *file = nullptr;
        FcPatternGetString(fonts->fonts[i], FC_FILE, 0, &file);
        names.push_back(FilePath(reinterpret_cast<char *>(file)).fileName());
    }
    return names;
}

FilePath addSystemFont(const QByteArray &name, const FontBuilder &font)
{
    return writeFile(TestHome::instance().systemFonts(), name, font.build());
}

void installRealFont(const QByteArray &path)
{
    const FilePath font = test::realFont(path);
    const FilePath link = TestHome::instance().systemFonts().child(font.fileName());
    ASSERT_EQ(::symlink(font.c_str(), link.c_str()), 0);
}

void configureGtkFont(const QByteArray &name)
{
    const FilePath config = TestHome::instance().makeFolder("config/gtk-4.0");
    writeFile(config, "settings.ini",
              "[Other]\ngtk-font-name=No\n[Settings]\ngtk-font-name=" + name);
}

TEST(InterfaceFamilies, readsTheDesktopsNotations)
{
    EXPECT_EQ(familyOfGtkFontName("Cantarell 11"), "Cantarell");
    EXPECT_EQ(familyOfGtkFontName("Noto Sans, 10.5"), "Noto Sans");
    EXPECT_EQ(familyOfGtkFontName("Source Sans 3"), "Source Sans");
    EXPECT_EQ(familyOfGtkFontName("Inter"), "Inter");
    EXPECT_EQ(familyOfGtkFontName(""), "");
    EXPECT_EQ(familyOfKdeFont("Noto Sans,10,-1,5,50,0,0,0,0,0"), "Noto Sans");
    EXPECT_EQ(familyOfKdeFont("broken"), "");
}

TEST(InterfaceFamilies, theRunningDesktopsComesFirst)
{
    using testing::ElementsAre;
    configureGtkFont("Gtk Face 11");
    writeFile(TestHome::instance().root().child("config"), "kdeglobals",
              "[General]\r\nfont=Kde Face,10\r\n");
    const auto familiesOn = [](const char *desktop) {
        return configuredInterfaceFamilies([desktop](const char *name) {
            return QByteArrayView(name) == "XDG_CURRENT_DESKTOP" ? QByteArray(desktop)
                                                                 : processEnvironment(name);
        });
    };
    EXPECT_THAT(familiesOn("KDE"), ElementsAre("Kde Face", "Gtk Face"));
    EXPECT_THAT(familiesOn("ubuntu:GNOME"), ElementsAre("Gtk Face", "Kde Face"));
}

TEST(FontconfigSystemFont, isTheConfiguredFamilyAndIsKept)
{
    addSystemFont("other.ttf", FontBuilder("Another"));
    const FilePath wanted = addSystemFont("wanted.ttf", FontBuilder("Wanted Face"));
    configureGtkFont("Wanted Face 11");
    const FontconfigSystemFont locator;
    EXPECT_EQ(locator.systemFont().path, wanted);
    ::unlink(wanted.c_str());
    EXPECT_EQ(locator.systemFont().path, wanted);
}

TEST(FontconfigSystemFont, numbersTheFaceOfACollection)
{
    const QByteArray fonts = FontBuilder::collection(
        {FontBuilder("First Face").build(), FontBuilder("Second Face").build()});
    const FilePath file = writeFile(TestHome::instance().systemFonts(), "both.ttc", fonts);
    configureGtkFont("Second Face 11");
    const SystemFontLocator::Location location = FontconfigSystemFont().systemFont();
    EXPECT_EQ(location.path, file);
    EXPECT_EQ(location.faceIndex, 1);
}

TEST(FontconfigSystemFont, isNowhereOnASystemWithoutFonts)
{
    EXPECT_TRUE(FontconfigSystemFont().systemFont().path.isEmpty());
}

TEST(SmallFontconfig, leavesAnEmptyConfigurationWithoutFonts)
{
    useSmallFontconfigForInterface();
    EXPECT_THAT(currentFonts(), IsEmpty());
    EXPECT_TRUE(FontconfigSystemFont().systemFont().path.isEmpty());
}

TEST(SmallFontconfig, keepsTheInterfacesWeightsAndAFallbackPerScript)
{
    addSystemFont("ui-regular.ttf", FontBuilder("Ui Face"));
    addSystemFont("ui-medium.ttf", FontBuilder("Ui Face", "Medium").weightClass(500));
    addSystemFont("ui-bold.ttf", FontBuilder("Ui Face", "Bold").weightClass(700));
    addSystemFont("ui-black.ttf", FontBuilder("Ui Face", "Black").weightClass(900));
    for (int i = 0; i < 20; ++i)
        addSystemFont("library" + QByteArray::number(i) + ".ttf",
                      FontBuilder(QStringLiteral("Library %1").arg(i)));
    installRealFont("truetype/lohit-devanagari/Lohit-Devanagari.ttf");
    configureGtkFont("Ui Face 11");

    useSmallFontconfigForInterface();
    const std::vector<QByteArray> fonts = currentFonts();
    for (const char *const kept :
         {"ui-regular.ttf", "ui-medium.ttf", "ui-bold.ttf", "Lohit-Devanagari.ttf"})
        EXPECT_THAT(fonts, Contains(kept));
    EXPECT_THAT(fonts, Not(Contains("ui-black.ttf")));
    EXPECT_LE(fonts.size(), 6u);
    EXPECT_EQ(FontconfigSystemFont().systemFont().path.fileName(), "ui-regular.ttf");
}

TEST(SmallFontconfig, doesNotNarrowTheScan)
{
    for (const char *const name : {"a.ttf", "b.ttf", "c.ttf"})
        addSystemFont(name, FontBuilder(QString::fromLatin1(name)));
    useSmallFontconfigForInterface();
    const FontconfigAvailableFonts fonts{FilePath("/nowhere")};
    EXPECT_EQ(fonts.fontFiles({}, {}).size(), 3u);
}

TEST(SmallFontconfig, pathsThatTheRulesCannotCarryDoNoHarm)
{
    addSystemFont("odd\xff.ttf", FontBuilder("Odd"));
    addSystemFont("a&<b>*.ttf", FontBuilder("Marked"));
    configureGtkFont("Marked 11");
    useSmallFontconfigForInterface();
    EXPECT_THAT(currentFonts(), UnorderedElementsAre("a&<b>*.ttf"));
}

/// What a process that starts like the program sees of its own fonts.
QByteArray probe(const QStringList &texts, const QString &mode = QStringLiteral("small"))
{
    QProcess process;
    process.start(QStringLiteral(LORVA_INTERFACE_FONT_PROBE), QStringList(mode) + texts);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0);
    return process.readAllStandardOutput();
}

TEST(SmallFontconfig, theToolkitShowsEveryScriptThatTheMachineHas)
{
    installRealFont("truetype/dejavu/DejaVuSans.ttf");
    installRealFont("truetype/lohit-devanagari/Lohit-Devanagari.ttf");
    installRealFont("opentype/noto/NotoSansCJK-Regular.ttc");
    for (int i = 0; i < 10; ++i)
        addSystemFont("library" + QByteArray::number(i) + ".ttf",
                      FontBuilder(QStringLiteral("Library %1").arg(i)));
    configureGtkFont("DejaVu Sans 10");
    const QByteArray seen = probe({"हिन्दी", "漢字", "한국어", "العربية", "עברית"});
    for (const char *const text : {"हिन्दी", "漢字", "한국어", "العربية", "עברית"})
        EXPECT_THAT(seen.toStdString(), HasSubstr(std::string("missing ") + text + ": 0\n"));
    EXPECT_THAT(seen.toStdString(), Not(HasSubstr("Library")));
}

/// As the packages of such fonts bring them.
void useRulesForLanguages()
{
    QByteArray rules = "<fontconfig><include>"
        + TestHome::instance().root().child("fonts.conf").bytes() + "</include>";
    for (const auto &[language, letters] : {std::pair("ja", "JP"), std::pair("ko", "KR"),
                                            std::pair("zh-cn", "SC"), std::pair("zh-tw", "TC")})
        rules += QByteArray("<match><test name=\"lang\"><string>") + language
            + "</string></test><edit name=\"family\" mode=\"append\"><string>Noto Sans CJK "
            + letters + "</string></edit></match>";
    const FilePath file =
        writeFile(TestHome::instance().root(), "rules.conf", rules + "</fontconfig>");
    ::setenv("FONTCONFIG_FILE", file.c_str(), 1);
}

TEST(SmallFontconfig, theToolkitShowsTheFormsOfTheLanguage)
{
    installRealFont("truetype/dejavu/DejaVuSans.ttf");
    installRealFont("opentype/noto/NotoSansCJK-Regular.ttc");
    configureGtkFont("DejaVu Sans 10");
    useRulesForLanguages();
    const QString text = QStringLiteral("启字");
    for (const auto &[mode, family] :
         {std::pair("small=ja", "Noto Sans CJK JP"), std::pair("small=ko", "Noto Sans CJK KR"),
          std::pair("small=zh_CN", "Noto Sans CJK SC"),
          std::pair("small=zh_TW", "Noto Sans CJK TC")})
        EXPECT_THAT(probe({text}, QLatin1String(mode)).toStdString(),
                    HasSubstr("shown " + text.toStdString() + ": " + family + "\n"));
}

TEST(SmallFontconfig, theUsersLanguageHasEveryWeight)
{
    installRealFont("opentype/noto/NotoSansCJK-Regular.ttc");
    installRealFont("opentype/noto/NotoSansCJK-Bold.ttc");
    useRulesForLanguages();
    useFontsForLanguage(QStringLiteral("ja"));
    useSmallFontconfigForInterface();
    EXPECT_THAT(currentFonts(), Contains("NotoSansCJK-Bold.ttc"));
}

TEST(SmallFontconfig, theToolkitStartsWithoutAnyFont)
{
    EXPECT_THAT(probe({}).toStdString(), HasSubstr("font: \n"));
}

} // namespace
} // namespace lorva
