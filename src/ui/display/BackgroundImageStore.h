// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QByteArray>
#include <QImage>
#include <QStringList>

namespace lorva {

/// The user's own background images: files in a folder of ours, copied there when they are added,
/// so that the originals may go.
///
/// File names are made from the content, so that adding an image twice keeps one. A name from
/// outside (a stored setting) never leaves the folder. Thread: any; touches the disk.
class BackgroundImageStore
{
public:
    explicit BackgroundImageStore(FilePath folder);

    /// By age, the oldest first.
    QStringList fileNames() const;
    /// Gives the file's name. Fails as readSafeImage(), or when it cannot be written.
    Result<QString> add(const QByteArray &bytes) const;
    /// At most `maximumSidePx` a side.
    Result<QImage> read(const QString &fileName, int maximumSidePx) const;
    Result<void> remove(const QString &fileName) const;

private:
    const FilePath m_folder;
};

} // namespace lorva
