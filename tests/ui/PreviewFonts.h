// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/FontBuilder.h"
#include "support/TestHome.h"
#include "text/Font.h"

#include <gtest/gtest.h>

namespace lorva::test {

inline Font fontFromFile(const FilePath &path, double pointSize = 40, int faceIndex = 0)
{
    const auto file = FontFile::open(path);
    if (!file) {
        ADD_FAILURE() << file.error().detail.toStdString();
        return {};
    }
    const auto face = (*file)->face({faceIndex, -1});
    if (!face) {
        ADD_FAILURE() << face.error().detail.toStdString();
        return {};
    }
    return Font(*face, pointSize);
}

inline Font fontOf(FontBuilder &builder, double pointSize = 40)
{
    static int files = 0;
    const QByteArray name = "built-" + QByteArray::number(++files) + ".ttf";
    const FilePath folder = TestHome::instance().root().child("preview-fonts");
    return fontFromFile(writeFile(folder, name, builder.build()), pointSize);
}

inline Font fontWith(const std::u32string &characters, double pointSize = 40)
{
    FontBuilder builder;
    return fontOf(builder.codePoints(characters), pointSize);
}

} // namespace lorva::test
