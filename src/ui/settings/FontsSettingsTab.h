// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace lorva {

class FolderDrop;
class IconButton;
class IndexingStatus;
class LorvaSettingsViewModel;
class PopupButton;
class WatchedFolderList;

/// The settings about fonts: which folders are watched, and how fonts are activated.
///
/// Draws the view model and leads what the user does to it; does not own it. Thread: main.
class FontsSettingsTab final : public QWidget
{
    Q_OBJECT
public:
    explicit FontsSettingsTab(LorvaSettingsViewModel &viewModel, QWidget *parent = nullptr);

    /// The selected watched folder.
    std::optional<QString> selectedID() const;
    void setSelectedID(const std::optional<QString> &id);

    /// Asks the user for folders to add.
    std::function<void(const FolderQuestion &question,
                       std::function<void(std::vector<FilePath>)> done)>
        onFoldersWanted;

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildLayout();
    void connectParts();
    void render();
    void renderStatus();
    void askForFolders();
    void add(const std::vector<FilePath> &folders);
    void removeSelected();
    void takeColors();

    LorvaSettingsViewModel &m_viewModel;
    WatchedFolderList *m_list;
    IconButton *m_add;
    IconButton *m_remove;
    IndexingStatus *m_status;
    PopupButton *m_picker;
    FolderDrop *m_drop;
};

} // namespace lorva
