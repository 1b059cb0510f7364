// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>

namespace xsg
{

/// How much memory of the machine the process has, in bytes. Asking the system costs microseconds, so that it
/// is asked ten times a second at most. Any thread.
class ProcessMemory
{
public:
    /// `now` in nanoseconds.
    std::int64_t get(std::int64_t now) noexcept;

private:
    std::atomic<std::int64_t> m_bytes{0};
    std::atomic<std::int64_t> m_askedAt{0};
};

} // namespace xsg
