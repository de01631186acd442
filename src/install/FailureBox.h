// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/InstallationOutcome.h"
#include "platform/FontRegistrar.h"

#include <mutex>

namespace lorva {

/// Gathers what the font manager reports about many files, in several calls and from threads of its
/// own. Thread: any.
class FailureBox
{
public:
    /// Files each error under every path that it is about; one that is about none is kept as
    /// unattributed.
    void add(const std::vector<FontManagerError> &errors);
    /// One more file is dealt with.
    void countFile();
    BatchRegistration take();

private:
    std::mutex m_lock;
    InstallationFailures m_failures;
    std::optional<InstallationError> m_unattributed;
    size_t m_filesDealtWith = 0;
};

/// An error of the font manager as the user hears of it.
InstallationError installationError(const FontManagerError &error);

/// Called after each file; false leaves those that follow.
using AfterFile = std::function<bool()>;

/// Registers all files in one go, in the user scope, or withdraws that. Thread: any, not the main
/// one.
BatchRegistration registerAll(const std::vector<FilePath> &files, FontRegistrar &registrar,
                              const AfterFile &afterFile = {});
BatchRegistration unregisterAll(const std::vector<FilePath> &files, FontRegistrar &registrar,
                                const AfterFile &afterFile = {});

} // namespace lorva
