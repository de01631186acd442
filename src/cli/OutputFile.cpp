// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/OutputFile.h"

#include "install/FontFolderWalk.h"
#include "text/FontFile.h"

namespace lorva::cli {

Result<void> refuseFontFile(const FilePath &output)
{
    if (!isFontFileName(output) && !FontFile::open(output))
        return {};
    return failure(
        ErrorKind::invalidValue,
        QString(output.displayText() + QStringLiteral(": refusing to write over a font file")));
}

} // namespace lorva::cli
