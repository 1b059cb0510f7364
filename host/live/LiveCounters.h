// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>

#include <string>
#include <vector>

class SoPerfStateCounter;

namespace scopix
{

/// Shows the counters of a running program among the others, as “PROGRAM: COUNTER”. They stay when it ends,
/// at 0, since curves may show them; another run of the same program goes on with them. GUI thread only.
class LiveCounters
{
public:
    LiveCounters(const std::string& program, const std::vector<live::CounterInfo>& counters);
    ~LiveCounters();
    LiveCounters(const LiveCounters&) = delete;
    LiveCounters& operator=(const LiveCounters&) = delete;

    /// In the order of the counters.
    void show(const std::vector<double>& values);

private:
    std::vector<SoPerfStateCounter*> m_counters; // null: the name was taken
};

} // namespace scopix
