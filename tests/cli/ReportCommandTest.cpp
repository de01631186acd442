// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "OrganizationHome.h"

#include <QSysInfo>

namespace lorva {
namespace {

using test::lorvactl;
using test::Outcome;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

/// In every name that a report could give away.
constexpr char kTelltale[] = "Wilhelmina";

class ReportCommand : public test::OrganizationHome
{
protected:
    /// The report as lines and as JSON.
    static std::string told()
    {
        std::string all;
        for (const QStringList &arguments :
             {QStringList{"report"}, QStringList{"report", "--json"}}) {
            const Outcome outcome = lorvactl(arguments);
            EXPECT_EQ(outcome.exitCode, 0);
            EXPECT_EQ(outcome.error, "");
            all += outcome.out.toStdString();
        }
        return all;
    }

    static QJsonObject section(const char *name)
    {
        const QJsonObject report = test::json({"report"}).object();
        EXPECT_TRUE(report.contains(QLatin1String(name))) << name;
        return report[QLatin1String(name)].toObject();
    }

    /// A library in which everything that has a name bears the telltale one.
    void giveNamesAway()
    {
        const FilePath watched = test::TestHome::instance().makeFolder("Wilhelmina's fonts");
        const FilePath font = test::writeFile(
            watched, "Wilhelmina.ttf",
            test::FontBuilder("Wilhelmina Sans").manufacturer("Wilhelmina").build());
        const QByteArray file = font.bytes();
        store("vantrel.merid.watchedFolders",
              PreferenceRow{"data",
                            QByteArray(R"([{"id":"Wilhelmina","bookmark":"","lastKnownPath":")"
                                       + watched.bytes() + R"("}])")});
        const std::pair<const char *, PreferenceRow> rows[]{
            {"vantrel.merid.collections",
             {"data", R"([{"id":"W","name":"Wilhelmina","familyNames":["Wilhelmina Sans"]}])"}},
            {"vantrel.merid.styles",
             {"data", R"([{"id":"serif","name":"Wilhelmina","familyNames":["Wilhelmina"]}])"}},
            {"vantrel.merid.displaySettings",
             {"data",
              R"({"allFonts":{"sampleText":"Wilhelmina","customForegroundColorHex":"Wilhelmina",)"
              R"("browserPointSize":42.5,"colorMode":2,"backgroundImageID":"Wilhelmina",)"
              R"("backgroundImageUserFilename":"Wilhelmina.png"},)"
              R"("collection::Wilhelmina":{"sampleText":"Wilhelmina"}})"}},
            {"vantrel.merid.dismissedFoundries", {"stringArray", R"(["Wilhelmina"])"}},
            {"vantrel.merid.foundryOverrides",
             {"stringDictionary", R"({"Wilhelmina Sans":"Wilhelmina"})"}},
            {"vantrel.merid.foundryNameOverrides",
             {"stringDictionary", R"({"klim":"Wilhelmina"})"}},
            {"vantrel.merid.fontInstallations",
             {"data", R"({"Wilhelmina Sans":"copy","Wilhelmina Serif":"register"})"}},
            {"vantrel.merid.lorvaRegisteredURLs", {"stringArray", "[\"" + file + "\"]"}},
            {"vantrel.merid.fontOrigins", {"stringDictionary", "{\"" + file + "\":\"/W\"}"}},
            {"vantrel.merid.defaultInstallMethod", {"string", "Wilhelmina"}},
            {"vantrel.merid.collapsedSidebarGroups", {"stringArray", R"(["Wilhelmina"])"}},
            {"vantrel.merid.windowFrame.LorvaMainWindow", {"string", "Wilhelmina"}},
            {"vantrel.merid.hasSeenQuizIntro", {"boolean", "1"}},
            {"vantrel.merid.logo", {"data", R"({"Wilhelmina":1})"}},
            {"vantrel.merid.styles.unreadable", {"data", "Wilhelmina"}},
            {"Wilhelmina", {"string", "Wilhelmina"}},
        };
        for (const auto &[key, row] : rows)
            store(key, row);
        test::writeFile(folder, "catalog.json", R"({"families":["Wilhelmina"]})");
        test::writeFile(folder, "parse-cache.json", R"({"Wilhelmina":1})");
        test::writeFile(folder, "preferences.sqlite.damaged-Wilhelmina", "");
    }
};

/// Sets a variable for lorvactl until the end of the case.
class Environment
{
public:
    Environment(const char *name, const QByteArray &value)
        : m_name(name)
        , m_before(qgetenv(name))
        , m_wasSet(qEnvironmentVariableIsSet(name))
    {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    ~Environment() { m_wasSet ? qputenv(m_name, m_before) : qunsetenv(m_name); }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;

private:
    const char *const m_name;
    const QByteArray m_before;
    const bool m_wasSet;
};

} // namespace

TEST_F(ReportCommand, NamesNothingAndNobody)
{
    giveNamesAway();
    const FilePath home = test::TestHome::instance().makeFolder("Wilhelmina");
    const Environment places[]{{"HOME", home.bytes()}, {"USER", kTelltale}, {"LOGNAME", kTelltale}};
    const Environment words[]{{"XDG_CURRENT_DESKTOP", "Wilhelmina:KDE"},
                              {"XDG_SESSION_TYPE", kTelltale},
                              {"QT_SCALE_FACTOR", kTelltale},
                              {"GDK_SCALE", "2"},
                              {"LANGUAGE", kTelltale},
                              {"DISPLAY", kTelltale},
                              {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/Wilhelmina"}};
    const std::string report = told();
    for (const QByteArray &name :
         {QByteArray(kTelltale), QByteArray("Alpha"), QByteArray("Klim"), QByteArray(".ttf"),
          test::TestHome::instance().root().bytes(), QSysInfo::machineHostName().toUtf8()})
        EXPECT_THAT(report, Not(HasSubstr(name.toStdString())));
    EXPECT_THAT(report, Not(HasSubstr("/home")));
    // So it did look at all of it.
    EXPECT_EQ(section("environment")["desktop"], QStringLiteral("another, KDE"));
    EXPECT_EQ(section("environment")["gdkScale"], 2);
    EXPECT_EQ(section("library")["watchedFolders"], 1);
    EXPECT_EQ(section("library")["filesInWatchedFolders"], 1);
    EXPECT_EQ(section("library")["families"], lorvactl({"list"}).out.count('\n'));
    EXPECT_EQ(section("library")["familiesCopied"], 1);
    EXPECT_EQ(section("library")["familiesRegistered"], 1);
    EXPECT_EQ(section("filesInBytes")["damagedPreferencesKept"], 1);
    EXPECT_EQ(section("doctor")["isWell"], false);
    const QJsonObject preferences = section("preferences");
    EXPECT_EQ(preferences["collections"], 1);
    EXPECT_EQ(preferences["hasSeenQuizIntro"], true);
    EXPECT_EQ(preferences["windowFrame.LorvaMainWindow"], QStringLiteral("damaged"));
    EXPECT_EQ(preferences["logo"], QStringLiteral("damaged"));
    EXPECT_EQ(preferences["unknownKeys"], 1);
    EXPECT_EQ(preferences["keptUnreadable"], 1);
    const QJsonObject display = section("display");
    EXPECT_EQ(display["pointSize"], 42.5);
    EXPECT_EQ(display["colorMode"], QStringLiteral("custom"));
    EXPECT_EQ(display["sampleText"], QStringLiteral("set"));
    EXPECT_EQ(display["sourcesWithTheirOwn"], 1);
}

TEST_F(ReportCommand, LeavesEverythingAsItIs)
{
    giveNamesAway();
    const auto before = files();
    told();
    EXPECT_EQ(files(), before);
    moveToEmptyHome();
    told();
    EXPECT_NE(::access(folder.c_str(), F_OK), 0);
}

TEST_F(ReportCommand, TellsVersionsAndTimes)
{
    const Environment german("LANGUAGE", "de");
    const std::string report = lorvactl({"report"}).out.toStdString();
    for (const char *line :
         {"\n  lorva +[0-9.]+\n", "\n  qt +6[0-9.]+\n", "\n  harfbuzz +[0-9.]+\n",
          "\n  fontconfig +2[0-9.]+\n", "\n  icu +[0-9.]+\n", "\n  sqlite +3[0-9.]+\n",
          "\n  librsvg +2[0-9.]+\n", "\n  kernel +Linux [0-9.]+ [a-z0-9_]+\n",
          "\n  distribution +[a-z]+ [0-9.a-z]+\n", "\n  language +de\n",
          "\n  scanInAll +[0-9.]+ ms\n", "\n  families +[1-9]", "\n  faces +[1-9]",
          "\n  isWell +yes\n", "\nNothing here names a font, [^\n]+\n$"})
        EXPECT_THAT(report, ContainsRegex(line));
}

TEST_F(ReportCommand, NeedsNoHomeBusDisplayOrSoundPreferences)
{
    {
        const Environment nothing[]{{"HOME", {}},
                                    {"XDG_DATA_HOME", {}},
                                    {"XDG_CONFIG_HOME", {}},
                                    {"XDG_RUNTIME_DIR", {}},
                                    {"DISPLAY", {}},
                                    {"DBUS_SESSION_BUS_ADDRESS", {}}};
        EXPECT_EQ(lorvactl({"report"}).exitCode, 0);
    }
    {
        const Environment nowhere("HOME", "/nonexistent");
        EXPECT_THAT(told(), HasSubstr("isWell"));
    }
    test::TestHome::instance().makeFolder(folder.parent().fileName());
    ::mkdir(folder.c_str(), 0700);
    test::writeFile(folder, "preferences.sqlite", "no database, but long enough to be looked at");
    EXPECT_THAT(told(), ContainsRegex("preferenceFileWrong +1\n"));
    test::expectFailure(lorvactl({"report", "more"}), 2, "takes no words");
}

} // namespace lorva
