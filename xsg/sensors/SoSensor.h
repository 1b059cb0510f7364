// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <cstddef>

class SoSensor;
using SoSensorCB = void(void* data, SoSensor* sensor);

/// A callback that waits for something. It never runs inside the change that triggers it: it is put on the
/// queue and runs once in the queue's next turn, however often it was triggered. Deleting, detaching or
/// re-attaching a sensor is safe at any time, inside any callback too. Belongs to the graph's thread.
class XSG_API SoSensor
{
public:
    explicit SoSensor(SoSensorCB* callback = nullptr, void* data = nullptr)
        : m_callback(callback)
        , m_data(data)
    {
    }
    SoSensor(const SoSensor&) = delete;
    SoSensor& operator=(const SoSensor&) = delete;
    virtual ~SoSensor();

    void setFunction(SoSensorCB* callback) { m_callback = callback; }
    void setData(void* data) { m_data = data; }

    /// Lower numbers run earlier in a turn; sensors of the same priority run in the order of their
    /// triggering.
    void setPriority(int priority) { m_priority = priority; }

    /// Makes the sensor wait for its moment, which for most is the queue's next turn. One that waits already
    /// is left alone.
    virtual void schedule();
    virtual void unschedule();
    virtual bool isScheduled() const { return isQueued(); }

protected:
    enum class Turn { Next, Idle }; // Idle: a turn in which nothing else waits
    void enqueue(Turn turn);
    void dequeue();
    bool isQueued() const { return m_place != Place::None; }
    virtual void run();

private:
    friend class SoSensorQueue;
    enum class Place : unsigned char { None, Next, Idle, Running };

    SoSensorCB* m_callback;
    void* m_data;
    std::size_t m_slot = 0; // in the queue's list for the place
    int m_priority = 100;
    Place m_place = Place::None;
};
