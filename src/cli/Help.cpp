// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Help.h"

#include "cli/Console.h"
#include "cli/Texts.h"

namespace lorva::cli {

HelpEntry helpEntry()
{
    return {"--help", Texts::tr("show this help")};
}

HelpEntry folderEntry()
{
    return {"--folder DIR",
            Texts::tr("take in the fonts below DIR too, beside those of the watched folders")};
}

HelpEntry missingEntry()
{
    return {"--missing",
            Texts::tr("take names of families that this machine lacks, for when their fonts come")};
}

int showHelp(const HelpText &help)
{
    printText(help.text());
    return finish();
}

} // namespace lorva::cli
