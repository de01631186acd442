// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QByteArrayList>

#include <functional>

namespace lorva {

/// What a start of the program was asked for, as one process tells another.
struct ProgramStart
{
    /// Without the program's name. Bytes, because paths are.
    QByteArrayList arguments;
    FilePath workingFolder;
    /// The desktop's permission to come to the front; empty when it gave none.
    QByteArray activationToken;

    bool operator==(const ProgramStart &) const = default;
};

/// Keeps the program to one process per login: the first claims its place, every other hands its
/// start over to it and ends. Thread: main.
class SingleInstance
{
public:
    enum class Claim {
        /// This process is the one; others hand their starts over to it.
        first,
        /// Another process has taken this start over.
        handedOver,
        /// Nobody can be asked, or whoever has the place does not answer: the program starts all
        /// the same.
        alone
    };

    virtual ~SingleInstance() = default;
    /// Begins to claim; returns at once. Called once.
    virtual void beginClaim(const ProgramStart &start) = 0;
    /// What came of it. Waits, two seconds at most.
    virtual Claim claim() = 0;
    /// Gives the place up: a process that ends must not be handed anything any more.
    virtual void release() = 0;

    /// Another start was handed over. Called from the event loop.
    std::function<void(const ProgramStart &start)> onStart;
};

} // namespace lorva
