// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/counters/SoPerfFeed.h>
#include <xsg/values/SbName.h>

/// A named number that measures what something costs. Two kinds: SoPerfAccumCounter adds up what happened
/// since its last reset, SoPerfStateCounter holds a quantity as it is now. A custom counter counts nothing
/// itself: it is computed, when read, from the raw values of two others.
///
/// Reading, feeding, resetting and every setter are safe from any thread; reading takes no lock. A counter
/// that was handed to SoPerfCounterManager belongs to it and stays valid until the process ends, also once it
/// was removed.
class XSG_API SoPerfCounter
{
public:
    /// How often a reader wants to see the counter: low ones are of interest to everybody, high ones to few.
    enum LevelEnum { LOW, MEDIUM, HIGH };

    SoPerfCounter(const SoPerfCounter&) = delete;
    SoPerfCounter& operator=(const SoPerfCounter&) = delete;
    virtual ~SoPerfCounter();

    SbName getName() const { return m_name; }
    const SbString& getDescription() const { return m_description; }
    const SbString& getModule() const { return m_module; }
    LevelEnum getLevel() const { return m_level; }
    SbString getStringLevel() const;          // "Low", "Medium", "High"
    virtual SbString getTypeCode() const = 0; // as files have it: "A", "S"
    virtual SbString getTypeText() const = 0; // for display: "Accumulation", "State"

    /// The raw value divided by the scale factor; always finite.
    double getValue() const;
    /// What was counted or, for a custom counter, what its parents' raw values give. 0 for a missing parent,
    /// an unknown operation, a division by zero, and where a counter would need its own value.
    double getRawValue() const;
    /// All that was ever counted, whatever resets there were; of a state, what it is. A custom counter counts
    /// nothing itself.
    std::int64_t getTotal() const { return m_feed->get(); }
    /// Starts counting from 0. A state keeps what it is; a custom counter resets the counters that it is
    /// computed from, through however many others.
    virtual void reset();

    double getScaleFactor() const { return m_scale.load(std::memory_order_relaxed); }
    /// Ignored unless finite and above 0.
    void setScaleFactor(double factor);

    /// The two counters, by name, that a custom counter is computed from; they may be registered later than
    /// it.
    SbName getFirstParent() const { return m_parents[0].name.load(); }
    SbName getSecondParent() const { return m_parents[1].name.load(); }
    /// Refused with an SoDebugError, the old parent being kept, where a registered counter would come to
    /// depend on itself.
    void setFirstParent(SbName name) { setParent(0, name); }
    void setSecondParent(SbName name) { setParent(1, name); }
    /// "+", "-", "*" or "/"; any other text is kept and computes 0.
    SbString getOperation() const { return SbString(m_operation.load().getString()); }
    void setOperation(const SbString& operation) { m_operation = SbName(operation); }

    bool isCustom() const { return m_custom; }
    /// A disabled counter still counts, until SoPerfCounterManager::removeDisabledCounters() takes it out.
    bool isEnabled() const { return m_enabled.load(std::memory_order_relaxed); }

protected:
    /// level: a LevelEnum; a number beyond counts as the nearest one. `feed` is where the counter finds its
    /// number; null gives it one of its own.
    SoPerfCounter(SbName name, SbString description, SbString module, int level, bool custom,
                  SoPerfFeed* feed);

    SoPerfFeed& feed() const { return *m_feed; }
    /// The number counted, without regard to parents.
    virtual std::int64_t counted() const { return m_feed->get(); }
    void forgetSample();

private:
    friend class SoPerfCounterManager;
    struct Parent {
        std::atomic<SbName> name{SbName()};
        std::atomic<SoPerfCounter*> counter{nullptr}; // linked by the manager
    };
    void setParent(int which, SbName name);
    void resetLeaves();
    double currentRawValue() const;
    double combine(double first, double second) const;

    const SbName m_name;
    const SbString m_description;
    const SbString m_module;
    const LevelEnum m_level;
    const bool m_custom;
    std::atomic<bool> m_enabled{true};
    std::atomic<bool> m_registered{false};
    std::atomic<double> m_scale{1.0};
    std::atomic<SbName> m_operation{SbName()};
    Parent m_parents[2];
    SoPerfFeed m_ownFeed;
    SoPerfFeed* const m_feed;
    /// The last value read, for an interval above 0. Two threads that read at once may sample twice.
    mutable std::atomic<double> m_sample{0};
    mutable std::atomic<double> m_sampleTime{-1};
};
