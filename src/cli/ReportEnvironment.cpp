// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Translations.h"
#include "cli/ReportSections.h"
#include "platform/linux/SessionBusProbe.h"
#include "platform/UserLanguages.h"

#include <QSysInfo>
#include <QThread>

#include <fontconfig/fontconfig.h>
#include <hb.h>
#include <sqlite3.h>
#include <unicode/uversion.h>

#include <algorithm>
#include <clocale>
#include <cmath>

#include <dlfcn.h>
#include <sys/sysinfo.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

constexpr std::chrono::milliseconds kBusPatience{500};

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

/// The digits and dots that it begins with.
QString leadingVersion(const QString &text)
{
    const auto end = std::find_if(text.begin(), text.end(),
                                  [](QChar c) { return c != u'.' && (c < u'0' || c > u'9'); });
    return text.left(end - text.begin());
}

QString fontconfigVersion()
{
    const int version = FcGetVersion();
    return QStringLiteral("%1.%2.%3")
        .arg(version / 10000)
        .arg(version / 100 % 100)
        .arg(version % 100);
}

QString icuVersion()
{
    UVersionInfo version;
    char text[U_MAX_VERSION_STRING_LENGTH];
    u_getVersion(version);
    u_versionToString(version, text);
    return latin(text);
}

/// Nothing where it is not installed. Asked of the library itself, which nothing links.
ReportValue svgLibraryVersion()
{
    void *const library = ::dlopen("librsvg-2.so.2", RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr)
        return NothingThere{};
    const auto number = [library](const char *name) {
        const auto *const value = static_cast<const unsigned *>(::dlsym(library, name));
        return value ? QString::number(*value) : QStringLiteral("?");
    };
    return QString(number("rsvg_major_version") + u'.' + number("rsvg_minor_version") + u'.'
                   + number("rsvg_micro_version"));
}

/// The name of the machine stands there, too, and behind the release whatever its builder liked.
ReportValue kernel()
{
    utsname system = {};
    if (::uname(&system) != 0)
        return NothingThere{};
    return QString(latin(system.sysname) + u' ' + leadingVersion(latin(system.release)) + u' '
                   + latin(system.machine));
}

/// As os-release(5) tells it to programs; its words for people may be anybody's.
QString distribution()
{
    return QString(QSysInfo::productType() + u' ' + QSysInfo::productVersion());
}

/// A word of the environment, if it is one that everybody has; anybody may write anything there.
QString known(const QByteArray &word, std::initializer_list<const char *> words)
{
    if (word.isEmpty())
        return QStringLiteral("none");
    const auto found = std::find_if(words.begin(), words.end(), [&](const char *each) {
        return word.compare(each, Qt::CaseInsensitive) == 0;
    });
    return found == words.end() ? QStringLiteral("another") : latin(*found);
}

QString desktop()
{
    QStringList desktops;
    for (const QByteArray &word : qgetenv("XDG_CURRENT_DESKTOP").split(':'))
        desktops << known(word, {"GNOME",    "KDE",    "XFCE",  "Cinnamon",      "X-Cinnamon",
                                 "MATE",     "LXQt",   "LXDE",  "Budgie",        "Pantheon",
                                 "Unity",    "Deepin", "DDE",   "sway",          "wlroots",
                                 "Hyprland", "niri",   "i3",    "COSMIC",        "Enlightenment",
                                 "ubuntu",   "pop",    "zorin", "GNOME-Classic", "GNOME-Flashback",
                                 "openbox",  "river",  "labwc", "Phosh",         "UKUI"});
    return desktops.join(QStringLiteral(", "));
}

/// A number from the environment; nothing else that may stand there.
ReportValue factor(const char *variable)
{
    const QByteArray text = qgetenv(variable);
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? ReportValue(value) : ReportValue(NothingThere{});
}

QString sandbox()
{
    if (::access("/.flatpak-info", F_OK) == 0)
        return QStringLiteral("Flatpak");
    if (!qgetenv("SNAP").isEmpty())
        return QStringLiteral("Snap");
    if (!qgetenv("APPIMAGE").isEmpty())
        return QStringLiteral("AppImage");
    return QStringLiteral("none");
}

ReportValue memoryMegabytes()
{
    struct sysinfo system = {};
    if (::sysinfo(&system) != 0)
        return NothingThere{};
    return qint64((quint64(system.totalram) * system.mem_unit) >> 20);
}

/// As the system took it: one that is not installed is "C".
ReportValue locale()
{
    const char *const name = std::setlocale(LC_CTYPE, nullptr);
    return name ? ReportValue(latin(name)) : ReportValue(NothingThere{});
}

} // namespace

ReportSection versionSection()
{
    return {"versions",
            {{QStringLiteral("lorva"), QStringLiteral(LORVA_VERSION)},
             {QStringLiteral("qt"), latin(qVersion())},
             {QStringLiteral("qtBuiltWith"), QStringLiteral(QT_VERSION_STR)},
             {QStringLiteral("harfbuzz"), latin(hb_version_string())},
             {QStringLiteral("fontconfig"), fontconfigVersion()},
             {QStringLiteral("icu"), icuVersion()},
             {QStringLiteral("sqlite"), latin(sqlite3_libversion())},
             {QStringLiteral("librsvg"), svgLibraryVersion()},
             {QStringLiteral("kernel"), kernel()},
             {QStringLiteral("distribution"), distribution()}}};
}

ReportSection environmentSection()
{
    return {"environment",
            {{QStringLiteral("desktop"), desktop()},
             {QStringLiteral("session"),
              known(qgetenv("XDG_SESSION_TYPE"), {"wayland", "x11", "tty", "mir"})},
             {QStringLiteral("waylandDisplay"), !qgetenv("WAYLAND_DISPLAY").isEmpty()},
             {QStringLiteral("x11Display"), !qgetenv("DISPLAY").isEmpty()},
             {QStringLiteral("sessionBus"), sessionBusAnswers(sessionBusAddress(), kBusPatience)},
             {QStringLiteral("sandbox"), sandbox()},
             {QStringLiteral("qtScaleFactor"), factor("QT_SCALE_FACTOR")},
             {QStringLiteral("gdkScale"), factor("GDK_SCALE")},
             {QStringLiteral("locale"), locale()},
             {QStringLiteral("language"), textLanguageFor(userLanguages())},
             {QStringLiteral("processors"), qint64(QThread::idealThreadCount())},
             {QStringLiteral("memoryMegabytes"), memoryMegabytes()}}};
}

} // namespace lorva::cli
