// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <stop_token>
#include <vector>

namespace lorva {

/// True for the five extensions of font files: otf, ttf, ttc, otc, dfont, in any case.
bool isFontFileName(const FilePath &path);

/// The font files below `folder`, in the order of the walk (entries sorted bytewise, so that it is
/// the same at every scan).
///
/// Hidden entries are skipped, and so are the insides of packages (folders ending in .app, .bundle,
/// .framework, .plugin or .pkg) and the folder of links that registration keeps. Links are
/// followed, each real folder once, so that cycles end. Only regular files count (a FIFO or socket
/// with a font's name does not). A folder that cannot be opened yields no files. Thread: any; may
/// take long on a slow volume, so never the main thread.
std::vector<FilePath> fontFilesInFolder(const FilePath &folder, std::stop_token stop = {});

} // namespace lorva
