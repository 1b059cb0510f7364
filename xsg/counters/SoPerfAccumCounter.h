// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/counters/SoPerfCounter.h>

/// Adds up what happened since it was last reset: frames, bytes, microseconds.
class XSG_API SoPerfAccumCounter : public SoPerfCounter
{
public:
    /// custom: computed from two others instead of fed.
    SoPerfAccumCounter(SbName name, const SbString& description, const SbString& module, int level,
                       bool custom = false, SoPerfFeed* feed = nullptr);

    SbString getTypeCode() const override;
    SbString getTypeText() const override;

    void increment(std::int64_t amount = 1) { feed().add(amount); }
    /// Loses nothing of what other threads add meanwhile.
    void reset() override;

protected:
    std::int64_t counted() const override;

private:
    std::atomic<std::int64_t> m_atReset{0};
};
