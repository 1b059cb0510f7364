// SPDX-License-Identifier: MIT
#include "app/SensorPump.h"
#include "HostParts.h"

#include <gtest/gtest.h>

#include <xsg/sensors/SoAlarmSensor.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoIdleSensor.h>
#include <xsg/sensors/SoSensorQueue.h>
#include <xsg/sensors/SoTimerSensor.h>

using namespace scopix;

namespace
{

void count(void* data, SoSensor*)
{
    ++*static_cast<int*>(data);
}

TEST(SensorPump, AFieldSensorFiresOnceATurnHoweverOftenItsFieldChanged)
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

TEST(SensorPump, ASensorThatTriggersItselfLeavesTheLoopItsOtherEvents)
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

TEST(SensorPump, RunsWhatWasQueuedBeforeThePump)
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

TEST(SensorPump, TimedAndIdleSensorsRunWithoutAnyOtherEvent)
{
    const SensorPump pump;
    int alarms = 0;
    int beats = 0;
    int idles = 0;
    SoAlarmSensor alarm(count, &alarms);
    alarm.setTimeFromNow(0.02);
    alarm.schedule();
    SoTimerSensor timer(count, &beats);
    timer.setInterval(0.01);
    timer.schedule();
    SoIdleSensor idle(count, &idles);
    idle.schedule();
    EXPECT_TRUE(waitFor([&] { return alarms == 1 && beats >= 3 && idles == 1; }));
    timer.unschedule();
}

TEST(SensorPump, AnEarlierAlarmIsNotHeldUpByALaterOne)
{
    const SensorPump pump;
    int late = 0;
    int early = 0;
    SoAlarmSensor later(count, &late);
    later.setTimeFromNow(1e9);
    later.schedule();
    ::pump();
    SoAlarmSensor sooner(count, &early);
    sooner.setTimeFromNow(0.01);
    sooner.schedule();
    EXPECT_TRUE(waitFor([&] { return early == 1; }));
    EXPECT_EQ(late, 0);
}

TEST(SensorPump, LeavesAQueueAloneThatTheApplicationDrives)
{
    int wakeUps = 0;
    const auto wakeUp = [](void* data) { ++*static_cast<int*>(data); };
    SoSensorQueue& queue = SoSensorQueue::getInstance();
    queue.setWakeUp(wakeUp, &wakeUps);
    SoRef<SoMaterial> material = new SoMaterial;
    int fired = 0;
    SoFieldSensor sensor(count, &fired);
    sensor.attach(&material->transparency);
    {
        const SensorPump pump;
        material->transparency.setValue(0.25F);
        EXPECT_EQ(wakeUps, 1);
        queue.process();
        EXPECT_EQ(fired, 1);
    }
    EXPECT_TRUE(queue.hasWakeUp(wakeUp, &wakeUps));
    queue.setWakeUp(nullptr, nullptr);
}

} // namespace
