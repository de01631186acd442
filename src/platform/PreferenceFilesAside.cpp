// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/PreferenceFilesAside.h"

#include <QDateTime>
#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>

#include <sys/stat.h>

namespace lorva {

Q_LOGGING_CATEGORY(filesAsideLog, "lorva.platform.preferences", QtCriticalMsg)

namespace {

constexpr char kMark[] = ".damaged-";
constexpr std::array kCompanions{"-wal", "-shm", "-journal"};

bool isTaken(const QByteArray &name)
{
    struct stat info;
    const auto isThere = [&](const char *suffix) {
        return ::lstat(QByteArray(name + suffix).constData(), &info) == 0;
    };
    return isThere("") || std::ranges::any_of(kCompanions, isThere);
}

/// "preferences.sqlite.damaged-20260131-120000", with a number while the name is taken.
FilePath freeNameFor(const FilePath &file)
{
    const QByteArray date = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss").toLatin1();
    const QByteArray base = file.bytes() + kMark + date;
    QByteArray name = base;
    for (int count = 2; isTaken(name); ++count)
        name = base + '-' + QByteArray::number(count);
    return FilePath(name);
}

bool isAside(const QByteArray &name, const QByteArray &fileName)
{
    return name.startsWith(QByteArray(fileName + kMark))
        && std::ranges::none_of(kCompanions,
                                [&](const char *suffix) { return name.endsWith(suffix); });
}

void renameCompanions(const FilePath &from, const FilePath &to)
{
    for (const char *suffix : kCompanions)
        std::rename(QByteArray(from.bytes() + suffix).constData(),
                    QByteArray(to.bytes() + suffix).constData());
}

} // namespace

bool movePreferencesAside(const FilePath &file)
{
    const FilePath aside = freeNameFor(file);
    // The log belongs to the file; beside a new one it would be read as damage. So it goes before
    // the name of the file is free for a new one.
    renameCompanions(file, aside);
    if (std::rename(file.c_str(), aside.c_str()) != 0) {
        renameCompanions(aside, file);
        return false;
    }
    qCWarning(filesAsideLog).noquote()
        << "the preferences could not be read; they were moved to" << aside.displayText();
    return true;
}

std::vector<FilePath> preferencesAside(const FilePath &file)
{
    namespace fs = std::filesystem;
    std::vector<FilePath> found;
    std::error_code error;
    fs::directory_iterator entry(file.parent().c_str(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const QByteArray name = QByteArray::fromStdString(entry->path().filename().native());
        if (isAside(name, file.fileName()))
            found.push_back(file.parent().child(name));
    }
    std::ranges::sort(found); // the names begin with the date
    return found;
}

} // namespace lorva
