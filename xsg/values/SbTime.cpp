// SPDX-License-Identifier: MIT
#include <xsg/values/SbTime.h>

#include <chrono>

namespace
{

template <class Clock>
double secondsNow()
{
    return std::chrono::duration<double>(Clock::now().time_since_epoch()).count();
}

} // namespace

SbTime SbTime::getTimeOfDay()
{
    return secondsNow<std::chrono::system_clock>();
}

SbElapsedTime::SbElapsedTime()
    : m_start(secondsNow<std::chrono::steady_clock>())
{
}

void SbElapsedTime::reset()
{
    m_start = secondsNow<std::chrono::steady_clock>();
}

double SbElapsedTime::getElapsed() const
{
    return secondsNow<std::chrono::steady_clock>() - m_start;
}
