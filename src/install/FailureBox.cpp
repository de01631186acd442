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

BatchRegistration FailureBox::take()
{
    const std::lock_guard lock(m_lock);
    return {std::exchange(m_failures, {}), std::exchange(m_unattributed, {})};
}

InstallationError installationError(const FontManagerError &error)
{
    return {InstallationError::fontManagerDomain(), error.code, error.detail};
}

BatchRegistration registerAll(const std::vector<FilePath> &files, FontRegistrar &registrar)
{
    FailureBox box;
    registrar.registerFonts(files, [&box](const std::vector<FontManagerError> &errors, bool) {
        box.add(errors);
        return true;
    });
    return box.take();
}

BatchRegistration unregisterAll(const std::vector<FilePath> &files, FontRegistrar &registrar)
{
    FailureBox box;
    registrar.unregisterFonts(files, [&box](const std::vector<FontManagerError> &errors, bool) {
        box.add(errors);
        return true;
    });
    return box.take();
}

} // namespace lorva
