// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/PageExport.h"

#include "base/RunThen.h"
#include "ui/sheets/FileDialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PageExport)
};

QStringList filters()
{
    return {Texts::tr("PDF document") + QLatin1String(" (*.pdf)"),
            Texts::tr("SVG drawing") + QLatin1String(" (*.svg)"),
            Texts::tr("PNG picture") + QLatin1String(" (*.png)")};
}

/// The name's own ending wins; a name without one gets that of the chosen kind.
void followFilter(QFileDialog &dialog)
{
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString &kind) {
                         const qsizetype dot = kind.lastIndexOf(u'.');
                         dialog.setDefaultSuffix(kind.mid(dot + 1).chopped(1));
                     });
}

} // namespace

PageExport::PageExport(QWidget &widget)
    : m_widget(widget)
    , m_folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.export"));
    m_pool.setMaxThreadCount(1);
}

PageExport::~PageExport()
{
    m_pool.waitForDone();
}

void PageExport::ask(const PictureContent &picture, const QString &title, const QString &name)
{
    QFileDialog *dialog =
        openSaveDialog(*m_widget.window(), title, name + QLatin1String(".pdf"), m_folder);
    dialog->setNameFilters(filters());
    followFilter(*dialog);
    QObject::connect(dialog, &QFileDialog::accepted, &m_guard, [this, dialog, picture] {
        const std::vector<FilePath> chosen = chosenPaths(*dialog);
        if (chosen.empty())
            return;
        m_folder = QFileInfo(dialog->selectedFiles().constFirst()).absolutePath();
        write(picture, chosen.front());
    });
}

void PageExport::write(const PictureContent &picture, const FilePath &target)
{
    ++m_writing;
    runThen(
        m_pool, &m_guard,
        [picture, target](const std::stop_token &) { return writePicture(picture, target); },
        [this](const Result<void> &written) {
            --m_writing;
            if (!written && onFailed)
                onFailed(written.error().detail);
        });
}

} // namespace lorva
