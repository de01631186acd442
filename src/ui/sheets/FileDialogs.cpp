// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/FileDialogs.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

namespace lorva {

namespace {

/// In bytes; file systems take 255, and a suffix must fit.
constexpr qsizetype kNameLimit = 200;

void prepare(QFileDialog &dialog)
{
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    dialog.setWindowModality(Qt::WindowModal);
}

/// The desktops' own dialogs choose one folder at a time, and so does Qt's until its lists are told
/// otherwise.
void allowSeveral(QFileDialog &dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    for (const char *name : {"listView", "treeView"})
        if (auto *view = dialog.findChild<QAbstractItemView *>(QLatin1String(name)))
            view->setSelectionMode(QAbstractItemView::ExtendedSelection);
}

QString existingFolder(const QString &start)
{
    return QFileInfo(start).isDir() ? start : QDir::homePath();
}

} // namespace

QFileDialog *openFolderDialog(QWidget &parent, const FolderQuestion &question, const QString &start)
{
    auto *dialog = new QFileDialog(&parent, question.message, existingFolder(start));
    dialog->setObjectName(QStringLiteral("FolderDialog"));
    prepare(*dialog);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    if (question.allowsSeveral)
        allowSeveral(*dialog);
    if (!question.prompt.isEmpty())
        dialog->setLabelText(QFileDialog::Accept, question.prompt);
    dialog->open();
    return dialog;
}

QFileDialog *openSaveDialog(QWidget &parent, const QString &title, const QString &name,
                            const QString &start)
{
    auto *dialog = new QFileDialog(&parent, title, existingFolder(start));
    dialog->setObjectName(QStringLiteral("SaveDialog"));
    prepare(*dialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(QFileInfo(name).suffix());
    dialog->selectFile(name);
    dialog->open();
    return dialog;
}

std::vector<FilePath> chosenPaths(const QFileDialog &dialog)
{
    std::vector<FilePath> paths;
    for (const QString &path : dialog.selectedFiles())
        paths.emplace_back(QFile::encodeName(QDir::cleanPath(path)));
    return paths;
}

QString exportFileName(const QString &suggested, const QString &title)
{
    QString name = suggested.isEmpty() ? title : suggested;
    for (QChar &character : name)
        if (character == u'/' || character < u' ')
            character = u'-';
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    while (name.toUtf8().size() > kNameLimit)
        name.chop(1);
    return suggested.isEmpty() ? QString(name + QLatin1String(".csv")) : name;
}

} // namespace lorva
