// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/counters/SoPerfAccumCounter.h>
#include <xsg/counters/SoPerfStateCounter.h>
#include <xsg/values/SbTime.h>

#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

/// The one registry of performance counters. It starts with the library's own (LibraryCounters.h);
/// applications and tools add theirs. All operations are safe from any thread.
class XSG_API SoPerfCounterManager
{
public:
    static SoPerfCounterManager* getInstance();

    /// All counters in the order of registration, the disabled ones included.
    std::vector<SoPerfCounter*> getCounters() const;
    /// The counter of this name, or null.
    SoPerfCounter* getCounter(SbName name) const;

    /// Takes the counter over. False for a null pointer, an empty name and a name already taken: the counter
    /// then stays with the caller.
    bool registerCounter(SoPerfCounter* counter);

    /// Marks a counter; an unknown name does nothing.
    void disableCounter(SbName name) { setEnabled(name, false); }
    void enableCounter(SbName name) { setEnabled(name, true); }
    /// Takes every disabled counter out of the registry, its name being free again. Counters computed from it
    /// then read 0. Pointers to it stay valid.
    void removeDisabledCounters();

    /// How long a value that was read stays good: within it, reading again gives the same value. 0 (the
    /// default) reads again each time; negative or not finite counts as 0.
    void setInterval(SbTime interval);
    SbTime getInterval() const { return m_interval.load(std::memory_order_relaxed); }

private:
    friend class SoPerfCounter;
    SoPerfCounterManager();
    void setEnabled(SbName name, bool enabled);
    bool add(SoPerfCounter* counter);
    void setParent(SoPerfCounter* counter, int which, SbName name);
    void link(SoPerfCounter* counter);
    void relink(SbName name, SoPerfCounter* counter);
    bool isParent(const SoPerfCounter* counter) const;
    static bool reaches(const SoPerfCounter* from, const SoPerfCounter* wanted);

    mutable std::mutex m_mutex;
    std::vector<SoPerfCounter*> m_counters;
    std::unordered_map<const char*, SoPerfCounter*> m_byName;
    /// The counters that name each parent. Entries are never removed; the counter itself says whether one
    /// still holds.
    std::unordered_map<const char*, std::vector<SoPerfCounter*>> m_children;
    /// Never shrinks, so that a removed counter may still be fed and read without a lock.
    std::vector<std::unique_ptr<SoPerfCounter>> m_owned;
    std::atomic<SbTime> m_interval{SbTime()};
};
