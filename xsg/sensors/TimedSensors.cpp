// SPDX-License-Identifier: MIT
#include <xsg/sensors/SoAlarmSensor.h>
#include <xsg/sensors/SoSensorQueue.h>
#include <xsg/sensors/SoTimerSensor.h>

#include <algorithm>
#include <cmath>

namespace
{

SbTime now()
{
    return SoSensorQueue::getInstance().getTime();
}

} // namespace

SoTimedSensor::~SoTimedSensor()
{
    disarm();
}

void SoTimedSensor::arm(SbTime moment)
{
    disarm();
    m_moment = moment;
    SoSensorQueue::getInstance().arm(this);
}

void SoTimedSensor::disarm()
{
    if (m_armed)
        SoSensorQueue::getInstance().disarm(this);
}

void SoTimedSensor::unschedule()
{
    disarm();
    dequeue();
}

void SoAlarmSensor::setTime(SbTime moment)
{
    if (std::isfinite(moment.getValue()))
        m_time = moment;
}

void SoAlarmSensor::setTimeFromNow(SbTime duration)
{
    setTime(now().getValue() + duration.getValue());
}

void SoAlarmSensor::schedule()
{
    if (!isScheduled())
        arm(m_time);
}

void SoTimerSensor::setInterval(SbTime interval)
{
    if (std::isfinite(interval.getValue()) && interval.getValue() > 0)
        m_interval = interval;
}

void SoTimerSensor::schedule()
{
    if (!isScheduled())
        arm(now().getValue() + m_interval.getValue());
}

void SoTimerSensor::run()
{
    // Armed before the callback, which may unschedule.
    const double interval = m_interval.getValue();
    const double late = std::max(now().getValue() - getMoment().getValue(), 0.0);
    const double next = getMoment().getValue() + (std::floor(late / interval) + 1) * interval;
    arm(std::isfinite(next) ? next : now().getValue());
    SoTimedSensor::run();
}
