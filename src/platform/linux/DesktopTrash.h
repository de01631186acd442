// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

#include <functional>

namespace lorva {

/// The Trash of the freedesktop.org specification, version 1.0: $XDG_DATA_HOME/Trash for files of
/// its volume, else the one at the top of the file's volume.
///
/// Files are renamed into it and out of it, never copied. Written here, because the toolkit's own
/// function copies a file into the home Trash when its volume takes none, and knows only names that
/// are text.
class DesktopTrash final : public Trash
{
public:
    /// Gives the folder at the top of the volume that holds a folder without links in its path.
    using VolumeTop = std::function<FilePath(const FilePath &realFolder)>;
    explicit DesktopTrash(VolumeTop volumeTop = topOfVolume);

    Result<FilePath> moveToTrash(const FilePath &file) override;
    Result<void> takeFromTrash(const FilePath &place, const FilePath &destination) override;

    /// The highest folder above that is on the same device.
    static FilePath topOfVolume(const FilePath &realFolder);

private:
    const VolumeTop m_volumeTop;
};

} // namespace lorva
