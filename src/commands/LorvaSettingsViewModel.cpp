// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/LorvaSettingsViewModel.h"

#include "install/FontInstallationService.h"

#include <QPointer>

namespace lorva {

LorvaSettingsViewModel::LorvaSettingsViewModel(LorvaAppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    copyFields();
    lookAtFolders();
    NotificationCentre &centre = NotificationCentre::shared();
    centre.observe(LorvaAppModel::changeNotification(), this, [this](const void *sender) {
        if (sender == &m_model)
            modelChanged();
    });
    // A choice that the install-method sheet was to remember is stored before fonts are switched.
    centre.observe(ActivationProvider::changeNotification(), this,
                   [this](const void *) { modelChanged(); });
    connect(&m_model, &LorvaAppModel::scanProgressed, this, &LorvaSettingsViewModel::showProgress);
}

LorvaSettingsViewModel::~LorvaSettingsViewModel() = default;

void LorvaSettingsViewModel::copyFields()
{
    m_folders = m_model.watchedFolders();
    const FontInstallationService *service = m_model.installationService();
    m_defaultInstallMethod = service ? service->defaultMethod() : std::nullopt;
}

/// The model tells of everything; most of it is not shown here.
void LorvaSettingsViewModel::modelChanged()
{
    const auto shown = [this] { return std::pair(m_folders, m_defaultInstallMethod); };
    const auto before = shown();
    copyFields();
    if (m_folders != before.first || m_model.catalogGeneration() != m_lookGeneration)
        lookAtFolders();
    if (shown() != before)
        Q_EMIT changed();
}

void LorvaSettingsViewModel::lookAtFolders()
{
    m_lookGeneration = m_model.catalogGeneration();
    m_model.lookAtFolders([self = QPointer(this), run = ++m_lookRun](
                              const QHash<QString, LorvaAppModel::FolderLook> &looks) {
        if (!self || run != self->m_lookRun || looks == self->m_looks)
            return;
        self->m_looks = looks;
        Q_EMIT self->changed();
    });
}

void LorvaSettingsViewModel::refresh()
{
    lookAtFolders();
    modelChanged();
}

std::optional<LorvaAppModel::FolderLook> LorvaSettingsViewModel::look(const QString &id) const
{
    const auto found = m_looks.constFind(id);
    return found == m_looks.cend() ? std::nullopt : std::optional(*found);
}

void LorvaSettingsViewModel::dismissCompletion()
{
    if (!m_completionMessage)
        return;
    m_completionMessage.reset();
    Q_EMIT changed();
}

void LorvaSettingsViewModel::setDefaultInstallMethod(std::optional<InstallMethod> method)
{
    FontInstallationService *service = m_model.installationService();
    if (!service)
        return;
    service->setDefaultMethod(method);
    // What is stored, not what was wished: preferences may be locked.
    copyFields();
    Q_EMIT changed();
}

void LorvaSettingsViewModel::addFolders(const std::vector<FilePath> &folders)
{
    if (folders.empty() || m_isAdding)
        return;
    beginIndexing();
    m_isAdding = true;
    m_model.addWatchedFolders(
        folders, [self = QPointer(this), run = m_indexingRun](const AddedFolders &added) {
            if (self)
                self->foldersAdded(run, added);
        });
    Q_EMIT changed();
}

void LorvaSettingsViewModel::foldersAdded(int run, const AddedFolders &added)
{
    const bool isCurrent = run == m_indexingRun && m_isAdding;
    if (!isCurrent) {
        // Unless it is wanted for what has begun since.
        if (added.hasBegunScan && !m_isIndexing)
            m_model.cancelLoad();
    } else if (!added.hasBegunScan) {
        endIndexing(std::nullopt);
    } else {
        m_model.whenLoaded([self = QPointer(this), run](std::optional<int> newFamilies) {
            if (!self || run != self->m_indexingRun || !self->m_isIndexing)
                return;
            self->endIndexing(newFamilies ? std::optional(indexingCompletion(*newFamilies))
                                          : std::nullopt);
        });
    }
    if (!added.failures.empty())
        Q_EMIT refused(refusedFoldersText(added.failures));
}

void LorvaSettingsViewModel::removeFolder(const QString &id)
{
    if (const Result<void> removed = m_model.removeWatchedFolder(id); !removed) {
        Q_EMIT refused(tr("This folder is not watched any more."));
        return;
    }
    // Folders that are being added go on: the scan that has begun now is theirs, too.
    if (m_isAdding)
        return;
    beginIndexing();
    m_model.whenLoaded([self = QPointer(this), run = m_indexingRun](std::optional<int>) {
        if (self && run == self->m_indexingRun && self->m_isIndexing)
            self->endIndexing(std::nullopt);
    });
    Q_EMIT changed();
}

void LorvaSettingsViewModel::cancelIndexing()
{
    if (!m_isIndexing)
        return;
    // Before the model's answer, which then finds nothing to end.
    endIndexing(std::nullopt);
    m_model.cancelLoad();
}

void LorvaSettingsViewModel::beginIndexing()
{
    ++m_indexingRun;
    m_isIndexing = true;
    const ProgressState state = scanBegins();
    m_indexingMessage = state.message;
    m_indexingFraction = state.fraction;
    m_completionMessage.reset();
}

void LorvaSettingsViewModel::endIndexing(std::optional<IndexingCompletion> completion)
{
    m_isIndexing = false;
    m_isAdding = false;
    m_indexingMessage.clear();
    m_indexingFraction.reset();
    m_completionMessage = std::move(completion);
    Q_EMIT changed();
}

void LorvaSettingsViewModel::showProgress(const FontScanPhase &phase)
{
    if (!m_isIndexing)
        return;
    const ProgressState state = scanProgress(phase);
    m_indexingMessage = state.message;
    m_indexingFraction = state.fraction;
    Q_EMIT changed();
}

} // namespace lorva
