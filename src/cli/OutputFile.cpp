// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/OutputFile.h"

#include "install/FontFolderWalk.h"
#include "text/PictureFile.h"

namespace lorva::cli {

Result<void> refuseFontFile(const FilePath &output)
{
    if (isFontFileName(output))
        return fontFileRefused(output);
    return refuseFontContent(output);
}

} // namespace lorva::cli
