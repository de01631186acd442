// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/XdgFolders.h"

#include <vector>

namespace lorva {

/// The families that the desktops' settings name for the interface, the running desktop's first, as
/// UTF-8. Reads KDE's and GTK's settings files in $XDG_CONFIG_HOME; empty when they name none.
/// Thread: any that does not race with setenv().
std::vector<QByteArray> configuredInterfaceFamilies(
    const EnvironmentReader &environment = processEnvironment);

/// The family in a GTK font name: "Cantarell 11" and "Noto Sans, 10" without the size.
QByteArray familyOfGtkFontName(QByteArrayView name);
/// The family in a KDE font entry: what stands before the first comma.
QByteArray familyOfKdeFont(QByteArrayView entry);

} // namespace lorva
