// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

namespace lorva::test {

/// A font that tests/fonts/make-fonts.py has built.
inline FilePath madeFont(const QByteArray &name)
{
    return FilePath(QByteArray(LORVA_MADE_FONTS "/") + name);
}

} // namespace lorva::test
