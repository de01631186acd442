// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceStore.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace lorva {

/// Notices what other processes change in a preference store, and sees to it that what could not be
/// written is written when it can be.
///
/// Looks when the store's files change and when the application becomes active, and every second
/// while values could not be read; tries to write what waits when the application becomes active,
/// every second, and when it ends, for which it may take two seconds. Holds the store, which
/// outlives it; one for a store. Works without a display, too. Thread: main.
class PreferenceWatcher final : public QObject
{
    Q_OBJECT
public:
    explicit PreferenceWatcher(PreferenceStore &store, QObject *parent = nullptr);
    ~PreferenceWatcher() override;

Q_SIGNALS:
    /// Values may be others than they were; not for this process's own writes.
    void changedElsewhere();

private:
    void watchApplication();
    void watchFiles();
    void watchStore();
    void noteFiles();
    void tryAgain();
    void tryLater();
    void look();
    bool takeChanges();

    PreferenceStore &m_store;
    const QStringList m_paths;
    QFileSystemWatcher m_files;
    QTimer m_look;
    QTimer m_lookAgain;
    QTimer m_tryAgain;
};

} // namespace lorva
