// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/TextColumns.h"
#include "OrganizationHome.h"

namespace lorva {
namespace {

using test::lorvactl;
using test::Outcome;
using test::path;
using test::TestHome;
using testing::HasSubstr;

/// What the environment says about languages.
struct Wish
{
    const char *list = "";
    const char *locale = "C.UTF-8";
};

constexpr Wish kEnglish;
constexpr Wish kGerman{"de"};

Outcome said(const QStringList &arguments, const Wish &wish)
{
    qputenv("LANGUAGE", wish.list);
    qputenv("LC_ALL", wish.locale);
    const Outcome outcome = lorvactl(arguments);
    qunsetenv("LANGUAGE");
    qputenv("LC_ALL", kEnglish.locale);
    return outcome;
}

std::string all(const Outcome &outcome)
{
    return outcome.out.toStdString() + outcome.error.toStdString();
}

class Language : public test::OrganizationHome
{
protected:
    const QString font = path(TestHome::instance().systemFonts().child("Alpha.ttf"));
    const QString missing = path(data.child("missing.ttf"));
    const QStringList activateMissing{"activate", "--method", "register", missing};
};

TEST_F(Language, IsTheUsersInWhatPeopleRead)
{
    struct Row
    {
        QStringList arguments;
        int exitCode = 0;
        /// In either language.
        std::string kept;
    };
    const Row rows[]{
        {{}, 2, "lorvactl --help"},
        {{"lost"}, 2, " lost; "},
        {{"list", "--bogus"}, 2, "lorvactl list --help"},
        {{"history", "--limit", "0"}, 2, "1000000"},
        {{"collections", "list", "No%1where"}, 1, "No%1where"},
        {activateMissing, 1, "missing.ttf: "},
        {{"updates", "--help"}, 0, ": lorvactl updates [--json]"},
        {{"info", font}, 0, " Alpha\n"},
        {{"doctor"}, 0, "ok\t"},
    };
    for (const auto &[arguments, exitCode, kept] : rows) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        const Outcome english = said(arguments, kEnglish);
        const Outcome german = said(arguments, kGerman);
        EXPECT_EQ(english.exitCode, exitCode);
        EXPECT_EQ(german.exitCode, exitCode);
        EXPECT_THAT(all(english), HasSubstr(kept));
        EXPECT_THAT(all(german), HasSubstr(kept));
        EXPECT_NE(all(german), all(english));
        EXPECT_EQ(english.out.isEmpty(), german.out.isEmpty());
    }
}

TEST_F(Language, IsEnglishInWhatProgramsRead)
{
    ASSERT_EQ(lorvactl({"collections", "create", "Posters", "Alpha"}).exitCode, 0);
    ASSERT_EQ(lorvactl({"folders", "add", path(data)}).exitCode, 0);
    ASSERT_EQ(lorvactl({"activate", "Alpha", "--method", "copy"}).exitCode, 0);
    const QStringList rows[]{
        {"--version"},
        {"list"},
        {"list", "--json"},
        {"styles"},
        {"foundries"},
        {"status", "--json"},
        {"folders", "--json"},
        {"history", "--json"},
        {"info", "--json", font},
        {"doctor", "--json"},
        {"collections", "--json"},
        QStringList(activateMissing) << "--json",
        {"collections"},
        {"folders"},
        {"status", "Alpha"},
        {"export"},
    };
    for (const QStringList &arguments : rows) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        const Outcome english = said(arguments, kEnglish);
        const Outcome german = said(arguments, kGerman);
        EXPECT_FALSE(english.out.isEmpty());
        EXPECT_EQ(german.out, english.out);
        EXPECT_EQ(german.error, english.error);
        EXPECT_EQ(german.exitCode, english.exitCode);
    }
}

TEST_F(Language, CountsRightly)
{
    const auto told = [&](const char *families, const Wish &wish) {
        const FilePath file = test::writeFile(
            data, "changes.json",
            QByteArray(R"({"format":"lorva-organization","version":1,"styleCategories":[],)"
                       R"("foundries":{"overrides":{},"names":{},"dismissed":[]},)"
                       R"("displaySettings":{},)"
                       R"("collections":[{"id":"a","name":"A","familyNames":[)")
                + families + "]}]}");
        const Outcome outcome = said({"import", "--dry-run", path(file)}, wish);
        EXPECT_EQ(outcome.error, "");
        return outcome.out;
    };
    EXPECT_EQ(told(R"("One")", kEnglish), "collection \"A\" created with 1 family\n");
    EXPECT_EQ(told(R"("One","Two")", kEnglish), "collection \"A\" created with 2 families\n");
    EXPECT_NE(told(R"("One")", kGerman).replace('1', '2'), told(R"("One","Two")", kGerman));
}

TEST_F(Language, IsEnglishForWhoeverWantsNoneThatIsThere)
{
    const QStringList arguments{"collections", "list", "Nowhere"};
    const QByteArray english = said(arguments, kEnglish).error;
    for (const Wish &wish : {Wish{"fr"}, Wish{"en:de"}, Wish{"de", "C"}, Wish{"", "tlh_XX.UTF-8"}})
        EXPECT_EQ(said(arguments, wish).error, english) << wish.list << ' ' << wish.locale;
    for (const Wish &wish : {Wish{"fr:de"}, Wish{"", "de_AT.UTF-8"}})
        EXPECT_NE(said(arguments, wish).error, english) << wish.list << ' ' << wish.locale;
}

TEST_F(Language, LeavesHelpWithinATerminal)
{
    for (const char *command :
         {"",        "list",      "search", "scan",    "info",      "specimen",   "collections",
          "styles",  "foundries", "export", "import",  "activate",  "deactivate", "status",
          "folders", "history",   "doctor", "updates", "thumbnail", "report"}) {
        QStringList arguments{QString::fromLatin1(command), "--help"};
        arguments.removeAll(QString());
        for (const Wish &wish :
             {kEnglish, kGerman, Wish{"ja"}, Wish{"ko"}, Wish{"zh_CN"}, Wish{"zh_TW"}}) {
            const QString help = QString::fromUtf8(said(arguments, wish).out);
            EXPECT_THAT(help.toStdString(), HasSubstr("lorvactl "));
            for (const QString &line : help.split(u'\n'))
                EXPECT_LE(displayWidth(line), 80) << line.toStdString();
        }
    }
}

} // namespace
} // namespace lorva
