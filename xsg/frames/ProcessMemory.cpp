// SPDX-License-Identifier: MIT
#include <xsg/frames/ProcessMemory.h>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace
{

constexpr std::int64_t Interval = 100'000'000;

// The second number of the line, in pages.
std::int64_t residentBytes() noexcept
{
    char line[128] = "";
    const int file = open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return 0;
    const ssize_t size = read(file, line, sizeof line - 1);
    close(file);
    char* second = nullptr;
    if (size <= 0)
        return 0;
    std::strtoll(line, &second, 10);
    return std::strtoll(second, nullptr, 10) * sysconf(_SC_PAGESIZE);
}

} // namespace

std::int64_t xsg::ProcessMemory::get(std::int64_t now) noexcept
{
    const std::int64_t askedAt = m_askedAt.load(std::memory_order_relaxed);
    if (askedAt == 0 || now - askedAt >= Interval) {
        m_askedAt.store(now, std::memory_order_relaxed);
        m_bytes.store(residentBytes(), std::memory_order_relaxed);
    }
    return m_bytes.load(std::memory_order_relaxed);
}
