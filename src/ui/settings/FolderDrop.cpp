// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/FolderDrop.h"

#include "ui/FontFamilyPasteboard.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include <chrono>

namespace lorva {

namespace {

constexpr std::chrono::seconds kPatience{2};
/// Nobody means to watch more at once.
constexpr size_t kMostPaths = 1000;

/// From the bytes as they came: names that are no UTF-8 would not survive a QUrl.
std::vector<FilePath> filesOf(const QMimeData &data)
{
    std::vector<FilePath> files;
    // Our own families carry their files for other programs.
    if (data.hasFormat(QLatin1String(kFontFamilyNamesMimeType)))
        return files;
    for (const QByteArray &line : data.data(QStringLiteral("text/uri-list")).split('\n')) {
        const Result<FilePath> file = FilePath::fromUrl(line.trimmed());
        if (file && files.size() < kMostPaths)
            files.push_back(*file);
    }
    return files;
}

} // namespace

FolderDrop::FolderDrop(QWidget &target)
    : QObject(&target)
    , m_looks(kPatience)
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

void FolderDrop::setEnabled(bool isEnabled)
{
    m_isEnabled = isEnabled;
    if (!isEnabled)
        leave();
}

bool FolderDrop::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        enter(static_cast<QDragMoveEvent &>(*event));
        return true;
    case QEvent::DragMove:
        move(static_cast<QDragMoveEvent &>(*event));
        return true;
    case QEvent::DragLeave:
        leave();
        return true;
    case QEvent::Drop:
        drop(static_cast<QDropEvent &>(*event));
        return true;
    default:
        return false;
    }
}

bool FolderDrop::isWelcome() const
{
    return m_isEnabled && !m_held.empty() && m_hasFolder.value_or(true);
}

void FolderDrop::enter(QDragMoveEvent &event)
{
    leave();
    m_held = filesOf(*event.mimeData());
    if (!isWelcome()) {
        event.ignore();
        return;
    }
    m_looks.look(m_held, [this, run = m_run](const QSet<FilePath> &folders) {
        if (run != m_run)
            return;
        m_hasFolder = !folders.isEmpty();
        if (isWelcome())
            Q_EMIT hovered(true);
    });
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

void FolderDrop::move(QDragMoveEvent &event) const
{
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(isWelcome());
}

void FolderDrop::drop(QDropEvent &event)
{
    const std::vector<FilePath> paths = isWelcome() ? m_held : std::vector<FilePath>();
    leave();
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(!paths.empty());
    if (!paths.empty())
        Q_EMIT dropped(paths);
}

void FolderDrop::leave()
{
    ++m_run;
    m_held.clear();
    m_hasFolder.reset();
    Q_EMIT hovered(false);
}

} // namespace lorva
