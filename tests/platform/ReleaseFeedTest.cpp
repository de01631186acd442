// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/ReleaseFeed.h"

#include "platform/ReleaseVersion.h"
#include "support/AdverseSystem.h"
#include "support/SignedFeed.h"

#include <QProcess>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::FeedMakers;

constexpr char kPayload[] =
    R"({"format":1,"product":"vantrel.lorva","version":"1.2","date":"2026-02-28",)"
    R"("page":"https://lorva.example/1.2","summary":"Faster."})";

TEST(ReleaseVersion, OrdersVersions)
{
    // Each line is older than the next; those on one line are the same.
    const QStringList lines[]{
        {"0"},
        {"0.1-1"},
        {"0.1-a"},
        {"0.1", "0.1.0", "00.1", "0.1.0.0.0"},
        {"0.9.9"},
        {"0.10"},
        {"1.3-beta", "1.3-BETA", "1.3.0-beta"},
        {"1.3-beta2", "1.3-beta.2", "1.3-beta02"},
        {"1.3-beta2a"},
        {"1.3-beta10"},
        {"1.3-rc1"},
        {"1.3"},
        {"1.3.0.1"},
        {"9999999999999999999999999999"},
        {"10000000000000000000000000000"},
    };
    for (size_t i = 0; i < std::size(lines); ++i) {
        for (size_t j = 0; j < std::size(lines); ++j) {
            for (const QString &left : lines[i]) {
                for (const QString &right : lines[j]) {
                    const std::weak_ordering expected = i <=> j;
                    EXPECT_TRUE(compareVersions(left, right) == std::optional(expected))
                        << left.toStdString() << " and " << right.toStdString();
                }
            }
        }
    }
}

TEST(ReleaseVersion, RefusesWhatIsNoVersion)
{
    for (const char *garbage :
         {"",
          ".",
          "1.",
          ".1",
          "1..2",
          "v1",
          "1,2",
          " 1",
          "1 ",
          "1\n",
          "-1",
          "1-",
          "1-b-c",
          "1-.b",
          "1+git",
          "1.x",
          "١.٢",
          "1-β",
          "one",
          "1.2-beta\xe2\x80\x8b",
          "1.1111111111111111111111111111111111111111111111111111111111111111"}) {
        EXPECT_FALSE(isReleaseVersion(QString::fromUtf8(garbage))) << garbage;
        EXPECT_FALSE(compareVersions(QString::fromUtf8(garbage), u"1")) << garbage;
        EXPECT_FALSE(compareVersions(u"1", QString::fromUtf8(garbage))) << garbage;
    }
}

TEST(ReleaseFeed, ReadsWhatItsMakersSigned)
{
    const FeedMakers makers;
    const Release release{"1.2", QDate(2026, 2, 28), QUrl("https://lorva.example/1.2"), "Faster."};
    EXPECT_EQ(readReleaseFeed(makers.feed(kPayload), makers.publicKey()), release);
    const QByteArray later = QByteArray(kPayload).replace('{', R"({"note":{"format":9},)");
    EXPECT_EQ(readReleaseFeed(makers.feed(later), makers.publicKey()), release);
    EXPECT_EQ(readReleaseFeedKey(makers.publicKey().toBase64()), makers.publicKey());
}

TEST(ReleaseFeed, TellsApartWhatIsWrong)
{
    const FeedMakers makers;
    const auto changed = [&](const char *before, const char *after) {
        const QByteArray payload = QByteArray(kPayload).replace(before, after);
        EXPECT_NE(payload, kPayload) << before;
        return makers.feed(payload);
    };
    const QByteArray good = makers.feed(kPayload);
    const QByteArray signature = makers.signature(kPayload).toBase64();
    const QByteArray longPage = "https://lorva.example/" + QByteArray(2048, 'x');
    const struct
    {
        const char *what;
        QByteArray feed;
        ErrorKind kind;
    } rows[]{
        {"nothing", "", ErrorKind::malformed},
        {"a login page", "<html>Welcome to the hotel</html>", ErrorKind::malformed},
        {"cut", good.chopped(1), ErrorKind::malformed},
        {"more", good + "x", ErrorKind::malformed},
        {"no signature", R"({"payload":"e30="})", ErrorKind::malformed},
        {"a number", R"({"payload":1,"signature":"e30="})", ErrorKind::malformed},
        {"half a Base64", QByteArray(good).replace(signature, "e30"), ErrorKind::malformed},
        {"too large", good + QByteArray(65536, ' '), ErrorKind::tooLarge},
        {"a short signature", QByteArray(good).replace(signature, "e30="), ErrorKind::invalidValue},
        {"others' word", FeedMakers('X').feed(kPayload), ErrorKind::invalidValue},
        {"others' garbage", FeedMakers('X').feed("{"), ErrorKind::invalidValue},
        {"no JSON within", makers.feed("release"), ErrorKind::malformed},
        {"a list within", makers.feed("[]"), ErrorKind::malformed},
        {"no format", changed(R"("format":1,)", ""), ErrorKind::malformed},
        {"a later format", changed(R"("format":1)", R"("format":2)"), ErrorKind::unsupported},
        {"a later format alone", makers.feed(R"({"format":7})"), ErrorKind::unsupported},
        {"another product", changed("vantrel.lorva", "vantrel.other"), ErrorKind::typeMismatch},
        {"no product", changed(R"("product":"vantrel.lorva",)", ""), ErrorKind::malformed},
        {"no version", changed(R"("version":"1.2",)", ""), ErrorKind::malformed},
        {"a version of words", changed(R"("1.2")", R"("new")"), ErrorKind::malformed},
        {"no day", changed("2026-02-28", "2026-02-30"), ErrorKind::malformed},
        {"a time", changed("2026-02-28", "2026-02-28T10:00"), ErrorKind::malformed},
        {"no https", changed("https:", "http:"), ErrorKind::malformed},
        {"a script", changed("https://lorva.example/1.2", "javascript:alert(1)"),
         ErrorKind::malformed},
        {"a file", changed("https://lorva.example/1.2", "file:///etc/passwd"),
         ErrorKind::malformed},
        {"no server", changed("https://lorva.example/1.2", "https:///x"), ErrorKind::malformed},
        {"a disguise", changed("//lorva", "//lorva.example@other"), ErrorKind::malformed},
        {"a broken page", changed("lorva.example/1.2", "lorva.example/%zz"), ErrorKind::malformed},
        {"a long page", changed("https://lorva.example/1.2", longPage), ErrorKind::malformed},
    };
    for (const auto &row : rows) {
        const Result<Release> release = readReleaseFeed(row.feed, makers.publicKey());
        ASSERT_FALSE(release) << row.what;
        EXPECT_EQ(int(release.error().kind), int(row.kind))
            << row.what << ": " << release.error().detail.toStdString();
        EXPECT_FALSE(release.error().detail.isEmpty() || release.error().detail.endsWith(u'.'));
    }
    for (const QByteArray &key : {QByteArray(), makers.publicKey().chopped(1)})
        EXPECT_FALSE(readReleaseFeed(good, key));
}

TEST(ReleaseFeed, NoticesEveryChangedByte)
{
    const FeedMakers makers;
    const QByteArray good = makers.feed(kPayload);
    for (qsizetype i = 0; i < good.size(); ++i) {
        for (const char change : {char(0x01), char(0x20)}) {
            QByteArray feed = good;
            feed[i] = char(feed[i] ^ change);
            EXPECT_FALSE(readReleaseFeed(feed, makers.publicKey())) << feed.constData();
        }
    }
}

TEST(ReleaseFeed, ShowsTheSummaryOnOneHarmlessLine)
{
    const FeedMakers makers;
    const struct
    {
        QByteArray written;
        QString read;
    } rows[]{
        {R"( Two\nlines\t and\u0000more\u2028 )", "Two lines and more"},
        {R"(ab\u202ecd\u2066ef\u200bgh\ufeff\udb40\udc41)", "abcdefgh"},
        {R"(\u0645\u06cc\u200c\u062e \ud83d\udc68\u200d\ud83d\udc69)", "می‌خ 👨‍👩"},
        {QByteArray(700, 'a'), QString(599, u'a') + u'…'},
        {QByteArray(598, 'a') + "😀😀", QString(598, u'a') + u'…'},
    };
    for (const auto &row : rows) {
        const QByteArray payload = QByteArray(kPayload).replace("Faster.", row.written);
        const Result<Release> release = readReleaseFeed(makers.feed(payload), makers.publicKey());
        ASSERT_TRUE(release) << release.error().detail.toStdString();
        EXPECT_EQ(release->summary, row.read);
    }
}

TEST(ReleaseFeed, RefusesKeysThatAreNone)
{
    for (const QByteArray &key : {QByteArray(), QByteArray(31, 'k').toBase64(),
                                  QByteArray(33, 'k').toBase64(), QByteArray("no key!")})
        EXPECT_FALSE(readReleaseFeedKey(key)) << key.constData();
}

/// What makers run to announce a release.
class SignReleaseFeed : public testing::Test
{
protected:
    struct Outcome
    {
        int exitCode = -1;
        QByteArray out;
        QByteArray error;
    };

    Outcome sign(const QStringList &arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LORVA_SKIP_PACKAGES", "1");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(QString::fromUtf8(m_folder.bytes()));
        process.start(QStringLiteral(LORVA_SOURCE_FOLDER "/scripts/sign-release-feed"), arguments);
        EXPECT_TRUE(process.waitForFinished());
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

    const FilePath m_folder = test::makeCaseFolder();
};

TEST_F(SignReleaseFeed, WritesWhatTheProgramBelieves)
{
    const Outcome made = sign({"--new-key", "makers.pem"});
    ASSERT_EQ(made.exitCode, 0) << made.error.constData();
    const Result<QByteArray> key = readReleaseFeedKey(made.out.trimmed());
    ASSERT_TRUE(key) << made.out.constData();
    EXPECT_EQ(sign({"--public-key", "makers.pem"}).out, made.out);

    const QString summary = QString::fromUtf8("“Quotes”, \"more\", back\\slashes/ and $HOME 😀");
    const Outcome feed =
        sign({"makers.pem", "1.3-beta2", "2026-11-22", "https://lorva.example/a?b=c&d", summary});
    ASSERT_EQ(feed.exitCode, 0) << feed.error.constData();
    const Result<Release> release = readReleaseFeed(feed.out, *key);
    ASSERT_TRUE(release) << release.error().detail.toStdString();
    EXPECT_EQ(*release,
              (Release{"1.3-beta2", QDate(2026, 11, 22), QUrl("https://lorva.example/a?b=c&d"),
                       summary}));
    const qsizetype within = feed.out.indexOf("payload") + 20;
    QByteArray changed = feed.out;
    changed[within] = changed[within] == 'A' ? 'B' : 'A';
    EXPECT_FALSE(readReleaseFeed(changed, *key));
}

TEST_F(SignReleaseFeed, RefusesWhatTheProgramWouldRefuse)
{
    ASSERT_EQ(sign({"--new-key", "makers.pem"}).exitCode, 0);
    const QByteArray before = test::readFile(m_folder.child("makers.pem"));
    const QString page = "https://lorva.example/";
    const QStringList wrong[]{
        {},
        {"--new-key"},
        {"--new-key", "makers.pem"},
        {"--public-key", "missing.pem"},
        {"makers.pem", "1.3", "2026-11-22", page},
        {"missing.pem", "1.3", "2026-11-22", page, "Faster."},
        {"makers.pem", "v1.3", "2026-11-22", page, "Faster."},
        {"makers.pem", "1.3", "2026-02-30", page, "Faster."},
        {"makers.pem", "1.3", "today", page, "Faster."},
        {"makers.pem", "1.3", "2026-11-22", "http://lorva.example/", "Faster."},
        {"makers.pem", "1.3", "2026-11-22", "https://lorva.example/ \"", "Faster."},
        {"makers.pem", "1.3", "2026-11-22", page, "Two\nlines"},
        {"makers.pem", "1.3", "2026-11-22", page, QString(601, u'a')},
    };
    for (const QStringList &arguments : wrong) {
        const Outcome outcome = sign(arguments);
        EXPECT_NE(outcome.exitCode, 0) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.out, "") << arguments.join(u' ').toStdString();
        EXPECT_NE(outcome.error, "");
    }
    EXPECT_EQ(test::readFile(m_folder.child("makers.pem")), before);
}

} // namespace
} // namespace lorva
