// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Translations.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "platform/UserLanguages.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <clocale>
#include <memory>
#include <vector>

namespace {

constexpr char kHelp[] = "Usage: lorvactl COMMAND [OPTION]...\n"
                         "\n"
                         "  list         list the font families of this machine\n"
                         "  search       list those that a search finds\n"
                         "  scan         read the fonts that changed, and tell what that took\n"
                         "  info         show what a font file says about its faces\n"
                         "  specimen     draw text in a font: PNG, SVG or PDF\n"
                         "\n"
                         "  collections  list, make and change collections\n"
                         "  styles       list, make and change styles\n"
                         "  foundries    list and correct the foundries\n"
                         "  export       write all of that to a file\n"
                         "  import       take it in from such a file\n"
                         "\n"
                         "  activate     make fonts available to every program\n"
                         "  deactivate   withdraw them again\n"
                         "  status       tell what is active, and how\n"
                         "  folders      list, add and remove watched folders\n"
                         "  history      tell what was switched on and off, and when\n"
                         "\n"
                         "  doctor       tell how preferences, caches and activation fare\n"
                         "  updates      ask whether there is a newer release of Lorva\n"
                         "\n"
                         "  --help       show this help; also after a command\n"
                         "  --version    show the version\n"
                         "\n"
                         "Exit status: 0 done, 1 failed, 2 the command was not understood.\n";

struct Command
{
    const char *name;
    int (*run)(std::span<const QByteArray> words);
};

constexpr Command kCommands[]{
    {"list", lorva::cli::runListCommand},
    {"search", lorva::cli::runSearchCommand},
    {"scan", lorva::cli::runScanCommand},
    {"info", lorva::cli::runInfoCommand},
    {"specimen", lorva::cli::runSpecimenCommand},
    {"collections", lorva::cli::runCollectionsCommand},
    {"styles", lorva::cli::runStylesCommand},
    {"foundries", lorva::cli::runFoundriesCommand},
    {"export", lorva::cli::runExportCommand},
    {"import", lorva::cli::runImportCommand},
    {"activate", lorva::cli::runActivateCommand},
    {"deactivate", lorva::cli::runDeactivateCommand},
    {"status", lorva::cli::runStatusCommand},
    {"folders", lorva::cli::runFoldersCommand},
    {"history", lorva::cli::runHistoryCommand},
    {"doctor", lorva::cli::runDoctorCommand},
    {"updates", lorva::cli::runUpdatesCommand},
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
    lorva::installTranslations(lorva::textLanguageFor(lorva::userLanguages()));
    return application;
}

} // namespace

int main(int argc, char **argv)
{
    using namespace lorva::cli;
    keepStandardStreamsOpen();
    const auto application = makeApplication();
    // A command says itself what failed, in one line. QT_LOGGING_RULES still brings the log back.
    QLoggingCategory::setFilterRules(QStringLiteral("lorva.*.warning=false"));
    const std::vector<QByteArray> words(argv + std::min(argc, 1), argv + argc);
    if (words.empty())
        return failUsage({}, QStringLiteral("a command is missing"));
    const QByteArray &first = words.front();
    if (first == "--help" || first == "-h" || first == "help") {
        print(kHelp);
        return finish();
    }
    if (first == "--version") {
        print("lorvactl " LORVA_VERSION "\n");
        return finish();
    }
    const auto command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                      [&](const Command &each) { return first == each.name; });
    if (command == std::end(kCommands))
        return failUsage({}, QStringLiteral("unknown command ") + QString::fromUtf8(first));
    return command->run(std::span(words).subspan(1));
}
