// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <vector>

namespace lorva {

/// True if the folder can be opened. Thread: any; may never return on a volume that does not
/// answer.
bool canOpenFolder(const FilePath &folder);

/// Looks whether folders are there, without ever waiting long for one.
///
/// Each is looked at on a thread of its own, of which nobody waits for the end: a volume that does
/// not answer keeps neither the other folders nor the program's end. A folder has one look at a
/// time; who asks during it gets the answer of the next. Thread: main.
class FolderLooks final : public QObject
{
    Q_OBJECT
public:
    using Open = std::function<bool(const FilePath &)>;

    explicit FolderLooks(std::chrono::milliseconds patience, Open open = canOpenFolder,
                         QObject *parent = nullptr);
    ~FolderLooks() override;

    /// Calls `done` with those that can be opened: when all have answered, or when patience is at
    /// its end. Not called when this object goes first.
    void look(const std::vector<FilePath> &folders, std::function<void(QSet<FilePath>)> done);

private:
    struct Question
    {
        int number = 0;
        QSet<FilePath> waiting;
        QSet<FilePath> there;
        std::function<void(QSet<FilePath>)> done;
    };

    void begin(const FilePath &folder);
    void take(const FilePath &folder, bool isThere);
    void answer(const std::shared_ptr<Question> &question);

    const std::chrono::milliseconds m_patience;
    const Open m_open;
    /// With the number of the last question that had been asked when the look began.
    QHash<FilePath, int> m_running;
    int m_lastNumber = 0;
    std::list<std::shared_ptr<Question>> m_questions;
};

} // namespace lorva
