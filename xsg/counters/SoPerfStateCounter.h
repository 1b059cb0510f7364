// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/counters/SoPerfCounter.h>

/// A quantity as it is now: nodes alive, sensors queued. A reset does not change it.
class XSG_API SoPerfStateCounter : public SoPerfCounter
{
public:
    /// custom: computed from two others instead of fed.
    SoPerfStateCounter(SbName name, const SbString& description, const SbString& module, int level,
                       bool custom = false, SoPerfFeed* feed = nullptr);

    SbString getTypeCode() const override;
    SbString getTypeText() const override;

    void setState(std::int64_t state) { feed().set(state); }
    void addToState(std::int64_t difference) { feed().add(difference); }
};
