// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/FontconfigHandles.h"

#include <QByteArray>

#include <set>

namespace lorva {

/// The files of `config`'s fonts that an interface needs; see useSmallFontconfigForInterface().
/// Thread: any.
std::set<QByteArray> chooseInterfaceFontFiles(FcConfig *config);

} // namespace lorva
