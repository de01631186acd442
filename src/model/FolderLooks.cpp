// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/FolderLooks.h"

#include "base/RunThen.h"
#include "platform/FileDescriptor.h"

#include <QTimer>

#include <fcntl.h>

namespace lorva {

namespace {

/// More folders than these that do not answer, and the rest counts as not there.
constexpr int kMostThreads = 64;

/// Never destroyed: that would wait for threads that may never come back.
QThreadPool &threads()
{
    static QThreadPool *const pool = [] {
        auto *made = new QThreadPool;
        made->setObjectName(QStringLiteral("vantrel.lorva.folder-looks"));
        made->setMaxThreadCount(kMostThreads);
        return made;
    }();
    return *pool;
}

} // namespace

bool canOpenFolder(const FilePath &folder)
{
    const FileDescriptor opened(
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK));
    return opened.isOpen();
}

FolderLooks::FolderLooks(std::chrono::milliseconds patience, Open open, QObject *parent)
    : QObject(parent)
    , m_patience(patience)
    , m_open(std::move(open))
{
}

FolderLooks::~FolderLooks() = default;

void FolderLooks::look(const std::vector<FilePath> &folders,
                       std::function<void(QSet<FilePath>)> done)
{
    const auto question = std::make_shared<Question>(Question{
        ++m_lastNumber, QSet<FilePath>(folders.begin(), folders.end()), {}, std::move(done)});
    m_questions.push_back(question);
    for (const FilePath &folder : std::as_const(question->waiting))
        begin(folder);
    // Also for no folders at all: answers never come within the question.
    const auto patience = folders.empty() ? std::chrono::milliseconds(0) : m_patience;
    QTimer::singleShot(patience, this, [this, question] { answer(question); });
}

void FolderLooks::begin(const FilePath &folder)
{
    if (m_running.contains(folder))
        return;
    m_running.insert(folder, m_lastNumber);
    runThen(
        threads(), this, [folder, open = m_open](const std::stop_token &) { return open(folder); },
        [this, folder](bool isThere) { take(folder, isThere); });
}

void FolderLooks::take(const FilePath &folder, bool isThere)
{
    const int lastSeen = m_running.take(folder);
    bool isStale = false;
    // Answering may destroy this object, or ask again: events bring it.
    for (const std::shared_ptr<Question> &question : m_questions) {
        if (!question->waiting.contains(folder))
            continue;
        if (question->number > lastSeen) {
            isStale = true;
            continue;
        }
        question->waiting.remove(folder);
        if (isThere)
            question->there.insert(folder);
        if (question->waiting.isEmpty())
            QTimer::singleShot(0, this, [this, question] { answer(question); });
    }
    // What was seen may be from before they asked.
    if (isStale)
        begin(folder);
}

void FolderLooks::answer(const std::shared_ptr<Question> &question)
{
    if (std::erase(m_questions, question) > 0)
        question->done(question->there);
}

} // namespace lorva
