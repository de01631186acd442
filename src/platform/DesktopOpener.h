// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QUrl>

namespace lorva {

/// Opens what lies outside of the program. Nobody hears whether it came to anything. Thread: main.
class DesktopOpener
{
public:
    virtual ~DesktopOpener() = default;
    /// In the user's browser; anything but http and https is passed over.
    virtual void openLink(const QUrl &link) = 0;
    /// Its folder in the file manager, with the file chosen where that can be had.
    virtual void showFile(const FilePath &file) = 0;
};

} // namespace lorva
