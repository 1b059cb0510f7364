// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace xsg
{

/// Lets others go on every few milliseconds of a loop, which calls step() in each turn. What `goOn` throws
/// leaves the loop.
class WorkPieces
{
public:
    using Clock = std::chrono::steady_clock;
    /// With the part that is done, from 0 to 1; negative where nobody knows.
    using GoOn = std::function<void(double)>;
    static constexpr std::chrono::milliseconds Length{10};

    explicit WorkPieces(GoOn goOn = {})
        : m_goOn(std::move(goOn))
        , m_until(Clock::now() + Length)
    {
    }

    void step(double part = -1)
    {
        if (!m_goOn || Clock::now() < m_until)
            return;
        m_goOn(part);
        m_until = Clock::now() + Length;
    }

private:
    GoOn m_goOn;
    Clock::time_point m_until;
};

/// For one of `count` parts of the work, all alike.
inline WorkPieces::GoOn partOf(const WorkPieces::GoOn& whole, int index, int count)
{
    if (!whole)
        return {};
    return [whole, index, count](double part) { whole(part < 0 ? part : (index + part) / count); };
}

} // namespace xsg
