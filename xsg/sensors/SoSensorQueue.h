// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoSensor.h>
#include <xsg/values/SbTime.h>

#include <functional>
#include <map>
#include <vector>

class SoTimedSensor;
namespace xsg
{
class Context;
} // namespace xsg

/// The one queue of triggered sensors, driven by the host:
///
///   - the wake-up hook notifies the host that something waits; it then calls process() in a turn of its
///   event loop;
///   - after process(), and when woken, the host sets a timer for getDeadline() and calls process() again by
///   then.
///
/// Belongs to the graph's thread.
class XSG_API SoSensorQueue
{
public:
    static SoSensorQueue& getInstance();

    /// One turn: runs what waits now, each sensor once; idle sensors only when nothing else waits. What a
    /// callback triggers waits for the next turn, so a turn always ends. A call from inside a turn does
    /// nothing.
    void process();
    /// Whether the next turn has something to do, timed sensors that are not due left aside.
    bool isEmpty() const { return getLength() == 0; }
    std::size_t getLength() const { return m_next.count + m_idle.count; }

    void forEachWaiting(const std::function<void(SoSensor&)>& visit) const;

    /// When the earliest timed sensor is due, on the queue's clock; false where none waits.
    bool getDeadline(SbTime& moment) const;
    /// Seconds until then, 0 when it has passed; false where none waits.
    bool getTimeToDeadline(SbTime& duration) const;

    /// Called whenever the queue turns from empty to not empty, after a turn that left something queued, and
    /// when a new deadline is earlier than all others.
    using WakeUp = void (*)(void* data);
    void setWakeUp(WakeUp callback, void* data);
    /// Whether the queue is driven already, and whether by this hook.
    bool hasWakeUp() const { return m_wakeUp != nullptr; }
    bool hasWakeUp(WakeUp callback, const void* data) const
    {
        return m_wakeUp == callback && m_wakeUpData == data;
    }

    /// The clock of timed sensors, in seconds since the Unix epoch. It never runs backwards.
    SbTime getTime() const { return m_clock(); }
    /// Another clock, for an application that makes its own time, as when it renders to files. Null: the
    /// usual one.
    using Clock = SbTime (*)();
    void setClock(Clock clock);

private:
    friend class SoSensor;
    friend class SoTimedSensor;
    friend class xsg::Context;
    using Place = SoSensor::Place;
    struct List {
        std::vector<SoSensor*> sensors; // those taken out are null
        std::size_t count = 0;
    };
    class TurnGuard;

    SoSensorQueue() = default;
    List& list(Place place);
    void add(SoSensor* sensor, Place place);
    void remove(SoSensor* sensor);
    void arm(SoTimedSensor* sensor);
    void disarm(SoTimedSensor* sensor);
    void enqueueDue();
    void beginTurn(List& waiting);
    void runTurn();
    void wake() const;
    void publishLength() const;
    static SbTime usualClock();

    List m_next;
    List m_idle;
    List m_running;
    std::multimap<double, SoTimedSensor*> m_armed;
    bool m_inTurn = false;
    Clock m_clock = usualClock;
    WakeUp m_wakeUp = nullptr;
    void* m_wakeUpData = nullptr;
};
