// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <support/SoFieldGallery.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/sensors/SoAlarmSensor.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoIdleSensor.h>
#include <xsg/sensors/SoNodeSensor.h>
#include <xsg/sensors/SoSensorQueue.h>
#include <xsg/sensors/SoTimerSensor.h>

#include <cmath>
#include <functional>
#include <memory>

namespace
{

double g_now = 1000;

// Drives the queue with a clock of its own and hears its wake-ups.
class Sensors : public testing::Test
{
protected:
    Sensors()
    {
        queue.process();
        g_now = 1000;
        queue.setClock([] { return SbTime(g_now); });
        queue.setWakeUp([](void* data) { ++*static_cast<int*>(data); }, &wakeUps);
        wakeUps = 0;
    }
    ~Sensors() override
    {
        queue.setWakeUp(nullptr, nullptr);
        queue.setClock(nullptr);
    }
    void processAt(double moment)
    {
        g_now = moment;
        queue.process();
    }
    SoSensorQueue& queue = SoSensorQueue::getInstance();
    int wakeUps = 0;
};

void count(void* data, SoSensor*)
{
    ++*static_cast<int*>(data);
}

// Calls what the test wants to happen inside the callback.
struct Act {
    std::function<void()> act;
    int calls = 0;
    static void run(void* data, SoSensor*)
    {
        auto* self = static_cast<Act*>(data);
        ++self->calls;
        if (self->act)
            self->act();
    }
};

} // namespace

TEST_F(Sensors, ManyChangesGiveOneCallPerTurn)
{
    SoSFFloat field;
    int calls = 0;
    SoFieldSensor sensor(count, &calls);
    sensor.attach(&field);
    for (int i = 0; i < 100; ++i)
        field.setValue(static_cast<float>(i));
    EXPECT_EQ(wakeUps, 1);
    EXPECT_EQ(queue.getLength(), 1U);
    queue.process();
    queue.process();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(queue.isEmpty());
    field.setValue(1);
    EXPECT_EQ(wakeUps, 2);
    queue.process();
    EXPECT_EQ(calls, 2);
}

TEST_F(Sensors, LowerPrioritiesRunFirstAndEqualOnesInOrder)
{
    SoSFFloat field;
    std::string order;
    struct Entry {
        std::string* order;
        char name;
    };
    Entry entries[] = {{&order, 'a'}, {&order, 'b'}, {&order, 'c'}, {&order, 'd'}};
    const int priorities[] = {100, 50, 100, 0};
    std::vector<std::unique_ptr<SoFieldSensor>> sensors;
    for (int i = 0; i < 4; ++i) {
        sensors.push_back(std::make_unique<SoFieldSensor>(
            [](void* data, SoSensor*) {
                auto* entry = static_cast<Entry*>(data);
                *entry->order += entry->name;
            },
            &entries[i]));
        sensors.back()->setPriority(priorities[i]);
        sensors.back()->attach(&field);
    }
    field.touch();
    queue.process();
    EXPECT_EQ(order, "dbac");
}

TEST_F(Sensors, DetachingCancelsWhatIsQueued)
{
    SoSFFloat field;
    SoSFFloat other;
    int calls = 0;
    SoFieldSensor sensor(count, &calls);
    sensor.attach(&field);
    field.touch();
    sensor.detach();
    queue.process();
    EXPECT_EQ(calls, 0);
    sensor.attach(&field);
    field.touch();
    sensor.attach(&other); // moves, and forgets
    queue.process();
    EXPECT_EQ(calls, 0);
    field.touch();
    queue.process();
    EXPECT_EQ(calls, 0);
    other.touch();
    queue.process();
    EXPECT_EQ(calls, 1);
}

TEST_F(Sensors, DestroyingAFieldDetachesItsSensors)
{
    int calls = 0;
    SoFieldSensor sensor(count, &calls);
    auto field = std::make_unique<SoSFFloat>();
    sensor.attach(field.get());
    field->touch();
    field.reset();
    EXPECT_EQ(sensor.getAttachedField(), nullptr);
    EXPECT_FALSE(sensor.isScheduled());
    queue.process();
    EXPECT_EQ(calls, 0);
}

TEST_F(Sensors, ASensorMayDeleteItselfInItsCallback)
{
    SoSFFloat field;
    Act act;
    auto* sensor = new SoFieldSensor(Act::run, &act);
    sensor->attach(&field);
    act.act = [&] { delete sensor; };
    field.touch();
    queue.process();
    field.touch();
    queue.process();
    EXPECT_EQ(act.calls, 1);
}

TEST_F(Sensors, ACallbackMayDeleteDetachAndMoveOthersOfItsTurn)
{
    SoSFFloat field;
    SoSFFloat other;
    int deletedCalls = 0;
    int detachedCalls = 0;
    int movedCalls = 0;
    Act act;
    SoFieldSensor first(Act::run, &act);
    first.setPriority(0);
    first.attach(&field);
    auto deleted = std::make_unique<SoFieldSensor>(count, &deletedCalls);
    deleted->attach(&field);
    SoFieldSensor detached(count, &detachedCalls);
    detached.attach(&field);
    SoFieldSensor moved(count, &movedCalls);
    moved.attach(&field);
    act.act = [&] {
        deleted.reset();
        detached.detach();
        moved.attach(&other);
        other.touch();
    };
    field.touch();
    queue.process();
    EXPECT_EQ(act.calls, 1);
    EXPECT_EQ(movedCalls, 0);
    queue.process();
    EXPECT_EQ(deletedCalls, 0);
    EXPECT_EQ(detachedCalls, 0);
    EXPECT_EQ(movedCalls, 1);
}

TEST_F(Sensors, ACallbackMayDeleteTheFieldThatItsTurnIsAbout)
{
    auto field = std::make_unique<SoSFFloat>();
    int calls = 0;
    Act act;
    SoFieldSensor first(Act::run, &act);
    SoFieldSensor second(count, &calls);
    first.setPriority(0);
    first.attach(field.get());
    second.attach(field.get());
    act.act = [&] { field.reset(); };
    field->touch();
    queue.process();
    EXPECT_EQ(act.calls, 1);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(second.getAttachedField(), nullptr);
}

TEST_F(Sensors, SensorsThatTriggerEachOtherDoNotKeepTheTurnFromEnding)
{
    SoSFFloat a;
    SoSFFloat b;
    Act onA;
    Act onB;
    SoFieldSensor sensorA(Act::run, &onA);
    SoFieldSensor sensorB(Act::run, &onB);
    sensorA.attach(&a);
    sensorB.attach(&b);
    onA.act = [&] { b.touch(); };
    onB.act = [&] { a.touch(); };
    a.touch();
    wakeUps = 0;
    for (int turn = 1; turn <= 10; ++turn) {
        queue.process();
        EXPECT_EQ(onA.calls + onB.calls, turn);
        EXPECT_EQ(wakeUps, turn); // each turn leaves something for the next
    }
    sensorA.detach();
    sensorB.detach();
}

TEST_F(Sensors, ACallFromInsideATurnDoesNothing)
{
    SoSFFloat field;
    Act act;
    SoFieldSensor sensor(Act::run, &act);
    sensor.attach(&field);
    act.act = [&] {
        if (act.calls < 5)
            field.touch();
        queue.process();
    };
    field.touch();
    queue.process();
    EXPECT_EQ(act.calls, 1);
    sensor.detach();
}

TEST_F(Sensors, ACallbackThatThrowsLeavesTheOthersQueued)
{
    SoSFFloat field;
    Act act;
    int calls = 0;
    SoFieldSensor first(Act::run, &act);
    SoFieldSensor second(count, &calls);
    first.setPriority(0);
    first.attach(&field);
    second.attach(&field);
    act.act = [] { throw 1; };
    field.touch();
    EXPECT_THROW(queue.process(), int);
    EXPECT_EQ(calls, 0);
    queue.process();
    EXPECT_EQ(calls, 1);
}

TEST_F(Sensors, TogglingASensorDoesNotGrowTheQueue)
{
    SoSFFloat field;
    int calls = 0;
    SoFieldSensor kept(count, &calls);
    kept.attach(&field);
    kept.schedule();
    SoFieldSensor toggled(count, &calls);
    for (int i = 0; i < 100'000; ++i) {
        toggled.schedule();
        toggled.unschedule();
    }
    EXPECT_EQ(queue.getLength(), 1U);
    queue.process();
    EXPECT_EQ(calls, 1);
}

TEST_F(Sensors, NodeSensorsHearFieldsAndChildrenBelow)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* gallery = new SoFieldGallery;
    SoField* trigger = nullptr;
    int calls = 0;
    struct Data {
        SoField** trigger;
        int* calls;
    } data{&trigger, &calls};
    SoNodeSensor sensor(
        [](void* d, SoSensor* s) {
            auto* seen = static_cast<Data*>(d);
            ++*seen->calls;
            *seen->trigger = dynamic_cast<SoNodeSensor*>(s)->getTriggerField();
        },
        &data);
    sensor.attach(root.get());
    root->addChild(gallery);
    queue.process();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(trigger, nullptr);
    gallery->sfFloat.setValue(2);
    queue.process();
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(trigger, &gallery->sfFloat);
    gallery->sfFloat.setValue(3);
    const SoRef<SoNode> keep(gallery);
    root->removeAllChildren();
    queue.process();
    EXPECT_EQ(calls, 3);
    sensor.detach();
    gallery->sfFloat.setValue(4);
    EXPECT_TRUE(queue.isEmpty());
}

TEST_F(Sensors, ForgetsADestroyedTriggerField)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    SoNodeSensor sensor;
    auto* gallery = new SoFieldGallery;
    root->addChild(gallery);
    sensor.attach(root.get());
    gallery->sfFloat.setValue(1);
    EXPECT_EQ(sensor.getTriggerField(), &gallery->sfFloat);
    {
        // The change of the children comes later; the field is what triggered last until then.
        const SoRef<SoNode> keep(gallery);
        root->removeChild(0);
        keep->getField("sfFloat")->touch();
        sensor.detach();
        sensor.attach(gallery);
        gallery->sfInt32.touch();
        EXPECT_EQ(sensor.getTriggerField(), &gallery->sfInt32);
    }
    EXPECT_EQ(sensor.getTriggerField(), nullptr);
}

TEST_F(Sensors, DestroyingANodeDetachesItsSensors)
{
    int calls = 0;
    SoNodeSensor sensor(count, &calls);
    {
        const SoRef<SoSeparator> node(new SoSeparator);
        sensor.attach(node.get());
        node->setName("going");
        EXPECT_TRUE(sensor.isScheduled());
    }
    EXPECT_EQ(sensor.getAttachedContainer(), nullptr);
    queue.process();
    EXPECT_EQ(calls, 0);
}

TEST_F(Sensors, IdleSensorsRunLast)
{
    SoSFFloat field;
    int fieldCalls = 0;
    int idleCalls = 0;
    SoFieldSensor sensor(count, &fieldCalls);
    sensor.attach(&field);
    SoIdleSensor idle(count, &idleCalls);
    idle.schedule();
    idle.schedule();
    EXPECT_EQ(wakeUps, 1);
    field.touch();
    queue.process();
    EXPECT_EQ(fieldCalls, 1);
    EXPECT_EQ(idleCalls, 0);
    EXPECT_FALSE(queue.isEmpty());
    EXPECT_EQ(wakeUps, 2); // the turn left the idle one
    queue.process();
    EXPECT_EQ(idleCalls, 1);
    queue.process();
    EXPECT_EQ(idleCalls, 1);
    idle.schedule();
    idle.unschedule();
    queue.process();
    EXPECT_EQ(idleCalls, 1);
}

TEST_F(Sensors, AnAlarmRingsOnceAtItsMoment)
{
    int calls = 0;
    SoAlarmSensor alarm(count, &calls);
    alarm.setTimeFromNow(5.0);
    EXPECT_EQ(alarm.getTime(), SbTime(1005.0));
    alarm.schedule();
    EXPECT_TRUE(alarm.isScheduled());
    EXPECT_EQ(wakeUps, 1); // the host is to set its timer
    SbTime moment;
    ASSERT_TRUE(queue.getDeadline(moment));
    EXPECT_EQ(moment, SbTime(1005.0));
    processAt(1004.9);
    EXPECT_EQ(calls, 0);
    SbTime left;
    ASSERT_TRUE(queue.getTimeToDeadline(left));
    EXPECT_NEAR(left.getValue(), 0.1, 1e-9);
    processAt(1005);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(alarm.isScheduled());
    EXPECT_FALSE(queue.getDeadline(moment));
    EXPECT_FALSE(queue.getTimeToDeadline(left));
    processAt(2000);
    EXPECT_EQ(calls, 1);
    alarm.setTime(1.0); // has passed: comes with the next turn
    alarm.schedule();
    ASSERT_TRUE(queue.getTimeToDeadline(left));
    EXPECT_EQ(left, SbTime(0.0));
    queue.process();
    EXPECT_EQ(calls, 2);
    alarm.setTime(SbTime(HUGE_VAL));
    EXPECT_EQ(alarm.getTime(), SbTime(1.0));
}

TEST_F(Sensors, OnlyAnEarlierDeadlineWakesTheHost)
{
    int calls = 0;
    SoAlarmSensor late(count, &calls);
    SoAlarmSensor early(count, &calls);
    late.setTime(1010.0);
    early.setTime(1005.0);
    early.schedule();
    EXPECT_EQ(wakeUps, 1);
    late.schedule();
    EXPECT_EQ(wakeUps, 1);
    late.unschedule();
    late.setTime(1001.0);
    late.schedule();
    EXPECT_EQ(wakeUps, 2);
}

TEST_F(Sensors, ATimerRepeatsAndLeavesOutWhatItMissed)
{
    int calls = 0;
    SoTimerSensor timer(count, &calls);
    timer.setInterval(1.0);
    timer.schedule();
    processAt(1000.5);
    EXPECT_EQ(calls, 0);
    processAt(1001);
    EXPECT_EQ(calls, 1);
    processAt(1002.2);
    EXPECT_EQ(calls, 2);
    SbTime moment;
    ASSERT_TRUE(queue.getDeadline(moment));
    EXPECT_EQ(moment, SbTime(1003.0)); // on the beat
    processAt(1010.5);
    EXPECT_EQ(calls, 3);
    ASSERT_TRUE(queue.getDeadline(moment));
    EXPECT_EQ(moment, SbTime(1011.0));
    timer.unschedule();
    EXPECT_FALSE(timer.isScheduled());
    processAt(1100);
    EXPECT_EQ(calls, 3);
}

TEST_F(Sensors, ATimerMayStopAndDeleteItselfInItsCallback)
{
    Act act;
    auto* timer = new SoTimerSensor(Act::run, &act);
    timer->setInterval(1.0);
    timer->schedule();
    act.act = [&] { timer->unschedule(); };
    processAt(1001);
    processAt(1005);
    EXPECT_EQ(act.calls, 1);
    timer->schedule();
    act.act = [&] { delete timer; };
    processAt(1010);
    processAt(1020);
    EXPECT_EQ(act.calls, 2);
}

TEST_F(Sensors, ATimerRefusesIntervalsThatAreNone)
{
    SoTimerSensor timer;
    timer.setInterval(2.0);
    for (const double bad : {0.0, -1.0, HUGE_VAL, std::nan("")}) {
        timer.setInterval(bad);
        EXPECT_EQ(timer.getInterval(), SbTime(2.0));
    }
}

TEST_F(Sensors, ATimerOfTheSmallestIntervalRunsOncePerTurn)
{
    int calls = 0;
    SoTimerSensor timer(count, &calls);
    timer.setInterval(5e-324);
    timer.schedule();
    for (int i = 1; i <= 3; ++i) {
        processAt(1000 + i);
        EXPECT_EQ(calls, i);
    }
}

TEST_F(Sensors, TheUsualClockRunsForward)
{
    queue.setClock(nullptr);
    const double before = queue.getTime().getValue();
    EXPECT_GT(before, 1.6e9); // seconds since 1970
    EXPECT_GE(queue.getTime().getValue(), before);
}
