// SPDX-License-Identifier: MIT
#include <xsg/counters/SoPerfAccumCounter.h>
#include <xsg/counters/SoPerfStateCounter.h>

SoPerfAccumCounter::SoPerfAccumCounter(SbName name, const SbString& description, const SbString& module,
                                       int level, bool custom, SoPerfFeed* feed)
    : SoPerfCounter(name, description, module, level, custom, feed)
{
}

SbString SoPerfAccumCounter::getTypeCode() const
{
    return "A";
}

SbString SoPerfAccumCounter::getTypeText() const
{
    return "Accumulation";
}

void SoPerfAccumCounter::reset()
{
    SoPerfCounter::reset();
    m_atReset.store(feed().get(), std::memory_order_relaxed);
    forgetSample();
}

std::int64_t SoPerfAccumCounter::counted() const
{
    return feed().get() - m_atReset.load(std::memory_order_relaxed);
}

SoPerfStateCounter::SoPerfStateCounter(SbName name, const SbString& description, const SbString& module,
                                       int level, bool custom, SoPerfFeed* feed)
    : SoPerfCounter(name, description, module, level, custom, feed)
{
}

SbString SoPerfStateCounter::getTypeCode() const
{
    return "S";
}

SbString SoPerfStateCounter::getTypeText() const
{
    return "State";
}
