// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/FileOpening.h"

#include "base/RunThen.h"

#include <QTimer>

#include <chrono>
#include <utility>

#include <sys/stat.h>

namespace lorva {

namespace {

/// Whoever opens files sees a window by then.
constexpr std::chrono::milliseconds kPatience{300};
/// One looks; the others are left to disks that hang.
constexpr int kMostThreads = 8;

/// What cannot be looked at counts as a file: its window says why it is not shown.
bool isFolderOfDisk(const FilePath &place)
{
    struct stat info = {};
    return ::stat(place.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

} // namespace

struct FileOpening::Sorted
{
    std::vector<FilePath> files;
    std::vector<FilePath> folders;

    Sorted(const std::vector<FilePath> &places, const IsFolder &isFolder)
    {
        for (const FilePath &place : places)
            (isFolder(place) ? folders : files).push_back(place);
    }
};

/// A request whose places are being looked at.
struct FileOpening::Looking
{
    OpenRequest request;
    Folders folders;
    int number = 0;
    /// It took too long, and all were shown as files.
    bool isShown = false;
};

void useActivationToken(const QByteArray &token)
{
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
}

FileOpening::FileOpening(LorvaAppModel &model, std::function<FontFilesServices()> makeServices,
                         IsFolder isFolder)
    : m_model(model)
    , m_makeServices(std::move(makeServices))
    , m_isFolder(isFolder ? std::move(isFolder) : IsFolder(isFolderOfDisk))
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.opening"));
    m_pool.setMaxThreadCount(kMostThreads);
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
    const auto looking = std::make_shared<Looking>(Looking{request, folders, ++m_newest});
    auto *patience = new QTimer(this);
    patience->setSingleShot(true);
    connect(patience, &QTimer::timeout, this, [this, looking] { openUnsorted(looking); });
    patience->start(kPatience);
    const auto work = [places = request.places, isFolder = m_isFolder](const std::stop_token &) {
        return Sorted(places, isFolder);
    };
    runThen(m_pool, this, work, [this, looking, patience](const Sorted &found) {
        delete patience;
        openSorted(looking, found);
    });
}

void FileOpening::openUnsorted(const std::shared_ptr<Looking> &looking)
{
    looking->isShown = true;
    if (looking->number > m_shown)
        show(looking->request.places, *looking);
}

void FileOpening::openSorted(const std::shared_ptr<Looking> &looking, const Sorted &found)
{
    const OpenRequest &request = looking->request;
    // Later ones were quicker, or the user has closed the window.
    const bool wasReplaced = looking->number < m_shown || (looking->isShown && !isWindowOpen());
    const bool hasFiles = wasReplaced || !found.files.empty() || !request.foreign.isEmpty();
    const bool isHandedOn = looking->folders == Folders::areHandedOn && !found.folders.empty();
    if (isHandedOn && onFolders) {
        if (!hasFiles)
            useActivationToken(request.activationToken);
        onFolders(found.folders, hasFiles);
    }
    if (wasReplaced || (looking->isShown && found.folders.empty()))
        return;
    if (hasFiles)
        show(found.files, *looking);
    else if (looking->isShown && isHandedOn)
        m_window->close();
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
    if (onWindowMade)
        onWindowMade(*m_window);
}

void FileOpening::show(const std::vector<FilePath> &files, const Looking &looking)
{
    if (!m_window)
        makeWindow();
    m_shown = looking.number;
    m_window->open(files, looking.request.foreign);
    useActivationToken(looking.request.activationToken);
    m_window->present();
}

} // namespace lorva
