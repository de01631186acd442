// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <filesystem>

namespace lorva::test {

/// A file, a folder, or a link that may lead nowhere.
inline bool exists(const FilePath &file)
{
    return std::filesystem::exists(std::filesystem::symlink_status(file.c_str()));
}

} // namespace lorva::test
