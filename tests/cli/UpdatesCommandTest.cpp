// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "LorvactlSupport.h"
#include "support/FeedServer.h"
#include "support/SignedFeed.h"
#include "support/Waiting.h"

namespace lorva {
namespace {

using test::answer;
using test::expectFailure;
using test::FeedServer;
using test::Outcome;
using testing::HasSubstr;

const test::FeedMakers kMakers;

/// While the server in this process answers.
Outcome lookAt(const FeedServer &server, const QStringList &options = {},
               const QByteArray &key = kMakers.publicKey())
{
    QProcess process;
    process.start(QStringLiteral(LORVACTL_PATH),
                  QStringList{"updates", "--feed", server.address().toString(), "--key",
                              QString::fromLatin1(key.toBase64())}
                      + options);
    EXPECT_TRUE(process.waitForStarted());
    EXPECT_TRUE(test::waitUntil([&] { return process.state() == QProcess::NotRunning; }));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

TEST(UpdatesCommand, TellsOfANewerRelease)
{
    const FeedServer server({{"/feed", answer("200 OK", kMakers.release("99.1"))}});
    const Outcome text = lookAt(server);
    EXPECT_EQ(text.exitCode, 0) << text.error.constData();
    EXPECT_EQ(text.out,
              "Lorva 99.1 was released on 2026-11-22; this is " LORVA_VERSION
              ": https://lorva.example/news\nFaster.\n");
    const QJsonObject json = QJsonDocument::fromJson(lookAt(server, {"--json"}).out).object();
    EXPECT_EQ(json,
              (QJsonObject{{"isNewer", true},
                           {"runningVersion", LORVA_VERSION},
                           {"version", "99.1"},
                           {"date", "2026-11-22"},
                           {"page", "https://lorva.example/news"},
                           {"summary", "Faster."}}));
    EXPECT_THAT(server.requests.first().toStdString(), HasSubstr("Lorva/" LORVA_VERSION "\r\n"));
}

TEST(UpdatesCommand, TellsThatThisIsTheNewest)
{
    for (const char *version : {LORVA_VERSION, "0"}) {
        const FeedServer server({{"/feed", answer("200 OK", kMakers.release(version))}});
        const Outcome text = lookAt(server);
        EXPECT_EQ(text.exitCode, 0) << text.error.constData();
        EXPECT_EQ(text.out, "Lorva " LORVA_VERSION " is up to date\n");
        EXPECT_THAT(lookAt(server, {"--json"}).out.toStdString(), HasSubstr("\"isNewer\":false"));
    }
}

TEST(UpdatesCommand, SaysInOneLineWhatFailed)
{
    const QByteArray others = test::FeedMakers('X').publicKey();
    const FeedServer server({{"/feed", answer("200 OK", kMakers.release("99.1"))}});
    expectFailure(lookAt(server, {}, others), 1, "not signed by the makers");
    expectFailure(lookAt(server, {"--json"}, others), 1, "not signed by the makers");
    expectFailure(lookAt(server, {}, "short"), 1, "32 bytes");
    const FeedServer missing({{"/feed", answer("404 Not Found", "")}});
    expectFailure(lookAt(missing), 1, "404");

    const QString key = QString::fromLatin1(kMakers.publicKey().toBase64());
    test::expect({
        {{"updates", "--feed", "http://lorva.example/", "--key", key}, "must begin with https", 1},
        {{"updates", "--feed", "lorva"}, "no https address", 1},
        {{"updates", "--feed", ""}, "--feed needs", 2},
        {{"updates", "now"}, "no further words", 2},
        {{"updates", "--install"}, "--install", 2},
    });
}

TEST(UpdatesCommand, SaysWhoBringsUpdatesWhereNoFeedIsBuiltIn)
{
    if (std::string_view(LORVA_RELEASE_FEED_URL).empty())
        expectFailure(test::lorvactl({"updates"}), 1, "the system's software updates bring them");
}

} // namespace
} // namespace lorva
