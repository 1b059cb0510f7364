// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbTime.h>

#include <QList>

#include <deque>

class SoPerfCounter;
class SoPerfCounterManager;
class SoPerfCounterPcViewed;

/// Takes samples of counters: rates per second since the counters were last reset. GUI thread only.
class CounterSampler
{
public:
    using Viewed = QList<SoPerfCounterPcViewed*>;

    CounterSampler();

    /// Null where no counter has the name.
    SoPerfCounter* counterOf(const SoPerfCounterPcViewed& viewed) const;
    /// Puts a sample at the start of each history, which has `filled` samples and room for `length`; the
    /// oldest falls off where there is no more room.
    void sample(const Viewed& viewed, int filled, int length);
    /// The seconds that each sample was divided by, the newest first.
    const std::deque<double>& periods() const { return m_periods; }
    /// 0 before the first sample.
    double newestPeriod() const { return m_periods.empty() ? 0 : m_periods.front(); }
    /// Keeps those of the newest samples only.
    void keepPeriods(int samples) { m_periods.resize(std::size_t(samples)); }
    /// Sets the counter's scale factor and brings its `length` samples to the same scale; NaN stays NaN.
    void rescale(const SoPerfCounterPcViewed& viewed, double factor, int length) const;
    /// The counters, and in place of a custom one both that it is computed from.
    void resetCounters(const Viewed& viewed) const;
    void resetElapsed();

    /// Where the time between samples comes from, in seconds; a clock of its own without one.
    void setElapsedSource(double (*secondsSinceReset)(void* data), void (*reset)(void* data), void* data);

private:
    double elapsed() const;

    SoPerfCounterManager* m_manager;
    SbElapsedTime m_elapsed;
    std::deque<double> m_periods;
    double (*m_seconds)(void*) = nullptr;
    void (*m_reset)(void*) = nullptr;
    void* m_data = nullptr;
};
