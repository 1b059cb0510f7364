// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoTimedSensor.h>

/// Runs its callback again and again, every interval, from schedule() to unschedule(). Where turns come late,
/// the moments that were missed are left out, and the next one is on the beat again.
class XSG_API SoTimerSensor : public SoTimedSensor
{
public:
    using SoTimedSensor::SoTimedSensor;

    /// Ignored unless finite and above 0. Takes effect from the next moment on. 1/30 s at the start.
    void setInterval(SbTime interval);
    SbTime getInterval() const { return m_interval; }

    void schedule() override; // the first moment is one interval from now

protected:
    void run() override;

private:
    SbTime m_interval = 1.0 / 30.0;
};
