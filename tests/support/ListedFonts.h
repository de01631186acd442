// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <cstdio>

namespace lorva::test {

/// The paths of the files that programs find, each once, by the tool that comes with the font
/// manager.
inline QStringList listedFontFiles()
{
    QByteArray output;
    FILE *pipe = ::popen("fc-list --format '%{file}\\n'", "r");
    char buffer[4096];
    while (pipe && std::fgets(buffer, sizeof buffer, pipe))
        output += buffer;
    if (pipe)
        ::pclose(pipe);
    QStringList files = QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
    files.removeDuplicates();
    files.sort();
    return files;
}

} // namespace lorva::test
