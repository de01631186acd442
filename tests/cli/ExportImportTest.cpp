// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/StyleCategories.h"
#include "model/stores/OrganizationFile.h"
#include "OrganizationHome.h"

#include <QDir>

namespace lorva {
namespace {

using test::expect;
using test::lorvactl;
using test::Outcome;
using test::path;
using test::shell;
using test::TestHome;
using testing::HasSubstr;

constexpr char kFile[] = R"({"format":"lorva-organization","version":1,
 "collections":[{"id":"p","name":"Posters","familyNames":["Zeta","Not here"]},
                {"name":"By hand","familyNames":["Alpha"]}],
 "styleCategories":[{"id":"serif","name":"Serif","familyNames":["Beta"]},
                    {"id":"w","name":"Wood","familyNames":["Alpha"]}],
 "foundries":{"overrides":{"Alpha":"acme"},"names":{"klim":"K"},"dismissed":["acme"]},
 "displaySettings":{"allFonts":{"browserPointSize":48.5},"collection::p":{"sampleText":"Hey"}}})";

class ExportImport : public test::OrganizationHome
{
protected:
    ExportImport()
        : file(test::writeFile(data, "in.json", kFile))
    {
    }

    QStringList backups() const
    {
        return QDir(path(folder)).entryList({"organization-before-import-*.json"});
    }
    static QByteArray exported()
    {
        const Outcome outcome = lorvactl({"export"});
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
        return outcome.out;
    }

    const FilePath file;
};

TEST_F(ExportImport, MovesALibrary)
{
    expect({
        {{"import", path(file)},
         "collection \"By hand\" created with 1 family\n"
         "collection \"Posters\" created with 2 families\n"
         "style \"Serif\": 1 family joined\n"
         "style \"Wood\" created with 1 family\n"
         "family \"Alpha\": of the foundry \"acme\"\n"
         "foundry \"klim\": called \"K\"\n"
         "foundry \"acme\": hidden\n"
         "display settings of all fonts: taken in\n"
         "display settings of collection \"Posters\": taken in\n"},
        {{"collections", "list", "Posters"}, "Zeta\nNot here\n"},
        {{"import", path(file)}, "nothing to change\n"},
        // Also what the file gives no id.
        {{"import", "--replace", path(file)}, "nothing to change\n"},
    });
    const QByteArray first = exported();
    const FilePath moved = TestHome::instance().root().child("moved.json");
    expect({{{"export", "-o", path(moved)}, ""}});
    EXPECT_EQ(test::readFile(moved), first);

    moveToEmptyHome();
    EXPECT_EQ(shell(QStringLiteral("lorvactl import - < '%1'").arg(path(moved))).exitCode, 0);
    EXPECT_EQ(exported(), first);
    EXPECT_EQ(lorvactl({"import", "--replace", path(moved)}).out, "nothing to change\n");
    EXPECT_EQ(backups(), QStringList());
}

TEST_F(ExportImport, AddsToWhatIsThere)
{
    expect({
        {{"collections", "create", "POSTERS", "Alpha"}, ""},
        {{"styles", "add", "sans", "Alpha", "Beta", "Gamma"}, ""},
    });
    const QByteArray before = exported();
    const Outcome planned = lorvactl({"import", "--dry-run", path(file)});
    EXPECT_THAT(planned.out.toStdString(),
                HasSubstr("collection \"POSTERS\": 2 families joined\n"));
    EXPECT_THAT(planned.out.toStdString(), HasSubstr("style \"Sans-Serif\": 2 families left\n"));
    EXPECT_EQ(exported(), before);
    EXPECT_EQ(lorvactl({"import", path(file)}).out, planned.out);
    expect({
        {{"collections"}, "By hand\t1\nPOSTERS\t3\n"},
        {{"collections", "list", "posters"}, "Alpha\nZeta\nNot here\n"},
        {{"styles", "list", "sans"}, "Gamma\n"},
        {{"foundries"}, "K\t2\n"},
    });
    EXPECT_FALSE(exported().contains("collection::p")) << "they belong to the one of that name";
    EXPECT_THAT(exported().toStdString(), HasSubstr("\"sampleText\": \"Hey\""));
    EXPECT_EQ(backups(), QStringList()) << "nothing was taken away";
}

TEST_F(ExportImport, ReplacesAndKeepsWhatWasThere)
{
    expect({
        {{"collections", "create", "Mine", "Alpha"}, ""},
        {{"collections", "create", "Posters", "Zeta"}, ""},
        {{"styles", "add", "sans", "Alpha"}, ""},
        {{"foundries", "add", "Klim", "Zeta"}, ""},
        {{"foundries", "hide", "Klim"}, ""},
    });
    const QByteArray before = exported();
    const Outcome replaced = lorvactl({"import", "--replace", path(file)});
    EXPECT_EQ(replaced.exitCode, 0) << replaced.error.constData();
    for (const char *line :
         {"collection \"Mine\" deleted\n", "style \"Sans-Serif\": 1 family left\n",
          "family \"Zeta\": of the foundry that its fonts name\n",
          "foundry \"klim\": shown again\n"})
        EXPECT_THAT(replaced.out.toStdString(), HasSubstr(line));
    expect({{{"collections"}, "By hand\t1\nPosters\t2\n"}});
    EXPECT_THAT(lorvactl({"doctor"}).out.toStdString(),
                HasSubstr("stylesClassified.v3\tboolean, 1 byte: true"))
        << "the window must not sort families into styles on top of that";

    ASSERT_EQ(backups().size(), 1);
    const FilePath backup = folder.child(backups().front().toUtf8());
    EXPECT_THAT(replaced.out.toStdString(), HasSubstr(backup.bytes().toStdString()));
    EXPECT_EQ(test::readFile(backup), before);
    EXPECT_EQ(lorvactl({"import", "--replace", path(backup)}).exitCode, 0);
    expect({{{"collections"}, "Mine\t1\nPosters\t1\n"}});
    EXPECT_EQ(backups().size(), 2) << "one of the same second gets another name";
}

TEST_F(ExportImport, MendsWhatCannotBeRead)
{
    const std::pair<const char *, PreferenceRow> unreadable[]{
        {"vantrel.merid.collections", {"data", "{"}},
        {"vantrel.merid.styles", {"boolean", "1"}},
        {"vantrel.merid.displaySettings", {"data", "[]"}},
        {"vantrel.merid.dismissedFoundries", {"stringArray", "[1]"}},
        {"vantrel.merid.foundryOverrides", {"stringDictionary", "{"}},
        {"vantrel.merid.foundryNameOverrides", {"data", "{}"}},
    };
    for (const auto &[key, row] : unreadable)
        store(key, row);
    // Wants nothing but what shows already.
    const Result<QByteArray> empty =
        encodeOrganizationFile({{{}, defaultStyleCategories(), {}}, {}, {}});
    ASSERT_TRUE(empty);
    const QString wanted = path(test::writeFile(data, "empty.json", *empty));

    EXPECT_EQ(lorvactl({"import", wanted}).out, "nothing to change\n");
    EXPECT_EQ(lorvactl({"collections"}).exitCode, 1);
    const Outcome planned = lorvactl({"import", "--replace", "--dry-run", wanted});
    const Outcome done = lorvactl({"import", "--replace", wanted});
    EXPECT_EQ(done.exitCode, 0);
    EXPECT_THAT(done.out.toStdString(), testing::StartsWith(planned.out.toStdString()));
    EXPECT_EQ(planned.error.count('\n'), 6);
    EXPECT_EQ(done.error.count('\n'), 7);
    EXPECT_THAT(done.error.toStdString(), HasSubstr(".json lacks what could not be read: vantrel"));
    EXPECT_EQ(exported(), *empty);
    const std::string told = lorvactl({"doctor"}).out.toStdString();
    for (const auto &[key, row] : unreadable) {
        EXPECT_THAT(planned.out.toStdString(), HasSubstr(std::string(key) + ": made anew\n"));
        const std::string kept = std::string(key) + ".unreadable";
        EXPECT_THAT(done.error.toStdString(), HasSubstr("is kept as " + kept + '\n'));
        EXPECT_THAT(told, HasSubstr("note\t" + kept + '\t' + row.kind.toStdString() + ", "));
    }

    store("vantrel.merid.collections", PreferenceRow{"data", "later damage"});
    const Outcome merged = lorvactl({"import", path(file)});
    EXPECT_EQ(merged.exitCode, 0);
    EXPECT_EQ(merged.error.count('\n'), 1) << "only of what it replaces";
    EXPECT_THAT(merged.error.toStdString(), HasSubstr("merid.collections.unreadable.2\n"));
    EXPECT_THAT(merged.out.toStdString(), HasSubstr("\"Posters\" created"));
}

TEST_F(ExportImport, ChangesNothingWhenItFails)
{
    expect({{{"collections", "create", "Mine"}, ""}});
    const auto before = files();
    const FilePath large = test::writeFile(data, "large.json", kFile);
    ASSERT_EQ(::truncate(large.c_str(), OrganizationFile::kMostBytes + 1), 0);
    ASSERT_EQ(::mkfifo(data.child("fifo").c_str(), 0600), 0);
    test::writeFile(data, "later.json", R"({"format":"lorva-organization","version":9})");
    test::writeFile(data, "cut.json", QByteArray(kFile).chopped(3));
    const auto wrong = [&](const char *name) { return path(data.child(name)); };
    expect({
        {{"import", wrong("none.json")}, "none.json", 1},
        {{"import", wrong("large.json")}, "large.json", 1},
        {{"import", wrong("fifo")}, "fifo", 1},
        {{"import", path(data)}, "regular file", 1},
        {{"import", wrong("later.json")}, "later.json: the file is of version 9", 1},
        {{"import", "--replace", wrong("cut.json")}, "cut.json: ", 1},
        {{"import"}, "one file", 2},
        {{"import", path(file), path(file)}, "one file", 2},
        {{"export", "somewhere"}, "-o FILE", 2},
        {{"export", "-o", path(data.child("new.otf"))}, "over a font", 1},
        {{"export", "-o", "/nowhere/x.json"}, "/nowhere", 1},
    });
    test::expectFailure(shell("lorvactl import - < /dev/null"), 1, "standard input: ");
    test::expectFailure(shell(QStringLiteral("cat '%1' | lorvactl import -").arg(path(large))), 1,
                        "bytes");
    EXPECT_EQ(files(), before);

    ::chmod(folder.c_str(), 0555);
    {
        const test::AsOrdinaryUser user;
        expect({{{"import", path(file)}, "preferences.sqlite", 1},
                {{"import", "--replace", path(file)}, "Lorva", 1}});
    }
    ::chmod(folder.c_str(), 0755);
    EXPECT_EQ(files(), before);
}

} // namespace
} // namespace lorva
