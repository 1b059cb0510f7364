// SPDX-License-Identifier: MIT
#include <xsg/sensors/SoSensorQueue.h>

#include <xsg/core/Context.h>
#include <xsg/counters/LibraryCounters.h>
#include <xsg/sensors/SoTimedSensor.h>

#include <algorithm>

SoSensor::~SoSensor()
{
    dequeue();
}

void SoSensor::schedule()
{
    enqueue(Turn::Next);
}

void SoSensor::unschedule()
{
    dequeue();
}

void SoSensor::enqueue(Turn turn)
{
    if (!isQueued())
        SoSensorQueue::getInstance().add(this, turn == Turn::Next ? Place::Next : Place::Idle);
}

void SoSensor::dequeue()
{
    if (isQueued())
        SoSensorQueue::getInstance().remove(this);
}

void SoSensor::run()
{
    if (m_callback)
        m_callback(m_data, this);
}

SoSensorQueue& SoSensorQueue::getInstance()
{
    static auto& queue = xsg::Context::get().state<SoSensorQueue>();
    return queue;
}

SbTime SoSensorQueue::usualClock()
{
    static const double start = SbTime::getTimeOfDay().getValue();
    static const SbElapsedTime sinceStart;
    return start + sinceStart.getElapsed();
}

SoSensorQueue::List& SoSensorQueue::list(Place place)
{
    return place == Place::Next ? m_next : place == Place::Idle ? m_idle : m_running;
}

void SoSensorQueue::add(SoSensor* sensor, Place place)
{
    const bool wasEmpty = isEmpty();
    List& waiting = list(place);
    sensor->m_place = place;
    sensor->m_slot = waiting.sensors.size();
    waiting.sensors.push_back(sensor);
    ++waiting.count;
    publishLength();
    if (wasEmpty && !m_inTurn)
        wake();
}

void SoSensorQueue::remove(SoSensor* sensor)
{
    List& from = list(sensor->m_place);
    from.sensors[sensor->m_slot] = nullptr;
    --from.count;
    const bool isMostlyEmpty = from.sensors.size() > 16 && from.sensors.size() > 2 * from.count;
    if (isMostlyEmpty && sensor->m_place != Place::Running) {
        from.sensors.erase(std::remove(from.sensors.begin(), from.sensors.end(), nullptr),
                           from.sensors.end());
        for (std::size_t i = 0; i < from.sensors.size(); ++i)
            from.sensors[i]->m_slot = i;
    }
    sensor->m_place = Place::None;
    publishLength();
}

void SoSensorQueue::arm(SoTimedSensor* sensor)
{
    const auto at = m_armed.emplace(sensor->m_moment.getValue(), sensor);
    sensor->m_armed = true;
    if (at == m_armed.begin() && !m_inTurn)
        wake();
}

void SoSensorQueue::disarm(SoTimedSensor* sensor)
{
    auto [at, end] = m_armed.equal_range(sensor->m_moment.getValue());
    while (at != end && at->second != sensor)
        ++at;
    m_armed.erase(at);
    sensor->m_armed = false;
}

void SoSensorQueue::enqueueDue()
{
    const double now = getTime().getValue();
    while (!m_armed.empty() && m_armed.begin()->first <= now) {
        SoTimedSensor* sensor = m_armed.begin()->second;
        m_armed.erase(m_armed.begin());
        sensor->m_armed = false;
        sensor->enqueue(SoSensor::Turn::Next);
    }
}

// Ends the turn also when a callback throws: what has not run yet then waits for the next one.
class SoSensorQueue::TurnGuard
{
public:
    explicit TurnGuard(SoSensorQueue& queue)
        : m_queue(queue)
    {
        queue.m_inTurn = true;
    }
    TurnGuard(const TurnGuard&) = delete;
    TurnGuard& operator=(const TurnGuard&) = delete;
    ~TurnGuard()
    {
        for (SoSensor* sensor : m_queue.m_running.sensors) {
            if (sensor)
                m_queue.add(sensor, Place::Next);
        }
        m_queue.m_running = {};
        m_queue.m_inTurn = false;
        if (!m_queue.isEmpty())
            m_queue.wake();
    }

private:
    SoSensorQueue& m_queue;
};

void SoSensorQueue::process()
{
    if (m_inTurn)
        return;
    const TurnGuard turn(*this);
    enqueueDue();
    beginTurn(m_next.count > 0 ? m_next : m_idle);
    runTurn();
}

void SoSensorQueue::beginTurn(List& waiting)
{
    auto& sensors = m_running.sensors;
    sensors.swap(waiting.sensors);
    waiting = {};
    sensors.erase(std::remove(sensors.begin(), sensors.end(), nullptr), sensors.end());
    std::stable_sort(sensors.begin(), sensors.end(),
                     [](const SoSensor* a, const SoSensor* b) { return a->m_priority < b->m_priority; });
    for (std::size_t i = 0; i < sensors.size(); ++i) {
        sensors[i]->m_slot = i;
        sensors[i]->m_place = Place::Running;
    }
    m_running.count = sensors.size();
    publishLength();
}

void SoSensorQueue::runTurn()
{
    for (std::size_t i = 0; i < m_running.sensors.size(); ++i) {
        SoSensor* sensor = m_running.sensors[i];
        if (!sensor)
            continue; // taken out by an earlier callback of this turn
        m_running.sensors[i] = nullptr;
        --m_running.count;
        sensor->m_place = Place::None;
        xsg::feeds.sensorsTriggered.add();
        sensor->run();
    }
}

void SoSensorQueue::forEachWaiting(const std::function<void(SoSensor&)>& visit) const
{
    for (const List* waiting : {&m_next, &m_idle, &m_running}) {
        for (SoSensor* sensor : waiting->sensors) {
            if (sensor)
                visit(*sensor);
        }
    }
}

bool SoSensorQueue::getDeadline(SbTime& moment) const
{
    if (m_armed.empty())
        return false;
    moment = m_armed.begin()->first;
    return true;
}

bool SoSensorQueue::getTimeToDeadline(SbTime& duration) const
{
    SbTime moment;
    if (!getDeadline(moment))
        return false;
    duration = std::max(moment.getValue() - getTime().getValue(), 0.0);
    return true;
}

void SoSensorQueue::setWakeUp(WakeUp callback, void* data)
{
    m_wakeUp = callback;
    m_wakeUpData = data;
    if (!isEmpty() || !m_armed.empty())
        wake();
}

void SoSensorQueue::setClock(Clock clock)
{
    m_clock = clock ? clock : usualClock;
    if (!m_armed.empty())
        wake();
}

void SoSensorQueue::wake() const
{
    if (m_wakeUp)
        m_wakeUp(m_wakeUpData);
}

void SoSensorQueue::publishLength() const
{
    xsg::feeds.sensorQueueLength.set(static_cast<std::int64_t>(getLength()));
}
