// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoSensor.h>
#include <xsg/values/SbTime.h>

/// A sensor that waits for a moment of the queue's clock and then runs in the turn that follows.
class XSG_API SoTimedSensor : public SoSensor
{
public:
    using SoSensor::SoSensor;
    ~SoTimedSensor() override;

    void unschedule() override;
    bool isScheduled() const override { return m_armed || isQueued(); }

protected:
    /// Waits for `moment`; one that has passed comes with the next turn.
    void arm(SbTime moment);
    SbTime getMoment() const { return m_moment; }

private:
    friend class SoSensorQueue;
    void disarm();
    SbTime m_moment;
    bool m_armed = false;
};
