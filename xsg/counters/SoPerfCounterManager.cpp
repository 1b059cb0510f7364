// SPDX-License-Identifier: MIT
#include <xsg/counters/SoPerfCounterManager.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/errors/SoDebugError.h>

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace
{

void reportLoop(const SoPerfCounter& counter)
{
    SoDebugError::post(
        "SoPerfCounterManager",
        SbSentence("The counter \"%1\" would be computed from itself; expected parents that do "
                   "not depend on it.",
                   counter.getName().getString()));
}

} // namespace

SoPerfCounterManager* SoPerfCounterManager::getInstance()
{
    // Never destroyed: threads may feed and read counters while the process ends.
    static auto* const manager = new SoPerfCounterManager;
    return manager;
}

SoPerfCounterManager::SoPerfCounterManager()
{
    for (auto& counter : xsg::makeLibraryCounters())
        add(counter.release());
}

std::vector<SoPerfCounter*> SoPerfCounterManager::getCounters() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_counters;
}

SoPerfCounter* SoPerfCounterManager::getCounter(SbName name) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_byName.find(name.getString());
    return found == m_byName.end() ? nullptr : found->second;
}

bool SoPerfCounterManager::registerCounter(SoPerfCounter* counter)
{
    if (!counter || counter->getName() == SbName() || counter->m_registered)
        return false;
    bool loops = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!add(counter))
            return false;
        loops = isParent(counter) && reaches(counter, counter);
    }
    // Parents named before either counter was known cannot be refused any more; reading cuts the loop.
    if (loops)
        reportLoop(*counter);
    return true;
}

bool SoPerfCounterManager::add(SoPerfCounter* counter)
{
    if (!m_byName.emplace(counter->getName().getString(), counter).second)
        return false;
    m_counters.push_back(counter);
    m_owned.emplace_back(counter);
    counter->m_registered = true;
    link(counter);
    relink(counter->getName(), counter);
    return true;
}

// Finds the parents of a counter that has just come in.
void SoPerfCounterManager::link(SoPerfCounter* counter)
{
    for (auto& parent : counter->m_parents) {
        const char* name = parent.name.load().getString();
        if (!*name)
            continue;
        const auto known = m_byName.find(name);
        parent.counter = known == m_byName.end() ? nullptr : known->second;
        m_children[name].push_back(counter);
    }
}

// From now on `name` as a parent stands for `counter`, or for nothing.
void SoPerfCounterManager::relink(SbName name, SoPerfCounter* counter)
{
    const auto found = m_children.find(name.getString());
    if (found == m_children.end())
        return;
    for (SoPerfCounter* child : found->second) {
        for (auto& parent : child->m_parents) {
            if (parent.name.load() == name)
                parent.counter = counter;
        }
    }
}

void SoPerfCounterManager::setParent(SoPerfCounter* counter, int which, SbName name)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        auto& parent = counter->m_parents[which];
        if (!counter->m_registered) {
            parent.name = name;
            return;
        }
        const auto known = m_byName.find(name.getString());
        SoPerfCounter* found = known == m_byName.end() ? nullptr : known->second;
        if (found != counter && !(found && isParent(counter) && reaches(found, counter))) {
            parent.name = name;
            parent.counter = found;
            if (name != SbName()) {
                auto& children = m_children[name.getString()];
                if (std::find(children.begin(), children.end(), counter) == children.end())
                    children.push_back(counter);
            }
            return;
        }
    }
    reportLoop(*counter);
}

bool SoPerfCounterManager::isParent(const SoPerfCounter* counter) const
{
    return m_children.count(counter->getName().getString()) > 0;
}

// Whether `wanted` is among the ancestors of `from`.
bool SoPerfCounterManager::reaches(const SoPerfCounter* from, const SoPerfCounter* wanted)
{
    std::unordered_set<const SoPerfCounter*> seen;
    std::vector<const SoPerfCounter*> open{from};
    while (!open.empty()) {
        const SoPerfCounter* counter = open.back();
        open.pop_back();
        for (const auto& parent : counter->m_parents) {
            const SoPerfCounter* next = parent.counter.load();
            if (next == wanted)
                return true;
            if (next && seen.insert(next).second)
                open.push_back(next);
        }
    }
    return false;
}

void SoPerfCounterManager::setEnabled(SbName name, bool enabled)
{
    if (SoPerfCounter* counter = getCounter(name))
        counter->m_enabled = enabled;
}

void SoPerfCounterManager::removeDisabledCounters()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto firstGone =
        std::stable_partition(m_counters.begin(), m_counters.end(),
                              [](const SoPerfCounter* counter) { return counter->isEnabled(); });
    for (auto at = firstGone; at != m_counters.end(); ++at) {
        m_byName.erase((*at)->getName().getString());
        relink((*at)->getName(), nullptr);
    }
    m_counters.erase(firstGone, m_counters.end());
}

void SoPerfCounterManager::setInterval(SbTime interval)
{
    const double seconds = interval.getValue();
    m_interval.store(std::isfinite(seconds) && seconds > 0 ? interval : SbTime(), std::memory_order_relaxed);
}
