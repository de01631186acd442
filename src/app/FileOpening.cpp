// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/FileOpening.h"

#include "base/RunThen.h"

#include <sys/stat.h>

namespace lorva {

namespace {

struct Sorted
{
    std::vector<FilePath> files;
    std::vector<FilePath> folders;
};

/// What cannot be looked at counts as a file: its window says why it is not shown.
Sorted sorted(const std::vector<FilePath> &places)
{
    Sorted found;
    for (const FilePath &place : places) {
        struct stat info = {};
        const bool isFolder = ::stat(place.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
        (isFolder ? found.folders : found.files).push_back(place);
    }
    return found;
}

} // namespace

void useActivationToken(const QByteArray &token)
{
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
}

FileOpening::FileOpening(LorvaAppModel &model, std::function<FontFilesServices()> makeServices)
    : m_model(model)
    , m_makeServices(std::move(makeServices))
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.opening"));
    m_pool.setMaxThreadCount(1);
}

FileOpening::~FileOpening() = default;

void FileOpening::open(const OpenRequest &request)
{
    sortAndOpen(request, Folders::areHandedOn);
}

void FileOpening::openDropped(const std::vector<FilePath> &places)
{
    sortAndOpen({places, {}, {}}, Folders::arePassedOver);
}

void FileOpening::sortAndOpen(const OpenRequest &request, Folders folders)
{
    const auto work = [places = request.places](const std::stop_token &) { return sorted(places); };
    runThen(m_pool, this, work, [this, request, folders](const Sorted &found) {
        const bool hasFiles = !found.files.empty() || !request.foreign.isEmpty();
        if (folders == Folders::areHandedOn && !found.folders.empty() && onFolders)
            onFolders(found.folders, hasFiles);
        if (hasFiles)
            show(found.files, request);
    });
}

void FileOpening::makeWindow()
{
    m_window = std::make_unique<FontFilesWindow>(m_model, m_makeServices());
    if (m_fixedSize)
        m_window->setFixedSize(*m_fixedSize);
    m_window->onLibraryWanted = [this](const QString &family) {
        if (onLibraryWanted)
            onLibraryWanted(family);
    };
    m_window->onQuitWanted = [this] {
        if (onQuitWanted)
            onQuitWanted();
    };
    m_window->onDropped = [this](const std::vector<FilePath> &dropped) { openDropped(dropped); };
}

void FileOpening::show(const std::vector<FilePath> &files, const OpenRequest &request)
{
    if (!m_window)
        makeWindow();
    m_window->open(files, request.foreign);
    useActivationToken(request.activationToken);
    m_window->present();
}

} // namespace lorva
