// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace lorva {

/// The languages that the user wants to read, the best one first, as locale names ("de_AT.UTF-8",
/// "ja"): what the session's environment says, in the order in which the desktop's own programs ask
/// it. LANGUAGE is a list and comes before the locale of messages, but for the locale "C", which
/// asks for no language at all: then the answer is empty. "C" in the list ends it with "en".
/// Thread: main.
QStringList userLanguages();

} // namespace lorva
