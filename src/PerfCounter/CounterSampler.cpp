// SPDX-License-Identifier: MIT
#include "CounterSampler.h"

#include "CustomCounter.h"
#include "SoPerfCounterPcViewed.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <algorithm>
#include <cmath>

namespace
{

// No plot can show a number beyond all numbers.
double finiteOf(double value)
{
    return std::isfinite(value) ? value : 0;
}

} // namespace

CounterSampler::CounterSampler()
    : m_manager(SoPerfCounterManager::getInstance())
{
    m_manager->setInterval(SbTime(0.0));
}

SoPerfCounter* CounterSampler::counterOf(const SoPerfCounterPcViewed& viewed) const
{
    return m_manager->getCounter(toCounterName(viewed.getName()));
}

void CounterSampler::sample(const Viewed& viewed, int filled, int length)
{
    const double seconds = elapsed();
    const int kept = std::min(filled, length - 1);
    for (const SoPerfCounterPcViewed* each : viewed) {
        double* history = each->getHistory();
        std::copy_backward(history, history + kept, history + kept + 1);
        const SoPerfCounter* counter = counterOf(*each);
        // A counter that no longer exists reads 0, and so does one sampled twice at the same moment.
        history[0] = counter && seconds > 0 ? finiteOf(counter->getValue() / seconds) : 0;
    }
    m_periods.push_front(seconds);
    keepPeriods(std::min(filled + 1, length));
}

void CounterSampler::rescale(const SoPerfCounterPcViewed& viewed, double factor, int length) const
{
    SoPerfCounter* counter = counterOf(viewed);
    if (!counter)
        return;
    const double old = counter->getScaleFactor();
    counter->setScaleFactor(factor);
    const double ratio = old / counter->getScaleFactor();
    std::for_each(viewed.getHistory(), viewed.getHistory() + length, [ratio](double& sample) {
        sample = std::isnan(sample) ? sample : finiteOf(sample * ratio);
    });
}

void CounterSampler::resetCounters(const Viewed& viewed) const
{
    const auto reset = [this](SbName name) {
        if (SoPerfCounter* counter = m_manager->getCounter(name))
            counter->reset();
    };
    for (const SoPerfCounterPcViewed* each : viewed) {
        const SoPerfCounter* counter = counterOf(*each);
        if (counter && counter->isCustom()) {
            reset(counter->getFirstParent());
            reset(counter->getSecondParent());
        } else {
            reset(toCounterName(each->getName()));
        }
    }
}

void CounterSampler::resetElapsed()
{
    if (m_reset)
        m_reset(m_data);
    m_elapsed.reset();
}

void CounterSampler::setElapsedSource(double (*secondsSinceReset)(void*), void (*reset)(void*), void* data)
{
    m_seconds = secondsSinceReset;
    m_reset = reset;
    m_data = data;
}

double CounterSampler::elapsed() const
{
    return m_seconds ? m_seconds(m_data) : m_elapsed.getElapsed();
}
