// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "platform/PreferenceValue.h"

#include <map>

namespace lorva::cli {

/// The preference file as it is, for someone who must not change a thing.
struct PreferenceLook
{
    using Rows = std::map<QString, PreferenceRow>;

    FilePath file;
    bool exists = false;
    qint64 size = 0;
    /// Why nothing can be read, else all that is stored; nothing for a file that is not there.
    Result<Rows> rows;
};

/// Looks at a copy: opening the file itself would make it, mend it or move it aside. A copy that a
/// writer came between is taken again.
PreferenceLook lookAtPreferences(const FilePath &applicationSupport);

/// Why a change could not be written now; the lock of another process is waited for shortly.
Result<void> checkWritable(const FilePath &file);

} // namespace lorva::cli
