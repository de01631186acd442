// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/XdgFolders.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace lorva {

namespace {

/// Without repeated and trailing slashes, so that one folder has one spelling.
FilePath tidied(QByteArrayView path)
{
    QByteArray tidy;
    for (const char byte : path) {
        if (byte != '/' || !tidy.endsWith('/'))
            tidy.append(byte);
    }
    if (tidy.size() > 1 && tidy.endsWith('/'))
        tidy.chop(1);
    return FilePath(tidy);
}

FilePath homeOfAccount()
{
    passwd entry{};
    passwd *found = nullptr;
    std::array<char, 16384> buffer;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return FilePath("/");
    return *entry.pw_dir == '/' ? tidied(entry.pw_dir) : FilePath("/");
}

FilePath homeFolder(const EnvironmentReader &environment)
{
    const QByteArray home = environment("HOME");
    return home.startsWith('/') ? tidied(home) : homeOfAccount();
}

FilePath userDataFolder(const FilePath &home, const EnvironmentReader &environment)
{
    const QByteArray data = environment("XDG_DATA_HOME");
    return data.startsWith('/') ? tidied(data) : home.child(".local").child("share");
}

std::vector<FilePath> sharedDataFolders(const EnvironmentReader &environment)
{
    QByteArray list = environment("XDG_DATA_DIRS");
    if (list.isEmpty())
        list = "/usr/local/share:/usr/share";
    std::vector<FilePath> folders;
    for (const QByteArray &folder : list.split(':')) {
        if (folder.startsWith('/'))
            folders.push_back(tidied(folder));
    }
    return folders;
}

} // namespace

QByteArray processEnvironment(const char *name)
{
    const char *const value = std::getenv(name);
    return value ? QByteArray(value) : QByteArray();
}

PlatformFolders xdgFolders(const EnvironmentReader &environment)
{
    PlatformFolders folders;
    folders.home = homeFolder(environment);
    const FilePath data = userDataFolder(folders.home, environment);
    folders.userFonts = data.child("fonts");
    folders.allUsersFonts = FilePath("/usr/local/share/fonts");
    folders.applicationSupport = data.child("Lorva");

    folders.systemFonts = {FilePath("/usr/share/fonts"), folders.home.child(".fonts")};
    for (const FilePath &shared : sharedDataFolders(environment)) {
        const FilePath fonts = shared.child("fonts");
        const bool isOther = fonts == folders.userFonts || fonts == folders.allUsersFonts;
        if (!isOther && !std::ranges::count(folders.systemFonts, fonts))
            folders.systemFonts.push_back(fonts);
    }
    return folders;
}

} // namespace lorva
