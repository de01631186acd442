// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "ui/files/FontFilesWindow.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace lorva {

/// What is to be opened, and the desktop's permission to come to the front for it.
struct OpenRequest
{
    /// Font files and folders alike.
    std::vector<FilePath> places;
    /// Addresses of no file of this computer.
    QStringList foreign;
    QByteArray activationToken;
};

/// Opens what file managers, other starts and drops hand over: files in a window of their own,
/// which it makes when it is first needed; folders are handed on.
///
/// Which are folders is found out on a worker. A disk that hangs keeps nothing else from being
/// opened: what is not known in a moment is shown as files, and folders among it follow. Holds the
/// model, which outlives it. Thread: main.
class FileOpening final : public QObject
{
public:
    using IsFolder = std::function<bool(const FilePath &)>;

    /// `isFolder` is asked on workers; empty: the disk.
    FileOpening(LorvaAppModel &model, std::function<FontFilesServices()> makeServices,
                IsFolder isFolder = {});
    ~FileOpening() override;

    /// Folders were among what is to be opened; `hasFiles`: and files, which have the front.
    std::function<void(const std::vector<FilePath> &folders, bool hasFiles)> onFolders;
    /// The user wants to see the library; the family, or an empty name.
    std::function<void(const QString &familyName)> onLibraryWanted;
    /// The user wants to end the program.
    std::function<void()> onQuitWanted;
    /// The window is there, and not shown yet.
    std::function<void(FontFilesWindow &window)> onWindowMade;

    /// For a picture: windows that are made from now on have this size and no other.
    void setFixedWindowSize(QSize size) { m_fixedSize = size; }

    void open(const OpenRequest &request);
    /// Files alone; folders are passed over.
    void openDropped(const std::vector<FilePath> &places);
    /// Null until files are opened for the first time.
    FontFilesWindow *window() { return m_window.get(); }
    bool isWindowOpen() const { return m_window && m_window->isVisible(); }

private:
    enum class Folders { areHandedOn, arePassedOver };

    struct Sorted;
    struct Looking;

    void sortAndOpen(const OpenRequest &request, Folders folders);
    void openUnsorted(const std::shared_ptr<Looking> &looking);
    void openSorted(const std::shared_ptr<Looking> &looking, const Sorted &found);
    void makeWindow();
    void show(const std::vector<FilePath> &files, const Looking &looking);

    LorvaAppModel &m_model;
    const std::function<FontFilesServices()> m_makeServices;
    const IsFolder m_isFolder;
    std::optional<QSize> m_fixedSize;
    std::unique_ptr<FontFilesWindow> m_window;
    /// Of the newest request, and of that whose files the window shows.
    int m_newest = 0;
    int m_shown = 0;
    QThreadPool m_pool;
};

/// From now on a window that comes to the front does so with this permission; empty: none is known.
void useActivationToken(const QByteArray &token);

} // namespace lorva
