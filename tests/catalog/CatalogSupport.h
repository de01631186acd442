// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AvailableFonts.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"

namespace lorva::test {

/// A fixed list of files, as the system's fonts.
class ListedFonts final : public AvailableFonts
{
public:
    std::vector<FilePath> fontFiles(const std::function<void(int)> &found,
                                    std::stop_token) const override
    {
        if (found)
            found(int(files.size()));
        return files;
    }

    std::vector<FilePath> files;
};

/// The interface font lies in a file of the case.
class ListedSystemFont final : public SystemFontLocator
{
public:
    explicit ListedSystemFont(FilePath file)
        : m_file(std::move(file))
    {
    }
    Location systemFont() const override { return {m_file, 0}; }

private:
    const FilePath m_file;
};

inline FontBuilder face(const char *family, const char *style, const char *postScriptName)
{
    FontBuilder builder(QString::fromUtf8(family), QString::fromUtf8(style));
    if (*postScriptName)
        builder.postScriptName(QString::fromUtf8(postScriptName));
    return builder;
}

} // namespace lorva::test
