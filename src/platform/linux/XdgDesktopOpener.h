// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopOpener.h"

namespace lorva {

/// By the desktop's own services: the file manager on the session's bus
/// (org.freedesktop.FileManager1), else whatever opens folders; links by whatever opens those.
class XdgDesktopOpener final : public DesktopOpener
{
public:
    void openLink(const QUrl &link) override;
    void showFile(const FilePath &file) override;
};

} // namespace lorva
