// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesReader.h"

#include <algorithm>

namespace lorva {

namespace {

constexpr size_t kFirstPart = 16;
constexpr size_t kGrowth = 4;
/// One reads; the others are left to files that hang.
constexpr int kMostThreads = 8;
/// An address may be of any length.
constexpr qsizetype kLongestName = 300;

} // namespace

/// The worker's while a part is being read.
struct FontFilesReader::Progress
{
    std::vector<FilePath> files;
    std::vector<FontFilesState::Problem> problems;
    std::vector<ReadFontFile> read;
    size_t part = kFirstPart;

    bool isDone() const { return read.size() == files.size(); }
    void readPart(const std::stop_token &stop)
    {
        const size_t end = std::min(read.size() + part, files.size());
        while (read.size() < end && !stop.stop_requested())
            read.push_back(readFontFile(files[read.size()]));
        part *= kGrowth;
    }
    FontFilesState state() const
    {
        FontFilesState found = fontFilesState(read);
        if (isDone())
            found.problems.insert(found.problems.end(), problems.begin(), problems.end());
        return found;
    }
};

FontFilesReader::FontFilesReader(FontLibraryService &service)
    : m_service(service)
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.font-files"));
    m_pool.setMaxThreadCount(kMostThreads);
}

FontFilesReader::~FontFilesReader()
{
    m_run.cancel();
    m_pool.waitForDone();
}

void FontFilesReader::read(std::vector<FilePath> files, const QStringList &foreign)
{
    const auto progress = std::make_shared<Progress>();
    for (const QString &name : foreign)
        progress->problems.push_back({{}, name.left(kLongestName), FontFileProblem::notHere});
    for (size_t i = kMostFiles; i < files.size(); ++i)
        progress->problems.push_back({files[i], {}, FontFileProblem::tooMany});
    files.resize(std::min(files.size(), kMostFiles));
    progress->files = std::move(files);
    cancel();
    m_isReading = true;
    readNext(progress);
}

void FontFilesReader::cancel()
{
    m_run.cancel();
    m_isReading = false;
}

void FontFilesReader::readNext(const std::shared_ptr<Progress> &progress)
{
    const auto work = [progress, service = &m_service](const std::stop_token &stop) {
        progress->readPart(stop);
        Part part{progress->state(), {}, progress->isDone()};
        part.families = service->prepareFamilies(
            std::make_shared<const std::vector<FontFamilyRecord>>(part.state.families));
        return part;
    };
    m_run = runThen(m_pool, this, work, [this, progress](Part part) {
        m_isReading = !part.isLast;
        if (m_isReading)
            readNext(progress);
        if (onRead)
            onRead(std::move(part));
    });
}

} // namespace lorva
