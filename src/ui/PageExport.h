// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/PictureFile.h"

#include <QObject>
#include <QThreadPool>

#include <functional>

class QWidget;

namespace lorva {

/// Asks where a picture is to be written, and writes it on a worker. Thread: main.
class PageExport final
{
public:
    /// Dialogs are attached to the window of `widget`, which outlives this.
    explicit PageExport(QWidget &widget);
    ~PageExport();

    /// The reason is fit to be shown.
    std::function<void(const QString &reason)> onFailed;
    /// `title`: of the dialog; `name`: what the file may be called, without an ending.
    void ask(const PictureContent &picture, const QString &title, const QString &name);
    bool isWriting() const { return m_writing > 0; }

private:
    void write(const PictureContent &picture, const FilePath &target);

    QWidget &m_widget;
    /// Where the last one went.
    QString m_folder;
    int m_writing = 0;
    QThreadPool m_pool;
    /// Whatever m_pool still works at is dropped with it.
    QObject m_guard;
};

} // namespace lorva
