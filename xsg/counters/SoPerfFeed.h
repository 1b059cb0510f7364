// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>

/// What a counter counts: one number that any thread adds to with a single relaxed atomic addition, whether
/// or not it is read. Constant-initialised, so that it can be fed before main() and while libraries are
/// unloaded.
class SoPerfFeed
{
public:
    constexpr SoPerfFeed() = default;
    SoPerfFeed(const SoPerfFeed&) = delete;
    SoPerfFeed& operator=(const SoPerfFeed&) = delete;

    void add(std::int64_t amount = 1) noexcept { m_total.fetch_add(amount, std::memory_order_relaxed); }
    void set(std::int64_t total) noexcept { m_total.store(total, std::memory_order_relaxed); }
    std::int64_t get() const noexcept { return m_total.load(std::memory_order_relaxed); }

private:
    std::atomic<std::int64_t> m_total{0};
};
