// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"

#include <QObject>

#include <memory>

namespace lorva {

class LorvaAppModel;

/// Adds folders to the library from the main window, and shows there how far a scan is that the
/// user waits for: after adding folders, and at a first start that has nothing else to show.
///
/// Holds model and presenter, which outlive it. Thread: main.
class FolderCommands final : public QObject
{
    Q_OBJECT
public:
    FolderCommands(LorvaAppModel &model, CommandPresenter &presenter, QObject *parent = nullptr);
    ~FolderCommands() override;

    /// Asks for folders, watches them, scans, and tells what was found. Cancelling takes the
    /// folders out again. Does nothing while it asks already, and without a window.
    void addFolders();
    /// The same with folders that are known: dropped ones, for instance. While others are being
    /// added they join those: one progress, one count at the end.
    void addFolders(const std::vector<FilePath> &folders);
    /// Shows the running load, if the library has nothing to show yet.
    void showFirstLoad();

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace lorva
