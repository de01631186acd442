// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/FontFamilyPasteboard.h"

namespace lorva {

namespace {

/// Of hundreds of thousands of families; a drag may come from any program.
constexpr qsizetype kMostBytes = qsizetype(16) * 1024 * 1024;

} // namespace

std::unique_ptr<QMimeData> makeFontFamilyMimeData(const QStringList &familyNames,
                                                  const QList<QUrl> &fontFiles)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(QString::fromLatin1(kFontFamilyNamesMimeType), familyNames.join(u'\n').toUtf8());
    if (!fontFiles.isEmpty())
        data->setUrls(fontFiles);
    return data;
}

QStringList fontFamilyNames(const QMimeData &data)
{
    const QByteArray bytes = data.data(QString::fromLatin1(kFontFamilyNamesMimeType));
    if (bytes.size() > kMostBytes)
        return {};
    QStringList names = QString::fromUtf8(bytes).split(u'\n', Qt::SkipEmptyParts);
    names.removeDuplicates();
    return names;
}

} // namespace lorva
