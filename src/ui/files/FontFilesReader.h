// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunThen.h"
#include "catalog/FontLibraryService.h"
#include "ui/files/FontFilesState.h"

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <vector>

namespace lorva {

/// Reads files that were opened, on a worker, and tells what there is as it comes: the first few at
/// once, hundreds of others in ever larger parts. A disk that hangs keeps nobody from other files.
///
/// Holds the library service, which outlives it. Waits for the file that is being read when it
/// ends. Thread: main.
class FontFilesReader final : public QObject
{
public:
    /// Nobody looks through more; the rest is told as problems of one kind.
    static constexpr size_t kMostFiles = 2000;

    explicit FontFilesReader(FontLibraryService &service);
    ~FontFilesReader() override;

    struct Part
    {
        /// Of all files so far.
        FontFilesState state;
        /// For the service.
        PreparedFamilies families;
        bool isLast = false;
    };
    std::function<void(Part)> onRead;

    /// In place of what was asked for before. `foreign`: what was given besides and is no file of
    /// this computer, by name.
    void read(std::vector<FilePath> files, const QStringList &foreign);
    /// Nothing more is told of what was asked for.
    void cancel();
    bool isReading() const { return m_isReading; }

private:
    struct Progress;

    void readNext(const std::shared_ptr<Progress> &progress);

    FontLibraryService &m_service;
    bool m_isReading = false;
    RunHandle m_run;
    QThreadPool m_pool;
};

} // namespace lorva
