// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/HelpText.h"

namespace lorva::cli {

// What the help of several commands has.

using HelpEntry = HelpText::Entry;

/// "--help", which every command has.
HelpEntry helpEntry();
/// "--folder DIR", where it adds to the watched folders.
HelpEntry folderEntry();
/// "--missing".
HelpEntry missingEntry();

/// Prints the help and ends the output; gives the exit code.
int showHelp(const HelpText &help);

} // namespace lorva::cli
