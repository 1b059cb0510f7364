// The one queue of triggered sensors. The host calls process() once per turn of its event loop; the wake-up hook
// tells it that there is something to process. Belongs to the graph's thread.
#pragma once

#include <xsg/base/XsgExport.h>

#include <cstddef>
#include <vector>

class SoSensor;

class XSG_API SoSensorQueue
{
public:
    static SoSensorQueue& getInstance();

    // One turn: runs what is queued now, each sensor once. What a callback triggers waits for the next turn, so a
    // turn always ends. A call from inside a turn does nothing.
    void process();
    bool isEmpty() const { return m_waiting == 0; }
    std::size_t getLength() const { return m_waiting; }

    // Called whenever the queue turns from empty to not empty, and after a turn that left something queued.
    using WakeUp = void (*)(void* data);
    void setWakeUp(WakeUp callback, void* data);

private:
    friend class SoSensor;
    SoSensorQueue() = default;
    void add(SoSensor* sensor);
    void remove(SoSensor* sensor);
    void wake() const;

    std::vector<SoSensor*> m_pending; // removed ones are null
    std::vector<SoSensor*> m_turn;
    std::size_t m_waiting = 0; // sensors in m_pending
    bool m_inTurn = false;
    WakeUp m_wakeUp = nullptr;
    void* m_wakeUpData = nullptr;
};
