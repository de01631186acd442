// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FailureBox.h"

#include <utility>

namespace lorva {

void FailureBox::add(const std::vector<FontManagerError> &errors)
{
    const std::lock_guard lock(m_lock);
    for (const FontManagerError &error : errors) {
        for (const FilePath &file : error.fontURLs)
            m_failures.insert_or_assign(file, installationError(error));
        if (error.fontURLs.empty())
            m_unattributed = installationError(error);
    }
}

void FailureBox::countFile()
{
    const std::lock_guard lock(m_lock);
    ++m_filesDealtWith;
}

BatchRegistration FailureBox::take()
{
    const std::lock_guard lock(m_lock);
    return {std::exchange(m_failures, {}), std::exchange(m_unattributed, {}),
            std::exchange(m_filesDealtWith, 0)};
}

InstallationError installationError(const FontManagerError &error)
{
    return {InstallationError::fontManagerDomain(), error.code, error.detail};
}

namespace {

/// Puts everything into `box`.
FontRegistrar::Progress intoBox(FailureBox &box, const AfterFile &afterFile)
{
    return [&box, &afterFile](const std::vector<FontManagerError> &errors, bool isDone) {
        box.add(errors);
        if (isDone)
            return true;
        box.countFile();
        return !afterFile || afterFile();
    };
}

} // namespace

BatchRegistration registerAll(const std::vector<FilePath> &files, FontRegistrar &registrar,
                              const AfterFile &afterFile)
{
    FailureBox box;
    registrar.registerFonts(files, intoBox(box, afterFile));
    return box.take();
}

BatchRegistration unregisterAll(const std::vector<FilePath> &files, FontRegistrar &registrar,
                                const AfterFile &afterFile)
{
    FailureBox box;
    registrar.unregisterFonts(files, intoBox(box, afterFile));
    return box.take();
}

} // namespace lorva
