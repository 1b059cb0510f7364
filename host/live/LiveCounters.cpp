// SPDX-License-Identifier: MIT
#include "live/LiveCounters.h"

#include "live/LiveValues.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <cmath>
#include <memory>

namespace scopix
{

namespace
{

constexpr double Parts = 1e6; // a counter holds whole numbers
constexpr double Most = 9e12; // that many of them fit
constexpr std::size_t MostCounters = 256;

SoPerfStateCounter* makeCounter(const std::string& program, const live::CounterInfo& info)
{
    SoPerfCounterManager* manager = SoPerfCounterManager::getInstance();
    const SbName name =
        liveName(program + ": " + info.name + (info.unit.empty() ? "" : " (" + info.unit + ")"));
    if (SoPerfCounter* known = manager->getCounter(name))
        return dynamic_cast<SoPerfStateCounter*>(known);
    const std::string about = info.documentation.empty() ? info.name : info.documentation;
    auto counter =
        std::make_unique<SoPerfStateCounter>(name, SbString(about), SbString("Live"), SoPerfCounter::LOW);
    counter->setScaleFactor(Parts);
    return manager->registerCounter(counter.get()) ? counter.release() : nullptr;
}

} // namespace

LiveCounters::LiveCounters(const std::string& program, const std::vector<live::CounterInfo>& counters)
{
    for (std::size_t i = 0; i < std::min(counters.size(), MostCounters); ++i)
        m_counters.push_back(makeCounter(program, counters[i]));
}

LiveCounters::~LiveCounters()
{
    show(std::vector<double>(m_counters.size()));
}

void LiveCounters::show(const std::vector<double>& values)
{
    for (std::size_t i = 0; i < std::min(values.size(), m_counters.size()); ++i) {
        const double value = std::isfinite(values[i]) ? std::clamp(values[i], -Most, Most) : 0.0;
        if (m_counters[i])
            m_counters[i]->setState(std::llround(value * Parts));
    }
}

} // namespace scopix
