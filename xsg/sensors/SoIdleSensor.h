// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoSensor.h>

/// Runs its callback once, in the first turn of the queue in which nothing else waits.
class XSG_API SoIdleSensor : public SoSensor
{
public:
    using SoSensor::SoSensor;
    void schedule() override { enqueue(Turn::Idle); }
};
