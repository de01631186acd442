// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/InterfaceFamilies.h"

#include "base/WholeFile.h"

#include <QList>

#include <algorithm>

namespace lorva {

namespace {

/// A settings file is a few hundred lines; more is none that a desktop wrote.
constexpr qint64 kMaxSettingsBytes = 1 << 20;

/// The value of `key` in the group "[group]" of an ini file.
QByteArray settingsValue(const FilePath &path, const QByteArray &group, const QByteArray &key)
{
    const QByteArray text = readWholeFile(path, kMaxSettingsBytes).value_or(QByteArray());
    bool isInGroup = false;
    for (const QByteArray &line : text.split('\n')) {
        const QByteArray entry = line.trimmed();
        if (entry.startsWith('['))
            isInGroup = entry == QByteArray('[' + group + ']');
        const qsizetype equals = entry.indexOf('=');
        if (isInGroup && equals > 0 && entry.first(equals).trimmed() == key)
            return entry.sliced(equals + 1).trimmed();
    }
    return {};
}

FilePath configFolder(const EnvironmentReader &environment)
{
    const QByteArray config = environment("XDG_CONFIG_HOME");
    return config.startsWith('/') ? FilePath(config)
                                  : xdgFolders(environment).home.child(".config");
}

} // namespace

QByteArray familyOfGtkFontName(QByteArrayView name)
{
    QByteArray family = name.toByteArray().trimmed();
    const qsizetype lastWord = std::max(family.lastIndexOf(' '), family.lastIndexOf(',')) + 1;
    bool isNumber = false;
    family.sliced(lastWord).toDouble(&isNumber);
    if (isNumber)
        family = family.first(lastWord).trimmed();
    const qsizetype comma = family.indexOf(',');
    return comma < 0 ? family : family.first(comma).trimmed();
}

QByteArray familyOfKdeFont(QByteArrayView entry)
{
    const QByteArray bytes = entry.toByteArray();
    return bytes.first(std::max<qsizetype>(bytes.indexOf(','), 0)).trimmed();
}

std::vector<QByteArray> configuredInterfaceFamilies(const EnvironmentReader &environment)
{
    const FilePath config = configFolder(environment);
    std::vector<QByteArray> families;
    for (const char *const version : {"gtk-4.0", "gtk-3.0"})
        families.push_back(familyOfGtkFontName(settingsValue(
            config.child(version).child("settings.ini"), "Settings", "gtk-font-name")));
    const QByteArray kde =
        familyOfKdeFont(settingsValue(config.child("kdeglobals"), "General", "font"));
    const bool isKde = environment("XDG_CURRENT_DESKTOP").contains("KDE");
    families.insert(isKde ? families.begin() : families.end(), kde);
    std::erase_if(families, [](const QByteArray &family) { return family.isEmpty(); });
    return families;
}

} // namespace lorva
