#include <xsg/sensors/SoSensorQueue.h>

#include <xsg/sensors/SoSensor.h>

#include <algorithm>

SoSensor::~SoSensor()
{
    unschedule();
}

void SoSensor::schedule()
{
    if (!isScheduled())
        SoSensorQueue::getInstance().add(this);
}

void SoSensor::unschedule()
{
    if (isScheduled())
        SoSensorQueue::getInstance().remove(this);
}

void SoSensor::run()
{
    if (m_callback)
        m_callback(m_data, this);
}

SoSensorQueue& SoSensorQueue::getInstance()
{
    static auto& queue = *new SoSensorQueue;
    return queue;
}

void SoSensorQueue::add(SoSensor* sensor)
{
    sensor->m_slot = m_pending.size();
    sensor->m_inTurn = false;
    m_pending.push_back(sensor);
    if (++m_waiting == 1 && !m_inTurn)
        wake();
}

void SoSensorQueue::remove(SoSensor* sensor)
{
    (sensor->m_inTurn ? m_turn : m_pending)[sensor->m_slot] = nullptr;
    if (!sensor->m_inTurn && --m_waiting == 0)
        m_pending.clear();
    sensor->m_slot = SoSensor::NotQueued;
}

void SoSensorQueue::process()
{
    if (m_inTurn)
        return;
    m_inTurn = true;
    m_turn.swap(m_pending);
    m_waiting = 0;
    m_turn.erase(std::remove(m_turn.begin(), m_turn.end(), nullptr), m_turn.end());
    std::stable_sort(m_turn.begin(), m_turn.end(),
                     [](const SoSensor* a, const SoSensor* b) { return a->m_priority < b->m_priority; });
    for (std::size_t i = 0; i < m_turn.size(); ++i) {
        m_turn[i]->m_slot = i;
        m_turn[i]->m_inTurn = true;
    }
    for (std::size_t i = 0; i < m_turn.size(); ++i) {
        SoSensor* sensor = m_turn[i];
        if (!sensor)
            continue; // removed by an earlier callback of this turn
        sensor->m_slot = SoSensor::NotQueued;
        m_turn[i] = nullptr;
        sensor->run();
    }
    m_turn.clear();
    m_inTurn = false;
    if (m_waiting > 0)
        wake();
}

void SoSensorQueue::setWakeUp(WakeUp callback, void* data)
{
    m_wakeUp = callback;
    m_wakeUpData = data;
    if (!isEmpty())
        wake();
}

void SoSensorQueue::wake() const
{
    if (m_wakeUp)
        m_wakeUp(m_wakeUpData);
}
