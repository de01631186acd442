// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// \file
/// Where the time of a start or a scan goes: with LORVA_TRACE=FILE in the environment every stage
/// writes its begin and its end into FILE, in the JSON array form of Chrome's trace events
/// (chrome://tracing, Perfetto). Times are microseconds of the monotonic clock, so that they can be
/// compared with what another process measured. Each event is written at once: the file of a
/// process that was killed holds all that happened until then. Without the variable a stage costs
/// one look at a flag. Thread: any.

namespace lorva {

/// True while stages are written down.
bool isTracing();

/// One stage, from its construction to its destruction, on the thread that makes it.
///
///     const TraceStage stage("parse cache: read");
class TraceStage
{
public:
    /// `name` must outlive the stage: a literal.
    explicit TraceStage(const char *name);
    ~TraceStage() { end(); }
    TraceStage(const TraceStage &) = delete;
    TraceStage &operator=(const TraceStage &) = delete;

    /// Ends it before its scope does.
    void end();

private:
    const char *m_name;
};

/// A moment without duration: "first screen painted".
void traceMoment(const char *name);

} // namespace lorva
