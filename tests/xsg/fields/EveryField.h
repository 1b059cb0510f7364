// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "FieldSamples.h"

#include <functional>

/// Walks the table of samples.
class EveryField : public testing::Test
{
protected:
    const FieldSample& sample() const { return *m_sample; }
    virtual bool isMeant(const FieldSample& /*candidate*/) const { return true; }
    void forEach(const std::function<void()>& check)
    {
        for (const FieldSample& candidate : fieldSamples()) {
            if (!isMeant(candidate))
                continue;
            m_sample = &candidate;
            SCOPED_TRACE(candidate.type);
            check();
        }
    }

private:
    const FieldSample* m_sample = nullptr;
};

/// How often a field has reported a change.
inline int changesOf(const SoField& field)
{
    return static_cast<int>(field.getChangeCount());
}
