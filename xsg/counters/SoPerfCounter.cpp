// SPDX-License-Identifier: MIT
#include <xsg/counters/SoPerfCounter.h>

#include <xsg/counters/SoPerfCounterManager.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace
{

constexpr double NeverSampled = -1;

double steadySeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

SoPerfCounter::SoPerfCounter(SbName name, SbString description, SbString module, int level, bool custom,
                             SoPerfFeed* feed)
    : m_name(name)
    , m_description(std::move(description))
    , m_module(std::move(module))
    , m_level(static_cast<LevelEnum>(std::clamp<int>(level, LOW, HIGH)))
    , m_custom(custom)
    , m_feed(feed ? feed : &m_ownFeed)
{
}

SoPerfCounter::~SoPerfCounter() = default;

SbString SoPerfCounter::getStringLevel() const
{
    static constexpr const char* Names[] = {"Low", "Medium", "High"};
    return Names[m_level];
}

double SoPerfCounter::getValue() const
{
    const double value = getRawValue() / getScaleFactor();
    return std::isfinite(value) ? value : 0;
}

double SoPerfCounter::getRawValue() const
{
    const double interval = SoPerfCounterManager::getInstance()->getInterval().getValue();
    if (!(interval > 0))
        return currentRawValue();
    const double now = steadySeconds();
    const double sampled = m_sampleTime.load(std::memory_order_acquire);
    if (sampled != NeverSampled && now - sampled < interval)
        return m_sample.load(std::memory_order_relaxed);
    const double value = currentRawValue();
    m_sample.store(value, std::memory_order_relaxed);
    m_sampleTime.store(now, std::memory_order_release);
    return value;
}

void SoPerfCounter::forgetSample()
{
    m_sampleTime.store(NeverSampled, std::memory_order_relaxed);
}

void SoPerfCounter::reset()
{
    if (m_custom)
        resetLeaves();
}

// Like reading, a walk that visits each counter once, whatever the graph looks like.
void SoPerfCounter::resetLeaves()
{
    std::unordered_set<const SoPerfCounter*> seen{this};
    std::vector<SoPerfCounter*> open{this};
    while (!open.empty()) {
        SoPerfCounter* counter = open.back();
        open.pop_back();
        counter->forgetSample();
        for (const Parent& parent : counter->m_parents) {
            SoPerfCounter* next = parent.counter.load();
            if (!next || !seen.insert(next).second)
                continue;
            if (next->m_custom)
                open.push_back(next);
            else
                next->reset();
        }
    }
}

void SoPerfCounter::setScaleFactor(double factor)
{
    if (std::isfinite(factor) && factor > 0)
        m_scale.store(factor, std::memory_order_relaxed);
}

double SoPerfCounter::combine(double first, double second) const
{
    double result = 0;
    const std::string_view operation = m_operation.load().getString();
    if (operation == "+")
        result = first + second;
    else if (operation == "-")
        result = first - second;
    else if (operation == "*")
        result = first * second;
    else if (operation == "/")
        result = second == 0 ? 0 : first / second;
    return std::isfinite(result) ? result : 0;
}

// A walk with a memory instead of a recursion: chains may be long, and two counters that share their parents
// at every level would otherwise be computed a number of times that doubles with each.
double SoPerfCounter::currentRawValue() const
{
    if (!m_custom)
        return static_cast<double>(counted());

    enum class Mark { Open, Done };
    struct Known {
        Mark mark;
        double value;
    };
    std::unordered_map<const SoPerfCounter*, Known> known;
    std::vector<const SoPerfCounter*> path{this};
    known[this] = {Mark::Open, 0};
    const auto valueOf = [&](const Parent& parent) {
        const SoPerfCounter* counter = parent.counter.load();
        const auto found = counter ? known.find(counter) : known.end();
        // An open one is its own ancestor: the loop is cut here.
        return found == known.end() ? 0 : found->second.value;
    };
    while (!path.empty()) {
        const SoPerfCounter* counter = path.back();
        const std::size_t depth = path.size();
        for (const Parent& parent : counter->m_parents) {
            const SoPerfCounter* next = parent.counter.load();
            if (!next || known.count(next))
                continue;
            if (next->m_custom) {
                known[next] = {Mark::Open, 0};
                path.push_back(next);
                break;
            }
            known[next] = {Mark::Done, static_cast<double>(next->counted())};
        }
        if (path.size() > depth)
            continue;
        known[counter] = {Mark::Done,
                          counter->combine(valueOf(counter->m_parents[0]), valueOf(counter->m_parents[1]))};
        path.pop_back();
    }
    return known[this].value;
}

void SoPerfCounter::setParent(int which, SbName name)
{
    SoPerfCounterManager::getInstance()->setParent(this, which, name);
    forgetSample();
}
