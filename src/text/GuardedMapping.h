// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <memory>

namespace lorva {

/// Part of a file mapped for reading, that reads as zeros where the file no longer has bytes.
///
/// Without the guard, a truncated file or a failing disk would end the process by SIGBUS. The first
/// mapping installs a handler; signals that concern no mapping of ours go on to whoever handled
/// them before. Owns: the mapping, not the descriptor. Thread: any.
class GuardedMapping
{
public:
    /// Null when the system refuses, or more than kMaxMappings live.
    static std::unique_ptr<GuardedMapping> map(int fd, quint64 offset, quint32 length);
    ~GuardedMapping();
    GuardedMapping(const GuardedMapping &) = delete;
    GuardedMapping &operator=(const GuardedMapping &) = delete;

    const char *data() const { return m_data; }

private:
    GuardedMapping() = default;

    int m_slot = -1;
    void *m_start = nullptr;
    size_t m_mappedLength = 0;
    const char *m_data = nullptr;
};

} // namespace lorva
