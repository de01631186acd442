// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>

#include <chrono>
#include <functional>

namespace lorva {

/// What confined work may cost at most.
struct ConfinementLimits
{
    /// Of addresses, the program and its libraries included. Without effect under sanitizers, which
    /// reserve terabytes of them.
    qint64 memoryBytes = 0;
    /// Of the processor, all threads together.
    std::chrono::seconds processorTime{0};
    /// From beginning to end, waiting for the disk or a dead volume included.
    std::chrono::milliseconds wallTime{0};
    /// Of the answer, and of any file that an open descriptor leads to.
    qint64 answerBytes = 0;
};

/// Work on what strangers have made: it is done in a process of its own, which can read what it has
/// opened before, compute, and answer, and nothing else.
struct ConfinedWork
{
    /// What is worked on, for errors: the name of a file.
    QString subject;
    /// Opens and loads all that the work needs, without looking into it. Time and memory are
    /// limited already.
    std::function<Result<void>()> prepare;
    /// Works, with the filter of system calls in place.
    std::function<Result<QByteArray>()> work;
};

/// Does the work and gives its answer. Whoever gets the work into his hands also writes the answer:
/// the caller believes nothing of it. An error's words are short and without control characters.
///
/// The process is limited as `limits` say, leaves no core dump, gains no rights by what it runs,
/// has no descriptors but those that it opened (standard input, output and errors lead nowhere; a
/// sanitizer's errors go where ours go), and ends with ours. After `prepare` the kernel stops it at
/// once (where it has system-call filters; else the limits alone hold) for: opening a file for
/// writing, making, renaming, linking, changing or removing one, sockets, starting a process or a
/// program, tracing or signalling others. Opening files for reading and whatever else drawing does
/// not need is refused. What it still can is ask whether a file is there, how large and how old it
/// is, since the C library asks the same way about its own descriptors.
///
/// Errors of prepare() and work() are handed on. Beyond those: cancelled when the time is up or the
/// kernel needed the memory, tooLarge for too much memory or too large an answer, invalidValue when
/// the filter struck, malformed when the work crashed, ioFailure when there is no new process to be
/// had, or none that can be confined.
///
/// Thread: the only one of the process, which is copied as it is. Waits for the end.
Result<QByteArray> runConfined(const ConfinedWork &work, const ConfinementLimits &limits);

} // namespace lorva
