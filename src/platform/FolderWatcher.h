// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QObject>

#include <vector>

namespace lorva {

/// Notices when entries of folders come, go or change. Thread: main; looking at folders that hang
/// never blocks it.
class FolderWatcher : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Watches these folders, not what lies below their own folders, from now on. Of one that does
    /// not exist the nearest folder above it is watched, until it does. Returns at once.
    virtual void setFolders(std::vector<FilePath> folders) = 0;
    /// All folders are watched. False past the system's limit, or where a file system tells
    /// nothing: then somebody has to look.
    virtual bool isComplete() const = 0;

Q_SIGNALS:
    /// Something may be different in these folders, of those given; empty when all may be (notices
    /// were lost, a volume came or went). Changes within a tenth of a second come as one.
    void foldersChanged(const std::vector<lorva::FilePath> &folders);
};

} // namespace lorva
