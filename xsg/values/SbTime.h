// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

/// A time or a duration in seconds.
class XSG_API SbTime
{
public:
    constexpr SbTime() = default;
    constexpr SbTime(double seconds) // NOLINT(google-explicit-constructor): seconds are the one unit
        : m_seconds(seconds)
    {
    }
    /// Seconds since the Unix epoch, now.
    static SbTime getTimeOfDay();

    constexpr double getValue() const { return m_seconds; }
    friend constexpr bool operator==(SbTime a, SbTime b) { return a.m_seconds == b.m_seconds; }
    friend constexpr bool operator!=(SbTime a, SbTime b) { return !(a == b); }
    friend constexpr bool operator<(SbTime a, SbTime b) { return a.m_seconds < b.m_seconds; }

private:
    double m_seconds = 0;
};

/// A stop-watch on the steady clock; starts when built.
class XSG_API SbElapsedTime
{
public:
    SbElapsedTime();
    void reset();
    /// Seconds since built or reset; may be 0 when asked at once.
    double getElapsed() const;

private:
    double m_start;
};
