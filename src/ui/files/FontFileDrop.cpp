// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFileDrop.h"

#include "install/FontFolderWalk.h"
#include "ui/FontFamilyPasteboard.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include <algorithm>

namespace lorva {

namespace {

/// A long list of names is not worth a frame: nobody looks at more at once.
constexpr size_t kMostFiles = 5000;

/// Suitcases of old have no ending, and folders neither.
bool mayHoldFont(const FilePath &file)
{
    return isFontFileName(file) || file.lowerCaseExtension().isEmpty();
}

} // namespace

std::vector<FilePath> droppedFontFiles(const QMimeData &data)
{
    std::vector<FilePath> files;
    // Our own families carry their files for other programs.
    if (data.hasFormat(QLatin1String(kFontFamilyNamesMimeType)))
        return files;
    // From the bytes as they came: names that are no UTF-8 would not survive a QUrl.
    for (const QByteArray &line : data.data(QStringLiteral("text/uri-list")).split('\n')) {
        const Result<FilePath> file = FilePath::fromUrl(line.trimmed());
        if (file && files.size() < kMostFiles)
            files.push_back(*file);
    }
    if (std::ranges::none_of(files, mayHoldFont))
        files.clear();
    return files;
}

FontFileDrop::FontFileDrop(QWidget &target)
    : QObject(&target)
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool FontFileDrop::eventFilter(QObject *, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    auto &drop = static_cast<QDropEvent &>(*event);
    std::vector<FilePath> files;
    if (type != QEvent::DragMove) {
        files = droppedFontFiles(*drop.mimeData());
        m_isWelcome = !files.empty();
    }
    // Whoever moves files away when they are dropped must not.
    const bool isCopied = m_isWelcome && drop.possibleActions().testFlag(Qt::CopyAction);
    if (isCopied)
        drop.setDropAction(Qt::CopyAction);
    drop.setAccepted(isCopied);
    if (type == QEvent::Drop && isCopied)
        Q_EMIT dropped(files);
    return true;
}

} // namespace lorva
