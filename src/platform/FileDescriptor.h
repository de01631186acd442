// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include <unistd.h>

namespace lorva {

/// Owns what open() and its relatives give; a negative number stands for nothing.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number)
        : m_number(number)
    {
    }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~FileDescriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// Gives it away.
    int release() { return std::exchange(m_number, -1); }

private:
    int m_number = -1;
};

} // namespace lorva
