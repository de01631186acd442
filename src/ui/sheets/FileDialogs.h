// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"

class QFileDialog;
class QWidget;

namespace lorva {

// The desktop's dialogs for files and folders, window-modal to `parent`, whose children they are.
// They delete themselves when they close. Thread: main.

/// Asks for folders that exist; begins in `start`.
QFileDialog *openFolderDialog(QWidget &parent, const FolderQuestion &question,
                              const QString &start);
/// Asks where to save a file called `name`.
QFileDialog *openSaveDialog(QWidget &parent, const QString &title, const QString &name,
                            const QString &start);

/// What was chosen, as the paths that the system calls take.
std::vector<FilePath> chosenPaths(const QFileDialog &dialog);

/// A name that any file system takes: `suggested`, or `title` as a table.
QString exportFileName(const QString &suggested, const QString &title);

} // namespace lorva
