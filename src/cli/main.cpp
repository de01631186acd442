// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Translations.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "platform/UserLanguages.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <clocale>
#include <memory>
#include <vector>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl COMMAND [OPTION]..."}, 15)
        .entries({{"list", Texts::tr("list the font families of this machine")},
                  {"search", Texts::tr("list those that a search finds")},
                  {"scan", Texts::tr("read the fonts that changed, and tell what that took")},
                  {"info", Texts::tr("show what a font file says about its faces")},
                  {"specimen", Texts::tr("draw text in a font: PNG, SVG or PDF")},
                  {"thumbnail", Texts::tr("draw the picture of a font that file managers show")}})
        .entries({{"collections", Texts::tr("list, make and change collections")},
                  {"styles", Texts::tr("list, make and change styles")},
                  {"foundries", Texts::tr("list and correct the foundries")},
                  {"export", Texts::tr("write all of that to a file")},
                  {"import", Texts::tr("take it in from such a file")}})
        .entries({{"activate", Texts::tr("make fonts available to every program")},
                  {"deactivate", Texts::tr("withdraw them again")},
                  {"status", Texts::tr("tell what is active, and how")},
                  {"folders", Texts::tr("list, add and remove watched folders")},
                  {"history", Texts::tr("tell what was switched on and off, and when")}})
        .entries({{"doctor", Texts::tr("tell how preferences, caches and activation fare")},
                  {"report", Texts::tr("tell what a report of a fault needs, and nobody's names")},
                  {"updates", Texts::tr("ask whether there is a newer release of Lorva")}})
        .entries({{"--help", Texts::tr("show this help; also after a command")},
                  {"--version", Texts::tr("show the version")}})
        .paragraph(Texts::tr("Exit status: 0 done, 1 failed, 2 the command was not understood."));
}

struct Command
{
    const char *name;
    int (*run)(std::span<const QByteArray> words);
};

constexpr Command kCommands[]{
    {"list", runListCommand},         {"search", runSearchCommand},
    {"scan", runScanCommand},         {"info", runInfoCommand},
    {"specimen", runSpecimenCommand}, {"collections", runCollectionsCommand},
    {"styles", runStylesCommand},     {"foundries", runFoundriesCommand},
    {"export", runExportCommand},     {"import", runImportCommand},
    {"activate", runActivateCommand}, {"deactivate", runDeactivateCommand},
    {"status", runStatusCommand},     {"folders", runFoldersCommand},
    {"history", runHistoryCommand},   {"doctor", runDoctorCommand},
    {"updates", runUpdatesCommand},   {"thumbnail", runThumbnailCommand},
    {"report", runReportCommand},
};

/// Qt has something to say about locales that are not UTF-8; a command's errors are its own.
void saysNothing(QtMsgType, const QMessageLogContext &, const QString &) { }

/// For runs that end in an event loop, and for texts in the user's language. The command's words
/// are its own: the application gets none.
std::unique_ptr<QCoreApplication> makeApplication()
{
    static char name[] = "lorvactl";
    static char *arguments[]{name, nullptr};
    static int count = 1;
    const QtMessageHandler usual = qInstallMessageHandler(saysNothing);
    auto application = std::make_unique<QCoreApplication>(count, arguments);
    qInstallMessageHandler(usual);
    std::setlocale(LC_NUMERIC, "C");
    installTranslations(textLanguageFor(userLanguages()));
    return application;
}

} // namespace

} // namespace lorva::cli

int main(int argc, char **argv)
{
    using namespace lorva::cli;
    keepStandardStreamsOpen();
    const auto application = makeApplication();
    // A command says itself what failed, in one line. QT_LOGGING_RULES still brings the log back.
    QLoggingCategory::setFilterRules(QStringLiteral("lorva.*.warning=false"));
    const std::vector<QByteArray> words(argv + std::min(argc, 1), argv + argc);
    if (words.empty())
        return failUsage({}, Texts::tr("a command is missing"));
    const QByteArray &first = words.front();
    if (first == "--help" || first == "-h" || first == "help")
        return showHelp(help());
    if (first == "--version") {
        print("lorvactl " LORVA_VERSION "\n");
        return finish();
    }
    const auto command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                      [&](const Command &each) { return first == each.name; });
    if (command == std::end(kCommands))
        return failUsage({}, Texts::tr("unknown command %1").arg(QString::fromUtf8(first)));
    return command->run(std::span(words).subspan(1));
}
