#include "SensorPump.h"
#include "HostParts.h"

#include <gtest/gtest.h>

#include <xsg/sensors/SoFieldSensor.h>

namespace
{

void count(void* data, SoSensor*)
{
    ++*static_cast<int*>(data);
}

TEST(SensorPumpTest, AFieldSensorFiresOnceATurnHoweverOftenItsFieldChanged)
{
    const SensorPump pump;
    SoRef<SoMaterial> material = new SoMaterial;
    int fired = 0;
    SoFieldSensor sensor(count, &fired);
    sensor.attach(&material->transparency);
    material->transparency.setValue(0.25F);
    material->transparency.setValue(0.5F);
    EXPECT_EQ(fired, 0);
    ::pump();
    EXPECT_EQ(fired, 1);
    material->transparency.setValue(0.75F);
    ::pump();
    EXPECT_EQ(fired, 2);
}

TEST(SensorPumpTest, ASensorThatTriggersItselfLeavesTheLoopItsOtherEvents)
{
    const SensorPump pump;
    SoRef<SoMaterial> material = new SoMaterial;
    struct Loop {
        SoSFFloat* field;
        int turns = 0;
    } loop{&material->transparency};
    const auto again = [](void* data, SoSensor*) {
        auto* loop = static_cast<Loop*>(data);
        if (++loop->turns < 100000)
            loop->field->touch();
    };
    SoFieldSensor sensor(again, &loop);
    sensor.attach(&material->transparency);
    material->transparency.touch();
    bool other = false;
    QMetaObject::invokeMethod(
        qApp, [&other] { other = true; }, Qt::QueuedConnection);
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(other);
    EXPECT_LE(loop.turns, 2);
}

TEST(SensorPumpTest, WhatWaitedBeforeThePumpCameIsRun)
{
    SoRef<SoMaterial> material = new SoMaterial;
    int fired = 0;
    SoFieldSensor sensor(count, &fired);
    sensor.attach(&material->transparency);
    {
        const SensorPump gone;
    }
    material->transparency.touch();
    const SensorPump pump;
    ::pump();
    EXPECT_EQ(fired, 1);
}

} // namespace
