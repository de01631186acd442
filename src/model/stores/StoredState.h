// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

/// What someone who is about to replace a stored value knows about it. Only who has read it in the
/// same transaction knows anything, and replaces it by a different one. Absent ones count as
/// unreadable: there is nothing of them to keep.
enum class StoredState { unknown, readable, unreadable };

/// The state of what was read as an optional.
constexpr StoredState storedState(bool wasRead)
{
    return wasRead ? StoredState::readable : StoredState::unreadable;
}

} // namespace lorva
