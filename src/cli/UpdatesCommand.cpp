// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "platform/FeedUpdaterController.h"

#include <QCoreApplication>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl updates [--json] [--feed URL] [--key KEY]"})
        .paragraph(Texts::tr(
            "Asks the makers of Lorva over the network whether there is a newer release. Nothing "
            "is downloaded or installed. One line tells that this is the newest; of a newer one "
            "the first line tells version, day and page, and the second, if there is one, what is "
            "new. The exit status is 0 in both cases, and 1 when neither could be found out, as in "
            "a build whose updates come with the system's."))
        .entries({{"--json",
                   Texts::tr("one JSON object instead: isNewer, runningVersion, version, date, "
                             "page, summary")},
                  {"--feed URL",
                   Texts::tr("ask there instead, https or on this computer; to try out a feed")},
                  {"--key KEY",
                   Texts::tr("the feed's Ed25519 key, 32 bytes in Base64, instead of the makers'")},
                  helpEntry()});
}

QString runningVersion()
{
    return QStringLiteral(LORVA_VERSION);
}

Result<ReleaseFeedSettings> wantedFeed(const Arguments &arguments)
{
    ReleaseFeedSettings settings = builtInReleaseFeed();
    if (const std::optional<QByteArray> address = arguments.value("--feed")) {
        settings.address = QUrl::fromEncoded(*address, QUrl::StrictMode);
        if (settings.address.isEmpty())
            return failure(ErrorKind::usage, Texts::tr("--feed needs an address"));
    }
    settings.publicKey = arguments.value("--key").value_or(settings.publicKey);
    return settings;
}

Result<Release> newestRelease(FeedUpdaterController &updater, bool &isNewer)
{
    UpdateOutcome told;
    updater.onOutcome = [&told](const UpdateOutcome &outcome) {
        told = outcome;
        QCoreApplication::quit();
    };
    updater.checkForUpdates();
    QCoreApplication::exec();
    isNewer = told.kind == UpdateOutcome::Kind::newer;
    if (!told.release)
        return tl::unexpected(told.error.value_or(Error{}));
    return *told.release;
}

QString pageOf(const Release &release)
{
    return release.page.toString(QUrl::FullyEncoded);
}

void printLines(const Release &release, bool isNewer)
{
    if (!isNewer) {
        printText(QString(Texts::tr("Lorva %1 is up to date").arg(runningVersion()) % u'\n'));
        return;
    }
    const QString news = Texts::tr("Lorva %1 was released on %2; this is %3: %4")
                             .arg(release.version, release.date.toString(Qt::ISODate),
                                  runningVersion(), pageOf(release));
    printText(QString(news % u'\n'));
    if (!release.summary.isEmpty())
        printText(QString(singleLine(release.summary) % u'\n'));
}

void printJson(const Release &release, bool isNewer)
{
    JsonWriter out;
    const auto string = [&out](std::string_view key, const QString &value) {
        out.key(key);
        out.string(value);
    };
    out.beginObject();
    out.key("isNewer");
    out.boolean(isNewer);
    string("runningVersion", runningVersion());
    string("version", release.version);
    string("date", release.date.toString(Qt::ISODate));
    string("page", pageOf(release));
    string("summary", release.summary);
    out.endObject();
    print(QByteArray(out.take() + '\n'));
}

Result<void> run(const Arguments &arguments)
{
    if (!arguments.positional().empty())
        return failure(ErrorKind::usage, Texts::tr("updates takes no further words"));
    const Result<ReleaseFeedSettings> settings = wantedFeed(arguments);
    if (!settings)
        return tl::unexpected(settings.error());
    FeedUpdaterController updater(*settings, runningVersion());
    const Result<void> started = updater.start();
    if (!started && started.error().kind == ErrorKind::unsupported)
        return failure(ErrorKind::unsupported,
                       Texts::tr("this build does not look for new versions: the system's "
                                 "software updates bring them"));
    if (!started)
        return started;
    bool isNewer = false;
    const Result<Release> release = newestRelease(updater, isNewer);
    if (!release)
        return tl::unexpected(release.error());
    if (arguments.has("--json"))
        printJson(*release, isNewer);
    else
        printLines(*release, isNewer);
    return {};
}

} // namespace

int runUpdatesCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--feed"},
                                                          {"--key"}});
    if (!arguments)
        return failUsage("updates", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (const Result<void> done = run(*arguments); !done)
        return fail("updates", done.error());
    return finish();
}

} // namespace lorva::cli
