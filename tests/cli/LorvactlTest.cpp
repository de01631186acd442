// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "LorvactlSupport.h"
#include "model/records/RecordsJson.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"

#include <QImage>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {
namespace {

using test::expectFailure;
using test::FontBuilder;
using test::lorvactl;
using test::Outcome;
using test::path;
using test::shell;
using test::TestHome;
using testing::HasSubstr;
using testing::StartsWith;

FilePath font(const QByteArray &name, const FontBuilder &builder = FontBuilder("Foo", "Bold"))
{
    return test::writeFile(TestHome::instance().root().child("fonts"), name, builder.build());
}

TEST(Lorvactl, ExplainsItself)
{
    for (const char *command :
         {"", "list", "search", "scan", "info", "specimen", "collections", "styles", "foundries",
          "export", "import", "activate", "deactivate", "status", "folders", "doctor", "updates"}) {
        QStringList arguments{QString::fromLatin1(command), "--help"};
        arguments.removeAll(QString());
        const Outcome outcome = lorvactl(arguments);
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_THAT(outcome.out.toStdString(), StartsWith("Usage: lorvactl "));
        EXPECT_EQ(outcome.error, "");
    }
    EXPECT_THAT(lorvactl({"--version"}).out.toStdString(), StartsWith("lorvactl " LORVA_VERSION));
}

TEST(Lorvactl, RefusesWhatItDoesNotUnderstand)
{
    test::expect({
        {{}, "a command is missing", 2},
        {{"lost"}, "unknown command lost", 2},
        {{"list", "--bogus"}, "unknown option --bogus", 2},
        {{"list", "--json=yes"}, "--json takes no value", 2},
        {{"list", "--folder"}, "--folder needs a value", 2},
        {{"scan", "--folder", ""}, "needs the name of a folder", 2},
        {{"list", "somewhere"}, "--folder", 2},
        {{"list", "--script", "klingon"}, "traditionalChinese", 2},
        {{"scan", "somewhere"}, "--folder", 2},
        {{"info"}, "one font file", 2},
        {{"info", "a", "b"}, "one font file", 2},
        {{"specimen", "a.ttf"}, "-o", 2},
        {{"list", "--folder", "/nowhere\nat all"}, "no folder", 1},
        {{"list", "--folder", path(font("f.ttf"))}, "is no folder", 1},
    });
}

TEST(LorvactlList, ShowsTheSystemsAndTheFoldersFamiliesInOrder)
{
    test::writeFile(TestHome::instance().systemFonts(), "z.ttf",
                    FontBuilder("zebra", "Bold").postScriptName("Z").build());
    const FilePath folder = TestHome::instance().makeFolder("more");
    test::writeFile(folder, "a.ttf", FontBuilder("Äpfel", "Light").postScriptName("A").build());
    test::writeFile(folder, "b.ttf", FontBuilder("Birne", "Thin").postScriptName("B").build());
    test::writeFile(folder, "c.ttf", FontBuilder("Birne", "Bold\nInjected: ok").build());
    const Outcome outcome = lorvactl({"list", "--folder", path(folder)});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
    EXPECT_EQ(outcome.error, "") << "no progress without a terminal";
    EXPECT_THAT(outcome.out.toStdString(), StartsWith("Äpfel\tLight\nBirne\tThin, Bold"));
    EXPECT_THAT(outcome.out.toStdString(), testing::EndsWith("\nzebra\tBold\n"));
    EXPECT_EQ(outcome.out.count('\n'), 3);
}

TEST(LorvactlList, WritesRecordsAsJson)
{
    const FilePath folder = TestHome::instance().makeFolder("json");
    const FilePath file = test::writeFile(folder, "sp ace.ttf",
                                          FontBuilder("Foo", "Bold").postScriptName("F").build());
    const Outcome outcome =
        lorvactl({"list", "--json", QString(QStringLiteral("--folder=") + path(folder))});
    EXPECT_EQ(outcome.exitCode, 0);
    const auto families = decodeFamilies(outcome.out);
    ASSERT_TRUE(families) << families.error().detail.toStdString();
    FontFamilyRecord expected;
    expected.familyName = "Foo";
    expected.styles.push_back({"F", "Bold", "F", 700, false, file});
    expected.scripts = std::set{WritingScript::latin};
    expected.primaryScript = WritingScript::latin;
    EXPECT_THAT(*families, testing::Contains(expected));
}

TEST(LorvactlList, NoticesAFullDisk)
{
    expectFailure(shell("lorvactl list --help > /dev/full"), 1,
                  "cannot write the output: No space");
}

TEST(LorvactlInfo, ShowsNamesTraitsAxesAndInstances)
{
    const FilePath file = font("v.ttf",
                               FontBuilder("Foo", "Poster")
                                   .postScriptName("Foo-Poster")
                                   .manufacturer("Acme\x1b[31m\nCorp")
                                   .weightClass(800)
                                   .italic()
                                   .axis("wght", 100, 800, 900)
                                   .instance("Fat", {900}, "Foo-Fat"));
    const Outcome text = lorvactl({"info", path(file)});
    EXPECT_EQ(text.exitCode, 0) << text.error.constData();
    for (const char *part : {"Foo", "Poster", "Foo-Poster", "Acme", "800", "yes", "wght",
                             "100 … 900", "Fat (wght 900) Foo-Fat"})
        EXPECT_THAT(text.out.toStdString(), HasSubstr(part));
    EXPECT_FALSE(text.out.contains('\x1b')) << "a name must not drive the terminal";

    const QJsonObject report = test::json({"info", path(file)}).object();
    EXPECT_EQ(report["fileURL"].toString().toUtf8(), file.toUrl());
    ASSERT_EQ(report["faces"].toArray().size(), 1);
    const QJsonObject face = report["faces"].toArray()[0].toObject();
    EXPECT_EQ(face["familyName"].toString(), "Foo");
    EXPECT_EQ(face["isItalic"].toBool(), true);
    EXPECT_EQ(face["axes"].toArray()[0].toObject()["maxValue"].toDouble(), 900);
    EXPECT_EQ(face["instances"].toArray()[0].toObject()["name"].toString(), "Fat");
}

TEST(LorvactlInfo, SaysInOneLineWhatIsWrong)
{
    const FilePath folder = TestHome::instance().makeFolder("bad");
    const QByteArray sound = FontBuilder("Foo", "Bold").build();
    ASSERT_EQ(::mkfifo(folder.child("fifo.ttf").c_str(), 0600), 0);
    ASSERT_EQ(::symlink("loop.ttf", folder.child("loop.ttf").c_str()), 0);
    test::writeFile(folder, "empty.ttf", {});
    test::writeFile(folder, "text.ttf", "no font\n");
    test::writeFile(folder, "line\nbreak.ttf", "no font");
    test::writeFile(folder, "cut.ttf", sound.first(30));
    const FilePath sparse = test::writeFile(folder, "sparse.ttf", sound);
    ASSERT_EQ(::truncate(sparse.c_str(), off_t(5) << 30), 0);
    test::writeFile(folder, "mute.ttf", FontBuilder().withoutNames().withoutCmap().build());
    for (const char *name : {"fifo.ttf", "loop.ttf", "empty.ttf", "text.ttf", "line\nbreak.ttf",
                             "cut.ttf", "sparse.ttf", "mute.ttf", "missing.ttf", "."})
        expectFailure(lorvactl({"info", path(folder.child(name))}), 1, "bad");
}

TEST(LorvactlInfo, TakesFileNamesThatAreNoText)
{
    const QByteArray folder = TestHome::instance().makeFolder("bytes").bytes();
    test::writeFile(FilePath(folder), "caf\xe9.ttf", FontBuilder("Bytes").build());
    const QString cd = QStringLiteral("cd '%1' && ").arg(QString::fromUtf8(folder));
    const Outcome info =
        shell(QString(cd + QStringLiteral("lorvactl info \"$(printf 'caf\\351.ttf')\"")));
    EXPECT_EQ(info.exitCode, 0) << info.error.constData();
    EXPECT_THAT(info.out.toStdString(), HasSubstr("/caf\\xe9.ttf\n"));
    const Outcome picture = shell(QString(
        cd + QStringLiteral("lorvactl specimen -o \"$(printf 'p\\351.png')\" -- caf*.ttf")));
    EXPECT_EQ(picture.exitCode, 0) << picture.error.constData();
    EXPECT_FALSE(test::readFile(FilePath(folder).child("p\xe9.png")).isEmpty());
    // Qt's temporary folder cannot remove what is no text.
    for (const char *name : {"caf\xe9.ttf", "p\xe9.png"})
        ::unlink(FilePath(folder).child(name).c_str());
}

TEST(LorvactlSpecimen, DrawsTheTextInTheColours)
{
    const FilePath picture = TestHome::instance().home().child("specimen.png");
    const Outcome outcome = lorvactl({"specimen", path(font("s.ttf")), "-o", "specimen.png",
                                      "--text", "HH", "--size", "100", "--width", "300", "--height",
                                      "200", "--color", "#ff0000", "--background", "#0000ff"});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.error.constData();
    const QImage image(path(picture));
    ASSERT_EQ(image.size(), QSize(300, 200));
    int red = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x)
            red += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
    }
    // Two boxes of 50 by 70 pixels.
    EXPECT_NEAR(red, 7000, 500);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(299, 199), QColor(Qt::blue));
}

TEST(LorvactlSpecimen, FitsThePictureToTheText)
{
    const QString file = path(font("s.ttf"));
    ASSERT_EQ(lorvactl({"specimen", file, "-o", "one.png", "--text", "HHHH"}).exitCode, 0);
    ASSERT_EQ(lorvactl({"specimen", file, "-o", "two.png", "--text", "HHHHHHHH", "--background",
                        "transparent"})
                  .exitCode,
              0);
    const QImage one(path(TestHome::instance().home().child("one.png")));
    const QImage two(path(TestHome::instance().home().child("two.png")));
    EXPECT_EQ(one.height(), two.height());
    EXPECT_NEAR(two.width() - one.width(), 4 * 48 * 0.6, 2);
    EXPECT_EQ(two.pixelColor(0, 0).alpha(), 0);
}

TEST(LorvactlSpecimen, TakesFacesAndInstances)
{
    const FilePath collection =
        test::writeFile(TestHome::instance().makeFolder("faces"), "c.ttc",
                        FontBuilder::collection({FontBuilder("One").advance('H', 600).build(),
                                                 FontBuilder("Two").advance('H', 1200).build()}));
    const auto widthOf = [&](const QStringList &options) {
        const Outcome outcome = lorvactl(
            QStringList{"specimen", path(collection), "-o", "f.png", "--text", "HHHH"} + options);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
        return QImage(path(TestHome::instance().home().child("f.png"))).width();
    };
    EXPECT_THAT(lorvactl({"info", path(collection)}).out.toStdString(),
                testing::AllOf(HasSubstr("Face 0"), HasSubstr("Two")));
    EXPECT_GT(widthOf({"--face", "1"}), widthOf({"--face", "0"}) + 100);
    expectFailure(lorvactl({"specimen", path(collection), "-o", "g.png", "--face", "2"}), 1,
                  "c.ttc");

    const FilePath variable = font(
        "var.ttf", FontBuilder("Var").axis("wght", 100, 400, 900).instance("Extra Fat", {900}));
    EXPECT_EQ(
        lorvactl({"specimen", path(variable), "-o", "h.png", "--instance", "extra fat"}).exitCode,
        0);
    expectFailure(lorvactl({"specimen", path(variable), "-o", "i.png", "--instance", "Slim"}), 1,
                  "no instance \"Slim\"");
}

TEST(LorvactlSpecimen, ChecksItsNumbersAndColours)
{
    const QString file = path(font("s.ttf"));
    const QStringList wrong[]{
        {"--size", "0"},       {"--size", "4097"},   {"--size", "nan"},
        {"--width", "0"},      {"--width", "16385"}, {"--height", "x"},
        {"--face", "-1"},      {"--color", "red"},   {"--background", "#12345"},
        {"--color", "#gggggg"}};
    for (const QStringList &options : wrong)
        expectFailure(lorvactl(QStringList{"specimen", file, "-o", "n.png"} + options), 2,
                      options[0].toUtf8().constData());
    EXPECT_FALSE(QFile::exists(path(TestHome::instance().home().child("n.png"))));
}

TEST(LorvactlSpecimen, NeverWritesOverAFont)
{
    const FilePath file = font("keep.ttf");
    const FilePath disguised = font("disguised.png");
    const FilePath linked = TestHome::instance().home().child("linked.png");
    ASSERT_EQ(::symlink(file.c_str(), linked.c_str()), 0);
    const QByteArray before = test::readFile(file);
    for (const FilePath &picture : {file, disguised, linked, file.parent().child("new.otf")})
        expectFailure(lorvactl({"specimen", path(file), "-o", path(picture)}), 1, "over a font");
    EXPECT_EQ(test::readFile(file), before);
    EXPECT_EQ(test::readFile(disguised), before);
    expectFailure(lorvactl({"specimen", path(file), "-o", "/nowhere/x.png"}), 1, "/nowhere");
}

} // namespace
} // namespace lorva
