// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <compare>
#include <optional>

namespace lorva {

// Version numbers of releases. Thread: any.

/// Whether `text` is numbers with dots between them, however many, and maybe the mark of a release
/// before the release: "1.2", "2026.11.0", "1.3-beta2", "1.3-rc.1". At most 64 characters.
bool isReleaseVersion(QStringView text);

/// How two versions stand to each other; nothing where one of them is no version.
///
///     1.9   before  1.10       numbers, of any size
///     1.2   same as 1.2.0      a number that is not there is 0
///     1.3-beta2  before  1.3-beta10  before  1.3-RC1  before  1.3
///
/// In marks, numbers come before letters, whose case says nothing.
std::optional<std::weak_ordering> compareVersions(QStringView left, QStringView right);

} // namespace lorva
