// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogCache.h"
#include "catalog/PersistedCache.h"

namespace lorva::test {

/// A style as a scan gives it; `seed` tells libraries apart.
inline FontStyleRecord sampleStyle(int seed, int index)
{
    const QString name = QStringLiteral("Ünit \"%1\"\\%2-かな").arg(seed).arg(index);
    FontStyleRecord style{
        name, QStringLiteral("Bold Italic"), name, 100 + index % 801, index % 2 == 0, std::nullopt};
    if (index % 3 != 0)
        style.fileURL = FilePath(QByteArray("/fonts/" + name.toUtf8() + "\n.otf"));
    return style;
}

/// `count` files: most with one face, some with two or without any.
inline PersistedCache sampleCache(int seed, int count)
{
    PersistedCache cache;
    for (int i = 0; i < count; ++i) {
        const QString family = QStringLiteral("Family %1 ş %2").arg(seed).arg(i / 3);
        ParsedFontFile file{qint64(i) << 40, -1.0 / (i + 3), {}};
        for (int face = i % 5 == 0 ? 2 : i % 7 == 0 ? 0 : 1; face > 0; --face)
            file.entries.push_back({family, sampleStyle(seed, i)});
        cache.files.insert(FilePath(QByteArray("/fonts/" + QByteArray::number(i) + "ü.ttf")), file);
        cache.manufacturers.insert(family, QStringLiteral("Maker\t%1").arg(seed));
        cache.identities.insert(family,
                                {{WritingScript::latin, kAllWritingScripts[i % 5]},
                                 kAllWritingScripts[i % 5],
                                 QStringList{QStringLiteral("別名"), family}});
    }
    cache.identities.insert(QStringLiteral("No Scripts"), {});
    return cache;
}

inline CatalogSnapshot sampleSnapshot(int seed, int count)
{
    std::vector<FontFamilyRecord> families;
    for (int i = 0; i < count; ++i) {
        FontFamilyRecord family{
            QStringLiteral("Family %1 %2").arg(seed).arg(count - i), {}, {}, {}, {}};
        for (int style = 0; style <= i % 3; ++style)
            family.styles.push_back(sampleStyle(seed, i + style));
        if (i % 4 == 1)
            family.scripts.emplace();
        if (i % 4 > 1) {
            family.scripts = {WritingScript::latin, WritingScript::korean};
            family.primaryScript = WritingScript::korean;
            family.alternateNames = QStringList{QStringLiteral("나눔 %1").arg(i)};
        }
        families.push_back(std::move(family));
    }
    // A name that is no UTF-8 has a file URL all the same.
    if (!families.empty())
        families.back().styles.back().fileURL = FilePath("/fonts/\xFF %.otf");
    return {makeFamilyList(std::move(families)), {{QStringLiteral("Family"), QStringLiteral("é")}}};
}

} // namespace lorva::test
