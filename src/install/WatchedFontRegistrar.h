// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <stop_token>
#include <vector>

namespace lorva {

class FontRegistrar;

/// What the fonts of watched folders need from the system. Stateless.
///
/// Thread: any; a call may take long on a slow volume, so never the main thread.
class WatchedFontRegistrar
{
public:
    /// The font files of all `folders`, in the order given and within one in the order of its walk
    /// (see fontFilesInFolder()). Folders that overlap, also through links, give each real file
    /// once; a link to a file gives way to the file itself.
    std::vector<FilePath> fontFiles(const std::vector<FilePath> &folders,
                                    std::stop_token stop = {}) const;

    /// Withdraws the font files of `folders` from this process, and returns when every one is done;
    /// what cannot be withdrawn is left as it is. Registrations for the whole system stay.
    void unregisterFonts(const std::vector<FilePath> &folders, FontRegistrar &registrar,
                         const std::stop_token &stop = {}) const;
};

} // namespace lorva
