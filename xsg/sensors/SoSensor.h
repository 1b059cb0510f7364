// A callback that waits for something. It never runs inside the change that triggers it: it is put on the queue
// and runs once in the queue's next turn, however often it was triggered. Deleting, detaching or re-attaching a
// sensor is safe at any time, inside any callback too. Belongs to the graph's thread.
#pragma once

#include <xsg/base/XsgExport.h>

#include <cstddef>

class SoSensor;
using SoSensorCB = void(void* data, SoSensor* sensor);

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

    // Lower numbers run earlier in a turn; sensors of the same priority run in the order of their triggering.
    void setPriority(int priority) { m_priority = priority; }
    int getPriority() const { return m_priority; }

    void schedule();
    void unschedule();
    bool isScheduled() const { return m_slot != NotQueued; }

protected:
    virtual void run();

private:
    friend class SoSensorQueue;
    static constexpr std::size_t NotQueued = static_cast<std::size_t>(-1);

    SoSensorCB* m_callback;
    void* m_data;
    int m_priority = 100;
    bool m_inTurn = false;
    std::size_t m_slot = NotQueued;
};
