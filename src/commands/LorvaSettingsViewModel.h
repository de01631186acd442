// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/NotificationCentre.h"
#include "commands/ScanProgress.h"
#include "model/LorvaAppModel.h"

#include <QObject>

#include <optional>

namespace lorva {

/// What the fonts tab of the settings shows, and what it does to the model.
///
/// Follows the model: what changes there is told by changed(). Holds the model, which outlives it.
/// Thread: main.
class LorvaSettingsViewModel final : public QObject
{
    Q_OBJECT
public:
    explicit LorvaSettingsViewModel(LorvaAppModel &model, QObject *parent = nullptr);
    ~LorvaSettingsViewModel() override;

    /// In the model's order.
    const std::vector<WatchedFolder> &folders() const { return m_folders; }
    /// What is known of a folder by now; nothing while that is being looked at.
    std::optional<LorvaAppModel::FolderLook> look(const QString &id) const;
    /// A rescan that was started from here is running.
    bool isIndexing() const { return m_isIndexing; }
    QString indexingMessage() const { return m_indexingMessage; }
    /// 0 … 1, where it is known.
    std::optional<double> indexingFraction() const { return m_indexingFraction; }
    const std::optional<IndexingCompletion> &completionMessage() const
    {
        return m_completionMessage;
    }
    void dismissCompletion();
    /// Nothing: ask every time.
    std::optional<InstallMethod> defaultInstallMethod() const { return m_defaultInstallMethod; }
    void setDefaultInstallMethod(std::optional<InstallMethod> method);

    /// False while folders are being added.
    bool canAddFolders() const { return !m_isAdding; }
    /// Watches the folders and scans. Does nothing for none, and while folders are being added.
    void addFolders(const std::vector<FilePath> &folders);
    /// Also indexes, but has no completion: nobody looks for new fonts then.
    void removeFolder(const QString &id);
    /// Ends the scan that was started from here; the folders stay.
    void cancelIndexing();
    /// Looks anew at what may have changed without the model's knowing.
    void refresh();

Q_SIGNALS:
    void changed();
    /// A folder could not be added or removed; the text is fit to be shown.
    void refused(const QString &reason);

private:
    void modelChanged();
    void copyFields();
    void lookAtFolders();
    void beginIndexing();
    void endIndexing(std::optional<IndexingCompletion> completion);
    void foldersAdded(int run, const AddedFolders &added);
    void showProgress(const FontScanPhase &phase);

    LorvaAppModel &m_model;
    std::vector<WatchedFolder> m_folders;
    QHash<QString, LorvaAppModel::FolderLook> m_looks;
    /// Answers of an earlier one are stale.
    int m_lookRun = 0;
    /// The catalog that was looked at.
    qint64 m_lookGeneration = -1;
    /// Grows with each indexing; what belongs to an earlier one is not told.
    int m_indexingRun = 0;
    bool m_isAdding = false;
    bool m_isIndexing = false;
    QString m_indexingMessage;
    std::optional<double> m_indexingFraction;
    std::optional<IndexingCompletion> m_completionMessage;
    std::optional<InstallMethod> m_defaultInstallMethod;
};

} // namespace lorva
