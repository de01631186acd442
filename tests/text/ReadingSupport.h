// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"
#include "text/FontFile.h"

#include "support/FontBuilder.h"
#include "support/TestHome.h"

#include <gtest/gtest.h>

namespace lorva::test {

inline FilePath writeFont(const QByteArray &bytes, const QByteArray &name = "font.ttf")
{
    return writeFile(TestHome::instance().makeFolder("files"), name, bytes);
}

inline std::shared_ptr<const FontFile> openFont(const FilePath &path)
{
    auto file = FontFile::open(path);
    if (!file)
        ADD_FAILURE() << qUtf8Printable(file.error().detail);
    return file.value_or(nullptr);
}

inline std::shared_ptr<const FontFace> openFace(const FilePath &path, FaceKey key = {})
{
    const auto file = openFont(path);
    auto face = file ? file->face(key) : failure(ErrorKind::notFound, QString());
    if (!face)
        ADD_FAILURE() << qUtf8Printable(face.error().detail);
    return face.value_or(nullptr);
}

inline std::shared_ptr<const FontFace> builtFace(const FontBuilder &builder, FaceKey key = {})
{
    return openFace(writeFont(builder.build()), key);
}

/// "0/-1 Family|Style|PostScript w0.40 s0.00 i" of each descriptor, in order.
inline std::vector<std::string> describe(const FilePath &path)
{
    const auto file = openFont(path);
    const auto descriptors = file ? file->descriptors() : failure(ErrorKind::notFound, QString());
    std::vector<std::string> lines;
    for (const FaceDescriptor &d : descriptors.value_or(std::vector<FaceDescriptor>())) {
        const QString line = QString::fromLatin1("%1/%2 %3|%4|%5 w%6 s%7%8")
                                 .arg(d.key.faceIndex)
                                 .arg(d.key.namedInstance)
                                 .arg(d.familyName, d.styleName, d.postScriptName)
                                 .arg(d.traits.weight, 0, 'f', 2)
                                 .arg(d.traits.slant, 0, 'f', 2)
                                 .arg(d.traits.isItalic ? QLatin1String(" i") : QLatin1String(""));
        lines.push_back(line.toStdString());
    }
    return lines;
}

} // namespace lorva::test
