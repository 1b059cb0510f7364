// SPDX-License-Identifier: MIT
// The library's own counters count where the work happens.
#include <gtest/gtest.h>

#include <support/SoFieldGallery.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoSensorQueue.h>
#include <xsg/support/XsgMalloc.h>

namespace
{

// How much a counter grew.
class Growth
{
public:
    explicit Growth(const char* name)
        : m_counter(SoPerfCounterManager::getInstance()->getCounter(name))
        , m_before(m_counter->getRawValue())
    {
    }
    double operator()() const { return m_counter->getRawValue() - m_before; }

private:
    const SoPerfCounter* m_counter;
    double m_before;
};

} // namespace

TEST(LibraryCounters, FieldChangesAndNotifications)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* gallery = new SoFieldGallery;
    root->addChild(gallery);
    const Growth changes("FieldChanges");
    const Growth notifications("Notifications");
    gallery->sfFloat.setValue(1);
    EXPECT_EQ(changes(), 1);
    EXPECT_EQ(notifications(), 2); // the gallery and the root
    SoSFFloat follower;
    follower.connectFrom(&gallery->sfFloat);
    EXPECT_EQ(changes(), 2);
    gallery->sfFloat.setValue(2);
    EXPECT_EQ(changes(), 4);
    EXPECT_EQ(notifications(), 4);
    EXPECT_FALSE(gallery->sfFloat.set("no number"));
    EXPECT_EQ(changes(), 4);
}

TEST(LibraryCounters, SensorsAndTheirQueue)
{
    SoSFFloat field;
    SoFieldSensor sensor;
    sensor.attach(&field);
    const Growth triggered("SensorsTriggered");
    const Growth length("SensorQueueLength");
    field.setValue(1);
    field.setValue(2);
    EXPECT_EQ(length(), 1);
    EXPECT_EQ(triggered(), 0);
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(length(), 0);
    EXPECT_EQ(triggered(), 1);
    field.setValue(3);
    sensor.detach();
    EXPECT_EQ(length(), 0);
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(triggered(), 1);
}

TEST(LibraryCounters, WhatIsAlive)
{
    const Growth nodes("NodesAlive");
    const Growth fields("FieldsAlive");
    {
        const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
        EXPECT_EQ(nodes(), 1);
        EXPECT_EQ(fields(), gallery->getFieldData()->getNumFields());
    }
    EXPECT_EQ(nodes(), 0);
    EXPECT_EQ(fields(), 0);
}

TEST(LibraryCounters, Allocations)
{
    const Growth bytes("AllocatedBytes");
    const Growth calls("Allocations");
    void* memory = XsgMalloc(1000, __FILE__, __LINE__);
    ASSERT_TRUE(memory);
    EXPECT_EQ(bytes(), 1000);
    EXPECT_EQ(calls(), 1);
    XsgFree(memory, __FILE__, __LINE__);
    XsgFree(nullptr, __FILE__, __LINE__);
    EXPECT_EQ(bytes(), 1000);
    EXPECT_EQ(calls(), 1);
}
