// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace scopix::live
{

/// Owns an open file of the system, and closes it. -1 is none.
class FileDescriptor
{
public:
    explicit FileDescriptor(int number = -1) noexcept
        : m_number(number)
    {
    }
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }

    int number() const noexcept { return m_number; }
    explicit operator bool() const noexcept { return m_number >= 0; }
    void close() noexcept;

private:
    int m_number;
};

} // namespace scopix::live
