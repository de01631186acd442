// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

#include <utility>

namespace lorva {

/// True on the thread of the application object; true everywhere while there is none, as in small
/// command-line tools before they set one up.
inline bool isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return !application || application->thread() == QThread::currentThread();
}

/// Runs `function` on the main thread at the next turn of its event loop; never at once, not even
/// when called from there. Dropped when the application object is gone. Thread: any.
template <class Function>
void postToMainThread(Function &&function)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::forward<Function>(function),
                                  Qt::QueuedConnection);
}

} // namespace lorva

/// Stops a debug build that uses a main-thread object from another thread.
#define LORVA_ASSERT_MAIN_THREAD()                                                                 \
    Q_ASSERT_X(::lorva::isMainThread(), Q_FUNC_INFO, "must run on the main thread")
