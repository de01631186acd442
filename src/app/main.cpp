// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LaunchHelp.h"
#include "app/LaunchOptions.h"
#include "app/LorvaApplicationDelegate.h"
#include "app/ProgramServices.h"
#include "base/Trace.h"
#include "base/Translations.h"
#include "platform/linux/DBusSingleInstance.h"
#include "platform/linux/ProcessMemory.h"
#include "platform/linux/SmallFontconfig.h"
#include "platform/UserLanguages.h"

#include <QApplication>
#include <QIcon>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <unistd.h>

namespace {

constexpr int kExitUsage = 2;

lorva::Result<lorva::LaunchOptions> readOptions(int argc, char **argv)
{
    return lorva::parseLaunchOptions(
        std::span<const char *const>(argv, size_t(argc)).subspan(argc > 0 ? 1 : 0),
        lorva::FilePath::workingFolder());
}

bool isSet(const char *variable)
{
    const char *value = std::getenv(variable);
    return value && *value;
}

bool hasDisplay()
{
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

QString usersLanguage()
{
    return lorva::textLanguageFor(lorva::userLanguages());
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(lorva)
};

/// Lets texts for the terminal be made in the user's language; for a process that opens no window.
class TerminalTexts
{
public:
    explicit TerminalTexts(char **argv)
        : m_application(m_argumentCount, argv)
    {
        lorva::installTranslations(usersLanguage());
    }

private:
    int m_argumentCount = 1;
    const QCoreApplication m_application;
};

void sayNoDisplay()
{
    std::fprintf(stderr, "lorva: %s\n",
                 qUtf8Printable(Texts::tr("no display to open a window on; start it in a desktop "
                                          "session, or make a picture with --screenshot FILE")));
}

/// What there is to say to a start that opens no window; gives the exit code.
int answerInTerminal(int argc, char **argv)
{
    const TerminalTexts texts(argv);
    // Read again, since what is wrong with it was put into English words.
    const auto options = readOptions(argc, argv);
    if (!options) {
        std::fprintf(stderr, "lorva: %s\n",
                     qUtf8Printable(Texts::tr("%1; see lorva --help").arg(options.error().detail)));
        return kExitUsage;
    }
    if (options->showsHelp) {
        std::fputs(qUtf8Printable(lorva::launchHelp()), stdout);
        return 0;
    }
    if (options->showsVersion) {
        std::puts("lorva " LORVA_VERSION);
        return 0;
    }
    sayNoDisplay();
    return kExitUsage;
}

/// Qt ends the process with a core dump when the display that the environment names does not
/// answer; the user gets one line instead.
void handleStartupMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg) {
        sayNoDisplay();
        ::_exit(kExitUsage);
    }
    // What a plugin says of a missing display, or Qt of a session without a runtime folder, is no
    // news.
    if (QByteArrayView(context.category).startsWith("qt.qpa")
        || message.contains(QLatin1String("XDG_RUNTIME_DIR")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

/// The desktop's, so that a theme may have its own; the built-in one where Lorva is not installed.
/// Only X11 asks programs for it, and looking costs the start 4 ms.
void setWindowIcon()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    const lorva::TraceStage stage("start: window icon");
    QGuiApplication::setWindowIcon(QIcon::fromTheme(
        QStringLiteral("vantrel.lorva"), QIcon(QStringLiteral(":/icon/vantrel.lorva.svg"))));
}

/// A worker that waits for a volume which does not answer would keep the process for as long. What
/// has to be written is written by now, and everything else may be cut short at any moment.
void endInTime(int status)
{
    std::thread([status] {
        std::this_thread::sleep_for(std::chrono::seconds(10));
        ::_exit(status);
    }).detach();
}

/// What another process is told if it takes this start over.
lorva::ProgramStart thisStart(int argc, char **argv)
{
    lorva::ProgramStart start{
        {}, lorva::FilePath::workingFolder(), lorva::activationTokenFromEnvironment()};
    for (int i = 1; i < argc; ++i)
        start.arguments << QByteArray(argv[i]);
    return start;
}

} // namespace

int main(int argc, char **argv)
{
    lorva::keepMemoryTogether();
    const bool isStartedByBus = lorva::takeStartedByBus();
    const auto options = readOptions(argc, argv);
    const bool isPicture = options && options->screenshot;
    if (!options || options->showsHelp || options->showsVersion || (!isPicture && !hasDisplay()))
        return answerInTerminal(argc, argv);
    if (isPicture)
        qputenv("QT_QPA_PLATFORM", "offscreen");

    const QString language = usersLanguage();
    // English needs no forms of its own: then the session's locale decides.
    if (language != QLatin1String("en"))
        lorva::useFontsForLanguage(language);
    lorva::DBusSingleInstance instance;
    if (!isPicture)
        instance.beginClaim(thisStart(argc, argv));
    auto catalogCache = lorva::LorvaApplicationDelegate::beginReadingCatalog(*options);
    // Before the application object: its font database is filled from the process's configuration.
    {
        const lorva::TraceStage stage("start: interface fonts");
        lorva::useSmallFontconfigForInterface();
    }
    if (!isPicture && instance.claim() == lorva::SingleInstance::Claim::handedOver)
        return 0;
    QCoreApplication::setApplicationName(QStringLiteral("Lorva"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LORVA_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("vantrel.lorva"));
    const QtMessageHandler usual = qInstallMessageHandler(handleStartupMessage);
    // The program's arguments are read above; Qt's own would let a file name pass for an option.
    int qtArgumentCount = 1;
    lorva::TraceStage applicationStage("start: application object");
    QApplication application(qtArgumentCount, argv);
    applicationStage.end();
    qInstallMessageHandler(usual);
    lorva::installTranslations(language);
    setWindowIcon();

    lorva::LorvaApplicationDelegate delegate(*options, std::move(catalogCache),
                                             lorva::programParts());
    instance.onStart = [&](const lorva::ProgramStart &start) { delegate.takeOver(start); };
    using Launch = lorva::LorvaApplicationDelegate::Launch;
    delegate.applicationDidFinishLaunching(isStartedByBus ? Launch::byBus : Launch::byUser);
    const int status = QApplication::exec();
    endInTime(status);
    instance.release();
    return status;
}
