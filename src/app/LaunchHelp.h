// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// The text of --help, in the user's language and for a terminal of 80 columns.
QString launchHelp();

} // namespace lorva
