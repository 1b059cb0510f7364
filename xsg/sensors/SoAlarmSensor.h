// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoTimedSensor.h>

/// Runs its callback once, at a moment.
class XSG_API SoAlarmSensor : public SoTimedSensor
{
public:
    using SoTimedSensor::SoTimedSensor;

    /// Takes effect with the next schedule(). A time that is not finite is ignored.
    void setTime(SbTime moment);
    void setTimeFromNow(SbTime duration);
    SbTime getTime() const { return m_time; }

    void schedule() override;

private:
    SbTime m_time;
};
