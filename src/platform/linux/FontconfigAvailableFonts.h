// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AvailableFonts.h"

namespace lorva {

/// The fonts that fontconfig offers to every program of the user.
///
/// Every call loads a configuration of its own, so that it sees what was installed since the last
/// one, and so that the process's current configuration (which the interface's toolkit reads) is
/// neither used nor changed. Links that registration made show as the file that they lead to; links
/// whose file has gone are left out, as is a second listing of the same path. Thread: any. Owns
/// nothing between calls.
class FontconfigAvailableFonts final : public AvailableFonts
{
public:
    /// `registeredLinks` is the folder where registration keeps its links.
    explicit FontconfigAvailableFonts(FilePath registeredLinks);

    std::vector<FilePath> fontFiles(const std::function<void(int)> &found,
                                    std::stop_token stop) const override;

private:
    const FilePath m_registeredLinks;
};

} // namespace lorva
